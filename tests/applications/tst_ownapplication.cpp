// SPDX-License-Identifier: Apache-2.0
#include "ApplicationSession.h"
#include "DisplayServer.h"
#include "JobTicket.h"
#include "Waiting.h"
#include "host/PrintingSite.h"
#include "support/DialogNames.h"

#include <QTest>

namespace {
/// The application's tab, and the button in it that destroys the dialog.
const QString ownTab = QStringLiteral("Application");
const QString discardButton = QStringLiteral("Discard");

std::vector<Application> applicationsWithATab()
{
    std::vector<Application> all = Application::all();
    all.erase(std::remove_if(all.begin(), all.end(),
                             [](const Application &application) {
                                 return !application.arguments.contains(
                                     QStringLiteral("--own-tab"));
                             }),
              all.end());
    return all;
}
} // namespace

/// Applications that have a tab of their own in the print dialog, and destroy it when they like.
class tst_ownapplication : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void ownTabStays_data() { everyApplication(); }
    void ownTabStays();
    void dialogIsDestroyedWhileItIsOpen_data() { everyApplication(); }
    void dialogIsDestroyedWhileItIsOpen();

private: // NOLINT(readability-redundant-access-specifiers)
    void everyApplication() const;
    const Application &application() const;

    PrintingSite mSite;
    DisplayServer mDisplay;
    std::vector<Application> mApplications = applicationsWithATab();
};

void tst_ownapplication::initTestCase()
{
    QCOMPARE(Application::whatIsMissing(mApplications), QString());
    QCOMPARE(mSite.open(), QString());
    QCOMPARE(mDisplay.open(), QString());
}

void tst_ownapplication::everyApplication() const
{
    QTest::addColumn<int>("row");
    for (size_t i = 0; i < mApplications.size(); ++i) {
        QTest::newRow(mApplications[i].name) << int(i);
    }
}

const Application &tst_ownapplication::application() const
{
    const auto *row = static_cast<const int *>(QTest::qData("row", qMetaTypeId<int>()));
    return mApplications[size_t(*row)];
}

void tst_ownapplication::ownTabStays()
{
    ApplicationSession session(mDisplay, application());
    RemotePrintDialog &dialog = session.dialog();
    const QStringList without = {QStringLiteral("Copies"), QStringLiteral("Options"), ownTab};
    const QStringList ours = {QStringLiteral("Cut Options"), QStringLiteral("Summary")};
    QVERIFY(session.openAt(QStringLiteral("plain")));
    QCOMPARE(dialog.tabs(), without);
    QVERIFY(dialog.pickPrinter(tape));
    QCOMPARE(dialog.tabs(), without + ours);
    QVERIFY(dialog.openPanel());
    QVERIFY(dialog.pickPrinter(QStringLiteral("plain")));
    QCOMPARE(dialog.tabs(), without);
    QVERIFY(dialog.turnTo(ownTab));
    QVERIFY(dialog.cancel());
    QCOMPARE(session.end(), QString());
    QCOMPARE(session.run().ownErrors(), QStringList());
    QCOMPARE(mSite.scheduler().jobIds(QStringLiteral("plain")), QList<int>());
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
    QVERIFY(dialog.shownChoices().contains(QStringLiteral("KvHalfCut=OFF")));
    QVERIFY(dialog.tick(halfCutBox));
    const QStringList shown = dialog.shownChoices();
    QVERIFY(dialog.print());
    QVERIFY(waitFor([&] { return mSite.scheduler().jobIds().size() == before.size() + 1; }));
    QCOMPARE(JobTicket::attributes(mSite.scheduler().jobIds().last(), QStringLiteral("Kv")), shown);
    QCOMPARE(session.end(), QString());
    QCOMPARE(session.run().ownErrors(), QStringList());
}

KV_CORE_TEST(tst_ownapplication)
#include "tst_ownapplication.moc"
