// SPDX-License-Identifier: Apache-2.0
#include "cups/PrintQueue.h"

#include "cups/IppAnswer.h"
#include "cups/SchedulerConnection.h"

#include <QStringList>
#include <QUrl>

#include <algorithm>
#include <memory>

namespace {
/// How the names of attributes begin that tell of the queue, not of its jobs.
constexpr const char *queueAttributes[] = {"auth-info-required", "device-uri", "marker-",
                                           "printer-"};

/// The scheduler's destinations, freed at the end.
class Destinations
{
public:
    explicit Destinations(http_t *http)
        : mCount(cupsGetDests2(http, &mDestinations))
    {
    }
    ~Destinations() { cupsFreeDests(mCount, mDestinations); }
    Destinations(const Destinations &) = delete;
    Destinations &operator=(const Destinations &) = delete;

    const cups_dest_t *begin() const { return mDestinations; }
    const cups_dest_t *end() const { return mDestinations + mCount; }

private:
    cups_dest_t *mDestinations = nullptr;
    int mCount;
};

struct DestinationDeleter
{
    void operator()(cups_dest_t *destination) const { cupsFreeDests(1, destination); }
};
using Destination = std::unique_ptr<cups_dest_t, DestinationDeleter>;

constexpr QLatin1Char instanceSeparator('/');

Destination namedDestination(http_t *http, const QString &name)
{
    const NoOtherConnections atAll;
    const QByteArray queue = PrintQueue::queueOf(name).toUtf8();
    const QByteArray instance = name.section(instanceSeparator, 1).toUtf8();
    return Destination(cupsGetNamedDest(http, queue.constData(),
                                        instance.isEmpty() ? nullptr : instance.constData()));
}

QString noPrinter(const QString &name)
{
    return QStringLiteral("the print scheduler has no printer %1").arg(name);
}

/// Whether the scheduler has answered the last request, if only that there is no such thing.
bool isAnswered()
{
    return cupsLastError() <= IPP_STATUS_OK_CONFLICTING ||
           cupsLastError() == IPP_STATUS_ERROR_NOT_FOUND;
}

/// Asks for an attribute of a queue; null when there is no such queue, or no answer.
IppAnswer attributeOf(http_t *http, const QString &queue, const char *attribute)
{
    ipp_t *request = ippNewRequest(IPP_OP_GET_PRINTER_ATTRIBUTES);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr,
                 PrintQueue::uriOf(queue).constData());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr,
                 attribute);
    IppAnswer answer(cupsDoRequest(http, request, "/"));
    return cupsLastError() <= IPP_STATUS_OK_CONFLICTING ? std::move(answer) : nullptr;
}

/// Asks whether there is a queue, and for the names of the members when it is a class; null when
/// there is none, or no answer.
IppAnswer probe(http_t *http, const QString &queue)
{
    return attributeOf(http, queue, "member-names");
}

QString nameOf(const cups_dest_t &destination)
{
    const QString queue = QString::fromUtf8(destination.name);
    return destination.instance
               ? queue + instanceSeparator + QString::fromUtf8(destination.instance)
               : queue;
}
} // namespace

bool PrintQueue::isInNetwork(SchedulerConnection &scheduler, const QString &name)
{
    QString error;
    const auto found = find(scheduler, name, &error);
    return found && found->isMissing();
}

PrintQueue::Names PrintQueue::names(SchedulerConnection &scheduler, QString *error)
{
    http_t *http = scheduler.open(error);
    Names names;
    if (!http) {
        return names;
    }
    for (const cups_dest_t &destination : Destinations(http)) {
        names.all.append(nameOf(destination));
        if (destination.is_default) {
            names.byDefault = names.all.last();
        }
    }
    if (names.all.isEmpty()) {
        *error = isAnswered() && !scheduler.isSilent()
                     ? QStringLiteral("the print scheduler has no printer")
                     : scheduler.fault();
    }
    return names;
}

QString PrintQueue::Names::choose(SchedulerConnection &scheduler, const QString &asked,
                                  QString *error) const
{
    if (all.isEmpty()) {
        return {};
    }
    if (asked.isEmpty()) {
        return byDefault.isNull() ? all.first() : byDefault;
    }
    if (!all.contains(asked) && !isInNetwork(scheduler, asked)) {
        *error = QStringLiteral("there is no printer %1; the printers are: %2")
                     .arg(asked, all.join(QStringLiteral(", ")));
        return {};
    }
    return asked;
}

QString PrintQueue::choose(SchedulerConnection &scheduler, const QString &asked, QString *error)
{
    return names(scheduler, error).choose(scheduler, asked, error);
}

std::optional<PrintQueue> PrintQueue::find(SchedulerConnection &scheduler, const QString &name,
                                           QString *error)
{
    http_t *http = scheduler.open(error);
    if (!http) {
        return std::nullopt;
    }
    const IppAnswer answer = probe(http, queueOf(name));
    if (!isAnswered()) {
        *error = scheduler.fault();
        return std::nullopt;
    }
    const Destination destination = namedDestination(http, name);
    if (destination && nameOf(*destination) == name) {
        PrintQueue found(*destination);
        ipp_attribute_t *members =
            answer ? ippFindAttribute(answer.get(), "member-names", IPP_TAG_NAME) : nullptr;
        found.mIsMissing = !answer;
        found.mPPDQueue =
            members ? QString::fromUtf8(ippGetString(members, 0, nullptr)) : queueOf(name);
        return found;
    }
    // Of a connection that breaks off, libcups says that it has no such printer, too.
    const bool isBroken = scheduler.isSilent() || (answer && !destination);
    *error = isBroken ? scheduler.fault() : noPrinter(name);
    return std::nullopt;
}

bool PrintQueue::exists(SchedulerConnection &scheduler, const QString &name, QString *error)
{
    http_t *http = scheduler.open(error);
    if (!http) {
        return false;
    }
    if (probe(http, queueOf(name))) {
        return true;
    }
    *error = isAnswered() ? noPrinter(name) : scheduler.fault();
    return false;
}

bool PrintQueue::isStopped(SchedulerConnection &scheduler, const QString &queue)
{
    http_t *http = scheduler.open(nullptr);
    const IppAnswer answer = http ? attributeOf(http, queue, "printer-state") : nullptr;
    ipp_attribute_t *state = ippFindAttribute(answer.get(), "printer-state", IPP_TAG_ENUM);
    return state && ippGetInteger(state, 0) == IPP_PSTATE_STOPPED;
}

bool PrintQueue::makeTemporary(SchedulerConnection &scheduler, const QString &queue, QString *error)
{
    http_t *http = scheduler.open(error);
    const Destination destination = http ? namedDestination(http, queue) : nullptr;
    if (!destination) {
        *error = scheduler.fault();
        return false;
    }
    if (cups_dinfo_t *information = cupsCopyDestInfo(http, destination.get())) {
        cupsFreeDestInfo(information);
        return true;
    }
    *error = scheduler.isSilent()
                 ? scheduler.fault()
                 : QStringLiteral("the print scheduler makes no queue for this printer");
    return false;
}

QString PrintQueue::queueOf(const QString &name)
{
    return name.section(instanceSeparator, 0, 0);
}

QByteArray PrintQueue::uriOf(const QString &queue)
{
    return "ipp://localhost/printers/" + QUrl::toPercentEncoding(queue);
}

PrintQueue::PrintQueue(const cups_dest_t &destination)
    : mName(nameOf(destination))
{
    for (int i = 0; i < destination.num_options; ++i) {
        mOptions.set(QString::fromUtf8(destination.options[i].name),
                     QString::fromUtf8(destination.options[i].value));
    }
    mDeviceURI = mOptions.value(QStringLiteral("device-uri"));
}

JobOptions PrintQueue::jobOptions() const
{
    JobOptions options = mOptions;
    for (const auto &[key, value] : mOptions.pairs()) {
        const auto isBeginning = [&name = key](const char *beginning) {
            return name.startsWith(QLatin1String(beginning));
        };
        if (std::ranges::any_of(queueAttributes, isBeginning)) {
            options.remove(key);
        }
    }
    return options;
}
