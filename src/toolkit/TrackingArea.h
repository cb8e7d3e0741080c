// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

class QWidget;

/// The name of the notification that TrackingArea posts, with the view as its object.
inline const QString NSViewDidUpdateTrackingAreasNotification =
    QStringLiteral("NSViewDidUpdateTrackingAreasNotification");

/**
 * Posts on the default notification centre whenever a view's place on the screen has changed: when
 * the view is shown, moved or resized, or the window around it is resized.
 */
class TrackingArea : public QObject
{
    Q_OBJECT

public:
    /// Watches the view, which owns the tracking area.
    explicit TrackingArea(QWidget *view);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void watchWindow();

    QWidget *mView;
    QPointer<QWidget> mWindow;
};
