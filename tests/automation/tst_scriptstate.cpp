// SPDX-License-Identifier: Apache-2.0
#include "BundleFolder.h"
#include "PrintingSite.h"
#include "ScriptTalk.h"

#include <QTest>

namespace {
const QJsonObject keysAsTexts{{u"locale"_s, u"none"_s}};

/// Everything about a check box that is shown and can be used.
QJsonObject shownBox(int y, bool isOn, const QString &title)
{
    return {{u"hidden"_s, false},
            {u"enabled"_s, true},
            {u"x"_s, 20},
            {u"y"_s, y},
            {u"width"_s, 190},
            {u"height"_s, 22},
            {u"state"_s, int(isOn)},
            {u"title"_s, title}};
}

/// Everything about another control that is shown and can be used.
QJsonObject shownControl(const QRect &frame, QJsonObject details = {})
{
    details.insert(u"hidden"_s, false);
    details.insert(u"enabled"_s, true);
    details.insert(u"x"_s, frame.x());
    details.insert(u"y"_s, frame.y());
    details.insert(u"width"_s, frame.width());
    details.insert(u"height"_s, frame.height());
    return details;
}

QJsonArray numbers(const QList<int> &values)
{
    QJsonArray array;
    for (const int value : values) {
        array.append(value);
    }
    return array;
}

QJsonObject popup(const QList<int> &tags, const QJsonValue &selected,
                  const QList<int> &disabled = {})
{
    return {
        {u"tags"_s, numbers(tags)}, {u"selected"_s, selected}, {u"disabled"_s, numbers(disabled)}};
}

/// The fields of the panel that hold a selection.
const QStringList fields{u"mAutoCut_CutEvery_Selection"_s, u"mAutoCut_Selection"_s,
                         u"mChainPrint_Selection"_s,       u"mCutEnd_Selection"_s,
                         u"mCutEvery_Selection"_s,         u"mCutMark_Selection"_s,
                         u"mHalfCut_Selection"_s,          u"mMirror_Selection"_s,
                         u"mRemoveBlkSpace_Selection"_s,   u"mSpecialTape_Selection"_s};

/// Selections of which all are null but these, "FIELD=CHOICE".
QJsonObject selections(const QStringList &others)
{
    QJsonObject selections;
    for (const QString &field : fields) {
        selections.insert(field, QJsonValue());
    }
    for (const QString &other : others) {
        selections.insert(other.section(u'=', 0, 0) + u"_Selection"_s, other.section(u'=', 1));
    }
    return selections;
}

/// The marks of "KEY=CHOICE KEY=CHOICE"; null without a choice.
QJsonObject marks(const QString &text)
{
    QJsonObject marks;
    const QStringList pairs = text.split(u' ');
    for (const QString &pair : pairs) {
        const QString choice = pair.section(u'=', 1);
        marks.insert(pair.section(u'=', 0, 0),
                     choice.isEmpty() ? QJsonValue() : QJsonValue(choice));
    }
    return marks;
}

QJsonObject flags(int tapeState, int autoCutBox, int isShown, int usb = 0)
{
    return {{u"mTapeState"_s, tapeState},
            {u"mAutoCutHideKey_dec"_s, autoCutBox},
            {u"set_formatSetting"_s, isShown},
            {u"usb_dec"_s, usb}};
}

const QString defaultMarksOfAll =
    u"KvCutLabel=1 KvCutAtEnd=OFF KvMirror=OFF KvAutoTapeCut=OFF KvHalfCut=OFF "
    "KvChainPrint=OFF KvSpecialTape=OFF KvRemoveBlkSpace=OFF KvCutMark=OFF"_s;

QJsonObject sized(int width, int height)
{
    return {{u"width"_s, width}, {u"height"_s, height}};
}
} // namespace

/// What "state" answers, member by member.
class tst_scriptstate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void beforeTheView();
    void viewThatHasNotBeenShown();
    void allNineOptions();
    void optionsOfALabelPrinter();
    void hiddenControlsAreTold();
    void cutEveryOff();
    void cutEveryDrivesAutoCut();
    void presetsThatThePaperForbids();
    void tapeStateOfThePaper_data();
    void tapeStateOfThePaper();
    void pictureOfTheStrip_data();
    void pictureOfTheStrip();
    void missingOutlets();
    void missingPicture();
    void stateChangesNothing();
};

void tst_scriptstate::beforeTheView()
{
    ScriptTalk talk;
    talk.open(u"all"_s);
    const QJsonObject expected{{u"view"_s, QJsonValue()},
                               {u"controls"_s, QJsonObject()},
                               {u"popup"_s, popup({}, QJsonValue())},
                               {u"selections"_s, selections({})},
                               {u"marks"_s, marks(defaultMarksOfAll)},
                               {u"flags"_s, flags(0, 1, 0)},
                               {u"preview"_s, QJsonValue()}};
    QCOMPARE(compact(talk.state()), compact(expected));
}

void tst_scriptstate::viewThatHasNotBeenShown()
{
    ScriptTalk talk;
    talk.open(u"all"_s);
    talk.ask("view");
    const QJsonObject state = talk.state();
    QCOMPARE(compact(state.value(u"view")), compact(sized(480, 292)));
    QCOMPARE(compact(state.value(u"popup")), compact(popup({4, 7, 9, 11, 13, 14, 15, 16, 17}, 4)));
    QCOMPARE(compact(state.value(u"selections")), compact(selections({})));
    QCOMPARE(compact(state.value(u"flags")), compact(flags(0, 1, 0)));
    QCOMPARE(state.value(u"preview").toString(), u"AHCMOffOffOffOff"_s);
    QCOMPARE(state.value(u"controls").toObject().size(), 13);
    QCOMPARE(talk.box("mCutEveryChkBx"), 0);
}

void tst_scriptstate::allNineOptions()
{
    ShownPanel talk(u"all"_s, keysAsTexts);
    const QJsonObject state = talk.state();
    QCOMPARE(state.keys(), QStringList({u"controls"_s, u"flags"_s, u"marks"_s, u"popup"_s,
                                        u"preview"_s, u"selections"_s, u"view"_s}));
    QCOMPARE(compact(state.value(u"view")), compact(sized(480, 292)));

    // The cut marks' row begins 38 points below the top, each row takes 26, cut every takes two.
    const QJsonObject controls{
        {u"mCutMarkChkBx"_s, shownBox(254, false, u"Cut Mark"_s)},
        {u"mCutEveryChkBx"_s, shownBox(228, true, u"Cut Every"_s)},
        {u"mCutEveryTxBx"_s, shownControl({44, 198, 56, 26}, {{u"text"_s, u"1"_s}})},
        {u"mCutEveryStpr"_s, shownControl({102, 197, 20, 28}, {{u"value"_s, 1}})},
        {u"mCutEveryStr"_s,
         shownControl({128, 204, 80, 22}, {{u"title"_s, u"RS_Labels"_s}, {u"dimmed"_s, false}})},
        {u"mAutoCutChkBx"_s, shownBox(176, false, u"Auto Cut"_s)},
        {u"mCutAndEndChkBx"_s, shownBox(150, false, u"Cut at End"_s)},
        {u"mHalfCutChkBx"_s, shownBox(124, false, u"Half Cut"_s)},
        {u"mSpecialTapeChkBx"_s, shownBox(98, false, u"Special Tape"_s)},
        {u"mChainPrintChkBx"_s, shownBox(72, false, u"Chain Printing"_s)},
        {u"mMirrorPrintChkBx"_s, shownBox(46, false, u"Mirror Printing"_s)},
        {u"mRemoveBlkSpaceChkBx"_s, shownBox(20, false, u"Remove Blank Space"_s)},
        {u"mOptionPopUpButton"_s, shownControl({220, 254, 240, 26})},
    };
    const QJsonObject found = state.value(u"controls").toObject();
    QCOMPARE(found.keys(), controls.keys());
    for (auto it = controls.begin(); it != controls.end(); ++it) {
        QCOMPARE(compact(found.value(it.key())), compact(it.value()));
    }
    QCOMPARE(compact(state.value(u"popup")), compact(popup({4, 7, 9, 11, 13, 14, 15, 16, 17}, 17)));
    QCOMPARE(
        compact(state.value(u"selections")),
        compact(selections({u"mAutoCut=OFF"_s, u"mChainPrint=OFF"_s, u"mCutEnd=OFF"_s,
                            u"mCutEvery=1"_s, u"mCutMark=OFF"_s, u"mHalfCut=OFF"_s,
                            u"mMirror=OFF"_s, u"mRemoveBlkSpace=OFF"_s, u"mSpecialTape=OFF"_s})));
    QCOMPARE(compact(state.value(u"marks")), compact(marks(defaultMarksOfAll)));
    QCOMPARE(compact(state.value(u"flags")), compact(flags(0, 1, 1)));
    QCOMPARE(state.value(u"preview").toString(), u"AHCMOnOffOffOff"_s);
}

void tst_scriptstate::optionsOfALabelPrinter()
{
    ShownPanel talk(u"label"_s);
    const QJsonObject state = talk.state();
    QCOMPARE(compact(state.value(u"view")), compact(sized(480, 150)));
    const std::pair<const char *, int> rows[] = {
        {"mCutEveryChkBx", 112}, {"mCutEveryTxBx", 82},   {"mCutEveryStpr", 81},
        {"mCutEveryStr", 88},    {"mCutAndEndChkBx", 60}, {"mMirrorPrintChkBx", 34},
    };
    for (const auto &[name, y] : rows) {
        QCOMPARE(talk.state((QByteArray("controls.") + name + ".y").constData()).toInt(), y);
        QCOMPARE(talk.state((QByteArray("controls.") + name + ".hidden").constData()),
                 QJsonValue(false));
    }
    QCOMPARE(compact(state.value(u"popup")), compact(popup({1, 2, 3, 4}, 3)));
    QCOMPARE(compact(state.value(u"selections")),
             compact(selections(
                 {u"mAutoCut=ON"_s, u"mCutEnd=OFF"_s, u"mCutEvery=1"_s, u"mMirror=OFF"_s})));
    QCOMPARE(compact(state.value(u"marks")),
             compact(marks(u"KvCutLabel=1 KvCutAtEnd=OFF KvMirror=OFF KvAutoTapeCut=ON"_s)));
    QCOMPARE(compact(state.value(u"flags")), compact(flags(0, 0, 1)));
    QCOMPARE(state.value(u"preview").toString(), u"EveryEndMirrorOnOffOff"_s);
}

void tst_scriptstate::hiddenControlsAreTold()
{
    ShownPanel talk(u"mark"_s);
    const QJsonObject controls = talk.state("controls").toObject();
    QStringList shown;
    for (auto it = controls.begin(); it != controls.end(); ++it) {
        if (!it.value()[u"hidden"].toBool(true)) {
            shown.append(it.key());
        }
    }
    QCOMPARE(controls.size(), 13);
    QCOMPARE(shown, QStringList({u"mAutoCutChkBx"_s, u"mChainPrintChkBx"_s, u"mCutMarkChkBx"_s,
                                 u"mMirrorPrintChkBx"_s, u"mOptionPopUpButton"_s}));
}

void tst_scriptstate::cutEveryOff()
{
    ShownPanel talk(u"all"_s);
    talk.click("mCutEveryChkBx");
    QCOMPARE(talk.box("mCutEveryChkBx"), 0);
    QCOMPARE(talk.state("controls.mCutEveryTxBx.enabled"), QJsonValue(false));
    QCOMPARE(talk.state("controls.mCutEveryStpr.enabled"), QJsonValue(false));
    QCOMPARE(talk.state("controls.mCutEveryStr.dimmed"), QJsonValue(true));
    QCOMPARE(talk.state("controls.mCutEveryStr.title"), QJsonValue(u"labels"_s));
    talk.click("mCutEveryChkBx");
    QCOMPARE(talk.state("controls.mCutEveryTxBx.enabled"), QJsonValue(true));
    QCOMPARE(talk.state("controls.mCutEveryStpr.enabled"), QJsonValue(true));
    QCOMPARE(talk.state("controls.mCutEveryStr.dimmed"), QJsonValue(false));
}

void tst_scriptstate::cutEveryDrivesAutoCut()
{
    ShownPanel talk(u"follow"_s);
    talk.click("mCutEveryChkBx");
    QCOMPARE(talk.state("marks.KvAutoTapeCut"), QJsonValue(u"OFF"_s));
    QCOMPARE(talk.state("selections.mAutoCut_CutEvery_Selection"), QJsonValue(u"OFF"_s));
    talk.click("mCutEveryChkBx");
    talk.ask("type", {{u"text"_s, u"12"_s}});
    const QJsonObject state = talk.state();
    QCOMPARE(compact(state.value(u"marks")),
             compact(marks(u"KvCutLabel=12 KvMirror=OFF KvAutoTapeCut=ON KvHalfCut=OFF "
                           "KvChainPrint=OFF"_s)));
    QCOMPARE(compact(state.value(u"selections")),
             compact(selections({u"mAutoCut=ON"_s, u"mAutoCut_CutEvery=ON"_s, u"mChainPrint=OFF"_s,
                                 u"mCutEvery=12"_s, u"mHalfCut=OFF"_s, u"mMirror=OFF"_s})));
    QCOMPARE(compact(state.value(u"flags")), compact(flags(0, 0, 1)));
    QCOMPARE(talk.state("controls.mCutEveryTxBx.text"), QJsonValue(u"12"_s));
    QCOMPARE(talk.state("controls.mCutEveryStpr.value"), QJsonValue(12));
}

void tst_scriptstate::presetsThatThePaperForbids()
{
    ShownPanel talk(u"tape"_s);
    QCOMPARE(compact(talk.state("popup")), compact(popup({5, 6, 7, 8, 9, 10, 11, 12, 13}, 9)));
    talk.paper(u"FL21x45"_s);
    QCOMPARE(compact(talk.state("popup")),
             compact(popup({5, 6, 7, 8, 9, 10, 11, 12, 13}, 9, {6, 7, 8, 10, 11, 12, 13})));
    QCOMPARE(talk.state("controls.mHalfCutChkBx.enabled"), QJsonValue(false));
    QCOMPARE(talk.state("controls.mAutoCutChkBx.enabled"), QJsonValue(true));
    talk.paper(u"T24x100"_s);
    QCOMPARE(compact(talk.state("popup")), compact(popup({5, 6, 7, 8, 9, 10, 11, 12, 13}, 9)));
}

void tst_scriptstate::tapeStateOfThePaper_data()
{
    const TestTable<QString, int> table("paper", "tapeState");
    table.add("tape", u"T12x100"_s, 0);
    table.add("shrink tube", u"HS6x100"_s, 0);
    table.add("flag", u"FL21x45"_s, 1);
    table.add("die-cut", u"DC24x24"_s, 1);
    table.add("address", u"AV20x80"_s, 1);
    table.add("continuous", u"C_12"_s, 1);
}

void tst_scriptstate::tapeStateOfThePaper()
{
    QFETCH(const QString, paper);
    QFETCH(const int, tapeState);
    ShownPanel talk(u"all"_s, {{u"paper"_s, paper}});
    QCOMPARE(compact(talk.state("flags")), compact(flags(tapeState, 1, 1)));
    QCOMPARE(talk.state("controls.mRemoveBlkSpaceChkBx.enabled"), QJsonValue(tapeState == 0));
}

void tst_scriptstate::pictureOfTheStrip_data()
{
    const TestTable<QString, QStringList, QString> table("printer", "clicks", "picture");
    table.add("half cut, mirrored", u"tape"_s, {u"mHalfCutChkBx"_s, u"mMirrorPrintChkBx"_s},
              u"AHCMOnOnOffOn"_s);
    table.add("special tape", u"tape"_s, {u"mSpecialTapeChkBx"_s}, u"SPMROnOff"_s);
    table.add("chain printing without cuts", u"mark"_s, {u"mChainPrintChkBx"_s},
              u"AHCMOffOffOnOff"_s);
    table.add("labels, cut at end, mirrored", u"label"_s,
              {u"mCutEveryChkBx"_s, u"mCutAndEndChkBx"_s, u"mMirrorPrintChkBx"_s},
              u"EveryEndMirrorOffOnOn"_s);
}

void tst_scriptstate::pictureOfTheStrip()
{
    QFETCH(const QString, printer);
    QFETCH(const QStringList, clicks);
    ShownPanel talk(printer);
    for (const QString &box : clicks) {
        QVERIFY(talk.click(qPrintable(box)).value(u"delivered").toBool());
    }
    QTEST(talk.state("preview").toString(), "picture");
}

void tst_scriptstate::missingOutlets()
{
    const BundleFolder bundles;
    QVERIFY(bundles.add());
    const QString nib = u"Contents/Resources/OptionPDE.ui"_s;
    QFile file(bundles.path(nib));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QByteArray form = file.readAll();
    for (const char *name : {"mOptionPopUpButton", "mCutEveryStr", "mHalfCutChkBx"}) {
        form.replace(QByteArray("name=\"") + name, "name=\"other");
    }
    QVERIFY(bundles.overwrite(nib, form));
    ScriptTalk talk(bundles.path());
    talk.show(u"all"_s);
    const QJsonObject state = talk.state();
    const QStringList controls = state.value(u"controls").toObject().keys();
    QCOMPARE(controls.size(), 10);
    QVERIFY(!controls.contains(u"mHalfCutChkBx"_s));
    QCOMPARE(compact(state.value(u"popup")), compact(popup({}, QJsonValue())));
    QCOMPARE(talk.ask("preset", {{u"tag"_s, 17}}).value(u"delivered"), QJsonValue(false));
    QCOMPARE(talk.click("mHalfCutChkBx").value(u"delivered"), QJsonValue(false));
}

void tst_scriptstate::missingPicture()
{
    const BundleFolder bundles;
    QVERIFY(bundles.add());
    QVERIFY(bundles.remove(u"Contents/Resources/AHCMOnOnOffOff.png"_s));
    ScriptTalk talk(bundles.path());
    talk.show(u"tape"_s);
    QCOMPARE(talk.state("preview").toString(), u"AHCMOnOffOffOff"_s);
    talk.click("mHalfCutChkBx");
    QVERIFY(talk.state("preview").isNull());
}

void tst_scriptstate::stateChangesNothing()
{
    ShownPanel talk(u"all"_s);
    const QByteArray first = compact(talk.state());
    for (int i = 0; i < 3; ++i) {
        const QJsonObject again = talk.ask("state");
        QCOMPARE(eventsOf(again), QStringList());
        QCOMPARE(compact(membersOf(again)), first);
    }
}

KV_TEST(tst_scriptstate)
#include "tst_scriptstate.moc"
