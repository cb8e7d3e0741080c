#include "host/PPDFile.h"

#include "host/JobOptions.h"
#include "host/PrintQueue.h"

#include <QFile>
#include <QStringList>

#include <cups/cups.h>

#include <cerrno>
#include <cstring>

namespace {
QString lastErrorOf(const QString &name)
{
    int line = 0;
    const ppd_status_t status = ppdLastError(&line);
    return QStringLiteral("%1: line %2: %3")
        .arg(name)
        .arg(line)
        .arg(QString::fromLocal8Bit(ppdErrorString(status)));
}

void setError(QString *error, const QString &text)
{
    if (error) {
        *error = text;
    }
}

ppd_file_t *openPPD(const QByteArray &path, const QString &shownName, QString *error)
{
    cups_file_t *file = cupsFileOpen(path.constData(), "r");
    if (!file) {
        setError(error, QStringLiteral("%1: %2").arg(shownName,
                                                     QString::fromLocal8Bit(std::strerror(errno))));
        return nullptr;
    }
    ppd_file_t *ppd = ppdOpen2(file);
    cupsFileClose(file);
    if (!ppd) {
        setError(error, lastErrorOf(shownName));
    }
    return ppd;
}
} // namespace

std::unique_ptr<PPDFile> PPDFile::open(const QString &path, QString *error, Marks marks)
{
    ppd_file_t *ppd = openPPD(QFile::encodeName(path), path, error);
    return ppd ? std::unique_ptr<PPDFile>(new PPDFile(ppd, marks)) : nullptr;
}

std::unique_ptr<PPDFile> PPDFile::ofQueue(const QString &printer, QString *error, Marks marks)
{
    const QByteArray queue = PrintQueue::queueOf(printer).toUtf8();
    time_t modified = 0;
    char path[1024] = {};
    const http_status_t status =
        cupsGetPPD3(CUPS_HTTP_DEFAULT, queue.constData(), &modified, path, sizeof path);
    if (status == HTTP_STATUS_NOT_FOUND) {
        return nullptr;
    }
    const QString shownName = QStringLiteral("PPD of %1").arg(printer);
    if (status != HTTP_STATUS_OK) {
        setError(error,
                 QStringLiteral("%1: %2").arg(shownName, QString::fromUtf8(cupsLastErrorString())));
        return nullptr;
    }
    ppd_file_t *ppd = openPPD(path, shownName, error);
    QFile::remove(QFile::decodeName(path));
    return ppd ? std::unique_ptr<PPDFile>(new PPDFile(ppd, marks)) : nullptr;
}

PPDFile::PPDFile(ppd_file_t *ppd, Marks marks)
    : mPPD(ppd)
{
    ppdLocalize(mPPD);
    if (marks == Marks::Defaults) {
        ppdMarkDefaults(mPPD);
    }
}

PPDFile::~PPDFile()
{
    ppdClose(mPPD);
}

ppd_option_t *PPDFile::option(const QString &key) const
{
    return ppdFindOption(mPPD, key.toUtf8().constData());
}

bool PPDFile::hasOption(const QString &key) const
{
    return option(key) != nullptr;
}

bool PPDFile::hasChoice(const QString &key, const QString &choice) const
{
    ppd_option_t *const found = option(key);
    return found && ppdFindChoice(found, choice.toUtf8().constData());
}

QString PPDFile::optionText(const QString &key) const
{
    const ppd_option_t *found = option(key);
    return found ? QString::fromUtf8(found->text) : QString();
}

QStringList PPDFile::choices(const QString &key) const
{
    QStringList keywords;
    const ppd_option_t *found = option(key);
    for (int i = 0; found && i < found->num_choices; ++i) {
        keywords.append(QString::fromUtf8(found->choices[i].choice));
    }
    return keywords;
}

QString PPDFile::markedChoice(const QString &key) const
{
    const ppd_choice_t *choice = ppdFindMarkedChoice(mPPD, key.toUtf8().constData());
    return choice ? QString::fromUtf8(choice->choice) : QString();
}

bool PPDFile::mark(const QString &key, const QString &choice)
{
    const QByteArray keyword = key.toUtf8();
    const QByteArray wanted = choice.toUtf8();
    // Marks nothing when the PPD lacks the choice, so nobody needs to search for it before.
    ppdMarkOption(mPPD, keyword.constData(), wanted.constData());
    const ppd_choice_t *marked = ppdFindMarkedChoice(mPPD, keyword.constData());
    return marked && (qstricmp(marked->choice, wanted.constData()) == 0 || hasChoice(key, choice));
}

void PPDFile::mark(const JobOptions &options)
{
    const CupsOptions given(options);
    cupsMarkOptions(mPPD, given.count(), given.data());
}
