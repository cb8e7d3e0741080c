// SPDX-License-Identifier: Apache-2.0
#include "RefusalLog.h"

#include "printcore/QtVersions.h"
#include "support/Limits.h"
#include "support/SystemCodeset.h"
#include "textinput/PDEFormatter.h"

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

    void longTexts_data();
    void longTexts();

private: // NOLINT(readability-redundant-access-specifiers): these are no slots
    /// Whether the edit is allowed: "ab(cd)[ef]gh" puts "ef" in the place of "cd", which is
    /// selected; with nothing selected, "ab[ef]gh".
    bool allows(const QString &edit);

    std::unique_ptr<PDEFormatter> mFormatter;
};

namespace {
constexpr QtSize farthest = std::numeric_limits<QtSize>::max();
constexpr QtSize farthestBack = std::numeric_limits<QtSize>::min();

const QStringList nothing;

} // namespace

void EditCheckTest::cleanup()
{
    mFormatter.reset();
    setSystemCodeset({});
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
    QVERIFY(mFormatter->isPartialStringValid(u""_s, &caret, u"abc"_s, {}, nullptr));
    QVERIFY(mFormatter->isPartialStringValid(u"xyz"_s, nullptr, {}, {}, nullptr));
    QCOMPARE(log.takenBeeps(), 0);
    QVERIFY(!mFormatter->isPartialStringValid(u"xyz"_s, &caret, {}, {}, nullptr));
    QCOMPARE(log.takenBeeps(), 1);
}

void EditCheckTest::allowsWhatDoesNotMoveTheCaretForward_data()
{
    const TestTable<TextRange, TextRange, bool> table("before", "after", "allowed");
    table.add("caret stays", {2, 0}, {2, 0}, true);
    table.add("caret goes back", {2, 0}, {1, 0}, true);
    table.add("caret goes to the start", {4, 0}, {0, 0}, true);
    table.add("selection is deleted", {1, 3}, {1, 0}, true);
    table.add("caret goes on", {2, 0}, {3, 0}, false);
    table.add("selection is replaced", {1, 3}, {2, 0}, false);
    table.add("selection after counts from its start", {2, 0}, {2, 2}, true);
}

void EditCheckTest::allowsWhatDoesNotMoveTheCaretForward()
{
    QFETCH(TextRange, before);
    QFETCH(TextRange, after);
    RefusalLog log;
    mFormatter->setTextStyle(2);
    mFormatter->setMaxLength(-1);
    mFormatter->addInvalidCharacter(u"x"_s);
    const bool allowed =
        mFormatter->isPartialStringValid(u"xxxx"_s, &after, u"yyyyy"_s, before, nullptr);
    QTEST(allowed, "allowed");
    QCOMPARE(log.takenBeeps(), allowed ? 0 : 1);
    QCOMPARE(log.taken().size(), allowed ? 0 : 1);
}

void EditCheckTest::staysWithinTheText_data()
{
    const TestTable<QtSize, QtSize, QString> table("before", "after", "refused");

    // The text is "1x3".
    table.add("beyond the end", 1, 9, u"x3"_s);
    table.add("far beyond the end", 2, farthest, u"3"_s);
    table.add("both beyond the end", 3, farthest, QString());
    table.add("before the start", -5, 2, u"1x"_s);
    table.add("far before the start", farthestBack, farthest, u"1x3"_s);
    table.add("both before the start", farthestBack, -1, QString());
}

void EditCheckTest::staysWithinTheText()
{
    QFETCH(QtSize, before);
    QFETCH(QtSize, after);
    QFETCH(QString, refused);
    const TextRange caret{after, farthest};
    RefusalLog log;
    for (const QString &string : {u"x3"_s, u"3"_s, u"1x"_s, u"1x3"_s}) {
        mFormatter = PDEFormatter::init();
        mFormatter->addInvalidCharacter(string);
        const bool allowed =
            mFormatter->isPartialStringValid(u"1x3"_s, &caret, {}, {before, farthest}, nullptr);
        QCOMPARE(allowed, string != refused);
        QCOMPARE(log.taken(), allowed ? nothing : invalidCharacter(string.right(1)));
    }
}

void EditCheckTest::looksAtTypedTextOnly()
{
    mFormatter->setTextStyle(2);
    QVERIFY(allows(u"ab[1]cd"_s));
    QVERIFY(allows(u"é(x)[12]あ"_s));
    QVERIFY(!allows(u"12[a]34"_s));
    QVERIFY(allows(u"12(345)[]a"_s));
}

void EditCheckTest::neverSetsAnError()
{
    mFormatter->setTextStyle(2);
    QString error = u"untouched"_s;
    const TextRange caret{1, 0};
    QVERIFY(!mFormatter->isPartialStringValid(u"x"_s, &caret, {}, {}, &error));
    QVERIFY(mFormatter->isPartialStringValid(u"1"_s, &caret, {}, {}, &error));
    QCOMPARE(error, u"untouched"_s);
}

void EditCheckTest::refusesValuesOutOfRange_data()
{
    const TestTable<qint32, qint32, QString, bool> table("least", "most", "edit", "allowed");
    table.add("one digit", 0, 99, u"[1]"_s, true);
    table.add("two digits", 0, 99, u"1[0]"_s, true);
    table.add("three digits", 0, 99, u"10[0]"_s, false);
    table.add("the largest", 0, 99, u"9[9]"_s, true);
    table.add("the smallest", 10, 99, u"1[0]"_s, true);
    table.add("below the smallest", 10, 99, u"[9]"_s, false);
    table.add("digits in front", 0, 99, u"[1]23"_s, false);
    table.add("leading zeros", 0, 99, u"[000]1"_s, true);
    table.add("negative text", -5, 99, u"-[5]"_s, true);
    table.add("text too negative", -5, 99, u"-[6]"_s, false);
    table.add("letters count 0", 1, 99, u"x[5]"_s, false);
    table.add("pasted over", 0, 99, u"1(2)[34]"_s, false);
    table.add("32 bits", smallest, largest, u"214748364[7]"_s, true);
    table.add("beyond 32 bits", smallest, largest, u"214748364[8]"_s, true);
    table.add("far beyond 32 bits", 0, largest - 1, u"9999999999999[9]"_s, false);
    table.add("no value", largest, smallest, u"[0]"_s, false);
    table.add("only the largest", largest, largest, u"2147483647[0]"_s, true);
    table.add("only the smallest", smallest, smallest, u"-2147483648[0]"_s, true);
    table.add("above the smallest", smallest, smallest, u"-[2]"_s, false);
    table.add("negative range", -9, -3, u"[3]"_s, false);
    table.add("zero", 0, 0, u"[0]"_s, true);
    table.add("not zero", 0, 0, u"[1]"_s, false);
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
    QVERIFY(allows(u"[5]"_s));
    QVERIFY(allows(u"[0]"_s));
    QVERIFY(allows(u"0[0]"_s));
    QCOMPARE(log.taken(), nothing);
    QVERIFY(!allows(u"00[5]"_s));
    QCOMPARE(log.taken(), outOfRange);
    QVERIFY(allows(u"01[0]"_s));
    QVERIFY(!allows(u"[005]"_s));
    QCOMPARE(log.taken(), outOfRange);
    // Too long is told before too small.
    QVERIFY(!allows(u"000[5]"_s));
    QCOMPARE(log.taken(), invalid);

    mFormatter->setMaxValue(20);
    QVERIFY(allows(u"9[9]"_s));
    QVERIFY(!allows(u"09[9]"_s));
    QCOMPARE(log.taken(), outOfRange);
    // A character of two bytes makes the text full.
    QVERIFY(!allows(u"é[9]"_s));
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
    QTEST(allows(u"[5]"_s), "allowed");
    QTEST(allows(u"-[5]"_s), "allowed");
    QVERIFY(allows(u"[1]"_s));
}

void EditCheckTest::checksNoValueThatIsSwitchedOff()
{
    mFormatter->setTextStyle(2);
    mFormatter->setMaxValue(5);
    mFormatter->setMinValue(3);
    mFormatter->setValidityMaxValue(false);
    QVERIFY(allows(u"[9]"_s));
    QVERIFY(!allows(u"[1]"_s));
    mFormatter->setValidityMaxValue(true);
    mFormatter->setValidityMinValue(false);
    QVERIFY(!allows(u"[9]"_s));
    QVERIFY(allows(u"[1]"_s));
}

void EditCheckTest::lastFailureWins_data()
{
    const TestTable<QString, QStringList> table("edit", "told");

    // Style 2, up to 99.
    table.add("letter, then digit", u"[x1]"_s, invalid);
    table.add("digit, then letter", u"[1x]"_s, invalid);
    table.add("value, then letter", u"[100x]"_s, invalid);
    table.add("letter, then value", u"100[x1]"_s, outOfRange);
    table.add("letter within the value", u"10[0x0]"_s, outOfRange);
    table.add("letter in front of a number", u"[x1]00"_s, invalid);
    table.add("value alone", u"[100]"_s, outOfRange);
    table.add("letters alone", u"[xyz]"_s, invalid);
    table.add("accent beside a value", u"100[é1]"_s, invalid);
    table.add("kana beside a value", u"100[あ1]"_s, invalidCharacter(u"1"_s));
    table.add("kana behind a value", u"100[1あ]"_s, invalidCharacter(u"あ"_s));
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
    const TestTable<QString, bool> table("edit", "allowed");
    table.add("the first", u"1[.]"_s, true);
    table.add("the first, alone", u"[.]"_s, true);
    table.add("the second", u"1.5[.]"_s, false);
    table.add("the second, in front", u"1[.]2.5"_s, false);
    table.add("digits behind", u"1.5[2]"_s, true);
    table.add("a number behind", u"1.5[2.3]"_s, false);
    table.add("a number into nothing", u"[2.3]"_s, true);
    // The text before counts, not the one after.
    table.add("two into nothing", u"[1.2.3]"_s, true);
    table.add("two into a number", u"1[.2.3]"_s, true);
    table.add("in the place of the first", u"1(.)[.]5"_s, false);
    table.add("in the place of everything", u"(1.5)[2.5]"_s, false);
    table.add("comma", u"1[,]"_s, false);
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
    const TestTable<QByteArray, QString, qint32> table("encoding", "text", "size");
    table.add("ASCII", "UTF-8", u"abc"_s, 3);
    table.add("accent", "UTF-8", u"né"_s, 3);
    table.add("kana", "UTF-8", u"あ"_s, 3);
    table.add("pair", "UTF-8", u"\U0001f600"_s, 4);
    table.add("half a pair counts characters", "UTF-8", u"é"_s + QChar(0xd83d), 2);
    table.add("accent of one byte", "ISO-8859-1", u"né"_s, 2);
    table.add("kana outside the encoding", "ISO-8859-1", u"あé"_s, 2);
    table.add("pair outside the encoding", "ISO-8859-1", u"\U0001f600"_s, 2);
    table.add("kana of two bytes", "Shift_JIS", u"aあ漢"_s, 5);
    table.add("accent outside the encoding", "Shift_JIS", u"éé"_s, 2);
    table.add("wide characters", "UTF-16BE", u"ab"_s, 4);
    table.add("encoding that is not known", "no-such-encoding", u"aé"_s, 2);
}

void EditCheckTest::countsBytes()
{
    QFETCH(QByteArray, encoding);
    QFETCH(QString, text);
    QFETCH(qint32, size);
    RefusalLog log;
    setSystemCodeset(encoding);
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
        QVERIFY(allows(u"123[4]"_s));
        QVERIFY(allows(u"12(34)[5]6"_s));
        QCOMPARE(log.taken(), nothing);
        QVERIFY(!allows(u"1234[5]"_s));
        QVERIFY(!allows(u"éé[5]"_s));
        QVERIFY(!allows(u"12(3)[45]6"_s));
        QCOMPARE(log.taken(), invalid + invalid + invalid);
        // However long the text is, it may be made shorter.
        QVERIFY(allows(u"12345(6)[]"_s));
    }
}

void EditCheckTest::takesLimitsOfEverySize_data()
{
    const TestTable<qint32, bool> table("limit", "allowed");
    table.add("none", 0, true);
    table.add("one", 1, true);
    table.add("largest", largest, true);
    table.add("negative", -1, false);
    table.add("smallest", smallest, false);
}

void EditCheckTest::takesLimitsOfEverySize()
{
    QFETCH(qint32, limit);
    QFETCH(bool, allowed);
    RefusalLog log;
    for (qint32 style = -1; style <= 12; ++style) {
        mFormatter->setTextStyle(style);
        mFormatter->setMaxLength(limit);
        QCOMPARE(allows(u"[1]"_s), allowed);
        QCOMPARE(log.taken(), allowed ? nothing : invalid);
    }
}

void EditCheckTest::refusesStringsTypedWhole_data()
{
    const TestTable<QStringList, QString, QStringList> table("refused", "edit", "told");
    const QStringList x{u"x"_s};
    table.add("typed", x, u"a[x]"_s, invalidCharacter(u"x"_s));
    table.add("pasted with another", x, u"[xy]"_s, nothing);
    table.add("pasted twice", x, u"[xx]"_s, nothing);
    table.add("in the text already", x, u"x[y]"_s, nothing);
    table.add("another", x, u"[y]"_s, nothing);
    table.add("other case", x, u"[X]"_s, nothing);
    table.add("in the place of itself", x, u"(x)[x]"_s, invalidCharacter(u"x"_s));
    table.add("deleted", x, u"(x)[]"_s, nothing);
    table.add("twice in the list", x + x, u"[x]"_s, invalidCharacter(u"x"_s));
    table.add("one of several", {u"a"_s, u"b"_s, u"c"_s}, u"[b]"_s, invalidCharacter(u"b"_s));
    table.add("of several characters", {u"end"_s}, u"[end]"_s, invalidCharacter(u"d"_s));
    table.add("part of the string", {u"end"_s}, u"en[d]"_s, nothing);
    table.add("accent", {u"\u00e9"_s}, u"[e\u0301]"_s, invalidCharacter(u"\u0301"_s));
    table.add("pair", {u"\U0001f600"_s}, u"[\U0001f600]"_s, invalidCharacter(QChar(0xde00)));
    table.add("empty string", {u""_s}, u"[x]"_s, nothing);
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

void EditCheckTest::longTexts_data()
{
    const TestTable<qint32, QString, bool> table("style", "text", "allowed");
    constexpr QtSize many = 1 << 18;
    table.add("any text", 0, QString(many, u'あ'), true);
    table.add("ASCII", 1, QString(many, u'x'), true);
    table.add("digits", 2, QString(many, u'7'), false);
    table.add("points", 4, QString(many, u'.'), true);
    table.add("printable", 10, QString(many, u'~'), true);
    table.add("letter at the end", 2, QString(many, u'7') + u'x', false);
    table.add("kana", 6, QString(many, u'あ'), false);
    table.add("accents", 6, QString(many, u'é'), false);
    table.add("halves of pairs", 0, QString(many, QChar(0xd83d)), true);
    table.add("refused string", 0, QString(many, u'r'), false);
    table.add("blanks", 1, QString(many, u' '), true);
}

void EditCheckTest::longTexts()
{
    QFETCH(qint32, style);
    QFETCH(QString, text);
    mFormatter->setTextStyle(style);
    mFormatter->setMaxLength(0);
    mFormatter->setMaxValue(99);
    mFormatter->setMinValue(0);
    mFormatter->addInvalidCharacter(QString(1 << 18, u'r'));
    const TextRange caret{text.size(), 0};
    // Measuring the text once for each of its characters would take many minutes.
    QTEST(mFormatter->isPartialStringValid(text, &caret, {}, {}, nullptr), "allowed");
    mFormatter->setMaxLength(largest);
    mFormatter->isPartialStringValid(text, &caret, {}, {}, nullptr);
}

KV_CORE_TEST(EditCheckTest)
#include "tst_editcheck.moc"
