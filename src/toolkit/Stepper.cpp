#include "toolkit/Stepper.h"

#include <QKeyEvent>
#include <QToolButton>
#include <QWheelEvent>

#include <algorithm>
#include <limits>

Stepper::Stepper(QWidget *parent)
    : QWidget(parent)
    , mUp(addArrow(QStringLiteral("stepUp"), Qt::UpArrow, 1))
    , mDown(addArrow(QStringLiteral("stepDown"), Qt::DownArrow, -1))
{
    setFocusPolicy(Qt::StrongFocus);
}

QToolButton *Stepper::addArrow(const QString &name, Qt::ArrowType arrow, int by)
{
    auto *button = new QToolButton(this);
    button->setObjectName(name);
    button->setArrowType(arrow);
    button->setAutoRepeat(true);
    button->setFocusPolicy(Qt::NoFocus);
    connect(button, &QToolButton::clicked, this, [this, by] { step(by); });
    return button;
}

void Stepper::setIntValue(qint32 value)
{
    mValue = value;
}

void Stepper::setStepNames(const QString &increase, const QString &decrease)
{
    mUp->setToolTip(increase);
    mUp->setAccessibleName(increase);
    mDown->setToolTip(decrease);
    mDown->setAccessibleName(decrease);
}

void Stepper::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Up) {
        step(1);
    } else if (event->key() == Qt::Key_Down) {
        step(-1);
    } else {
        QWidget::keyPressEvent(event);
    }
}

void Stepper::resizeEvent(QResizeEvent *)
{
    const int half = height() / 2;
    mUp->setGeometry(0, 0, width(), half);
    mDown->setGeometry(0, half, width(), height() - half);
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
    constexpr qint64 least = std::numeric_limits<qint32>::min();
    constexpr qint64 most = std::numeric_limits<qint32>::max();
    mValue = qint32(std::clamp(qint64(mValue) + by, least, most));
    Q_EMIT stepped();
}
