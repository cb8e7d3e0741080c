// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QCheckBox>

/**
 * A check box with two states that keeps within its frame: a title that does not fit is elided, and
 * shown whole in front of the tool tip.
 */
class CheckBox : public QCheckBox
{
    Q_OBJECT

public:
    explicit CheckBox(QWidget *parent = nullptr);

    /// The title as it was set, with no mnemonic; before that the nib's.
    QString title() const { return mTitle.isNull() ? text() : mTitle; }
    void setTitle(const QString &title);

    /// How wide, in pixels, the box has to be for the whole of a title.
    int widthForTitle(const QString &title) const;

    /// Ticks the box, or takes the tick away, for the program: chosen() is not emitted.
    void setState(bool on);

Q_SIGNALS:
    /// The box has been ticked or unticked by other means than setState(): a click, a key,
    /// assistive technology or setChecked().
    void chosen();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QString elidedTitle() const;
    void noteToggle();

    QString mTitle;
    bool mIsSetByProgram = false;
};
