// SPDX-License-Identifier: Apache-2.0
#include "ppd/PDEUtilsMethod.h"
#include "support/PanelProbe.h"
#include "support/TestHost.h"

#include <QTest>

using Catalogue = OptionCatalogue;

/// The panel of a printer whose PPD is not as it should be.
class OddPPDTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void optionTextThatIsNoUTF8_data();
    void optionTextThatIsNoUTF8();
    void readableOptionTextIsShown();
    void choiceTextThatIsNoUTF8();
    void optionWithoutChoices();
    void optionsWithoutChoicesAlone();
    void optionWithoutDefault();
    void countWithoutDefault();
    void defaultThatIsNoChoice();
    void optionWithOneChoice();
    void optionWithTwoChoicesOfOneKeyword();
    void emptyPPD();
};

namespace {
using Pairs = QList<Pair>;

Pairs pairsOf(const char *keyword, const QStringList &choices)
{
    Pairs pairs;
    for (const QString &choice : choices) {
        pairs.append({QLatin1String(keyword), choice});
    }
    return pairs;
}

/// A panel of a printer, in a dialog that shows it.
struct OpenPanel
{
    explicit OpenPanel(const PPDText &text)
        : host(std::make_shared<TestHost>(text.open()))
        , panel(std::make_unique<PanelProbe>(host, testBundle()))
    {
        host->panel = panel.get();
    }

    bool open() const
    {
        QWidget *view = panel->panelView();
        if (!view) {
            return false;
        }
        panel->willShow();
        view->show();
        host->takeTold();
        return QTest::qWaitForWindowExposed(view);
    }

    /// Clicks the option's box, and answers what the dialog is told of.
    Pairs click(Catalogue::Option option) const
    {
        CheckBox *box = panel->box(option);
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
        return host->takeTold();
    }

    /// Saves, and answers what the dialog is told of.
    Pairs save() const
    {
        host->takeTold();
        return panel->saveValuesAndReturnError(nullptr) ? host->takeTold() : Pairs();
    }

    /// What the panel tells when the user prints.
    Pairs print() const
    {
        host->takeTold();
        return panel->shouldPrint() ? host->takeTold() : Pairs{{u"refused"_s, {}}};
    }

    QVariantMap summary() const { return panel->summaryInfo().value_or(QVariantMap()); }
    QStringList keys() const { return panel->supportedPPDOptionKeys().value_or(QStringList()); }

    std::shared_ptr<TestHost> host;
    std::unique_ptr<PanelProbe> panel;
};
} // namespace

void OddPPDTest::optionTextThatIsNoUTF8_data()
{
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("Latin-1") << QByteArray("B\xe4nder");
    QTest::newRow("Shift JIS") << QByteArray("\x83\x65\x81\x5b\x83\x76");
    QTest::newRow("stray byte") << QByteArray("Tape\xff");
    QTest::newRow("cut off by its length") << QByteArray(79, 'T') + QByteArray("\xc3\xa4");
}

void OddPPDTest::optionTextThatIsNoUTF8()
{
    QFETCH(QByteArray, text);
    const OpenPanel job(PPDText().onOff("KvSpecialTape", "ON", text));
    QVERIFY(job.open());
    QCOMPARE(job.panel->box(Catalogue::SpecialTape)->text(), u"Special tape (no cutting)"_s);
    QCOMPARE(job.summary().value(u"Special tape"_s), QVariant(u"Yes"_s));
    QCOMPARE(job.summary().value(kSummaryDisplayOrder), QVariant(QStringList{u"Special tape"_s}));
    QCOMPARE(job.save(), pairsOf("KvSpecialTape", {u"ON"_s}));
}

void OddPPDTest::readableOptionTextIsShown()
{
    const OpenPanel job(PPDText().onOff("KvSpecialTape", "ON", "B\xc3\xa4nder"));
    QVERIFY(job.open());
    QCOMPARE(job.panel->box(Catalogue::SpecialTape)->text(), u"Bänder"_s);
    QCOMPARE(job.summary().value(u"Bänder"_s), QVariant(u"Yes"_s));
}

void OddPPDTest::choiceTextThatIsNoUTF8()
{
    const OpenPanel job(
        PPDText().option("KvSpecialTape", {"OFF/\xff", "ON/\xe4n", "AUTO/\xe4uto"}, "ON"));
    QVERIFY(job.open());
    QCOMPARE(job.click(Catalogue::SpecialTape), pairsOf("KvSpecialTape", {u"OFF"_s}));
    QCOMPARE(job.host->marked("KvSpecialTape"), u"OFF"_s);
    QCOMPARE(job.summary().value(u"KvSpecialTape"_s), QVariant(u"No"_s));

    job.host->willChangePPDOptionKeyValue(u"KvSpecialTape"_s, u"AUTO"_s);
    QCOMPARE(job.panel->selection(Catalogue::SpecialTape)->ppdTitle(), u"AUTO"_s);
    const QVariant line = job.summary().value(u"KvSpecialTape"_s);
    QVERIFY(line.isValid());
    QCOMPARE(line.toString(), u""_s);
}

void OddPPDTest::optionWithoutChoices()
{
    const OpenPanel job(PPDText().option("KvHalfCut", {}, {}).onOff("KvCutAtEnd", "ON"));
    QVERIFY(!job.panel->choices(Catalogue::HalfCut).isNull());
    QVERIFY(job.panel->choices(Catalogue::HalfCut).isEmpty());
    QVERIFY(job.open());
    QVERIFY(!job.panel->box(Catalogue::HalfCut)->isHidden());
    QCOMPARE(job.click(Catalogue::HalfCut), Pairs());
    QVERIFY(!job.panel->selection(Catalogue::HalfCut));
    QCOMPARE(job.save(), pairsOf("KvCutAtEnd", {u"ON"_s}));
    QCOMPARE(job.print(), Pairs());
    QCOMPARE(job.keys(), QStringList({u"KvCutAtEnd"_s, u"KvHalfCut"_s}));
    QCOMPARE(job.summary().value(kSummaryDisplayOrder).toStringList().size(), 1);
}

void OddPPDTest::optionsWithoutChoicesAlone()
{
    PPDText text;
    for (const OptionRow &row : Catalogue::rows) {
        text.option(row.keyword, {}, {});
    }
    const OpenPanel job(text.attribute("KvAutoCutObjHidden", "False"));
    QVERIFY(job.open());
    for (std::size_t option = 0; option < Catalogue::size; ++option) {
        QCOMPARE(job.click(Catalogue::Option(option)), Pairs());
    }
    QCOMPARE(job.save(), Pairs());
    QCOMPARE(job.print(), Pairs());
    QCOMPARE(job.keys().size(), 9);
    QCOMPARE(job.summary(), QVariantMap({{kSummaryDisplayOrder, QStringList()}}));
}

void OddPPDTest::optionWithoutDefault()
{
    const OpenPanel job(PPDText().onOff("KvHalfCut", {}));
    QVERIFY(job.host->marked("KvHalfCut").isNull());
    QCOMPARE(job.print(), Pairs());
    QVERIFY(job.open());
    QCOMPARE(job.panel->box(Catalogue::HalfCut)->isChecked(), false);
    QCOMPARE(job.host->marked("KvHalfCut"), u"OFF"_s);
    QCOMPARE(job.click(Catalogue::HalfCut), pairsOf("KvHalfCut", {u"ON"_s}));
    QCOMPARE(job.save(), pairsOf("KvHalfCut", {u"ON"_s}));
}

void OddPPDTest::countWithoutDefault()
{
    const OpenPanel job(PPDText().counts(3, 9, {}));
    QVERIFY(job.host->marked("KvCutLabel").isNull());
    QCOMPARE(job.print(), Pairs());
    QVERIFY(job.open());
    QCOMPARE(job.panel->box(Catalogue::CutEvery)->isChecked(), false);
    QCOMPARE(job.host->marked("KvCutLabel"), u"3"_s);
    QCOMPARE(job.save(), pairsOf("KvCutLabel", {u"3"_s}));
}

void OddPPDTest::defaultThatIsNoChoice()
{
    const OpenPanel job(PPDText().onOff("KvHalfCut", "MAYBE"));
    QVERIFY(job.host->marked("KvHalfCut").isNull());
    QCOMPARE(job.panel->indexOfDefaultOption(job.panel->choices(Catalogue::HalfCut)), -1);
    QCOMPARE(job.print(), Pairs());
    QVERIFY(job.open());
    QCOMPARE(job.panel->box(Catalogue::HalfCut)->isChecked(), false);
    QCOMPARE(job.save(), pairsOf("KvHalfCut", {u"OFF"_s}));
}

void OddPPDTest::optionWithOneChoice()
{
    const OpenPanel job(PPDText().option("KvHalfCut", {"OFF/Off"}, "OFF"));
    QVERIFY(job.open());
    QCOMPARE(job.click(Catalogue::HalfCut), Pairs());
    QCOMPARE(job.save(), pairsOf("KvHalfCut", {u"OFF"_s}));
    QCOMPARE(job.host->marked("KvHalfCut"), u"OFF"_s);
}

void OddPPDTest::optionWithTwoChoicesOfOneKeyword()
{
    const OpenPanel job(PPDText().option("KvHalfCut", {"OFF/Off", "ON/First", "ON/Second"}, "OFF"));
    QVERIFY(job.open());
    QCOMPARE(job.click(Catalogue::HalfCut), pairsOf("KvHalfCut", {u"ON"_s}));
    QCOMPARE(job.panel->selection(Catalogue::HalfCut)->userTitle(), u"First"_s);
    QCOMPARE(job.save(), pairsOf("KvHalfCut", {u"ON"_s}));
}

void OddPPDTest::emptyPPD()
{
    const OpenPanel job((PPDText()));
    QVERIFY(job.open());
    QCOMPARE(job.save(), Pairs());
    QCOMPARE(job.print(), Pairs());
    QCOMPARE(job.keys(), QStringList());
    QCOMPARE(job.summary(), QVariantMap({{kSummaryDisplayOrder, QStringList()}}));
}

KV_TEST(OddPPDTest)
#include "tst_oddppd.moc"
