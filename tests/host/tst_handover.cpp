// SPDX-License-Identifier: Apache-2.0
#include "Application.h"
#include "PanelUser.h"
#include "PrintingSite.h"
#include "support/DialogNames.h"

#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QWidget>

namespace {
QStringList titles(const QPrintDialog &dialog)
{
    const auto *tabs = dialog.findChild<QTabWidget *>();
    QStringList titles;
    for (int i = 0; tabs && i < tabs->count(); ++i) {
        titles.append(tabs->tabText(i));
    }
    return titles;
}
} // namespace

/// What an application that knows nothing of panels gets from its dialog, and when.
class tst_handover : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void applicationPrintsAsSoonAsItIsTold();
    void choicesOfCancelledDialogAreNotHandedOver();
    void choicesOfHiddenDialogAreNotHandedOver();
    void hiddenDialogAfterAnAcceptedOneHandsNothingOver();
    void secondPrintHasNoDoubledChoices();
    void choicesOfAnotherPrinterAreTakenBack();
    void plainPrinterLeavesTheJobAlone();

    void newDialogStartsFromTheLastChoices();
    void lastChoicesBelongToTheirPrinter();
    void shownAgainAfterCancelStartsFromTheLastChoices();
    void shownAgainKeepsThePaper();
    void shownAgainShowsTheSameTab();

    void ownTabsOfTheApplicationStay();
    void titlesOfManyTabsAreSeen();
    void destroyedByItsOwnSignal();

private: // NOLINT(readability-redundant-access-specifiers)
    QStringList choicesOfLastJob() const;

    PrintingSite mSite;
};

void tst_handover::initTestCase()
{
    QCOMPARE(mSite.open(), QString());
}

QStringList tst_handover::choicesOfLastJob() const
{
    const QList<int> jobs = mSite.scheduler().jobIds();
    return jobs.isEmpty() ? QStringList() : mSite.choices(jobs.last());
}

void tst_handover::applicationPrintsAsSoonAsItIsTold()
{
    Application application;
    application.makeDialog(QStringLiteral("tape"));
    QVERIFY(application.show() && application.openTab());
    QVERIFY(PanelUser(application.user()).click(halfCutBox));
    QVERIFY(application.user().print());
    QCOMPARE(application.jobCount(), 1);
    QVERIFY(choicesOfLastJob().contains(halfCutOn));
    QCOMPARE(choicesOfLastJob().size(), 6);
    QCOMPARE(application.problems(), QStringList());
}

void tst_handover::choicesOfCancelledDialogAreNotHandedOver()
{
    Application application;
    application.makeDialog(QStringLiteral("tape"));
    QVERIFY(application.show() && application.openTab());
    QVERIFY(PanelUser(application.user()).click(halfCutBox));
    QVERIFY(application.user().cancel());
    QCOMPARE(application.countsOfChoices(), (QMap<QString, int>()));
    QCOMPARE(application.jobCount(), 0);
}

void tst_handover::choicesOfHiddenDialogAreNotHandedOver()
{
    Application application;
    QPrintDialog &dialog = application.makeDialog(QStringLiteral("tape"));
    QVERIFY(application.show() && application.openTab());
    QVERIFY(PanelUser(application.user()).click(halfCutBox));
    dialog.hide();
    QCOMPARE(application.countsOfChoices(), (QMap<QString, int>()));
}

void tst_handover::hiddenDialogAfterAnAcceptedOneHandsNothingOver()
{
    Application application;
    QPrintDialog &dialog = application.makeDialog(QStringLiteral("tape"));
    QVERIFY(application.show() && application.openTab());
    QVERIFY(application.user().print());
    dialog.show();
    QVERIFY(application.openTab());
    QVERIFY(PanelUser(application.user()).click(halfCutBox));
    dialog.hide();
    const QStringList handedOver = application.handedOver();
    const auto key = handedOver.indexOf(QStringLiteral("KvHalfCut"));
    QVERIFY(key >= 0);
    QCOMPARE(handedOver.at(key + 1), QStringLiteral("OFF"));
}

void tst_handover::secondPrintHasNoDoubledChoices()
{
    Application application;
    for (const bool isTicked : {true, false}) {
        application.makeDialog(QStringLiteral("tape"));
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
    Application application;
    application.makeDialog(QStringLiteral("tape"));
    QVERIFY(application.show());
    QVERIFY(application.user().print());
    QVERIFY(choicesOfLastJob().contains(QStringLiteral("KvAutoTapeCut=ON")));

    application.makeDialog(QStringLiteral("tape"));
    QVERIFY(application.show());
    QVERIFY(application.user().pickPrinter(QStringLiteral("label")));
    QVERIFY(application.user().print());
    QCOMPARE(choicesOfLastJob(), QStringList({u"KvAutoTapeCut=ON"_s, u"KvCutAtEnd=OFF"_s,
                                              u"KvCutLabel=1"_s, u"KvMirror=OFF"_s}));

    QVERIFY(application.show());
    QVERIFY(application.user().pickPrinter(QStringLiteral("plain")));
    QVERIFY(application.user().print());
    QCOMPARE(choicesOfLastJob(), QStringList());
    QCOMPARE(application.jobCount(), 3);
}

void tst_handover::plainPrinterLeavesTheJobAlone()
{
    Application application;
    application.makeDialog(QStringLiteral("plain"));
    QVERIFY(application.show());
    QVERIFY(application.user().print());
    const QStringList withPanels = application.handedOver();

    QPrinter printer(QPrinter::HighResolution);
    printer.setPrinterName(QStringLiteral("plain"));
    QPrintDialog bare(&printer);
    DialogDriver user(bare);
    QVERIFY(user.open() && user.print());
    QCOMPARE(withPanels, optionsHandedOver(printer));
}

void tst_handover::newDialogStartsFromTheLastChoices()
{
    Application application;
    application.makeDialog(QStringLiteral("tape"), true);
    QVERIFY(application.show() && application.openTab());
    QVERIFY(PanelUser(application.user()).click(halfCutBox));
    QVERIFY(PanelUser(application.user()).click(QStringLiteral("mMirrorPrintChkBx")));
    QVERIFY(application.user().print());
    const QStringList first = choicesOfLastJob();

    application.makeDialog(QStringLiteral("tape"), true);
    QVERIFY(application.show() && application.openTab());
    QVERIFY(PanelUser(application.user()).isTicked(halfCutBox));
    QVERIFY(PanelUser(application.user()).isTicked(QStringLiteral("mMirrorPrintChkBx")));
    QVERIFY(application.user().print());
    QCOMPARE(choicesOfLastJob(), first);

    // So does a job whose panel nobody has looked at.
    application.makeDialog(QStringLiteral("tape"), true);
    QVERIFY(application.show() && application.user().print());
    QCOMPARE(choicesOfLastJob(), first);
    QCOMPARE(application.problems(), QStringList());
}

void tst_handover::lastChoicesBelongToTheirPrinter()
{
    Application application;
    application.makeDialog(QStringLiteral("tape"));
    QVERIFY(application.show() && application.openTab());
    QVERIFY(PanelUser(application.user()).click(QStringLiteral("mMirrorPrintChkBx")));
    QVERIFY(application.user().print());

    application.makeDialog(QStringLiteral("follow"));
    QVERIFY(application.show() && application.openTab());
    QVERIFY(!PanelUser(application.user()).isTicked(QStringLiteral("mMirrorPrintChkBx")));
    QVERIFY(application.user().pickPrinter(QStringLiteral("tape")));
    QVERIFY(application.openTab());
    QVERIFY(PanelUser(application.user()).isTicked(QStringLiteral("mMirrorPrintChkBx")));
}

void tst_handover::shownAgainAfterCancelStartsFromTheLastChoices()
{
    Application application;
    application.makeDialog(QStringLiteral("tape"));
    QVERIFY(application.show() && application.openTab());
    QVERIFY(PanelUser(application.user()).click(halfCutBox));
    QVERIFY(application.user().print());
    QVERIFY(application.show() && application.openTab());
    QVERIFY(PanelUser(application.user()).click(halfCutBox));
    QVERIFY(application.user().cancel());

    QVERIFY(application.show() && application.openTab());
    QVERIFY(PanelUser(application.user()).isTicked(halfCutBox));
    QVERIFY(application.user().print());
    QVERIFY(choicesOfLastJob().contains(halfCutOn));
}

void tst_handover::shownAgainKeepsThePaper()
{
    Application application;
    application.makeDialog(QStringLiteral("tape"));
    QVERIFY(application.show() && application.openTab());
    QVERIFY(application.user().pickPaper(QStringLiteral("FL21x45")));
    QVERIFY(!PanelUser(application.user()).isEnabled(halfCutBox));
    QVERIFY(application.user().print());
    QVERIFY(application.show() && application.openTab());
    QVERIFY(!PanelUser(application.user()).isEnabled(halfCutBox));
    QVERIFY(application.user().pickPrinter(QStringLiteral("follow")));
    QVERIFY(application.user().pickPrinter(QStringLiteral("tape")));
    QVERIFY(application.openTab());
    QVERIFY(PanelUser(application.user()).isEnabled(halfCutBox));
}

void tst_handover::shownAgainShowsTheSameTab()
{
    Application application;
    QPrintDialog &dialog = application.makeDialog(QStringLiteral("tape"));
    QVERIFY(application.show() && application.openTab());
    const QStringList tabs = titles(dialog);
    QVERIFY(application.user().print());
    QVERIFY(application.show());
    QCOMPARE(titles(dialog), tabs);
    const auto *pane = dialog.findChild<QTabWidget *>();
    QCOMPARE(pane->tabText(pane->currentIndex()), kPanelTab);
    QVERIFY(!PanelUser(application.user()).boxes().isEmpty());
}

void tst_handover::ownTabsOfTheApplicationStay()
{
    Application application;
    QPrintDialog &dialog = application.makeDialog(QStringLiteral("tape"));
    auto *const early = new QWidget;
    early->setWindowTitle(QStringLiteral("Early"));
    dialog.setOptionTabs({early});
    QVERIFY(application.show());
    QCOMPARE(titles(dialog),
             QStringList({u"Copies"_s, u"Options"_s, u"Early"_s, kPanelTab, kSummaryTab}));
    auto *const late = new QWidget;
    late->setWindowTitle(QStringLiteral("Late"));
    dialog.setOptionTabs({late});

    QVERIFY(application.user().pickPrinter(QStringLiteral("plain")));
    QCOMPARE(titles(dialog), QStringList({u"Copies"_s, u"Options"_s, u"Early"_s, u"Late"_s}));
    QVERIFY(application.user().cancel());
    QVERIFY(application.show());
    QVERIFY(application.user().pickPrinter(QStringLiteral("mark")));
    QCOMPARE(titles(dialog), QStringList({u"Copies"_s, u"Options"_s, u"Early"_s, u"Late"_s,
                                          kPanelTab, kSummaryTab}));
}

void tst_handover::titlesOfManyTabsAreSeen()
{
    Application application;
    QPrintDialog &dialog = application.makeDialog(QStringLiteral("tape"));
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
    Application application;
    QPrintDialog &dialog = application.makeDialog(QStringLiteral("tape"));
    QVERIFY(application.show() && application.openTab());
    QVERIFY(PanelUser(application.user()).click(halfCutBox));
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
