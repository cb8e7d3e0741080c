// SPDX-License-Identifier: Apache-2.0
#include "WidgetReport.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QJsonArray>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPixmap>
#include <QTabBar>

namespace {
constexpr int mostRows = 300;

QJsonArray rectangle(const QWidget &widget, const QRect &local)
{
    const QPoint corner = widget.mapToGlobal(local.topLeft());
    return {corner.x(), corner.y(), local.width(), local.height()};
}

QString plainText(QString text)
{
    return text.remove(QLatin1Char('&'));
}

/// The part of the widget that its parents leave to be seen.
QRect seenPart(const QWidget &widget)
{
    QRect seen = widget.rect();
    for (const QWidget *parent = &widget; !parent->isWindow(); parent = parent->parentWidget()) {
        const QRect room = parent->parentWidget()->rect();
        seen &= QRect(widget.mapFrom(parent->parentWidget(), room.topLeft()), room.size());
    }
    return seen;
}

/// What an item of a menu says, to people who do not see its picture if it has nothing else.
QString itemText(const QModelIndex &item)
{
    const QString text = item.data().toString();
    return text.isEmpty() ? item.data(Qt::AccessibleTextRole).toString() : text;
}

void addButton(const QWidget &widget, QJsonObject &object)
{
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget)) {
        object[u"text"_s] = plainText(button->text());
        object[u"checked"_s] = button->isChecked();
    }
}

void addText(const QWidget &widget, QJsonObject &object)
{
    if (const auto *label = qobject_cast<const QLabel *>(&widget)) {
        object[u"text"_s] = plainText(label->text());
    } else if (const auto *field = qobject_cast<const QLineEdit *>(&widget)) {
        object[u"text"_s] = field->text();
    }
}

void addMenu(const QWidget &widget, QJsonObject &object)
{
    const auto *menu = qobject_cast<const QComboBox *>(&widget);
    if (!menu) {
        return;
    }
    QJsonArray items;
    for (int i = 0; i < menu->count(); ++i) {
        items.append(itemText(menu->model()->index(i, menu->modelColumn())));
    }
    object[u"text"_s] = items.at(menu->currentIndex());
    object[u"items"_s] = items;
}

void addTabs(const QWidget &widget, QJsonObject &object)
{
    const auto *bar = qobject_cast<const QTabBar *>(&widget);
    if (!bar) {
        return;
    }
    QJsonArray tabs;
    for (int i = 0; i < bar->count(); ++i) {
        if (bar->isTabVisible(i)) {
            tabs.append(QJsonObject{{u"text"_s, plainText(bar->tabText(i))},
                                    {u"rect"_s, rectangle(*bar, bar->tabRect(i))},
                                    {u"checked"_s, i == bar->currentIndex()}});
        }
    }
    object[u"parts"_s] = tabs;
}

QString rowText(const QAbstractItemModel &model, int row)
{
    QStringList cells;
    for (int column = 0; column < model.columnCount(); ++column) {
        cells.append(itemText(model.index(row, column)));
    }
    return cells.join(u": "_s);
}

void addRows(const QWidget &widget, QJsonObject &object)
{
    const auto *view = qobject_cast<const QAbstractItemView *>(&widget);
    if (!view || !view->model() || qobject_cast<const QMainWindow *>(view->window())) {
        return;
    }
    const QAbstractItemModel &model = *view->model();
    QJsonArray rows;
    for (int row = 0; row < std::min(model.rowCount(), mostRows); ++row) {
        const QRect seen =
            view->visualRect(model.index(row, 0)).intersected(view->viewport()->rect());
        rows.append(QJsonObject{{u"text"_s, rowText(model, row)},
                                {u"rect"_s, rectangle(*view->viewport(), seen)},
                                {u"checked"_s, row == view->currentIndex().row()}});
    }
    object[u"parts"_s] = rows;
}

void addShortcuts(const QWidget &widget, QJsonObject &object)
{
    if (!widget.isWindow()) {
        return;
    }
    QJsonArray shortcuts;
    for (const QAction *action : widget.findChildren<QAction *>()) {
        if (action->isEnabled() && !action->shortcut().isEmpty()) {
            shortcuts.append(action->shortcut().toString());
        }
    }
    object[u"shortcuts"_s] = shortcuts;
    object[u"text"_s] = widget.windowTitle();
}

/// The class of the widget and all that it is derived from.
QJsonArray classesOf(const QWidget &widget)
{
    QJsonArray classes;
    for (const QMetaObject *kind = widget.metaObject(); kind; kind = kind->superClass()) {
        classes.append(QLatin1String(kind->className()));
    }
    return classes;
}

QJsonObject describe(const QWidget &widget)
{
    const QWidget *window = widget.window();
    QJsonObject object{{u"name"_s, widget.objectName()},
                       {u"classes"_s, classesOf(widget)},
                       {u"windowClasses"_s, classesOf(*window)},
                       {u"active"_s, window->isActiveWindow()},
                       {u"rect"_s, rectangle(widget, seenPart(widget))},
                       {u"enabled"_s, widget.isEnabled()},
                       {u"focus"_s, widget.hasFocus()},
                       {u"keyword"_s, widget.property("PPDOptionKeyword").toString()}};
    addShortcuts(widget, object);
    addButton(widget, object);
    addText(widget, object);
    addMenu(widget, object);
    addTabs(widget, object);
    addRows(widget, object);
    return object;
}
} // namespace

QJsonObject WidgetReport::all()
{
    QJsonArray widgets;
    const QWidgetList every = QApplication::allWidgets();
    for (const QWidget *widget : every) {
        if (widget->isVisible()) {
            widgets.append(describe(*widget));
        }
    }
    return {{u"widgets"_s, widgets}};
}

bool WidgetReport::grab(const QString &path)
{
    QWidget *window = QApplication::activeWindow();
    return window && window->grab().save(path);
}
