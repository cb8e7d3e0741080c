// SPDX-License-Identifier: Apache-2.0
#include "DriverlessPrinter.h"

#include "ProgramRun.h"

#include <QTcpServer>
#include <QTest>

#include <cups/cups.h>

#include <memory>

namespace {
constexpr int patienceMs = 30'000;

struct HttpCloser
{
    void operator()(http_t *connection) const { httpClose(connection); }
};

struct IppDeleter
{
    void operator()(ipp_t *message) const { ippDelete(message); }
};

int freePort()
{
    QTcpServer server;
    return server.listen(QHostAddress::LocalHost) ? server.serverPort() : 0;
}

QByteArray printerURI(int port)
{
    return "ipp://127.0.0.1:" + QByteArray::number(port) + "/ipp/print";
}

/// The printer's answer about all its jobs; null without one.
std::unique_ptr<ipp_t, IppDeleter> jobsOf(int port)
{
    const std::unique_ptr<http_t, HttpCloser> connection(httpConnect2(
        "127.0.0.1", port, nullptr, AF_INET, HTTP_ENCRYPTION_NEVER, 1, patienceMs, nullptr));
    if (!connection) {
        return nullptr;
    }
    ipp_t *request = ippNewRequest(IPP_OP_GET_JOBS);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr,
                 printerURI(port).constData());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "which-jobs", nullptr, "all");
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr,
                 "all");
    return std::unique_ptr<ipp_t, IppDeleter>(
        cupsDoRequest(connection.get(), request, "/ipp/print"));
}
} // namespace

DriverlessPrinter::~DriverlessPrinter()
{
    for (BoundProcess *process : {&mPrinter, &mAvahi, &mBus}) {
        process->terminate();
        process->waitForFinished(patienceMs);
    }
}

QString DriverlessPrinter::open(const QString &queue)
{
    QString fault = startBus();
    if (fault.isNull()) {
        fault = startPrinter(queue, false);
    }
    if (!fault.isNull()) {
        return fault;
    }
    const ProgramRun run = runProgram(u"lpadmin"_s, {u"-p"_s, queue, u"-E"_s, u"-v"_s,
                                                     QString::fromLatin1(printerURI(mPort)),
                                                     u"-m"_s, u"everywhere"_s});
    return run.status == 0 ? QString() : u"lpadmin: "_s + run.errors;
}

QString DriverlessPrinter::announce(const QString &name)
{
    QString fault = startBus();
    if (fault.isNull()) {
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", busAddress().toLocal8Bit());
        fault = startAvahi();
    }
    return fault.isNull() ? startPrinter(name, true) : fault;
}

QString DriverlessPrinter::busAddress() const
{
    return u"unix:path="_s + mFolder.filePath(u"bus"_s);
}

QString DriverlessPrinter::startBus()
{
    mBus.setStandardErrorFile(QProcess::nullDevice());
    mBus.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--nopidfile"_s,
                                  u"--print-address=1"_s, u"--address="_s + busAddress()});
    // It tells its address when it can be used.
    return mBus.waitForReadyRead(patienceMs) ? QString()
                                             : u"dbus-daemon: %1"_s.arg(mBus.errorString());
}

QString DriverlessPrinter::startAvahi()
{
    QFile settings(mFolder.filePath(u"avahi.conf"_s));
    if (!settings.open(QIODevice::WriteOnly) ||
        settings.write("[server]\nhost-name=printer\nallow-interfaces=lo\nuse-ipv6=no\n"
                       "[wide-area]\nenable-wide-area=no\n") < 0) {
        return settings.errorString();
    }
    settings.close();
    mAvahi.setProcessChannelMode(QProcess::MergedChannels);
    mAvahi.start(u"avahi-daemon"_s, {u"--no-drop-root"_s, u"--no-chroot"_s, u"--no-rlimits"_s,
                                     u"--file"_s, settings.fileName()});
    QByteArray told;
    const auto isReady = [&] {
        told += mAvahi.readAll();
        return told.contains("Server startup complete");
    };
    return QTest::qWaitFor(isReady, patienceMs)
               ? QString()
               : u"avahi-daemon: "_s + mAvahi.errorString() + QString::fromUtf8(told);
}

QString DriverlessPrinter::startPrinter(const QString &name, bool announced)
{
    mPort = freePort();
    mPrinter.setProcessEnvironment(environmentWith({u"DBUS_SYSTEM_BUS_ADDRESS="_s + busAddress()}));
    mPrinter.setStandardOutputFile(QProcess::nullDevice());
    mPrinter.setStandardErrorFile(mFolder.filePath(u"log"_s));
    mPrinter.start(u"ippeveprinter"_s,
                   {u"-n"_s, u"localhost"_s, u"-p"_s, QString::number(mPort), u"-a"_s,
                    QStringLiteral(KV_SOURCE_FOLDER "/tests/automation/driverless.attrs"), u"-d"_s,
                    mFolder.path(), u"-k"_s, u"-c"_s, u"/bin/true"_s, u"-r"_s,
                    announced ? u"_print"_s : u"off"_s, name});
    if (QTest::qWaitFor([this] { return isAnswering(); }, patienceMs)) {
        return {};
    }
    QFile log(mFolder.filePath(u"log"_s));
    return log.open(QIODevice::ReadOnly) ? u"ippeveprinter: "_s + QString::fromUtf8(log.readAll())
                                         : mPrinter.errorString();
}

bool DriverlessPrinter::isAnswering() const
{
    return bool(jobsOf(mPort));
}

QList<int> DriverlessPrinter::finishings() const
{
    QList<int> asked;
    const auto jobs = jobsOf(mPort);
    for (ipp_attribute_t *each = jobs ? ippFirstAttribute(jobs.get()) : nullptr; each;
         each = ippNextAttribute(jobs.get())) {
        if (qstrcmp(ippGetName(each), "finishings") == 0) {
            asked.append(ippGetInteger(each, 0));
        }
    }
    return asked;
}
