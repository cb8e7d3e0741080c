// SPDX-License-Identifier: Apache-2.0
#include "demo/DialogDriver.h"

#include "dialog/PrintDialogAttachment.h"
#include "dialog/PrintDialogWidgets.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QPrintDialog>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

namespace {
bool clickOn(QWidget *widget, const QPoint &place)
{
    if (!widget || !widget->isVisible() || !widget->isEnabled()) {
        return false;
    }
    QTest::mouseClick(widget, Qt::LeftButton, {}, place);
    QTest::qWait(0);
    return true;
}

/// Where a check box can be clicked, whatever the style: on its mark.
QPoint markOf(const QWidget &checkBox)
{
    return {checkBox.height() / 2, checkBox.height() / 2};
}

bool pickItem(QComboBox *menu, int index)
{
    if (!menu || !menu->isVisible() || index < 0) {
        return false;
    }
    menu->setFocus();
    menu->setCurrentIndex(index);
    Q_EMIT menu->activated(index);
    QTest::qWait(0);
    return true;
}

int indexOfPaper(const QComboBox *menu, const QString &ppdName)
{
    for (int i = 0; menu && i < menu->count(); ++i) {
        if (menu->itemData(i).value<QPageSize>().key() == ppdName) {
            return i;
        }
    }
    return -1;
}
} // namespace

DialogDriver::DialogDriver(QPrintDialog &dialog)
    : mDialog(dialog)
{
}

bool DialogDriver::open()
{
    mDialog.show();
    return QTest::qWaitForWindowActive(&mDialog) && awaitPrinter();
}

bool DialogDriver::awaitPrinter()
{
    const auto *attachment = mDialog.findChild<PrintDialogAttachment *>();
    const bool isTold =
        !attachment || QTest::qWaitFor([attachment] { return !attachment->isWaiting(); });
    QTest::qWait(0);
    return isTold;
}

QWidget *DialogDriver::widget(const QString &name) const
{
    return mDialog.findChild<QWidget *>(name);
}

bool DialogDriver::showOptions()
{
    awaitPrinter();
    const QWidget *tabs = mDialog.findChild<QTabWidget *>();
    return (tabs && tabs->isVisible()) || pressButton(QDialogButtonBox::ResetRole) ||
           pressButton(QDialogButtonBox::ActionRole);
}

bool DialogDriver::showTab(const QString &title)
{
    awaitPrinter();
    auto *tabs = mDialog.findChild<QTabWidget *>();
    for (int i = 0; tabs && i < tabs->count(); ++i) {
        if (tabs->tabText(i) == title) {
            return clickOn(tabs->tabBar(), tabs->tabBar()->tabRect(i).center());
        }
    }
    return false;
}

bool DialogDriver::click(const QString &checkBox)
{
    QWidget *box = widget(checkBox);
    return box && clickOn(box, markOf(*box));
}

bool DialogDriver::pickPrinter(const QString &name)
{
    QComboBox *menu = printersMenu(mDialog);
    return pickItem(menu, menu ? menu->findText(name) : -1) && awaitPrinter();
}

bool DialogDriver::pickPaper(const QString &ppdName, bool accept)
{
    bool picked = false;
    // The Properties dialog keeps the caller until it is closed.
    QTimer::singleShot(0, &mDialog, [&picked, &ppdName, accept] {
        auto *properties = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (!properties) {
            return;
        }
        auto *menu = properties->findChild<QComboBox *>(QStringLiteral("pageSizeCombo"));
        picked = pickItem(menu, indexOfPaper(menu, ppdName));
        accept ? properties->accept() : properties->reject();
    });
    const QWidget *button = widget(QStringLiteral("properties"));
    return button && clickOn(widget(QStringLiteral("properties")), button->rect().center()) &&
           picked;
}

bool DialogDriver::print()
{
    return pressButton(QDialogButtonBox::AcceptRole);
}

bool DialogDriver::cancel()
{
    return pressButton(QDialogButtonBox::RejectRole);
}

bool DialogDriver::pressButton(int role)
{
    const auto *box = mDialog.findChild<QDialogButtonBox *>();
    const auto buttons = box ? box->buttons() : QList<QAbstractButton *>();
    for (QAbstractButton *button : buttons) {
        if (box->buttonRole(button) == role) {
            return clickOn(button, button->rect().center());
        }
    }
    return false;
}
