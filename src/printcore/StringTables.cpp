// SPDX-License-Identifier: Apache-2.0
#include "printcore/StringTables.h"

#include <QLocale>
#include <QTranslator>

#include <algorithm>
#include <memory>
#include <utility>

namespace {
constexpr char lastResort[] = "en";
constexpr int scriptLength = 4;

/// A part of a language's name in the letter case that tables are named in.
QString tagInItsCase(const QString &tag, bool isFirst)
{
    if (isFirst) {
        return tag.toLower();
    }
    if (tag.size() == scriptLength) {
        return tag.left(1).toUpper() + tag.mid(1).toLower();
    }
    return tag.size() < scriptLength ? tag.toUpper() : tag;
}

/// Language, script and country, as far as the name says them; none when it is no language's name.
QStringList tagsOf(QString language)
{
    language.replace(QLatin1Char('-'), QLatin1Char('_'));
    const auto end = std::find_if(language.cbegin(), language.cend(), [](QChar character) {
        return !character.isLetterOrNumber() && character != QLatin1Char('_');
    });
    language.truncate(int(end - language.cbegin()));
    QStringList tags = language.split(QLatin1Char('_'), Qt::SkipEmptyParts);
    for (int i = 0; i < tags.size(); ++i) {
        tags[i] = tagInItsCase(tags.at(i), i == 0);
    }
    return tags;
}

/// The table of Chinese in the script that the tags tell.
QString chineseTable(const QStringList &tags)
{
    static constexpr const char *traditional[] = {"Hant", "TW", "HK", "MO"};
    const bool isTraditional =
        !tags.contains(QLatin1String("Hans")) &&
        std::any_of(std::begin(traditional), std::end(traditional),
                    [&tags](const char *tag) { return tags.contains(QLatin1String(tag)); });
    return isTraditional ? QStringLiteral("zh_TW") : QStringLiteral("zh_CN");
}

QStringList namesOf(QStringList tags)
{
    if (tags.isEmpty()) {
        return {};
    }
    const QString language = tags.first();
    const QString chinese = chineseTable(tags);
    QStringList names;
    for (; tags.size() > 1; tags.removeLast()) {
        names.append(tags.join(QLatin1Char('_')));
        // Tables are rarely named with the script that is their country's own.
        names.append(language + QLatin1Char('_') + tags.last());
    }
    if (language == QLatin1String("zh")) {
        names.append(chinese);
    }
    names.append(language);
    if (language == QLatin1String("pt")) {
        names.append(QStringLiteral("pt_BR"));
    }
    return names;
}

/// Loads a table from bytes that must outlive it; null when they are none. What a table says that
/// it depends on is looked for nowhere.
std::unique_ptr<QTranslator> tableOf(const QByteArray &bytes)
{
    auto table = std::make_unique<QTranslator>();
    const auto *data = reinterpret_cast<const uchar *>(bytes.constData());
    if (!table->load(data, int(bytes.size()), QStringLiteral(":/kvprint/none"))) {
        return nullptr;
    }
    return table;
}
} // namespace

struct StringTables::Table
{
    QByteArray bytes;
    std::unique_ptr<QTranslator> texts;
};

StringTables::StringTables() = default;
StringTables::~StringTables() = default;

QStringList StringTables::usersLanguages()
{
    return QLocale::system().uiLanguages() << QLatin1String(lastResort);
}

QStringList StringTables::namesFor(const QStringList &languages)
{
    QStringList names;
    for (const QString &language : languages) {
        names.append(namesOf(tagsOf(language)));
    }
    names.append(QLatin1String(lastResort));
    names.removeDuplicates();
    return names;
}

bool StringTables::isTable(const QByteArray &bytes)
{
    return tableOf(bytes) != nullptr;
}

void StringTables::load(const Reader &read, const QStringList &languages)
{
    mTables.clear();
    mUnreadable.clear();
    const QStringList names = languages.isEmpty() ? QStringList() : namesFor(languages);
    for (const QString &name : names) {
        const QString fileName = name + QLatin1String(".qm");
        const QByteArray bytes = read(fileName);
        if (bytes.isNull()) {
            continue;
        }
        if (auto texts = tableOf(bytes)) {
            mTables.push_back({bytes, std::move(texts)});
        } else {
            mUnreadable.append(fileName);
        }
    }
}

QString StringTables::text(const QString &context, const QString &key) const
{
    // The empty source text is where a table keeps its own description.
    if (key.isEmpty()) {
        return {};
    }
    const QByteArray contextName = context.toUtf8();
    const QByteArray source = key.toUtf8();
    for (const Table &table : mTables) {
        QString text = table.texts->translate(contextName.constData(), source.constData());
        if (!text.isEmpty()) {
            return text;
        }
    }
    return {};
}
