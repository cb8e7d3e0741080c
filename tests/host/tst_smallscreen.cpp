// SPDX-License-Identifier: Apache-2.0
#include "AttachedDialog.h"
#include "PanelUser.h"
#include "PrintingSite.h"

#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>
#include <QTest>

/// The dialog of the printer with most options on screens that are low, or at the edge of one.
class tst_smallscreen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void tabUsesTheFreeScreen();
    void grownDialogComesBackOntoTheScreen_data();
    void grownDialogComesBackOntoTheScreen();
    void dialogThatItsUserPutOverTheEdgeStays();

private: // NOLINT(readability-redundant-access-specifiers)
    PrintingSite mSite;
};

namespace {
/// Turns to the panel's tab and waits until the dialog has grown; the tab, null when it has not.
const QScrollArea *openTab(AttachedDialog &dialog)
{
    if (!dialog.openTab()) {
        return nullptr;
    }
    const auto *tab = dialog.dialog().findChild<QScrollArea *>(QStringLiteral("panelTab"));
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

void tst_smallscreen::initTestCase()
{
    QCOMPARE(mSite.open(), QString());
}

void tst_smallscreen::tabUsesTheFreeScreen()
{
    AttachedDialog dialog(QStringLiteral("all"));
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
    QVERIFY(PanelUser(dialog.user()).openTab());
    QCOMPARE(dialog.dialog().size(), size);
}

void tst_smallscreen::grownDialogComesBackOntoTheScreen_data()
{
    QTest::addColumn<QPoint>("corner");
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QTest::newRow("right") << QPoint(screen.right() - 400, 0);
    QTest::newRow("bottom") << QPoint(0, screen.bottom() - 150);
    QTest::newRow("left") << QPoint(-30, 0);
    QTest::newRow("corner") << QPoint(screen.right() - 400, screen.bottom() - 150);
}

void tst_smallscreen::grownDialogComesBackOntoTheScreen()
{
    QFETCH(const QPoint, corner);
    AttachedDialog dialog(QStringLiteral("all"));
    QVERIFY(dialog.user().open());
    dialog.dialog().move(corner);
    QVERIFY(openTab(dialog));
    const QRect screen = dialog.dialog().screen()->availableGeometry();
    QVERIFY(QTest::qWaitFor([&] { return isWithin(dialog.dialog().frameGeometry(), screen); }));
}

void tst_smallscreen::dialogThatItsUserPutOverTheEdgeStays()
{
    AttachedDialog dialog(QStringLiteral("all"));
    QVERIFY(openTab(dialog));
    QTest::qWait(0);
    dialog.dialog().move(-30, -20);
    QTest::qWait(0);
    const QPoint corner = dialog.dialog().pos();
    QVERIFY(corner.x() < 0 && corner.y() < 0);
    QVERIFY(dialog.user().showTab(kSummaryTab));
    QVERIFY(PanelUser(dialog.user()).openTab());
    QTest::qWait(0);
    QCOMPARE(dialog.dialog().pos(), corner);
}

KV_TEST(tst_smallscreen)
#include "tst_smallscreen.moc"
