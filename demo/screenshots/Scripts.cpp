// SPDX-License-Identifier: Apache-2.0
#include "demo/screenshots/Scripts.h"

#include <QFontDatabase>
#include <QLocale>

namespace {
struct Writing
{
    QLocale::Script script;
    QFontDatabase::WritingSystem system;
};

constexpr Writing writings[] = {
    {QLocale::ArabicScript, QFontDatabase::Arabic},
    {QLocale::JapaneseScript, QFontDatabase::Japanese},
    {QLocale::KoreanScript, QFontDatabase::Korean},
    {QLocale::SimplifiedHanScript, QFontDatabase::SimplifiedChinese},
    {QLocale::TraditionalHanScript, QFontDatabase::TraditionalChinese},
};
} // namespace

QStringList scriptsWithoutFont(const QStringList &languages)
{
    QStringList missing;
    for (const QString &language : languages) {
        const QLocale::Script script = QLocale(language).script();
        for (const Writing &writing : writings) {
            if (writing.script == script && QFontDatabase::families(writing.system).isEmpty()) {
                missing.append(QLocale::scriptToString(script));
            }
        }
    }
    return missing;
}
