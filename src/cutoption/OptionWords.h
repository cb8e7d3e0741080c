// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAccessible>
#include <QObject>

#include <memory>

class Bundle;
struct GreyReason;
struct OptionOutlets;
struct OptionRecords;
struct OptionRow;

/**
 * What the controls' tool tips say, and with the same words their descriptions for assistive
 * technology: what each control does or why it is greyed, and what the strip will look like.
 *
 * The words are worked out when a tool tip is asked for. While assistive technology is active,
 * which wants to hear of every change, they are worked out from the event loop, once for all the
 * changes before.
 */
class OptionWords : public QObject, private QAccessible::ActivationObserver
{
    Q_OBJECT

public:
    /// @param outlets, records the panel's; they must outlive this object.
    OptionWords(const OptionOutlets &outlets, const OptionRecords &records,
                std::shared_ptr<Bundle> bundle);
    ~OptionWords() override;

    /// Names the controls of a nib that has been laid out, and answers for their tool tips from
    /// then on.
    void nameControls(bool isLabelSeries);

    /// A control, an option's choice or the paper has changed.
    void noteChange(bool hasFlagPaper);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void accessibilityActiveChanged(bool active) override;

    void updateLater();
    void update();
    void explainOptions();
    void explainCount();

    /// The causes that are given now for the option's controls to be greyed, of GreyReason::Cause.
    quint32 greyCauses(const OptionRow &row) const;
    QString textOf(const GreyReason &reason) const;
    QString countHelp() const;
    QString stripText() const;
    QString localized(const char *key) const;

    const OptionOutlets &mOutlets;
    const OptionRecords &mRecords;
    std::shared_ptr<Bundle> mBundle;
    bool mIsLabelSeries = false;
    bool mHasFlagPaper = false;
    /// Whether something has changed since the words were worked out.
    bool mIsStale = true;
    bool mIsUpdatePending = false;
};
