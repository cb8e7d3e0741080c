// SPDX-License-Identifier: Apache-2.0
#include "AccessBus.h"
#include "ApplicationSession.h"
#include "ApplicationTest.h"
#include "AssistiveUser.h"
#include "JobTicket.h"
#include "Waiting.h"
#include "host/PrintingSite.h"
#include "support/DialogNames.h"

#include <QTest>

namespace {
const QString toggle = u"Toggle"_s;
} // namespace

/// The panel in the hands of a user of assistive technology, who works it over the bus.
class tst_assistive : public ApplicationTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void jobIsWhatWasChosenOverTheBus_data() { everyApplication(); }
    void jobIsWhatWasChosenOverTheBus();

private: // NOLINT(readability-redundant-access-specifiers)
    AccessBus mAccess;

    PrintingSite mSite;
};

void tst_assistive::initTestCase()
{
    ApplicationTest::initTestCase();
    QCOMPARE(mSite.open(), QString());
    QCOMPARE(mAccess.open(mDisplay), QString());
}

void tst_assistive::jobIsWhatWasChosenOverTheBus()
{
    ApplicationSession session(mDisplay, application(),
                               ApplicationRun::Setting{.variables = {mAccess.variable()}});
    RemotePrintDialog &dialog = session.dialog();
    QVERIFY(dialog.awaitApplication());
    QVERIFY(waitFor([this] { return mAccess.hasApplications(); }));
    QVERIFY(session.openPanelAt(u"all"_s));
    const AssistiveUser user(mAccess.bus());
    QVERIFY(waitFor([&] { return dialog.isEnabled(u"mCutEveryTxBx"_s); }));

    // Special tape rules half cut out for as long as it is ticked.
    QVERIFY(user.act(u"Special Tape"_s, toggle));
    QVERIFY(waitFor([&] { return !dialog.isEnabled(halfCutBox); }));
    QVERIFY(user.act(u"Special Tape"_s, toggle));
    QVERIFY(waitFor([&] { return dialog.isEnabled(halfCutBox); }));

    QVERIFY(user.act(u"Half Cut"_s, toggle));
    QVERIFY(user.replaceText(u"Number of labels between cuts"_s, u"45"_s));
    QVERIFY(waitFor([&] {
        const QStringList shown = dialog.shownChoices();
        return shown.contains(halfCutOn) && shown.contains(u"KvCutLabel=45"_s);
    }));
    const QStringList shown = dialog.shownChoices();
    QVERIFY(dialog.summary().contains(u"Half Cut: Yes"_s));

    const QList<int> before = mSite.scheduler().jobIds();
    QVERIFY(dialog.print());
    QVERIFY(waitFor([&] { return mSite.scheduler().jobIds().size() == before.size() + 1; }));
    const int job = mSite.scheduler().jobIds().last();
    QCOMPARE(JobTicket::attributes(job, u"Kv"_s), shown);
    QCOMPARE(session.end(), QString());
    QCOMPARE(session.run().ownErrors(), QStringList());
}

KV_CORE_TEST(tst_assistive)
#include "tst_assistive.moc"
