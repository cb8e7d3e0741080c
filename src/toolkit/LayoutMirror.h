// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

class QWidget;

/**
 * Keeps the controls of a nib where the reading direction wants them: as they were drawn from left
 * to right, mirrored from right to left, also when the direction or the nib's width changes.
 */
class LayoutMirror : public QObject
{
    Q_OBJECT

public:
    /// Mirrors the controls of a nib, drawn from left to right, if need be; the nib owns the
    /// mirror.
    explicit LayoutMirror(QWidget *nib);

    /// Moves mirrored controls with the right edge of a nib that has got another width.
    void followWidth();

    /// Whether the control stands in a nib whose controls are mirrored now.
    static bool isMirrored(const QWidget *control);
    /// The place x of a control, mirrored in its parent; the mirrored one's place is x again.
    static int mirrored(const QWidget *control, int x);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void followDirection();
    QList<QWidget *> controls() const;

    QWidget *mNib;
    int mWidth;
    bool mIsMirrored = false;
};
