// SPDX-License-Identifier: Apache-2.0
#include "PanelUser.h"

#include "demo/DialogDriver.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPrintDialog>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>
#include <QTreeWidget>

QStringList tabsOf(const QPrintDialog &dialog)
{
    const auto *tabs = dialog.findChild<QTabWidget *>();
    QStringList titles;
    for (int i = 0; tabs && i < tabs->count(); ++i) {
        titles.append(tabs->tabText(i));
    }
    return titles;
}

PanelUser::PanelUser(DialogDriver &dialog)
    : mDialog(dialog)
{
}

QWidget *PanelUser::visible(const QString &name) const
{
    QWidget *control = mDialog.widget(name);
    return control && control->isVisible() ? control : nullptr;
}

bool PanelUser::openTab()
{
    return mDialog.showOptions() && mDialog.showTab(kPanelTab);
}

QStringList PanelUser::boxes() const
{
    QStringList names;
    if (const QWidget *tab = visible(u"panelTab"_s)) {
        for (const QCheckBox *box : tab->findChildren<QCheckBox *>()) {
            if (box->isVisible()) {
                names.append(box->objectName());
            }
        }
    }
    names.sort();
    return names;
}

bool PanelUser::isTicked(const QString &box) const
{
    const auto *found = qobject_cast<QCheckBox *>(mDialog.widget(box));
    return found && found->isChecked();
}

bool PanelUser::isEnabled(const QString &control) const
{
    const QWidget *found = mDialog.widget(control);
    return found && found->isEnabled();
}

bool PanelUser::click(const QString &box)
{
    return mDialog.click(box);
}

bool PanelUser::typeCount(const QString &text)
{
    auto *field = qobject_cast<QLineEdit *>(visible(u"mCutEveryTxBx"_s));
    if (!field || !field->isEnabled()) {
        return false;
    }
    QTest::mouseClick(field, Qt::LeftButton);
    QTest::keySequence(field, QKeySequence::SelectAll);
    QTest::keyClicks(field, text);
    return true;
}

bool PanelUser::step(bool up)
{
    const QWidget *stepper = visible(u"mCutEveryStpr"_s);
    auto *arrow =
        stepper ? stepper->findChild<QToolButton *>(up ? u"stepUp"_s : u"stepDown"_s) : nullptr;
    if (!arrow || !arrow->isEnabled()) {
        return false;
    }
    QTest::mouseClick(arrow, Qt::LeftButton);
    return true;
}

QString PanelUser::count() const
{
    const auto *field = qobject_cast<QLineEdit *>(visible(u"mCutEveryTxBx"_s));
    return field ? field->text() : QString();
}

QList<int> PanelUser::presets() const
{
    const auto *menu = qobject_cast<QComboBox *>(visible(u"mOptionPopUpButton"_s));
    QList<int> tags;
    for (int i = 0; menu && i < menu->count(); ++i) {
        tags.append(menu->itemData(i).toInt());
    }
    return tags;
}

int PanelUser::selectedPreset() const
{
    const auto *menu = qobject_cast<QComboBox *>(visible(u"mOptionPopUpButton"_s));
    return menu ? menu->currentData().toInt() : 0;
}

bool PanelUser::pickPreset(int tag)
{
    auto *menu = qobject_cast<QComboBox *>(visible(u"mOptionPopUpButton"_s));
    const int index = menu ? menu->findData(tag) : -1;
    if (index < 0) {
        return false;
    }
    menu->showPopup();
    QAbstractItemView *list = menu->view();
    if (!QTest::qWaitForWindowExposed(list->window())) {
        return false;
    }
    // A list that opened under the mouse takes no click for as long as a double click lasts.
    const int interval = QApplication::doubleClickInterval();
    QApplication::setDoubleClickInterval(0);
    const QModelIndex item = list->model()->index(index, menu->modelColumn());
    list->scrollTo(item);
    const QRect seen = list->visualRect(item).intersected(list->viewport()->rect());
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, seen.center());
    QApplication::setDoubleClickInterval(interval);
    menu->hidePopup();
    return menu->currentIndex() == index;
}

QStringList PanelUser::summary() const
{
    const auto *list = qobject_cast<QTreeWidget *>(mDialog.widget(u"panelSummary"_s));
    QStringList lines;
    for (int i = 0; list && i < list->topLevelItemCount(); ++i) {
        const QTreeWidgetItem *line = list->topLevelItem(i);
        lines.append(u"%1: %2"_s.arg(line->text(0), line->text(1)));
    }
    return lines;
}
