// SPDX-License-Identifier: Apache-2.0
#include "EditOracle.h"
#include "RefusalLog.h"

#include "printcore/QtVersions.h"
#include "support/Limits.h"
#include "support/SystemCodeset.h"
#include "textinput/PDEFormatter.h"

#include <QTest>

#include <rapidcheck.h>

#include <algorithm>
#include <cstdio>
#include <limits>
#include <map>
#include <random>
#include <sstream>
#include <unordered_map>

/// Whether edits of every kind are allowed exactly when the rules say so.
class FormatterPropertyTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void allowsWhatTheRulesAllow_data();
    void allowsWhatTheRulesAllow();
};

namespace {
/// An edit in a system encoding.
struct TriedEdit
{
    CheckedEdit edit;
    std::string encoding;
};

std::string quoted(const QString &text)
{
    QString shown;
    for (const QChar unit : text) {
        const bool isPlain = unit >= u' ' && unit <= u'~' && unit != u'"' && unit != u'\\';
        shown += isPlain ? QString(unit) : u"\\u%1"_s.arg(unit.unicode(), 4, 16, QChar(u'0'));
    }
    return text.isNull() ? "none" : '"' + shown.toStdString() + '"';
}

std::string shownNumber(const std::optional<qint32> &number)
{
    return number ? std::to_string(*number) : "none";
}

std::string shownRange(const TextRange &range)
{
    return '{' + std::to_string(range.location) + ", " + std::to_string(range.length) + '}';
}

void showValue(const TriedEdit &tried, std::ostream &stream)
{
    const CheckedEdit &edit = tried.edit;
    stream << "style " << edit.style << ", at most " << edit.maxLength << " bytes of "
           << tried.encoding << ", values from " << shownNumber(edit.minValue) << " to "
           << shownNumber(edit.maxValue) << ", refused strings [";
    for (const QString &string : edit.refusedStrings) {
        stream << ' ' << quoted(string);
    }
    stream << " ]: " << quoted(edit.originalText) << ' ' << shownRange(edit.originalSelection)
           << " becomes " << quoted(edit.proposedText) << ' '
           << (edit.proposedSelection ? shownRange(*edit.proposedSelection) : "none");
}

/// The characters that the style takes.
QString charactersOf(qint32 style)
{
    QString characters;
    for (char16_t character = 0; character < 128; ++character) {
        if (isOfStyle(style, character)) {
            characters += character;
        }
    }
    return characters;
}

/// Text of so many characters: mostly the style's, sometimes others.
QString someText(qint32 style, int length)
{
    static const QString others = u"é£€ßﬁ あ漢Ａ٣\u00ad\u0301\u200b\ufeff\U0001f600\xd83d"_s;
    static const QString ascii = charactersOf(1);
    static std::map<qint32, QString> charactersOfStyles;
    QString &own = charactersOfStyles[style];
    if (own.isNull()) {
        own = charactersOf(style);
    }
    const QString pools[] = {own, u"0123456789.+- "_s, ascii, others};
    const int sort = *rc::gen::weightedElement<int>({{60, 0}, {15, 1}, {10, 2}, {4, 3}, {11, 4}});
    QString text;
    for (int i = 0; i < length; ++i) {
        const int pool = sort < 4 ? sort : *rc::gen::inRange(0, 4);
        text += pools[pool][*rc::gen::inRange<QtSize>(0, pools[pool].size())];
    }
    return text;
}

/// A place in a text of that length, which it may lie beyond now and then.
QtSize somePlace(QtSize length)
{
    const auto farthest = std::numeric_limits<QtSize>::max();
    const int sort = *rc::gen::weightedElement<int>({{96, 0}, {2, 1}, {1, 2}, {1, 3}});
    return sort == 0   ? *rc::gen::inRange<QtSize>(0, length + 1)
           : sort == 1 ? length + *rc::gen::inRange<QtSize>(1, 4)
           : sort == 2 ? farthest
                       : -*rc::gen::inRange<QtSize>(1, 4);
}

/// Puts text in the place of a selection, as a user does.
void setUsersEdit(CheckedEdit &edit)
{
    edit.originalText = someText(edit.style, *rc::gen::inRange(0, 6));
    const auto start = *rc::gen::inRange<QtSize>(0, edit.originalText.size() + 1);
    const auto length = *rc::gen::weightedOneOf<QtSize>(
        {{2, rc::gen::just<QtSize>(0)},
         {1, rc::gen::inRange<QtSize>(0, edit.originalText.size() - start + 1)}});
    const QString typed = someText(
        edit.style, *rc::gen::weightedElement<int>({{1, 0}, {8, 1}, {4, 2}, {3, 3}, {1, 6}}));
    edit.originalSelection = {start, length};
    edit.proposedText = QString(edit.originalText).replace(start, length, typed);
    edit.proposedSelection = TextRange{start + typed.size(), 0};
}

/// Takes any two texts with any carets for an edit.
void setAnyEdit(CheckedEdit &edit)
{
    edit.originalText = someText(edit.style, *rc::gen::inRange(0, 6));
    edit.proposedText = someText(edit.style, *rc::gen::inRange(0, 6));
    edit.originalSelection = {somePlace(edit.originalText.size()), *rc::gen::inRange(0, 3)};
    if (*rc::gen::inRange(0, 10) > 0) {
        edit.proposedSelection =
            TextRange{somePlace(edit.proposedText.size()), *rc::gen::inRange(0, 3)};
    }
}

qint32 someLength(const CheckedEdit &edit)
{
    const auto units = qint32(edit.proposedText.size());
    const auto bytes = qint32(edit.proposedText.toUtf8().size());
    return *rc::gen::weightedOneOf<qint32>({
        {10, rc::gen::just(0)},
        {4, rc::gen::just(units)},
        {2, rc::gen::just(bytes)},
        {3, rc::gen::inRange(1, 9)},
        {1, rc::gen::element(-1, smallest, largest, 2 * units)},
    });
}

std::optional<qint32> someLimit(const CheckedEdit &edit)
{
    const qint64 value = edit.proposedText.trimmed().toLongLong();
    const auto near = qint32(std::clamp<qint64>(value, smallest + 1LL, largest - 1LL));
    return *rc::gen::weightedOneOf<std::optional<qint32>>({
        {6, rc::gen::just(std::optional<qint32>())},
        {3, rc::gen::map(rc::gen::inRange(-1, 2),
                         [near](qint32 by) { return std::optional<qint32>(near + by); })},
        {2, rc::gen::map(rc::gen::element(0, 9, 99, -9, smallest, largest),
                         [](qint32 limit) { return std::optional<qint32>(limit); })},
    });
}

QStringList someRefusedStrings(const CheckedEdit &edit)
{
    QStringList strings;
    const int count = *rc::gen::weightedElement<int>({{8, 0}, {2, 1}, {1, 3}});
    for (int i = 0; i < count; ++i) {
        const QtSize caret = edit.proposedSelection ? edit.proposedSelection->location : 0;
        const QtSize start = edit.originalSelection.location;
        const bool isTyped = start >= 0 && start < caret && *rc::gen::inRange(0, 2) == 0;
        strings += isTyped ? edit.proposedText.mid(start, caret - start)
                           : someText(edit.style, *rc::gen::inRange(0, 3)) + u""_s;
    }
    return strings;
}

rc::Gen<TriedEdit> anyEdit()
{
    const auto edits = rc::gen::exec([] {
        CheckedEdit edit;
        edit.style = *rc::gen::weightedOneOf<qint32>(
            {{12, rc::gen::inRange(0, 12)}, {1, rc::gen::element(12, -1, 99, smallest, largest)}});
        if (*rc::gen::inRange(0, 5) > 0) {
            setUsersEdit(edit);
        } else {
            setAnyEdit(edit);
        }
        edit.maxLength = someLength(edit);
        edit.minValue = someLimit(edit);
        edit.maxValue = someLimit(edit);
        edit.refusedStrings = someRefusedStrings(edit);
        return TriedEdit{edit, *rc::gen::element<std::string>("UTF-8", "ISO-8859-1", "UTF-16BE")};
    });
    // The first edits of a run shall be as different as the later ones.
    return rc::gen::resize(rc::kNominalSize, edits);
}

Verdict answerOn(const CheckedEdit &edit)
{
    const auto formatter = PDEFormatter::initWithStyle(edit.style);
    formatter->setMaxLength(edit.maxLength);
    if (edit.minValue) {
        formatter->setMinValue(*edit.minValue);
    }
    if (edit.maxValue) {
        formatter->setMaxValue(*edit.maxValue);
    }
    for (const QString &string : edit.refusedStrings) {
        formatter->addInvalidCharacter(string);
    }
    RefusalLog log;
    QString error;
    const bool allowed = formatter->isPartialStringValid(
        edit.proposedText, edit.proposedSelection ? &*edit.proposedSelection : nullptr,
        edit.originalText, edit.originalSelection, &error);
    const QStringList told = log.taken();
    RC_ASSERT(told.size() == (allowed ? 0 : 1));
    RC_ASSERT(log.takenBeeps() == told.size());
    RC_ASSERT(error.isNull());
    if (allowed) {
        return {};
    }
    const bool isCharacter = told.first().contains(u' ');
    RC_ASSERT(isCharacter || log.lastObject() == formatter.get());
    const QString name = told.first().section(u' ', 0, 0);
    return {name, isCharacter ? told.first().mid(name.size() + 1) : QString()};
}

/// Says nothing while edits are tried.
class SilentListener : public rc::detail::TestListener
{
public:
    void onTestCaseFinished(const rc::detail::CaseDescription &) override {}
    void onShrinkTried(const rc::detail::CaseDescription &, bool) override {}
    void onTestFinished(const rc::detail::TestMetadata &, const rc::detail::TestResult &) override
    {
    }
};

using NothingToReproduce = std::unordered_map<std::string, rc::detail::Reproduce>;

/// How many edits of a style were allowed, and how many were refused.
struct Counts
{
    int allowed = 0;
    int refused = 0;
};

/// Tries edits.
class EditTrial
{
public:
    explicit EditTrial(quint64 seed)
        : mSeed(seed)
    {
    }

    /// @return what is wrong, for the first edit that is answered otherwise than by the rules.
    std::string run(int edits)
    {
        rc::detail::TestParams params;
        params.seed = mSeed;
        params.maxSuccess = edits;
        SilentListener listener;
        const auto result =
            rc::detail::checkTestable([this] { tryOne(*anyEdit()); }, rc::detail::TestMetadata(),
                                      params, listener, NothingToReproduce());
        std::ostringstream message;
        if (!result.is<rc::detail::SuccessResult>()) {
            rc::detail::printResultMessage(result, message);
        }
        return message.str();
    }

    const std::map<qint32, Counts> &counts() const { return mCounts; }

private:
    void tryOne(const TriedEdit &tried)
    {
        setSystemCodeset(QByteArray::fromStdString(tried.encoding));
        const Verdict expected = verdictOn(tried.edit);
        const Verdict answer = answerOn(tried.edit);
        Counts &counts = mCounts[tried.edit.style];
        ++(expected.isAccepted() ? counts.allowed : counts.refused);
        RC_ASSERT(answer.notification.toStdString() == expected.notification.toStdString());
        RC_ASSERT(quoted(answer.character) == quoted(expected.character));
    }

    quint64 mSeed;
    std::map<qint32, Counts> mCounts;
};

/// Another seed for every run, unless one is to be run again.
quint64 freshSeed()
{
    bool isSet = false;
    const quint64 seed = qEnvironmentVariable("KV_PROPERTY_SEED").toULongLong(&isSet);
    std::random_device random;
    return isSet ? seed : (quint64(random()) << 32) | random();
}

int editsToTry()
{
    bool isSet = false;
    const int edits = qEnvironmentVariableIntValue("KV_PROPERTY_EDITS", &isSet);
    return isSet ? edits : 12000;
}
} // namespace

void FormatterPropertyTest::allowsWhatTheRulesAllow_data()
{
    const TestTable<quint64> table("seed");
    table.add("fixed seed", quint64(20240704));
    table.add("fresh seed", freshSeed());
}

void FormatterPropertyTest::allowsWhatTheRulesAllow()
{
    QFETCH(quint64, seed);
    EditTrial trial(seed);
    const std::string problem = trial.run(editsToTry());
    setSystemCodeset({});

    int edits = 0;
    for (const auto &[style, counts] : trial.counts()) {
        edits += counts.allowed + counts.refused;
        std::printf("  style %d: %d allowed, %d refused\n", style, counts.allowed, counts.refused);
    }
    std::printf("seed %llu: %d edits\n", static_cast<unsigned long long>(seed), edits);
    QVERIFY2(problem.empty(), problem.c_str());
    for (qint32 style = 0; style < 12; ++style) {
        const Counts counts = trial.counts().contains(style) ? trial.counts().at(style) : Counts();
        const int few = edits / 1000;
        QVERIFY2(counts.allowed > few, qPrintable(u"style %1 allows too few"_s.arg(style)));
        QVERIFY2(counts.refused > few, qPrintable(u"style %1 refuses too few"_s.arg(style)));
    }
}

KV_CORE_TEST(FormatterPropertyTest)
#include "tst_formatterproperty.moc"
