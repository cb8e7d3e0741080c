#include "host/PrintQueue.h"

#include <QStringList>

#include <algorithm>

namespace {
constexpr int connectTimeoutMs = 5000;

/// How the names of attributes begin that tell of the queue, not of its jobs.
constexpr const char *queueAttributes[] = {"auth-info-required", "device-uri", "marker-",
                                           "printer-"};

/// The scheduler's destinations, freed at the end.
class Destinations
{
public:
    Destinations()
        : mCount(cupsGetDests2(CUPS_HTTP_DEFAULT, &mDestinations))
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

constexpr QLatin1Char instanceSeparator('/');

QString nameOf(const cups_dest_t &destination)
{
    const QString queue = QString::fromUtf8(destination.name);
    return destination.instance
               ? queue + instanceSeparator + QString::fromUtf8(destination.instance)
               : queue;
}
} // namespace

bool PrintQueue::schedulerAnswers(QString *error)
{
    http_t *http = httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1,
                                connectTimeoutMs, nullptr);
    if (http) {
        httpClose(http);
        return true;
    }
    if (!error) {
        return false;
    }
    *error = QStringLiteral("no print scheduler answers at %1 (port %2): %3")
                 .arg(QString::fromUtf8(cupsServer()))
                 .arg(ippPort())
                 .arg(QString::fromUtf8(cupsLastErrorString()));
    return false;
}

QStringList PrintQueue::names()
{
    QStringList names;
    for (const cups_dest_t &destination : Destinations()) {
        names.append(nameOf(destination));
    }
    return names;
}

QString PrintQueue::defaultName()
{
    for (const cups_dest_t &destination : Destinations()) {
        if (destination.is_default) {
            return nameOf(destination);
        }
    }
    return {};
}

QString PrintQueue::choose(const QString &asked, QString *error)
{
    if (!schedulerAnswers(error)) {
        return {};
    }
    const QStringList known = names();
    if (known.isEmpty()) {
        *error = QStringLiteral("the print scheduler has no printer");
        return {};
    }
    if (asked.isEmpty()) {
        const QString byDefault = defaultName();
        return byDefault.isNull() ? known.first() : byDefault;
    }
    if (!known.contains(asked)) {
        *error = QStringLiteral("there is no printer %1; the printers are: %2")
                     .arg(asked, known.join(QStringLiteral(", ")));
        return {};
    }
    return asked;
}

std::optional<PrintQueue> PrintQueue::find(const QString &name, QString *error)
{
    for (const cups_dest_t &destination : Destinations()) {
        if (nameOf(destination) == name) {
            return PrintQueue(destination);
        }
    }
    if (error && schedulerAnswers(error)) {
        *error = QStringLiteral("the print scheduler has no printer %1").arg(name);
    }
    return std::nullopt;
}

QString PrintQueue::queueOf(const QString &name)
{
    return name.section(instanceSeparator, 0, 0);
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
