// SPDX-License-Identifier: Apache-2.0
#include "ProgramRun.h"

#include <QDir>
#include <QDirIterator>
#include <QMap>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

namespace {
const QByteArray elfMark("\177ELF");

const QString panelService = QStringLiteral(KV_PANEL_SERVICE);

/// The folders that the dynamic linker searches for what a library or program needs, before the
/// system's; by the file's path below a prefix.
using SearchedFolders = QMap<QString, QString>;

QString searchedFolders(const QString &file)
{
    const QString section = runProgram(u"readelf"_s, {u"-dW"_s, file}).output;
    const QRegularExpression path(u"\\((?:RUNPATH|RPATH)\\).*\\[(.*)\\]"_s);
    const QString folders = path.match(section).captured(1);
    return section.contains(u"(NEEDED)"_s) ? folders : u"unknown"_s;
}

bool isDynamic(const QString &path)
{
    QFile file(path);
    return !QFileInfo(path).isSymLink() && file.open(QIODevice::ReadOnly) &&
           file.read(4) == elfMark;
}

/// Of the programs and of all libraries below a prefix.
SearchedFolders searchedBelow(const QString &prefix)
{
    const QDir top(prefix);
    QStringList files{top.filePath(u"bin/kvprint"_s), top.filePath(panelService)};
    QDirIterator libraries(top.filePath(QStringLiteral(KV_LIBRARY_FOLDER)), QDir::Files,
                           QDirIterator::Subdirectories);
    while (libraries.hasNext()) {
        files.append(libraries.next());
    }
    SearchedFolders found;
    for (const QString &file : files) {
        if (isDynamic(file)) {
            found.insert(top.relativeFilePath(file), searchedFolders(file));
        }
    }
    return found;
}

SearchedFolders expectedFolders()
{
    const QString libraries = QStringLiteral(KV_LIBRARY_FOLDER);
    const QString own = libraries + u"/kvprint"_s;
    SearchedFolders expected{{u"bin/kvprint"_s, u"$ORIGIN/../"_s + own}};
    for (const QString &qt : QStringLiteral(KV_QT_VERSIONS).split(u',')) {
        expected.insert(own + u"/libkvprintdialog-qt%1.so"_s.arg(qt), u"$ORIGIN"_s);
        expected.insert(own + u"/libkvprintcore-qt%1.so.0.1.0"_s.arg(qt), QString());
        expected.insert(own + u"/pde/KVMQRVOptions.pde/Contents/Linux/"
                              "libKVMQRVOptions-qt%1.so"_s.arg(qt),
                        QString());
        expected.insert(libraries + u"/qt%1/plugins/generic/libkvprintdialog.so"_s.arg(qt),
                        QString());
    }
#ifdef KV_HAS_GTK
    const QString up = u"../"_s.repeated(panelService.count(u'/'));
    expected.insert(panelService, u"$ORIGIN/"_s + up + own);
    for (const QString &gtk : QStringLiteral(KV_HAS_GTK).split(u',')) {
        const QString folder = u"/gtk-%1.0/%1.0.0/printbackends"_s.arg(gtk);
        expected.insert(libraries + folder + u"/libprintbackend-kvprint.so"_s, QString());
    }
#endif
    return expected;
}
} // namespace

/// Where the dynamic linker looks for what our libraries need.
class tst_linking : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyThoseThatNeedOurLibrariesHaveAFolder_data();
    void onlyThoseThatNeedOurLibrariesHaveAFolder();
};

void tst_linking::onlyThoseThatNeedOurLibrariesHaveAFolder_data()
{
    const TestTable<bool> table("isInstalled");
    table.add("built", false);
    table.add("installed", true);
}

void tst_linking::onlyThoseThatNeedOurLibrariesHaveAFolder()
{
    QFETCH(const bool, isInstalled);
    const QTemporaryDir root;
    QString prefix = QStringLiteral(KV_BUILD_FOLDER);
    if (isInstalled) {
        prefix = root.filePath(u"usr"_s);
        runProgram(QStringLiteral(KV_CMAKE),
                   {u"--install"_s, QStringLiteral(KV_BUILD_FOLDER), u"--prefix"_s, u"/usr"_s},
                   {{}, {u"DESTDIR="_s + root.path()}});
    }
    QCOMPARE(searchedBelow(prefix), expectedFolders());
}

KV_CORE_TEST(tst_linking)
#include "tst_linking.moc"
