// SPDX-License-Identifier: Apache-2.0
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
    QCOMPARE(changesIn(talk.show(u"all"_s)),
             QStringList({u"KvCutLabel=1"_s, u"KvCutAtEnd=OFF"_s, u"KvMirror=OFF"_s,
                          u"KvAutoTapeCut=OFF"_s, u"KvHalfCut=OFF"_s, u"KvChainPrint=OFF"_s,
                          u"KvSpecialTape=OFF"_s, u"KvRemoveBlkSpace=OFF"_s, u"KvCutMark=OFF"_s}));
    NSBeep();
    NotificationCenter::defaultCenter().postNotification(u"A"_s, this);
    NSBeep();
    QCOMPARE(eventsOf(talk.click("mMirrorPrintChkBx")),
             QStringList({u"beep"_s, u"notification A"_s, u"beep"_s, u"willChange KvMirror ON"_s}));
}

void tst_scriptevents::eventsComeOnce()
{
    ShownPanel talk(u"tape"_s);
    NSBeep();
    // What has happened is told by an error as well.
    const QJsonObject error = talk.ask("frobnicate");
    QVERIFY(!errorOf(error).isEmpty());
    QCOMPARE(eventsOf(error), QStringList{u"beep"_s});
    QCOMPARE(eventsOf(talk.ask("state")), QStringList());
}

void tst_scriptevents::beepsAndNotifications()
{
    ScriptTalk talk;
    NSBeep();
    NotificationCenter::defaultCenter().postNotification(u"com.korvane.tape"_s, nullptr);
    const QJsonObject answer = talk.open(u"tape"_s);
    QCOMPARE(compact(answer.value(u"events")),
             QByteArray(R"([["beep"],["notification","com.korvane.tape"]])"));
}

void tst_scriptevents::notificationsOfTheDialogAreNoEvents()
{
    ScriptTalk talk;
    talk.open(u"tape"_s);
    QCOMPARE(eventsOf(talk.paper(u"T24x100"_s)), QStringList());
    QCOMPARE(eventsOf(talk.ask("view")), QStringList{u"resized"_s});
}

void tst_scriptevents::beepsAreSoundedAgainAfterwards()
{
    int beeps = 0;
    setBeeper([&beeps] { ++beeps; });
    {
        ScriptTalk talk;
        NSBeep();
        QCOMPARE(beeps, 0);
        QCOMPARE(eventsOf(talk.ask("close")), QStringList{u"beep"_s});
    }
    NSBeep();
    setBeeper({});
    QCOMPARE(beeps, 1);
    // Nobody listens any more, and nothing breaks.
    NotificationCenter::defaultCenter().postNotification(u"A"_s, nullptr);
}

void tst_scriptevents::alertIsAnsweredAtOnce()
{
    ShownPanel talk(u"follow"_s, {{u"paper"_s, u"HS12x100"_s}});
    QCOMPARE(eventsOf(talk.click("mCutEveryChkBx")),
             QStringList{u"willChange KvAutoTapeCut OFF"_s});
    const QJsonObject answer = talk.click("mCutEveryChkBx");
    QVERIFY(answer.value(u"delivered").toBool());
    const QStringList events = eventsOf(answer);
    QCOMPARE(events.size(), 2);
    QVERIFY2(events.first().startsWith(u"alert Heat-shrink tube is loaded. "),
             qPrintable(events.first()));
    QCOMPARE(events.last(), u"willChange KvAutoTapeCut ON"_s);
    QCOMPARE(talk.box("mCutEveryChkBx"), 1);
    QVERIFY(!QApplication::activeModalWidget());
}

void tst_scriptevents::alertOfAnyPanel()
{
    ShownPanel talk(u"tape"_s);
    int answered = -1;
    QTimer::singleShot(0, qApp, [&answered] {
        QMessageBox alert(QMessageBox::Warning, u"title"_s, u"text"_s);
        alert.setInformativeText(u"The tape is nearly used up."_s);
        alert.addButton(u"OK"_s, QMessageBox::AcceptRole);
        alert.addButton(u"Stop"_s, QMessageBox::RejectRole);
        alert.exec();
        alert.exec();
        answered = int(alert.buttons().indexOf(alert.clickedButton()));
    });
    const QJsonObject answer = talk.ask("hide");
    const QString told = u"alert The tape is nearly used up."_s;
    QCOMPARE(eventsOf(answer), QStringList({told, told}));
    QCOMPARE(answered, 0);
}

void tst_scriptevents::choiceThatThePrinterLacksIsTold()
{
    const BundleFolder bundles;
    QVERIFY(bundles.addOdd(u"Odd.pde"_s, u"Lying"_s));
    ScriptTalk talk(bundles.path());
    talk.open(u"tape"_s);
    const QJsonObject answer = talk.ask("save");
    QCOMPARE(changesIn(answer), QStringList({u"KvMirror=ON"_s, u"KvMirror=ON"_s,
                                             u"KvMirror=MAYBE"_s, u"KvNone=ON"_s}));
    QCOMPARE(compact(membersOf(talk.ask("summary"))), QByteArray(R"({"lines":{},"order":[]})"));
}

void tst_scriptevents::panelThatRefuses()
{
    const BundleFolder refusing;
    QVERIFY(refusing.addOdd(u"Odd.pde"_s, u"Refusing"_s));
    ScriptTalk talk(refusing.path());
    talk.open(u"tape"_s);
    QCOMPARE(membersOf(talk.ask("print")), QJsonObject({{u"answer"_s, false}}));
    QCOMPARE(membersOf(talk.ask("hide")), QJsonObject({{u"answer"_s, true}}));
    QVERIFY(!errorOf(talk.ask("state")).isEmpty());

    const BundleFolder staying;
    QVERIFY(staying.addOdd(u"Odd.pde"_s, u"Staying"_s));
    ScriptTalk stayingTalk(staying.path());
    stayingTalk.open(u"tape"_s);
    QCOMPARE(membersOf(stayingTalk.ask("hide")), QJsonObject({{u"answer"_s, false}}));

    const BundleFolder unsaving;
    QVERIFY(unsaving.addOdd(u"Odd.pde"_s, u"Unsaving"_s));
    ScriptTalk other(unsaving.path());
    other.open(u"tape"_s);
    QCOMPARE(membersOf(other.ask("save")), QJsonObject({{u"answer"_s, false}}));
}

void tst_scriptevents::manyPanelsLeaveNothingBehind()
{
    ScriptTalk talk;
    const auto round = [&talk] {
        talk.show(u"all"_s);
        talk.ask("preset", {{u"tag"_s, 9}});
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
