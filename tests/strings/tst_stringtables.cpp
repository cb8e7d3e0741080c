// SPDX-License-Identifier: Apache-2.0
#include "LookedUpKeys.h"
#include "TranslationFile.h"
#include "printcore/SystemEncoding.h"
#include "support/PanelProbe.h"
#include "support/TestHost.h"

#include <QDir>
#include <QLocale>
#include <QRegularExpression>
#include <QTest>

namespace {
using TextsOfLanguage = TranslationFile (*)(const QString &language);

struct Tables
{
    const char *name;
    const char *folder;
    const char *context;
    TextsOfLanguage of;
};

const Tables everyTables[] = {
    {"bundle", KV_SOURCE_FOLDER "/resources/strings", "Localizable", TranslationFile::ofBundle},
    {"host", KV_SOURCE_FOLDER "/src/host/texts", "Host", TranslationFile::ofHost},
};

QString english()
{
    return u"en"_s;
}

QStringList sorted(QStringList list)
{
    list.sort();
    return list;
}

QStringList sorted(const QSet<QString> &set)
{
    return sorted(set.values());
}

/// What a text leaves to be filled in, in any order.
QStringList placeholders(const QString &text)
{
    static const QRegularExpression placeholder(u"%(?:L?\\d{1,2}|n|\\d+\\$[@a-zA-Z]|[@a-zA-Z%])"_s);
    QStringList found;
    auto matches = placeholder.globalMatch(text);
    while (matches.hasNext()) {
        found.append(matches.next().captured());
    }
    return sorted(found);
}

/// How a text ends, in whatever script.
QString ending(const QString &text)
{
    static const std::pair<const char16_t *, QLatin1String> endings[] = {
        {u"...", QLatin1String("three dots")}, {u"…", QLatin1String("ellipsis")},
        {u":", QLatin1String("colon")},        {u"：", QLatin1String("colon")},
        {u".", QLatin1String("full stop")},    {u"。", QLatin1String("full stop")},
        {u"!", QLatin1String("exclamation")},  {u"！", QLatin1String("exclamation")},
        {u"?", QLatin1String("question")},     {u"？", QLatin1String("question")},
        {u"؟", QLatin1String("question")},
    };
    for (const auto &[mark, name] : endings) {
        if (text.endsWith(QString::fromUtf16(mark))) {
            return name;
        }
    }
    return {};
}

/// Whether any character is a letter of the languages' own script.
bool hasLetterOf(const QString &text, const QList<QChar::Script> &scripts)
{
    return std::any_of(text.begin(), text.end(), [&scripts](QChar character) {
        return scripts.contains(character.script());
    });
}

/// The scripts that a language is written in.
QList<QChar::Script> scriptsOf(const QString &language)
{
    static const QMap<QString, QList<QChar::Script>> others = {
        {u"ar"_s, {QChar::Script_Arabic}},
        {u"ja"_s, {QChar::Script_Han, QChar::Script_Hiragana, QChar::Script_Katakana}},
        {u"ko"_s, {QChar::Script_Hangul}},
        {u"zh_CN"_s, {QChar::Script_Han}},
        {u"zh_TW"_s, {QChar::Script_Han}},
    };
    return others.value(language, {QChar::Script_Latin});
}

/// The encoding that has the letters of a language and few others.
const char *encodingOf(const QString &language)
{
    static const QMap<QString, const char *> encodings = {
        {u"ar"_s, "windows-1256"}, {u"ja"_s, "Shift_JIS"}, {u"ko"_s, "EUC-KR"},
        {u"pl"_s, "windows-1250"}, {u"zh_CN"_s, "GB2312"}, {u"zh_TW"_s, "Big5"},
    };
    return encodings.value(language, "windows-1252");
}

/// Texts of which the user sees several at once, so that they must differ.
struct Group
{
    const char *name;
    QStringList keys;
};

QStringList keysOf(const char *OptionRow::*key)
{
    QStringList keys;
    for (const OptionRow &row : OptionCatalogue::rows) {
        keys.append(QLatin1String(row.*key));
    }
    return keys;
}

PPDText printerWith(const QList<int> &options, bool isLabelSeries, bool hasAutoCutBox)
{
    PPDText text;
    for (const int option : options) {
        if (option == OptionCatalogue::CutEvery) {
            text.counts();
        } else {
            text.onOff(OptionCatalogue::rows[std::size_t(option)].keyword);
        }
    }
    text.attribute("KvTapeType", isLabelSeries ? "RV" : "MQ");
    text.attribute("KvAutoCutObjHidden", hasAutoCutBox ? "False" : "True");
    return text;
}

/// The keys of the presets that the menu for a printer has.
QStringList menuOf(const PPDText &printer)
{
    const auto host = std::make_shared<TestHost>(printer.open());
    PanelProbe panel(host, testBundle());
    if (!panel.panelView()) {
        return {};
    }
    QStringList keys;
    const QList<PDEPreset> presets = panel.presets();
    for (const PDEPreset &preset : presets) {
        keys.append(u"RS_Preset_"_s + preset.identifier);
    }
    return keys;
}

/// The menus of printers with all options, all but each, and each alone.
QSet<QStringList> everyMenu()
{
    QList<int> all;
    for (int option = 0; option < int(OptionCatalogue::size); ++option) {
        all.append(option);
    }
    QList<QList<int>> sets{all};
    for (const int option : std::as_const(all)) {
        QList<int> others = all;
        others.removeOne(option);
        sets << others << QList<int>{option};
    }
    QSet<QStringList> menus;
    for (const QList<int> &options : std::as_const(sets)) {
        for (const int kind : {0, 1, 2, 3}) {
            menus.insert(menuOf(printerWith(options, (kind & 1) != 0, (kind & 2) != 0)));
        }
    }
    return menus;
}

QList<Group> groups()
{
    QList<Group> found = {
        {"check boxes", keysOf(&OptionRow::labelKey)},
        {"lines of the summary", keysOf(&OptionRow::summaryTitleKey)},
        {"options of the sample printers", sorted(LookedUpKeys::optionTexts())},
        {"choices", {u"RS_STitle_Yes"_s, u"RS_STitle_No"_s}},
        {"arrows", {u"RS_Increase"_s, u"RS_Decrease"_s}},
    };
    const QSet<QStringList> menus = everyMenu();
    for (const QStringList &menu : menus) {
        found.append({"menu", menu});
    }
    return found;
}
} // namespace

/// The sources of the string tables in every language.
class StringTablesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyFileIsBuilt_data() { addTables(); }
    void everyFileIsBuilt();
    void keysAreFoundWhereTheyComeFrom();
    void fileSaysItsLanguage_data() { addLanguages(); }
    void fileSaysItsLanguage();
    void keysAreThoseLookedUp_data() { addLanguages(); }
    void keysAreThoseLookedUp();
    void textsAreDone_data() { addLanguages(); }
    void textsAreDone();
    void commentsAreInEnglishOnly_data() { addLanguages(); }
    void commentsAreInEnglishOnly();
    void textsHaveTheFormOfTheEnglish_data() { addLanguages(); }
    void textsHaveTheFormOfTheEnglish();
    void textsAreInTheirLanguage_data() { addLanguages(); }
    void textsAreInTheirLanguage();
    void textsSeenTogetherDiffer_data();
    void textsSeenTogetherDiffer();

private: // NOLINT(readability-redundant-access-specifiers)
    static void addTables();
    static void addLanguages();
};

void StringTablesTest::addTables()
{
    QTest::addColumn<const Tables *>("tables");
    for (const Tables &tables : everyTables) {
        QTest::newRow(tables.name) << &tables;
    }
}

void StringTablesTest::addLanguages()
{
    QTest::addColumn<const Tables *>("tables");
    QTest::addColumn<QString>("language");
    for (const Tables &tables : everyTables) {
        const QStringList languages = TranslationFile::languages();
        for (const QString &language : languages) {
            QTest::addRow("%s, %s", tables.name, qPrintable(language)) << &tables << language;
        }
    }
}

void StringTablesTest::everyFileIsBuilt()
{
    QFETCH(const Tables *, tables);
    const QFileInfoList files =
        QDir(QLatin1String(tables->folder)).entryInfoList({u"*.ts"_s}, QDir::Files);
    QStringList names;
    for (const QFileInfo &file : files) {
        names.append(file.completeBaseName());
    }
    QCOMPARE(sorted(names), sorted(TranslationFile::languages()));
}

void StringTablesTest::keysAreFoundWhereTheyComeFrom()
{
    QCOMPARE(LookedUpKeys::beginnings(), QSet<QString>{u"RS_Preset_"_s});
    QCOMPARE(sorted(LookedUpKeys::strayLookUps()), QStringList());
    QCOMPARE(LookedUpKeys::optionTexts().size(), qsizetype(OptionCatalogue::size));
    // The form's menu is the one that a panel shows.
    const QStringList identifiers = LookedUpKeys::presetIdentifiers();
    QVERIFY(!identifiers.isEmpty());
    QSet<QString> shown;
    const QSet<QStringList> menus = everyMenu();
    for (const QStringList &menu : menus) {
        for (const QString &key : menu) {
            shown.insert(key.mid(qsizetype(qstrlen("RS_Preset_"))));
        }
    }
    QCOMPARE(sorted(shown), sorted(identifiers));
}

void StringTablesTest::fileSaysItsLanguage()
{
    QFETCH(const Tables *, tables);
    QFETCH(const QString, language);
    const TranslationFile file = tables->of(language);
    QCOMPARE(file.error(), QString());
    QCOMPARE(file.language(), language);
    for (const Translation &translation : file.translations()) {
        QCOMPARE(translation.context, QLatin1String(tables->context));
    }
}

void StringTablesTest::keysAreThoseLookedUp()
{
    QFETCH(const Tables *, tables);
    QFETCH(const QString, language);
    const QSet<QString> lookedUp =
        tables->of == TranslationFile::ofHost ? LookedUpKeys::ofHost() : LookedUpKeys::all();
    QVERIFY(!lookedUp.isEmpty());
    const QStringList keys = tables->of(language).keys();
    const QSet<QString> known(keys.begin(), keys.end());
    QCOMPARE(keys.size(), known.size());
    const QStringList missing = sorted(lookedUp - known);
    QVERIFY2(missing.isEmpty(), qPrintable(u"missing: "_s + missing.join(u", ")));
    const QStringList unused = sorted(known - lookedUp);
    QVERIFY2(unused.isEmpty(), qPrintable(u"unused: "_s + unused.join(u", ")));
    // In the order of the English ones, so that files can be compared line by line.
    QCOMPARE(keys, tables->of(english()).keys());
}

void StringTablesTest::textsAreDone()
{
    QFETCH(const Tables *, tables);
    QFETCH(const QString, language);
    const TranslationFile file = tables->of(language);
    for (const Translation &translation : file.translations()) {
        QVERIFY2(translation.state.isNull(),
                 qPrintable(translation.key + u" is "_s + translation.state));
        QVERIFY2(!translation.text.isEmpty(), qPrintable(translation.key));
        const bool isItsOwnKey =
            translation.key.startsWith(u"RS_") && translation.text == translation.key;
        QVERIFY2(!isItsOwnKey, qPrintable(translation.key));
    }
}

void StringTablesTest::commentsAreInEnglishOnly()
{
    QFETCH(const Tables *, tables);
    QFETCH(const QString, language);
    const TranslationFile file = tables->of(language);
    const auto &translations = file.translations();
    const bool hasComments =
        std::any_of(translations.begin(), translations.end(),
                    [](const Translation &translation) { return translation.hasComment; });
    QCOMPARE(hasComments, language == english());
}

void StringTablesTest::textsHaveTheFormOfTheEnglish()
{
    QFETCH(const Tables *, tables);
    QFETCH(const QString, language);
    const TranslationFile englishFile = tables->of(english());
    const TranslationFile file = tables->of(language);
    for (const Translation &translation : file.translations()) {
        const QByteArray name = translation.key.toUtf8();
        const char *key = name.constData();
        const QString model = englishFile.text(translation.key);
        const QString text = translation.text;
        QVERIFY2(placeholders(text) == placeholders(model), key);
        QVERIFY2(text.count(u'&') == model.count(u'&'), key);
        QVERIFY2(text.count(u'\n') == model.count(u'\n'), key);
        QVERIFY2(ending(text) == ending(model), key);
        QVERIFY2(ending(text) != u"three dots", key);
        QVERIFY2(text.trimmed() == text, key);
        QVERIFY2(!text.contains(u"  "_s), key);
    }
}

void StringTablesTest::textsAreInTheirLanguage()
{
    QFETCH(const Tables *, tables);
    QFETCH(const QString, language);
    const TranslationFile englishFile = tables->of(english());
    const TranslationFile file = tables->of(language);
    int asInEnglish = 0;
    for (const Translation &translation : file.translations()) {
        const QByteArray name = translation.key.toUtf8();
        const char *key = name.constData();
        QVERIFY2(hasLetterOf(translation.text, scriptsOf(language)), key);
        // A letter of another language would be a slip.
        QVERIFY2(SystemEncoding::encode(translation.text, encodingOf(language)), key);
        asInEnglish += int(translation.text == englishFile.text(translation.key));
    }
    // "No" and "Option" are words of several languages.
    QVERIFY2(language == english() || asInEnglish <= 2, qPrintable(QString::number(asInEnglish)));
}

void StringTablesTest::textsSeenTogetherDiffer_data()
{
    const TestTable<QString> table("language");
    const QStringList languages = TranslationFile::languages();
    for (const QString &language : languages) {
        table.add(qPrintable(language), language);
    }
}

void StringTablesTest::textsSeenTogetherDiffer()
{
    QFETCH(const QString, language);
    static const QList<Group> everyGroup = groups();
    const TranslationFile file = TranslationFile::ofBundle(language);
    for (const Group &group : everyGroup) {
        QHash<QString, QString> keyOfText;
        for (const QString &key : group.keys) {
            const QString text = file.text(key);
            QVERIFY2(!keyOfText.contains(text),
                     qPrintable(u"%1: %2 and %3 are both \"%4\""_s.arg(
                         QLatin1String(group.name), keyOfText.value(text), key, text)));
            keyOfText.insert(text, key);
        }
    }
}

KV_TEST(StringTablesTest)
#include "tst_stringtables.moc"
