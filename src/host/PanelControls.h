// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "cups/JobOptions.h"

#include <QList>
#include <QString>

class PPDFile;
class QWidget;

/// Works a panel's controls as its user would.
class PanelControls
{
public:
    /// What a control shows: the choice of a PPD option.
    struct Shown
    {
        QString key;
        /// Index of the choice in the PPD's order, for a check box.
        int index;
        /// Keyword of the choice, for a text field.
        QString choice;
    };

    /// @param view the panel's; must outlive this object.
    explicit PanelControls(QWidget *view);

    /// What every control shows that is not hidden, in the view's order.
    QList<Shown> shown() const;

    /// Whether a control, be it hidden, names the PPD option.
    bool has(const QString &key) const;

    /**
     * Sets the control of a PPD option to a choice.
     *
     * @param index of the choice in the PPD's order, which is also a check box's state.
     * @return whether there is such a control and it now shows the choice. Hidden and disabled ones
     *         take none, and a disabled box counts as off.
     */
    bool choose(const QString &key, int index, const QString &choice);

    /**
     * Sets the controls of some options to these choices, as long as one choice makes room for
     * another. A panel that has no control for a key shows the choice that is marked.
     *
     * @return the keys whose choice no control takes, or that is not marked any more.
     */
    QStringList chooseAll(QStringList keys, const JobOptions &choices, const PPDFile &ppd);

private:
    QList<QWidget *> controls() const;
    QWidget *controlOf(const QString &key) const;

    QWidget *mView;
};
