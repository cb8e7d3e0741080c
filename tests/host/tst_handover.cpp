// SPDX-License-Identifier: Apache-2.0
#include "Application.h"
#include "PanelUser.h"
#include "PrintingTest.h"
#include "support/DialogNames.h"

#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QWidget>

/// What an application that knows nothing of panels gets from its dialog, and when.
class tst_handover : public PrintingTest
{
    Q_OBJECT

private Q_SLOTS:
    void applicationPrintsAsSoonAsItIsTold();
    void choicesOfCancelledDialogAreNotHandedOver();
    void choicesOfHiddenDialogAreNotHandedOver();
    void hiddenDialogAfterAnAcceptedOneHandsNothingOver();
    void secondPrintHasNoDoubledChoices();
    void choicesOfAnotherPrinterAreTakenBack();
    void plainPrinterLeavesTheJobAlone();

    void newDialogStartsFromTheLastChoices();
    void lastChoicesBelongToTheirPrinter_data();
    void lastChoicesBelongToTheirPrinter();
    void shownAgainAfterCancelStartsFromTheLastChoices();
    void shownAgainKeepsThePaper();
    void shownAgainShowsTheSameTab();

    void ownTabsOfTheApplicationStay();
    void titlesOfManyTabsAreSeen();
    void destroyedByItsOwnSignal();
};

void tst_handover::applicationPrintsAsSoonAsItIsTold()
{
    Application application(u"tape"_s);
    QVERIFY(application.show() && application.openTab());
    QVERIFY(application.panel().click(halfCutBox));
    QVERIFY(application.user().print());
    QCOMPARE(application.jobCount(), 1);
    QVERIFY(choicesOfLastJob().contains(halfCutOn));
    QCOMPARE(choicesOfLastJob().size(), 6);
    QCOMPARE(application.problems(), QStringList());
}

void tst_handover::choicesOfCancelledDialogAreNotHandedOver()
{
    Application application(u"tape"_s);
    QVERIFY(application.show() && application.openTab());
    QVERIFY(application.panel().click(halfCutBox));
    QVERIFY(application.user().cancel());
    QCOMPARE(application.countsOfChoices(), (QMap<QString, int>()));
    QCOMPARE(application.jobCount(), 0);
}

void tst_handover::choicesOfHiddenDialogAreNotHandedOver()
{
    Application application(u"tape"_s);
    QPrintDialog &dialog = application.dialog();
    QVERIFY(application.show() && application.openTab());
    QVERIFY(application.panel().click(halfCutBox));
    dialog.hide();
    QCOMPARE(application.countsOfChoices(), (QMap<QString, int>()));
}

void tst_handover::hiddenDialogAfterAnAcceptedOneHandsNothingOver()
{
    Application application(u"tape"_s);
    QPrintDialog &dialog = application.dialog();
    QVERIFY(application.show() && application.openTab());
    QVERIFY(application.user().print());
    dialog.show();
    QVERIFY(application.openTab());
    QVERIFY(application.panel().click(halfCutBox));
    dialog.hide();
    const QStringList handedOver = application.handedOver();
    const auto key = handedOver.indexOf(u"KvHalfCut"_s);
    QVERIFY(key >= 0);
    QCOMPARE(handedOver.at(key + 1), u"OFF"_s);
}

void tst_handover::secondPrintHasNoDoubledChoices()
{
    Application application;
    for (const bool isTicked : {true, false}) {
        application.makeDialog(u"tape"_s);
        QVERIFY(application.show() && application.openTab());
        PanelUser panel(application.user());
        QVERIFY(panel.click(halfCutBox));
        QCOMPARE(panel.isTicked(halfCutBox), isTicked);
        QVERIFY(application.user().print());
        QCOMPARE(choicesOfLastJob().contains(halfCutOn), isTicked);
        const auto counts = application.countsOfChoices();
        QCOMPARE(counts.size(), 6);
        for (const int count : counts) {
            QCOMPARE(count, 1);
        }
    }
}

void tst_handover::choicesOfAnotherPrinterAreTakenBack()
{
    Application application(u"tape"_s);
    QVERIFY(application.show());
    QVERIFY(application.user().print());
    QVERIFY(choicesOfLastJob().contains(u"KvAutoTapeCut=ON"_s));

    application.makeDialog(u"tape"_s);
    QVERIFY(application.show());
    QVERIFY(application.user().pickPrinter(u"label"_s));
    QVERIFY(application.user().print());
    QCOMPARE(choicesOfLastJob(), QStringList({u"KvAutoTapeCut=ON"_s, u"KvCutAtEnd=OFF"_s,
                                              u"KvCutLabel=1"_s, u"KvMirror=OFF"_s}));

    QVERIFY(application.show());
    QVERIFY(application.user().pickPrinter(u"plain"_s));
    QVERIFY(application.user().print());
    QCOMPARE(choicesOfLastJob(), QStringList());
    QCOMPARE(application.jobCount(), 3);
}

void tst_handover::plainPrinterLeavesTheJobAlone()
{
    Application application(u"plain"_s);
    QVERIFY(application.show());
    QVERIFY(application.user().print());
    const QStringList withPanels = application.handedOver();

    QPrinter printer(QPrinter::HighResolution);
    printer.setPrinterName(u"plain"_s);
    QPrintDialog bare(&printer);
    DialogDriver user(bare);
    QVERIFY(user.open() && user.print());
    QCOMPARE(withPanels, optionsHandedOver(printer));
}

void tst_handover::newDialogStartsFromTheLastChoices()
{
    Application application(u"tape"_s, true);
    QVERIFY(application.show() && application.openTab());
    QVERIFY(application.panel().click(halfCutBox));
    QVERIFY(application.panel().click(u"mMirrorPrintChkBx"_s));
    QVERIFY(application.user().print());
    const QStringList first = choicesOfLastJob();

    application.makeDialog(u"tape"_s, true);
    QVERIFY(application.show() && application.openTab());
    QVERIFY(application.panel().isTicked(halfCutBox));
    QVERIFY(application.panel().isTicked(u"mMirrorPrintChkBx"_s));
    QVERIFY(application.user().print());
    QCOMPARE(choicesOfLastJob(), first);

    // So does a job whose panel nobody has looked at.
    application.makeDialog(u"tape"_s, true);
    QVERIFY(application.show() && application.user().print());
    QCOMPARE(choicesOfLastJob(), first);
    QCOMPARE(application.problems(), QStringList());
}

void tst_handover::lastChoicesBelongToTheirPrinter_data()
{
    const TestTable<QString, QString> table("printer", "other");
    table.add("queue", tape, u"follow"_s);
    table.add("instance", u"tape/draft"_s, tape);
}

void tst_handover::lastChoicesBelongToTheirPrinter()
{
    QFETCH(const QString, printer);
    QFETCH(const QString, other);
    QVERIFY(mSite.saveUserOptions("Dest tape/draft KvHalfCut=ON\n"));
    Application application(printer);
    QVERIFY(application.show() && application.openTab());
    QVERIFY(application.panel().click(halfCutBox));
    QVERIFY(application.panel().click(mirrorBox));
    QVERIFY(application.user().print());

    application.makeDialog(other);
    QVERIFY(application.show() && application.openTab());
    QVERIFY(!application.panel().isTicked(mirrorBox));
    QVERIFY(application.user().pickPrinter(printer));
    QVERIFY(application.openTab());
    QVERIFY(application.panel().isTicked(mirrorBox));
    QCOMPARE(application.panel().isTicked(halfCutBox), printer == tape);
}

void tst_handover::shownAgainAfterCancelStartsFromTheLastChoices()
{
    Application application(u"tape"_s);
    QVERIFY(application.show() && application.openTab());
    QVERIFY(application.panel().click(halfCutBox));
    QVERIFY(application.user().print());
    QVERIFY(application.show() && application.openTab());
    QVERIFY(application.panel().click(halfCutBox));
    QVERIFY(application.user().cancel());

    QVERIFY(application.show() && application.openTab());
    QVERIFY(application.panel().isTicked(halfCutBox));
    QVERIFY(application.user().print());
    QVERIFY(choicesOfLastJob().contains(halfCutOn));
}

void tst_handover::shownAgainKeepsThePaper()
{
    Application application(u"tape"_s);
    QVERIFY(application.show() && application.openTab());
    QVERIFY(application.user().pickPaper(u"FL21x45"_s));
    QVERIFY(!application.panel().isEnabled(halfCutBox));
    QVERIFY(application.user().print());
    QVERIFY(application.show() && application.openTab());
    QVERIFY(!application.panel().isEnabled(halfCutBox));
    QVERIFY(application.user().pickPrinter(u"follow"_s));
    QVERIFY(application.user().pickPrinter(u"tape"_s));
    QVERIFY(application.openTab());
    QVERIFY(application.panel().isEnabled(halfCutBox));
}

void tst_handover::shownAgainShowsTheSameTab()
{
    Application application(u"tape"_s);
    QPrintDialog &dialog = application.dialog();
    QVERIFY(application.show() && application.openTab());
    const QStringList tabs = tabsOf(dialog);
    QVERIFY(application.user().print());
    QVERIFY(application.show());
    QCOMPARE(tabsOf(dialog), tabs);
    const auto *pane = dialog.findChild<QTabWidget *>();
    QCOMPARE(pane->tabText(pane->currentIndex()), kPanelTab);
    QVERIFY(!application.panel().boxes().isEmpty());
}

void tst_handover::ownTabsOfTheApplicationStay()
{
    Application application(u"tape"_s);
    QPrintDialog &dialog = application.dialog();
    auto *const early = new QWidget;
    early->setWindowTitle(u"Early"_s);
    dialog.setOptionTabs({early});
    QVERIFY(application.show());
    QCOMPARE(tabsOf(dialog),
             QStringList({u"Copies"_s, u"Options"_s, u"Early"_s, kPanelTab, kSummaryTab}));
    auto *const late = new QWidget;
    late->setWindowTitle(u"Late"_s);
    dialog.setOptionTabs({late});

    QVERIFY(application.user().pickPrinter(u"plain"_s));
    QCOMPARE(tabsOf(dialog), QStringList({u"Copies"_s, u"Options"_s, u"Early"_s, u"Late"_s}));
    QVERIFY(application.user().cancel());
    QVERIFY(application.show());
    QVERIFY(application.user().pickPrinter(u"mark"_s));
    QCOMPARE(tabsOf(dialog), QStringList({u"Copies"_s, u"Options"_s, u"Early"_s, u"Late"_s,
                                          kPanelTab, kSummaryTab}));
}

void tst_handover::titlesOfManyTabsAreSeen()
{
    Application application(u"tape"_s);
    QPrintDialog &dialog = application.dialog();
    QList<QWidget *> own;
    for (const char *title : {"Extended options", "Pages per sheet"}) {
        own.append(new QWidget);
        own.last()->setWindowTitle(QLatin1String(title));
    }
    dialog.setOptionTabs(own);
    QVERIFY(application.show());
    QVERIFY(application.user().showOptions());
    const auto *pane = dialog.findChild<QTabWidget *>();
    const QTabBar *bar = pane->tabBar();
    QVERIFY(QTest::qWaitFor([&] { return bar->width() >= bar->sizeHint().width(); }));
    QVERIFY(bar->rect().contains(bar->tabRect(bar->count() - 1)));
}

void tst_handover::destroyedByItsOwnSignal()
{
    Application application(u"tape"_s);
    QPrintDialog &dialog = application.dialog();
    QVERIFY(application.show() && application.openTab());
    QVERIFY(application.panel().click(halfCutBox));
    bool wasDestroyed = false;
    QObject::connect(&dialog, &QObject::destroyed, [&wasDestroyed] { wasDestroyed = true; });
    QObject::connect(&dialog, &QDialog::accepted, [&application] { application.destroyDialog(); });
    dialog.accept();
    QVERIFY(wasDestroyed);
    QCOMPARE(application.jobCount(), 1);
    QVERIFY(choicesOfLastJob().contains(halfCutOn));
}

KV_TEST(tst_handover)
#include "tst_handover.moc"
