// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

class QWidget;

/// Moves a window back onto its screen when it grows over an edge, where the window system lets
/// programs place their windows. A window that its user has put or enlarged over an edge stays.
class WindowPlace : public QObject
{
    Q_OBJECT

public:
    /// @param window must outlive the object.
    explicit WindowPlace(QWidget &window, QObject *parent = nullptr);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void moveBack();

    QWidget &mWindow;
};
