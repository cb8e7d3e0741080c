// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonObject>

class PDEPanel;
class QPixmap;
class QWidget;

/**
 * What the user sees of a panel, for a dialog that shows it with widgets of its own: the controls
 * that are not hidden, with their words and pictures.
 */
class PanelLook
{
public:
    /// @param panel has automation; it and @param view, the panel's, must outlive this object.
    /// @param scale pixels of the pictures for each pixel of the view, at least 1.
    PanelLook(PDEPanel &panel, QWidget &view, double scale);

    /// The members of the answer to "look" in docs/automation.md.
    QJsonObject toJson() const;

private:
    QJsonArray boxes() const;
    QJsonValue count() const;
    QJsonValue presets() const;
    QJsonValue preview() const;

    /// What the panel's state tells of a control; empty when it is hidden or there is none.
    QJsonObject stateOf(const QString &control) const;
    /// What is told of every control; empty when there is none of that name.
    QJsonObject look(const QString &name) const;
    /// A picture's file in base64; null for a null picture.
    QJsonValue png(const QPixmap &picture) const;

    PDEPanel &mPanel;
    QWidget &mView;
    QJsonObject mState;
    double mScale;
};
