// SPDX-License-Identifier: Apache-2.0
#include <QDir>
#include <QDirIterator>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

namespace {
const QByteArray elfMark("\177ELF");

/// The folders that the dynamic linker searches for what a library or program needs, before the
/// system's; by the file's path below a prefix.
using SearchedFolders = QMap<QString, QString>;

QString outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    return process.waitForFinished() && process.exitCode() == 0
               ? QString::fromLocal8Bit(process.readAllStandardOutput())
               : QStringLiteral("failed");
}

QString searchedFolders(const QString &file)
{
    const QString section = outputOf(QStringLiteral("readelf"), {QStringLiteral("-dW"), file});
    const QRegularExpression path(QStringLiteral("\\((?:RUNPATH|RPATH)\\).*\\[(.*)\\]"));
    const QString folders = path.match(section).captured(1);
    return section.contains(QStringLiteral("(NEEDED)")) ? folders : QStringLiteral("unknown");
}

bool isDynamic(const QString &path)
{
    QFile file(path);
    return !QFileInfo(path).isSymLink() && file.open(QIODevice::ReadOnly) &&
           file.read(4) == elfMark;
}

/// Of the program and of all libraries below a prefix.
SearchedFolders searchedBelow(const QString &prefix)
{
    const QDir top(prefix);
    QStringList files{top.filePath(QStringLiteral("bin/kvprint"))};
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
    const QString own = libraries + QStringLiteral("/kvprint");
    SearchedFolders expected{{QStringLiteral("bin/kvprint"), QStringLiteral("$ORIGIN/../") + own}};
    for (const QString &qt : QStringLiteral(KV_QT_VERSIONS).split(u',')) {
        expected.insert(own + QStringLiteral("/libkvprintdialog-qt%1.so").arg(qt),
                        QStringLiteral("$ORIGIN"));
        expected.insert(own + QStringLiteral("/libkvprintcore-qt%1.so.0.1.0").arg(qt), QString());
        expected.insert(own + QStringLiteral("/pde/KVMQRVOptions.pde/Contents/Linux/"
                                             "libKVMQRVOptions-qt%1.so")
                                  .arg(qt),
                        QString());
        expected.insert(libraries +
                            QStringLiteral("/qt%1/plugins/generic/libkvprintdialog.so").arg(qt),
                        QString());
    }
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
    QTest::addColumn<bool>("isInstalled");
    QTest::newRow("built") << false;
    QTest::newRow("installed") << true;
}

void tst_linking::onlyThoseThatNeedOurLibrariesHaveAFolder()
{
    QFETCH(const bool, isInstalled);
    const QTemporaryDir root;
    QString prefix = QStringLiteral(KV_BUILD_FOLDER);
    if (isInstalled) {
        prefix = root.filePath(QStringLiteral("usr"));
        QVERIFY(qputenv("DESTDIR", QFile::encodeName(root.path())));
        outputOf(QStringLiteral(KV_CMAKE),
                 {QStringLiteral("--install"), QStringLiteral(KV_BUILD_FOLDER),
                  QStringLiteral("--prefix"), QStringLiteral("/usr")});
        qunsetenv("DESTDIR");
    }
    QCOMPARE(searchedBelow(prefix), expectedFolders());
}

KV_CORE_TEST(tst_linking)
#include "tst_linking.moc"
