// SPDX-License-Identifier: Apache-2.0
#include "LookedUpKeys.h"

#include "cutoption/OptionCatalogue.h"
#include "support/PPDText.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>

namespace {
QString read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The sources below a folder of the source tree, one after the other.
QString sourcesIn(const QString &folder)
{
    QString sources;
    QDirIterator files(QStringLiteral(KV_SOURCE_FOLDER "/src/") + folder, {u"*.cpp"_s, u"*.h"_s},
                       QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        sources.append(read(files.next()));
    }
    return sources;
}

/// What the pattern's group matches, wherever it does.
QStringList matches(const QString &text, const QString &pattern)
{
    QStringList found;
    auto match = QRegularExpression(pattern).globalMatch(text);
    while (match.hasNext()) {
        found.append(match.next().captured(1));
    }
    return found;
}

QSet<QString> setOf(const QStringList &list)
{
    return {list.begin(), list.end()};
}

bool isBeginning(const QString &literal)
{
    return literal.endsWith(u'_');
}

/// The literals that begin as keys do.
QSet<QString> literals()
{
    return setOf(matches(sourcesIn(QString()), QStringLiteral(R"re("((?:RS|OP)_[^"]*)")re")));
}
} // namespace

QSet<QString> LookedUpKeys::all()
{
    QSet<QString> keys = optionTexts();
    const QSet<QString> found = literals();
    for (const QString &literal : found) {
        if (!isBeginning(literal)) {
            keys.insert(literal);
        }
    }
    const QStringList identifiers = presetIdentifiers();
    for (const QString &identifier : identifiers) {
        keys.insert(u"RS_Preset_"_s + identifier);
    }
    return keys;
}

QSet<QString> LookedUpKeys::beginnings()
{
    QSet<QString> found = literals();
    found.removeIf([](const QString &literal) { return !isBeginning(literal); });
    return found;
}

QStringList LookedUpKeys::presetIdentifiers()
{
    const QString form = read(QStringLiteral(KV_SOURCE_FOLDER "/resources/OptionPDE.ui"));
    return matches(form, QStringLiteral(R"re(<item>\s*<property name="text">\s*)re"
                                        R"re(<string notr="true">([^<]+)</string>)re"));
}

QSet<QString> LookedUpKeys::optionTexts()
{
    QSet<QString> texts;
    const QFileInfoList files = QDir(QStringLiteral(KV_PPD_DIR)).entryInfoList({u"*.ppd"_s});
    for (const QFileInfo &file : files) {
        const PPDHandle ppd(ppdOpenFile(QFile::encodeName(file.filePath()).constData()));
        for (const OptionRow &row : OptionCatalogue::rows) {
            if (const ppd_option_t *option = ppdFindOption(ppd.get(), row.keyword)) {
                texts.insert(QString::fromUtf8(option->text));
            }
        }
    }
    return texts;
}

QSet<QString> LookedUpKeys::strayLookUps()
{
    QSet<QString> found =
        setOf(matches(sourcesIn(QString()),
                      QStringLiteral(R"re(\b(?:localized\w*|localizedStringForKey)\(\s*)re"
                                     R"re((?:QStringLiteral\(|QLatin1String\(|u)?"([^"]*)")re")));
    found.subtract(literals());
    return found;
}

QSet<QString> LookedUpKeys::ofHost()
{
    return setOf(matches(sourcesIn(QString()),
                         QStringLiteral(R"re((?:\btexts|HostText\(\))\.text\("([^"]*)"\))re")));
}
