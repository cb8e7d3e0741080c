// SPDX-License-Identifier: Apache-2.0
#include "AccessTree.h"
#include "PanelDialog.h"
#include "support/CheckedStyles.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QShortcut>

/// The panel worked in Qt's print dialog without a mouse.
class KeyboardTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void tabKeyFollowsTheEye();
    void tabKeySkipsWhatIsGreyed();
    void spaceTicksABox();
    void keysMoveTheCount_data();
    void keysMoveTheCount();
    void otherKeysStayTheFields();
    void greyedCountIsNotMoved();
    void menuIsWorkedByKeys();
    void focusIsSeen_data();
    void focusIsSeen();
    void panelHasNoMnemonics();

private:
    QString mStyle;
};

namespace {

bool isFurther(const QWidget *from, const QWidget *to)
{
    const QPoint start = from->geometry().center();
    const QPoint end = to->geometry().center();
    const bool isNextColumn = to->x() > from->geometry().right();
    const bool isSameLine = std::abs(start.y() - end.y()) < 4;
    return isNextColumn || (isSameLine ? end.x() > start.x() : end.y() > start.y());
}

/// The widget as it looks once its style has faded the focus in or out; null when it never rests.
QImage pictureAtRest(QWidget *widget)
{
    constexpr int looksAtRest = 15;
    QImage picture;
    int looks = 0;
    const bool isAtRest = QTest::qWaitFor([&] {
        const QImage now = widget->grab().toImage();
        looks = now == picture ? looks + 1 : 0;
        picture = now;
        return looks == looksAtRest;
    });
    return isAtRest ? picture : QImage();
}
} // namespace

void KeyboardTest::initTestCase()
{
    mStyle = QApplication::style()->objectName();
    // The field's cursor does not blink.
    QApplication::setCursorFlashTime(0);
}

void KeyboardTest::cleanup()
{
    QApplication::setStyle(mStyle);
}

void KeyboardTest::tabKeyFollowsTheEye()
{
    PanelFixture fixture;
    PanelDialog dialog(fixture);
    QVERIFY(dialog.isReady());
    const QList<QWidget *> order = dialog.tabOrder();
    QCOMPARE(order.size(), 12);
    QCOMPARE(order.first(), fixture.box(OptionCatalogue::CutMark));
    for (qsizetype i = 1; i < order.size(); ++i) {
        QVERIFY2(isFurther(order.at(i - 1), order.at(i)), qPrintable(order.at(i)->objectName()));
    }
    QCOMPARE(order.last(), fixture.panel->mOptionPopUpButton);
}

void KeyboardTest::tabKeySkipsWhatIsGreyed()
{
    PanelFixture fixture;
    PanelDialog dialog(fixture);
    QVERIFY(dialog.isReady());
    fixture.click(OptionCatalogue::SpecialTape);
    const QList<QWidget *> order = dialog.tabOrder();
    QCOMPARE(order.size(), 12 - 6);
    for (const QWidget *control : order) {
        QVERIFY(control->isEnabled());
    }
}

void KeyboardTest::spaceTicksABox()
{
    PanelFixture fixture;
    PanelDialog dialog(fixture);
    QVERIFY(dialog.isReady());
    fixture.takeTold();
    fixture.box(halfCut)->setFocus(Qt::TabFocusReason);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QVERIFY(fixture.isOn(halfCut));
    QCOMPARE(fixture.takeTold(), QStringList(u"KvHalfCut=ON"_s));
}

void KeyboardTest::keysMoveTheCount_data()
{
    QTest::addColumn<bool>("inField");
    QTest::addColumn<QList<int>>("keys");
    QTest::addColumn<int>("count");
    for (const bool inField : {false, true}) {
        const char *where = inField ? "field" : "stepper";
        QTest::addRow("%s, up", where) << inField << QList<int>{Qt::Key_Up} << 8;
        QTest::addRow("%s, down", where) << inField << QList<int>{Qt::Key_Down} << 6;
        QTest::addRow("%s, page up", where) << inField << QList<int>{Qt::Key_PageUp} << 17;
        QTest::addRow("%s, page down", where) << inField << QList<int>{Qt::Key_PageDown} << 1;
        QTest::addRow("%s, several", where)
            << inField << QList<int>{Qt::Key_PageUp, Qt::Key_Up, Qt::Key_Up} << 19;
    }
}

void KeyboardTest::keysMoveTheCount()
{
    QFETCH(bool, inField);
    QFETCH(QList<int>, keys);
    QFETCH(int, count);
    PanelFixture fixture(tapePrinter());
    PanelDialog dialog(fixture);
    QVERIFY(dialog.isReady());
    fixture.click(cutEvery);
    QWidget *control = inField ? static_cast<QWidget *>(fixture.panel->mCutEveryTxBx)
                               : fixture.panel->mCutEveryStpr;
    control->setFocus(Qt::TabFocusReason);
    fixture.takeTold();
    for (const int key : keys) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key));
    }
    QCOMPARE(fixture.panel->mCutEveryTxBx->text(), QString::number(count));
    QCOMPARE(fixture.panel->mCutEveryStpr->intValue(), count);
    QCOMPARE(fixture.takeTold().last(), u"KvCutLabel=%1"_s.arg(count));
}

void KeyboardTest::otherKeysStayTheFields()
{
    PanelFixture fixture(tapePrinter());
    PanelDialog dialog(fixture);
    QVERIFY(dialog.isReady());
    fixture.click(cutEvery);
    QLineEdit *field = fixture.panel->mCutEveryTxBx;
    field->setFocus(Qt::TabFocusReason);
    field->selectAll();
    QTest::keyClicks(field, u"42"_s);
    QTest::keyClick(field, Qt::Key_Up, Qt::ControlModifier);
    QCOMPARE(field->text(), u"42"_s);
    QTest::keyClick(field, Qt::Key_Backspace);
    QCOMPARE(field->text(), u"4"_s);
}

void KeyboardTest::greyedCountIsNotMoved()
{
    PanelFixture fixture(tapePrinter());
    PanelDialog dialog(fixture);
    QVERIFY(dialog.isReady());
    fixture.takeTold();
    QVERIFY(!fixture.panel->mCutEveryStpr->isEnabled());
    QKeyEvent key(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier);
    QVERIFY(!fixture.panel->mCutEveryStpr->eventFilter(fixture.panel->mCutEveryTxBx, &key));
    QCOMPARE(fixture.takeTold(), QStringList());
}

void KeyboardTest::menuIsWorkedByKeys()
{
    PanelFixture fixture(tapePrinter());
    PanelDialog dialog(fixture);
    QVERIFY(dialog.isReady());
    PopUpButton *menu = fixture.panel->mOptionPopUpButton;
    menu->setFocus(Qt::TabFocusReason);
    QTest::keyClick(menu, Qt::Key_Down);
    QCOMPARE(fixture.selectedTag(), 6);
    QTest::keyClick(menu, Qt::Key_Space);
    QVERIFY(menu->view()->isVisible());
    QTest::keyClick(menu->view(), Qt::Key_Down);
    QTest::keyClick(menu->view(), Qt::Key_Return);
    QVERIFY(!menu->view()->isVisible());
    QCOMPARE(fixture.selectedTag(), 7);
    QCOMPARE(fixture.optionsOn(), QList<Option>{halfCut});
}

void KeyboardTest::focusIsSeen_data()
{
    QTest::addColumn<QString>("style");
    const QStringList styles = checkedStyles();
    for (const QString &style : styles) {
        QTest::newRow(qPrintable(style)) << style;
    }
}

void KeyboardTest::focusIsSeen()
{
    QFETCH(QString, style);
    QApplication::setStyle(style);
    PanelFixture fixture(tapePrinter());
    PanelDialog dialog(fixture);
    QVERIFY(dialog.isReady());
    fixture.click(cutEvery);
    const QList<QWidget *> controls = {fixture.box(halfCut), fixture.panel->mCutEveryTxBx,
                                       fixture.panel->mCutEveryStpr,
                                       fixture.panel->mOptionPopUpButton};
    // The dialog knows that the keyboard is used once a key has moved the focus.
    fixture.box(halfCut)->setFocus(Qt::TabFocusReason);
    QTest::keyClick(fixture.box(halfCut), Qt::Key_Tab);
    for (QWidget *control : controls) {
        fixture.box(OptionCatalogue::RemoveBlkSpace)->setFocus(Qt::TabFocusReason);
        const QImage without = pictureAtRest(control);
        control->setFocus(Qt::TabFocusReason);
        QVERIFY(control->hasFocus());
        if (auto *field = qobject_cast<QLineEdit *>(control)) {
            field->deselect();
        }
        const QImage with = pictureAtRest(control);
        QVERIFY(!without.isNull() && !with.isNull());
        QVERIFY2(with != without, qPrintable(control->objectName()));
    }
}

void KeyboardTest::panelHasNoMnemonics()
{
    PanelFixture fixture;
    PanelDialog dialog(fixture);
    QVERIFY(dialog.isReady());
    const QWidget *view = fixture.panel->kPDEView;
    QCOMPARE(view->findChildren<QShortcut *>().size(), 0);
    const auto buttons = view->findChildren<QAbstractButton *>();
    for (const QAbstractButton *button : buttons) {
        QVERIFY(button->shortcut().isEmpty());
        QVERIFY(accessOf(button)->text(QAccessible::Accelerator).isEmpty());
    }
    QVERIFY(buttons.size() >= 9);
    QVERIFY(!fixture.panel->mCutEveryStr->text().contains(u'&'));
    // Those of the dialog around it still work.
    QVERIFY(!dialog.dialog().findChildren<QWidget *>(u"properties"_s).isEmpty());
}

KV_TEST(KeyboardTest)
#include "tst_keyboard.moc"
