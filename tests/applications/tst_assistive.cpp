// SPDX-License-Identifier: Apache-2.0
#include "AccessBus.h"
#include "ApplicationSession.h"
#include "AssistiveUser.h"
#include "DisplayServer.h"
#include "JobTicket.h"
#include "Waiting.h"
#include "host/PrintingSite.h"
#include "support/DialogNames.h"

#include <QTest>

namespace {
const QString toggle = QStringLiteral("Toggle");
} // namespace

/// The panel in the hands of a user of assistive technology, who works it over the bus.
class tst_assistive : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void jobIsWhatWasChosenOverTheBus_data();
    void jobIsWhatWasChosenOverTheBus();

private: // NOLINT(readability-redundant-access-specifiers)
    PrintingSite mSite;
    DisplayServer mDisplay;
    AccessBus mAccess;
    std::vector<Application> mApplications = Application::all();
};

void tst_assistive::initTestCase()
{
    QCOMPARE(Application::whatIsMissing(mApplications), QString());
    QCOMPARE(mSite.open(), QString());
    QCOMPARE(mDisplay.open(), QString());
    QCOMPARE(mAccess.open(mDisplay), QString());
}

void tst_assistive::jobIsWhatWasChosenOverTheBus_data()
{
    QTest::addColumn<int>("row");
    for (size_t i = 0; i < mApplications.size(); ++i) {
        QTest::newRow(mApplications[i].name) << int(i);
    }
}

void tst_assistive::jobIsWhatWasChosenOverTheBus()
{
    QFETCH(const int, row);
    ApplicationSession session(mDisplay, mApplications[size_t(row)],
                               ApplicationRun::Setting{.variables = {mAccess.variable()}});
    RemotePrintDialog &dialog = session.dialog();
    QVERIFY(dialog.awaitApplication());
    QVERIFY(waitFor([this] { return mAccess.hasApplications(); }));
    QVERIFY(session.openPanelAt(QStringLiteral("all")));
    const AssistiveUser user(mAccess.bus());
    QVERIFY(waitFor([&] { return dialog.isEnabled(QStringLiteral("mCutEveryTxBx")); }));

    // Special tape rules half cut out for as long as it is ticked.
    QVERIFY(user.act(QStringLiteral("Special Tape"), toggle));
    QVERIFY(waitFor([&] { return !dialog.isEnabled(halfCutBox); }));
    QVERIFY(user.act(QStringLiteral("Special Tape"), toggle));
    QVERIFY(waitFor([&] { return dialog.isEnabled(halfCutBox); }));

    QVERIFY(user.act(QStringLiteral("Half Cut"), toggle));
    QVERIFY(
        user.replaceText(QStringLiteral("Number of labels between cuts"), QStringLiteral("45")));
    QVERIFY(waitFor([&] {
        const QStringList shown = dialog.shownChoices();
        return shown.contains(halfCutOn) && shown.contains(QStringLiteral("KvCutLabel=45"));
    }));
    const QStringList shown = dialog.shownChoices();
    QVERIFY(dialog.summary().contains(QStringLiteral("Half Cut: Yes")));

    const QList<int> before = mSite.scheduler().jobIds();
    QVERIFY(dialog.print());
    QVERIFY(waitFor([&] { return mSite.scheduler().jobIds().size() == before.size() + 1; }));
    const int job = mSite.scheduler().jobIds().last();
    QCOMPARE(JobTicket::attributes(job, QStringLiteral("Kv")), shown);
    QCOMPARE(session.end(), QString());
    QCOMPARE(session.run().ownErrors(), QStringList());
}

KV_CORE_TEST(tst_assistive)
#include "tst_assistive.moc"
