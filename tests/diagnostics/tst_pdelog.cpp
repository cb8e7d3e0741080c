// SPDX-License-Identifier: Apache-2.0
#include "diagnostics/PDELog.h"

#include "Talker.h"
#include "ppd/PDEChoice.h"
#include "printcore/SystemLog.h"
#include "support/PPDText.h"
#include "support/SystemCodeset.h"

#include <QTest>

#include <cstring>
#include <vector>

namespace {
ppd_option_t *optionOf(const PPDHandle &ppd)
{
    return ppdFindOption(ppd.get(), "KvTest");
}

/// The lines of a dump that begin so, without their beginning.
QByteArrayList valuesOf(const QByteArrayList &lines, const QByteArray &beginning)
{
    QByteArrayList values;
    for (const QByteArray &line : lines) {
        if (line.startsWith(beginning)) {
            values += line.mid(beginning.size());
        }
    }
    return values;
}
} // namespace

/// Tagged lines and the dump of an option.
class PDELogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void tagsLines();
    void namesTheObject();
    void withoutAnObject();
    void withoutAFormat();
    void descriptionsArriveWhole_data();
    void descriptionsArriveWhole();
    void argumentsArriveWhole_data();
    void argumentsArriveWhole();

    void dumpNeedsAPPDFirst();
    void dumpNeedsAKeyword();
    void dumpTellsOfAMissingOption_data();
    void dumpTellsOfAMissingOption();
    void dumpsAnOption();
    void dumpsFlagsWithWhatFollows();
    void dumpsTheFirstChoiceAlone();
    void dumpsAnOptionWithoutChoices();
    void dumpsNumbersAtTheirEnds();
    void dumpsInTheSystemEncoding();
    void dumpsNoTextOutsideTheSystemEncoding();
    void dumpEndsWithTheRecord();
    void dumpsPercentSignsAsTheyAre();

private: // NOLINT(readability-redundant-access-specifiers): these are no slots
    /// What has been logged since the last call.
    QByteArrayList logged() { return std::exchange(mLines, {}); }

    QByteArrayList mLines;
};

void PDELogTest::init()
{
    setLogSink([this](const QByteArray &record) { mLines += record; });
}

void PDELogTest::cleanup()
{
    setLogSink({});
    setSystemCodeset({});
    mLines.clear();
}

void PDELogTest::tagsLines()
{
    const Talker object(u"X"_s);
    _PDEProlog(&object, u"count %d"_s, 3);
    _PDEEpilog(&object, u"count %d"_s, 4);
    _PDELog(&object, u"count %d"_s, 5);
    QCOMPARE(logged(), QByteArrayList({"BEGIN self(X) count 3", "END self(X) count 4",
                                       "LOG self(X) count 5"}));
}

void PDELogTest::namesTheObject()
{
    QObject object;
    object.setObjectName(u"mHalfCutChkBx"_s);
    _PDELog(&object, u"%s"_s, "text");
    const QByteArray address = "0x" + QByteArray::number(quintptr(&object), 16);
    QCOMPARE(logged(),
             QByteArrayList({"LOG self(<QObject " + address + " \"mHalfCutChkBx\">) text"}));

    const PPDHandle ppd = PPDText().onOff("KvTest").open();
    QVERIFY(ppd);
    const auto choice = PDEChoice::choiceWithChoice(optionOf(ppd)->choices);
    _PDELog(choice.get(), u"text"_s);
    QCOMPARE(logged(), QByteArrayList({"LOG self(" + choice->description().toUtf8() + ") text"}));

    _PDELog(u"a text"_s, u"text"_s);
    _PDELog(u""_s, u"text"_s);
    _PDELog(17, u"text"_s);
    QCOMPARE(logged(),
             QByteArrayList({"LOG self(a text) text", "LOG self() text", "LOG self(17) text"}));
}

void PDELogTest::withoutAnObject()
{
    const QObject *const object = nullptr;
    const PDEChoice *const choice = nullptr;
    _PDEProlog(nullptr, u"text %d"_s, 1);
    _PDEEpilog(object, u"text %d"_s, 2);
    _PDELog(choice, u"text %d"_s, 3);
    _PDELog(QString(), u"text %d"_s, 4);
    QCOMPARE(logged(), QByteArrayList({"BEGIN text 1", "END text 2", "LOG text 3", "LOG text 4"}));
}

void PDELogTest::withoutAFormat()
{
    const Talker object(u"X"_s);
    _PDEProlog(&object, QString());
    _PDEEpilog(nullptr, QString(), 5);
    _PDELog(nullptr, u""_s);
    _PDELog(&object, u""_s);
    QCOMPARE(logged(),
             QByteArrayList({"BEGIN self(X) (null)", "END (null)", "LOG ", "LOG self(X) "}));
}

void PDELogTest::descriptionsArriveWhole_data()
{
    const TestTable<QString> table("words");
    table.add("percent signs", u"50% %@ %d %n %% %s 100%"_s);
    table.add("newlines", u"one\ntwo\n"_s);
    table.add("beyond ASCII", u"Größe あ \U0001F600"_s);
    table.add("brackets", u") (self"_s);
}

void PDELogTest::descriptionsArriveWhole()
{
    QFETCH(QString, words);
    const Talker object(words);
    _PDEProlog(&object, u"%d of %@, 100%%"_s, 3, u"five"_s);
    QCOMPARE(logged(), QByteArrayList({"BEGIN self(" + words.toUtf8() + ") 3 of five, 100%"}));
}

void PDELogTest::argumentsArriveWhole_data()
{
    descriptionsArriveWhole_data();
}

void PDELogTest::argumentsArriveWhole()
{
    QFETCH(QString, words);
    const Talker object(words);
    const QByteArray bytes = words.toUtf8();
    _PDEEpilog(nullptr, u"%@|%s|%@|%d"_s, words, bytes.constData(), &object, 5);
    QCOMPARE(logged(), QByteArrayList({"END " + bytes + '|' + bytes + '|' + bytes + "|5"}));
}

void PDELogTest::dumpNeedsAPPDFirst()
{
    _PDELog_ppd_option_t(nullptr, nullptr);
    QCOMPARE(logged(), QByteArrayList({"PPD file is not loaded!!"}));
    _PDELog_ppd_option_t(nullptr, "KvTest");
    QCOMPARE(logged(), QByteArrayList({"PPD file is not loaded!!"}));
}

void PDELogTest::dumpNeedsAKeyword()
{
    const PPDHandle ppd = PPDText().onOff("KvTest").open();
    QVERIFY(ppd);
    _PDELog_ppd_option_t(ppd.get(), nullptr);
    QCOMPARE(logged(), QByteArrayList({"ppdOptionName is NULL!!"}));
}

void PDELogTest::dumpTellsOfAMissingOption_data()
{
    const TestTable<QByteArray> table("keyword");
    table.add("another", "KvNone");
    table.add("empty", "");
    table.add("percent signs", "%s%n%@");
    table.add("longer", "KvTestLonger");
}

void PDELogTest::dumpTellsOfAMissingOption()
{
    QFETCH(QByteArray, keyword);
    const PPDHandle ppd = PPDText().onOff("KvTest").open();
    QVERIFY(ppd);
    _PDELog_ppd_option_t(ppd.get(), keyword.constData());
    QCOMPARE(logged(), QByteArrayList({"PPD option " + keyword + " is not found!!"}));
    const PPDHandle bare = PPDText().open();
    QVERIFY(bare);
    _PDELog_ppd_option_t(bare.get(), keyword.constData());
    QCOMPARE(logged(), QByteArrayList({"PPD option " + keyword + " is not found!!"}));
}

void PDELogTest::dumpsAnOption()
{
    const PPDHandle ppd =
        PPDText()
            .option("KvTest", {"1/Eins", "2/Zwei", "3/Drei"}, "2", "Gr\xc3\xb6\xc3\x9f")
            .open();
    QVERIFY(ppd);
    optionOf(ppd)->order = 10.5F;
    _PDELog_ppd_option_t(ppd.get(), "KvTest");
    QCOMPARE(logged(), QByteArrayList({
                           "+-+-+-+-+-+-+-+-+-+- start is KvTest",
                           "***** conflicted | ",
                           "***** keyword | KvTest",
                           "***** defchoice | 2",
                           "***** text | Gr\xc3\xb6\xc3\x9f",
                           "***** ui == 1",
                           "***** section == 0",
                           "***** order == 10.500000",
                           "***** num_choices == 3",
                           "***** choices->marked | ",
                           "***** choices->choice | 1",
                           "***** choices->text | Eins",
                           "+-+-+-+-+-+-+-+-+-+- end is KvTest",
                       }));
}

void PDELogTest::dumpsFlagsWithWhatFollows()
{
    const PPDHandle ppd = PPDText().onOff("KvTest").open();
    QVERIFY(ppd);
    QCOMPARE(int(optionOf(ppd)->choices->marked), 1);
    optionOf(ppd)->conflicted = 1;
    _PDELog_ppd_option_t(ppd.get(), "KvTest");
    const QByteArrayList lines = logged();
    QCOMPARE(valuesOf(lines, "***** conflicted | "), QByteArrayList({"\x01KvTest"}));
    QCOMPARE(valuesOf(lines, "***** choices->marked | "), QByteArrayList({"\x01OFF"}));
}

void PDELogTest::dumpsTheFirstChoiceAlone()
{
    const PPDHandle ppd = PPDText().onOff("KvTest").open();
    QVERIFY(ppd);
    ppdMarkOption(ppd.get(), "KvTest", "ON");
    _PDELog_ppd_option_t(ppd.get(), "KvTest");
    const QByteArrayList lines = logged();
    QCOMPARE(lines.size(), 13);
    QCOMPARE(valuesOf(lines, "***** choices->marked | "), QByteArrayList({""}));
    QCOMPARE(valuesOf(lines, "***** choices->choice | "), QByteArrayList({"OFF"}));
}

void PDELogTest::dumpsAnOptionWithoutChoices()
{
    const PPDHandle ppd = PPDText().option("KvTest", {}, {}).open();
    QVERIFY(ppd);
    QCOMPARE(optionOf(ppd)->num_choices, 0);
    _PDELog_ppd_option_t(ppd.get(), "KvTest");
    QCOMPARE(logged().mid(8), QByteArrayList({
                                  "***** num_choices == 0",
                                  "***** choices->marked | (null)",
                                  "***** choices->choice | (null)",
                                  "***** choices->text | (null)",
                                  "+-+-+-+-+-+-+-+-+-+- end is KvTest",
                              }));
}

void PDELogTest::dumpsNumbersAtTheirEnds()
{
    const PPDHandle ppd = PPDText().onOff("KvTest").open();
    QVERIFY(ppd);
    optionOf(ppd)->ui = PPD_UI_PICKMANY;
    optionOf(ppd)->section = PPD_ORDER_PROLOG;
    optionOf(ppd)->order = -1234.5F;
    _PDELog_ppd_option_t(ppd.get(), "KvTest");
    QCOMPARE(logged().mid(5, 3), QByteArrayList({"***** ui == 2", "***** section == 5",
                                                 "***** order == -1234.500000"}));
}

void PDELogTest::dumpsInTheSystemEncoding()
{
    const PPDHandle ppd = PPDText().option("KvTest", {"1/Gr\xf6\xdf"}, "1", "\xc4nderung").open();
    QVERIFY(ppd);
    setSystemCodeset("ISO-8859-1");
    _PDELog_ppd_option_t(ppd.get(), "KvTest");
    const QByteArrayList lines = logged();
    QCOMPARE(valuesOf(lines, "***** text | "), QByteArrayList({u"Änderung"_s.toUtf8()}));
    QCOMPARE(valuesOf(lines, "***** choices->text | "), QByteArrayList({u"Größ"_s.toUtf8()}));
}

void PDELogTest::dumpsNoTextOutsideTheSystemEncoding()
{
    const PPDHandle ppd = PPDText().option("KvTest", {"1/Gr\xf6\xdf"}, "1", "\xc4nderung").open();
    QVERIFY(ppd);
    _PDELog_ppd_option_t(ppd.get(), "KvTest");
    const QByteArrayList lines = logged();
    QCOMPARE(lines.size(), 13);
    QCOMPARE(valuesOf(lines, "***** text | "), QByteArrayList({"(null)"}));
    QCOMPARE(valuesOf(lines, "***** choices->text | "), QByteArrayList({"(null)"}));
}

void PDELogTest::dumpEndsWithTheRecord()
{
    const PPDHandle ppd = PPDText().option("KvTest", {"1", "2"}, "1").open();
    QVERIFY(ppd);
    ppd_option_t *const option = optionOf(ppd);
    // Records without an end of their texts, and something behind them.
    std::vector<ppd_choice_t> choices(1);
    std::memset(static_cast<void *>(choices.data()), 'A', sizeof(ppd_choice_t));
    ppd_choice_t *const former = std::exchange(option->choices, choices.data());
    _PDELog_ppd_option_t(ppd.get(), "KvTest");
    option->choices = former;
    const QByteArrayList lines = logged();
    const auto toTheEnd = [](std::size_t offset) {
        return QByteArrayList({QByteArray(int(sizeof(ppd_choice_t) - offset), 'A')});
    };
    QCOMPARE(valuesOf(lines, "***** choices->marked | "), toTheEnd(0));
    QCOMPARE(valuesOf(lines, "***** choices->choice | "), toTheEnd(offsetof(ppd_choice_t, choice)));
    QCOMPARE(valuesOf(lines, "***** choices->text | "), toTheEnd(offsetof(ppd_choice_t, text)));
}

void PDELogTest::dumpsPercentSignsAsTheyAre()
{
    const PPDHandle ppd = PPDText().option("KvTest", {"1/100% %s"}, "1", "50% %@ %n").open();
    QVERIFY(ppd);
    _PDELog_ppd_option_t(ppd.get(), "KvTest");
    const QByteArrayList lines = logged();
    QCOMPARE(valuesOf(lines, "***** text | "), QByteArrayList({"50% %@ %n"}));
    QCOMPARE(valuesOf(lines, "***** choices->text | "), QByteArrayList({"100% %s"}));
}

KV_CORE_TEST(PDELogTest)
#include "tst_pdelog.moc"
