// SPDX-License-Identifier: Apache-2.0
#include "ThermalPanel.h"

#include <textinput/FieldEdits.h>
#include <toolkit/CheckBox.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

ThermalPanel::ThermalPanel(std::shared_ptr<PDEPluginCallback13_v400_> dialog,
                           std::shared_ptr<Bundle> bundle)
    : BasePDE13_v400_(std::move(dialog), std::move(bundle))
{
    QStringList keys;
    for (const char *key : {"ExPrintSpeed", "ExDarkness", "ExPeelOff"}) {
        if (const ppd_option_t *option = ppdFindOption(ppd, key)) {
            keys.append(QString::fromLatin1(key));
            mOptions.push_back({keys.last(), ChoiceList(option), nullptr});
        }
    }
    setSupportedOptions(keys);
}

void ThermalPanel::awakeFromNib()
{
    for (Option &option : mOptions) {
        const auto choose = [this, &option](int index) {
            selectionForItem(index, option.key, option.choices, 0);
        };
        option.control = kPDEView->findChild<QWidget *>(option.key);
        if (auto *title = kPDEView->findChild<QLabel *>(option.key + QLatin1String("Title"))) {
            title->setText(text(option.key));
        }
        if (auto *menu = qobject_cast<QComboBox *>(option.control)) {
            for (int i = 0; i < option.choices.size(); ++i) {
                menu->addItem(text(option.choices.at(i)->userTitle()), i);
            }
            connect(menu, qOverload<int>(&QComboBox::activated), this, choose);
        } else if (auto *field = qobject_cast<QLineEdit *>(option.control)) {
            connect(field, &QLineEdit::textEdited, this, [choose, &option](const QString &number) {
                choose(option.choices.indexOf(number));
            });
        } else if (auto *box = qobject_cast<CheckBox *>(option.control)) {
            box->setTitle(text(option.key));
            connect(box, &CheckBox::chosen, this, [choose, box] { choose(box->isChecked()); });
        }
    }
}

void ThermalPanel::setPDEItems()
{
    for (const Option &option : mOptions) {
        const int index = indexOfMarkedOption(option.choices, option.key);
        if (auto *menu = qobject_cast<QComboBox *>(option.control)) {
            menu->setCurrentIndex(index);
        } else if (auto *field = qobject_cast<QLineEdit *>(option.control); field && index >= 0) {
            FieldEdits::setText(field, option.choices.at(index)->ppdTitle());
        } else if (auto *box = qobject_cast<CheckBox *>(option.control)) {
            box->setState(index == 1);
        }
    }
}

std::optional<QVariantMap> ThermalPanel::summaryInfo()
{
    QVariantMap lines;
    QStringList titles;
    for (const Option &option : mOptions) {
        const int index = indexOfMarkedOption(option.choices, option.key);
        if (const PDEChoice *marked = option.choices.at(index)) {
            titles.append(text(option.key));
            lines.insert(titles.last(), text(marked->userTitle()));
        }
    }
    lines.insert(kSummaryDisplayOrder, titles);
    return lines;
}
