#include "BundleFolder.h"
#include "PrintingSite.h"
#include "ScriptTalk.h"

#include <QTest>

namespace {
const QJsonObject keysAsTexts{{u"locale"_qs, u"none"_qs}};

/// Everything about a check box that is shown and can be used.
QJsonObject shownBox(int y, bool isOn, const QString &title)
{
    return {{u"hidden"_qs, false},
            {u"enabled"_qs, true},
            {u"x"_qs, 20},
            {u"y"_qs, y},
            {u"width"_qs, 260},
            {u"height"_qs, 22},
            {u"state"_qs, int(isOn)},
            {u"title"_qs, title}};
}

/// Everything about another control that is shown and can be used.
QJsonObject shownControl(const QRect &frame, QJsonObject details = {})
{
    details.insert(u"hidden"_qs, false);
    details.insert(u"enabled"_qs, true);
    details.insert(u"x"_qs, frame.x());
    details.insert(u"y"_qs, frame.y());
    details.insert(u"width"_qs, frame.width());
    details.insert(u"height"_qs, frame.height());
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
    return {{u"tags"_qs, numbers(tags)},
            {u"selected"_qs, selected},
            {u"disabled"_qs, numbers(disabled)}};
}

/// The fields of the panel that hold a selection.
const QStringList fields{u"mAutoCut_CutEvery_Selection"_qs, u"mAutoCut_Selection"_qs,
                         u"mChainPrint_Selection"_qs,       u"mCutEnd_Selection"_qs,
                         u"mCutEvery_Selection"_qs,         u"mCutMark_Selection"_qs,
                         u"mHalfCut_Selection"_qs,          u"mMirror_Selection"_qs,
                         u"mRemoveBlkSpace_Selection"_qs,   u"mSpecialTape_Selection"_qs};

/// Selections of which all are null but these, "FIELD=CHOICE".
QJsonObject selections(const QStringList &others)
{
    QJsonObject selections;
    for (const QString &field : fields) {
        selections.insert(field, QJsonValue());
    }
    for (const QString &other : others) {
        selections.insert(other.section(u'=', 0, 0) + u"_Selection"_qs, other.section(u'=', 1));
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
    return {{u"mTapeState"_qs, tapeState},
            {u"mAutoCutHideKey_dec"_qs, autoCutBox},
            {u"set_formatSetting"_qs, isShown},
            {u"usb_dec"_qs, usb}};
}

const QString defaultMarksOfAll =
    QStringLiteral("KvCutLabel=1 KvCutAtEnd=OFF KvMirror=OFF KvAutoTapeCut=OFF KvHalfCut=OFF "
                   "KvChainPrint=OFF KvSpecialTape=OFF KvRemoveBlkSpace=OFF KvCutMark=OFF");

QJsonObject sized(int width, int height)
{
    return {{u"width"_qs, width}, {u"height"_qs, height}};
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
    void threeOptionsOfALabelPrinter();
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
    talk.open(u"all"_qs);
    const QJsonObject expected{{u"view"_qs, QJsonValue()},
                               {u"controls"_qs, QJsonObject()},
                               {u"popup"_qs, popup({}, QJsonValue())},
                               {u"selections"_qs, selections({})},
                               {u"marks"_qs, marks(defaultMarksOfAll)},
                               {u"flags"_qs, flags(0, 1, 0)},
                               {u"preview"_qs, QJsonValue()}};
    QCOMPARE(compact(talk.state()), compact(expected));
}

void tst_scriptstate::viewThatHasNotBeenShown()
{
    ScriptTalk talk;
    talk.open(u"all"_qs);
    talk.ask("view");
    const QJsonObject state = talk.state();
    QCOMPARE(compact(state.value(u"view")), compact(sized(550, 292)));
    QCOMPARE(compact(state.value(u"popup")), compact(popup({4, 7, 9, 11, 13, 14, 15, 16, 17}, 4)));
    QCOMPARE(compact(state.value(u"selections")), compact(selections({})));
    QCOMPARE(compact(state.value(u"flags")), compact(flags(0, 1, 0)));
    QCOMPARE(state.value(u"preview").toString(), u"AHCMOffOffOffOff"_qs);
    QCOMPARE(state.value(u"controls").toObject().size(), 13);
    QCOMPARE(talk.box("mCutEveryChkBx"), 0);
}

void tst_scriptstate::allNineOptions()
{
    ScriptTalk talk;
    talk.show(u"all"_qs, keysAsTexts);
    const QJsonObject state = talk.state();
    QCOMPARE(state.keys(), QStringList({u"controls"_qs, u"flags"_qs, u"marks"_qs, u"popup"_qs,
                                        u"preview"_qs, u"selections"_qs, u"view"_qs}));
    QCOMPARE(compact(state.value(u"view")), compact(sized(550, 292)));

    // The cut marks' row begins 38 points below the top, each row takes 26, cut every takes two.
    const QJsonObject controls{
        {u"mCutMarkChkBx"_qs, shownBox(254, false, u"Cut Mark"_qs)},
        {u"mCutEveryChkBx"_qs, shownBox(228, true, u"Cut Every"_qs)},
        {u"mCutEveryTxBx"_qs, shownControl({44, 198, 56, 26}, {{u"text"_qs, u"1"_qs}})},
        {u"mCutEveryStpr"_qs, shownControl({102, 197, 20, 28}, {{u"value"_qs, 1}})},
        {u"mCutEveryStr"_qs, shownControl({128, 204, 150, 22},
                                          {{u"title"_qs, u"RS_Labels"_qs}, {u"dimmed"_qs, false}})},
        {u"mAutoCutChkBx"_qs, shownBox(176, false, u"Auto Cut"_qs)},
        {u"mCutAndEndChkBx"_qs, shownBox(150, false, u"Cut at End"_qs)},
        {u"mHalfCutChkBx"_qs, shownBox(124, false, u"Half Cut"_qs)},
        {u"mSpecialTapeChkBx"_qs, shownBox(98, false, u"Special Tape"_qs)},
        {u"mChainPrintChkBx"_qs, shownBox(72, false, u"Chain Printing"_qs)},
        {u"mMirrorPrintChkBx"_qs, shownBox(46, false, u"Mirror Printing"_qs)},
        {u"mRemoveBlkSpaceChkBx"_qs, shownBox(20, false, u"Remove Blank Space"_qs)},
        {u"mOptionPopUpButton"_qs, shownControl({290, 254, 240, 26})},
    };
    const QJsonObject found = state.value(u"controls").toObject();
    QCOMPARE(found.keys(), controls.keys());
    for (auto it = controls.begin(); it != controls.end(); ++it) {
        QCOMPARE(compact(found.value(it.key())), compact(it.value()));
    }
    QCOMPARE(compact(state.value(u"popup")), compact(popup({4, 7, 9, 11, 13, 14, 15, 16, 17}, 17)));
    QCOMPARE(compact(state.value(u"selections")),
             compact(selections({u"mAutoCut=OFF"_qs, u"mChainPrint=OFF"_qs, u"mCutEnd=OFF"_qs,
                                 u"mCutEvery=1"_qs, u"mCutMark=OFF"_qs, u"mHalfCut=OFF"_qs,
                                 u"mMirror=OFF"_qs, u"mRemoveBlkSpace=OFF"_qs,
                                 u"mSpecialTape=OFF"_qs})));
    QCOMPARE(compact(state.value(u"marks")), compact(marks(defaultMarksOfAll)));
    QCOMPARE(compact(state.value(u"flags")), compact(flags(0, 1, 1)));
    QCOMPARE(state.value(u"preview").toString(), u"AHCMOnOffOffOff"_qs);
}

void tst_scriptstate::threeOptionsOfALabelPrinter()
{
    ScriptTalk talk;
    talk.show(u"label"_qs);
    const QJsonObject state = talk.state();
    QCOMPARE(compact(state.value(u"view")), compact(sized(550, 150)));
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
             compact(selections({u"mCutEnd=OFF"_qs, u"mCutEvery=1"_qs, u"mMirror=OFF"_qs})));
    QCOMPARE(compact(state.value(u"marks")),
             compact(marks(u"KvCutLabel=1 KvCutAtEnd=OFF KvMirror=OFF"_qs)));
    QCOMPARE(compact(state.value(u"flags")), compact(flags(0, 0, 1)));
    QCOMPARE(state.value(u"preview").toString(), u"EveryEndMirrorOnOffOff"_qs);
}

void tst_scriptstate::hiddenControlsAreTold()
{
    ScriptTalk talk;
    talk.show(u"mark"_qs);
    const QJsonObject controls = talk.state("controls").toObject();
    QStringList shown;
    for (auto it = controls.begin(); it != controls.end(); ++it) {
        if (!it.value()[u"hidden"].toBool(true)) {
            shown.append(it.key());
        }
    }
    QCOMPARE(controls.size(), 13);
    QCOMPARE(shown, QStringList({u"mAutoCutChkBx"_qs, u"mChainPrintChkBx"_qs, u"mCutMarkChkBx"_qs,
                                 u"mMirrorPrintChkBx"_qs, u"mOptionPopUpButton"_qs}));
}

void tst_scriptstate::cutEveryOff()
{
    ScriptTalk talk;
    talk.show(u"all"_qs);
    talk.click("mCutEveryChkBx");
    QCOMPARE(talk.box("mCutEveryChkBx"), 0);
    QCOMPARE(talk.state("controls.mCutEveryTxBx.enabled"), QJsonValue(false));
    QCOMPARE(talk.state("controls.mCutEveryStpr.enabled"), QJsonValue(false));
    QCOMPARE(talk.state("controls.mCutEveryStr.dimmed"), QJsonValue(true));
    QCOMPARE(talk.state("controls.mCutEveryStr.title"), QJsonValue(u"labels"_qs));
    talk.click("mCutEveryChkBx");
    QCOMPARE(talk.state("controls.mCutEveryTxBx.enabled"), QJsonValue(true));
    QCOMPARE(talk.state("controls.mCutEveryStpr.enabled"), QJsonValue(true));
    QCOMPARE(talk.state("controls.mCutEveryStr.dimmed"), QJsonValue(false));
}

void tst_scriptstate::cutEveryDrivesAutoCut()
{
    ScriptTalk talk;
    talk.show(u"follow"_qs);
    talk.click("mCutEveryChkBx");
    QCOMPARE(talk.state("marks.KvAutoTapeCut"), QJsonValue(u"OFF"_qs));
    QCOMPARE(talk.state("selections.mAutoCut_CutEvery_Selection"), QJsonValue(u"OFF"_qs));
    talk.click("mCutEveryChkBx");
    talk.ask("type", {{u"text"_qs, u"12"_qs}});
    const QJsonObject state = talk.state();
    QCOMPARE(compact(state.value(u"marks")),
             compact(marks(u"KvCutLabel=12 KvMirror=OFF KvAutoTapeCut=ON KvHalfCut=OFF "
                           "KvChainPrint=OFF"_qs)));
    QCOMPARE(
        compact(state.value(u"selections")),
        compact(selections({u"mAutoCut=ON"_qs, u"mAutoCut_CutEvery=ON"_qs, u"mChainPrint=OFF"_qs,
                            u"mCutEvery=12"_qs, u"mHalfCut=OFF"_qs, u"mMirror=OFF"_qs})));
    QCOMPARE(compact(state.value(u"flags")), compact(flags(0, 0, 1)));
    QCOMPARE(talk.state("controls.mCutEveryTxBx.text"), QJsonValue(u"12"_qs));
    QCOMPARE(talk.state("controls.mCutEveryStpr.value"), QJsonValue(12));
}

void tst_scriptstate::presetsThatThePaperForbids()
{
    ScriptTalk talk;
    talk.show(u"tape"_qs);
    QCOMPARE(compact(talk.state("popup")), compact(popup({5, 6, 7, 8, 9, 10, 11, 12, 13}, 9)));
    talk.paper(u"FL21x45"_qs);
    QCOMPARE(compact(talk.state("popup")),
             compact(popup({5, 6, 7, 8, 9, 10, 11, 12, 13}, 9, {6, 7, 8, 10, 11, 12, 13})));
    QCOMPARE(talk.state("controls.mHalfCutChkBx.enabled"), QJsonValue(false));
    QCOMPARE(talk.state("controls.mAutoCutChkBx.enabled"), QJsonValue(true));
    talk.paper(u"T24x100"_qs);
    QCOMPARE(compact(talk.state("popup")), compact(popup({5, 6, 7, 8, 9, 10, 11, 12, 13}, 9)));
}

void tst_scriptstate::tapeStateOfThePaper_data()
{
    QTest::addColumn<QString>("paper");
    QTest::addColumn<int>("tapeState");
    QTest::newRow("tape") << u"T12x100"_qs << 0;
    QTest::newRow("shrink tube") << u"HS6x100"_qs << 0;
    QTest::newRow("flag") << u"FL21x45"_qs << 1;
    QTest::newRow("die-cut") << u"DC24x24"_qs << 1;
    QTest::newRow("address") << u"AV20x80"_qs << 1;
    QTest::newRow("continuous") << u"C_12"_qs << 1;
}

void tst_scriptstate::tapeStateOfThePaper()
{
    QFETCH(const QString, paper);
    QFETCH(const int, tapeState);
    ScriptTalk talk;
    talk.show(u"all"_qs, {{u"paper"_qs, paper}});
    QCOMPARE(compact(talk.state("flags")), compact(flags(tapeState, 1, 1)));
    QCOMPARE(talk.state("controls.mRemoveBlkSpaceChkBx.enabled"), QJsonValue(tapeState == 0));
}

void tst_scriptstate::pictureOfTheStrip_data()
{
    QTest::addColumn<QString>("printer");
    QTest::addColumn<QStringList>("clicks");
    QTest::addColumn<QString>("picture");
    QTest::newRow("half cut, mirrored")
        << u"tape"_qs << QStringList{u"mHalfCutChkBx"_qs, u"mMirrorPrintChkBx"_qs}
        << u"AHCMOnOnOffOn"_qs;
    QTest::newRow("special tape") << u"tape"_qs << QStringList{u"mSpecialTapeChkBx"_qs}
                                  << u"SPMROnOff"_qs;
    QTest::newRow("chain printing without cuts")
        << u"mark"_qs << QStringList{u"mChainPrintChkBx"_qs} << u"AHCMOffOffOnOff"_qs;
    QTest::newRow("labels, cut at end, mirrored")
        << u"label"_qs
        << QStringList{u"mCutEveryChkBx"_qs, u"mCutAndEndChkBx"_qs, u"mMirrorPrintChkBx"_qs}
        << u"EveryEndMirrorOffOnOn"_qs;
}

void tst_scriptstate::pictureOfTheStrip()
{
    QFETCH(const QString, printer);
    QFETCH(const QStringList, clicks);
    QFETCH(const QString, picture);
    ScriptTalk talk;
    talk.show(printer);
    for (const QString &box : clicks) {
        QVERIFY(talk.click(qPrintable(box)).value(u"delivered").toBool());
    }
    QCOMPARE(talk.state("preview").toString(), picture);
}

void tst_scriptstate::missingOutlets()
{
    const BundleFolder bundles;
    QVERIFY(bundles.add());
    const QString nib = u"Contents/Resources/OptionPDE.ui"_qs;
    QFile file(bundles.path(nib));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QByteArray form = file.readAll();
    for (const char *name : {"mOptionPopUpButton", "mCutEveryStr", "mHalfCutChkBx"}) {
        form.replace(QByteArray("name=\"") + name, "name=\"other");
    }
    QVERIFY(bundles.overwrite(nib, form));
    ScriptTalk talk(bundles.path());
    talk.show(u"all"_qs);
    const QJsonObject state = talk.state();
    const QStringList controls = state.value(u"controls").toObject().keys();
    QCOMPARE(controls.size(), 10);
    QVERIFY(!controls.contains(u"mHalfCutChkBx"_qs));
    QCOMPARE(compact(state.value(u"popup")), compact(popup({}, QJsonValue())));
    QCOMPARE(talk.ask("preset", {{u"tag"_qs, 17}}).value(u"delivered"), QJsonValue(false));
    QCOMPARE(talk.click("mHalfCutChkBx").value(u"delivered"), QJsonValue(false));
}

void tst_scriptstate::missingPicture()
{
    const BundleFolder bundles;
    QVERIFY(bundles.add());
    QVERIFY(bundles.remove(u"Contents/Resources/AHCMOnOnOffOff.png"_qs));
    ScriptTalk talk(bundles.path());
    talk.show(u"tape"_qs);
    QCOMPARE(talk.state("preview").toString(), u"AHCMOnOffOffOff"_qs);
    talk.click("mHalfCutChkBx");
    QVERIFY(talk.state("preview").isNull());
}

void tst_scriptstate::stateChangesNothing()
{
    ScriptTalk talk;
    talk.show(u"all"_qs);
    const QByteArray first = compact(talk.state());
    for (int i = 0; i < 3; ++i) {
        const QJsonObject again = talk.ask("state");
        QCOMPARE(eventsOf(again), QStringList());
        QCOMPARE(compact(membersOf(again)), first);
    }
}

KV_TEST(tst_scriptstate)
#include "tst_scriptstate.moc"
