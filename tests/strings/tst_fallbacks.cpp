// SPDX-License-Identifier: Apache-2.0
#include "TranslationFile.h"
#include "printcore/StringTables.h"
#include "support/TestHost.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTest>

namespace {
const QString panelName = u"OP_PANEL_NAME"_s;

QString nameIn(const QString &language)
{
    return TranslationFile::ofBundle(language).text(panelName);
}

/// The panel's name that the program tells a user with these settings.
QString nameToldTo(const QString &locale, const QString &languages)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"LC_ALL"_s, locale);
    environment.insert(u"LANGUAGE"_s, languages);
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(
        QStringLiteral(KV_PRINT_PROGRAM),
        {u"--ppd"_s, QStringLiteral(KV_PPD_DIR "/korvane-tape.ppd"), u"--script"_s, u"-"_s});
    program.write("{\"cmd\":\"open\"}\n");
    program.closeWriteChannel();
    if (!program.waitForFinished()) {
        return {};
    }
    return QJsonDocument::fromJson(program.readAllStandardOutput())
        .object()
        .value(u"name")
        .toString();
}
} // namespace

/// Which language is shown to users whose own there is no table for.
class FallbacksTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesOfTables_data();
    void namesOfTables();
    void languageOfTheBundle_data();
    void languageOfTheBundle();
    void languageOfTheUser_data();
    void languageOfTheUser();
};

void FallbacksTest::namesOfTables_data()
{
    const TestTable<QStringList, QString> table("languages", "names");
    const auto row = [&table](const QString &languages, const char *names) {
        table.add(qPrintable(languages), languages.split(u' '), QString::fromLatin1(names));
    };
    row(u"en"_s, "en");
    row(u"de-AT"_s, "de_AT de en");
    row(u"de_AT.UTF-8"_s, "de_AT de en");
    row(u"de_DE@euro"_s, "de_DE de en");
    row(u"de-Latn-AT"_s, "de_Latn_AT de_AT de_Latn de en");
    row(u"DE-at"_s, "de_AT de en");
    row(u"de-AT de fr-FR"_s, "de_AT de fr_FR fr en");
    row(u"en-GB de"_s, "en_GB en de");
    row(u"pt-PT"_s, "pt_PT pt pt_BR en");
    row(u"pt-PT pt-Latn-PT es"_s, "pt_PT pt pt_BR pt_Latn_PT pt_Latn es en");
    row(u"ar-EG"_s, "ar_EG ar en");
    row(u"nb-NO"_s, "nb_NO nb en");
    row(u"zh"_s, "zh_CN zh en");
    row(u"zh-Hans"_s, "zh_Hans zh_CN zh en");
    row(u"zh-Hant"_s, "zh_Hant zh_TW zh en");
    row(u"zh-HK"_s, "zh_HK zh_TW zh en");
    row(u"zh-hant-hk"_s, "zh_Hant_HK zh_HK zh_Hant zh_TW zh en");
    row(u"zh-Hans-HK"_s, "zh_Hans_HK zh_HK zh_Hans zh_CN zh en");
    row(u"zh-MO"_s, "zh_MO zh_TW zh en");
    row(u"zh-SG"_s, "zh_SG zh_CN zh en");
    row(u"C"_s, "c en");
    row(u"../de"_s, "en");
    row(u"/de"_s, "en");
    row(u"-"_s, "en");
}

void FallbacksTest::namesOfTables()
{
    QFETCH(const QStringList, languages);
    QTEST(StringTables::namesFor(languages).join(u' '), "names");
}

void FallbacksTest::languageOfTheBundle_data()
{
    const TestTable<QStringList, QString> table("languages", "shown");
    const auto row = [&table](const QString &languages, const char *shown) {
        table.add(qPrintable(languages), languages.split(u' '), QString::fromLatin1(shown));
    };
    row(u"de-AT"_s, "de");
    row(u"de-CH"_s, "de");
    row(u"fr-CA"_s, "fr");
    row(u"es-MX"_s, "es");
    row(u"nl-BE"_s, "nl");
    row(u"pt"_s, "pt_BR");
    row(u"pt-PT"_s, "pt_BR");
    row(u"pt-PT es"_s, "pt_BR");
    row(u"zh"_s, "zh_CN");
    row(u"zh-Hans"_s, "zh_CN");
    row(u"zh-SG"_s, "zh_CN");
    row(u"zh-Hans-HK"_s, "zh_CN");
    row(u"zh-Hant"_s, "zh_TW");
    row(u"zh-HK"_s, "zh_TW");
    row(u"zh-MO"_s, "zh_TW");
    row(u"zh-Hant-HK"_s, "zh_TW");
    row(u"ar-EG"_s, "ar");
    row(u"nb-NO"_s, "en");
    row(u"nb-NO de"_s, "de");
    row(u"en-GB de"_s, "en");
    row(u"xx"_s, "en");
    row(u"C"_s, "en");
}

void FallbacksTest::languageOfTheBundle()
{
    QFETCH(const QStringList, languages);
    QFETCH(const QString, shown);
    const auto bundle = testBundle();
    bundle->setLanguages(languages);
    QCOMPARE(bundle->localizedStringForKey(panelName), nameIn(shown));
}

void FallbacksTest::languageOfTheUser_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("languages");
    QTest::addColumn<QString>("shown");
    const auto row = [](const QString &locale, const QString &languages, const char *shown) {
        QTest::addRow("%s %s", qPrintable(locale), qPrintable(languages))
            << locale << languages << QString::fromLatin1(shown);
    };
    const QStringList everyLanguage = TranslationFile::languages();
    for (const QString &language : everyLanguage) {
        row(language + u".UTF-8"_s, QString(), qPrintable(language));
    }
    row(u"de_AT.UTF-8"_s, QString(), "de");
    row(u"pt_PT.UTF-8"_s, QString(), "pt_BR");
    row(u"zh_HK.UTF-8"_s, QString(), "zh_TW");
    row(u"zh_MO.UTF-8"_s, QString(), "zh_TW");
    row(u"zh_SG.UTF-8"_s, QString(), "zh_CN");
    row(u"ar_EG.UTF-8"_s, QString(), "ar");
    row(u"nb_NO.UTF-8"_s, QString(), "en");
    row(u"C.UTF-8"_s, QString(), "en");
    row(u"en_US.UTF-8"_s, u"nb:ja"_s, "ja");
    row(u"en_US.UTF-8"_s, u"zh_Hant_HK:en"_s, "zh_TW");
    row(u"de_DE.UTF-8"_s, u"en_GB:de"_s, "en");
}

void FallbacksTest::languageOfTheUser()
{
    QFETCH(const QString, locale);
    QFETCH(const QString, languages);
    QFETCH(const QString, shown);
    QCOMPARE(nameToldTo(locale, languages), nameIn(shown));
}

KV_TEST(FallbacksTest)
#include "tst_fallbacks.moc"
