// SPDX-License-Identifier: Apache-2.0
#include "cups/KeywordMap.h"

#include "cups/KeywordMapReader.h"
#include "cups/PPDFile.h"
#include "cups/PanelKeywords.h"
#include "printcore/QtVersions.h"

#include <algorithm>

namespace {
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

bool hasAttribute(const PPDFile &ppd, const QString &name, const QString &value)
{
    const QString found = ppd.attribute(name);
    return !found.isNull() && found == value;
}

/// The lines of an option in a PPD.
QString ppdOption(const QString &key, const QString &text, const QStringList &choices,
                  const QString &byDefault)
{
    QString lines =
        QStringLiteral("*OpenUI *%1/%2: PickOne\n*Default%1: %3\n").arg(key, text, byDefault);
    for (const QString &choice : choices) {
        lines += QStringLiteral("*%1 %2: \"\"\n").arg(key, choice);
    }
    return lines + QStringLiteral("*CloseUI: *%1\n").arg(key);
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

QString KeywordMap::misfit(const PPDFile &ppd) const
{
    QStringList own;
    for (const char *key : PanelKeywords::options) {
        own.append(QLatin1String(key));
    }
    for (const Option &option : mOptions) {
        own.append(option.key);
    }
    for (const QString &key : std::as_const(own)) {
        if (ppd.hasOption(key)) {
            return QStringLiteral("the PPD has %1 itself").arg(key);
        }
    }
    for (const QString &key : mRequiredOptions) {
        if (!ppd.hasOption(key)) {
            return QStringLiteral("the PPD lacks %1").arg(key);
        }
    }
    for (auto wanted = mAttributes.begin(); wanted != mAttributes.end(); ++wanted) {
        if (!hasAttribute(ppd, wanted.key(), wanted.value())) {
            return QStringLiteral("%1 of the PPD is not \"%2\"").arg(wanted.key(), wanted.value());
        }
    }
    return {};
}

std::optional<KeywordMap> KeywordMap::fittedTo(const PPDFile &ppd, QString *reason) const
{
    QString fault = misfit(ppd);
    KeywordMap fitted = *this;
    if (fault.isNull() && !fitted.keepTablesOf(ppd)) {
        fault = QStringLiteral("the PPD lacks choices of %1")
                    .arg(printerKeys().join(QStringLiteral(" and ")));
    }
    if (!fault.isNull()) {
        if (reason) {
            *reason = fault;
        }
        return std::nullopt;
    }
    for (const Option &option : mOptions) {
        if (fitted.sourcesOf(option.key).isEmpty()) {
            fitted.mLeftOut.insert(option.key, sourcesOf(option.key));
        }
    }
    fitted.keepDecidedOptions();
    return fitted;
}

bool KeywordMap::keepTablesOf(const PPDFile &ppd)
{
    for (KeywordTable &table : mTables) {
        table = table.fittedTo(ppd);
    }
    removeFrom(mTables, [](const KeywordTable &table) { return table.isEmpty(); });
    return !mTables.isEmpty();
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
        lines += ppdOption(option.key, option.text, option.choices, choice);
    }
    return lines.toUtf8();
}

void KeywordMap::removeAdded(JobOptions &options) const
{
    for (const Option &option : mOptions) {
        options.remove(option.key);
    }
}

QStringList KeywordMap::printerKeys() const
{
    QStringList keys;
    for (const KeywordTable &table : mTables) {
        keys += table.printerKeys();
    }
    return keys;
}

QStringList KeywordMap::sourcesOf(const QString &key) const
{
    const auto option = std::find_if(mOptions.begin(), mOptions.end(),
                                     [&key](const Option &each) { return each.key == key; });
    if (option == mOptions.end()) {
        return {};
    }
    const QString decided = option->with.isEmpty() ? key : option->with;
    const auto table =
        std::find_if(mTables.begin(), mTables.end(), [&decided](const KeywordTable &each) {
            return each.panelKeys().contains(decided);
        });
    return table == mTables.end() ? QStringList() : table->printerKeys();
}

QMap<QString, QStringList> KeywordMap::namedChoices() const
{
    QMap<QString, QStringList> all;
    for (const QString &key : mRequiredOptions) {
        all.insert(key, {});
    }
    for (const KeywordTable &table : mTables) {
        for (const KeywordTable::Row &row : table.rows()) {
            for (auto side = row.printer.begin(); side != row.printer.end(); ++side) {
                all[side.key()] += side.value();
            }
        }
    }
    for (QStringList &choices : all) {
        choices.removeDuplicates();
    }
    return all;
}

QStringList KeywordMap::namesMissingIn(const PPDFile &ppd) const
{
    QStringList missing;
    const QMap<QString, QStringList> named = namedChoices();
    for (auto option = named.begin(); option != named.end(); ++option) {
        const QStringList known = ppd.choices(option.key());
        if (!ppd.hasOption(option.key())) {
            missing.append(option.key());
        }
        for (const QString &choice : option.value()) {
            if (!known.contains(choice)) {
                missing.append(option.key() + u'=' + choice);
            }
        }
    }
    for (auto wanted = mAttributes.begin(); wanted != mAttributes.end(); ++wanted) {
        if (!hasAttribute(ppd, wanted.key(), wanted.value())) {
            missing.append(QStringLiteral("%1: \"%2\"").arg(wanted.key(), wanted.value()));
        }
    }
    return missing;
}

QByteArray KeywordMap::completePPD() const
{
    QString text = QStringLiteral("*PPD-Adobe: \"4.3\"\n*LanguageEncoding: UTF-8\n");
    for (auto wanted = mAttributes.begin(); wanted != mAttributes.end(); ++wanted) {
        text += QStringLiteral("*%1: \"%2\"\n").arg(wanted.key(), wanted.value());
    }
    const QMap<QString, QStringList> named = namedChoices();
    for (auto option = named.begin(); option != named.end(); ++option) {
        text += ppdOption(option.key(), option.key(), option.value(), option.value().value(0));
    }
    return text.toUtf8();
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
    JobOptions printer = panel;
    for (const Option &option : mOptions) {
        printer.remove(option.key);
    }
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
