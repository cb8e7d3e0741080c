// SPDX-License-Identifier: Apache-2.0
#include "FieldWays.h"

#include <QClipboard>
#include <QGuiApplication>

FieldAction FieldWay::puttingX() const
{
    return [put = put](FieldUser &user) {
        put(user, u"x"_s);
    };
}

const QList<FieldWay> &waysOfTheUser()
{
    static const QList<FieldWay> ways = {
        {"typing",
         [](FieldUser &user, const QString &text) {
             user.types(text);
         }},
        {"pasting",
         [](FieldUser &user, const QString &text) {
             user.pastes(text);
         }},
        {"menu",
         [](FieldUser &user, const QString &text) {
             user.pastesFromMenu(text);
         }},
        {"commit",
         [](FieldUser &user, const QString &text) {
             user.commits(text);
         }},
    };
    return ways;
}

const QList<FieldWay> &waysOfTheProgram()
{
    static const QList<FieldWay> ways = {
        {"paste()", pasteByProgram},
        {"insert()",
         [](FieldUser &user, const QString &text) {
             user.field()->insert(text);
         }},
    };
    return ways;
}

void pasteByProgram(FieldUser &user, const QString &text)
{
    QGuiApplication::clipboard()->setText(text);
    user.field()->paste();
}
