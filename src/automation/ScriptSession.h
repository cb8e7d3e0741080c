// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "automation/PanelConversation.h"
#include "automation/PanelEvents.h"
#include "automation/PanelJobs.h"
#include "cups/SchedulerConnection.h"
#include "host/ProblemReporter.h"

#include <QJsonObject>
#include <QWidget>

#include <initializer_list>
#include <memory>
#include <optional>

class PDEPanelAutomation;
class ScriptRequest;

/**
 * The conversation of a dialog with a panel as lines of JSON, which docs/automation.md describes.
 *
 * A faulty line changes nothing.
 */
class ScriptSession
{
public:
    /// Where the panels come from, and what "open" opens when it names no printer.
    struct Setup
    {
        /// The folder of the bundles.
        QString bundleFolder;
        /// A PPD; null for none.
        QString ppd;
        /// A queue; null for none.
        QString printer;
        /// How long the scheduler may be silent.
        SchedulerConnection::Milliseconds schedulerLimit = SchedulerConnection::defaultLimit;
    };

    explicit ScriptSession(Setup setup);
    ~ScriptSession();

    /// Does what a line says; the answer is one JSON object without a line's end.
    QByteArray answer(const QByteArray &line);

    /// Whether any line has been faulty.
    bool hasFailed() const { return mHasFailed; }

private:
    /// How far a conversation must have come for a command.
    enum class Stage {
        Any,
        Closed,
        Open,
        Viewed,
    };

    struct Command
    {
        const char *name;
        Stage stage;
        std::initializer_list<const char *> members;
        QJsonObject (ScriptSession::*run)(ScriptRequest &request);
    };
    static const Command commands[];

    QJsonObject run(ScriptRequest &request);
    QString faultOfStage(Stage stage) const;

    QJsonObject open(ScriptRequest &request);
    QJsonObject close(ScriptRequest &request);
    QJsonObject view(ScriptRequest &request);
    QJsonObject show(ScriptRequest &request);
    QJsonObject hide(ScriptRequest &request);
    QJsonObject click(ScriptRequest &request);
    QJsonObject preset(ScriptRequest &request);
    QJsonObject type(ScriptRequest &request);
    QJsonObject step(ScriptRequest &request);
    QJsonObject paper(ScriptRequest &request);
    QJsonObject choose(ScriptRequest &request);
    QJsonObject save(ScriptRequest &request);
    QJsonObject restore(ScriptRequest &request);
    QJsonObject keys(ScriptRequest &request);
    QJsonObject options(ScriptRequest &request);
    QJsonObject print(ScriptRequest &request);
    QJsonObject submit(ScriptRequest &request);
    QJsonObject jobs(ScriptRequest &request);
    QJsonObject cancel(ScriptRequest &request);
    QJsonObject summary(ScriptRequest &request);
    QJsonObject state(ScriptRequest &request);
    QJsonObject look(ScriptRequest &request);
    QJsonObject screenshot(ScriptRequest &request);

    std::optional<PanelTarget> targetOf(ScriptRequest &request) const;
    /// Makes mBundles those that "open" asks for; refuses the request when there are none.
    void prepareBundles(ScriptRequest &request);
    /// @param path of a bundle, and @param locale: null where "open" names none.
    PanelBundles loadBundles(ScriptRequest &request, const QString &path, const QString &locale);
    /// The panel's automation; refuses the request when it has none.
    PDEPanelAutomation *automationOr(ScriptRequest &request) const;
    PDEPanel &panel() const { return *mConversation->panel(); }

    Setup mSetup;
    /// Stands for the dialog. Declared before mEvents, which must not record its destruction.
    QWidget mWindow;
    PanelEvents mEvents;
    ProblemReporter mReporter;
    /// The bundle and the locale that mBundles were loaded for; empty before.
    QJsonArray mWantedBundles;
    PanelBundles mBundles;
    std::unique_ptr<PanelConversation> mConversation;
    PanelJobs mJobs;
    bool mHasFailed = false;
};
