// SPDX-License-Identifier: Apache-2.0
#include "toolkit/Stepper.h"

#include "toolkit/AccessibleRegistration.h"
#include "toolkit/StepperAccessible.h"

#include <QKeyEvent>
#include <QPainter>
#include <QToolButton>
#include <QWheelEvent>

#include <algorithm>

namespace {
/// Around the arrows, for the mark of the keyboard's focus.
constexpr int focusMargin = 1;

struct StepKey
{
    int key;
    int by;
};

constexpr StepKey stepKeys[] = {
    {Qt::Key_Up, 1}, {Qt::Key_Down, -1}, {Qt::Key_PageUp, 10}, {Qt::Key_PageDown, -10}};
} // namespace

Stepper::Stepper(QWidget *parent)
    : QWidget(parent)
    , mUp(addArrow(QStringLiteral("stepUp"), Qt::UpArrow, 1))
    , mDown(addArrow(QStringLiteral("stepDown"), Qt::DownArrow, -1))
{
    static const AccessibleRegistration<Stepper, StepperAccessible> registration;
    setFocusPolicy(Qt::StrongFocus);
}

QToolButton *Stepper::addArrow(const QString &name, Qt::ArrowType arrow, int by)
{
    auto *button = new QToolButton(this);
    button->setObjectName(name);
    button->setArrowType(arrow);
    button->setAutoRepeat(true);
    button->setFocusPolicy(Qt::NoFocus);
    button->installEventFilter(this);
    connect(button, &QToolButton::clicked, this, [this, by] { step(by); });
    return button;
}

void Stepper::setIntValue(qint32 value)
{
    if (value != mValue) {
        mValue = value;
        QAccessibleValueChangeEvent event(this, value);
        QAccessible::updateAccessibility(&event);
    }
}

void Stepper::chooseValue(qint64 value)
{
    constexpr qint64 least = std::numeric_limits<qint32>::min();
    constexpr qint64 most = std::numeric_limits<qint32>::max();
    setIntValue(qint32(std::clamp(value, least, most)));
    Q_EMIT stepped();
}

void Stepper::setBounds(qint32 smallest, qint32 largest)
{
    mSmallest = smallest;
    mLargest = largest;
}

void Stepper::setStepNames(const QString &increase, const QString &decrease)
{
    mUp->setAccessibleName(increase);
    mUp->setToolTip(increase);
    mDown->setAccessibleName(decrease);
    mDown->setToolTip(decrease);
}

void Stepper::setField(QWidget *field)
{
    if (field) {
        field->installEventFilter(this);
    }
}

bool Stepper::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ToolTip && watched->parent() == this && !isEnabled()) {
        // It goes on to the stepper, whose tip says why.
        event->ignore();
        return true;
    }
    return event->type() == QEvent::KeyPress && isEnabled() &&
           stepByKey(*static_cast<QKeyEvent *>(event));
}

bool Stepper::stepByKey(const QKeyEvent &event)
{
    const auto modifiers = event.modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier);
    const auto *key = std::find_if(std::begin(stepKeys), std::end(stepKeys),
                                   [&event](const StepKey &k) { return k.key == event.key(); });
    if (modifiers != Qt::NoModifier || key == std::end(stepKeys)) {
        return false;
    }
    step(key->by);
    return true;
}

void Stepper::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    update();
}

void Stepper::focusOutEvent(QFocusEvent *event)
{
    QWidget::focusOutEvent(event);
    update();
}

void Stepper::keyPressEvent(QKeyEvent *event)
{
    if (!stepByKey(*event)) {
        QWidget::keyPressEvent(event);
    }
}

void Stepper::paintEvent(QPaintEvent *)
{
    if (hasFocus()) {
        QPainter painter(this);
        painter.setPen(palette().color(QPalette::Highlight));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void Stepper::resizeEvent(QResizeEvent *)
{
    const QRect arrows = rect().adjusted(focusMargin, focusMargin, -focusMargin, -focusMargin);
    const int half = arrows.height() / 2;
    mUp->setGeometry(arrows.x(), arrows.y(), arrows.width(), half);
    mDown->setGeometry(arrows.x(), arrows.y() + half, arrows.width(), arrows.height() - half);
}

void Stepper::wheelEvent(QWheelEvent *event)
{
    if (const int delta = event->angleDelta().y()) {
        step(delta > 0 ? 1 : -1);
    }
    event->accept();
}

void Stepper::step(int by)
{
    chooseValue(qint64(mValue) + by);
}

#include "moc_Stepper.cpp"
