// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "automation/ScriptSession.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>

/// A conversation with a script's session within the test.
class ScriptTalk
{
public:
    /// @param bundleFolder where the panels come from.
    explicit ScriptTalk(const QString &bundleFolder = QStringLiteral(KV_BUNDLE_FOLDER));
    explicit ScriptTalk(ScriptSession::Setup setup);

    /// The answer to a line as it stands; fails the test when it is not one line with one object.
    QJsonObject answer(const QByteArray &line);
    /// The answer to a command with these members.
    QJsonObject ask(const char *command, QJsonObject members = {});

    /// Opens a sample printer's PPD in English, with these members besides.
    QJsonObject open(const QString &printer, const QJsonObject &members = {});
    /// Opens the PPD, asks for the view, shows it and answers what the last of these was told.
    QJsonObject show(const QString &printer, const QJsonObject &members = {});
    /// Clicks a check box.
    QJsonObject click(const char *box);
    /// Changes the paper; a null name for a paper without one.
    QJsonObject paper(const QString &name);

    /// The state without what every answer has.
    QJsonObject state();
    /// The part of the state at a path ("popup.selected"); undefined when there is none.
    QJsonValue state(const char *path);
    /// The state of a check box, 1 or 0; −1 when there is none.
    int box(const char *name);

    bool hasFailed() const { return mSession.hasFailed(); }

private:
    ScriptSession mSession;
};

/// A conversation with a panel that is shown already.
class ShownPanel : public ScriptTalk
{
public:
    explicit ShownPanel(const QString &printer, const QJsonObject &members = {})
    {
        show(printer, members);
    }
};

/// Whether the answer is that all went well.
bool isOK(const QJsonObject &answer);
/// The events of an answer, each with its details behind it, separated by spaces.
QStringList eventsOf(const QJsonObject &answer);
/// The answer to an error; null when it was none or is no proper one.
QString errorOf(const QJsonObject &answer);
/// "KEY=CHOICE" of every "willChange" among the events, in order.
QStringList changesIn(const QJsonObject &answer);
/// The answer without what every answer has.
QJsonObject membersOf(QJsonObject answer);
/// A value as JSON in one line.
QByteArray compact(const QJsonValue &value);
