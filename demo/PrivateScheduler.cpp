// SPDX-License-Identifier: Apache-2.0
#include "demo/PrivateScheduler.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QStringList>
#include <QThread>

#include <cups/cups.h>

#include <algorithm>
#include <array>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {
constexpr const char *host = "127.0.0.1";
constexpr const char *serverVariable = "CUPS_SERVER";
constexpr int launchAttempts = 5;
constexpr int startTimeoutMs = 10'000;
constexpr int stopTimeoutMs = 5'000;
constexpr int restartTimeoutMs = 60'000;
constexpr int connectTimeoutMs = 5'000;
constexpr int removeTimeoutMs = 2'000;
constexpr int pollMs = 20;

const QString schedulerFile = QStringLiteral("etc/cupsd.conf");
const QString filesFile = QStringLiteral("etc/cups-files.conf");
const QString logFile = QStringLiteral("log/error_log");
const QString outputFile = QStringLiteral("log/cupsd");
constexpr std::array folders = {"etc", "state", "cache", "spool", "spool/tmp", "log", "out"};

struct HttpCloser
{
    void operator()(http_t *connection) const { httpClose(connection); }
};
using Connection = std::unique_ptr<http_t, HttpCloser>;

struct IppDeleter
{
    void operator()(ipp_t *message) const { ippDelete(message); }
};
using Message = std::unique_ptr<ipp_t, IppDeleter>;

// %1 the port. Whoever reaches the loopback address may do everything, as the scheduler is for the
// tests and demonstrations of this user alone.
QString schedulerConfiguration()
{
    return QStringLiteral(R"(Listen 127.0.0.1:%1
LogLevel info
LogDebugHistory 1000
MaxLogSize 0
WebInterface No
Browsing No
BrowseLocalProtocols none
DefaultEncryption Never
DefaultLanguage en
DefaultShared No
ErrorPolicy abort-job
JobKillDelay 1
MaxJobs 0
PreserveJobHistory Yes
PreserveJobFiles No
<Location />
  Order allow,deny
  Allow from 127.0.0.1
</Location>
<Policy default>
  JobPrivateAccess all
  JobPrivateValues none
  SubscriptionPrivateAccess all
  SubscriptionPrivateValues none
  <Limit All>
    Order allow,deny
    Allow from 127.0.0.1
  </Limit>
</Policy>
)");
}

// %1 the folder.
QString filesConfiguration()
{
    return QStringLiteral(R"(ServerRoot %1/etc
StateDir %1/state
CacheDir %1/cache
RequestRoot %1/spool
TempDir %1/spool/tmp
AccessLog %1/log/access_log
ErrorLog %1/log/error_log
PageLog %1/log/page_log
Printcap
CreateSelfSignedCerts No
FileDevice Yes
SyncOnClose No
)");
}

bool fail(QString *error, const QString &text)
{
    if (error) {
        *error = text;
    }
    return false;
}

bool writeFile(const QString &path, const QString &text, QString *error)
{
    QFile file(path);
    const QByteArray bytes = text.toUtf8();
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush()) {
        return fail(error, QStringLiteral("%1: %2").arg(path, file.errorString()));
    }
    return true;
}

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString findScheduler()
{
    const QString name = QStringLiteral("cupsd");
    const QString program = QStandardPaths::findExecutable(name);
    return !program.isEmpty()
               ? program
               : QStandardPaths::findExecutable(
                     name, {QStringLiteral("/usr/sbin"), QStringLiteral("/usr/local/sbin")});
}

// 0 when there is none. Another process may take the port before the scheduler does.
int findFreePort()
{
    const int handle = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    auto *generic = reinterpret_cast<sockaddr *>(&address);
    const bool isBound =
        bind(handle, generic, length) == 0 && getsockname(handle, generic, &length) == 0;
    close(handle);
    return isBound ? ntohs(address.sin_port) : 0;
}

Connection connectTo(int port)
{
    return Connection(httpConnect2(host, port, nullptr, AF_INET, HTTP_ENCRYPTION_NEVER, 1,
                                   connectTimeoutMs, nullptr));
}

QString lastError()
{
    return QString::fromUtf8(cupsLastErrorString());
}

QByteArray resourceUri(const char *folder, const QByteArray &name)
{
    std::array<char, HTTP_MAX_URI> uri = {};
    httpAssembleURIf(HTTP_URI_CODING_ALL, uri.data(), static_cast<int>(uri.size()), "ipp", nullptr,
                     "localhost", 0, "/%s/%s", folder, name.constData());
    return uri.data();
}

// The request is libcups' to delete once it is sent.
ipp_t *newRequest(ipp_op_t operation, const char *uriName, const QByteArray &uri)
{
    ipp_t *request = ippNewRequest(operation);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, uriName, nullptr, uri.constData());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
                 cupsUser());
    return request;
}

void requestAttributes(ipp_t *request, const char *names)
{
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr,
                 names);
}

// Null when the scheduler did not answer or refused.
Message getJob(int port, int id, const char *attributes)
{
    const Connection connection = connectTo(port);
    if (!connection) {
        return nullptr;
    }
    ipp_t *request = newRequest(IPP_OP_GET_JOB_ATTRIBUTES, "job-uri",
                                resourceUri("jobs", QByteArray::number(id)));
    requestAttributes(request, attributes);
    Message response(cupsDoRequest(connection.get(), request, "/"));
    return cupsLastError() <= IPP_STATUS_OK_CONFLICTING ? std::move(response) : nullptr;
}

bool isString(ipp_tag_t tag)
{
    return tag == IPP_TAG_TEXTLANG || tag == IPP_TAG_NAMELANG ||
           (tag >= IPP_TAG_TEXT && tag <= IPP_TAG_MIMETYPE);
}

// Strings are joined here, as ippAttributeString() escapes some of their letters.
QString valueText(ipp_attribute_t *attribute)
{
    if (!isString(ippGetValueTag(attribute))) {
        QByteArray text(int(ippAttributeString(attribute, nullptr, 0)) + 1, '\0');
        ippAttributeString(attribute, text.data(), static_cast<size_t>(text.size()));
        return QString::fromUtf8(text.constData());
    }
    QStringList values;
    for (int i = 0; i < ippGetCount(attribute); ++i) {
        values.append(QString::fromUtf8(ippGetString(attribute, i, nullptr)));
    }
    return values.join(u',');
}
} // namespace

PrivateScheduler::PrivateScheduler()
    : mFolder(QDir::tempPath() + QStringLiteral("/kvscheduler-XXXXXX"))
{
    mProcess.setProcessChannelMode(QProcess::MergedChannels);
    mProcess.setStandardInputFile(QProcess::nullDevice());
    mProcess.setStandardOutputFile(mFolder.filePath(outputFile));
}

PrivateScheduler::~PrivateScheduler()
{
    restore();
    stop();
    QDeadlineTimer deadline(removeTimeoutMs);
    while (!mFolder.remove() && !deadline.hasExpired()) {
        QThread::msleep(pollMs);
    }
}

std::unique_ptr<PrivateScheduler> PrivateScheduler::start(QString *error)
{
    const QString program = findScheduler();
    if (program.isEmpty()) {
        fail(error, QStringLiteral("cupsd is not installed"));
        return nullptr;
    }
    std::unique_ptr<PrivateScheduler> scheduler(new PrivateScheduler);
    scheduler->mProgram = program;
    if (!scheduler->createFolders(error) || !scheduler->launch(error)) {
        return nullptr;
    }
    scheduler->publish();
    return scheduler;
}

bool PrivateScheduler::addPrinter(const QString &name, const QString &ppdPath, QString *error) const
{
    const Connection connection = connectTo(mPort);
    if (!connection) {
        return fail(error, lastError());
    }
    ipp_t *request = newRequest(IPP_OP_CUPS_ADD_MODIFY_PRINTER, "printer-uri",
                                resourceUri("printers", name.toUtf8()));
    const QByteArray device = "file://" + QFile::encodeName(outputPath(name));
    ippAddString(request, IPP_TAG_PRINTER, IPP_TAG_URI, "device-uri", nullptr, device.constData());
    ippAddInteger(request, IPP_TAG_PRINTER, IPP_TAG_ENUM, "printer-state", IPP_PSTATE_IDLE);
    ippAddBoolean(request, IPP_TAG_PRINTER, "printer-is-accepting-jobs", 1);

    const QByteArray ppd = QFile::encodeName(ppdPath);
    const Message response(
        ppd.isEmpty() ? cupsDoRequest(connection.get(), request, "/admin/")
                      : cupsDoFileRequest(connection.get(), request, "/admin/", ppd.constData()));
    return cupsLastError() <= IPP_STATUS_OK_CONFLICTING || fail(error, lastError());
}

bool PrivateScheduler::manage(ipp_op_t operation, const QString &queue, QString *error) const
{
    const Connection connection = connectTo(mPort);
    if (!connection) {
        return fail(error, lastError());
    }
    ipp_t *request = newRequest(operation, "printer-uri", resourceUri("printers", queue.toUtf8()));
    const Message response(cupsDoRequest(connection.get(), request, "/admin/"));
    return cupsLastError() <= IPP_STATUS_OK_CONFLICTING || fail(error, lastError());
}

bool PrivateScheduler::setPaused(const QString &name, bool isPaused, QString *error) const
{
    return manage(isPaused ? IPP_OP_PAUSE_PRINTER : IPP_OP_RESUME_PRINTER, name, error);
}

bool PrivateScheduler::setAccepting(const QString &name, bool isAccepting, QString *error) const
{
    return manage(isAccepting ? IPP_OP_CUPS_ACCEPT_JOBS : IPP_OP_CUPS_REJECT_JOBS, name, error);
}

bool PrivateScheduler::restart(QString *error)
{
    // Until it has written down all of its jobs.
    mProcess.terminate();
    return (mProcess.waitForFinished(restartTimeoutMs) ||
            fail(error, QStringLiteral("cupsd does not end"))) &&
           run(error);
}

QString PrivateScheduler::outputPath(const QString &printer) const
{
    return mFolder.filePath(QStringLiteral("out/%1.prn").arg(printer));
}

QByteArray PrivateScheduler::address() const
{
    return host + QByteArray(":") + QByteArray::number(mPort);
}

QString PrivateScheduler::errorLog() const
{
    return QString::fromUtf8(readFile(mFolder.filePath(outputFile)) +
                             readFile(mFolder.filePath(logFile)));
}

QList<int> PrivateScheduler::jobIds(const QString &printer) const
{
    const Connection connection = connectTo(mPort);
    if (!connection) {
        return {};
    }
    const QByteArray uri = printer.isEmpty() ? QByteArrayLiteral("ipp://localhost/")
                                             : resourceUri("printers", printer.toUtf8());
    ipp_t *request = newRequest(IPP_OP_GET_JOBS, "printer-uri", uri);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "which-jobs", nullptr, "all");
    requestAttributes(request, "job-id");
    const Message response(cupsDoRequest(connection.get(), request, "/"));

    QList<int> ids;
    for (ipp_attribute_t *id = ippFindAttribute(response.get(), "job-id", IPP_TAG_INTEGER); id;
         id = ippFindNextAttribute(response.get(), "job-id", IPP_TAG_INTEGER)) {
        ids.append(ippGetInteger(id, 0));
    }
    std::sort(ids.begin(), ids.end());
    return ids;
}

bool PrivateScheduler::waitForJob(int id, int timeoutMs) const
{
    QDeadlineTimer deadline(timeoutMs);
    for (;;) {
        const Message job = getJob(mPort, id, "job-state");
        ipp_attribute_t *attribute =
            job ? ippFindAttribute(job.get(), "job-state", IPP_TAG_ENUM) : nullptr;
        const int state = attribute ? ippGetInteger(attribute, 0) : IPP_JSTATE_ABORTED;
        if (state >= IPP_JSTATE_STOPPED || deadline.hasExpired()) {
            return state == IPP_JSTATE_COMPLETED;
        }
        QThread::msleep(pollMs);
    }
}

std::optional<QMap<QString, QString>> PrivateScheduler::jobAttributes(int id, QString *error) const
{
    const Message job = getJob(mPort, id, "all");
    if (!job) {
        fail(error, lastError());
        return std::nullopt;
    }
    QMap<QString, QString> attributes;
    for (ipp_attribute_t *attribute = ippFirstAttribute(job.get()); attribute;
         attribute = ippNextAttribute(job.get())) {
        if (ippGetGroupTag(attribute) == IPP_TAG_JOB && ippGetName(attribute)) {
            attributes.insert(QString::fromUtf8(ippGetName(attribute)), valueText(attribute));
        }
    }
    return attributes;
}

bool PrivateScheduler::createFolders(QString *error)
{
    if (!mFolder.isValid()) {
        return fail(error, mFolder.errorString());
    }
    QDir folder(mFolder.path());
    for (const char *name : folders) {
        if (!folder.mkdir(QString::fromLatin1(name))) {
            return fail(error, QStringLiteral("Cannot create a folder in %1").arg(mFolder.path()));
        }
    }
    // The filters of a scheduler that runs as root are run as another user, who has to get through.
    if (geteuid() == 0 && chmod(QFile::encodeName(mFolder.path()).constData(), 0711) != 0) {
        return fail(error, qt_error_string());
    }
    return true;
}

bool PrivateScheduler::writeConfiguration(QString *error) const
{
    return writeFile(mFolder.filePath(schedulerFile), schedulerConfiguration().arg(mPort), error) &&
           writeFile(mFolder.filePath(filesFile), filesConfiguration().arg(mFolder.path()), error);
}

bool PrivateScheduler::run(QString *error)
{
    QFile::remove(mFolder.filePath(logFile));
    mProcess.start(mProgram,
                   {QStringLiteral("-f"), QStringLiteral("-c"), mFolder.filePath(schedulerFile),
                    QStringLiteral("-s"), mFolder.filePath(filesFile)});
    if (!mProcess.waitForStarted()) {
        return fail(error, mProcess.errorString());
    }
    return waitUntilAnswering(error);
}

bool PrivateScheduler::launch(QString *error)
{
    for (int attempt = 0; attempt < launchAttempts; ++attempt) {
        mPort = findFreePort();
        if (mPort == 0) {
            return fail(error, QStringLiteral("No free port"));
        }
        if (!writeConfiguration(error)) {
            return false;
        }
        if (run(error)) {
            return true;
        }
        stop();
        if (!isPortTaken()) {
            return false;
        }
    }
    return false;
}

bool PrivateScheduler::waitUntilAnswering(QString *error)
{
    QDeadlineTimer deadline(startTimeoutMs);
    while (!deadline.hasExpired() && !isPortTaken()) {
        if (mProcess.waitForFinished(pollMs) || mProcess.state() == QProcess::NotRunning) {
            return fail(error, QStringLiteral("cupsd ended at once:\n%1").arg(errorLog()));
        }
        if (isAnswering()) {
            return true;
        }
    }
    return fail(error, QStringLiteral("cupsd does not answer:\n%1").arg(errorLog()));
}

bool PrivateScheduler::isLogged(const QString &message) const
{
    return errorLog().contains(message.arg(QString::fromLatin1(address())));
}

// A scheduler that another process has taken the port from goes on without it.
bool PrivateScheduler::isPortTaken() const
{
    return isLogged(QStringLiteral("Unable to open listen socket for address %1 "));
}

// The log tells that it is not another process that answers at the port.
bool PrivateScheduler::isAnswering() const
{
    if (!isLogged(QStringLiteral("Listening to %1 "))) {
        return false;
    }
    const Connection connection = connectTo(mPort);
    return connection &&
           Message(cupsDoRequest(connection.get(), ippNewRequest(IPP_OP_CUPS_GET_DEFAULT), "/"));
}

void PrivateScheduler::publish()
{
    if (qEnvironmentVariableIsSet(serverVariable)) {
        mPreviousServer = qgetenv(serverVariable);
    }
    qputenv(serverVariable, address());
    cupsSetServer(address().constData());
    mIsPublished = true;
}

void PrivateScheduler::restore()
{
    if (!mIsPublished) {
        return;
    }
    if (mPreviousServer) {
        qputenv(serverVariable, *mPreviousServer);
    } else {
        qunsetenv(serverVariable);
    }
    cupsSetServer(nullptr);
}

void PrivateScheduler::stop()
{
    if (mProcess.state() == QProcess::NotRunning) {
        return;
    }
    mProcess.terminate();
    if (!mProcess.waitForFinished(stopTimeoutMs)) {
        mProcess.kill();
        mProcess.waitForFinished(stopTimeoutMs);
    }
}
