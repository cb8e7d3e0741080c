// SPDX-License-Identifier: Apache-2.0
#include "demo/Demonstration.h"

#include "demo/DialogDriver.h"
#include "demo/Output.h"
#include "demo/SamplePrinters.h"
#include "dialog/PrintDialogAttachment.h"
#include "host/PanelHost.h"
#include "kvprint/PrintCommand.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QScrollArea>
#include <QTest>

#include <cstdio>

namespace {
constexpr int jobTimeoutMs = 30000;

/// The printer that the dialog starts with.
const QString firstPrinter = QString::fromLatin1(samplePrinters[0].queue);

} // namespace

Demonstration::Demonstration(const QString &resultFolder)
    : mResults(resultFolder)
{
}

QString Demonstration::labelPath() const
{
    return mFolder.filePath(QStringLiteral("label.pdf"));
}

bool Demonstration::drawLabel() const
{
    const QSizeF label(62.0, 29.0);
    QPdfWriter writer(labelPath());
    writer.setPageSize(QPageSize(label, QPageSize::Millimeter));
    writer.setPageMargins(QMarginsF());
    QPainter painter;
    if (!painter.begin(&writer)) {
        return false;
    }
    QFont font;
    font.setPointSize(20);
    painter.setFont(font);
    painter.drawText(QRect(0, 0, writer.width(), writer.height()), Qt::AlignCenter,
                     QStringLiteral("Sample label"));
    return painter.end();
}

std::optional<QString> Demonstration::prepare()
{
    if (!mResults.mkpath(QStringLiteral(".")) || !mFolder.isValid() || !drawLabel()) {
        return QStringLiteral("cannot write into %1").arg(mResults.path());
    }
    QString error;
    mScheduler = PrivateScheduler::start(&error);
    if (!mScheduler) {
        return error;
    }
    if (!addSamplePrinters(*mScheduler, &error)) {
        return error;
    }
    return std::nullopt;
}

bool Demonstration::runForUser()
{
    const QString program = QCoreApplication::applicationDirPath() + QStringLiteral("/kvprint");
    QProcess kvprint;
    kvprint.setProcessChannelMode(QProcess::ForwardedChannels);
    kvprint.start(program, {QStringLiteral("-d"), firstPrinter, labelPath()});
    if (!kvprint.waitForStarted() || !kvprint.waitForFinished(-1) ||
        kvprint.exitStatus() != QProcess::NormalExit) {
        say(QStringLiteral("kvprint: %1").arg(kvprint.errorString()));
        return false;
    }
    if (kvprint.exitCode() == int(ExitStatus::Cancelled)) {
        say(QStringLiteral("Cancelled: there is no job."));
        return true;
    }
    const QList<int> jobs = mScheduler->jobIds();
    if (kvprint.exitCode() != 0 || jobs.isEmpty()) {
        return false;
    }
    QString error;
    const auto attributes = mScheduler->jobAttributes(jobs.last(), &error);
    const QString uri =
        attributes ? attributes->value(QStringLiteral("job-printer-uri")) : QString();
    return showResult(jobs.last(), uri.section(QLatin1Char('/'), -1));
}

bool Demonstration::runAlone()
{
    CommandLine line;
    line.printer = firstPrinter;
    line.files = {labelPath()};
    PrintCommand command(line, QStringLiteral(KV_BUNDLE_FOLDER));
    ExitStatus status = ExitStatus::NotPrinted;
    QPrintDialog *dialog = command.prepare(&status);
    if (!dialog) {
        return false;
    }
    DialogDriver user(*dialog);
    if (!user.open() || !user.showOptions() || !user.showTab(QStringLiteral("Cut Options")) ||
        !user.click(QStringLiteral("mHalfCutChkBx"))) {
        say(QStringLiteral("The panel could not be worked."));
        return false;
    }
    const auto *panel = static_cast<QScrollArea *>(user.widget(QStringLiteral("panelTab")));
    const bool saved =
        panel->widget()->grab().save(mResults.filePath(QStringLiteral("panel.png"))) &&
        dialog->grab().save(mResults.filePath(QStringLiteral("dialog.png")));
    if (!saved || !user.print() || command.print() != ExitStatus::Printed) {
        return false;
    }
    say(QStringLiteral("Summary:"));
    for (const PanelHost::SummaryLine &row : command.attachment()->host()->summary()) {
        say(QStringLiteral("  %1: %2").arg(row.title, row.value));
    }
    return showResult(command.jobId(), firstPrinter) &&
           jobCarries(command.jobId(), QStringLiteral("KvHalfCut"), QStringLiteral("ON"));
}

bool Demonstration::jobCarries(int job, const QString &key, const QString &choice) const
{
    QString error;
    const auto attributes = mScheduler->jobAttributes(job, &error);
    if (attributes && attributes->value(key) == choice) {
        return true;
    }
    say(QStringLiteral("The job does not carry %1=%2.").arg(key, choice));
    return false;
}

bool Demonstration::showResult(int job, const QString &printer) const
{
    QString error;
    if (!mScheduler->waitForJob(job, jobTimeoutMs)) {
        say(QStringLiteral("Job %1 was not completed.").arg(job));
        return false;
    }
    const auto attributes = mScheduler->jobAttributes(job, &error);
    if (!attributes) {
        say(error);
        return false;
    }
    say(QStringLiteral("Job %1 at %2, as the scheduler holds it:").arg(job).arg(printer));
    for (auto it = attributes->begin(); it != attributes->end(); ++it) {
        if (it.key().startsWith(QLatin1String("Kv")) || it.key() == QLatin1String("media") ||
            it.key() == QLatin1String("copies") || it.key() == QLatin1String("job-state")) {
            say(QStringLiteral("  %1=%2").arg(it.key(), it.value()));
        }
    }
    const QString printed = mResults.filePath(QStringLiteral("printed.pdf"));
    QFile::remove(printed);
    if (!QFile::copy(mScheduler->outputPath(printer), printed)) {
        say(QStringLiteral("There is no output of the printer."));
        return false;
    }
    say(QStringLiteral("Printed into %1").arg(QDir::current().relativeFilePath(printed)));
    return true;
}
