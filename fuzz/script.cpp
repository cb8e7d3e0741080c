// SPDX-License-Identifier: Apache-2.0

// Whole conversations: lines of the script protocol, in JSON or in short.

#include "FuzzTarget.h"
#include "LightBundle.h"
#include "automation/ScriptSession.h"

#include <QApplication>

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QList>
#include <QRegularExpression>

namespace {
/// How many lines of a conversation are worked.
constexpr int mostLines = 20;

/// The members of a command that has any, in the order of its short form.
struct Members
{
    const char *command;
    QStringList names;
};

const QList<Members> &membersOfCommands()
{
    static const QList<Members> all = {
        {"open", {QStringLiteral("ppd"), QStringLiteral("paper"), QStringLiteral("deviceURI")}},
        {"click", {QStringLiteral("control")}},
        {"preset", {QStringLiteral("tag")}},
        {"type", {QStringLiteral("text")}},
        {"step", {QStringLiteral("by")}},
        {"paper", {QStringLiteral("name"), QStringLiteral("height")}},
        {"choose", {QStringLiteral("key"), QStringLiteral("choice")}},
    };
    return all;
}

QJsonValue valueOf(const QString &word)
{
    if (word == u"null") {
        return {};
    }
    bool isNumber = false;
    const double number = word.toDouble(&isNumber);
    return isNumber ? QJsonValue(number) : QJsonValue(word);
}

/// "click mHalfCutChkBx" in JSON.
QJsonObject requestOf(const QByteArray &line)
{
    const QStringList words = QString::fromUtf8(line).split(u' ');
    QJsonObject request{{QStringLiteral("cmd"), words.first()}};
    for (const Members &members : membersOfCommands()) {
        const qsizetype count = std::min(members.names.size(), words.size() - 1);
        for (qsizetype i = 0; words.first() == QLatin1String(members.command) && i < count; ++i) {
            const QString &word = words.at(i + 1);
            request.insert(members.names.at(i),
                           words.first() == u"type" ? QJsonValue(word) : valueOf(word));
        }
    }
    return request;
}

class ScriptFuzzer : public FuzzTarget
{
public:
    ScriptFuzzer()
        : mSession({mBundle.folder(), {}, {}})
    {
        // Drawing takes long, and what is drawn depends on little of the input.
        const auto windows = QApplication::topLevelWidgets();
        for (QWidget *window : windows) {
            window->setUpdatesEnabled(false);
        }
        for (const char *name : {"korvane-tape-all", "korvane-label", "korvane-tape-follow",
                                 "korvane-tape", "korvane-tape-mark", "korvane-plain"}) {
            mPPDs.append(lightCopyOf(QStringLiteral("%1.ppd").arg(QLatin1String(name))));
        }
    }

    void run(const QByteArray &input) override
    {
        const QList<QByteArray> lines = input.split('\n');
        for (const QByteArray &line : lines.mid(0, mostLines)) {
            checkAnswer(mSession.answer(harmless(line)));
        }
        mSession.answer(R"({"cmd":"close"})");
    }

private:
    /// A copy of a sample PPD without counts of two digits and what no panel reads, which libcups
    /// reads for longer than all the rest.
    QString lightCopyOf(const QString &name) const
    {
        static const QRegularExpression unread(
            QStringLiteral(R"(^\*(PageRegion |ImageableArea |KvCutLabel \d\d).*\n)"),
            QRegularExpression::MultilineOption);
        QFile sample(QStringLiteral(KV_PPD_DIR "/") + name);
        QFile copy(mBundle.folder() + u'/' + name);
        const bool isOpen = sample.open(QIODevice::ReadOnly) && copy.open(QIODevice::WriteOnly);
        const QByteArray text = QString::fromUtf8(sample.readAll()).remove(unread).toUtf8();
        expectRule(isOpen && copy.write(text) == text.size(), "a PPD can be copied");
        return copy.fileName();
    }

    /// The line without what would reach files, printers and bundles other than the fuzzer's own.
    QByteArray harmless(const QByteArray &line) const
    {
        const bool isShort = !line.isEmpty() && line.front() >= 'a' && line.front() <= 'z';
        const QJsonDocument document =
            isShort ? QJsonDocument(requestOf(line)) : QJsonDocument::fromJson(line);
        if (!document.isObject()) {
            return line;
        }
        QJsonObject request = document.object();
        for (const char *member : {"printer", "settings", "bundle"}) {
            request.remove(QLatin1String(member));
        }
        if (request.contains(u"file")) {
            request.insert(QStringLiteral("file"), QStringLiteral("/dev/null"));
        }
        const qsizetype picked = request.value(u"ppd").toInt();
        request.insert(QStringLiteral("locale"), QStringLiteral("en"));
        if (request.value(u"cmd").toString() == u"open") {
            request.insert(QStringLiteral("ppd"), mPPDs.at(qAbs(picked % mPPDs.size())));
        } else {
            request.remove(u"locale");
        }
        return QJsonDocument(request).toJson(QJsonDocument::Compact);
    }

    static void checkAnswer(const QByteArray &answer)
    {
        const QJsonObject object = QJsonDocument::fromJson(answer).object();
        expectRule(!answer.contains('\n'), "an answer is one line");
        expectRule(object.value(u"events").isArray(), "an answer has its events");
        expectRule(object.value(u"ok").isBool() &&
                       object.value(u"ok").toBool() != object.contains(u"error"),
                   "an answer is an error or none");
    }

    LightBundle mBundle;
    ScriptSession mSession;
    QStringList mPPDs;
};
} // namespace

KV_FUZZ_TARGET("script", ScriptFuzzer)
