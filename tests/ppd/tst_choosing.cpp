// SPDX-License-Identifier: Apache-2.0
#include "RecordingHost.h"
#include "RecordingPanel.h"
#include "ppd/PDEUtilsMethod.h"
#include "support/TestHost.h"

#include <QTest>

/// What every panel inherits: choices and their places in a list.
class ChoosingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void choosingTellsTheDialogThenRereads();
    void choosingNothingTellsNothing_data();
    void choosingNothingTellsNothing();
    void findsTheMarkedChoice();
    void findsAChoiceByKeyword();
    void findsTheDefaultChoice();
    void storesTheSupportedOptions();
    void unmarkedOptionGetsItsDefault();
    void markedOptionKeepsItsChoice();
    void optionWithoutDefaultIsLeftAlone();
    void optionWithoutAListGetsItsFirstChoice();
    void optionWithoutChoicesIsLeftAlone();
    void absentOptionIsLeftAlone();
};

namespace {
/// A dialog with one panel of the base class.
struct Dialog
{
    explicit Dialog(const PPDText &text = PPDText())
        : host(std::make_shared<TestHost>(text.open()))
        , panel(std::make_unique<RecordingPanel>(host, testBundle()))
    {
        host->panel = panel.get();
    }

    ppd_option_t *option() const { return ppdFindOption(host->ppd.get(), "KvTest"); }
    ChoiceList choices() const { return PDEUtilsMethod13::arrayFromPPDOption(option()); }
    /// Takes every mark of the option's away.
    void unmark() const
    {
        ppd_option_t *record = option();
        for (int i = 0; i < record->num_choices; ++i) {
            record->choices[i].marked = 0;
        }
        cupsArrayClear(host->ppd->marked);
    }
    void setDefault() const
    {
        panel->setDefaultChoices(option(), choices(), "KvTest", u"KvTest"_s);
    }

    std::shared_ptr<TestHost> host;
    std::unique_ptr<RecordingPanel> panel;
};

/// A panel that tells its dialog when it reads the marked choices again.
class RereadingPanel : public RecordingPanel
{
public:
    explicit RereadingPanel(const std::shared_ptr<RecordingHost> &host)
        : RecordingPanel(host, testBundle())
        , mHost(host)
    {
    }

    void updateMarkedSelections(quint32 itemType) override
    {
        mHost->calls.append(u"reread %1"_s.arg(itemType));
    }

private:
    std::shared_ptr<RecordingHost> mHost;
};

PPDText onOff(const QByteArray &defaultChoice = "OFF")
{
    return PPDText().onOff("KvTest", defaultChoice);
}
} // namespace

void ChoosingTest::choosingTellsTheDialogThenRereads()
{
    const auto host = std::make_shared<RecordingHost>();
    RereadingPanel panel(host);
    const auto choices =
        PDEUtilsMethod13::arrayFromPPDOption(ppdFindOption(host->ppd.get(), "KvTest"));
    host->calls.clear();
    QCOMPARE(panel.selectionForItem(1, u"KvTest"_s, choices, 4096), choices.at(1));
    QCOMPARE(panel.selectionForItem(0, u"KvOther"_s, choices, 0), choices.at(0));
    QCOMPARE(host->calls,
             QStringList({u"KvTest=ON"_s, u"reread 4096"_s, u"KvOther=OFF"_s, u"reread 0"_s}));
}

void ChoosingTest::choosingNothingTellsNothing_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("hasChoices");

    QTest::newRow("one past the end") << 2 << true;
    QTest::newRow("far past the end") << 1'000'000 << true;
    QTest::newRow("before the start") << -1 << true;
    QTest::newRow("absent option") << 0 << false;
}

void ChoosingTest::choosingNothingTellsNothing()
{
    QFETCH(int, index);
    QFETCH(bool, hasChoices);
    Dialog dialog(onOff());
    const auto choices = hasChoices ? dialog.choices() : ChoiceList();
    QVERIFY(!dialog.panel->selectionForItem(index, u"KvTest"_s, choices, 4096));
    QCOMPARE(dialog.host->takeTold(), QList<Pair>());
    QCOMPARE(dialog.panel->calls, QStringList());
}

void ChoosingTest::findsTheMarkedChoice()
{
    Dialog dialog(onOff());
    const auto choices = dialog.choices();
    const auto index = [&](const ChoiceList &list, const char *key) {
        return dialog.panel->indexOfMarkedOption(list, QLatin1String(key));
    };
    QCOMPARE(index(choices, "KvTest"), 0);
    dialog.host->mark("KvTest", "ON");
    QCOMPARE(index(choices, "KvTest"), 1);
    QCOMPARE(index(choices, "KvNone"), -1);
    QCOMPARE(index({}, "KvTest"), -1);
    dialog.unmark();
    QCOMPARE(index(choices, "KvTest"), -1);
}

void ChoosingTest::findsAChoiceByKeyword()
{
    Dialog dialog(PPDText().option("KvTest", {"OFF", "ON", "ON"}, "OFF"));
    const auto choices = dialog.choices();
    const RecordingPanel &panel = *dialog.panel;
    QCOMPARE(panel.indexOfChoices(choices, u"OFF"_s), 0);
    QCOMPARE(panel.indexOfChoices(choices, u"ON"_s), 1);
    QCOMPARE(panel.indexOfChoices(choices, u"on"_s), -1);
    QCOMPARE(panel.indexOfChoices(choices, u""_s), -1);
    QCOMPARE(panel.indexOfChoices(choices, QString()), -1);
    QCOMPARE(panel.indexOfChoices({}, u"ON"_s), -1);
}

void ChoosingTest::findsTheDefaultChoice()
{
    Dialog dialog(onOff("ON"));
    dialog.host->mark("KvTest", "OFF");
    QCOMPARE(dialog.panel->indexOfDefaultOption(dialog.choices()), 1);
    QCOMPARE(dialog.panel->indexOfDefaultOption(Dialog(onOff({})).choices()), -1);
    QCOMPARE(dialog.panel->indexOfDefaultOption({}), 0);
    const Dialog twice(PPDText().option("KvTest", {"OFF", "ON", "ON"}, "ON"));
    QCOMPARE(twice.panel->indexOfDefaultOption(twice.choices()), 1);
}

void ChoosingTest::storesTheSupportedOptions()
{
    Dialog dialog;
    dialog.panel->setSupportedOptions(QStringList{u"KvTest"_s});
    QCOMPARE(*dialog.panel->supportedOptions(), QStringList{u"KvTest"_s});
    dialog.panel->setSupportedOptions(QStringList());
    QCOMPARE(*dialog.panel->supportedOptions(), QStringList());
    dialog.panel->setSupportedOptions(std::nullopt);
    QVERIFY(!dialog.panel->supportedOptions());
}

void ChoosingTest::unmarkedOptionGetsItsDefault()
{
    const Dialog dialog(onOff("ON"));
    dialog.unmark();
    QVERIFY(dialog.host->marked("KvTest").isNull());
    dialog.setDefault();
    QCOMPARE(dialog.host->takeTold(), (QList<Pair>{{u"KvTest"_s, u"ON"_s}}));
    QCOMPARE(dialog.host->marked("KvTest"), u"ON"_s);
}

void ChoosingTest::markedOptionKeepsItsChoice()
{
    const Dialog dialog(onOff("ON"));
    dialog.host->mark("KvTest", "OFF");
    dialog.setDefault();
    QCOMPARE(dialog.host->takeTold(), QList<Pair>());
    QCOMPARE(dialog.host->marked("KvTest"), u"OFF"_s);
}

void ChoosingTest::optionWithoutDefaultIsLeftAlone()
{
    const Dialog dialog(onOff({}));
    QVERIFY(dialog.host->marked("KvTest").isNull());
    dialog.setDefault();
    QCOMPARE(dialog.host->takeTold(), QList<Pair>());
}

void ChoosingTest::optionWithoutAListGetsItsFirstChoice()
{
    const Dialog dialog(onOff("ON"));
    dialog.unmark();
    dialog.panel->setDefaultChoices(dialog.option(), {}, "KvTest", u"KvTest"_s);
    QCOMPARE(dialog.host->takeTold(), (QList<Pair>{{u"KvTest"_s, u"OFF"_s}}));
}

void ChoosingTest::optionWithoutChoicesIsLeftAlone()
{
    const Dialog dialog(PPDText().option("KvTest", {}, {}));
    QVERIFY(dialog.option());
    dialog.setDefault();
    QCOMPARE(dialog.host->takeTold(), QList<Pair>());
}

void ChoosingTest::absentOptionIsLeftAlone()
{
    const Dialog dialog;
    QVERIFY(!dialog.option());
    dialog.setDefault();
    QCOMPARE(dialog.host->takeTold(), QList<Pair>());
}

KV_TEST(ChoosingTest)
#include "tst_choosing.moc"
