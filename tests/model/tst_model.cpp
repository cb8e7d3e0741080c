// SPDX-License-Identifier: Apache-2.0
#include "ConversationMaker.h"
#include "ConversationRun.h"

#include "automation/ScriptSession.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTest>
#include <QTextStream>

#include <rapidcheck.h>

using namespace model;

namespace {
constexpr quint64 fixedSeedNumber = 20090828;
constexpr double defaultSeconds = 10.0;
/// However slow the machine, so many conversations are held with each seed.
constexpr int leastConversations = 60;
constexpr int conversationsInABatch = 25;
constexpr int greatestLength = 100;

void print(const QString &text)
{
    QTextStream(stdout) << text << Qt::endl;
}

QtMessageHandler formerHandler = nullptr;

/// Passes messages on, but for what the offscreen platform says whenever a menu opens.
void handleMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (!message.startsWith(QLatin1String("This plugin does not support "))) {
        formerHandler(type, context, message);
    }
}

/// Says nothing of each conversation.
class QuietListener : public rc::detail::TestListener
{
public:
    void onTestCaseFinished(const rc::detail::CaseDescription &) override {}
    void onShrinkTried(const rc::detail::CaseDescription &, bool) override {}
    void onTestFinished(const rc::detail::TestMetadata &, const rc::detail::TestResult &) override
    {
    }
};

rc::Gen<Conversation> anyConversation()
{
    const auto simpler = [](const Conversation &conversation) {
        auto withFewerLines =
            rc::seq::map(rc::shrink::removeChunks(conversation.lines), [conversation](auto lines) {
                Conversation shorter = conversation;
                shorter.lines = std::move(lines);
                return shorter;
            });
        return rc::seq::concat(std::move(withFewerLines),
                               rc::seq::fromContainer(simplerThan(conversation)));
    };
    return [simpler](const rc::Random &random, int size) {
        rc::Random source(random);
        Dice dice([&source] { return source.next(); });
        const int length = 1 + greatestLength * size / rc::kNominalSize;
        return rc::shrinkable::shrinkRecur(makeConversation(dice, dice.between(1, length)),
                                           simpler);
    };
}
} // namespace

/// The panel against an independent model of its rules, in conversations made up by chance.
class ModelTest : public QObject
{
    Q_OBJECT

public:
    static void initMain();

private Q_SLOTS:
    void initTestCase();
    void agreesFromTheFixedSeed();
    void agreesFromAFreshSeed();
    void conversationsAreManySided();
    void cleanupTestCase();

private:
    void holdConversations(quint64 seed);
    bool holdBatch(quint64 seed);
    void reportFault(quint64 seed, const Conversation &conversation,
                     const ConversationRun::Fault &fault) const;

    QDir mFolder;
    /// Of the conversation that is being held.
    ConversationRun::Files mFiles;
    qint64 mMillisecondsPerSeed = 0;
    std::unique_ptr<ScriptSession> mSession;
    Tally mTally;
};

void ModelTest::initMain()
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    // A proof takes as long as it is told to.
    qputenv("QTEST_FUNCTION_TIMEOUT", QByteArray::number(std::numeric_limits<int>::max()));
}

void ModelTest::initTestCase()
{
    formerHandler = qInstallMessageHandler(handleMessage);
    bool isNumber = false;
    const double seconds = qEnvironmentVariable("KV_MODEL_SECONDS").toDouble(&isNumber);
    mMillisecondsPerSeed = qint64(1000.0 * (isNumber ? seconds : defaultSeconds) / 2.0);
    mFolder = QDir(QCoreApplication::applicationDirPath() + QLatin1String("/model-failures"));
    QVERIFY(mFolder.mkpath(u"."_s));
    mFiles =
        ConversationRun::filesIn(mFolder, u"current-%1"_s.arg(QCoreApplication::applicationPid()));
    mSession = std::make_unique<ScriptSession>(
        ScriptSession::Setup{QStringLiteral(KV_BUILT_BUNDLES), {}, {}});
}

void ModelTest::agreesFromTheFixedSeed()
{
    holdConversations(fixedSeedNumber);
}

void ModelTest::agreesFromAFreshSeed()
{
    bool isNumber = false;
    const quint64 given = qEnvironmentVariable("KV_MODEL_SEED").toULongLong(&isNumber);
    holdConversations(isNumber ? given : QRandomGenerator::system()->generate());
}

void ModelTest::holdConversations(quint64 seed)
{
    print(u"Seed %1 (a crash leaves its script in %2)"_s.arg(seed).arg(mFiles.script));
    QElapsedTimer timer;
    timer.start();
    const int before = mTally.conversations();
    for (quint64 batch = 0; timer.elapsed() < mMillisecondsPerSeed ||
                            mTally.conversations() - before < leastConversations;
         ++batch) {
        if (!holdBatch(seed + batch)) {
            QFAIL("the panel and the model disagree");
        }
    }
}

bool ModelTest::holdBatch(quint64 seed)
{
    ConversationRun run(*mSession, mFiles, mTally);
    std::optional<std::pair<Conversation, ConversationRun::Fault>> simplest;
    const auto agrees = [&] {
        const Conversation conversation = *anyConversation();
        const auto fault = run.run(conversation);
        if (fault) {
            simplest.emplace(conversation, *fault);
        }
        return !fault;
    };
    rc::detail::TestParams params;
    params.seed = seed;
    params.maxSuccess = conversationsInABatch;
    QuietListener listener;
    const rc::detail::TestResult result =
        rc::detail::checkTestable(agrees, rc::detail::TestMetadata(), params, listener,
                                  std::unordered_map<std::string, rc::detail::Reproduce>());
    if (simplest) {
        reportFault(seed, simplest->first, simplest->second);
    }
    return result.is<rc::detail::SuccessResult>();
}

void ModelTest::reportFault(quint64 seed, const Conversation &conversation,
                            const ConversationRun::Fault &fault) const
{
    const auto files = ConversationRun::filesIn(mFolder, u"seed-%1"_s.arg(seed));
    const bool isWritten = ConversationRun::write(conversation, fault.transcript, files);
    const QByteArray line = fault.transcript.isEmpty() ? QByteArray() : fault.transcript.last();
    print(u"The panel and the model differ in the answer to %1\n"
          "  member:   %2\n"
          "  expected: %3\n"
          "  actual:   %4\n"
          "  script:   %5%6\n"
          "  replay:   kvprint --script %5\n"
          "  again:    KV_MODEL_SEED=%7 %8 tst_model agreesFromAFreshSeed"_s.arg(
              QString::fromUtf8(line), fault.difference.path, fault.difference.expected,
              fault.difference.actual, files.script,
              isWritten ? QString() : u" (could not be written)"_s, QString::number(seed),
              QCoreApplication::applicationFilePath()));
}

void ModelTest::conversationsAreManySided()
{
    print(u"Compared %1 actions in %2 conversations\n%3"_s.arg(mTally.actions())
              .arg(mTally.conversations())
              .arg(mTally.report()));
    const QStringList missing = mTally.missing();
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join(u", "_s)));
}

void ModelTest::cleanupTestCase()
{
    for (const QString &file : {mFiles.script, mFiles.ppd, mFiles.settings, mFiles.picture}) {
        QFile::remove(file);
    }
    mSession.reset();
    qInstallMessageHandler(formerHandler);
}

KV_TEST(ModelTest)

#include "tst_model.moc"
