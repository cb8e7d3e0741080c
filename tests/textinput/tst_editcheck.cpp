#include "RefusalLog.h"

#include "printcore/QtVersions.h"
#include "printcore/SystemEncoding.h"
#include "textinput/PDEFormatter.h"

#include <QElapsedTimer>
#include <QTest>

#include <limits>

Q_DECLARE_METATYPE(TextRange)

/// Which edits a formatter allows, and what it tells of those that it refuses.
class EditCheckTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { mFormatter = PDEFormatter::init(); }
    void cleanup();

    void allowsWithoutText();
    void allowsWhatDoesNotMoveTheCaretForward_data();
    void allowsWhatDoesNotMoveTheCaretForward();
    void staysWithinTheText_data();
    void staysWithinTheText();
    void looksAtTypedTextOnly();
    void neverSetsAnError();

    void refusesValuesOutOfRange_data();
    void refusesValuesOutOfRange();
    void checksTheValueOnceTheTextIsFull();
    void checksTheValueInItsStylesOnly_data();
    void checksTheValueInItsStylesOnly();
    void checksNoValueThatIsSwitchedOff();
    void lastFailureWins_data();
    void lastFailureWins();

    void takesOnePoint_data();
    void takesOnePoint();

    void countsBytes_data();
    void countsBytes();
    void limitsTheWholeText();
    void takesLimitsOfEverySize_data();
    void takesLimitsOfEverySize();

    void refusesStringsTypedWhole_data();
    void refusesStringsTypedWhole();

    void longTextsAreQuick_data();
    void longTextsAreQuick();

private: // NOLINT(readability-redundant-access-specifiers): these are no slots
    /// Whether the edit is allowed: "ab(cd)[ef]gh" puts "ef" in the place of "cd", which is
    /// selected; with nothing selected, "ab[ef]gh".
    bool allows(const QString &edit);

    std::unique_ptr<PDEFormatter> mFormatter;
};

namespace {
constexpr qint32 largest = std::numeric_limits<qint32>::max();
constexpr qint32 smallest = std::numeric_limits<qint32>::min();
constexpr QtSize farthest = std::numeric_limits<QtSize>::max();
constexpr QtSize farthestBack = std::numeric_limits<QtSize>::min();

const QStringList nothing;
const QStringList invalid{u"InvalidCharacterNotification"_qs};
const QStringList outOfRange{u"FormatErrorNotification"_qs};

QStringList invalidCharacter(const QString &character)
{
    return {invalid.first() + u' ' + character};
}
} // namespace

void EditCheckTest::cleanup()
{
    mFormatter.reset();
    SystemEncoding::setName({});
}

bool EditCheckTest::allows(const QString &edit)
{
    QString start = edit.section(u'[', 0, 0);
    const QString typed = edit.section(u'[', 1).section(u']', 0, 0);
    const QString end = edit.section(u']', 1);
    QString selected;
    if (start.endsWith(u')')) {
        selected = start.section(u'(', 1).chopped(1);
        start = start.section(u'(', 0, 0);
    }
    const TextRange caret{start.size() + typed.size(), 0};
    return mFormatter->isPartialStringValid(start + typed + end, &caret, start + selected + end,
                                            {start.size(), selected.size()}, nullptr);
}

void EditCheckTest::allowsWithoutText()
{
    mFormatter->setTextStyle(2);
    mFormatter->setMaxLength(1);
    RefusalLog log;
    const TextRange caret{3, 0};
    QVERIFY(mFormatter->isPartialStringValid({}, &caret, {}, {}, nullptr));
    QVERIFY(mFormatter->isPartialStringValid(u""_qs, &caret, u"abc"_qs, {}, nullptr));
    QVERIFY(mFormatter->isPartialStringValid(u"xyz"_qs, nullptr, {}, {}, nullptr));
    QCOMPARE(log.takenBeeps(), 0);
    QVERIFY(!mFormatter->isPartialStringValid(u"xyz"_qs, &caret, {}, {}, nullptr));
    QCOMPARE(log.takenBeeps(), 1);
}

void EditCheckTest::allowsWhatDoesNotMoveTheCaretForward_data()
{
    QTest::addColumn<TextRange>("before");
    QTest::addColumn<TextRange>("after");
    QTest::addColumn<bool>("allowed");

    QTest::newRow("caret stays") << TextRange{2, 0} << TextRange{2, 0} << true;
    QTest::newRow("caret goes back") << TextRange{2, 0} << TextRange{1, 0} << true;
    QTest::newRow("caret goes to the start") << TextRange{4, 0} << TextRange{0, 0} << true;
    QTest::newRow("selection is deleted") << TextRange{1, 3} << TextRange{1, 0} << true;
    QTest::newRow("caret goes on") << TextRange{2, 0} << TextRange{3, 0} << false;
    QTest::newRow("selection is replaced") << TextRange{1, 3} << TextRange{2, 0} << false;
    QTest::newRow("selection after counts from its start")
        << TextRange{2, 0} << TextRange{2, 2} << true;
}

void EditCheckTest::allowsWhatDoesNotMoveTheCaretForward()
{
    QFETCH(TextRange, before);
    QFETCH(TextRange, after);
    RefusalLog log;
    mFormatter->setTextStyle(2);
    mFormatter->setMaxLength(-1);
    mFormatter->addInvalidCharacter(u"x"_qs);
    const bool allowed =
        mFormatter->isPartialStringValid(u"xxxx"_qs, &after, u"yyyyy"_qs, before, nullptr);
    QTEST(allowed, "allowed");
    QCOMPARE(log.takenBeeps(), allowed ? 0 : 1);
    QCOMPARE(log.taken().size(), allowed ? 0 : 1);
}

void EditCheckTest::staysWithinTheText_data()
{
    QTest::addColumn<QtSize>("before");
    QTest::addColumn<QtSize>("after");
    QTest::addColumn<QString>("refused");

    // The text is "1x3".
    QTest::newRow("beyond the end") << QtSize(1) << QtSize(9) << u"x3"_qs;
    QTest::newRow("far beyond the end") << QtSize(2) << farthest << u"3"_qs;
    QTest::newRow("both beyond the end") << QtSize(3) << farthest << QString();
    QTest::newRow("before the start") << QtSize(-5) << QtSize(2) << u"1x"_qs;
    QTest::newRow("far before the start") << farthestBack << farthest << u"1x3"_qs;
    QTest::newRow("both before the start") << farthestBack << QtSize(-1) << QString();
}

void EditCheckTest::staysWithinTheText()
{
    QFETCH(QtSize, before);
    QFETCH(QtSize, after);
    QFETCH(QString, refused);
    const TextRange caret{after, farthest};
    RefusalLog log;
    for (const QString &string : {u"x3"_qs, u"3"_qs, u"1x"_qs, u"1x3"_qs}) {
        mFormatter = PDEFormatter::init();
        mFormatter->addInvalidCharacter(string);
        const bool allowed =
            mFormatter->isPartialStringValid(u"1x3"_qs, &caret, {}, {before, farthest}, nullptr);
        QCOMPARE(allowed, string != refused);
        QCOMPARE(log.taken(), allowed ? nothing : invalidCharacter(string.right(1)));
    }
}

void EditCheckTest::looksAtTypedTextOnly()
{
    mFormatter->setTextStyle(2);
    QVERIFY(allows(u"ab[1]cd"_qs));
    QVERIFY(allows(u"é(x)[12]あ"_qs));
    QVERIFY(!allows(u"12[a]34"_qs));
    QVERIFY(allows(u"12(345)[]a"_qs));
}

void EditCheckTest::neverSetsAnError()
{
    mFormatter->setTextStyle(2);
    QString error = u"untouched"_qs;
    const TextRange caret{1, 0};
    QVERIFY(!mFormatter->isPartialStringValid(u"x"_qs, &caret, {}, {}, &error));
    QVERIFY(mFormatter->isPartialStringValid(u"1"_qs, &caret, {}, {}, &error));
    QCOMPARE(error, u"untouched"_qs);
}

void EditCheckTest::refusesValuesOutOfRange_data()
{
    QTest::addColumn<qint32>("least");
    QTest::addColumn<qint32>("most");
    QTest::addColumn<QString>("edit");
    QTest::addColumn<bool>("allowed");

    QTest::newRow("one digit") << 0 << 99 << u"[1]"_qs << true;
    QTest::newRow("two digits") << 0 << 99 << u"1[0]"_qs << true;
    QTest::newRow("three digits") << 0 << 99 << u"10[0]"_qs << false;
    QTest::newRow("the largest") << 0 << 99 << u"9[9]"_qs << true;
    QTest::newRow("the smallest") << 10 << 99 << u"1[0]"_qs << true;
    QTest::newRow("below the smallest") << 10 << 99 << u"[9]"_qs << false;
    QTest::newRow("digits in front") << 0 << 99 << u"[1]23"_qs << false;
    QTest::newRow("leading zeros") << 0 << 99 << u"[000]1"_qs << true;
    QTest::newRow("negative text") << -5 << 99 << u"-[5]"_qs << true;
    QTest::newRow("text too negative") << -5 << 99 << u"-[6]"_qs << false;
    QTest::newRow("letters count 0") << 1 << 99 << u"x[5]"_qs << false;
    QTest::newRow("pasted over") << 0 << 99 << u"1(2)[34]"_qs << false;
    QTest::newRow("32 bits") << smallest << largest << u"214748364[7]"_qs << true;
    QTest::newRow("beyond 32 bits") << smallest << largest << u"214748364[8]"_qs << true;
    QTest::newRow("far beyond 32 bits") << 0 << largest - 1 << u"9999999999999[9]"_qs << false;
    QTest::newRow("no value") << largest << smallest << u"[0]"_qs << false;
    QTest::newRow("only the largest") << largest << largest << u"2147483647[0]"_qs << true;
    QTest::newRow("only the smallest") << smallest << smallest << u"-2147483648[0]"_qs << true;
    QTest::newRow("above the smallest") << smallest << smallest << u"-[2]"_qs << false;
    QTest::newRow("negative range") << -9 << -3 << u"[3]"_qs << false;
    QTest::newRow("zero") << 0 << 0 << u"[0]"_qs << true;
    QTest::newRow("not zero") << 0 << 0 << u"[1]"_qs << false;
}

void EditCheckTest::refusesValuesOutOfRange()
{
    QFETCH(qint32, least);
    QFETCH(qint32, most);
    QFETCH(QString, edit);
    QFETCH(bool, allowed);
    RefusalLog log;
    for (const qint32 style : {2, 4}) {
        mFormatter->setTextStyle(style);
        mFormatter->setMinValue(least);
        mFormatter->setMaxValue(most);
        QCOMPARE(allows(edit), allowed);
        QCOMPARE(log.taken(), allowed ? nothing : outOfRange);
        QCOMPARE(log.takenBeeps(), allowed ? 0 : 1);
    }
}

void EditCheckTest::checksTheValueOnceTheTextIsFull()
{
    RefusalLog log;
    mFormatter->setTextStyle(2);
    mFormatter->setMaxLength(3);
    mFormatter->setMinValue(10);
    QVERIFY(allows(u"[5]"_qs));
    QVERIFY(allows(u"[0]"_qs));
    QVERIFY(allows(u"0[0]"_qs));
    QCOMPARE(log.taken(), nothing);
    QVERIFY(!allows(u"00[5]"_qs));
    QCOMPARE(log.taken(), outOfRange);
    QVERIFY(allows(u"01[0]"_qs));
    QVERIFY(!allows(u"[005]"_qs));
    QCOMPARE(log.taken(), outOfRange);
    // Too long is told before too small.
    QVERIFY(!allows(u"000[5]"_qs));
    QCOMPARE(log.taken(), invalid);

    mFormatter->setMaxValue(20);
    QVERIFY(allows(u"9[9]"_qs));
    QVERIFY(!allows(u"09[9]"_qs));
    QCOMPARE(log.taken(), outOfRange);
    // A character of two bytes makes the text full.
    QVERIFY(!allows(u"é[9]"_qs));
    QCOMPARE(log.taken(), outOfRange);
}

void EditCheckTest::checksTheValueInItsStylesOnly_data()
{
    QTest::addColumn<bool>("allowed");
    for (qint32 style = -1; style <= 12; ++style) {
        QTest::addRow("%d", style) << (style != 2 && style != 4);
    }
}

void EditCheckTest::checksTheValueInItsStylesOnly()
{
    mFormatter->setTextStyle(QByteArray(QTest::currentDataTag()).toInt());
    mFormatter->setMaxValue(3);
    mFormatter->setMinValue(-3);
    QTEST(allows(u"[5]"_qs), "allowed");
    QTEST(allows(u"-[5]"_qs), "allowed");
    QVERIFY(allows(u"[1]"_qs));
}

void EditCheckTest::checksNoValueThatIsSwitchedOff()
{
    mFormatter->setTextStyle(2);
    mFormatter->setMaxValue(5);
    mFormatter->setMinValue(3);
    mFormatter->setValidityMaxValue(false);
    QVERIFY(allows(u"[9]"_qs));
    QVERIFY(!allows(u"[1]"_qs));
    mFormatter->setValidityMaxValue(true);
    mFormatter->setValidityMinValue(false);
    QVERIFY(!allows(u"[9]"_qs));
    QVERIFY(allows(u"[1]"_qs));
}

void EditCheckTest::lastFailureWins_data()
{
    QTest::addColumn<QString>("edit");
    QTest::addColumn<QStringList>("told");

    // Style 2, up to 99.
    QTest::newRow("letter, then digit") << u"[x1]"_qs << invalid;
    QTest::newRow("digit, then letter") << u"[1x]"_qs << invalid;
    QTest::newRow("value, then letter") << u"[100x]"_qs << invalid;
    QTest::newRow("letter, then value") << u"100[x1]"_qs << outOfRange;
    QTest::newRow("letter within the value") << u"10[0x0]"_qs << outOfRange;
    QTest::newRow("letter in front of a number") << u"[x1]00"_qs << invalid;
    QTest::newRow("value alone") << u"[100]"_qs << outOfRange;
    QTest::newRow("letters alone") << u"[xyz]"_qs << invalid;
    QTest::newRow("accent beside a value") << u"100[é1]"_qs << invalid;
    QTest::newRow("kana beside a value") << u"100[あ1]"_qs << invalidCharacter(u"1"_qs);
    QTest::newRow("kana behind a value") << u"100[1あ]"_qs << invalidCharacter(u"あ"_qs);
}

void EditCheckTest::lastFailureWins()
{
    QFETCH(QString, edit);
    RefusalLog log;
    mFormatter->setTextStyle(2);
    mFormatter->setMaxValue(99);
    QVERIFY(!allows(edit));
    QTEST(log.taken(), "told");
    QCOMPARE(log.takenBeeps(), 1);
}

void EditCheckTest::takesOnePoint_data()
{
    QTest::addColumn<QString>("edit");
    QTest::addColumn<bool>("allowed");

    QTest::newRow("the first") << u"1[.]"_qs << true;
    QTest::newRow("the first, alone") << u"[.]"_qs << true;
    QTest::newRow("the second") << u"1.5[.]"_qs << false;
    QTest::newRow("the second, in front") << u"1[.]2.5"_qs << false;
    QTest::newRow("digits behind") << u"1.5[2]"_qs << true;
    QTest::newRow("a number behind") << u"1.5[2.3]"_qs << false;
    QTest::newRow("a number into nothing") << u"[2.3]"_qs << true;
    // The text before counts, not the one after.
    QTest::newRow("two into nothing") << u"[1.2.3]"_qs << true;
    QTest::newRow("two into a number") << u"1[.2.3]"_qs << true;
    QTest::newRow("in the place of the first") << u"1(.)[.]5"_qs << false;
    QTest::newRow("in the place of everything") << u"(1.5)[2.5]"_qs << false;
    QTest::newRow("comma") << u"1[,]"_qs << false;
}

void EditCheckTest::takesOnePoint()
{
    QFETCH(QString, edit);
    QFETCH(bool, allowed);
    RefusalLog log;
    mFormatter->setTextStyle(4);
    QCOMPARE(allows(edit), allowed);
    QCOMPARE(log.taken(), allowed ? nothing : invalid);
}

void EditCheckTest::countsBytes_data()
{
    QTest::addColumn<QByteArray>("encoding");
    QTest::addColumn<QString>("text");
    QTest::addColumn<qint32>("size");

    QTest::newRow("ASCII") << QByteArray("UTF-8") << u"abc"_qs << 3;
    QTest::newRow("accent") << QByteArray("UTF-8") << u"né"_qs << 3;
    QTest::newRow("kana") << QByteArray("UTF-8") << u"あ"_qs << 3;
    QTest::newRow("pair") << QByteArray("UTF-8") << u"\U0001f600"_qs << 4;
    QTest::newRow("half a pair counts characters")
        << QByteArray("UTF-8") << u"é"_qs + QChar(0xd83d) << 2;
    QTest::newRow("accent of one byte") << QByteArray("ISO-8859-1") << u"né"_qs << 2;
    QTest::newRow("kana outside the encoding") << QByteArray("ISO-8859-1") << u"あé"_qs << 2;
    QTest::newRow("pair outside the encoding") << QByteArray("ISO-8859-1") << u"\U0001f600"_qs << 2;
    QTest::newRow("kana of two bytes") << QByteArray("Shift_JIS") << u"aあ漢"_qs << 5;
    QTest::newRow("accent outside the encoding") << QByteArray("Shift_JIS") << u"éé"_qs << 2;
    QTest::newRow("wide characters") << QByteArray("UTF-16BE") << u"ab"_qs << 4;
    QTest::newRow("encoding that is not known") << QByteArray("no-such-encoding") << u"aé"_qs << 2;
}

void EditCheckTest::countsBytes()
{
    QFETCH(QByteArray, encoding);
    QFETCH(QString, text);
    QFETCH(qint32, size);
    RefusalLog log;
    SystemEncoding::setName(encoding);
    const QString edit = u'[' + text + u']';
    mFormatter->setMaxLength(size);
    QVERIFY(allows(edit));
    QCOMPARE(log.taken(), nothing);
    if (size > 1) {
        mFormatter->setMaxLength(size - 1);
        QVERIFY(!allows(edit));
        QCOMPARE(log.taken(), invalid);
    }
}

void EditCheckTest::limitsTheWholeText()
{
    RefusalLog log;
    for (qint32 style = -1; style <= 12; ++style) {
        mFormatter->setTextStyle(style);
        mFormatter->setMaxLength(4);
        QVERIFY(allows(u"123[4]"_qs));
        QVERIFY(allows(u"12(34)[5]6"_qs));
        QCOMPARE(log.taken(), nothing);
        QVERIFY(!allows(u"1234[5]"_qs));
        QVERIFY(!allows(u"éé[5]"_qs));
        QVERIFY(!allows(u"12(3)[45]6"_qs));
        QCOMPARE(log.taken(), invalid + invalid + invalid);
        // However long the text is, it may be made shorter.
        QVERIFY(allows(u"12345(6)[]"_qs));
    }
}

void EditCheckTest::takesLimitsOfEverySize_data()
{
    QTest::addColumn<qint32>("limit");
    QTest::addColumn<bool>("allowed");

    QTest::newRow("none") << 0 << true;
    QTest::newRow("one") << 1 << true;
    QTest::newRow("largest") << largest << true;
    QTest::newRow("negative") << -1 << false;
    QTest::newRow("smallest") << smallest << false;
}

void EditCheckTest::takesLimitsOfEverySize()
{
    QFETCH(qint32, limit);
    QFETCH(bool, allowed);
    RefusalLog log;
    for (qint32 style = -1; style <= 12; ++style) {
        mFormatter->setTextStyle(style);
        mFormatter->setMaxLength(limit);
        QCOMPARE(allows(u"[1]"_qs), allowed);
        QCOMPARE(log.taken(), allowed ? nothing : invalid);
    }
}

void EditCheckTest::refusesStringsTypedWhole_data()
{
    QTest::addColumn<QStringList>("refused");
    QTest::addColumn<QString>("edit");
    QTest::addColumn<QStringList>("told");

    const QStringList x{u"x"_qs};
    QTest::newRow("typed") << x << u"a[x]"_qs << invalidCharacter(u"x"_qs);
    QTest::newRow("pasted with another") << x << u"[xy]"_qs << nothing;
    QTest::newRow("pasted twice") << x << u"[xx]"_qs << nothing;
    QTest::newRow("in the text already") << x << u"x[y]"_qs << nothing;
    QTest::newRow("another") << x << u"[y]"_qs << nothing;
    QTest::newRow("other case") << x << u"[X]"_qs << nothing;
    QTest::newRow("in the place of itself") << x << u"(x)[x]"_qs << invalidCharacter(u"x"_qs);
    QTest::newRow("deleted") << x << u"(x)[]"_qs << nothing;
    QTest::newRow("twice in the list") << x + x << u"[x]"_qs << invalidCharacter(u"x"_qs);
    QTest::newRow("one of several")
        << QStringList{u"a"_qs, u"b"_qs, u"c"_qs} << u"[b]"_qs << invalidCharacter(u"b"_qs);
    QTest::newRow("of several characters")
        << QStringList{u"end"_qs} << u"[end]"_qs << invalidCharacter(u"d"_qs);
    QTest::newRow("part of the string") << QStringList{u"end"_qs} << u"en[d]"_qs << nothing;
    QTest::newRow("accent") << QStringList{u"\u00e9"_qs} << u"[e\u0301]"_qs
                            << invalidCharacter(u"\u0301"_qs);
    QTest::newRow("pair") << QStringList{u"\U0001f600"_qs} << u"[\U0001f600]"_qs
                          << invalidCharacter(QChar(0xde00));
    QTest::newRow("empty string") << QStringList{u""_qs} << u"[x]"_qs << nothing;
}

void EditCheckTest::refusesStringsTypedWhole()
{
    QFETCH(QStringList, refused);
    QFETCH(QString, edit);
    QFETCH(QStringList, told);
    RefusalLog log;
    for (const QString &string : refused) {
        mFormatter->addInvalidCharacter(string);
    }
    QCOMPARE(allows(edit), told.isEmpty());
    QCOMPARE(log.taken(), told);
    for (const QString &string : refused) {
        mFormatter->removeInvalidCharacter(string);
    }
    QVERIFY(allows(edit));
}

void EditCheckTest::longTextsAreQuick_data()
{
    QTest::addColumn<qint32>("style");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("allowed");

    constexpr QtSize mebi = 1 << 20;
    QTest::newRow("any text") << 0 << QString(mebi, u'あ') << true;
    QTest::newRow("ASCII") << 1 << QString(mebi, u'x') << true;
    QTest::newRow("digits") << 2 << QString(mebi, u'7') << false;
    QTest::newRow("points") << 4 << QString(mebi, u'.') << true;
    QTest::newRow("printable") << 10 << QString(mebi, u'~') << true;
    QTest::newRow("letter at the end") << 2 << QString(mebi, u'7') + u'x' << false;
    QTest::newRow("kana") << 6 << QString(mebi, u'あ') << false;
    QTest::newRow("accents") << 6 << QString(mebi, u'é') << false;
    QTest::newRow("halves of pairs") << 0 << QString(mebi, QChar(0xd83d)) << true;
    QTest::newRow("refused string") << 0 << QString(mebi, u'r') << false;
    QTest::newRow("blanks") << 1 << QString(mebi, u' ') << true;
}

void EditCheckTest::longTextsAreQuick()
{
    QFETCH(qint32, style);
    QFETCH(QString, text);
    mFormatter->setTextStyle(style);
    mFormatter->setMaxLength(0);
    mFormatter->setMaxValue(99);
    mFormatter->setMinValue(0);
    mFormatter->addInvalidCharacter(QString(1 << 20, u'r'));
    const TextRange caret{text.size(), 0};
    QElapsedTimer timer;
    timer.start();
    const bool allowed = mFormatter->isPartialStringValid(text, &caret, {}, {}, nullptr);
    const qint64 unlimited = timer.restart();
    mFormatter->setMaxLength(largest);
    mFormatter->isPartialStringValid(text, &caret, {}, {}, nullptr);
    const qint64 limited = timer.elapsed();
    QTEST(allowed, "allowed");
    // Measuring the text once for each of its characters would take hours.
    QVERIFY2(unlimited < 2000 && limited < 2000,
             qPrintable(u"%1 ms and %2 ms"_qs.arg(unlimited).arg(limited)));
}

KV_CORE_TEST(EditCheckTest)
#include "tst_editcheck.moc"
