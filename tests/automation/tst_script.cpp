// SPDX-License-Identifier: Apache-2.0
#include "PrintingSite.h"
#include "ScriptTalk.h"

#include <QApplication>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

namespace {
/// What is told when a panel of "tape" is first shown on tape.
const QStringList tapeDefaults{u"KvMirror=OFF"_s,      u"KvAutoTapeCut=ON"_s,
                               u"KvHalfCut=OFF"_s,     u"KvChainPrint=OFF"_s,
                               u"KvSpecialTape=OFF"_s, u"KvRemoveBlkSpace=OFF"_s};

QJsonObject delivered(bool isDelivered)
{
    return {{u"delivered"_s, isDelivered}};
}

/// What a number field takes: the user replaces its text, or clicks an arrow.
QJsonObject typed(ScriptTalk &talk, const QString &text)
{
    return talk.ask("type", {{u"text"_s, text}});
}

QJsonObject stepped(ScriptTalk &talk, int by)
{
    return talk.ask("step", {{u"by"_s, by}});
}

QJsonObject picked(ScriptTalk &talk, int tag)
{
    return talk.ask("preset", {{u"tag"_s, tag}});
}

QJsonObject chosen(ScriptTalk &talk, const QString &key, const QString &choice)
{
    return talk.ask("choose", {{u"key"_s, key}, {u"choice"_s, choice}});
}

/// The view of the panel that is open; null when there is none.
const QWidget *panelViewOnScreen()
{
    const QWidgetList widgets = QApplication::allWidgets();
    for (const QWidget *widget : widgets) {
        if (widget->objectName() == u"kPDEView") {
            return widget;
        }
    }
    return nullptr;
}
} // namespace

/// The commands of a conversation, what they answer and what the panel tells meanwhile.
class tst_script : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void demonstration();
    void viewIsMadeOnce();
    void showTellsTheDefaultsOnce();
    void hide();
    void click();
    void clickThatReachesNoBox_data();
    void clickThatReachesNoBox();
    void preset();
    void presetThatCannotBePicked();
    void type_data();
    void type();
    void step();
    void countThatCannotBeChanged();
    void paperChangesTheRules();
    void paperHeight();
    void paperWithoutAName();
    void choose();
    void chooseReachesTheControlsWithRestore();
    void chooseWhatThePrinterLacks();
    void saveAndRestore();
    void keys();
    void keysBeforeTheView();
    void print();
    void printTellsUnmarkedOptions();
    void summary();
    void summaryBeforeAnySelection();
    void screenshot();
    void closeAndOpenAgain();
};

void tst_script::demonstration()
{
    ScriptTalk talk;
    QCOMPARE(compact(talk.open(u"all"_s, {{u"locale"_s, u"none"_s}})),
             QByteArray(R"({"events":[],"isRV":false,)"
                        R"("kind":"jp.co.vendor.printer.cups.pde.OptionPDEKind",)"
                        R"("name":"OP_PANEL_NAME","ok":true,"panels":1,"usb":false})"));
    QCOMPARE(compact(talk.ask("view")),
             QByteArray(R"({"events":[["resized"]],"height":292,"ok":true,"width":480})"));
    QVERIFY(isOK(talk.ask("show")));
    QCOMPARE(
        compact(talk.click("mHalfCutChkBx")),
        QByteArray(R"({"delivered":true,"events":[["willChange","KvHalfCut","ON"]],"ok":true})"));
    QVERIFY(isOK(talk.ask("state")));
    QVERIFY(!talk.hasFailed());
}

void tst_script::viewIsMadeOnce()
{
    ScriptTalk talk;
    QCOMPARE(eventsOf(talk.open(u"label"_s)), QStringList());
    const QJsonObject size{{u"width"_s, 480}, {u"height"_s, 150}};
    const QJsonObject first = talk.ask("view");
    QCOMPARE(membersOf(first), size);
    // The view is a part of the dialog's window, as it is in a dialog.
    const QWidget *view = panelViewOnScreen();
    QVERIFY(view && view->isVisible() && !view->isWindow());
    QCOMPARE(eventsOf(first), QStringList{u"resized"_s});
    const QJsonObject second = talk.ask("view");
    QCOMPARE(membersOf(second), size);
    QCOMPARE(eventsOf(second), QStringList());
}

void tst_script::showTellsTheDefaultsOnce()
{
    ScriptTalk talk;
    const QJsonObject first = talk.show(u"tape"_s);
    QCOMPARE(membersOf(first), QJsonObject());
    QCOMPARE(changesIn(first), tapeDefaults);
    const QJsonObject second = talk.ask("show");
    QVERIFY(isOK(second));
    QCOMPARE(eventsOf(second), QStringList());
}

void tst_script::hide()
{
    ShownPanel talk(u"tape"_s);
    const QJsonObject answer = talk.ask("hide");
    QVERIFY(isOK(answer));
    QCOMPARE(membersOf(answer), QJsonObject({{u"answer"_s, true}}));
    QCOMPARE(eventsOf(answer), QStringList());
}

void tst_script::click()
{
    ShownPanel talk(u"tape"_s);
    const QJsonObject on = talk.click("mSpecialTapeChkBx");
    QCOMPARE(membersOf(on), delivered(true));
    QCOMPARE(eventsOf(on), QStringList{u"willChange KvSpecialTape ON"_s});
    QCOMPARE(talk.box("mSpecialTapeChkBx"), 1);
    QCOMPARE(talk.state("controls.mAutoCutChkBx.enabled"), QJsonValue(false));
    const QJsonObject off = talk.click("mSpecialTapeChkBx");
    QCOMPARE(eventsOf(off), QStringList{u"willChange KvSpecialTape OFF"_s});
    QCOMPARE(talk.box("mSpecialTapeChkBx"), 0);
    QCOMPARE(talk.state("controls.mAutoCutChkBx.enabled"), QJsonValue(true));
}

void tst_script::clickThatReachesNoBox_data()
{
    const TestTable<QString> table("control");
    table.add("hidden", u"mCutMarkChkBx"_s);
    table.add("disabled", u"mHalfCutChkBx"_s);
    table.add("no check box", u"mOptionPopUpButton"_s);
    table.add("a field", u"mCutEveryTxBx"_s);
    table.add("no control", u"mFrobnicateChkBx"_s);
    table.add("no name", QString());
}

void tst_script::clickThatReachesNoBox()
{
    QFETCH(const QString, control);
    ShownPanel talk(u"tape"_s, {{u"paper"_s, u"FL21x45"_s}});
    const QByteArray before = compact(talk.state());
    const QJsonObject answer = talk.click(qPrintable(control));
    QVERIFY(isOK(answer));
    QCOMPARE(membersOf(answer), delivered(false));
    QCOMPARE(eventsOf(answer), QStringList());
    QCOMPARE(compact(talk.state()), before);
}

void tst_script::preset()
{
    ShownPanel talk(u"tape"_s);
    talk.click("mMirrorPrintChkBx");
    // Auto cut, half cut and chain printing.
    const QJsonObject answer = picked(talk, 12);
    QCOMPARE(membersOf(answer), delivered(true));
    QCOMPARE(eventsOf(answer), QStringList());
    QCOMPARE(talk.state("popup.selected").toInt(), 12);
    const std::pair<const char *, int> boxes[] = {
        {"mAutoCutChkBx", 1},     {"mHalfCutChkBx", 1},     {"mChainPrintChkBx", 1},
        {"mSpecialTapeChkBx", 0}, {"mMirrorPrintChkBx", 0},
    };
    for (const auto &[box, state] : boxes) {
        QCOMPARE(talk.box(box), state);
    }
    // The item that is selected can be picked once more.
    talk.click("mMirrorPrintChkBx");
    QCOMPARE(membersOf(picked(talk, 12)), delivered(true));
    QCOMPARE(talk.box("mMirrorPrintChkBx"), 0);
}

void tst_script::presetThatCannotBePicked()
{
    ShownPanel talk(u"tape"_s, {{u"paper"_s, u"FL21x45"_s}});
    const QByteArray before = compact(talk.state());
    // Not in the menu, never in one, and greyed on flags.
    for (const int tag : {4, 0, -1, 18, 7, 13}) {
        const QJsonObject answer = picked(talk, tag);
        QVERIFY(isOK(answer));
        QCOMPARE(membersOf(answer), delivered(false));
        QCOMPARE(eventsOf(answer), QStringList());
        QCOMPARE(compact(talk.state()), before);
        QVERIFY(!QApplication::activePopupWidget());
    }
    QCOMPARE(membersOf(picked(talk, 5)), delivered(true));
}

void tst_script::type_data()
{
    const TestTable<QString, int> table("text", "count");
    table.add("a count", u"42"_s, 42);
    table.add("the same count", u"1"_s, 1);
    table.add("the largest", u"99"_s, 99);
    table.add("too large", u"100"_s, 99);
    table.add("none", u"0"_s, 1);
    table.add("negative", u"-7"_s, 1);
    table.add("no number", u"many"_s, 1);
    table.add("a number in front", u"7 labels"_s, 7);
    table.add("nothing", QString(), 1);
    table.add("letters of the world", u"größer"_s, 1);
}

void tst_script::type()
{
    QFETCH(const QString, text);
    QFETCH(const int, count);
    ShownPanel talk(u"label"_s);
    const QJsonObject answer = typed(talk, text);
    QCOMPARE(membersOf(answer), delivered(true));
    QCOMPARE(eventsOf(answer), QStringList{u"willChange KvCutLabel %1"_s.arg(count)});
    QCOMPARE(talk.state("controls.mCutEveryTxBx.text").toString(), QString::number(count));
    QCOMPARE(talk.state("controls.mCutEveryStpr.value").toInt(), count);
    QCOMPARE(talk.state("marks.KvCutLabel").toString(), QString::number(count));
}

void tst_script::step()
{
    ShownPanel talk(u"label"_s);
    const QJsonObject up = stepped(talk, 1);
    QCOMPARE(membersOf(up), delivered(true));
    QCOMPARE(eventsOf(up), QStringList{u"willChange KvCutLabel 2"_s});
    QCOMPARE(eventsOf(stepped(talk, -1)), QStringList{u"willChange KvCutLabel 1"_s});
    // There are no fewer, and no more than 99.
    QCOMPARE(membersOf(stepped(talk, -1)), delivered(true));
    QCOMPARE(talk.state("controls.mCutEveryTxBx.text").toString(), u"1"_s);
    typed(talk, u"99"_s);
    QCOMPARE(membersOf(stepped(talk, 1)), delivered(true));
    QCOMPARE(talk.state("marks.KvCutLabel").toString(), u"99"_s);
}

void tst_script::countThatCannotBeChanged()
{
    ScriptTalk disabled;
    disabled.show(u"label"_s);
    disabled.click("mCutEveryChkBx");
    ScriptTalk hidden;
    hidden.show(u"tape"_s);
    for (ScriptTalk *talk : {&disabled, &hidden}) {
        const QByteArray before = compact(talk->state());
        QCOMPARE(membersOf(typed(*talk, u"5"_s)), delivered(false));
        QCOMPARE(membersOf(stepped(*talk, 1)), delivered(false));
        QCOMPARE(compact(talk->state()), before);
    }
}

void tst_script::paperChangesTheRules()
{
    ShownPanel talk(u"tape"_s);
    const QJsonObject answer = talk.paper(u"FL21x45"_s);
    QVERIFY(isOK(answer));
    QCOMPARE(membersOf(answer), QJsonObject());
    QCOMPARE(eventsOf(answer), QStringList());
    QCOMPARE(talk.state("controls.mHalfCutChkBx.enabled"), QJsonValue(false));
    talk.paper(u"T12x100"_s);
    QCOMPARE(talk.state("controls.mHalfCutChkBx.enabled"), QJsonValue(true));
    // Before the view, too.
    ScriptTalk early;
    early.open(u"tape"_s);
    early.paper(u"FL24x60"_s);
    early.ask("view");
    early.ask("show");
    QCOMPARE(early.state("flags.mTapeState").toInt(), 1);
}

void tst_script::paperHeight()
{
    ShownPanel talk(u"all"_s);
    const auto tapeState = [&talk](const QJsonObject &paper) {
        talk.ask("paper", paper);
        talk.ask("save");
        return talk.state("flags.mTapeState").toInt();
    };
    const QString label = u"DC24x24"_s;
    QCOMPARE(tapeState({{u"name"_s, label}}), 1);
    // A paper of no known height tells nothing of its kind.
    QCOMPARE(tapeState({{u"name"_s, label}, {u"height"_s, 0}}), 0);
    QCOMPARE(tapeState({{u"name"_s, label}, {u"height"_s, 68.5}}), 1);
    QCOMPARE(tapeState({{u"name"_s, QJsonValue()}}), 0);
    QCOMPARE(tapeState({{u"name"_s, QJsonValue()}, {u"height"_s, 100}}), 2);
    QCOMPARE(tapeState({{u"name"_s, u"DC99x99"_s}}), 0);
}

void tst_script::paperWithoutAName()
{
    ShownPanel talk(u"tape"_s, {{u"paper"_s, u"FL21x45"_s}});
    QVERIFY(isOK(talk.paper(QString())));
    QCOMPARE(talk.state("controls.mHalfCutChkBx.enabled"), QJsonValue(true));
    QCOMPARE(talk.state("popup.disabled").toArray().size(), 0);
}

void tst_script::choose()
{
    ShownPanel talk(u"tape"_s);
    const QJsonObject answer = chosen(talk, u"KvHalfCut"_s, u"ON"_s);
    QVERIFY(isOK(answer));
    QCOMPARE(membersOf(answer), QJsonObject());
    QCOMPARE(eventsOf(answer), QStringList());
    QCOMPARE(talk.state("marks.KvHalfCut"), QJsonValue(u"ON"_s));
    QCOMPARE(talk.state("selections.mHalfCut_Selection"), QJsonValue(u"ON"_s));
    // An option that is no panel's business.
    QVERIFY(isOK(chosen(talk, u"PageSize"_s, u"FL21x45"_s)));
    QCOMPARE(talk.state("popup.disabled").toArray().size(), 0);
}

void tst_script::chooseReachesTheControlsWithRestore()
{
    ShownPanel talk(u"tape"_s);
    chosen(talk, u"KvHalfCut"_s, u"ON"_s);
    QCOMPARE(talk.box("mHalfCutChkBx"), 0);
    talk.ask("restore");
    QCOMPARE(talk.box("mHalfCutChkBx"), 1);
}

void tst_script::chooseWhatThePrinterLacks()
{
    ShownPanel talk(u"tape"_s);
    const QByteArray before = compact(talk.state());
    QCOMPARE(errorOf(chosen(talk, u"KvHalfCut"_s, u"MAYBE"_s)),
             u"the printer's PPD has no choice KvHalfCut=MAYBE"_s);
    QCOMPARE(errorOf(chosen(talk, u"KvCutMark"_s, u"ON"_s)),
             u"the printer's PPD has no choice KvCutMark=ON"_s);
    QCOMPARE(compact(talk.state()), before);
    QVERIFY(talk.hasFailed());
}

void tst_script::saveAndRestore()
{
    ShownPanel talk(u"tape"_s);
    // Auto cut and chain printing.
    picked(talk, 10);
    const QJsonObject saved = talk.ask("save");
    QCOMPARE(membersOf(saved), QJsonObject({{u"answer"_s, true}}));
    QCOMPARE(changesIn(saved), QStringList({u"KvMirror=OFF"_s, u"KvAutoTapeCut=ON"_s,
                                            u"KvHalfCut=OFF"_s, u"KvChainPrint=ON"_s,
                                            u"KvSpecialTape=OFF"_s, u"KvRemoveBlkSpace=OFF"_s}));
    QCOMPARE(talk.state("marks.KvChainPrint"), QJsonValue(u"ON"_s));
    picked(talk, 5);
    QCOMPARE(talk.box("mChainPrintChkBx"), 0);
    const QJsonObject restored = talk.ask("restore");
    QCOMPARE(membersOf(restored), QJsonObject({{u"answer"_s, true}}));
    QCOMPARE(eventsOf(restored), QStringList());
    QCOMPARE(talk.box("mChainPrintChkBx"), 1);
    QCOMPARE(talk.box("mAutoCutChkBx"), 1);
}

void tst_script::keys()
{
    ShownPanel talk(u"follow"_s);
    const QJsonObject answer = talk.ask("keys");
    QVERIFY(isOK(answer));
    QCOMPARE(compact(membersOf(answer)),
             QByteArray(R"({"keys":["KvCutLabel","KvMirror","KvAutoTapeCut","KvHalfCut",)"
                        R"("KvChainPrint"]})"));
}

void tst_script::keysBeforeTheView()
{
    ScriptTalk talk;
    talk.open(u"label"_s);
    const QJsonObject first = talk.ask("keys");
    QCOMPARE(compact(first.value(u"keys")),
             QByteArray(R"(["KvCutLabel","KvCutAtEnd","KvMirror","KvAutoTapeCut"])"));
    QCOMPARE(changesIn(first), QStringList({u"KvAutoTapeCut=ON"_s, u"KvCutLabel=1"_s,
                                            u"KvCutAtEnd=OFF"_s, u"KvMirror=OFF"_s}));
    QCOMPARE(eventsOf(talk.ask("keys")), QStringList());
    ScriptTalk plain;
    plain.open(u"plain"_s);
    QCOMPARE(compact(membersOf(plain.ask("keys"))), QByteArray(R"({"keys":[]})"));
}

void tst_script::print()
{
    ShownPanel talk(u"tape"_s);
    const QJsonObject answer = talk.ask("print");
    QCOMPARE(membersOf(answer), QJsonObject({{u"answer"_s, true}}));
    QCOMPARE(eventsOf(answer), QStringList());
}

void tst_script::printTellsUnmarkedOptions()
{
    ScriptTalk talk;
    talk.open(u"tape"_s, {{u"markDefaults"_s, false}});
    chosen(talk, u"KvMirror"_s, u"ON"_s);
    const QJsonObject answer = talk.ask("print");
    QCOMPARE(membersOf(answer), QJsonObject({{u"answer"_s, true}}));
    QCOMPARE(changesIn(answer), tapeDefaults.mid(1));
    QCOMPARE(talk.state("marks.KvMirror"), QJsonValue(u"ON"_s));
    QCOMPARE(talk.state("marks.KvAutoTapeCut"), QJsonValue(u"ON"_s));
}

void tst_script::summary()
{
    ShownPanel talk(u"follow"_s);
    talk.click("mMirrorPrintChkBx");
    typed(talk, u"7"_s);
    const QJsonObject answer = talk.ask("summary");
    QVERIFY(isOK(answer));
    QCOMPARE(compact(membersOf(answer)),
             QByteArray(R"({"lines":{"Chain Printing":"No","Cut Every":"7 labels",)"
                        R"("Half Cut":"No","Mirror Printing":"Yes"},)"
                        R"("order":["Cut Every","Half Cut","Chain Printing","Mirror Printing"]})"));
}

void tst_script::summaryBeforeAnySelection()
{
    ScriptTalk talk;
    talk.open(u"tape"_s);
    QCOMPARE(compact(membersOf(talk.ask("summary"))), QByteArray(R"({"lines":{},"order":[]})"));
}

void tst_script::screenshot()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"panel.png"_s);
    const auto picture = [&file](ScriptTalk &talk) {
        const QJsonObject answer = talk.ask("screenshot", {{u"file"_s, file}});
        return isOK(answer) && membersOf(answer).isEmpty() ? QImage(file, "PNG") : QImage();
    };
    ShownPanel talk(u"tape"_s);
    const QImage before = picture(talk);
    const QJsonObject size = talk.state("view").toObject();
    QCOMPARE(before.size(), QSize(size.value(u"width").toInt(), size.value(u"height").toInt()));
    talk.click("mHalfCutChkBx");
    const QImage halfCut = picture(talk);
    QVERIFY(halfCut != before);
    talk.click("mHalfCutChkBx");
    QVERIFY(picture(talk) == before);

    for (const QString &nowhere : {folder.path(), folder.filePath(u"none/panel.png"_s)}) {
        const QString error = errorOf(talk.ask("screenshot", {{u"file"_s, nowhere}}));
        QVERIFY2(error.startsWith(nowhere + u": the picture could not be written: "_s),
                 qPrintable(error));
    }
}

void tst_script::closeAndOpenAgain()
{
    ShownPanel talk(u"tape"_s);
    talk.click("mHalfCutChkBx");
    const QJsonObject answer = talk.ask("close");
    QVERIFY(isOK(answer));
    QCOMPARE(membersOf(answer), QJsonObject());
    QCOMPARE(eventsOf(answer), QStringList());
    QVERIFY(!errorOf(talk.ask("state")).isEmpty());
    QVERIFY(!errorOf(talk.ask("close")).isEmpty());
    // Nothing of the former panel is left.
    QCOMPARE(changesIn(talk.show(u"tape"_s)), tapeDefaults);
    QCOMPARE(talk.box("mHalfCutChkBx"), 0);
}

KV_TEST(tst_script)
#include "tst_script.moc"
