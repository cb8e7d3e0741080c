// SPDX-License-Identifier: Apache-2.0
#include "AttachedDialog.h"
#include "PanelUser.h"
#include "PrintingSite.h"

#include <QDir>
#include <QTest>

namespace {
/// The files in folders of Qt Designer's plug-ins that are mapped into this process.
QStringList mappedDesignerPlugIns()
{
    QFile maps(QStringLiteral("/proc/self/maps"));
    if (!maps.open(QIODevice::ReadOnly)) {
        return {QStringLiteral("unknown")};
    }
    return QString::fromLocal8Bit(maps.readAll())
        .split(QLatin1Char('\n'))
        .filter(QStringLiteral("/designer/"));
}

/// A folder of plug-ins of this application's, with one of Qt Designer's among them.
class OwnPlugIns
{
public:
    OwnPlugIns() { QCoreApplication::addLibraryPath(folder()); }
    ~OwnPlugIns() { QCoreApplication::removeLibraryPath(folder()); }
    OwnPlugIns(const OwnPlugIns &) = delete;
    OwnPlugIns &operator=(const OwnPlugIns &) = delete;

    bool fill() const
    {
        const QDir designer(mFolder.filePath(QStringLiteral("designer")));
        return designer.mkpath(QStringLiteral(".")) &&
               QFile::copy(QStringLiteral(KV_ODD_PANELS),
                           designer.filePath(QStringLiteral("libown.so")));
    }

private:
    QString folder() const { return QFileInfo(mFolder.path()).canonicalFilePath(); }

    QTemporaryDir mFolder;
};
} // namespace

/// That the panel's form brings nothing of Qt Designer's into an application.
class tst_designerplugins : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void noneIsLoadedWithThePanel();

private: // NOLINT(readability-redundant-access-specifiers)
    PrintingSite mSite;
};

void tst_designerplugins::initTestCase()
{
    QCOMPARE(mSite.open(), QString());
}

void tst_designerplugins::noneIsLoadedWithThePanel()
{
    const OwnPlugIns plugIns;
    QVERIFY(plugIns.fill());
    const QStringList paths = QCoreApplication::libraryPaths();
    QVERIFY(paths.size() > 1);
    AttachedDialog dialog(QStringLiteral("tape"));
    QVERIFY(dialog.openTab());
    QCOMPARE(PanelUser(dialog.user()).boxes().size(), 6);
    QCOMPARE(mappedDesignerPlugIns(), QStringList());
    QCOMPARE(QCoreApplication::libraryPaths(), paths);
}

KV_TEST(tst_designerplugins)
#include "tst_designerplugins.moc"
