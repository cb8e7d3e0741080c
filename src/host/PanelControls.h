#pragma once

#include <QString>

class QWidget;

/// Works a panel's controls as its user would.
class PanelControls
{
public:
    /// @param view the panel's; must outlive this object.
    explicit PanelControls(QWidget *view);

    /**
     * Sets the control of a PPD option to a choice.
     *
     * @param index of the choice in the PPD's order, which is also a check box's state.
     * @return whether there is such a control and it now shows the choice: hidden and disabled ones
     *         take none.
     */
    bool choose(const QString &key, int index, const QString &choice);

private:
    QWidget *controlOf(const QString &key) const;

    QWidget *mView;
};
