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
    if (event->type() == QEvent::Show) {
        if (auto *alert = qobject_cast<QMessageBox *>(watched)) {
            add({QStringLiteral("alert"), alert->informativeText()});
            answerSoon(alert);
            Q_EMIT alerted(alert->informativeText());
        }
    }
    return false;
}

#include "moc_PanelEvents.cpp"
