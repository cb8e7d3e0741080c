// SPDX-License-Identifier: Apache-2.0
#include "automation/PanelEvents.h"

#include "plugin/PDEPanel.h"
#include "printcore/NotificationCenter.h"
#include "toolkit/TrackingArea.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTimer>

namespace {
/// Whether a notification comes from the dialog or the toolkit, and not from a panel.
bool isForeign(const QString &name)
{
    return name == kPaperDidChangeNotification || name == NSViewDidUpdateTrackingAreasNotification;
}

void answerSoon(QMessageBox *alert)
{
    QTimer::singleShot(0, alert, [alert] { alert->buttons().constFirst()->click(); });
}
} // namespace

PanelEvents::PanelEvents()
    : mFormerBeeper(setBeeper([this] { add({QStringLiteral("beep")}); }))
{
    qApp->installEventFilter(this);
    NotificationCenter::defaultCenter().addObserver(
        this,
        [this](const Notification &notification) {
            if (!isForeign(notification.name)) {
                add({QStringLiteral("notification"), notification.name});
            }
        },
        QString());
}

PanelEvents::~PanelEvents()
{
    NotificationCenter::defaultCenter().removeObserver(this);
    setBeeper(std::move(mFormerBeeper));
}

void PanelEvents::addChoice(const QString &key, const QString &choice)
{
    add({QStringLiteral("willChange"), key, choice});
}

void PanelEvents::addResize()
{
    add({QStringLiteral("resized")});
}

QJsonArray PanelEvents::take()
{
    return std::exchange(mEvents, QJsonArray());
}

bool PanelEvents::eventFilter(QObject *watched, QEvent *event)
{
    auto *alert = qobject_cast<QMessageBox *>(watched);
    if (!alert) {
        return false;
    }
    // A new one is polished before it is shown: the cut-option panel's at once, to be shown when
    // the panel is done.
    if (event->type() == QEvent::Polish) {
        mPolished.insert(alert);
        addAlert(alert->informativeText());
    } else if (event->type() == QEvent::Show) {
        if (!mPolished.remove(alert)) {
            addAlert(alert->informativeText());
        }
        answerSoon(alert);
    }
    return false;
}

void PanelEvents::addAlert(const QString &informativeText)
{
    add({QStringLiteral("alert"), informativeText});
    Q_EMIT alerted(informativeText);
}

#include "moc_PanelEvents.cpp"
