// SPDX-License-Identifier: Apache-2.0
#include "host/PanelControls.h"

#include "cups/PPDFile.h"
#include "plugin/PDEPanel.h"
#include "printcore/QtVersions.h"

#include <QAbstractButton>
#include <QLineEdit>

#include <algorithm>

namespace {
QString keyOf(const QWidget *control)
{
    return control->property(kPPDOptionKeywordProperty).toString();
}
} // namespace

PanelControls::PanelControls(QWidget *view)
    : mView(view)
{
}

QList<QWidget *> PanelControls::controls() const
{
    QList<QWidget *> controls = mView->findChildren<QWidget *>();
    removeFrom(controls, [](const QWidget *control) {
        return control->isHidden() || keyOf(control).isEmpty();
    });
    return controls;
}

QWidget *PanelControls::controlOf(const QString &key) const
{
    for (QWidget *control : controls()) {
        if (keyOf(control) == key) {
            return control;
        }
    }
    return nullptr;
}

QList<PanelControls::Shown> PanelControls::shown() const
{
    QList<Shown> all;
    for (const QWidget *control : controls()) {
        if (const auto *box = qobject_cast<const QAbstractButton *>(control)) {
            all.append({keyOf(control), int(box->isChecked()), QString()});
        } else if (const auto *field = qobject_cast<const QLineEdit *>(control)) {
            all.append({keyOf(control), 0, field->text()});
        }
    }
    return all;
}

bool PanelControls::has(const QString &key) const
{
    const auto all = mView->findChildren<QWidget *>();
    return std::any_of(all.begin(), all.end(),
                       [&key](const QWidget *control) { return keyOf(control) == key; });
}

bool PanelControls::choose(const QString &key, int index, const QString &choice)
{
    QWidget *control = controlOf(key);
    if (auto *box = qobject_cast<QAbstractButton *>(control)) {
        const bool on = index != 0;
        if (on && !box->isEnabledTo(mView)) {
            return false;
        }
        if (box->isChecked() != on) {
            box->click();
        }
        return box->isChecked() == on;
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

QStringList PanelControls::chooseAll(QStringList keys, const JobOptions &choices,
                                     const PPDFile &ppd)
{
    QStringList left = keys;
    do {
        keys = left;
        removeFrom(left, [this, &choices, &ppd](const QString &key) {
            const QString choice = choices.value(key);
            return has(key) ? choose(key, int(ppd.choices(key).indexOf(choice)), choice)
                            : ppd.markedChoice(key) == choice;
        });
    } while (left.size() < keys.size());
    return left;
}
