#include "host/PanelControls.h"

#include "plugin/PDEPanel.h"

#include <QAbstractButton>
#include <QLineEdit>

PanelControls::PanelControls(QWidget *view)
    : mView(view)
{
}

QWidget *PanelControls::controlOf(const QString &key) const
{
    const auto controls = mView->findChildren<QWidget *>();
    for (QWidget *control : controls) {
        if (!control->isHidden() &&
            control->property(kPPDOptionKeywordProperty).toString() == key) {
            return control;
        }
    }
    return nullptr;
}

bool PanelControls::choose(const QString &key, int index, const QString &choice)
{
    QWidget *control = controlOf(key);
    if (auto *box = qobject_cast<QAbstractButton *>(control)) {
        if (box->isChecked() != (index != 0)) {
            box->click();
        }
        return box->isChecked() == (index != 0);
    }
    if (auto *field = qobject_cast<QLineEdit *>(control)) {
        if (field->text() != choice && field->isEnabledTo(mView)) {
            field->setText(choice);
            Q_EMIT field->textEdited(choice);
        }
        return field->text() == choice;
    }
    return false;
}
