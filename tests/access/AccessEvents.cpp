// SPDX-License-Identifier: Apache-2.0
#include "AccessEvents.h"

#include <QCoreApplication>

namespace {
AccessEvents *recorder = nullptr;
} // namespace

// These take the place of Qt's own in this program: without a display there is no assistive
// technology, and Qt would tell nobody.
void QAccessible::updateAccessibility(QAccessibleEvent *event)
{
    AccessEvents::note(*event);
}

bool QAccessible::isActive()
{
    return AccessEvents::isSomebodyListening;
}

AccessEvents::AccessEvents()
{
    recorder = this;
}

AccessEvents::~AccessEvents()
{
    recorder = nullptr;
}

void AccessEvents::note(const QAccessibleEvent &event)
{
    if (recorder) {
        const bool isValue = event.type() == QAccessible::ValueChanged;
        recorder->mTold.append(
            {event.object(), event.type(),
             isValue ? static_cast<const QAccessibleValueChangeEvent &>(event).value().toString()
                     : QString()});
    }
}

QStringList AccessEvents::takeValues(const QObject *object)
{
    QStringList values;
    for (const Told &told : std::as_const(mTold)) {
        if (told.object == object && told.type == QAccessible::ValueChanged) {
            values.append(told.value);
        }
    }
    take(object, QAccessible::ValueChanged);
    return values;
}

int AccessEvents::take(const QObject *object, QAccessible::Event type)
{
    QCoreApplication::sendPostedEvents();
    int count = 0;
    for (qsizetype i = mTold.size() - 1; i >= 0; --i) {
        if (mTold.at(i).object == object && mTold.at(i).type == type) {
            mTold.removeAt(i);
            ++count;
        }
    }
    return count;
}
