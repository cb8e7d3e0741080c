// SPDX-License-Identifier: Apache-2.0
#include "cups/KeywordMap.h"

#include "cups/KeywordMapReader.h"
#include "cups/PPDFile.h"
#include "printcore/QtVersions.h"

#include <algorithm>
#include <array>

namespace {
/// The options of the cut option panel: a PPD that has one speaks for itself.
constexpr std::array panelKeywords = {"KvCutLabel",    "KvCutAtEnd",       "KvMirror",
                                      "KvAutoTapeCut", "KvHalfCut",        "KvChainPrint",
                                      "KvSpecialTape", "KvRemoveBlkSpace", "KvCutMark"};

QString keywordOf(const QString &choice)
{
    return choice.section(u'/', 0, 0);
}

void setPreferred(const KeywordTable::Combination &combination, JobOptions &options)
{
    for (auto entry = combination.begin(); entry != combination.end(); ++entry) {
        options.set(entry.key(), entry.value().first());
    }
}
} // namespace

QStringList KeywordMap::Option::keywords() const
{
    QStringList words;
    for (const QString &choice : choices) {
        words.append(keywordOf(choice));
    }
    return words;
}

std::optional<KeywordMap> KeywordMap::read(const QByteArray &json, QString *fault)
{
    return KeywordMapReader(json).read(fault);
}

bool KeywordMap::isFor(const PPDFile &ppd) const
{
    const auto has = [&ppd](const QString &key) {
        return ppd.hasOption(key);
    };
    return std::none_of(panelKeywords.begin(), panelKeywords.end(),
                        [&](const char *key) { return has(QLatin1String(key)); }) &&
           std::none_of(mOptions.begin(), mOptions.end(),
                        [&](const Option &option) { return has(option.key); }) &&
           std::all_of(mRequiredOptions.begin(), mRequiredOptions.end(), has) &&
           std::all_of(mAttributes.keyBegin(), mAttributes.keyEnd(), [&](const QString &name) {
               const QString value = ppd.attribute(name);
               return !value.isNull() && value == mAttributes.value(name);
           });
}

std::optional<KeywordMap> KeywordMap::fittedTo(const PPDFile &ppd) const
{
    if (!isFor(ppd)) {
        return std::nullopt;
    }
    KeywordMap fitted = *this;
    fitted.mTables.clear();
    for (const KeywordTable &table : mTables) {
        const KeywordTable decided = table.fittedTo(ppd);
        if (!decided.isEmpty()) {
            fitted.mTables.append(decided);
        }
    }
    fitted.keepDecidedOptions();
    return fitted.mTables.isEmpty() ? std::nullopt : std::make_optional(fitted);
}

void KeywordMap::keepDecidedOptions()
{
    QStringList decided;
    for (const KeywordTable &table : std::as_const(mTables)) {
        const QStringList keys = table.panelKeys();
        decided += keys;
        for (Option &option : mOptions) {
            if (keys.contains(option.key)) {
                const QStringList left = table.panelChoices(option.key);
                removeFrom(option.choices, [&left](const QString &choice) {
                    return !left.contains(keywordOf(choice));
                });
            }
        }
    }
    removeFrom(mOptions, [&decided](const Option &option) {
        return !decided.contains(option.with.isEmpty() ? option.key : option.with);
    });
}

QByteArray KeywordMap::ppdLines(const PPDFile &ppd) const
{
    JobOptions printer;
    const QStringList keys = printerKeys();
    for (const QString &key : keys) {
        printer.set(key, ppd.defaultChoice(key));
    }
    const JobOptions defaults = panelChoices(printer);
    QString lines = QStringLiteral("\n");
    if (!mSeries.isNull()) {
        lines += QStringLiteral("*KvTapeType: \"%1\"\n").arg(mSeries);
    }
    if (mHasAutoCutBox) {
        lines += QStringLiteral("*KvAutoCutObjHidden: \"False\"\n");
    }
    for (const Option &option : mOptions) {
        const QString choice = defaults.contains(option.key) ? defaults.value(option.key)
                                                             : keywordOf(option.choices.first());
        lines += QStringLiteral("*OpenUI *%1/%2: PickOne\n*Default%1: %3\n")
                     .arg(option.key, option.text, choice);
        for (const QString &each : option.choices) {
            lines += QStringLiteral("*%1 %2: \"\"\n").arg(option.key, each);
        }
        lines += QStringLiteral("*CloseUI: *%1\n").arg(option.key);
    }
    return lines.toUtf8();
}

QStringList KeywordMap::printerKeys() const
{
    QStringList keys;
    for (const KeywordTable &table : mTables) {
        keys += table.printerKeys();
    }
    return keys;
}

JobOptions KeywordMap::panelChoices(const JobOptions &printer) const
{
    JobOptions panel;
    for (const KeywordTable &table : mTables) {
        setPreferred(table.rows().at(std::max(table.rowOfPrinter(printer), 0)).panel, panel);
    }
    return panel;
}

JobOptions KeywordMap::printerChoices(const JobOptions &panel, const JobOptions &former) const
{
    JobOptions printer;
    for (const KeywordTable &table : mTables) {
        const int wanted = table.rowOfPanel(panel);
        const int shown = std::max(table.rowOfPrinter(former), 0);
        if (wanted >= 0 && wanted != shown) {
            setPreferred(table.rows().at(wanted).printer, printer);
            continue;
        }
        const QStringList keys = table.printerKeys();
        for (const QString &key : keys) {
            printer.set(key, former.value(key));
        }
    }
    return printer;
}

JobOptions KeywordMap::inPanelWords(const JobOptions &options, const JobOptions &printer) const
{
    const JobOptions panel = panelChoices(printer);
    JobOptions translated = options;
    for (const KeywordTable &table : mTables) {
        const QStringList keys = table.printerKeys();
        if (std::none_of(keys.begin(), keys.end(),
                         [&](const QString &key) { return options.contains(key); })) {
            continue;
        }
        const QStringList decided = table.panelKeys();
        for (const QString &key : decided) {
            translated.set(key, panel.value(key));
        }
    }
    for (const Option &option : mOptions) {
        if (options.contains(option.key)) {
            translated.set(option.key, options.value(option.key));
        }
    }
    return translated;
}

JobOptions KeywordMap::markedIn(const PPDFile &ppd) const
{
    JobOptions marked;
    const QStringList keys = printerKeys();
    for (const QString &key : keys) {
        marked.set(key, ppd.markedChoice(key));
    }
    return marked;
}
