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
const QString ourQt = u"qt%1"_qs.arg(QT_VERSION_MAJOR);

QJsonObject soundInfo()
{
    return {{u"identifier"_qs, u"com.korvane.cut"_qs},
            {u"version"_qs, u"1.2"_qs},
            {u"principalClass"_qs, u"CutPanel"_qs},
            {u"libraries"_qs,
             QJsonObject{{u"qt5"_qs, u"libcut-qt5.so"_qs}, {u"qt6"_qs, u"libcut-qt6.so"_qs}}},
            {u"resources"_qs, QJsonArray{u"Cut.ui"_qs, u"tape.png"_qs}}};
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

private: // NOLINT(readability-redundant-access-specifiers): these are no slots
    QString path() const { return mFolder->filePath(u"Cut.bundle"_qs); }
    QString resource(const QString &name) const
    {
        return path() + u"/Contents/Resources/"_qs + name;
    }
    void write(const QString &name, const QByteArray &data) const;
    void writeInfo(const QByteArray &json) const { write(u"Info.json"_qs, json); }
    void writeInfo(const QJsonObject &info) const { writeInfo(QJsonDocument(info).toJson()); }
    void addResource(const QString &name, const QByteArray &data = "data") const
    {
        write(u"Resources/"_qs + name, data);
    }
    void addTables() const;
    std::shared_ptr<Bundle> openBundle() const;

    std::unique_ptr<QTemporaryDir> mFolder;
};

void BundleTest::init()
{
    qputenv("LC_ALL", "C.UTF-8");
    qunsetenv("LANGUAGE");
    mFolder = std::make_unique<QTemporaryDir>();
    QVERIFY(mFolder->isValid());
    QVERIFY(QDir().mkpath(path() + u"/Contents/Resources"_qs));
    writeInfo(soundInfo());
    addResource(u"Cut.ui"_qs);
    addResource(u"tape.png"_qs);
}

void BundleTest::write(const QString &name, const QByteArray &data) const
{
    QFile file(path() + u"/Contents/"_qs + name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(data), data.size());
}

void BundleTest::addTables() const
{
    for (const QString &name : {u"en.qm"_qs, u"de.qm"_qs, u"de_AT.qm"_qs})
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

void BundleTest::tellsWhatTheInfoFileSays()
{
    const auto bundle = openBundle();
    QCOMPARE(bundle->bundlePath(), path());
    QCOMPARE(bundle->bundleIdentifier(), u"com.korvane.cut"_qs);
    QCOMPARE(bundle->version(), u"1.2"_qs);
    QCOMPARE(bundle->principalClass(), u"CutPanel"_qs);
    QCOMPARE(bundle->libraryPath(), path() + u"/Contents/Linux/libcut-%1.so"_qs.arg(ourQt));
    QCOMPARE(bundle->resourcePath(), path() + u"/Contents/Resources"_qs);
    QCOMPARE(bundle->declaredResources(), QStringList({u"Cut.ui"_qs, u"tape.png"_qs}));
}

void BundleTest::hasTheSamePathHoweverItIsWritten()
{
    const auto bundle = Bundle::open(path() + u"/Contents/../"_qs);
    QVERIFY(bundle);
    QCOMPARE(bundle->bundlePath(), path());
}

void BundleTest::isNotOpenedWithoutAnInfoFile()
{
    QVERIFY(QFile::remove(path() + u"/Contents/Info.json"_qs));
    QString error;
    QVERIFY(!Bundle::open(path(), &error));
    QCOMPARE(error, path() + u"/Contents/Info.json: is missing"_qs);
}

void BundleTest::isNotOpenedWithAPipeForItsInfoFile()
{
    const QString info = path() + u"/Contents/Info.json"_qs;
    QVERIFY(QFile::remove(info));
    QCOMPARE(mkfifo(QFile::encodeName(info).constData(), 0644), 0);
    QString error;
    QVERIFY(!Bundle::open(path(), &error));
    QCOMPARE(error, info + u": is a pipe"_qs);
}

void BundleTest::isNotOpenedWithBrokenJSON()
{
    writeInfo(QByteArray("{ \"version\": 1, }"));
    QString error;
    QVERIFY(!Bundle::open(path(), &error));
    QVERIFY2(error.startsWith(path() + u"/Contents/Info.json: malformed JSON at offset 17: "_qs),
             qPrintable(error));
}

void BundleTest::isNotOpenedWithoutAJSONObject()
{
    writeInfo(QByteArray("[]"));
    QString error;
    QVERIFY(!Bundle::open(path(), &error));
    QCOMPARE(error, path() + u"/Contents/Info.json: is no JSON object"_qs);
}

void BundleTest::isNotOpenedWithoutAnEntry_data()
{
    QTest::addColumn<QString>("entry");

    const QStringList entries = soundInfo().keys();
    for (const QString &entry : entries)
        QTest::newRow(qPrintable(entry)) << entry;
}

void BundleTest::isNotOpenedWithoutAnEntry()
{
    QFETCH(QString, entry);
    QJsonObject info = soundInfo();
    info.remove(entry);
    writeInfo(info);
    QString error;
    QVERIFY(!Bundle::open(path(), &error));
    QCOMPARE(error, u"%1/Contents/Info.json: the entry \"%2\" is missing"_qs.arg(path(), entry));
}

void BundleTest::isNotOpenedWithAnEntryOfTheWrongKind_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<QString>("complaint");

    const auto name = u"\"libraries\" gives no file name for \"%1\""_qs.arg(ourQt);
    const auto text = u"\"version\" is no text"_qs;
    QTest::newRow("number") << u"version"_qs << QJsonValue(3) << text;
    QTest::newRow("empty") << u"version"_qs << QJsonValue(QString()) << text;
    QTest::newRow("null") << u"version"_qs << QJsonValue() << text;
    const auto libraries = [](const QString &version, const QString &file) {
        return QJsonValue(QJsonObject{{version, file}});
    };
    QTest::newRow("no libraries") << u"libraries"_qs << QJsonValue(u"libcut.so"_qs)
                                  << u"\"libraries\" is no object"_qs;
    QTest::newRow("library for another Qt")
        << u"libraries"_qs << libraries(u"qt4"_qs, u"x.so"_qs)
        << u"\"libraries\" has none for Qt %1"_qs.arg(QT_VERSION_MAJOR);
    QTest::newRow("library elsewhere")
        << u"libraries"_qs << libraries(ourQt, u"../../x.so"_qs) << name;
    QTest::newRow("library parent") << u"libraries"_qs << libraries(ourQt, u".."_qs) << name;
    QTest::newRow("no list") << u"resources"_qs << QJsonValue(u"Cut.ui"_qs)
                             << u"\"resources\" is no array"_qs;
    QTest::newRow("list of numbers") << u"resources"_qs << QJsonValue(QJsonArray{u"Cut.ui"_qs, 1})
                                     << u"\"resources\" [1] is no file name"_qs;
    QTest::newRow("resource elsewhere")
        << u"resources"_qs << QJsonValue(QJsonArray{u"../Info.json"_qs})
        << u"\"resources\" [0] is no file name"_qs;
}

void BundleTest::isNotOpenedWithAnEntryOfTheWrongKind()
{
    QFETCH(QString, entry);
    QFETCH(QJsonValue, value);
    QFETCH(QString, complaint);
    QJsonObject info = soundInfo();
    info.insert(entry, value);
    writeInfo(info);
    QString error;
    QVERIFY(!Bundle::open(path(), &error));
    QCOMPARE(error, u"%1/Contents/Info.json: the entry %2"_qs.arg(path(), complaint));
}

void BundleTest::opensWithoutAnyoneAskingForTheError()
{
    QVERIFY(Bundle::open(path()));
    QVERIFY(!Bundle::open(path() + u"/nowhere"_qs));
}

void BundleTest::findsResources()
{
    const auto bundle = openBundle();
    QCOMPARE(bundle->pathForResource(u"Cut"_qs, u"ui"_qs), resource(u"Cut.ui"_qs));
    QCOMPARE(bundle->pathForResource(u"Cut.ui"_qs, QString()), resource(u"Cut.ui"_qs));
    QVERIFY(bundle->pathForResource(u"Cut"_qs, u"png"_qs).isNull());
    QVERIFY(bundle->pathForResource(QString(), u"ui"_qs).isNull());
}

void BundleTest::findsPicturesWhateverTheirSuffix()
{
    const auto bundle = openBundle();
    for (const QString &suffix :
         {u"png"_qs, u"svg"_qs, u"jpg"_qs, u"bmp"_qs, u"gif"_qs, u"webp"_qs}) {
        const QString name = u"picture-"_qs + suffix;
        QVERIFY(bundle->pathForImageResource(name).isNull());
        addResource(name + u'.' + suffix);
        QCOMPARE(bundle->pathForImageResource(name), resource(name + u'.' + suffix));
    }
    QVERIFY(bundle->pathForImageResource(u"Cut"_qs).isNull());
}

void BundleTest::prefersPicturesByTheirSuffix()
{
    const auto bundle = openBundle();
    for (const QString &suffix :
         {u"webp"_qs, u"gif"_qs, u"bmp"_qs, u"jpg"_qs, u"svg"_qs, u"png"_qs}) {
        addResource(u"sheet."_qs + suffix);
        QCOMPARE(bundle->pathForImageResource(u"sheet"_qs), resource(u"sheet."_qs + suffix));
    }
}

void BundleTest::looksForNothingOutsideItsResources_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("parent") << u"../Info"_qs;
    QTest::newRow("absolute") << u"/outside"_qs;
    QTest::newRow("far up") << u"../../../outside"_qs;
    QTest::newRow("down") << u"folder/inside"_qs;
    QTest::newRow("null character") << u"tape"_qs + QChar(u'\0');
    QTest::newRow("a folder's name") << u"folder"_qs;
    QTest::newRow("dot") << u"."_qs;
    QTest::newRow("dots") << u".."_qs;
    QTest::newRow("long") << QString(100'000, u'x');
}

void BundleTest::looksForNothingOutsideItsResources()
{
    QFETCH(QString, name);
    if (name == u"/outside")
        name.prepend(mFolder->path());
    QVERIFY(QDir().mkpath(resource(u"folder.png"_qs)));
    QVERIFY(QDir().mkpath(resource(u"folder"_qs)));
    addResource(u"folder/inside.png"_qs);
    write(u"Info.png"_qs, "picture");
    write(u"../../outside.png"_qs, "picture");

    const auto bundle = openBundle();
    QVERIFY(bundle->pathForImageResource(name).isNull());
    QVERIFY(bundle->pathForResource(name, u"png"_qs).isNull());
    QVERIFY(bundle->pathForResource(name, QString()).isNull());
    QVERIFY(bundle->pathForResource(u"x"_qs, name).isNull());
}

void BundleTest::showsTextsInTheFirstLanguageThatHasThem_data()
{
    QTest::addColumn<QStringList>("languages");
    QTest::addColumn<QString>("cut");
    QTest::addColumn<QString>("margin");
    QTest::addColumn<QString>("onlyEnglish");

    const auto row = [](const char *name, const QStringList &languages, const QString &cut,
                        const QString &margin) {
        QTest::newRow(name) << languages << cut << margin << u"Spoken in English"_qs;
    };
    row("English", {u"en"_qs}, u"Cut the tape"_qs, u"Margin"_qs);
    row("German", {u"de"_qs}, u"Band schneiden"_qs, u"Rand"_qs);
    row("Austrian, then German", {u"de_AT"_qs}, u"Band abschneiden"_qs, u"Rand"_qs);
    row("written with a dash", {u"de-AT"_qs}, u"Band abschneiden"_qs, u"Rand"_qs);
    row("with a script", {u"de-Latn-DE"_qs}, u"Band schneiden"_qs, u"Rand"_qs);
    row("country without a table", {u"de_CH"_qs}, u"Band schneiden"_qs, u"Rand"_qs);
    row("first one without a table", {u"fr"_qs, u"de"_qs}, u"Band schneiden"_qs, u"Rand"_qs);
    row("English first", {u"en_US"_qs, u"de"_qs}, u"Cut the tape"_qs, u"Margin"_qs);
    row("none with a table", {u"ja"_qs}, u"Cut the tape"_qs, u"Margin"_qs);
}

void BundleTest::showsTextsInTheFirstLanguageThatHasThem()
{
    addTables();
    const auto bundle = openBundle();
    QFETCH(QStringList, languages);
    bundle->setLanguages(languages);
    QTEST(bundle->localizedStringForKey(u"Cut"_qs), "cut");
    QTEST(bundle->localizedStringForKey(u"Margin"_qs), "margin");
    QTEST(bundle->localizedStringForKey(u"Only English"_qs), "onlyEnglish");
}

void BundleTest::showsTheKeyWithoutATranslation()
{
    addTables();
    const auto bundle = openBundle();
    QCOMPARE(bundle->localizedStringForKey(u"Unheard of"_qs), u"Unheard of"_qs);
    QCOMPARE(bundle->localizedStringForKey(u"Untranslated"_qs), u"Untranslated"_qs);
    QCOMPARE(bundle->localizedStringForKey(u""_qs), u""_qs);
    bundle->setLanguages({u"de"_qs});
    QCOMPARE(bundle->localizedStringForKey(u"Größe"_qs), u"Größe in mm"_qs);
}

void BundleTest::showsTheGivenValueWithoutATranslation()
{
    addTables();
    const auto bundle = openBundle();
    QCOMPARE(bundle->localizedStringForKey(u"Unheard of"_qs, u"Plain"_qs), u"Plain"_qs);
    QCOMPARE(bundle->localizedStringForKey(u"Unheard of"_qs, u""_qs), u""_qs);
    QCOMPARE(bundle->localizedStringForKey(u"Cut"_qs, u"Plain"_qs), u"Cut the tape"_qs);
}

void BundleTest::looksInTheTableAskedFor()
{
    addTables();
    const auto bundle = openBundle();
    const QString alerts = u"Alerts"_qs;
    QCOMPARE(bundle->localizedStringForKey(u"Cut"_qs, {}, alerts), u"The cutter is open"_qs);
    QCOMPARE(bundle->localizedStringForKey(u"Margin"_qs, {}, alerts), u"Margin"_qs);
    QCOMPARE(bundle->localizedStringForKey(u"Cut"_qs, {}, u"Nowhere"_qs), u"Cut"_qs);
    QCOMPARE(bundle->localizedStringForKey(u"Cut"_qs, {}, u"Localizable"_qs), u"Cut the tape"_qs);
}

void BundleTest::showsKeysWithoutAnyTable()
{
    addTables();
    const auto bundle = openBundle();
    bundle->setLanguages({});
    QCOMPARE(bundle->localizedStringForKey(u"Cut"_qs), u"Cut"_qs);
    QCOMPARE(bundle->localizedStringForKey(u"Cut"_qs, u"Plain"_qs), u"Plain"_qs);
    bundle->setLanguages({u"de"_qs});
    QCOMPARE(bundle->localizedStringForKey(u"Cut"_qs), u"Band schneiden"_qs);
}

void BundleTest::opensWithTheUsersLanguage_data()
{
    QTest::addColumn<QByteArray>("locale");
    QTest::addColumn<QString>("text");

    QTest::newRow("German") << QByteArray("de_DE.UTF-8") << u"Band schneiden"_qs;
    QTest::newRow("Austrian") << QByteArray("de_AT.UTF-8") << u"Band abschneiden"_qs;
    QTest::newRow("no table") << QByteArray("ja_JP.UTF-8") << u"Cut the tape"_qs;
    QTest::newRow("none") << QByteArray("C.UTF-8") << u"Cut the tape"_qs;
}

void BundleTest::opensWithTheUsersLanguage()
{
    addTables();
    QFETCH(QByteArray, locale);
    qputenv("LC_ALL", locale);
    QTEST(openBundle()->localizedStringForKey(u"Cut"_qs), "text");
}

void BundleTest::loadsNoTableFromElsewhere()
{
    QVERIFY(QFile::copy(QStringLiteral(KV_TABLES "/de.qm"), path() + u"/Contents/de.qm"_qs));
    const auto bundle = openBundle();
    bundle->setLanguages({u"../de"_qs, path() + u"/Contents/de"_qs, u""_qs});
    QCOMPARE(bundle->localizedStringForKey(u"Cut"_qs), u"Cut"_qs);
    QCOMPARE(bundle->problems(), QStringList());
}

void BundleTest::hasNoProblemsWhenComplete()
{
    addTables();
    QCOMPARE(openBundle()->problems(), QStringList());
}

void BundleTest::namesMissingResources()
{
    QVERIFY(QFile::remove(resource(u"tape.png"_qs)));
    const auto bundle = openBundle();
    QCOMPARE(bundle->problems(), QStringList(u"Cut.bundle: tape.png is missing"_qs));
    QVERIFY(bundle->pathForImageResource(u"tape"_qs).isNull());
    QVERIFY(QDir().mkpath(resource(u"tape.png"_qs)));
    QCOMPARE(bundle->problems(), QStringList(u"Cut.bundle: tape.png is a folder"_qs));
}

void BundleTest::namesOneOfManyMissingResources()
{
    QJsonObject info = soundInfo();
    info.insert(u"resources"_qs, QJsonArray{u"a.png"_qs, u"b.png"_qs, u"Cut.ui"_qs, u"c.png"_qs});
    writeInfo(info);
    QCOMPARE(openBundle()->problems(),
             QStringList(u"Cut.bundle: a.png, like 2 others, is missing"_qs));
    addResource(u"b.png"_qs);
    QCOMPARE(openBundle()->problems(),
             QStringList(u"Cut.bundle: a.png, like c.png, is missing"_qs));
}

void BundleTest::namesAMissingFolderOfResources()
{
    QVERIFY(QDir(path() + u"/Contents/Resources"_qs).removeRecursively());
    QCOMPARE(openBundle()->problems(),
             QStringList(u"Cut.bundle: Contents/Resources is missing"_qs));
}

void BundleTest::namesAnUnreachableFolderOfResources()
{
    const QByteArray folder = QFile::encodeName(path() + u"/Contents/Resources"_qs);
    QCOMPARE(chmod(QFile::encodeName(mFolder->path()).constData(), 0755), 0);
    QCOMPARE(chmod(folder.constData(), 0), 0);
    QStringList problems;
    {
        const AnotherUser user;
        problems = openBundle()->problems();
    }
    QCOMPARE(chmod(folder.constData(), 0700), 0);
    QCOMPARE(problems, QStringList(u"Cut.bundle: Contents/Resources cannot be read: "
                                   "Permission denied"_qs));
}

void BundleTest::namesABrokenTableOnceAndUsesTheOthers()
{
    addTables();
    addResource(u"de.qm"_qs, "no string table at all");
    QJsonObject info = soundInfo();
    info.insert(u"resources"_qs, QJsonArray{u"de.qm"_qs, u"Cut.ui"_qs, u"de.qm"_qs});
    writeInfo(info);
    const QStringList problems(u"Cut.bundle: de.qm is no string table"_qs);

    const auto bundle = openBundle();
    bundle->setLanguages({u"de_AT"_qs, u"de"_qs});
    QCOMPARE(bundle->problems(), problems);
    QCOMPARE(bundle->localizedStringForKey(u"Cut"_qs), u"Band abschneiden"_qs);
    QCOMPARE(bundle->localizedStringForKey(u"Margin"_qs), u"Margin"_qs);

    writeInfo(soundInfo());
    const auto undeclaring = openBundle();
    undeclaring->setLanguages({u"de"_qs});
    QCOMPARE(undeclaring->problems(), problems);
    undeclaring->setLanguages({});
    QCOMPARE(undeclaring->problems(), QStringList());
}

void BundleTest::namesADeclaredTableThatIsNoneWhateverTheLanguage()
{
    addTables();
    addResource(u"fr.qm"_qs, "");
    QJsonObject info = soundInfo();
    info.insert(u"resources"_qs, QJsonArray{u"en.qm"_qs, u"fr.qm"_qs, u"it.qm"_qs});
    writeInfo(info);
    QCOMPARE(openBundle()->problems(), QStringList({u"Cut.bundle: fr.qm is no string table"_qs,
                                                    u"Cut.bundle: it.qm is missing"_qs}));
}

void BundleTest::survivesTablesCutOffAnywhere()
{
    QFile file(QStringLiteral(KV_TABLES "/en.qm"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray table = file.readAll();
    // Of what follows the mark that tables begin with, the toolkit takes whatever is whole.
    const int markLength = 16;
    for (int length = 0; length < table.size(); ++length) {
        addResource(u"en.qm"_qs, table.left(length));
        const auto bundle = openBundle();
        const QString text = bundle->localizedStringForKey(u"Cut"_qs);
        QVERIFY2(text == u"Cut"_qs || text == u"Cut the tape"_qs, qPrintable(text));
        QVERIFY(length >= markLength || !bundle->problems().isEmpty());
    }
}

KV_CORE_TEST(BundleTest)
#include "tst_bundle.moc"
