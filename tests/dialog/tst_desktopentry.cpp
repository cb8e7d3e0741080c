// SPDX-License-Identifier: Apache-2.0
#include "PrintingTest.h"
#include "ProgramRun.h"
#include "TypeSamples.h"
#include "applications/DisplayServer.h"
#include "kvprint/PrintCommand.h"

#include <QDir>
#include <QImage>
#include <QMap>
#include <QMimeDatabase>
#include <QRegularExpression>
#include <QTest>
#include <QXmlStreamReader>

namespace {
const QString applicationId = QStringLiteral(KV_APPLICATION_ID);
/// The sizes that the icon has pictures of its own for.
constexpr int drawnSizes[] = {16, 32, 48, 128};
const QString entryName = applicationId + u".desktop"_s;

QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The keys of a desktop entry.
QMap<QString, QString> keysOf(const QString &path)
{
    QMap<QString, QString> keys;
    for (const QString &line : QString::fromUtf8(contentsOf(path)).split(u'\n')) {
        if (line.contains(u'=')) {
            keys.insert(line.section(u'=', 0, 0), line.section(u'=', 1));
        }
    }
    return keys;
}

/// The texts of the elements of a name, by their language; the last one without a language.
QMap<QString, QString> textsIn(const QString &path, const QString &element)
{
    QMap<QString, QString> texts;
    QXmlStreamReader xml(contentsOf(path));
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == element) {
            const QString language = xml.attributes().value(u"xml:lang"_s).toString();
            texts.insert(language, xml.readElementText());
        }
    }
    return texts;
}

/// The errors and warnings that appstreamcli has of the metainfo.
QStringList faultsOfMetainfo(const QString &path)
{
    const ProgramRun run = runProgram(u"appstreamcli"_s, {u"validate"_s, u"--no-net"_s, path});
    const QStringList faults = run.lines().filter(QRegularExpression(u"^[EW]:"_s));
    return run.status == 0 || !faults.isEmpty() ? faults : QStringList(run.output + run.errors);
}

/// How many pixels of a picture have about this colour.
int pixelsLike(const QImage &picture, const QColor &colour)
{
    int pixels = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor pixel = picture.pixelColor(x, y);
            const int difference = qAbs(pixel.red() - colour.red()) +
                                   qAbs(pixel.green() - colour.green()) +
                                   qAbs(pixel.blue() - colour.blue());
            pixels += int(pixel.alpha() > 128 && difference < 96);
        }
    }
    return pixels;
}
} // namespace

/// What desktops know of kvprint as it is installed: its entry, icon and AppStream metainfo.
class tst_desktopentry : public PrintingTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void installedFiles();
    void entryIsValid();
    void metainfoIsValid();
    void metainfoOfPackagers();
    void releaseIsThisVersion();
    void languages_data();
    void languages();
    void iconInSizes_data();
    void iconInSizes();
    void windowHasIcon();
    void errorIsShown();
    void offeredForItsTypes();
    void desktopOpensFiles();
    // The last one: printers keep no jobs from here on.
    void everyTypeIsPrinted();

private: // NOLINT(readability-redundant-access-specifiers)
    QString installed(const QString &name) const { return mPrefix.filePath(u"share/"_s + name); }
    QString entry() const { return installed(u"applications/"_s + entryName); }
    QString metainfo() const { return installed(u"metainfo/%1.metainfo.xml"_s.arg(applicationId)); }
    QString icon(const QString &folder, const QString &suffix) const
    {
        return installed(u"icons/hicolor/%1/apps/%2.%3"_s.arg(folder, applicationId, suffix));
    }
    QStringList types() const
    {
        return keysOf(entry()).value(u"MimeType"_s).split(u';', Qt::SkipEmptyParts);
    }
    /// The variables of a desktop with what is installed, where the plug-in works kvprint's dialog.
    QStringList desktop(const QString &deed = {}) const
    {
        return {u"XDG_DATA_DIRS=%1:/usr/share"_s.arg(installed(QString())),
                u"PATH=%1:%2"_s.arg(QFileInfo(QStringLiteral(KV_PRINT_PROGRAM)).path(),
                                    qEnvironmentVariable("PATH")),
                u"DISPLAY="_s + mDisplay.name(),
                u"QT_QPA_PLATFORM"_s,
                QStringLiteral("QT_PLUGIN_PATH=" KV_TEST_PLUGIN_FOLDER),
                u"QT_QPA_GENERIC_PLUGINS=dialoguser:"_s + deed};
    }

    DisplayServer mDisplay;
    QTemporaryDir mPrefix;
};

void tst_desktopentry::initTestCase()
{
    PrintingTest::initTestCase();
    QCOMPARE(mDisplay.open(), QString());
    const ProgramRun install = runProgram(
        QStringLiteral(KV_CMAKE), {u"--install"_s, QStringLiteral(KV_BUILD_FOLDER),
                                   u"--component"_s, u"desktop"_s, u"--prefix"_s, mPrefix.path()});
    QVERIFY2(install.status == 0, qPrintable(install.errors));
    // As the package's trigger does it.
    QCOMPARE(runProgram(u"update-desktop-database"_s, {installed(u"applications"_s)}).status, 0);
}

void tst_desktopentry::installedFiles()
{
    QStringList files{entry(), metainfo(), icon(u"scalable"_s, u"svg"_s)};
    for (int size : drawnSizes) {
        files.append(icon(u"%1x%1"_s.arg(size), u"png"_s));
    }
    for (const QString &file : files) {
        QVERIFY2(QFile::exists(file), qPrintable(file));
        QVERIFY(QFile::permissions(file) & QFile::ReadOther);
        QVERIFY(!(QFile::permissions(file) & (QFile::WriteGroup | QFile::WriteOther)));
    }
}

void tst_desktopentry::entryIsValid()
{
    const ProgramRun run = runProgram(u"desktop-file-validate"_s, {entry()});
    QCOMPARE(run.output + run.errors, QString());
    QCOMPARE(run.status, 0);
    QCOMPARE(keysOf(entry()).value(u"Icon"_s), applicationId);
}

void tst_desktopentry::metainfoIsValid()
{
    QStringList faults = faultsOfMetainfo(metainfo());
    // Newer versions want a home page, which packagers can name.
    faults.removeAll(u"W: %1:~: url-homepage-missing"_s.arg(applicationId));
    QCOMPARE(faults, QStringList());
    QCOMPARE(textsIn(metainfo(), u"id"_s).value(QString()), applicationId);
    QVERIFY(textsIn(metainfo(), u"image"_s).isEmpty());
    QVERIFY(textsIn(metainfo(), u"url"_s).isEmpty());
}

void tst_desktopentry::metainfoOfPackagers()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(applicationId + u".metainfo.xml"_s);
    const QString source = QStringLiteral(KV_SOURCE_FOLDER);
    const ProgramRun made = runProgram(
        QStringLiteral(KV_CMAKE),
        {u"-D"_s, u"KV_ID="_s + applicationId, u"-D"_s, u"KV_ENTRY="_s + entry(), u"-D"_s,
         u"KV_GUIDE=%1/docs/guide.md"_s.arg(source), u"-D"_s, u"KV_HOMEPAGE=https://home.example"_s,
         u"-D"_s, u"KV_SCREENSHOT_URL=https://pictures.example/guide"_s, u"-D"_s,
         u"KV_METAINFO="_s + file, u"-P"_s, source + u"/resources/desktop/metainfo.cmake"_s});
    QVERIFY2(made.status == 0, qPrintable(made.errors));
    QCOMPARE(faultsOfMetainfo(file), QStringList());
    QCOMPARE(textsIn(file, u"url"_s).value(QString()), u"https://home.example"_s);
    const QString text = QString::fromUtf8(contentsOf(file));
    const QDir guide(source + u"/docs/guide"_s);
    const QStringList pictures = guide.entryList({u"*.png"_s});
    QVERIFY(!pictures.isEmpty());
    QCOMPARE(text.count(u"<screenshot>") + text.count(u"<screenshot type=\"default\">"),
             pictures.size());
    for (const QString &picture : pictures) {
        QVERIFY2(text.contains(u"<image>https://pictures.example/guide/%1</image>"_s.arg(picture)),
                 qPrintable(picture));
    }
}

void tst_desktopentry::releaseIsThisVersion()
{
    const QByteArray release = QByteArrayLiteral("<release version=\"" KV_VERSION "\" date=\"");
    QVERIFY(contentsOf(metainfo()).contains(release));
    QVERIFY(contentsOf(QStringLiteral(KV_SOURCE_FOLDER "/CHANGES.md"))
                .contains(QByteArrayLiteral("\n## " KV_VERSION "\n")));
}

void tst_desktopentry::languages_data()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : QStringLiteral(KV_LANGUAGES).split(u',')) {
        QTest::newRow(qPrintable(language)) << language;
    }
}

void tst_desktopentry::languages()
{
    QFETCH(const QString, language);
    const bool isEnglish = language == u"en";
    const QMap<QString, QString> keys = keysOf(entry());
    const auto text = [&keys, &language, isEnglish](const QString &key) {
        return keys.value(isEnglish ? key : u"%1[%2]"_s.arg(key, language));
    };
    // The program is called the same everywhere.
    QCOMPARE(keys.value(u"Name"_s), u"kvprint"_s);
    QVERIFY(!text(u"GenericName"_s).isEmpty());
    QVERIFY(!text(u"Comment"_s).isEmpty());
    QCOMPARE(text(u"Keywords"_s).count(u';'), keys.value(u"Keywords"_s).count(u';'));
    QVERIFY(text(u"Keywords"_s).endsWith(u';'));
    for (const char *key : {"GenericName", "Comment", "Keywords"}) {
        QCOMPARE(text(QLatin1String(key)) == keys.value(QLatin1String(key)), isEnglish);
    }
    const QMap<QString, QString> summaries = textsIn(metainfo(), u"summary"_s);
    QCOMPARE(summaries.value(isEnglish ? QString() : language), text(u"Comment"_s));
}

void tst_desktopentry::iconInSizes_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<QString>("drawn");
    for (int size : drawnSizes) {
        QTest::addRow("drawn for %d", size) << size << icon(u"%1x%1"_s.arg(size), u"png"_s);
    }
    for (int size : {16, 22, 24, 32, 48, 64, 96, 128, 256, 512}) {
        QTest::addRow("scaled to %d", size) << size << QString();
    }
}

void tst_desktopentry::iconInSizes()
{
    QFETCH(const int, size);
    QFETCH(QString, drawn);
    const QTemporaryDir folder;
    if (drawn.isNull()) {
        drawn = folder.filePath(u"icon.png"_s);
        const QString pixels = QString::number(size);
        QCOMPARE(
            runProgram(QStringLiteral(KV_RSVG_CONVERT), {u"-w"_s, pixels, u"-h"_s, pixels, u"-o"_s,
                                                         drawn, icon(u"scalable"_s, u"svg"_s)})
                .status,
            0);
    }
    const QImage picture(drawn);
    QCOMPARE(picture.size(), QSize(size, size));
    // What a person knows it by, as parts of its area: printer, cut, letter, label, and backing.
    constexpr std::pair<QRgb, double> shares[] = {
        {0x757b84, 0.1}, {0xe23a40, 0.03}, {0x1d2126, 0.01}, {0xffffff, 0.06}, {0xa8763c, 0.03}};
    for (const auto &[colour, share] : shares) {
        const double seen = double(pixelsLike(picture, QColor(colour))) / (size * size);
        QVERIFY2(seen >= share, qPrintable(QColor(colour).name() + u' ' + QString::number(seen)));
    }
    // Nothing behind it: it stands on light and on dark.
    QCOMPARE(qAlpha(picture.pixel(0, 0)), 0);
    QCOMPARE(qAlpha(picture.pixel(size - 1, 0)), 0);
}

void tst_desktopentry::windowHasIcon()
{
    const ProgramRun run =
        runKvprint({u"-d"_s, u"tape"_s, mSite.document()}, {{}, desktop(u"tellwindow"_s)});
    QVERIFY2(run.status == int(ExitStatus::Cancelled), qPrintable(run.errors));
    const QStringList told = run.lines();
    QCOMPARE(told.value(0), applicationId);
    for (int size : drawnSizes) {
        QVERIFY2(told.contains(u"%1x%1"_s.arg(size)), qPrintable(run.output + run.errors));
    }
}

void tst_desktopentry::errorIsShown()
{
    QVERIFY(keysOf(entry()).value(u"Exec"_s).startsWith(u"kvprint --alert "_s));
    const ProgramRun run =
        runKvprint({u"--alert"_s, u"-d"_s, u"tape"_s, u"gone.pdf"_s}, {{}, desktop()});
    QCOMPARE(run.status, int(ExitStatus::NotPrinted));
    QCOMPARE(run.lines(), QStringList{u"gone.pdf: No such file or directory"_s});
}

void tst_desktopentry::offeredForItsTypes()
{
    QVERIFY(types().contains(u"application/pdf"_s));
    for (const QString &type : types()) {
        const ProgramRun run = runProgram(u"gio"_s, {u"mime"_s, type}, {{}, desktop()});
        QVERIFY2(run.output.contains(entryName), qPrintable(type + run.output + run.errors));
    }
}

void tst_desktopentry::desktopOpensFiles()
{
    const QString pdf = mSite.file(u"-an éti quette $HOME %f.pdf"_s,
                                   typeSamples().value(u"application/pdf"_s).bytes);
    const QString text = mSite.document();
    QVERIFY(mSite.saveUserOptions("Default tape\n"));
    const auto jobsBefore = mSite.scheduler().jobIds().size();
    // Ends with kvprint, which has the pipe as well.
    const ProgramRun run = runProgram(
        u"/bin/sh"_s, {u"-c"_s, u"gio launch \"$@\" 2>&1 | cat"_s, u"sh"_s, entry(), pdf, text},
        {{}, desktop(u"accept"_s)});
    QVERIFY2(mSite.scheduler().jobIds().size() == jobsBefore + 1, qPrintable(run.output));
    const QMap<QString, QString> job = mSite.job(mSite.scheduler().jobIds().last());
    QCOMPARE(job.value(u"number-of-documents"_s), u"2"_s);
    QCOMPARE(job.value(u"job-name"_s), QFileInfo(pdf).fileName());
    QVERIFY(choicesOfLastJob().contains(u"KvHalfCut=ON"_s));
}

void tst_desktopentry::everyTypeIsPrinted()
{
    const QMap<QString, TypeSample> samples = typeSamples();
    QCOMPARE(samples.keys(), types());
    const auto jobsBefore = mSite.scheduler().jobIds().size();
    for (auto sample = samples.begin(); sample != samples.end(); ++sample) {
        const QString file = mSite.file(sample->name, sample->bytes);
        QCOMPARE(QMimeDatabase().mimeTypeForFile(file).name(), sample.key());
        const ProgramRun run = runKvprint(atPrinter(u"plain"_s, {file}));
        QVERIFY2(run.status == 0, qPrintable(run.errors));
    }
    const QList<int> jobs = mSite.scheduler().jobIds().mid(jobsBefore);
    QCOMPARE(jobs.size(), samples.size());
    for (int job : jobs) {
        QVERIFY2(mSite.isPrinted(job), qPrintable(mSite.scheduler().errorLog()));
    }
}

KV_TEST(tst_desktopentry)
#include "tst_desktopentry.moc"
