// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Conversation.h"
#include "Difference.h"
#include "Tally.h"

#include <QByteArrayList>
#include <QDir>

class ScriptSession;

namespace model {

/// Holds a conversation with the real panel and compares every answer with the model's.
class ConversationRun
{
public:
    /// What was said when an answer differed first.
    struct Fault
    {
        Difference difference;
        /// Every line in order; the answer to the last one differed.
        QByteArrayList transcript;
    };

    /// Where the files of a conversation are, which stay there when the process ends early.
    struct Files
    {
        QString script;
        QString ppd;
        QString settings;
        QString picture;
    };

    /// The files of that name in a folder.
    static Files filesIn(const QDir &folder, const QString &name);
    /// Writes a conversation's PPD and settings, and lines of its script; false when it cannot.
    static bool write(const Conversation &conversation, const QByteArrayList &lines,
                      const Files &files);
    /// A line with the files' names in place of the placeholders.
    static QByteArray completed(QByteArray line, const Files &files);

    /// @param tally told of each action; must outlive this object, as must @p session.
    ConversationRun(ScriptSession &session, Files files, Tally &tally);

    /// Holds the conversation; the first difference, or nothing when all answers agree.
    std::optional<Fault> run(const Conversation &conversation);

private:
    std::optional<Difference> compare(const QByteArray &line, SessionModel &model,
                                      QJsonObject *predicted = nullptr);

    ScriptSession &mSession;
    Files mFiles;
    Tally &mTally;
};

} // namespace model
