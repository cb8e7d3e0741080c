// SPDX-License-Identifier: Apache-2.0
#include "BundleFolder.h"
#include "host/PanelBundles.h"
#include "host/ProblemReporter.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

namespace {
/// The names of the libraries that a library needs.
QStringList neededBy(const QString &library)
{
    QProcess reader;
    reader.start(u"readelf"_s, {u"-dW"_s, library});
    reader.waitForFinished();
    const QString section = QString::fromLocal8Bit(reader.readAllStandardOutput());
    const QRegularExpression entry(u"\\(NEEDED\\).*\\[(.*)\\]"_s);
    QStringList names;
    for (auto matches = entry.globalMatch(section); matches.hasNext();) {
        names.append(matches.next().captured(1));
    }
    return names;
}

/// Puts files of these names into a folder that make whoever loads them fail.
bool plant(const QStringList &names, const QString &folder)
{
    return std::all_of(names.begin(), names.end(), [&folder](const QString &name) {
        QFile planted(QDir(folder).filePath(name));
        return planted.open(QIODevice::WriteOnly) && planted.write("planted") > 0;
    });
}
} // namespace

/// What lies about where a bundle is has nothing to do with it.
class tst_plantedlibraries : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bundleTakesWhatItNeedsFromTheSystem();
};

void tst_plantedlibraries::bundleTakesWhatItNeedsFromTheSystem()
{
    const BundleFolder outer;
    const QString bundles = outer.path(u"../bundles"_s);
    const QString bundle = bundles + u"/Spoilt.pde"_s;
    QVERIFY(QDir().mkpath(bundles) && outer.add(u"bundles/Spoilt.pde"_s));
    const QString libraries = bundle + u"/Contents/Linux"_s;
    const QStringList needed =
        neededBy(libraries + u"/libKVMQRVOptions-qt%1.so"_s.arg(QT_VERSION_MAJOR));
    QVERIFY(needed.contains(u"libkvprintcore-qt%1.so.0"_s.arg(QT_VERSION_MAJOR)));
    QVERIFY(needed.size() > 4);
    const QString current = QDir::currentPath();
    for (QString place = libraries; place.startsWith(outer.path());
         place = QFileInfo(place).path()) {
        QVERIFY(plant(needed, place));
    }
    QVERIFY(QDir::setCurrent(libraries));
    QStringList problems;
    ProblemReporter reporter([&problems](const QString &problem) { problems.append(problem); });
    const bool isLoaded = PanelBundle::load(bundles, u"Spoilt.pde"_s, reporter) != nullptr;
    QVERIFY(QDir::setCurrent(current));
    QCOMPARE(problems, QStringList());
    QVERIFY(isLoaded);
}

KV_TEST(tst_plantedlibraries)
#include "tst_plantedlibraries.moc"
