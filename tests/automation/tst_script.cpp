#include "PrintingSite.h"
#include "ScriptTalk.h"

#include <QApplication>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

namespace {
/// What is told when a panel of "tape" is first shown on tape.
const QStringList tapeDefaults{u"KvMirror=OFF"_qs,      u"KvAutoTapeCut=ON"_qs,
                               u"KvHalfCut=OFF"_qs,     u"KvChainPrint=OFF"_qs,
                               u"KvSpecialTape=OFF"_qs, u"KvRemoveBlkSpace=OFF"_qs};

QJsonObject delivered(bool isDelivered)
{
    return {{u"delivered"_qs, isDelivered}};
}

/// What a number field takes: the user replaces its text, or clicks an arrow.
QJsonObject typed(ScriptTalk &talk, const QString &text)
{
    return talk.ask("type", {{u"text"_qs, text}});
}

QJsonObject stepped(ScriptTalk &talk, int by)
{
    return talk.ask("step", {{u"by"_qs, by}});
}

QJsonObject picked(ScriptTalk &talk, int tag)
{
    return talk.ask("preset", {{u"tag"_qs, tag}});
}

QJsonObject chosen(ScriptTalk &talk, const QString &key, const QString &choice)
{
    return talk.ask("choose", {{u"key"_qs, key}, {u"choice"_qs, choice}});
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
    QCOMPARE(compact(talk.open(u"all"_qs, {{u"locale"_qs, u"none"_qs}})),
             QByteArray(R"({"events":[],"isRV":false,)"
                        R"("kind":"jp.co.vendor.printer.cups.pde.OptionPDEKind",)"
                        R"("name":"OP_PANEL_NAME","ok":true,"panels":1,"usb":false})"));
    QCOMPARE(compact(talk.ask("view")),
             QByteArray(R"({"events":[["resized"]],"height":292,"ok":true,"width":550})"));
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
    QCOMPARE(eventsOf(talk.open(u"label"_qs)), QStringList());
    const QJsonObject size{{u"width"_qs, 550}, {u"height"_qs, 150}};
    const QJsonObject first = talk.ask("view");
    QCOMPARE(membersOf(first), size);
    // The view is a part of the dialog's window, as it is in a dialog.
    const QWidget *view = panelViewOnScreen();
    QVERIFY(view && view->isVisible() && !view->isWindow());
    QCOMPARE(eventsOf(first), QStringList{u"resized"_qs});
    const QJsonObject second = talk.ask("view");
    QCOMPARE(membersOf(second), size);
    QCOMPARE(eventsOf(second), QStringList());
}

void tst_script::showTellsTheDefaultsOnce()
{
    ScriptTalk talk;
    const QJsonObject first = talk.show(u"tape"_qs);
    QCOMPARE(membersOf(first), QJsonObject());
    QCOMPARE(changesIn(first), tapeDefaults);
    const QJsonObject second = talk.ask("show");
    QVERIFY(isOK(second));
    QCOMPARE(eventsOf(second), QStringList());
}

void tst_script::hide()
{
    ScriptTalk talk;
    talk.show(u"tape"_qs);
    const QJsonObject answer = talk.ask("hide");
    QVERIFY(isOK(answer));
    QCOMPARE(membersOf(answer), QJsonObject({{u"answer"_qs, true}}));
    QCOMPARE(eventsOf(answer), QStringList());
}

void tst_script::click()
{
    ScriptTalk talk;
    talk.show(u"tape"_qs);
    const QJsonObject on = talk.click("mSpecialTapeChkBx");
    QCOMPARE(membersOf(on), delivered(true));
    QCOMPARE(eventsOf(on), QStringList{u"willChange KvSpecialTape ON"_qs});
    QCOMPARE(talk.box("mSpecialTapeChkBx"), 1);
    QCOMPARE(talk.state("controls.mAutoCutChkBx.enabled"), QJsonValue(false));
    const QJsonObject off = talk.click("mSpecialTapeChkBx");
    QCOMPARE(eventsOf(off), QStringList{u"willChange KvSpecialTape OFF"_qs});
    QCOMPARE(talk.box("mSpecialTapeChkBx"), 0);
    QCOMPARE(talk.state("controls.mAutoCutChkBx.enabled"), QJsonValue(true));
}

void tst_script::clickThatReachesNoBox_data()
{
    QTest::addColumn<QString>("control");
    QTest::newRow("hidden") << u"mCutMarkChkBx"_qs;
    QTest::newRow("disabled") << u"mHalfCutChkBx"_qs;
    QTest::newRow("no check box") << u"mOptionPopUpButton"_qs;
    QTest::newRow("a field") << u"mCutEveryTxBx"_qs;
    QTest::newRow("no control") << u"mFrobnicateChkBx"_qs;
    QTest::newRow("no name") << QString();
}

void tst_script::clickThatReachesNoBox()
{
    QFETCH(const QString, control);
    ScriptTalk talk;
    talk.show(u"tape"_qs, {{u"paper"_qs, u"FL21x45"_qs}});
    const QByteArray before = compact(talk.state());
    const QJsonObject answer = talk.click(qPrintable(control));
    QVERIFY(isOK(answer));
    QCOMPARE(membersOf(answer), delivered(false));
    QCOMPARE(eventsOf(answer), QStringList());
    QCOMPARE(compact(talk.state()), before);
}

void tst_script::preset()
{
    ScriptTalk talk;
    talk.show(u"tape"_qs);
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
    ScriptTalk talk;
    talk.show(u"tape"_qs, {{u"paper"_qs, u"FL21x45"_qs}});
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
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("count");
    QTest::newRow("a count") << u"42"_qs << 42;
    QTest::newRow("the same count") << u"1"_qs << 1;
    QTest::newRow("the largest") << u"99"_qs << 99;
    QTest::newRow("too large") << u"100"_qs << 99;
    QTest::newRow("none") << u"0"_qs << 1;
    QTest::newRow("negative") << u"-7"_qs << 1;
    QTest::newRow("no number") << u"many"_qs << 1;
    QTest::newRow("a number in front") << u"7 labels"_qs << 7;
    QTest::newRow("nothing") << QString() << 1;
    QTest::newRow("letters of the world") << u"größer"_qs << 1;
}

void tst_script::type()
{
    QFETCH(const QString, text);
    QFETCH(const int, count);
    ScriptTalk talk;
    talk.show(u"label"_qs);
    const QJsonObject answer = typed(talk, text);
    QCOMPARE(membersOf(answer), delivered(true));
    QCOMPARE(eventsOf(answer), QStringList{u"willChange KvCutLabel %1"_qs.arg(count)});
    QCOMPARE(talk.state("controls.mCutEveryTxBx.text").toString(), QString::number(count));
    QCOMPARE(talk.state("controls.mCutEveryStpr.value").toInt(), count);
    QCOMPARE(talk.state("marks.KvCutLabel").toString(), QString::number(count));
}

void tst_script::step()
{
    ScriptTalk talk;
    talk.show(u"label"_qs);
    const QJsonObject up = stepped(talk, 1);
    QCOMPARE(membersOf(up), delivered(true));
    QCOMPARE(eventsOf(up), QStringList{u"willChange KvCutLabel 2"_qs});
    QCOMPARE(eventsOf(stepped(talk, -1)), QStringList{u"willChange KvCutLabel 1"_qs});
    // There are no fewer, and no more than 99.
    QCOMPARE(membersOf(stepped(talk, -1)), delivered(true));
    QCOMPARE(talk.state("controls.mCutEveryTxBx.text").toString(), u"1"_qs);
    typed(talk, u"99"_qs);
    QCOMPARE(membersOf(stepped(talk, 1)), delivered(true));
    QCOMPARE(talk.state("marks.KvCutLabel").toString(), u"99"_qs);
}

void tst_script::countThatCannotBeChanged()
{
    ScriptTalk disabled;
    disabled.show(u"label"_qs);
    disabled.click("mCutEveryChkBx");
    ScriptTalk hidden;
    hidden.show(u"tape"_qs);
    for (ScriptTalk *talk : {&disabled, &hidden}) {
        const QByteArray before = compact(talk->state());
        QCOMPARE(membersOf(typed(*talk, u"5"_qs)), delivered(false));
        QCOMPARE(membersOf(stepped(*talk, 1)), delivered(false));
        QCOMPARE(compact(talk->state()), before);
    }
}

void tst_script::paperChangesTheRules()
{
    ScriptTalk talk;
    talk.show(u"tape"_qs);
    const QJsonObject answer = talk.paper(u"FL21x45"_qs);
    QVERIFY(isOK(answer));
    QCOMPARE(membersOf(answer), QJsonObject());
    QCOMPARE(eventsOf(answer), QStringList());
    QCOMPARE(talk.state("controls.mHalfCutChkBx.enabled"), QJsonValue(false));
    talk.paper(u"T12x100"_qs);
    QCOMPARE(talk.state("controls.mHalfCutChkBx.enabled"), QJsonValue(true));
    // Before the view, too.
    ScriptTalk early;
    early.open(u"tape"_qs);
    early.paper(u"FL24x60"_qs);
    early.ask("view");
    early.ask("show");
    QCOMPARE(early.state("flags.mTapeState").toInt(), 1);
}

void tst_script::paperHeight()
{
    ScriptTalk talk;
    talk.show(u"all"_qs);
    const auto tapeState = [&talk](const QJsonObject &paper) {
        talk.ask("paper", paper);
        talk.ask("save");
        return talk.state("flags.mTapeState").toInt();
    };
    const QString label = u"DC24x24"_qs;
    QCOMPARE(tapeState({{u"name"_qs, label}}), 1);
    // A paper of no known height tells nothing of its kind.
    QCOMPARE(tapeState({{u"name"_qs, label}, {u"height"_qs, 0}}), 0);
    QCOMPARE(tapeState({{u"name"_qs, label}, {u"height"_qs, 68.5}}), 1);
    QCOMPARE(tapeState({{u"name"_qs, QJsonValue()}}), 0);
    QCOMPARE(tapeState({{u"name"_qs, QJsonValue()}, {u"height"_qs, 100}}), 2);
    QCOMPARE(tapeState({{u"name"_qs, u"DC99x99"_qs}}), 0);
}

void tst_script::paperWithoutAName()
{
    ScriptTalk talk;
    talk.show(u"tape"_qs, {{u"paper"_qs, u"FL21x45"_qs}});
    QVERIFY(isOK(talk.paper(QString())));
    QCOMPARE(talk.state("controls.mHalfCutChkBx.enabled"), QJsonValue(true));
    QCOMPARE(talk.state("popup.disabled").toArray().size(), 0);
}

void tst_script::choose()
{
    ScriptTalk talk;
    talk.show(u"tape"_qs);
    const QJsonObject answer = chosen(talk, u"KvHalfCut"_qs, u"ON"_qs);
    QVERIFY(isOK(answer));
    QCOMPARE(membersOf(answer), QJsonObject());
    QCOMPARE(eventsOf(answer), QStringList());
    QCOMPARE(talk.state("marks.KvHalfCut"), QJsonValue(u"ON"_qs));
    QCOMPARE(talk.state("selections.mHalfCut_Selection"), QJsonValue(u"ON"_qs));
    // An option that is no panel's business.
    QVERIFY(isOK(chosen(talk, u"PageSize"_qs, u"FL21x45"_qs)));
    QCOMPARE(talk.state("popup.disabled").toArray().size(), 0);
}

void tst_script::chooseReachesTheControlsWithRestore()
{
    ScriptTalk talk;
    talk.show(u"tape"_qs);
    chosen(talk, u"KvHalfCut"_qs, u"ON"_qs);
    QCOMPARE(talk.box("mHalfCutChkBx"), 0);
    talk.ask("restore");
    QCOMPARE(talk.box("mHalfCutChkBx"), 1);
}

void tst_script::chooseWhatThePrinterLacks()
{
    ScriptTalk talk;
    talk.show(u"tape"_qs);
    const QByteArray before = compact(talk.state());
    QCOMPARE(errorOf(chosen(talk, u"KvHalfCut"_qs, u"MAYBE"_qs)),
             u"the printer's PPD has no choice KvHalfCut=MAYBE"_qs);
    QCOMPARE(errorOf(chosen(talk, u"KvCutMark"_qs, u"ON"_qs)),
             u"the printer's PPD has no choice KvCutMark=ON"_qs);
    QCOMPARE(compact(talk.state()), before);
    QVERIFY(talk.hasFailed());
}

void tst_script::saveAndRestore()
{
    ScriptTalk talk;
    talk.show(u"tape"_qs);
    // Auto cut and chain printing.
    picked(talk, 10);
    const QJsonObject saved = talk.ask("save");
    QCOMPARE(membersOf(saved), QJsonObject({{u"answer"_qs, true}}));
    QCOMPARE(changesIn(saved), QStringList({u"KvMirror=OFF"_qs, u"KvAutoTapeCut=ON"_qs,
                                            u"KvHalfCut=OFF"_qs, u"KvChainPrint=ON"_qs,
                                            u"KvSpecialTape=OFF"_qs, u"KvRemoveBlkSpace=OFF"_qs}));
    QCOMPARE(talk.state("marks.KvChainPrint"), QJsonValue(u"ON"_qs));
    picked(talk, 5);
    QCOMPARE(talk.box("mChainPrintChkBx"), 0);
    const QJsonObject restored = talk.ask("restore");
    QCOMPARE(membersOf(restored), QJsonObject({{u"answer"_qs, true}}));
    QCOMPARE(eventsOf(restored), QStringList());
    QCOMPARE(talk.box("mChainPrintChkBx"), 1);
    QCOMPARE(talk.box("mAutoCutChkBx"), 1);
}

void tst_script::keys()
{
    ScriptTalk talk;
    talk.show(u"follow"_qs);
    const QJsonObject answer = talk.ask("keys");
    QVERIFY(isOK(answer));
    QCOMPARE(compact(membersOf(answer)),
             QByteArray(R"({"keys":["KvCutLabel","KvMirror","KvAutoTapeCut","KvHalfCut",)"
                        R"("KvChainPrint"]})"));
}

void tst_script::keysBeforeTheView()
{
    ScriptTalk talk;
    talk.open(u"label"_qs);
    const QJsonObject first = talk.ask("keys");
    // Auto cut follows cut every where the printer has no option for it.
    QCOMPARE(compact(first.value(u"keys")),
             QByteArray(R"(["KvCutLabel","KvAutoTapeCut","KvCutAtEnd","KvMirror"])"));
    QCOMPARE(changesIn(first),
             QStringList({u"KvCutLabel=1"_qs, u"KvCutAtEnd=OFF"_qs, u"KvMirror=OFF"_qs}));
    QCOMPARE(eventsOf(talk.ask("keys")), QStringList());
    ScriptTalk plain;
    plain.open(u"plain"_qs);
    QCOMPARE(compact(membersOf(plain.ask("keys"))), QByteArray(R"({"keys":[]})"));
}

void tst_script::print()
{
    ScriptTalk talk;
    talk.show(u"tape"_qs);
    const QJsonObject answer = talk.ask("print");
    QCOMPARE(membersOf(answer), QJsonObject({{u"answer"_qs, true}}));
    QCOMPARE(eventsOf(answer), QStringList());
}

void tst_script::printTellsUnmarkedOptions()
{
    ScriptTalk talk;
    talk.open(u"tape"_qs, {{u"markDefaults"_qs, false}});
    chosen(talk, u"KvMirror"_qs, u"ON"_qs);
    const QJsonObject answer = talk.ask("print");
    QCOMPARE(membersOf(answer), QJsonObject({{u"answer"_qs, true}}));
    QCOMPARE(changesIn(answer), tapeDefaults.mid(1));
    QCOMPARE(talk.state("marks.KvMirror"), QJsonValue(u"ON"_qs));
    QCOMPARE(talk.state("marks.KvAutoTapeCut"), QJsonValue(u"ON"_qs));
}

void tst_script::summary()
{
    ScriptTalk talk;
    talk.show(u"follow"_qs);
    talk.click("mMirrorPrintChkBx");
    typed(talk, u"7"_qs);
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
    talk.open(u"tape"_qs);
    QCOMPARE(compact(membersOf(talk.ask("summary"))), QByteArray(R"({"lines":{},"order":[]})"));
}

void tst_script::screenshot()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"panel.png"_qs);
    const auto picture = [&file](ScriptTalk &talk) {
        const QJsonObject answer = talk.ask("screenshot", {{u"file"_qs, file}});
        return isOK(answer) && membersOf(answer).isEmpty() ? QImage(file, "PNG") : QImage();
    };
    ScriptTalk talk;
    talk.show(u"tape"_qs);
    const QImage before = picture(talk);
    const QJsonObject size = talk.state("view").toObject();
    QCOMPARE(before.size(), QSize(size.value(u"width").toInt(), size.value(u"height").toInt()));
    talk.click("mHalfCutChkBx");
    const QImage halfCut = picture(talk);
    QVERIFY(halfCut != before);
    talk.click("mHalfCutChkBx");
    QVERIFY(picture(talk) == before);

    for (const QString &nowhere : {folder.path(), folder.filePath(u"none/panel.png"_qs)}) {
        const QString error = errorOf(talk.ask("screenshot", {{u"file"_qs, nowhere}}));
        QVERIFY2(error.startsWith(nowhere + u": the picture could not be written: "_qs),
                 qPrintable(error));
    }
}

void tst_script::closeAndOpenAgain()
{
    ScriptTalk talk;
    talk.show(u"tape"_qs);
    talk.click("mHalfCutChkBx");
    const QJsonObject answer = talk.ask("close");
    QVERIFY(isOK(answer));
    QCOMPARE(membersOf(answer), QJsonObject());
    QCOMPARE(eventsOf(answer), QStringList());
    QVERIFY(!errorOf(talk.ask("state")).isEmpty());
    QVERIFY(!errorOf(talk.ask("close")).isEmpty());
    // Nothing of the former panel is left.
    QCOMPARE(changesIn(talk.show(u"tape"_qs)), tapeDefaults);
    QCOMPARE(talk.box("mHalfCutChkBx"), 0);
}

KV_TEST(tst_script)
#include "tst_script.moc"
