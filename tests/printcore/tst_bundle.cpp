// SPDX-License-Identifier: Apache-2.0
#include "printcore/Bundle.h"
#include "tests/support/AnotherUser.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

namespace {
/// The key of the library for this Qt.
const QString ourQt = u"qt%1"_s.arg(QT_VERSION_MAJOR);

QJsonObject soundInfo()
{
    return {{u"identifier"_s, u"com.korvane.cut"_s},
            {u"version"_s, u"1.2"_s},
            {u"principalClass"_s, u"CutPanel"_s},
            {u"libraries"_s,
             QJsonObject{{u"qt5"_s, u"libcut-qt5.so"_s}, {u"qt6"_s, u"libcut-qt6.so"_s}}},
            {u"resources"_s, QJsonArray{u"Cut.ui"_s, u"tape.png"_s}}};
}

void addEndlessRows()
{
    const TestTable<qint64> table("size");
    const qint64 gigabyte = 1024 * 1024 * 1024;
    table.add("1 GB", gigabyte);
    table.add("3 GB", 3 * gigabyte);
}
} // namespace

/// Bundles as they are found on a disk, sound and otherwise.
class BundleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { mFolder.reset(); }

    void tellsWhatTheInfoFileSays();
    void hasTheSamePathHoweverItIsWritten();
    void isNotOpenedWithoutAnInfoFile();
    void isNotOpenedWithAPipeForItsInfoFile();
    void isNotOpenedWithBrokenJSON();
    void isNotOpenedWithoutAJSONObject();
    void isNotOpenedWithoutAnEntry_data();
    void isNotOpenedWithoutAnEntry();
    void isNotOpenedWithAnEntryOfTheWrongKind_data();
    void isNotOpenedWithAnEntryOfTheWrongKind();
    void isNotOpenedWithAnInfoFileOfOthers();
    void isNotOpenedWithAnEndlessInfoFile_data();
    void isNotOpenedWithAnEndlessInfoFile();
    void opensWithoutAnyoneAskingForTheError();

    void findsResources();
    void findsPicturesWhateverTheirSuffix();
    void prefersPicturesByTheirSuffix();
    void looksForNothingOutsideItsResources_data();
    void looksForNothingOutsideItsResources();

    void showsTextsInTheFirstLanguageThatHasThem_data();
    void showsTextsInTheFirstLanguageThatHasThem();
    void showsTheKeyWithoutATranslation();
    void showsTheGivenValueWithoutATranslation();
    void looksInTheTableAskedFor();
    void showsKeysWithoutAnyTable();
    void opensWithTheUsersLanguage_data();
    void opensWithTheUsersLanguage();
    void loadsNoTableFromElsewhere();

    void hasNoProblemsWhenComplete();
    void namesMissingResources();
    void namesOneOfManyMissingResources();
    void namesAMissingFolderOfResources();
    void namesAnUnreachableFolderOfResources();
    void namesABrokenTableOnceAndUsesTheOthers();
    void namesADeclaredTableThatIsNoneWhateverTheLanguage();
    void survivesTablesCutOffAnywhere();
    void usesNoResourceOfOthers();
    void readsNoEndlessTable_data();
    void readsNoEndlessTable();
    void looksForNoTableThatAnotherDependsOn();
    void leavesNamesOutOfAnEndlessList();

private: // NOLINT(readability-redundant-access-specifiers): these are no slots
    QString path() const { return mFolder->filePath(u"Cut.bundle"_s); }
    QString resource(const QString &name) const
    {
        return path() + u"/Contents/Resources/"_s + name;
    }
    void write(const QString &name, const QByteArray &data) const;
    void writeInfo(const QByteArray &json) const { write(u"Info.json"_s, json); }
    void writeInfo(const QJsonObject &info) const { writeInfo(QJsonDocument(info).toJson()); }
    void addResource(const QString &name, const QByteArray &data = "data") const
    {
        write(u"Resources/"_s + name, data);
    }
    void addTables() const;
    std::shared_ptr<Bundle> openBundle() const;
    /// Why the bundle is not opened; "none" when it is.
    QString faultOfBundle() const;

    std::unique_ptr<QTemporaryDir> mFolder;
};

void BundleTest::init()
{
    qputenv("LC_ALL", "C.UTF-8");
    qunsetenv("LANGUAGE");
    mFolder = std::make_unique<QTemporaryDir>();
    QVERIFY(mFolder->isValid());
    QVERIFY(QDir().mkpath(path() + u"/Contents/Resources"_s));
    writeInfo(soundInfo());
    addResource(u"Cut.ui"_s);
    addResource(u"tape.png"_s);
}

void BundleTest::write(const QString &name, const QByteArray &data) const
{
    QFile file(path() + u"/Contents/"_s + name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(data), data.size());
}

void BundleTest::addTables() const
{
    for (const QString &name : {u"en.qm"_s, u"de.qm"_s, u"de_AT.qm"_s})
        QVERIFY(QFile::copy(QStringLiteral(KV_TABLES "/") + name, resource(name)));
}

std::shared_ptr<Bundle> BundleTest::openBundle() const
{
    QString error;
    std::shared_ptr<Bundle> bundle = Bundle::open(path(), &error);
    if (!bundle)
        qFatal("%s", qPrintable(error));
    return bundle;
}

QString BundleTest::faultOfBundle() const
{
    QString error;
    return Bundle::open(path(), &error) ? u"none"_s : error;
}

void BundleTest::tellsWhatTheInfoFileSays()
{
    const auto bundle = openBundle();
    QCOMPARE(bundle->bundlePath(), path());
    QCOMPARE(bundle->bundleIdentifier(), u"com.korvane.cut"_s);
    QCOMPARE(bundle->version(), u"1.2"_s);
    QCOMPARE(bundle->principalClass(), u"CutPanel"_s);
    QCOMPARE(bundle->libraryPath(), path() + u"/Contents/Linux/libcut-%1.so"_s.arg(ourQt));
    QCOMPARE(bundle->resourcePath(), path() + u"/Contents/Resources"_s);
    QCOMPARE(bundle->declaredResources(), QStringList({u"Cut.ui"_s, u"tape.png"_s}));
}

void BundleTest::hasTheSamePathHoweverItIsWritten()
{
    const auto bundle = Bundle::open(path() + u"/Contents/../"_s);
    QVERIFY(bundle);
    QCOMPARE(bundle->bundlePath(), path());
}

void BundleTest::isNotOpenedWithoutAnInfoFile()
{
    QVERIFY(QFile::remove(path() + u"/Contents/Info.json"_s));
    QCOMPARE(faultOfBundle(), path() + u"/Contents/Info.json: is missing"_s);
}

void BundleTest::isNotOpenedWithAPipeForItsInfoFile()
{
    const QString info = path() + u"/Contents/Info.json"_s;
    QVERIFY(QFile::remove(info));
    QCOMPARE(mkfifo(QFile::encodeName(info).constData(), 0644), 0);
    QCOMPARE(faultOfBundle(), info + u": is a pipe"_s);
}

void BundleTest::isNotOpenedWithBrokenJSON()
{
    writeInfo(QByteArray("{ \"version\": 1, }"));
    QString error;
    QVERIFY(!Bundle::open(path(), &error));
    QVERIFY2(error.startsWith(path() + u"/Contents/Info.json: malformed JSON at offset 17: "_s),
             qPrintable(error));
}

void BundleTest::isNotOpenedWithoutAJSONObject()
{
    writeInfo(QByteArray("[]"));
    QCOMPARE(faultOfBundle(), path() + u"/Contents/Info.json: is no JSON object"_s);
}

void BundleTest::isNotOpenedWithoutAnEntry_data()
{
    const TestTable<QString> table("entry");
    const QStringList entries = soundInfo().keys();
    for (const QString &entry : entries)
        table.add(qPrintable(entry), entry);
}

void BundleTest::isNotOpenedWithoutAnEntry()
{
    QFETCH(QString, entry);
    QJsonObject info = soundInfo();
    info.remove(entry);
    writeInfo(info);
    QCOMPARE(faultOfBundle(),
             u"%1/Contents/Info.json: the entry \"%2\" is missing"_s.arg(path(), entry));
}

void BundleTest::isNotOpenedWithAnEntryOfTheWrongKind_data()
{
    const TestTable<QString, QJsonValue, QString> table("entry", "value", "complaint");
    const auto name = u"\"libraries\" gives no file name for \"%1\""_s.arg(ourQt);
    const auto text = u"\"version\" is no text"_s;
    table.add("number", u"version"_s, QJsonValue(3), text);
    table.add("empty", u"version"_s, QJsonValue(QString()), text);
    table.add("null", u"version"_s, QJsonValue(), text);
    const auto libraries = [](const QString &version, const QString &file) {
        return QJsonValue(QJsonObject{{version, file}});
    };
    table.add("no libraries", u"libraries"_s, QJsonValue(u"libcut.so"_s),
              u"\"libraries\" is no object"_s);
    table.add("library for another Qt", u"libraries"_s, libraries(u"qt4"_s, u"x.so"_s),
              u"\"libraries\" has none for Qt %1"_s.arg(QT_VERSION_MAJOR));
    table.add("library elsewhere", u"libraries"_s, libraries(ourQt, u"../../x.so"_s), name);
    table.add("library parent", u"libraries"_s, libraries(ourQt, u".."_s), name);
    table.add("no list", u"resources"_s, QJsonValue(u"Cut.ui"_s), u"\"resources\" is no array"_s);
    table.add("list of numbers", u"resources"_s, QJsonValue(QJsonArray{u"Cut.ui"_s, 1}),
              u"\"resources\" [1] is no file name"_s);
    table.add("resource elsewhere", u"resources"_s, QJsonValue(QJsonArray{u"../Info.json"_s}),
              u"\"resources\" [0] is no file name"_s);
}

void BundleTest::isNotOpenedWithAnEntryOfTheWrongKind()
{
    QFETCH(QString, entry);
    QFETCH(QJsonValue, value);
    QFETCH(QString, complaint);
    QJsonObject info = soundInfo();
    info.insert(entry, value);
    writeInfo(info);
    QCOMPARE(faultOfBundle(), u"%1/Contents/Info.json: the entry %2"_s.arg(path(), complaint));
}

void BundleTest::isNotOpenedWithAnInfoFileOfOthers()
{
    const QString info = path() + u"/Contents/Info.json"_s;
    const struct
    {
        QString file;
        mode_t mode;
        QString fault;
    } rows[] = {
        {info, 0666, u"can be written by others (mode 666)"_s},
        {path() + u"/Contents"_s, 0777,
         u"is in %1/Contents, which can be written by others (mode 777)"_s},
        {path(), 01775, u"is in %1, which can be written by others (mode 1775)"_s},
    };
    for (const auto &row : rows) {
        QCOMPARE(chmod(QFile::encodeName(row.file).constData(), row.mode), 0);
        QString error;
        QVERIFY(!Bundle::open(path(), &error));
        const QString fault = row.fault.contains(u'%') ? row.fault.arg(path()) : row.fault;
        QCOMPARE(error, info + u": "_s + fault);
        QCOMPARE(chmod(QFile::encodeName(row.file).constData(), 0755), 0);
    }
    QVERIFY(Bundle::open(path()));
}

void BundleTest::isNotOpenedWithAnEndlessInfoFile_data()
{
    addEndlessRows();
}

void BundleTest::isNotOpenedWithAnEndlessInfoFile()
{
    QFETCH(const qint64, size);
    const QString info = path() + u"/Contents/Info.json"_s;
    QVERIFY(QFile(info).resize(size));
    QCOMPARE(faultOfBundle(), info + u": has more than 262144 bytes"_s);
}

void BundleTest::opensWithoutAnyoneAskingForTheError()
{
    QVERIFY(Bundle::open(path()));
    QVERIFY(!Bundle::open(path() + u"/nowhere"_s));
}

void BundleTest::findsResources()
{
    const auto bundle = openBundle();
    QCOMPARE(bundle->pathForResource(u"Cut"_s, u"ui"_s), resource(u"Cut.ui"_s));
    QCOMPARE(bundle->pathForResource(u"Cut.ui"_s, QString()), resource(u"Cut.ui"_s));
    QVERIFY(bundle->pathForResource(u"Cut"_s, u"png"_s).isNull());
    QVERIFY(bundle->pathForResource(QString(), u"ui"_s).isNull());
}

void BundleTest::findsPicturesWhateverTheirSuffix()
{
    const auto bundle = openBundle();
    for (const QString &suffix : {u"png"_s, u"svg"_s, u"jpg"_s, u"bmp"_s, u"gif"_s, u"webp"_s}) {
        const QString name = u"picture-"_s + suffix;
        QVERIFY(bundle->pathForImageResource(name).isNull());
        addResource(name + u'.' + suffix);
        QCOMPARE(bundle->pathForImageResource(name), resource(name + u'.' + suffix));
    }
    QVERIFY(bundle->pathForImageResource(u"Cut"_s).isNull());
}

void BundleTest::prefersPicturesByTheirSuffix()
{
    const auto bundle = openBundle();
    for (const QString &suffix : {u"webp"_s, u"gif"_s, u"bmp"_s, u"jpg"_s, u"svg"_s, u"png"_s}) {
        addResource(u"sheet."_s + suffix);
        QCOMPARE(bundle->pathForImageResource(u"sheet"_s), resource(u"sheet."_s + suffix));
    }
}

void BundleTest::looksForNothingOutsideItsResources_data()
{
    const TestTable<QString> table("name");
    table.add("parent", u"../Info"_s);
    table.add("absolute", u"/outside"_s);
    table.add("far up", u"../../../outside"_s);
    table.add("down", u"folder/inside"_s);
    table.add("null character", u"tape"_s + QChar(u'\0'));
    table.add("a folder's name", u"folder"_s);
    table.add("dot", u"."_s);
    table.add("dots", u".."_s);
    table.add("long", QString(100'000, u'x'));
}

void BundleTest::looksForNothingOutsideItsResources()
{
    QFETCH(QString, name);
    if (name == u"/outside")
        name.prepend(mFolder->path());
    QVERIFY(QDir().mkpath(resource(u"folder.png"_s)));
    QVERIFY(QDir().mkpath(resource(u"folder"_s)));
    addResource(u"folder/inside.png"_s);
    write(u"Info.png"_s, "picture");
    write(u"../../outside.png"_s, "picture");

    const auto bundle = openBundle();
    QVERIFY(bundle->pathForImageResource(name).isNull());
    QVERIFY(bundle->pathForResource(name, u"png"_s).isNull());
    QVERIFY(bundle->pathForResource(name, QString()).isNull());
    QVERIFY(bundle->pathForResource(u"x"_s, name).isNull());
}

void BundleTest::showsTextsInTheFirstLanguageThatHasThem_data()
{
    const TestTable<QStringList, QString, QString, QString> table("languages", "cut", "margin",
                                                                  "onlyEnglish");
    const auto row = [&table](const char *name, const QStringList &languages, const QString &cut,
                              const QString &margin) {
        table.add(name, languages, cut, margin, u"Spoken in English"_s);
    };
    row("English", {u"en"_s}, u"Cut the tape"_s, u"Margin"_s);
    row("German", {u"de"_s}, u"Band schneiden"_s, u"Rand"_s);
    row("Austrian, then German", {u"de_AT"_s}, u"Band abschneiden"_s, u"Rand"_s);
    row("written with a dash", {u"de-AT"_s}, u"Band abschneiden"_s, u"Rand"_s);
    row("with a script", {u"de-Latn-DE"_s}, u"Band schneiden"_s, u"Rand"_s);
    row("country without a table", {u"de_CH"_s}, u"Band schneiden"_s, u"Rand"_s);
    row("first one without a table", {u"fr"_s, u"de"_s}, u"Band schneiden"_s, u"Rand"_s);
    row("English first", {u"en_US"_s, u"de"_s}, u"Cut the tape"_s, u"Margin"_s);
    row("none with a table", {u"ja"_s}, u"Cut the tape"_s, u"Margin"_s);
}

void BundleTest::showsTextsInTheFirstLanguageThatHasThem()
{
    addTables();
    const auto bundle = openBundle();
    QFETCH(QStringList, languages);
    bundle->setLanguages(languages);
    QTEST(bundle->localizedStringForKey(u"Cut"_s), "cut");
    QTEST(bundle->localizedStringForKey(u"Margin"_s), "margin");
    QTEST(bundle->localizedStringForKey(u"Only English"_s), "onlyEnglish");
}

void BundleTest::showsTheKeyWithoutATranslation()
{
    addTables();
    const auto bundle = openBundle();
    QCOMPARE(bundle->localizedStringForKey(u"Unheard of"_s), u"Unheard of"_s);
    QCOMPARE(bundle->localizedStringForKey(u"Untranslated"_s), u"Untranslated"_s);
    QCOMPARE(bundle->localizedStringForKey(u""_s), u""_s);
    bundle->setLanguages({u"de"_s});
    QCOMPARE(bundle->localizedStringForKey(u"Größe"_s), u"Größe in mm"_s);
}

void BundleTest::showsTheGivenValueWithoutATranslation()
{
    addTables();
    const auto bundle = openBundle();
    QCOMPARE(bundle->localizedStringForKey(u"Unheard of"_s, u"Plain"_s), u"Plain"_s);
    QCOMPARE(bundle->localizedStringForKey(u"Unheard of"_s, u""_s), u""_s);
    QCOMPARE(bundle->localizedStringForKey(u"Cut"_s, u"Plain"_s), u"Cut the tape"_s);
}

void BundleTest::looksInTheTableAskedFor()
{
    addTables();
    const auto bundle = openBundle();
    const QString alerts = u"Alerts"_s;
    QCOMPARE(bundle->localizedStringForKey(u"Cut"_s, {}, alerts), u"The cutter is open"_s);
    QCOMPARE(bundle->localizedStringForKey(u"Margin"_s, {}, alerts), u"Margin"_s);
    QCOMPARE(bundle->localizedStringForKey(u"Cut"_s, {}, u"Nowhere"_s), u"Cut"_s);
    QCOMPARE(bundle->localizedStringForKey(u"Cut"_s, {}, u"Localizable"_s), u"Cut the tape"_s);
}

void BundleTest::showsKeysWithoutAnyTable()
{
    addTables();
    const auto bundle = openBundle();
    bundle->setLanguages({});
    QCOMPARE(bundle->localizedStringForKey(u"Cut"_s), u"Cut"_s);
    QCOMPARE(bundle->localizedStringForKey(u"Cut"_s, u"Plain"_s), u"Plain"_s);
    bundle->setLanguages({u"de"_s});
    QCOMPARE(bundle->localizedStringForKey(u"Cut"_s), u"Band schneiden"_s);
}

void BundleTest::opensWithTheUsersLanguage_data()
{
    const TestTable<QByteArray, QString> table("locale", "text");
    table.add("German", "de_DE.UTF-8", u"Band schneiden"_s);
    table.add("Austrian", "de_AT.UTF-8", u"Band abschneiden"_s);
    table.add("no table", "ja_JP.UTF-8", u"Cut the tape"_s);
    table.add("none", "C.UTF-8", u"Cut the tape"_s);
}

void BundleTest::opensWithTheUsersLanguage()
{
    addTables();
    QFETCH(QByteArray, locale);
    qputenv("LC_ALL", locale);
    QTEST(openBundle()->localizedStringForKey(u"Cut"_s), "text");
}

void BundleTest::loadsNoTableFromElsewhere()
{
    QVERIFY(QFile::copy(QStringLiteral(KV_TABLES "/de.qm"), path() + u"/Contents/de.qm"_s));
    const auto bundle = openBundle();
    bundle->setLanguages({u"../de"_s, path() + u"/Contents/de"_s, u""_s});
    QCOMPARE(bundle->localizedStringForKey(u"Cut"_s), u"Cut"_s);
    QCOMPARE(bundle->problems(), QStringList());
}

void BundleTest::hasNoProblemsWhenComplete()
{
    addTables();
    QCOMPARE(openBundle()->problems(), QStringList());
}

void BundleTest::namesMissingResources()
{
    QVERIFY(QFile::remove(resource(u"tape.png"_s)));
    const auto bundle = openBundle();
    QCOMPARE(bundle->problems(), QStringList(u"Cut.bundle: tape.png is missing"_s));
    QVERIFY(bundle->pathForImageResource(u"tape"_s).isNull());
    QVERIFY(QDir().mkpath(resource(u"tape.png"_s)));
    QCOMPARE(bundle->problems(), QStringList(u"Cut.bundle: tape.png is a folder"_s));
}

void BundleTest::namesOneOfManyMissingResources()
{
    QJsonObject info = soundInfo();
    info.insert(u"resources"_s, QJsonArray{u"a.png"_s, u"b.png"_s, u"Cut.ui"_s, u"c.png"_s});
    writeInfo(info);
    QCOMPARE(openBundle()->problems(),
             QStringList(u"Cut.bundle: a.png, like 2 others, is missing"_s));
    addResource(u"b.png"_s);
    QCOMPARE(openBundle()->problems(), QStringList(u"Cut.bundle: a.png, like c.png, is missing"_s));
}

void BundleTest::namesAMissingFolderOfResources()
{
    QVERIFY(QDir(path() + u"/Contents/Resources"_s).removeRecursively());
    QCOMPARE(openBundle()->problems(), QStringList(u"Cut.bundle: Contents/Resources is missing"_s));
}

void BundleTest::namesAnUnreachableFolderOfResources()
{
    const QByteArray folder = QFile::encodeName(path() + u"/Contents/Resources"_s);
    QCOMPARE(chmod(QFile::encodeName(mFolder->path()).constData(), 0755), 0);
    QCOMPARE(chmod(folder.constData(), 0), 0);
    QStringList problems;
    {
        const AnotherUser user;
        problems = openBundle()->problems();
    }
    QCOMPARE(chmod(folder.constData(), 0700), 0);
    QCOMPARE(problems, QStringList(u"Cut.bundle: Contents/Resources cannot be read: "
                                   "Permission denied"_s));
}

void BundleTest::namesABrokenTableOnceAndUsesTheOthers()
{
    addTables();
    addResource(u"de.qm"_s, "no string table at all");
    QJsonObject info = soundInfo();
    info.insert(u"resources"_s, QJsonArray{u"de.qm"_s, u"Cut.ui"_s, u"de.qm"_s});
    writeInfo(info);
    const QStringList problems(u"Cut.bundle: de.qm is no string table"_s);

    const auto bundle = openBundle();
    bundle->setLanguages({u"de_AT"_s, u"de"_s});
    QCOMPARE(bundle->problems(), problems);
    QCOMPARE(bundle->localizedStringForKey(u"Cut"_s), u"Band abschneiden"_s);
    QCOMPARE(bundle->localizedStringForKey(u"Margin"_s), u"Margin"_s);

    writeInfo(soundInfo());
    const auto undeclaring = openBundle();
    undeclaring->setLanguages({u"de"_s});
    QCOMPARE(undeclaring->problems(), problems);
    undeclaring->setLanguages({});
    QCOMPARE(undeclaring->problems(), QStringList());
}

void BundleTest::namesADeclaredTableThatIsNoneWhateverTheLanguage()
{
    addTables();
    addResource(u"fr.qm"_s, "");
    QJsonObject info = soundInfo();
    info.insert(u"resources"_s, QJsonArray{u"en.qm"_s, u"fr.qm"_s, u"it.qm"_s});
    writeInfo(info);
    QCOMPARE(openBundle()->problems(), QStringList({u"Cut.bundle: fr.qm is no string table"_s,
                                                    u"Cut.bundle: it.qm is missing"_s}));
}

void BundleTest::survivesTablesCutOffAnywhere()
{
    QFile file(QStringLiteral(KV_TABLES "/en.qm"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray table = file.readAll();
    // Of what follows the mark that tables begin with, the toolkit takes whatever is whole.
    const int markLength = 16;
    for (int length = 0; length < table.size(); ++length) {
        addResource(u"en.qm"_s, table.left(length));
        const auto bundle = openBundle();
        const QString text = bundle->localizedStringForKey(u"Cut"_s);
        QVERIFY2(text == u"Cut"_s || text == u"Cut the tape"_s, qPrintable(text));
        QVERIFY(length >= markLength || !bundle->problems().isEmpty());
    }
}

void BundleTest::usesNoResourceOfOthers()
{
    addTables();
    for (const QString &name : {u"tape.png"_s, u"de.qm"_s})
        QCOMPARE(chmod(QFile::encodeName(resource(name)).constData(), 0646), 0);
    const auto bundle = openBundle();
    bundle->setLanguages({u"de"_s});
    QCOMPARE(bundle->problems(), QStringList(u"Cut.bundle: tape.png, like de.qm, can be written by "
                                             "others (mode 646)"_s));
    QCOMPARE(bundle->localizedStringForKey(u"Cut"_s), u"Cut the tape"_s);

    const QString folder = path() + u"/Contents/Resources"_s;
    QCOMPARE(chmod(QFile::encodeName(folder).constData(), 0775), 0);
    bundle->setLanguages({u"en"_s});
    QCOMPARE(bundle->problems(), QStringList(u"Cut.bundle: Contents/Resources can be written by "
                                             "others (mode 775)"_s));
    QCOMPARE(bundle->localizedStringForKey(u"Cut"_s), u"Cut"_s);
}

void BundleTest::readsNoEndlessTable_data()
{
    addEndlessRows();
}

void BundleTest::readsNoEndlessTable()
{
    QFETCH(const qint64, size);
    addTables();
    QVERIFY(QFile(resource(u"de.qm"_s)).resize(size));
    const auto bundle = openBundle();
    bundle->setLanguages({u"de"_s});
    QCOMPARE(bundle->problems(), QStringList(u"Cut.bundle: de.qm has more than 1048576 bytes"_s));
    QCOMPARE(bundle->localizedStringForKey(u"Cut"_s), u"Cut the tape"_s);
}

void BundleTest::looksForNoTableThatAnotherDependsOn()
{
    addTables();
    QVERIFY(QFile::copy(QStringLiteral(KV_TABLES "/fr.qm"), resource(u"fr.qm"_s)));
    // The table depends on "de.qm", which the application's current folder has.
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(QStringLiteral(KV_TABLES)));
    const auto bundle = openBundle();
    bundle->setLanguages({u"fr"_s});
    QVERIFY(QDir::setCurrent(before));
    QCOMPARE(bundle->problems(), QStringList(u"Cut.bundle: fr.qm is no string table"_s));
    QCOMPARE(bundle->localizedStringForKey(u"Cut"_s), u"Cut the tape"_s);
}

void BundleTest::leavesNamesOutOfAnEndlessList()
{
    QJsonArray names;
    for (int i = 0; i < 2001; ++i)
        names.append(QString::number(i));
    QJsonObject info = soundInfo();
    info.insert(u"resources"_s, names);
    writeInfo(info);
    const auto bundle = openBundle();
    QCOMPARE(bundle->declaredResources().size(), 2000);
    QCOMPARE(bundle->problems(),
             QStringList({u"Cut.bundle: Contents/Info.json: \"resources\" has 2001 names: those "
                          "after the first 2000 are left out"_s,
                          u"Cut.bundle: 0, like 1999 others, is missing"_s}));
    names.removeLast();
    info.insert(u"resources"_s, names);
    writeInfo(info);
    QCOMPARE(openBundle()->problems(),
             QStringList(u"Cut.bundle: 0, like 1999 others, is missing"_s));
}

KV_CORE_TEST(BundleTest)
#include "tst_bundle.moc"
