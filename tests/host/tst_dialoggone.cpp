// SPDX-License-Identifier: Apache-2.0
#include "AttachedDialog.h"
#include "PanelUser.h"
#include "PrintingTest.h"
#include "dialog/PrintDialogAttachment.h"
#include "dialog/PrintDialogWidgets.h"
#include "kvprint/PrintCommand.h"

#include <QComboBox>
#include <QMessageBox>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

#include <functional>

namespace {
/// What an application does with its dialog while our warning is open.
using Doing = std::function<void(AttachedDialog &dialog)>;

const QString cutEveryBox = u"mCutEveryChkBx"_s;

/// So that a warning that is opened by what is done is open by then.
constexpr int closingDelay = 50;

QMessageBox *openAlert()
{
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        auto *alert = qobject_cast<QMessageBox *>(window);
        if (alert && alert->isVisible()) {
            return alert;
        }
    }
    return nullptr;
}

/// Closes what is open: a dialog that is shown again makes the choices once more, and so warns
/// again.
void closeAlerts()
{
    QTest::qWait(closingDelay);
    while (QMessageBox *alert = openAlert()) {
        alert->buttons().constFirst()->click();
    }
}

/// Waits for a warning, does something while it is open, and sees what becomes of it.
class WhileWarned : public QObject
{
public:
    explicit WhileWarned(std::function<void()> deed)
        : mDeed(std::move(deed))
    {
        connect(&mTimer, &QTimer::timeout, this, &WhileWarned::look);
        mTimer.start(1);
    }

    bool isDone() const { return mIsDone; }
    /// Whether the warning was still open after that.
    bool wasLeftOpen() const { return mWasLeftOpen; }

private:
    void look()
    {
        mAlert = openAlert();
        if (mAlert) {
            mTimer.stop();
            QTimer::singleShot(0, this, &WhileWarned::finish);
            mDeed();
        }
    }

    void finish()
    {
        mWasLeftOpen = mAlert && mAlert->isVisible();
        closeAlerts();
        mIsDone = true;
    }

    std::function<void()> mDeed;
    QTimer mTimer;
    QPointer<QMessageBox> mAlert;
    bool mIsDone = false;
    bool mWasLeftOpen = false;
};

/// Picks another printer as soon as the warning comes up.
class HastyApplication : public QObject
{
public:
    explicit HastyApplication(QPrintDialog &dialog)
        : mDialog(dialog)
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show && qobject_cast<QMessageBox *>(watched)) {
            QComboBox *printers = printersMenu(mDialog);
            printers->setCurrentIndex(printers->findText(tape));
            mHasPicked = true;
        }
        return false;
    }

    bool hasPicked() const { return mHasPicked; }

private:
    QPrintDialog &mDialog;
    bool mHasPicked = false;
};

/// The application shows the dialog, if it is not there, and the user goes back to the panel.
bool showAgain(AttachedDialog &dialog)
{
    dialog.dialog().show();
    closeAlerts();
    dialog.dialog().activateWindow();
    return QTest::qWaitForWindowActive(&dialog.dialog()) && dialog.panel().openTab();
}

/// Ticks cut every, on heat-shrink tube: our warning opens.
void provokeWarning(AttachedDialog &dialog)
{
    const QString box = cutEveryBox;
    if (dialog.panel().isTicked(box)) {
        dialog.user().click(box);
    }
    dialog.user().click(box);
}
} // namespace

Q_DECLARE_METATYPE(Doing)

/// Dialogs that are hidden or destroyed by their application while something of ours is open.
class tst_dialoggone : public PrintingTest
{
    Q_OBJECT

private Q_SLOTS:
    // After an application has quit, Qt 5 waits for no dialog any more.
    void commandWhoseDialogIsDestroyed();
    void warningOfADialogThatIsShownAgain();
    void warningGoesWithTheDialog_data();
    void warningGoesWithTheDialog();
    void anotherPrinterAsTheWarningComesUp_data();
    void anotherPrinterAsTheWarningComesUp();
};

void tst_dialoggone::warningGoesWithTheDialog_data()
{
    const TestTable<Doing, bool, bool> table("act", "isLeftOpen", "isChosen");
    const auto row = [&table](const char *name, bool isLeftOpen, bool isChosen, const Doing &act) {
        table.add(name, act, isLeftOpen, isChosen);
    };
    row("nothing", true, true, [](AttachedDialog &) {});
    row("delete", false, false, [](AttachedDialog &dialog) { dialog.destroyDialog(); });
    row("deleteLater", false, false, [](AttachedDialog &dialog) { dialog.destroyDialogLater(); });
    row("reject", false, false, [](AttachedDialog &dialog) { dialog.dialog().reject(); });
    row("accept", false, true, [](AttachedDialog &dialog) { dialog.dialog().accept(); });
    row("reject and show", false, false, [](AttachedDialog &dialog) {
        dialog.dialog().reject();
        dialog.dialog().show();
    });
    row("accept and show", false, true, [](AttachedDialog &dialog) {
        dialog.dialog().accept();
        dialog.dialog().show();
    });
    row("another printer", false, false, [](AttachedDialog &dialog) {
        dialog.user().pickPrinter(u"tape"_s);
        dialog.user().pickPrinter(u"follow"_s);
    });
    row("hide", false, true, [](AttachedDialog &dialog) { dialog.dialog().hide(); });
    row("hide and show", false, true, [](AttachedDialog &dialog) {
        dialog.dialog().hide();
        dialog.dialog().show();
    });
    row("close", false, false, [](AttachedDialog &dialog) { dialog.dialog().close(); });
    row("another tab", true, true, [](AttachedDialog &dialog) {
        auto *tabs = dialog.dialog().findChild<QTabWidget *>();
        tabs->setCurrentIndex(tabs->count() - 1);
    });
    row("the application quits", true, true, [](AttachedDialog &) { QCoreApplication::quit(); });
}

void tst_dialoggone::warningGoesWithTheDialog()
{
    QFETCH(const Doing, act);
    QFETCH(const bool, isChosen);
    AttachedDialog dialog(u"follow"_s, {u"media=HS12x100"_s});
    QVERIFY(dialog.openTab());
    WhileWarned whileWarned([&] { act(dialog); });
    provokeWarning(dialog);
    QVERIFY(QTest::qWaitFor([&] { return whileWarned.isDone(); }));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QTEST(whileWarned.wasLeftOpen(), "isLeftOpen");
    QVERIFY(!openAlert());
    if (!dialog.hasDialog()) {
        return;
    }

    // The dialog works on, and prints what it shows.
    QVERIFY(showAgain(dialog));
    QVERIFY(dialog.user().click(mirrorBox));
    const bool isTicked = dialog.panel().isTicked(cutEveryBox);
    if (isChosen) {
        QVERIFY(isTicked);
    }
    const int job = dialog.print(mSite.scheduler());
    QVERIFY(job);
    const QStringList choices = mSite.choices(job);
    QVERIFY(choices.contains(u"KvMirror=ON"_s));
    QCOMPARE(choices.contains(u"KvAutoTapeCut=ON"_s), isTicked);
    QCOMPARE(dialog.problems(), QStringList());
}

void tst_dialoggone::anotherPrinterAsTheWarningComesUp_data()
{
    const TestTable<Doing> table("act");
    table.add("ticked", Doing(provokeWarning));
    table.add("tab seen again", Doing([](AttachedDialog &dialog) {
                  dialog.user().showTab(kSummaryTab);
                  dialog.user().showTab(kPanelTab);
              }));
    table.add("dialog shown again", Doing([](AttachedDialog &dialog) {
                  dialog.dialog().hide();
                  dialog.dialog().show();
              }));
}

void tst_dialoggone::anotherPrinterAsTheWarningComesUp()
{
    QFETCH(const Doing, act);
    AttachedDialog dialog(u"follow"_s, {u"media=HS12x100"_s});
    QVERIFY(dialog.openTab());
    provokeWarning(dialog);
    closeAlerts();
    const HastyApplication application(dialog.dialog());
    act(dialog);
    QVERIFY(QTest::qWaitFor([&] { return application.hasPicked(); }));
    QVERIFY(dialog.user().awaitPrinter());
    QVERIFY(!openAlert());
    QVERIFY(dialog.panel().openTab());
    QVERIFY(dialog.user().click(mirrorBox));
    QVERIFY(mSite.choices(dialog.print(mSite.scheduler())).contains(u"KvMirror=ON"_s));
    QCOMPARE(dialog.problems(), QStringList());
}

void tst_dialoggone::warningOfADialogThatIsShownAgain()
{
    AttachedDialog dialog(u"follow"_s, {u"media=HS12x100"_s});
    QVERIFY(dialog.openTab());
    WhileWarned whileWarned([] {});
    provokeWarning(dialog);
    QVERIFY(QTest::qWaitFor([&] { return whileWarned.isDone(); }));
    dialog.dialog().hide();

    // The tab comes up with the dialog and makes the choice once more, which warns.
    dialog.dialog().show();
    QVERIFY(dialog.dialog().isVisible());
    QVERIFY(QTest::qWaitFor([] { return openAlert() != nullptr; }));
    QCOMPARE(QApplication::activeModalWidget(), openAlert());
    QVERIFY(dialog.panel().isTicked(cutEveryBox));
    dialog.destroyDialog();
    QVERIFY(!openAlert());
}

void tst_dialoggone::commandWhoseDialogIsDestroyed()
{
    CommandLine line;
    line.printer = u"follow"_s;
    line.files.append(mSite.document());
    const QList<int> before = mSite.scheduler().jobIds();
    PrintCommand command(line, QStringLiteral(KV_BUNDLE_FOLDER));
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] {
        if (QWidget *dialog = QApplication::activeModalWidget()) {
            timer.stop();
            delete dialog;
        }
    });
    timer.start(1);
    QCOMPARE(command.run(), ExitStatus::Cancelled);
    QVERIFY(!command.attachment());
    QCOMPARE(command.print(), ExitStatus::NotPrinted);
    QCOMPARE(mSite.scheduler().jobIds(), before);
}

KV_TEST(tst_dialoggone)
#include "tst_dialoggone.moc"
