// SPDX-License-Identifier: Apache-2.0
#include "ApplicationSession.h"
#include "ApplicationTest.h"
#include "JobTicket.h"
#include "Waiting.h"
#include "host/PrintingSite.h"
#include "support/DialogNames.h"

#include <QTest>

namespace {
/// The application's tab, and the button in it that destroys the dialog.
const QString ownTab = u"Application"_s;
const QString discardButton = u"Discard"_s;

std::vector<Application> applicationsWithATab()
{
    std::vector<Application> all = Application::all();
    all.erase(std::remove_if(all.begin(), all.end(),
                             [](const Application &application) {
                                 return !application.arguments.contains(u"--own-tab"_s);
                             }),
              all.end());
    return all;
}
} // namespace

/// Applications that have a tab of their own in the print dialog, and destroy it when they like.
class tst_ownapplication : public ApplicationTest
{
    Q_OBJECT

public:
    tst_ownapplication()
        : ApplicationTest(applicationsWithATab())
    {
    }

private Q_SLOTS:
    void initTestCase();

    void ownTabStays_data() { everyApplication(); }
    void ownTabStays();
    void dialogIsDestroyedWhileItIsOpen_data() { everyApplication(); }
    void dialogIsDestroyedWhileItIsOpen();

private: // NOLINT(readability-redundant-access-specifiers)
    PrintingSite mSite;
};

void tst_ownapplication::initTestCase()
{
    ApplicationTest::initTestCase();
    QCOMPARE(mSite.open(), QString());
}

void tst_ownapplication::ownTabStays()
{
    ApplicationSession session(mDisplay, application());
    RemotePrintDialog &dialog = session.dialog();
    const QStringList without = {u"Copies"_s, u"Options"_s, ownTab};
    const QStringList ours = {u"Cut Options"_s, u"Summary"_s};
    QVERIFY(session.openAt(u"plain"_s));
    QCOMPARE(dialog.tabs(), without);
    QVERIFY(dialog.pickPrinter(tape));
    QCOMPARE(dialog.tabs(), without + ours);
    QVERIFY(dialog.openPanel());
    QVERIFY(dialog.pickPrinter(u"plain"_s));
    QCOMPARE(dialog.tabs(), without);
    QVERIFY(dialog.turnTo(ownTab));
    QVERIFY(dialog.cancel());
    QCOMPARE(session.end(), QString());
    QCOMPARE(session.run().ownErrors(), QStringList());
    QCOMPARE(mSite.scheduler().jobIds(u"plain"_s), QList<int>());
}

void tst_ownapplication::dialogIsDestroyedWhileItIsOpen()
{
    const QList<int> before = mSite.scheduler().jobIds();
    ApplicationSession session(mDisplay, application());
    RemotePrintDialog &dialog = session.dialog();
    QVERIFY(session.openPanelAt(tape));
    QVERIFY(dialog.tick(halfCutBox));
    QVERIFY(dialog.turnTo(ownTab));
    QVERIFY(dialog.leaveBy(discardButton));

    QVERIFY(session.openPanelAt(tape));
    QVERIFY(dialog.shownChoices().contains(u"KvHalfCut=OFF"_s));
    QVERIFY(dialog.tick(halfCutBox));
    const QStringList shown = dialog.shownChoices();
    QVERIFY(dialog.print());
    QVERIFY(waitFor([&] { return mSite.scheduler().jobIds().size() == before.size() + 1; }));
    QCOMPARE(JobTicket::attributes(mSite.scheduler().jobIds().last(), u"Kv"_s), shown);
    QCOMPARE(session.end(), QString());
    QCOMPARE(session.run().ownErrors(), QStringList());
}

KV_CORE_TEST(tst_ownapplication)
#include "tst_ownapplication.moc"
