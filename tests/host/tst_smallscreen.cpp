// SPDX-License-Identifier: Apache-2.0
#include "AttachedDialog.h"
#include "PanelUser.h"
#include "PrintingTest.h"

#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>
#include <QTest>

/// The dialog of the printer with most options on screens that are low, or at the edge of one.
class tst_smallscreen : public PrintingTest
{
    Q_OBJECT

private Q_SLOTS:
    void tabUsesTheFreeScreen();
    void grownDialogComesBackOntoTheScreen_data();
    void grownDialogComesBackOntoTheScreen();
    void dialogThatItsUserPutOverTheEdgeStays();
};

namespace {
/// Turns to the panel's tab and waits until the dialog has grown; the tab, null when it has not.
const QScrollArea *openTab(AttachedDialog &dialog)
{
    if (!dialog.openTab()) {
        return nullptr;
    }
    const auto *tab = dialog.dialog().findChild<QScrollArea *>(u"panelTab"_s);
    const bool isGrown =
        QTest::qWaitFor([tab] { return tab->viewport()->width() >= tab->widget()->width(); });
    return isGrown ? tab : nullptr;
}

/// Whether a stretch is within the room, or begins with it where it is longer.
bool isWithin(int begin, int length, int roomBegin, int roomLength)
{
    return length > roomLength ? begin == roomBegin
                               : begin >= roomBegin && begin + length <= roomBegin + roomLength;
}

bool isWithin(const QRect &frame, const QRect &screen)
{
    return isWithin(frame.x(), frame.width(), screen.x(), screen.width()) &&
           isWithin(frame.y(), frame.height(), screen.y(), screen.height());
}
} // namespace

void tst_smallscreen::tabUsesTheFreeScreen()
{
    AttachedDialog dialog(u"all"_s);
    const QScrollArea *tab = openTab(dialog);
    QVERIFY(tab);
    const int screen = dialog.dialog().screen()->availableGeometry().height();
    const int around = dialog.dialog().frameGeometry().height() - tab->height();
    // A part of the view is hidden only when the whole would not fit on the screen.
    const bool fits = around + tab->widget()->height() <= screen;
    QVERIFY(QTest::qWaitFor([&] { return tab->verticalScrollBar()->isVisible() == !fits; }));
    QVERIFY(QTest::qWaitFor([&] { return !tab->horizontalScrollBar()->isVisible(); }));
    const int height = dialog.dialog().frameGeometry().height();
    // Units that are no whole numbers of pixels are rounded at each edge.
    const bool isAllUsed = height <= screen && height >= screen - 2;
    QVERIFY2(fits ? height <= screen : isAllUsed, qPrintable(QString::number(height)));
    // Neither does it change when the tab is seen once more.
    QVERIFY(dialog.user().showTab(kSummaryTab));
    const QSize size = dialog.dialog().size();
    QVERIFY(dialog.panel().openTab());
    QCOMPARE(dialog.dialog().size(), size);
}

void tst_smallscreen::grownDialogComesBackOntoTheScreen_data()
{
    const TestTable<QPoint> table("corner");
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    table.add("right", QPoint(screen.right() - 400, 0));
    table.add("bottom", QPoint(0, screen.bottom() - 150));
    table.add("left", QPoint(-30, 0));
    table.add("corner", QPoint(screen.right() - 400, screen.bottom() - 150));
}

void tst_smallscreen::grownDialogComesBackOntoTheScreen()
{
    QFETCH(const QPoint, corner);
    AttachedDialog dialog(u"all"_s);
    QVERIFY(dialog.user().open());
    dialog.dialog().move(corner);
    QVERIFY(openTab(dialog));
    const QRect screen = dialog.dialog().screen()->availableGeometry();
    QVERIFY(QTest::qWaitFor([&] { return isWithin(dialog.dialog().frameGeometry(), screen); }));
}

void tst_smallscreen::dialogThatItsUserPutOverTheEdgeStays()
{
    AttachedDialog dialog(u"all"_s);
    QVERIFY(openTab(dialog));
    QTest::qWait(0);
    dialog.dialog().move(-30, -20);
    QTest::qWait(0);
    const QPoint corner = dialog.dialog().pos();
    QVERIFY(corner.x() < 0 && corner.y() < 0);
    QVERIFY(dialog.user().showTab(kSummaryTab));
    QVERIFY(dialog.panel().openTab());
    QTest::qWait(0);
    QCOMPARE(dialog.dialog().pos(), corner);
}

KV_TEST(tst_smallscreen)
#include "tst_smallscreen.moc"
