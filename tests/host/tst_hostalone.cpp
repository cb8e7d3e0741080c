// SPDX-License-Identifier: Apache-2.0
#include "host/PanelHost.h"
#include "host/ProblemReporter.h"
#include "plugin/PDEPanel.h"

#include <QTest>
#include <QWidget>

#include <dlfcn.h>

namespace {
/// Whether this process has that library of its Qt loaded.
bool isLoaded(const char *module)
{
    const QByteArray name = QByteArray("libQt") + QByteArray::number(QT_VERSION_MAJOR) + module +
                            ".so." + QByteArray::number(QT_VERSION_MAJOR);
    void *const library = dlopen(name.constData(), RTLD_LAZY | RTLD_NOLOAD);
    return library && dlclose(library) == 0;
}
} // namespace

/// A program that shows the panels in a window of its own, and links no print dialog.
class tst_hostalone : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void choiceIsAnOptionOfTheJob();
};

void tst_hostalone::choiceIsAnOptionOfTheJob()
{
    QStringList problems;
    ProblemReporter reporter([&problems](const QString &problem) { problems += problem; });
    const PanelBundles bundles = PanelBundles::load(QStringLiteral(KV_BUNDLE_FOLDER), reporter);
    QString error;
    auto target = PanelTarget::ofPPD(QStringLiteral(KV_PPD_DIR "/korvane-tape.ppd"),
                                     PPDFile::Marks::Defaults, &error);
    QVERIFY2(target, qPrintable(error));
    QWidget window;
    PanelHost host(std::move(*target), bundles, reporter);
    QCOMPARE(host.panels().size(), std::size_t(1));

    host.request(u"KvHalfCut"_s, u"ON"_s);
    QWidget *const view = host.view(*host.panels().front());
    QVERIFY(view);
    view->setParent(&window);
    window.show();
    host.show(*host.panels().front());
    QVERIFY(host.accept());
    QCOMPARE(host.jobOptions().value(u"KvHalfCut"_s), u"ON"_s);
    QCOMPARE(host.jobOptions().value(u"KvMirror"_s), u"OFF"_s);
    QCOMPARE(problems, QStringList());

    QVERIFY(isLoaded("Widgets"));
    QVERIFY(!isLoaded("PrintSupport"));
}

KV_TEST(tst_hostalone)
#include "tst_hostalone.moc"
