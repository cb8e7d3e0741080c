// SPDX-License-Identifier: Apache-2.0
#include "RecordingHost.h"
#include "RecordingPanel.h"
#include "printcore/NotificationCenter.h"
#include "support/BundleCopy.h"
#include "support/PanelProbe.h"
#include "support/TestHost.h"
#include "toolkit/NibLoader.h"
#include "toolkit/TrackingArea.h"
#include "toolkit/ViewGeometry.h"

#include <QApplication>
#include <QTest>

#include <sys/stat.h>

/// A panel's view: its nib, whole and damaged, and its size in the dialog's window.
class PanelViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void loadsTheNibOnce();
    void viewOfTheBaseIsTheNibAsItStands();
    void pipeIsNoNib();
    void viewGoesWithThePanel();
    void panelOutlivesItsView();
    void damagedNibMakesNoView_data();
    void damagedNibMakesNoView();
    void panelWithoutViewStillSaves_data();
    void panelWithoutViewStillSaves();
    void viewMayBeInsideAnotherWidget();
    void mendedNibMakesTheView();

    void windowTallEnoughIsToldAtOnce_data();
    void windowTallEnoughIsToldAtOnce();
    void windowTooSmallIsToldOnceItHasGrown_data();
    void windowTooSmallIsToldOnceItHasGrown();
    void manyResizesAreToldOnceWhenTheWindowHasGrown();
    void resizeWithoutAnActiveWindowIsNotTold();
    void dialogThatOffersNoResizeKeepsTheSize();
    void heightsAreInPoints();
    void dialogNeedNotKnowOfResizes();
    void dialogMayLetTheViewGrowAndDoNoMore();
    void panelThatGoesWaitsNoMore();
    void viewThatGoesIsWaitedForNoMore();
    void goneViewIsNotWaitedFor();
};

namespace {
constexpr int viewHeight = 200;
/// What a window must be taller than the view by.
constexpr int spare = 96;

/// The nib with the view's name taken from its widget.
QByteArray withoutView(QByteArray nib)
{
    return nib.replace(R"(class="QWidget" name="kPDEView")", R"(class="QWidget" name="another")");
}

/// Ways to damage the nib, as rows with its text after the damage.
void addDamagedNibs()
{
    QTest::addColumn<QByteArray>("nib");

    const QByteArray whole = BundleCopy().nib();
    QTest::newRow("missing") << QByteArray();
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("no XML") << QByteArray("This is no form.");
    QTest::newRow("cut off") << whole.left(whole.size() / 2);
    QTest::newRow("zeros") << QByteArray(whole.size(), '\0');
    QTest::newRow("other XML") << QByteArray("<?xml version=\"1.0\"?><page/>");
    QTest::newRow("form without a widget")
        << QByteArray("<?xml version=\"1.0\"?><ui version=\"4.0\"/>");
    QTest::newRow("view of another name") << withoutView(whole);
}

/// Where a nib's controls are and whether they are hidden, one line for each.
QStringList placesOf(const QWidget *nib)
{
    QStringList places;
    for (const QWidget *control : nib->findChildren<QWidget *>()) {
        const QRect place = control->geometry();
        places.append(u"%1 at %2, %3: %4 by %5%6"_s.arg(control->objectName())
                          .arg(place.x())
                          .arg(place.y())
                          .arg(place.width())
                          .arg(place.height())
                          .arg(control->isHidden() ? u", hidden"_s : QString()));
    }
    return places;
}

/// A dialog that offers to resize, and does nothing about it.
class CalmHost : public RecordingHost
{
public:
    bool respondsToPanelViewDidResize() const override { return true; }
};

struct PanelDialog
{
    explicit PanelDialog(const std::shared_ptr<Bundle> &bundle = testBundle())
        : host(std::make_shared<TestHost>(PPDText().onOff("KvTest").open()))
        , panel(std::make_unique<RecordingPanel>(host, bundle))
    {
    }

    std::shared_ptr<TestHost> host;
    std::unique_ptr<RecordingPanel> panel;
};

/// A dialog whose panel's view is in a window that the user sees.
struct OpenDialog : PanelDialog
{
    OpenDialog()
    {
        view = panel->panelView();
        view->setParent(&window);
        view->setGeometry(0, 0, 300, 100);
    }

    /// Shows the window, as high as that from its frame's top to its frame's bottom.
    bool open(int frameHeight)
    {
        window.resize(400, 400);
        window.show();
        if (!QTest::qWaitForWindowActive(&window)) {
            return false;
        }
        const int frame = window.frameGeometry().height() - window.height();
        window.resize(400, frameHeight - frame);
        return window.frameGeometry().height() == frameHeight;
    }

    QWidget window;
    QPointer<QWidget> view;
};
} // namespace

void PanelViewTest::loadsTheNibOnce()
{
    PanelDialog dialog;
    QVERIFY(!dialog.panel->kPDEView);
    QWidget *view = dialog.panel->panelView();
    QVERIFY(view);
    QCOMPARE(view->objectName(), u"kPDEView"_s);
    QCOMPARE(dialog.panel->panelView(), view);
    QCOMPARE(dialog.panel->calls, QStringList{u"awakeFromNib"_s});
}

void PanelViewTest::viewOfTheBaseIsTheNibAsItStands()
{
    const auto bundle = testBundle();
    const auto host = std::make_shared<RecordingHost>();
    const auto panel = std::make_unique<PlainPanel>(host, bundle);
    const QStringList asked = host->calls;
    const QWidget *view = panel->panelView();
    QVERIFY(view);
    const auto nib = NibLoader::load(bundle->pathForResource(u"OptionPDE"_s, u"ui"_s));
    QVERIFY(nib);
    QCOMPARE(view->size(), nib->size());
    QVERIFY(placesOf(view).size() > 9);
    QCOMPARE(placesOf(view), placesOf(nib.get()));
    QCOMPARE(host->calls, asked);
}

void PanelViewTest::pipeIsNoNib()
{
    const QTemporaryDir folder;
    const QString pipe = folder.filePath(u"Pipe.ui"_s);
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0644), 0);
    QString error;
    QVERIFY(!NibLoader::load(pipe, &error));
    QCOMPARE(error, u"Pipe.ui: is a pipe"_s);
}

void PanelViewTest::viewGoesWithThePanel()
{
    // A view that is but a part of the nib, and stands in the dialog's window by now.
    BundleCopy copy;
    QVERIFY(copy.replaceInNib(u"name=\"kPDEView\""_s, u"name=\"nib\""_s));
    QVERIFY(copy.replaceInNib(u"name=\"mOptionDummyView\""_s, u"name=\"kPDEView\""_s));
    PanelDialog dialog(copy.open());
    QWidget window;
    const QPointer<QWidget> view = dialog.panel->panelView();
    view->setParent(&window);
    dialog.panel.reset();
    QVERIFY(!view);
    QVERIFY(window.children().isEmpty());
}

void PanelViewTest::panelOutlivesItsView()
{
    PanelDialog dialog;
    auto window = std::make_unique<QWidget>();
    dialog.panel->panelView()->setParent(window.get());
    window.reset();
    QVERIFY(!dialog.panel->kPDEView);
    dialog.panel->willShow();
    dialog.panel->setViewFrameSize({300, viewHeight});
    QCOMPARE(dialog.panel->saveValuesAndReturnError(nullptr), true);
}

void PanelViewTest::damagedNibMakesNoView_data()
{
    addDamagedNibs();
}

void PanelViewTest::damagedNibMakesNoView()
{
    QFETCH(QByteArray, nib);
    const BundleCopy copy;
    QVERIFY(copy.open());
    QVERIFY(copy.setNib(nib));
    PanelDialog dialog(copy.open());
    QVERIFY(!dialog.panel->panelView());
    QVERIFY(!dialog.panel->panelView());
    dialog.panel->calls.clear();
    dialog.panel->willShow();
    QCOMPARE(dialog.panel->calls,
             QStringList({u"initSetTitleTexts"_s, u"initUI"_s, u"setPDEItems"_s}));
    QCOMPARE(dialog.panel->panelName(), u"Cut Options"_s);
}

void PanelViewTest::panelWithoutViewStillSaves_data()
{
    addDamagedNibs();
}

void PanelViewTest::panelWithoutViewStillSaves()
{
    QFETCH(QByteArray, nib);
    const BundleCopy copy;
    QVERIFY(copy.open());
    QVERIFY(copy.setNib(nib));
    const auto host = std::make_shared<TestHost>(PPDText().allNine().open());
    PanelProbe panel(host, copy.open());
    host->panel = &panel;
    QVERIFY(!panel.panelView());
    QVERIFY(!panel.panelView());
    panel.willShow();
    QCOMPARE(panel.shouldPrint(), true);
    const auto keys = panel.supportedPPDOptionKeys();
    QVERIFY(keys);
    QCOMPARE(keys->size(), 9);
    host->takeTold();
    QCOMPARE(panel.saveValuesAndReturnError(nullptr), true);
    QStringList told;
    for (const Pair &pair : host->takeTold()) {
        told.append(pair.first + u'=' + pair.second);
    }
    QCOMPARE(told,
             QStringList({u"KvCutLabel=1"_s, u"KvCutAtEnd=OFF"_s, u"KvMirror=OFF"_s,
                          u"KvAutoTapeCut=OFF"_s, u"KvHalfCut=OFF"_s, u"KvChainPrint=OFF"_s,
                          u"KvSpecialTape=OFF"_s, u"KvRemoveBlkSpace=OFF"_s, u"KvCutMark=OFF"_s}));
    panel.setViewFrameSize({300, viewHeight});
    QCOMPARE(panel.restoreValuesAndReturnError(nullptr), true);
}

void PanelViewTest::viewMayBeInsideAnotherWidget()
{
    const BundleCopy copy;
    QVERIFY(copy.setNib(R"(<?xml version="1.0"?><ui version="4.0"><class>outer</class>
<widget class="QWidget" name="outer"><widget class="QWidget" name="kPDEView"/></widget></ui>)"));
    PanelDialog dialog(copy.open());
    const QPointer<QWidget> view = dialog.panel->panelView();
    QVERIFY(view);
    QCOMPARE(view->objectName(), u"kPDEView"_s);
    const QPointer<QWidget> outer = view->parentWidget();
    QVERIFY(outer);
    dialog.panel.reset();
    QVERIFY(!view);
    QVERIFY(!outer);
}

void PanelViewTest::mendedNibMakesTheView()
{
    const BundleCopy copy;
    const QByteArray whole = copy.nib();
    QVERIFY(copy.setNib(withoutView(whole)));
    PanelDialog dialog(copy.open());
    QVERIFY(!dialog.panel->panelView());
    QVERIFY(copy.setNib(whole));
    QVERIFY(dialog.panel->panelView());
}

void PanelViewTest::windowTallEnoughIsToldAtOnce_data()
{
    QTest::addColumn<int>("frameHeight");

    QTest::newRow("just taller") << viewHeight + spare + 1;
    QTest::newRow("much taller") << viewHeight + spare + 200;
}

void PanelViewTest::windowTallEnoughIsToldAtOnce()
{
    QFETCH(int, frameHeight);
    OpenDialog dialog;
    QVERIFY(dialog.open(frameHeight));
    dialog.panel->setViewFrameSize({320, viewHeight});
    QCOMPARE(dialog.host->resizes, 1);
    QCOMPARE(dialog.view->size(), QSize(320, viewHeight));
    dialog.view->move(0, 10);
    dialog.window.resize(500, 600);
    QCOMPARE(dialog.host->resizes, 1);
}

void PanelViewTest::windowTooSmallIsToldOnceItHasGrown_data()
{
    QTest::addColumn<int>("frameHeight");

    QTest::newRow("exactly as much taller") << viewHeight + spare;
    QTest::newRow("less taller") << viewHeight + 1;
    QTest::newRow("smaller") << viewHeight - 50;
}

void PanelViewTest::windowTooSmallIsToldOnceItHasGrown()
{
    QFETCH(int, frameHeight);
    OpenDialog dialog;
    QVERIFY(dialog.open(frameHeight));
    dialog.panel->setViewFrameSize({320, viewHeight});
    QCOMPARE(dialog.host->resizes, 0);
    QCOMPARE(dialog.view->size(), QSize(320, viewHeight));
    QWidget other;
    NotificationCenter::defaultCenter().postNotification(NSViewDidUpdateTrackingAreasNotification,
                                                         &other);
    QCOMPARE(dialog.host->resizes, 0);
    dialog.window.resize(400, 600);
    QVERIFY(QTest::qWaitFor([&] { return dialog.host->resizes == 1; }));
    dialog.window.resize(400, 700);
    dialog.view->move(0, 10);
    QCoreApplication::processEvents();
    QCOMPARE(dialog.host->resizes, 1);
}

void PanelViewTest::manyResizesAreToldOnceWhenTheWindowHasGrown()
{
    OpenDialog dialog;
    QVERIFY(dialog.open(viewHeight + spare));
    dialog.panel->setViewFrameSize({320, viewHeight});
    dialog.panel->setViewFrameSize({320, viewHeight});
    QCOMPARE(dialog.host->resizes, 0);
    dialog.view->move(0, 10);
    QCOMPARE(dialog.host->resizes, 1);
    dialog.view->move(0, 20);
    QCOMPARE(dialog.host->resizes, 1);
}

void PanelViewTest::resizeWithoutAnActiveWindowIsNotTold()
{
    OpenDialog dialog;
    QVERIFY(QTest::qWaitFor([] { return !QApplication::activeWindow(); }));
    dialog.panel->setViewFrameSize({320, viewHeight});
    QCOMPARE(dialog.view->size(), QSize(320, viewHeight));
    QCOMPARE(dialog.host->resizes, 0);
    QVERIFY(dialog.open(600));
    dialog.view->move(0, 10);
    QCOMPARE(dialog.host->resizes, 0);
}

void PanelViewTest::dialogThatOffersNoResizeKeepsTheSize()
{
    OpenDialog dialog;
    dialog.host->tellsResize = false;
    QVERIFY(dialog.open(600));
    dialog.panel->setViewFrameSize({320, viewHeight});
    QCOMPARE(dialog.view->size(), QSize(300, 100));
    dialog.view->move(0, 10);
    QCOMPARE(dialog.host->resizes, 0);
}

void PanelViewTest::heightsAreInPoints()
{
    const QFont font = QApplication::font();
    QFont large = font;
    large.setPixelSize(40);
    for (const bool isTallEnough : {false, true}) {
        QApplication::setFont(large);
        OpenDialog dialog;
        QApplication::setFont(font);
        const double scale = pixelsPerPoint(dialog.view);
        QVERIFY(scale > 1.5);
        QVERIFY(dialog.open(int((viewHeight + spare) * scale) + int(isTallEnough)));
        dialog.panel->setViewFrameSize({320, viewHeight});
        QCOMPARE(dialog.host->resizes, int(isTallEnough));
    }
}

void PanelViewTest::dialogNeedNotKnowOfResizes()
{
    const auto host = std::make_shared<RecordingHost>();
    RecordingPanel panel(host, testBundle());
    const QSize size = panel.panelView()->size();
    const QStringList asked = host->calls;
    panel.setViewFrameSize({320, viewHeight});
    QCOMPARE(panel.panelView()->size(), size);
    QCOMPARE(host->calls, asked);
}

void PanelViewTest::dialogMayLetTheViewGrowAndDoNoMore()
{
    OpenDialog window;
    QVERIFY(window.open(600));
    const auto host = std::make_shared<CalmHost>();
    RecordingPanel panel(host, testBundle());
    const QWidget *view = panel.panelView();
    const QStringList asked = host->calls;
    panel.setViewFrameSize({320, viewHeight});
    QCOMPARE(view->size(), QSize(320, viewHeight));
    QCOMPARE(host->calls, asked);
}

void PanelViewTest::panelThatGoesWaitsNoMore()
{
    OpenDialog dialog;
    QVERIFY(dialog.open(viewHeight + spare));
    dialog.panel->setViewFrameSize({320, viewHeight});
    const QWidget *view = dialog.view;
    dialog.panel.reset();
    NotificationCenter::defaultCenter().postNotification(NSViewDidUpdateTrackingAreasNotification,
                                                         view);
    QCOMPARE(dialog.host->resizes, 0);
}

void PanelViewTest::viewThatGoesIsWaitedForNoMore()
{
    OpenDialog dialog;
    QVERIFY(dialog.open(viewHeight + spare));
    dialog.panel->setViewFrameSize({320, viewHeight});
    // Another object may come to stand at the same place.
    const QWidget *place = dialog.view;
    delete dialog.view;
    NotificationCenter::defaultCenter().postNotification(NSViewDidUpdateTrackingAreasNotification,
                                                         place);
    QCOMPARE(dialog.host->resizes, 0);
}

void PanelViewTest::goneViewIsNotWaitedFor()
{
    OpenDialog dialog;
    QVERIFY(dialog.open(viewHeight + spare));
    delete dialog.view;
    dialog.panel->setViewFrameSize({320, viewHeight});
    NotificationCenter::defaultCenter().postNotification(NSViewDidUpdateTrackingAreasNotification,
                                                         &dialog.window);
    QCOMPARE(dialog.host->resizes, 0);
}

KV_TEST(PanelViewTest)
#include "tst_panelview.moc"
