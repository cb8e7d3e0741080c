// SPDX-License-Identifier: Apache-2.0
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

/// The pictures for the guide that are kept with the documents.
class GuidePicturesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void areThoseTheScriptDraws();
};

namespace {
constexpr qsizetype mostBytes = 16384;

QMap<QString, QByteArray> filesIn(const QString &folder)
{
    QMap<QString, QByteArray> files;
    const QFileInfoList entries = QDir(folder).entryInfoList(QDir::Files);
    for (const QFileInfo &entry : entries) {
        QFile file(entry.filePath());
        if (file.open(QIODevice::ReadOnly)) {
            files.insert(entry.fileName(), file.readAll());
        }
    }
    return files;
}
} // namespace

void GuidePicturesTest::areThoseTheScriptDraws()
{
    const QTemporaryDir folder;
    QCOMPARE(QProcess::execute(QStringLiteral(KV_PYTHON),
                               {QStringLiteral(KV_DRAW_SCRIPT), u"--guide"_s, folder.path()}),
             0);
    const QMap<QString, QByteArray> drawn = filesIn(folder.path());
    const QMap<QString, QByteArray> kept = filesIn(QStringLiteral(KV_GUIDE_PICTURES));
    QCOMPARE(drawn.size(), 9 + 17);
    QCOMPARE(kept.keys(), drawn.keys());
    for (auto picture = drawn.begin(); picture != drawn.end(); ++picture) {
        QVERIFY2(kept.value(picture.key()) == picture.value(), qPrintable(picture.key()));
        QVERIFY(picture.value().size() < mostBytes);
    }
}

KV_CORE_TEST(GuidePicturesTest)
#include "tst_guidepictures.moc"
