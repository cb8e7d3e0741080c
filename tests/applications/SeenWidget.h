// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonObject>
#include <QPoint>
#include <QRect>
#include <QStringList>

/// A widget, or a row or tab of one, as it was seen in another process.
class SeenWidget
{
public:
    /// Nothing.
    SeenWidget() = default;
    explicit SeenWidget(QJsonObject object);

    /// Whether anything was seen.
    bool exists() const { return !mObject.isEmpty(); }
    QString name() const { return string("name"); }
    /// Whether it is of that class or of one derived from that.
    bool isA(const char *name) const;
    /// Whether the window that it is in is.
    bool isInA(const char *name) const;
    /// The text of a button, label or field without marks of mnemonics, of the chosen item of a
    /// menu, of a row, with its columns separated by ": "; the title of a window or tab.
    QString text() const { return string("text"); }
    /// The option that it chooses for; empty for none.
    QString keyword() const { return string("keyword"); }
    bool isEnabled() const { return flag("enabled"); }
    /// Whether a button is down, a box ticked, a row or tab the current one.
    bool isChecked() const { return flag("checked"); }
    bool hasFocus() const { return flag("focus"); }
    /// Whether its window has the keyboard.
    bool isActive() const { return flag("active"); }
    /// The items of a menu.
    QStringList items() const { return strings("items"); }
    /// The shortcuts that a window takes now.
    QStringList shortcuts() const { return strings("shortcuts"); }
    /// The row or tab of that text.
    SeenWidget part(const QString &text) const;
    /// The rows or tabs.
    QList<SeenWidget> parts() const;

    /// The part of it that can be seen, on the screen.
    QRect area() const;
    /// Where it is to be clicked: on the mark of a check box, in the middle of anything else.
    QPoint clickPlace() const;

private:
    QString string(const char *key) const { return mObject[QLatin1String(key)].toString(); }
    bool flag(const char *key) const { return mObject[QLatin1String(key)].toBool(); }
    QStringList strings(const char *key) const;

    QJsonObject mObject;
};
