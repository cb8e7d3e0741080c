// SPDX-License-Identifier: Apache-2.0
#include "dialog/PrintDialogWidgets.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPrintDialog>
#include <QPrinter>
#include <QScreen>
#include <QTabBar>
#include <QTabWidget>

namespace {
/// The width of what is beside the tabs in the dialog and around it, in lines of text.
constexpr int marginsInLines = 4;

/// Hides the form's rows with these labels; whether any other row is left.
bool hideRows(const QGroupBox &group, const QStringList &labels)
{
    const auto *form = qobject_cast<QFormLayout *>(group.layout());
    bool isAnyLeft = !form;
    for (int row = 0; form && row < form->rowCount(); ++row) {
        QLayoutItem *labelItem = form->itemAt(row, QFormLayout::LabelRole);
        QLayoutItem *fieldItem = form->itemAt(row, QFormLayout::FieldRole);
        auto *label = labelItem ? qobject_cast<QLabel *>(labelItem->widget()) : nullptr;
        if (!label || !labels.contains(label->text())) {
            isAnyLeft = true;
            continue;
        }
        label->hide();
        if (fieldItem && fieldItem->widget()) {
            fieldItem->widget()->hide();
        }
    }
    return isAnyLeft;
}

QComboBox *pageSizesMenu(const QWidget &propertiesDialog)
{
    return propertiesDialog.findChild<QComboBox *>(QStringLiteral("pageSizeCombo"));
}
} // namespace

QComboBox *printersMenu(const QPrintDialog &dialog)
{
    return dialog.findChild<QComboBox *>(QLatin1String(kPrintersMenuName));
}

bool isPrintingToFile(const QPrintDialog &dialog)
{
    const QComboBox *menu = printersMenu(dialog);
    if (!menu || menu->currentIndex() != menu->count() - 1) {
        return false;
    }
    // The item is added behind the printers and a separator, and not before the dialog is shown.
    return menu->count() == 1
               ? dialog.printer()->printerName().isEmpty()
               : menu->itemData(menu->count() - 2, Qt::AccessibleDescriptionRole).toString() ==
                     QLatin1String("separator");
}

QTabWidget *optionTabs(const QPrintDialog &dialog)
{
    return dialog.findChild<QTabWidget *>();
}

int widthOfTabTitles(const QPrintDialog &dialog)
{
    const QTabWidget *tabs = optionTabs(dialog);
    if (!tabs) {
        return 0;
    }
    const int marginsAround = tabs->fontMetrics().height() * marginsInLines;
    const int room = dialog.screen()->availableGeometry().width() - marginsAround;
    return std::min(tabs->tabBar()->sizeHint().width(), room);
}

QPageSize chosenPageSize(const QWidget &propertiesDialog)
{
    const QComboBox *menu = pageSizesMenu(propertiesDialog);
    return menu ? menu->currentData().value<QPageSize>() : QPageSize();
}

void choosePageSize(const QWidget &propertiesDialog, const QPageSize &size)
{
    QComboBox *menu = pageSizesMenu(propertiesDialog);
    for (int i = 0; menu && i < menu->count(); ++i) {
        if (menu->itemData(i).value<QPageSize>().key() == size.key()) {
            menu->setCurrentIndex(i);
            return;
        }
    }
}

void hideListedOptions(const QWidget &propertiesDialog, const QStringList &texts)
{
    auto *page = propertiesDialog.findChild<QWidget *>(QStringLiteral("cupsPropertiesPage"));
    if (!page) {
        return;
    }
    bool isEmpty = true;
    const auto groups = page->findChildren<QGroupBox *>();
    for (QGroupBox *group : groups) {
        const bool isGroupEmpty = !hideRows(*group, texts);
        group->setHidden(isGroupEmpty);
        isEmpty = isEmpty && isGroupEmpty;
    }
    auto *tabs = propertiesDialog.findChild<QTabWidget *>();
    const int index = tabs ? tabs->indexOf(page) : -1;
    if (index >= 0 && isEmpty) {
        tabs->setTabVisible(index, false);
    }
}

bool isBelow(const QObject *object, const QObject *ancestor)
{
    while (object && object != ancestor) {
        object = object->parent();
    }
    return object;
}
