// SPDX-License-Identifier: Apache-2.0
#include "cups/KeywordMapReader.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace {
/// What libcups keeps of a keyword and of a text, in bytes, without the zero behind them:
/// PPD_MAX_NAME and PPD_MAX_TEXT.
constexpr int longestKeyword = 40;
constexpr int longestText = 79;
/// More than any printer needs, and checked in no time.
constexpr int mostRows = 256;
constexpr int mostOptions = 9;
constexpr int mostChoices = 1000;

/// Whether the word can stand in a PPD as it is: libcups reads keywords up to a blank, colon or
/// slash.
bool isKeyword(const QString &word)
{
    return !word.isEmpty() && word.size() <= longestKeyword &&
           std::all_of(word.begin(), word.end(), [](QChar letter) {
               return letter > u' ' && letter < u'\x7f' && letter != u':' && letter != u'/' &&
                      letter != u'"' && letter != u'*';
           });
}

/// Whether a PPD in any encoding can have the text.
bool isText(const QString &text)
{
    return !text.isEmpty() && text.size() <= longestText &&
           std::all_of(text.begin(), text.end(), [](QChar letter) {
               return letter >= u' ' && letter < u'\x7f' && letter != u':' && letter != u'/' &&
                      letter != u'"' && letter != u'<';
           });
}

bool isChoice(const QString &choice)
{
    return isKeyword(choice.section(u'/', 0, 0)) &&
           (!choice.contains(u'/') || isText(choice.section(u'/', 1)));
}

/// The strings of an array, or the one string; empty when there is anything else.
QStringList stringsOf(const QJsonValue &words)
{
    const QJsonArray array = words.isArray() ? words.toArray() : QJsonArray{words};
    QStringList strings;
    for (const auto &each : array) {
        const QJsonValue value = each;
        if (!value.isString()) {
            return {};
        }
        strings.append(value.toString());
    }
    return strings;
}

bool hasDuplicates(QStringList words)
{
    return words.removeDuplicates() > 0;
}
} // namespace

KeywordMapReader::KeywordMapReader(const QByteArray &json)
    : mJSON(json)
{
}

std::optional<KeywordMap> KeywordMapReader::read(QString *fault)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(mJSON, &error);
    if (error.error != QJsonParseError::NoError) {
        const auto lines = mJSON.left(error.offset).count('\n');
        *fault = QStringLiteral("line %1: %2").arg(lines + 1).arg(error.errorString());
        return std::nullopt;
    }
    const QJsonObject map = document.object();
    const bool isRead =
        (document.isObject() || fail({}, QStringLiteral("the map is no object"))) &&
        hasOnly(map, QStringLiteral("the map"),
                {QStringLiteral("for"), QStringLiteral("series"), QStringLiteral("autoCutBox"),
                 QStringLiteral("options"), QStringLiteral("tables")}) &&
        readConditions(map.value(u"for")) && readSeries(map) &&
        readOptions(map.value(u"options")) && readTables(map.value(u"tables")) && checkOptions();
    if (!isRead) {
        *fault = mFault;
        return std::nullopt;
    }
    return mMap;
}

bool KeywordMapReader::fail(const QString &word, const QString &reason)
{
    const auto place = word.isNull() ? -1 : mJSON.indexOf('"' + word.toUtf8() + '"');
    mFault = QStringLiteral("line %1: %2")
                 .arg(place < 0 ? 1 : mJSON.left(place).count('\n') + 1)
                 .arg(reason);
    return false;
}

bool KeywordMapReader::hasOnly(const QJsonObject &object, const QString &name,
                               const QStringList &members)
{
    const QStringList present = object.keys();
    const auto unknown =
        std::find_if(present.begin(), present.end(),
                     [&members](const QString &member) { return !members.contains(member); });
    return unknown == present.end() ||
           fail(*unknown, QStringLiteral("%1 has no member \"%2\"").arg(name, *unknown));
}

bool KeywordMapReader::readConditions(const QJsonValue &value)
{
    const QJsonObject conditions = value.toObject();
    const QString options = QStringLiteral("options");
    const QString attributes = QStringLiteral("attributes");
    if (!value.isObject()) {
        return fail(QStringLiteral("for"), QStringLiteral("\"for\" is no object"));
    }
    if (!hasOnly(conditions, QStringLiteral("\"for\""), {options, attributes})) {
        return false;
    }
    if (conditions.contains(options)) {
        mMap.mRequiredOptions = stringsOf(conditions.value(options));
        if (mMap.mRequiredOptions.isEmpty() ||
            !std::all_of(mMap.mRequiredOptions.begin(), mMap.mRequiredOptions.end(), isKeyword)) {
            return fail(options, QStringLiteral("\"options\" of \"for\" are no keywords"));
        }
    }
    const QJsonObject wanted = conditions.value(attributes).toObject();
    for (auto entry = wanted.begin(); entry != wanted.end(); ++entry) {
        if (!entry.value().isString()) {
            return fail(entry.key(),
                        QStringLiteral("the attribute \"%1\" is no text").arg(entry.key()));
        }
        mMap.mAttributes.insert(entry.key(), entry.value().toString());
    }
    return !conditions.contains(attributes) || !wanted.isEmpty() ||
           fail(attributes, QStringLiteral("\"attributes\" of \"for\" is no object with members"));
}

bool KeywordMapReader::readSeries(const QJsonObject &map)
{
    const QJsonValue series = map.value(u"series");
    if (!series.isUndefined() && !isKeyword(series.toString())) {
        return fail(QStringLiteral("series"), QStringLiteral("\"series\" is no keyword"));
    }
    mMap.mSeries = series.toString();
    const QJsonValue box = map.value(u"autoCutBox");
    mMap.mHasAutoCutBox = box.toBool();
    return box.isUndefined() || box.isBool() ||
           fail(QStringLiteral("autoCutBox"),
                QStringLiteral("\"autoCutBox\" is not true or false"));
}

bool KeywordMapReader::readOptions(const QJsonValue &value)
{
    const QJsonObject options = value.toObject();
    if (options.isEmpty() || options.size() > mostOptions) {
        return fail(
            QStringLiteral("options"),
            QStringLiteral("\"options\" is no object with 1 to %1 members").arg(mostOptions));
    }
    const QStringList keys = options.keys();
    return std::all_of(keys.begin(), keys.end(), [&](const QString &key) {
        return readOption(key, options.value(key).toObject());
    });
}

bool KeywordMapReader::readOption(const QString &key, const QJsonObject &option)
{
    const QString with = QStringLiteral("with");
    if (!hasOnly(option, QStringLiteral("the option %1").arg(key),
                 {QStringLiteral("text"), QStringLiteral("choices"), with})) {
        return false;
    }
    const KeywordMap::Option read{key, option.value(u"text").toString(),
                                  stringsOf(option.value(u"choices")),
                                  option.value(with).toString()};
    if (!isKeyword(key)) {
        return fail(key, QStringLiteral("\"%1\" is no keyword of a PPD").arg(key));
    }
    if (!isText(read.text)) {
        return fail(key,
                    QStringLiteral("the text of %1 is none of 1 to %2 letters of ASCII, without "
                                   "colon and slash")
                        .arg(key)
                        .arg(longestText));
    }
    if (read.choices.isEmpty() || read.choices.size() > mostChoices ||
        !std::all_of(read.choices.begin(), read.choices.end(), isChoice)) {
        return fail(key, QStringLiteral("the choices of %1 are no keywords of a PPD").arg(key));
    }
    if (option.contains(with) && !isKeyword(read.with)) {
        return fail(key, QStringLiteral("\"with\" of %1 is no keyword").arg(key));
    }
    if (hasDuplicates(read.keywords())) {
        return fail(key, QStringLiteral("%1 has a choice twice").arg(key));
    }
    mMap.mOptions.append(read);
    return true;
}

bool KeywordMapReader::readTables(const QJsonValue &value)
{
    const QJsonArray tables = value.toArray();
    return (!tables.isEmpty() ||
            fail(QStringLiteral("tables"), QStringLiteral("\"tables\" is no array of tables"))) &&
           std::all_of(tables.begin(), tables.end(),
                       [this](const QJsonValue &table) { return readTable(table); });
}

bool KeywordMapReader::readTable(const QJsonValue &value)
{
    const QJsonArray array = value.toArray();
    if (array.isEmpty() || array.size() > mostRows) {
        return fail(QStringLiteral("tables"),
                    QStringLiteral("a table is no array of 1 to %1 rows").arg(mostRows));
    }
    QList<KeywordTable::Row> rows;
    for (const auto &each : array) {
        KeywordTable::Row row;
        if (!readRow(each, row)) {
            return false;
        }
        rows.append(row);
        if (row.panel.keys() != rows.first().panel.keys() ||
            row.printer.keys() != rows.first().printer.keys()) {
            return fail(row.panel.firstKey(),
                        QStringLiteral("the rows of a table do not name the same options"));
        }
    }
    const KeywordTable table(rows);
    const QString fault = table.fault();
    if (!fault.isNull()) {
        return fail(table.panelKeys().first(), fault);
    }
    mMap.mTables.append(table);
    return true;
}

bool KeywordMapReader::readRow(const QJsonValue &value, KeywordTable::Row &row)
{
    const QString panel = QStringLiteral("panel");
    const QString printer = QStringLiteral("printer");
    const QJsonObject members = value.toObject();
    return hasOnly(members, QStringLiteral("a row"), {panel, printer}) &&
           readSide(members, panel, row.panel) && readSide(members, printer, row.printer);
}

bool KeywordMapReader::readSide(const QJsonObject &row, const QString &name,
                                KeywordTable::Combination &side)
{
    const QJsonObject options = row.value(name).toObject();
    if (options.isEmpty() || options.size() > mostOptions) {
        return fail(name, QStringLiteral("\"%1\" of a row is no object with options").arg(name));
    }
    for (auto entry = options.begin(); entry != options.end(); ++entry) {
        const QStringList choices = stringsOf(entry.value());
        if (!isKeyword(entry.key()) || choices.isEmpty() || hasDuplicates(choices) ||
            !std::all_of(choices.begin(), choices.end(), isKeyword)) {
            return fail(
                entry.key(),
                QStringLiteral("\"%1\" of a row has no choices of its own").arg(entry.key()));
        }
        side.insert(entry.key(), choices);
    }
    return true;
}

bool KeywordMapReader::checkOptions()
{
    QStringList decided;
    QStringList printers;
    for (const KeywordTable &table : std::as_const(mMap.mTables)) {
        decided += table.panelKeys();
        printers += table.printerKeys();
    }
    if (hasDuplicates(decided + printers)) {
        return fail(QStringLiteral("tables"), QStringLiteral("an option is in two tables"));
    }
    for (const KeywordMap::Option &option : std::as_const(mMap.mOptions)) {
        const bool isAlone = option.with.isEmpty();
        if (decided.contains(option.key) != isAlone ||
            !decided.contains(isAlone ? option.key : option.with)) {
            return fail(option.key, QStringLiteral("no table decides %1").arg(option.key));
        }
    }
    return checkChoices();
}

bool KeywordMapReader::checkChoices()
{
    for (const KeywordTable &table : std::as_const(mMap.mTables)) {
        const QStringList keys = table.panelKeys();
        for (const QString &key : keys) {
            const auto option =
                std::find_if(mMap.mOptions.begin(), mMap.mOptions.end(),
                             [&key](const KeywordMap::Option &each) { return each.key == key; });
            if (option == mMap.mOptions.end()) {
                return fail(key, QStringLiteral("\"options\" lacks %1").arg(key));
            }
            QStringList named = table.panelChoices(key);
            QStringList all = option->keywords();
            named.sort();
            all.sort();
            if (named != all) {
                return fail(key, QStringLiteral("the rows name %1 for %2, whose choices are %3")
                                     .arg(named.join(QStringLiteral(", ")), key,
                                          all.join(QStringLiteral(", "))));
            }
        }
    }
    return true;
}
