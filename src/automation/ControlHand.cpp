// SPDX-License-Identifier: Apache-2.0
#include "automation/ControlHand.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QStyleOptionButton>
#include <QToolButton>

namespace {
void sendMouse(QWidget *widget, QEvent::Type type, QPoint place, Qt::MouseButtons held)
{
    QMouseEvent event(type, place, widget->mapToGlobal(place), Qt::LeftButton, held,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

void clickAt(QWidget *widget, QPoint place)
{
    sendMouse(widget, QEvent::MouseButtonPress, place, Qt::LeftButton);
    sendMouse(widget, QEvent::MouseButtonRelease, place, Qt::NoButton);
}

void press(QWidget *widget, Qt::Key key)
{
    QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &down);
    QKeyEvent up(QEvent::KeyRelease, key, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &up);
}

QPoint indicatorOf(const QCheckBox *box)
{
    QStyleOptionButton option;
    option.initFrom(box);
    return box->style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, box).center();
}
} // namespace

ControlHand::ControlHand(QWidget *view)
    : mView(view)
{
}

template <typename Control>
Control *ControlHand::workable(const QString &name) const
{
    auto *control = mView->findChild<Control *>(name);
    return control && control->isVisibleTo(mView) && control->isEnabledTo(mView) ? control
                                                                                 : nullptr;
}

bool ControlHand::click(const QString &box) const
{
    auto *control = workable<QCheckBox>(box);
    if (control) {
        clickAt(control, indicatorOf(control));
    }
    return control;
}

bool ControlHand::pick(const QString &menu, int tag) const
{
    auto *control = workable<QComboBox>(menu);
    const int index = control ? control->findData(tag) : -1;
    if (index < 0) {
        return false;
    }
    control->showPopup();
    QAbstractItemView *list = control->view();
    const QModelIndex item = list->model()->index(index, control->modelColumn());
    const bool isOffered = item.flags().testFlag(Qt::ItemIsEnabled);
    if (isOffered) {
        list->setCurrentIndex(item);
        press(list, Qt::Key_Return);
    }
    control->hidePopup();
    return isOffered;
}

bool ControlHand::type(const QString &field, const QString &text) const
{
    auto *control = workable<QLineEdit>(field);
    if (!control) {
        return false;
    }
    control->selectAll();
    if (text.isEmpty()) {
        press(control, Qt::Key_Delete);
    } else {
        QInputMethodEvent edit;
        edit.setCommitString(text);
        QCoreApplication::sendEvent(control, &edit);
    }
    return true;
}

bool ControlHand::step(const QString &stepper, bool up) const
{
    const auto *control = workable<QWidget>(stepper);
    auto *arrow = control ? control->findChild<QToolButton *>(up ? QStringLiteral("stepUp")
                                                                 : QStringLiteral("stepDown"))
                          : nullptr;
    if (arrow) {
        clickAt(arrow, arrow->rect().center());
    }
    return arrow;
}
