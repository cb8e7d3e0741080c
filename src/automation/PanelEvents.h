// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "printcore/Beep.h"

#include <QJsonArray>
#include <QObject>
#include <QSet>

/**
 * Records what panels tell the dialog, the user and the rest of the process, and answers their
 * alerts with the first button at once.
 *
 * One at a time; while it lives, the process's beeps are recorded instead of sounded.
 */
class PanelEvents : public QObject
{
    Q_OBJECT

public:
    PanelEvents();
    ~PanelEvents() override;

    void addChoice(const QString &key, const QString &choice);
    void addResize();

    /// What has been recorded since the last call, in order; each event is an array of its kind and
    /// its details.
    QJsonArray take();

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// An alert is shown, and answered, as soon as the panel is done.
    void alerted(const QString &informativeText);

private:
    void add(const QJsonArray &event) { mEvents.append(event); }
    void addAlert(const QString &informativeText);

    QJsonArray mEvents;
    Beeper mFormerBeeper;
    /// The alerts that have been reported and are still to be shown. They may have been deleted:
    /// only their addresses are compared.
    QSet<const QObject *> mPolished;
};
