// SPDX-License-Identifier: Apache-2.0
#include "AttachedDialog.h"
#include "PanelUser.h"
#include "PrintingTest.h"

#include <QDir>
#include <QTest>

namespace {
/// The files in folders of Qt Designer's plug-ins that are mapped into this process.
QStringList mappedDesignerPlugIns()
{
    QFile maps(u"/proc/self/maps"_s);
    if (!maps.open(QIODevice::ReadOnly)) {
        return {u"unknown"_s};
    }
    return QString::fromLocal8Bit(maps.readAll()).split(QLatin1Char('\n')).filter(u"/designer/"_s);
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
        const QDir designer(mFolder.filePath(u"designer"_s));
        return designer.mkpath(u"."_s) &&
               QFile::copy(QStringLiteral(KV_ODD_PANELS), designer.filePath(u"libown.so"_s));
    }

private:
    QString folder() const { return QFileInfo(mFolder.path()).canonicalFilePath(); }

    QTemporaryDir mFolder;
};
} // namespace

/// That the panel's form brings nothing of Qt Designer's into an application.
class tst_designerplugins : public PrintingTest
{
    Q_OBJECT

private Q_SLOTS:
    void noneIsLoadedWithThePanel();
};

void tst_designerplugins::noneIsLoadedWithThePanel()
{
    const OwnPlugIns plugIns;
    QVERIFY(plugIns.fill());
    const QStringList paths = QCoreApplication::libraryPaths();
    QVERIFY(paths.size() > 1);
    AttachedDialog dialog(u"tape"_s);
    QVERIFY(dialog.openTab());
    QCOMPARE(dialog.panel().boxes().size(), 6);
    QCOMPARE(mappedDesignerPlugIns(), QStringList());
    QCOMPARE(QCoreApplication::libraryPaths(), paths);
}

KV_TEST(tst_designerplugins)
#include "tst_designerplugins.moc"
