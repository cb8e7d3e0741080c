// SPDX-License-Identifier: Apache-2.0
#include "Application.h"
#include "PanelUser.h"
#include "PrintingTest.h"
#include "dialog/PrintDialogAttachment.h"
#include "support/DialogNames.h"

#include <QCloseEvent>
#include <QTest>
#include <QWidget>

#include <functional>

namespace {
/// Answers the close events of a dialog in place of the dialog.
class CloseAnswer : public QObject
{
public:
    CloseAnswer(QPrintDialog &dialog, bool isAllowed)
        : QObject(&dialog)
        , mIsAllowed(isAllowed)
    {
        dialog.installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        const bool isClose = event->type() == QEvent::Close;
        if (isClose) {
            event->setAccepted(mIsAllowed);
        }
        return isClose;
    }

private:
    bool mIsAllowed;
};

/// What an application does with its dialog.
using Deed = std::function<void(QPrintDialog &)>;
} // namespace

Q_DECLARE_METATYPE(Deed)

/// What the panel shows in a dialog that is shown again: what it showed before when the user had
/// finished neither by Print nor by Cancel, else what was last printed.
class tst_showing : public PrintingTest
{
    Q_OBJECT

private Q_SLOTS:
    void hiddenForAWhile_data() { waysOfHiding(); }
    void hiddenForAWhile();
    void hiddenForAWhileAfterAJob_data() { waysOfHiding(); }
    void hiddenForAWhileAfterAJob();
    void hiddenForAWhileAtAnotherTab_data() { waysOfHiding(); }
    void hiddenForAWhileAtAnotherTab();
    void hiddenForAWhileWithAnotherPaper_data() { waysOfHiding(); }
    void hiddenForAWhileWithAnotherPaper();

    void finished_data();
    void finished();
    void acceptedWhileHidden();
    void shownAgainAsSoonAsItTells_data();
    void shownAgainAsSoonAsItTells();

private: // NOLINT(readability-redundant-access-specifiers)
    static void waysOfHiding();
};

void tst_showing::waysOfHiding()
{
    const TestTable<Deed> table("hide");
    table.add("hidden", [](QPrintDialog &dialog) { dialog.hide(); });
    table.add("made invisible twice", [](QPrintDialog &dialog) {
        dialog.setVisible(false);
        dialog.show();
        dialog.setVisible(false);
    });
    table.add("another window flag",
              [](QPrintDialog &dialog) { dialog.setWindowFlag(Qt::WindowStaysOnTopHint); });
    table.add("another parent", [](QPrintDialog &dialog) {
        static QWidget parent;
        dialog.setParent(&parent, Qt::Dialog);
    });
    table.add("a close that the application refuses", [](QPrintDialog &dialog) {
        const CloseAnswer answer(dialog, false);
        QVERIFY(!dialog.close());
        QTest::qWait(0);
        dialog.hide();
    });
}

void tst_showing::hiddenForAWhile()
{
    QFETCH(const Deed, hide);
    Application application(tape);
    QPrintDialog &dialog = application.dialog();
    QVERIFY(application.show() && application.openTab());
    PanelUser panel(application.user());
    QVERIFY(panel.click(halfCutBox));
    QVERIFY(panel.click(mirrorBox));
    const QStringList summary = panel.summary();
    hide(dialog);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(application.countsOfChoices(), (QMap<QString, int>()));

    QVERIFY(application.show());
    QVERIFY(panel.isTicked(halfCutBox));
    QVERIFY(panel.isTicked(mirrorBox));
    QTest::qWait(0);
    QCOMPARE(panel.summary(), summary);
    QVERIFY(application.user().print());
    QCOMPARE(application.jobCount(), 1);
    QVERIFY(choicesOfLastJob().contains(halfCutOn));
    QVERIFY(choicesOfLastJob().contains(u"KvMirror=ON"_s));
    const auto counts = application.countsOfChoices();
    QCOMPARE(counts.size(), 6);
    for (const int count : counts) {
        QCOMPARE(count, 1);
    }
    QCOMPARE(application.problems(), QStringList());
    dialog.setParent(nullptr);
}

void tst_showing::hiddenForAWhileAfterAJob()
{
    QFETCH(const Deed, hide);
    Application application(tape);
    QPrintDialog &dialog = application.dialog();
    QVERIFY(application.show() && application.user().print());
    // Shown as it is: the dialog's result is still that of the job.
    QVERIFY(application.user().open() && application.openTab());
    QVERIFY(application.panel().click(halfCutBox));
    const QStringList handedOver = application.handedOver();
    hide(dialog);
    QCOMPARE(application.handedOver(), handedOver);

    QVERIFY(application.show());
    QVERIFY(application.panel().isTicked(halfCutBox));
    QVERIFY(application.user().print());
    QCOMPARE(application.jobCount(), 2);
    QVERIFY(choicesOfLastJob().contains(halfCutOn));
    dialog.setParent(nullptr);
}

void tst_showing::hiddenForAWhileAtAnotherTab()
{
    QFETCH(const Deed, hide);
    Application application(tape);
    QPrintDialog &dialog = application.dialog();
    QVERIFY(application.show() && application.openTab());
    QVERIFY(application.panel().click(halfCutBox));
    QVERIFY(application.user().showTab(kSummaryTab));
    hide(dialog);
    QVERIFY(application.show());
    QVERIFY(application.panel().summary().contains(u"Half Cut: Yes"_s));
    QVERIFY(application.user().print());
    QVERIFY(choicesOfLastJob().contains(halfCutOn));
    dialog.setParent(nullptr);
}

void tst_showing::hiddenForAWhileWithAnotherPaper()
{
    QFETCH(const Deed, hide);
    Application application(tape);
    QPrintDialog &dialog = application.dialog();
    QVERIFY(application.show() && application.openTab());
    QVERIFY(application.user().pickPaper(u"FL21x45"_s));
    QVERIFY(!application.panel().isEnabled(halfCutBox));
    hide(dialog);
    QVERIFY(application.show());
    QVERIFY(!application.panel().isEnabled(halfCutBox));
    QVERIFY(application.user().print());
    const int job = mSite.scheduler().jobIds().last();
    QCOMPARE(mSite.job(job).value(u"media"_s), u"FL21x45"_s);
    dialog.setParent(nullptr);
}

void tst_showing::finished_data()
{
    const TestTable<Deed> table("finish");
    table.add("rejected", [](QPrintDialog &dialog) { dialog.reject(); });
    table.add("closed", [](QPrintDialog &dialog) { dialog.close(); });
    table.add("closed without telling so", [](QPrintDialog &dialog) {
        const CloseAnswer answer(dialog, true);
        QVERIFY(dialog.close());
        QTest::qWait(0);
    });
    table.add("with a result of the application's own",
              [](QPrintDialog &dialog) { dialog.done(7); });
    table.add("rejected while it is hidden", [](QPrintDialog &dialog) {
        dialog.hide();
        dialog.reject();
    });
    table.add("rejected when it is shown again", [](QPrintDialog &dialog) {
        dialog.hide();
        dialog.show();
        dialog.reject();
    });
    table.add("rejected, and hidden once more", [](QPrintDialog &dialog) {
        dialog.reject();
        dialog.hide();
    });
}

void tst_showing::finished()
{
    QFETCH(const Deed, finish);
    Application application(tape);
    QPrintDialog &dialog = application.dialog();
    QVERIFY(application.show() && application.openTab());
    QVERIFY(application.panel().click(mirrorBox));
    QVERIFY(application.user().print());
    QVERIFY(application.show() && application.openTab());
    QVERIFY(application.panel().click(mirrorBox));
    QVERIFY(application.panel().click(halfCutBox));
    finish(dialog);
    QVERIFY(!dialog.isVisible());

    QVERIFY(application.show() && application.openTab());
    QVERIFY(application.panel().isTicked(mirrorBox));
    QVERIFY(!application.panel().isTicked(halfCutBox));
    QVERIFY(application.user().print());
    QCOMPARE(application.jobCount(), 2);
    QVERIFY(choicesOfLastJob().contains(u"KvMirror=ON"_s));
    QVERIFY(!choicesOfLastJob().contains(halfCutOn));
}

void tst_showing::acceptedWhileHidden()
{
    Application application(tape);
    QPrintDialog &dialog = application.dialog();
    QVERIFY(application.show() && application.openTab());
    QVERIFY(application.panel().click(halfCutBox));
    dialog.hide();
    QCOMPARE(application.countsOfChoices(), (QMap<QString, int>()));
    dialog.accept();
    QCOMPARE(application.countsOfChoices().size(), 6);

    QVERIFY(application.show());
    QVERIFY(application.panel().isTicked(halfCutBox));
    QVERIFY(application.panel().click(halfCutBox));
    QVERIFY(application.user().print());
    QVERIFY(!choicesOfLastJob().contains(halfCutOn));
}

void tst_showing::shownAgainAsSoonAsItTells_data()
{
    const TestTable<Deed, bool, bool> table("finish", "isKept", "isHidden");
    const Deed accept = [](QPrintDialog &dialog) {
        dialog.accept();
    };
    const Deed reject = [](QPrintDialog &dialog) {
        dialog.reject();
    };
    table.add("accepted", accept, true, false);
    table.add("accepted, and hidden for a while", accept, true, true);
    table.add("rejected", reject, false, false);
    table.add("rejected, and hidden for a while", reject, false, true);
}

void tst_showing::shownAgainAsSoonAsItTells()
{
    QFETCH(const Deed, finish);
    QFETCH(const bool, isKept);
    QFETCH(const bool, isHidden);
    Application application(tape);
    QPrintDialog &dialog = application.dialog();
    bool isToBeShown = true;
    const auto showOnce = [&] {
        if (std::exchange(isToBeShown, false)) {
            dialog.show();
        }
    };
    QObject::connect(&dialog, &QDialog::accepted, &dialog, showOnce);
    QObject::connect(&dialog, &QDialog::rejected, &dialog, showOnce);
    QVERIFY(application.show() && application.openTab());
    PanelUser panel(application.user());
    QVERIFY(panel.click(halfCutBox));
    finish(dialog);
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QVERIFY(application.openTab());
    QCOMPARE(panel.isTicked(halfCutBox), isKept);

    // What is chosen now is kept and printed as ever.
    QVERIFY(panel.click(mirrorBox));
    if (isHidden) {
        dialog.hide();
        QVERIFY(application.show());
    }
    QVERIFY(panel.isTicked(mirrorBox));
    QCOMPARE(panel.isTicked(halfCutBox), isKept);
    QVERIFY(application.user().print());
    QVERIFY(choicesOfLastJob().contains(u"KvMirror=ON"_s));
    QCOMPARE(choicesOfLastJob().contains(halfCutOn), isKept);
}

KV_TEST(tst_showing)
#include "tst_showing.moc"
