// SPDX-License-Identifier: Apache-2.0
#include "ApplicationSession.h"
#include "ApplicationTest.h"
#include "JobTicket.h"
#include "PlugInTree.h"
#include "Waiting.h"
#include "host/PrintingSite.h"
#include "support/DialogNames.h"

#include <QDir>
#include <QRegularExpression>
#include <QTest>

#include <cups/cups.h>

#include <memory>

namespace {
bool removeQueue(const QString &queue)
{
    ipp_t *request = ippNewRequest(IPP_OP_CUPS_DELETE_PRINTER);
    const QByteArray uri = "ipp://localhost/printers/" + queue.toUtf8();
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri.constData());
    ippDelete(cupsDoRequest(CUPS_HTTP_DEFAULT, request, "/admin/"));
    return cupsLastError() <= IPP_STATUS_OK_CONFLICTING;
}

bool overwrite(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.exists() && file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}
/// The one line of ours that the application has written; all of them when it is not one.
QString onlyError(ApplicationSession &session)
{
    return session.run().ownErrors().join(QLatin1String("; "));
}

bool tellsNoScheduler(const QString &error)
{
    static const QRegularExpression line(
        u"^kvprint: no print scheduler answers at 127.0.0.1 \\(port \\d+\\): [^;]+$"_s);
    return line.match(error).hasMatch();
}
} // namespace

/// What users of an application are told when something is wrong, and that it works on.
class tst_applicationfaults : public ApplicationTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void noScheduler_data() { everyApplication(); }
    void noScheduler();
    void schedulerStopsWhileTheDialogIsOpen_data() { everyApplication(); }
    void schedulerStopsWhileTheDialogIsOpen();
    void brokenPPD_data() { everyApplication(); }
    void brokenPPD();
    void chosenQueueIsRemoved_data() { everyApplication(); }
    void chosenQueueIsRemoved();
    void spoiltInstallation_data();
    void spoiltInstallation();

private: // NOLINT(readability-redundant-access-specifiers)
    /// The options of ours that the one job that there is carries; "no job" without one.
    QStringList printedChoices() const;

    std::unique_ptr<PrintingSite> mSite;
};

void tst_applicationfaults::init()
{
    mSite.reset();
    mSite = std::make_unique<PrintingSite>();
    QCOMPARE(mSite->open(), QString());
}

QStringList tst_applicationfaults::printedChoices() const
{
    QList<int> jobs;
    waitFor([&] {
        jobs = mSite->scheduler().jobIds();
        return !jobs.isEmpty();
    });
    const bool isPrinted = jobs.size() == 1 && mSite->isPrinted(jobs.first());
    return isPrinted ? JobTicket::attributes(jobs.first(), u"Kv"_s) : QStringList{u"no job"_s};
}

void tst_applicationfaults::noScheduler()
{
    ApplicationRun::Setting setting;
    // A port that nobody listens at.
    setting.variables.append(u"CUPS_SERVER=127.0.0.1:1"_s);
    ApplicationSession session(mDisplay, application(), setting);
    RemotePrintDialog &dialog = session.dialog();
    QVERIFY(dialog.open());
    QVERIFY(!dialog.printers().contains(tape));
    QVERIFY(!dialog.tabs().contains(kPanelTab));
    QVERIFY(dialog.print());
    QVERIFY(waitFor([&] { return QDir(session.run().home()).exists(u"print.pdf"_s); }));
    QVERIFY(dialog.open());
    QVERIFY(dialog.cancel());
    QCOMPARE(session.end(), QString());
    QVERIFY2(tellsNoScheduler(onlyError(session)), qPrintable(onlyError(session)));
}

void tst_applicationfaults::schedulerStopsWhileTheDialogIsOpen()
{
    ApplicationSession session(mDisplay, application());
    RemotePrintDialog &dialog = session.dialog();
    QVERIFY(session.openPanelAt(tape));
    QVERIFY(dialog.tick(halfCutBox));
    mSite.reset();
    QVERIFY(dialog.print());
    QVERIFY(dialog.open());
    QVERIFY(dialog.cancel());
    QCOMPARE(session.end(), QString());
    QVERIFY2(tellsNoScheduler(onlyError(session)), qPrintable(onlyError(session)));
}

void tst_applicationfaults::brokenPPD()
{
    const QString spoilt = u"spoilt"_s;
    QString error;
    QVERIFY(mSite->scheduler().addPrinter(spoilt, PrintingSite::ppdPath(tape), &error));
    QVERIFY(overwrite(mSite->scheduler().folder() + u"/etc/ppd/spoilt.ppd"_s,
                      "*PPD-Adobe: \"4.3\"\nno PPD\n"));

    ApplicationSession session(mDisplay, application());
    RemotePrintDialog &dialog = session.dialog();
    QVERIFY(session.openAt(spoilt));
    QVERIFY(!dialog.tabs().contains(kPanelTab));
    QVERIFY(dialog.pickPrinter(tape));
    QVERIFY(dialog.openPanel());
    QVERIFY(dialog.tick(halfCutBox));
    QVERIFY(dialog.pickPrinter(spoilt));
    QVERIFY(!dialog.tabs().contains(kPanelTab));
    QVERIFY(dialog.print());
    QCOMPARE(printedChoices(), QStringList());
    QCOMPARE(session.end(), QString());
    QCOMPARE(onlyError(session), u"kvprint: PPD of spoilt: line 2: Missing asterisk in column 1"_s);
}

void tst_applicationfaults::chosenQueueIsRemoved()
{
    // On a busy machine the scheduler may not answer in the short time that the dialog waits for
    // it.
    constexpr int mostAttempts = 5;
    QString error;
    for (int attempts = 0; error.isEmpty() && attempts < mostAttempts; ++attempts) {
        init();
        ApplicationSession session(mDisplay, application());
        RemotePrintDialog &dialog = session.dialog();
        QVERIFY(session.openPanelAt(tape));
        QVERIFY(dialog.tick(halfCutBox));
        QVERIFY(removeQueue(tape));
        QVERIFY(dialog.print());

        QVERIFY(session.openPanelAt(u"mark"_s));
        const QStringList shown = dialog.shownChoices();
        QVERIFY(dialog.print());
        QCOMPARE(printedChoices(), shown);
        QCOMPARE(session.end(), QString());
        error = onlyError(session);
    }
    QCOMPARE(error, u"kvprint: the print scheduler has no printer tape"_s);
}

void tst_applicationfaults::spoiltInstallation_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("spoilt");
    QTest::addColumn<QString>("contents");
    QTest::addColumn<QString>("reason");
    struct Spoilt
    {
        const char *name;
        const char *pattern;
        /// Null for nothing at all.
        const char *contents;
        const char *reason;
    };
    constexpr Spoilt table[] = {
        {"no folder of bundles", "/kvprint/pde", nullptr,
         "^kvprint: [^ ;]*/kvprint/pde is missing$"},
        {"no library of the bundle", "/libKVMQRVOptions-qt\\d.so", nullptr,
         "^kvprint: KVMQRVOptions.pde: libKVMQRVOptions-qt\\d.so is missing$"},
        {"bundle's library is a text", "/libKVMQRVOptions-qt\\d.so", "text",
         "^kvprint: KVMQRVOptions.pde: .*libKVMQRVOptions-qt\\d.so' is not a[^;]*$"},
        {"no library of dialogs", "/libkvprintdialog-qt\\d.so", nullptr,
         "^kvprint: [^ ;]*/libkvprintdialog-qt\\d.so is missing$"},
        {"library of dialogs is a text", "/libkvprintdialog-qt\\d.so", "text",
         "^kvprint: [^;]*/libkvprintdialog-qt\\d.so' is not a[^;]*$"},
    };
    for (size_t i = 0; i < mApplications.size(); ++i) {
        for (const Spoilt &spoilt : table) {
            QTest::addRow("%s, %s", mApplications[i].name, spoilt.name)
                << int(i) << QString::fromLatin1(spoilt.pattern)
                << QString::fromLatin1(spoilt.contents) << QString::fromLatin1(spoilt.reason);
        }
    }
}

void tst_applicationfaults::spoiltInstallation()
{
    QFETCH(const QString, spoilt);
    QFETCH(const QString, contents);
    QFETCH(const QString, reason);
    const PlugInTree tree;
    QVERIFY(tree.isCopied());
    QVERIFY(contents.isNull() ? tree.remove(spoilt) : tree.overwrite(spoilt, contents.toUtf8()));

    ApplicationSession session(mDisplay, application(), {{}, tree.libraries()});
    RemotePrintDialog &dialog = session.dialog();
    // Where the application works and its document lies nobody looks for what is missing.
    QVERIFY(PlugInTree::addDecoys(session.run().home()));
    QVERIFY(session.openAt(tape));
    QVERIFY(!dialog.tabs().contains(kPanelTab));
    QVERIFY(dialog.cancel());
    QVERIFY(session.openAt(tape));
    QVERIFY(!dialog.tabs().contains(kPanelTab));
    QVERIFY(dialog.print());
    QCOMPARE(printedChoices(), QStringList());
    QCOMPARE(session.end(), QString());
    const QString error = onlyError(session);
    QVERIFY2(QRegularExpression(reason).match(error).hasMatch(), qPrintable(error));
}

KV_CORE_TEST(tst_applicationfaults)
#include "tst_applicationfaults.moc"
