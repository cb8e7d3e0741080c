// SPDX-License-Identifier: Apache-2.0
#include "RefusalLog.h"

#include "support/Limits.h"
#include "textinput/PDEFormatter.h"

#include <QTest>

#include <limits>

/// Which characters each style takes.
class StylesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesASCII_data();
    void takesASCII();
    void takesASCIIWithinLongerTexts_data();
    void takesASCIIWithinLongerTexts();
    void refusesWhatIsBeyondASCII_data();
    void refusesWhatIsBeyondASCII();
};

namespace {
constexpr const char *none = "................................";
constexpr const char *each = "################################";
constexpr const char *upperCase = ".##########################.....";
constexpr const char *lowerCase = upperCase;

/// A style, and "#" for each of the ASCII characters that it takes, 32 to a row.
struct StyleRow
{
    qint32 style;
    const char *taken[4];
};

// clang-format off
const StyleRow styleRows[] = {
    {0, {each, each, each, each}},
    {1, {each, each, each, each}},
    //           !"#$%&'()*+,-./0123456789:;<=>?   @ABCDEFGHIJKLMNOPQRSTUVWXYZ[\]^_
    {2, {none, "................##########......", none, none}},
    {3, {each, each, each, each}},
    {4, {none, "..............#.##########......", none, none}},
    {5, {each, each, each, each}},
    {6, {none, "#...............##########......", upperCase, lowerCase}},
    {7, {none, "#...##.....#.#############......", upperCase, lowerCase}},
    {8, {none, "....#......#.##############.....", none, none}},
    {9, {none, "....#......#.##############.....", ".####...........................",
                                                   ".####..........................."}},
    {10, {none, each, each, "###############################."}},
    {11, {none, "###..#.#########################", ".##########################....#",
                                                    lowerCase}},
    {12, {each, each, each, each}},
    {99, {each, each, each, each}},
    {-1, {each, each, each, each}},
    {largest, {each, each, each, each}},
    {smallest, {each, each, each, each}},
};
// clang-format on

/// The characters beyond ASCII that are tried, and whether Mac OS Roman has them.
struct OtherCharacter
{
    const char16_t *text;
    bool isRoman;
};

const OtherCharacter otherCharacters[] = {
    {u"\u00e9", true},  {u"\u00df", true},  {u"\u00a3", true},  {u"\u20ac", true},
    {u"\u00a0", true},  {u"\u2026", true},  {u"\u03c0", true},  {u"\ufb01", true},
    {u"\u0080", false}, {u"\u00ad", false}, {u"\u00b2", false}, {u"\u0100", false},
    {u"\u0301", false}, {u"\u0660", false}, {u"\u0410", false}, {u"\u200b", false},
    {u"\u200d", false}, {u"\u3042", false}, {u"\u6f22", false}, {u"\uff10", false},
    {u"\uff21", false}, {u"\ufeff", false}, {u"\ufffd", false}, {u"\U0001f600", false},
};

void addStyles()
{
    QTest::addColumn<qint32>("style");
    QTest::addColumn<QString>("taken");
    for (const StyleRow &row : styleRows) {
        QString taken;
        for (const char *part : row.taken) {
            taken += QString::fromLatin1(part);
        }
        QTest::addRow("style %d", row.style) << row.style << taken;
    }
}

/// Whether the text can be written behind "7" with one key.
bool isTaken(qint32 style, const QString &typed)
{
    const TextRange caret{1 + typed.size(), 0};
    return PDEFormatter::initWithStyle(style)->isPartialStringValid(u'7' + typed, &caret, u"7"_s,
                                                                    {1, 0}, nullptr);
}
} // namespace

void StylesTest::takesASCII_data()
{
    addStyles();
}

void StylesTest::takesASCII()
{
    QFETCH(qint32, style);
    RefusalLog log;
    QString taken;
    for (char16_t character = 0; character < 128; ++character) {
        taken += isTaken(style, QChar(character)) ? u'#' : u'.';
    }
    QTEST(taken, "taken");
    const auto refusals = taken.count(u'.');
    QCOMPARE(log.takenBeeps(), refusals);
    QCOMPARE(log.taken(),
             QStringList(QVector<QString>(refusals, u"InvalidCharacterNotification"_s).toList()));
}

void StylesTest::takesASCIIWithinLongerTexts_data()
{
    addStyles();
}

void StylesTest::takesASCIIWithinLongerTexts()
{
    QFETCH(qint32, style);
    const QString texts[] = {u"%1"_s, u"8%1"_s, u"%18"_s, u"8%18"_s};
    for (const QString &text : texts) {
        QString taken;
        for (char16_t character = 0; character < 128; ++character) {
            taken += isTaken(style, QString(text).replace(u"%1"_s, QChar(character))) ? u'#' : u'.';
        }
        QTEST(taken, "taken");
    }
}

void StylesTest::refusesWhatIsBeyondASCII_data()
{
    addStyles();
}

void StylesTest::refusesWhatIsBeyondASCII()
{
    QFETCH(qint32, style);
    RefusalLog log;
    for (const OtherCharacter &other : otherCharacters) {
        const QString character = QStringView(other.text).toString();
        QCOMPARE(isTaken(style, character), style == 0);
        QStringList told;
        if (style != 0) {
            told += other.isRoman ? u"InvalidCharacterNotification"_s
                                  : u"InvalidCharacterNotification "_s + character.back();
        }
        QCOMPARE(log.taken(), told);
    }
    for (const char16_t half : {u'\xd83d', u'\xde00'}) {
        QCOMPARE(isTaken(style, QChar(half)), style == 0);
        QCOMPARE(log.taken().size(), style == 0 ? 0 : 1);
    }
}

KV_CORE_TEST(StylesTest)
#include "tst_styles.moc"
