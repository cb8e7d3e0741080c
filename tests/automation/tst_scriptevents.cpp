#include "BundleFolder.h"
#include "ScriptTalk.h"
#include "printcore/Beep.h"
#include "printcore/NotificationCenter.h"

#include <QApplication>
#include <QMessageBox>
#include <QPixmapCache>
#include <QTest>
#include <QTimer>

#include <malloc.h>

/// What panels tell while a script talks with them, and what they leave behind.
class tst_scriptevents : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eventsComeInOrder();
    void eventsComeOnce();
    void beepsAndNotifications();
    void notificationsOfTheDialogAreNoEvents();
    void beepsAreSoundedAgainAfterwards();
    void alertIsAnsweredAtOnce();
    void alertOfAnyPanel();
    void choiceThatThePrinterLacksIsTold();
    void panelThatRefuses();
    void manyPanelsLeaveNothingBehind();
};

void tst_scriptevents::eventsComeInOrder()
{
    ScriptTalk talk;
    QCOMPARE(
        changesIn(talk.show(u"all"_qs)),
        QStringList({u"KvCutLabel=1"_qs, u"KvCutAtEnd=OFF"_qs, u"KvMirror=OFF"_qs,
                     u"KvAutoTapeCut=OFF"_qs, u"KvHalfCut=OFF"_qs, u"KvChainPrint=OFF"_qs,
                     u"KvSpecialTape=OFF"_qs, u"KvRemoveBlkSpace=OFF"_qs, u"KvCutMark=OFF"_qs}));
    NSBeep();
    NotificationCenter::defaultCenter().postNotification(u"A"_qs, this);
    NSBeep();
    QCOMPARE(
        eventsOf(talk.click("mMirrorPrintChkBx")),
        QStringList({u"beep"_qs, u"notification A"_qs, u"beep"_qs, u"willChange KvMirror ON"_qs}));
}

void tst_scriptevents::eventsComeOnce()
{
    ScriptTalk talk;
    talk.show(u"tape"_qs);
    NSBeep();
    // What has happened is told by an error as well.
    const QJsonObject error = talk.ask("frobnicate");
    QVERIFY(!errorOf(error).isEmpty());
    QCOMPARE(eventsOf(error), QStringList{u"beep"_qs});
    QCOMPARE(eventsOf(talk.ask("state")), QStringList());
}

void tst_scriptevents::beepsAndNotifications()
{
    ScriptTalk talk;
    NSBeep();
    NotificationCenter::defaultCenter().postNotification(u"com.korvane.tape"_qs, nullptr);
    const QJsonObject answer = talk.open(u"tape"_qs);
    QCOMPARE(compact(answer.value(u"events")),
             QByteArray(R"([["beep"],["notification","com.korvane.tape"]])"));
}

void tst_scriptevents::notificationsOfTheDialogAreNoEvents()
{
    ScriptTalk talk;
    talk.open(u"tape"_qs);
    QCOMPARE(eventsOf(talk.paper(u"T24x100"_qs)), QStringList());
    QCOMPARE(eventsOf(talk.ask("view")), QStringList{u"resized"_qs});
}

void tst_scriptevents::beepsAreSoundedAgainAfterwards()
{
    int beeps = 0;
    setBeeper([&beeps] { ++beeps; });
    {
        ScriptTalk talk;
        NSBeep();
        QCOMPARE(beeps, 0);
        QCOMPARE(eventsOf(talk.ask("close")), QStringList{u"beep"_qs});
    }
    NSBeep();
    setBeeper({});
    QCOMPARE(beeps, 1);
    // Nobody listens any more, and nothing breaks.
    NotificationCenter::defaultCenter().postNotification(u"A"_qs, nullptr);
}

void tst_scriptevents::alertIsAnsweredAtOnce()
{
    ScriptTalk talk;
    talk.show(u"follow"_qs, {{u"paper"_qs, u"HS12x100"_qs}});
    QCOMPARE(eventsOf(talk.click("mCutEveryChkBx")),
             QStringList{u"willChange KvAutoTapeCut OFF"_qs});
    const QJsonObject answer = talk.click("mCutEveryChkBx");
    QVERIFY(answer.value(u"delivered").toBool());
    const QStringList events = eventsOf(answer);
    QCOMPARE(events.size(), 2);
    QVERIFY2(events.first().startsWith(u"alert Heat-shrink tube is loaded. "),
             qPrintable(events.first()));
    QCOMPARE(events.last(), u"willChange KvAutoTapeCut ON"_qs);
    QCOMPARE(talk.box("mCutEveryChkBx"), 1);
    QVERIFY(!QApplication::activeModalWidget());
}

void tst_scriptevents::alertOfAnyPanel()
{
    ScriptTalk talk;
    talk.show(u"tape"_qs);
    int answered = -1;
    QTimer::singleShot(0, qApp, [&answered] {
        QMessageBox alert(QMessageBox::Warning, u"title"_qs, u"text"_qs);
        alert.setInformativeText(u"The tape is nearly used up."_qs);
        alert.addButton(u"OK"_qs, QMessageBox::AcceptRole);
        alert.addButton(u"Stop"_qs, QMessageBox::RejectRole);
        alert.exec();
        answered = int(alert.buttons().indexOf(alert.clickedButton()));
    });
    const QJsonObject answer = talk.ask("hide");
    QCOMPARE(eventsOf(answer), QStringList{u"alert The tape is nearly used up."_qs});
    QCOMPARE(answered, 0);
}

void tst_scriptevents::choiceThatThePrinterLacksIsTold()
{
    const BundleFolder bundles;
    QVERIFY(bundles.addOdd(u"Odd.pde"_qs, u"Lying"_qs));
    ScriptTalk talk(bundles.path());
    talk.open(u"tape"_qs);
    const QJsonObject answer = talk.ask("save");
    QCOMPARE(changesIn(answer), QStringList({u"KvMirror=ON"_qs, u"KvMirror=ON"_qs,
                                             u"KvMirror=MAYBE"_qs, u"KvNone=ON"_qs}));
    QCOMPARE(compact(membersOf(talk.ask("summary"))), QByteArray(R"({"lines":{},"order":[]})"));
}

void tst_scriptevents::panelThatRefuses()
{
    const BundleFolder refusing;
    QVERIFY(refusing.addOdd(u"Odd.pde"_qs, u"Refusing"_qs));
    ScriptTalk talk(refusing.path());
    talk.open(u"tape"_qs);
    QCOMPARE(membersOf(talk.ask("print")), QJsonObject({{u"answer"_qs, false}}));
    QCOMPARE(membersOf(talk.ask("hide")), QJsonObject({{u"answer"_qs, true}}));
    QVERIFY(!errorOf(talk.ask("state")).isEmpty());

    const BundleFolder staying;
    QVERIFY(staying.addOdd(u"Odd.pde"_qs, u"Staying"_qs));
    ScriptTalk stayingTalk(staying.path());
    stayingTalk.open(u"tape"_qs);
    QCOMPARE(membersOf(stayingTalk.ask("hide")), QJsonObject({{u"answer"_qs, false}}));

    const BundleFolder unsaving;
    QVERIFY(unsaving.addOdd(u"Odd.pde"_qs, u"Unsaving"_qs));
    ScriptTalk other(unsaving.path());
    other.open(u"tape"_qs);
    QCOMPARE(membersOf(other.ask("save")), QJsonObject({{u"answer"_qs, false}}));
}

void tst_scriptevents::manyPanelsLeaveNothingBehind()
{
    ScriptTalk talk;
    const auto round = [&talk] {
        talk.show(u"all"_qs);
        talk.ask("preset", {{u"tag"_qs, 9}});
        talk.ask("state");
        talk.ask("close");
    };
    // Pictures of icons are kept for a while, and then are not.
    QPixmapCache::setCacheLimit(0);
    for (int i = 0; i < 20; ++i) {
        round();
    }
    const auto widgets = QApplication::allWidgets().size();
    const std::size_t memory = mallinfo2().uordblks;
    constexpr int rounds = 200;
    for (int i = 0; i < rounds; ++i) {
        round();
    }
    QCOMPARE(QApplication::allWidgets().size(), widgets);
    // In the sanitizer build nothing is counted here, and leaks are found at the end.
    constexpr std::size_t mostBytesPerRound = 100;
    const std::size_t growth = std::max(mallinfo2().uordblks, memory) - memory;
    QVERIFY2(growth < rounds * mostBytesPerRound, qPrintable(QString::number(growth)));
    QVERIFY(!talk.hasFailed());
}

KV_TEST(tst_scriptevents)
#include "tst_scriptevents.moc"
