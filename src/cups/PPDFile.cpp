// SPDX-License-Identifier: Apache-2.0
#include "cups/PPDFile.h"

#include "cups/JobOptions.h"

#include <QFile>
#include <QStringList>

#include <cups/cups.h>

#include <cerrno>
#include <cstring>

#include <sys/mman.h>
#include <unistd.h>

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

QString systemError(const QString &name)
{
    return QStringLiteral("%1: %2").arg(name, QString::fromLocal8Bit(std::strerror(errno)));
}

/// Reads a PPD and closes the file.
ppd_file_t *openPPD(cups_file_t *file, const QString &shownName, QString *error)
{
    ppd_file_t *ppd = ppdOpen2(file);
    cupsFileClose(file);
    if (!ppd) {
        setError(error, lastErrorOf(shownName));
    }
    return ppd;
}

/// A file with that text which needs no room on a disk; null, with errno set, when there is no
/// memory.
cups_file_t *fileInMemory(const QByteArray &text)
{
    const int descriptor = memfd_create("PPD", MFD_CLOEXEC);
    if (descriptor < 0) {
        return nullptr;
    }
    cups_file_t *file = nullptr;
    if (write(descriptor, text.constData(), std::size_t(text.size())) == text.size() &&
        lseek(descriptor, 0, SEEK_SET) == 0) {
        file = cupsFileOpenFd(descriptor, "r");
    }
    if (!file) {
        close(descriptor);
    }
    return file;
}
} // namespace

std::unique_ptr<PPDFile> PPDFile::open(const QString &path, QString *error, Marks marks)
{
    cups_file_t *file = cupsFileOpen(QFile::encodeName(path).constData(), "r");
    ppd_file_t *ppd = file ? openPPD(file, path, error) : nullptr;
    if (!file) {
        setError(error, systemError(path));
    }
    return ppd ? std::unique_ptr<PPDFile>(new PPDFile(ppd, marks)) : nullptr;
}

std::unique_ptr<PPDFile> PPDFile::read(const QByteArray &text, const QString &name, QString *error,
                                       Marks marks)
{
    cups_file_t *file = fileInMemory(text);
    ppd_file_t *ppd = file ? openPPD(file, name, error) : nullptr;
    if (!file) {
        setError(error, systemError(name));
    }
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
