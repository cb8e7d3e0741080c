#include "AccessBus.h"
#include "ApplicationSession.h"
#include "AssistiveUser.h"
#include "DisplayServer.h"
#include "JobTicket.h"
#include "Waiting.h"
#include "host/PrintingSite.h"
#include "support/DialogNames.h"

#include <QTest>

#include <optional>

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
    bool startWithAccess(std::optional<ApplicationSession> &session,
                         const Application &application) const;

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
    QCOMPARE(mAccess.open(), QString());
}

/// Starts the application until it has told of itself: on a busy machine, Qt 5 may miss the answer
/// that assistive technology is there, and does not ask again.
bool tst_assistive::startWithAccess(std::optional<ApplicationSession> &session,
                                    const Application &application) const
{
    constexpr int mostStarts = 10;
    constexpr int patienceWithOneMs = 3'000;
    for (int starts = 0; starts < mostStarts; ++starts) {
        session.emplace(mDisplay, application,
                        ApplicationRun::Setting{.variables = {mAccess.variable()}});
        if (session->dialog().awaitApplication() &&
            waitFor([this] { return mAccess.hasApplications(); }, patienceWithOneMs)) {
            return true;
        }
    }
    return false;
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
    std::optional<ApplicationSession> started;
    QVERIFY(startWithAccess(started, mApplications[size_t(row)]));
    ApplicationSession &session = *started;
    RemotePrintDialog &dialog = session.dialog();
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
