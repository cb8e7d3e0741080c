// SPDX-License-Identifier: Apache-2.0
#include "ConversationRun.h"

#include "automation/ScriptSession.h"

#include <QFile>
#include <QJsonDocument>

namespace model {
namespace {
/// What is asked after each line: neither may change anything.
const QByteArray queries[] = {R"({"cmd":"state"})", R"({"cmd":"summary"})"};
const QByteArray closing = R"({"cmd":"close"})";

/// Writes over what is there: emptying a file first takes some file systems milliseconds.
bool writeFile(const QString &path, const QByteArray &data)
{
    QFile file(path);
    return file.open(QIODevice::ReadWrite) && file.write(data) == data.size() &&
           file.resize(data.size());
}

/// The lines with the queries between them.
QByteArrayList withQueries(const std::vector<QByteArray> &lines)
{
    QByteArrayList all;
    for (const QByteArray &line : lines) {
        all.append(line);
        all.append({std::begin(queries), std::end(queries)});
    }
    return all;
}
} // namespace

ConversationRun::Files ConversationRun::filesIn(const QDir &folder, const QString &name)
{
    const QString path = folder.absoluteFilePath(name);
    return {path + QLatin1String(".jsonl"), path + QLatin1String(".ppd"),
            path + QLatin1String(".plist"), path + QLatin1String(".png")};
}

QByteArray ConversationRun::completed(QByteArray line, const Files &files)
{
    return line.replace(ppdPlaceholder, files.ppd.toUtf8())
        .replace(settingsPlaceholder, files.settings.toUtf8())
        .replace(picturePlaceholder, files.picture.toUtf8());
}

bool ConversationRun::write(const Conversation &conversation, const QByteArrayList &lines,
                            const Files &files)
{
    QByteArray script;
    for (const QByteArray &line : lines) {
        script += completed(line, files) + '\n';
    }
    return writeFile(files.ppd, conversation.printer.ppd()) &&
           writeFile(files.settings, settingsFile(conversation.ticket)) &&
           writeFile(files.script, script);
}

ConversationRun::ConversationRun(ScriptSession &session, Files files, Tally &tally)
    : mSession(session)
    , mFiles(std::move(files))
    , mTally(tally)
{
}

std::optional<ConversationRun::Fault> ConversationRun::run(const Conversation &conversation)
{
    if (!write(conversation, withQueries(conversation.lines), mFiles)) {
        return Fault{{mFiles.script, u"written"_s, u"not written"_s}, {}};
    }
    mSession.answer(closing);
    mTally.addPrinter(conversation.printer);
    SessionModel model(conversation.printer, conversation.ticket);
    QByteArrayList transcript;
    for (const QByteArray &line : conversation.lines) {
        QJsonObject predicted;
        transcript.append(line);
        auto difference = compare(line, model, &predicted);
        for (const QByteArray &query : queries) {
            if (!difference) {
                transcript.append(query);
                difference = compare(query, model);
            }
        }
        if (difference) {
            return Fault{*difference, transcript};
        }
        mTally.addAction(line, predicted, model);
    }
    return std::nullopt;
}

std::optional<Difference> ConversationRun::compare(const QByteArray &line, SessionModel &model,
                                                   QJsonObject *predicted)
{
    const QByteArray completeLine = completed(line, mFiles);
    QJsonObject expected = model.answer(completeLine);
    const QJsonObject actual = QJsonDocument::fromJson(mSession.answer(completeLine)).object();
    if (predicted) {
        *predicted = expected;
    }
    // The text of an error is for people; only that there is one can be predicted.
    const QJsonValue error = actual.value(QLatin1String("error"));
    if (!expected.value(QLatin1String("ok")).toBool() && !error.toString().isEmpty()) {
        expected.insert(QLatin1String("error"), error);
    }
    return firstDifference(expected, actual);
}

} // namespace model
