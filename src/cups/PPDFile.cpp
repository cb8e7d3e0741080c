// SPDX-License-Identifier: Apache-2.0
#include "cups/PPDFile.h"

#include "cups/JobOptions.h"
#include "printcore/QtVersions.h"

#include <QFile>
#include <QStringList>

#include <cups/cups.h>

#include <array>
#include <cerrno>
#include <cstring>

#include <sys/mman.h>
#include <sys/stat.h>
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

/// What can be read of a file, decompressed: all of a PPD.
QByteArray textOf(cups_file_t *file)
{
    QByteArray text;
    std::array<char, 65536> part;
    for (ssize_t size = cupsFileRead(file, part.data(), part.size());
         size > 0 && text.size() <= mostBytesOfPPD;
         size = cupsFileRead(file, part.data(), part.size())) {
        text.append(part.data(), QtSize(size));
    }
    return text;
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
    if (!file) {
        setError(error, systemError(path));
        return nullptr;
    }
    const QByteArray text = textOf(file);
    struct stat status = {};
    const bool isReadOnce = fstat(cupsFileNumber(file), &status) != 0 || !S_ISREG(status.st_mode);
    if (!isReadOnce && text.size() <= mostBytesOfPPD) {
        cupsFileRewind(file);
        return opened(file, text, path, error, marks);
    }
    cupsFileClose(file);
    return read(text, path, error, marks);
}

std::unique_ptr<PPDFile> PPDFile::read(const QByteArray &text, const QString &name, QString *error,
                                       Marks marks)
{
    if (text.size() > mostBytesOfPPD) {
        setError(error,
                 QStringLiteral("%1: is longer than %2 bytes").arg(name).arg(mostBytesOfPPD));
        return nullptr;
    }
    cups_file_t *file = fileInMemory(text);
    if (!file) {
        setError(error, systemError(name));
        return nullptr;
    }
    return opened(file, text, name, error, marks);
}

std::unique_ptr<PPDFile> PPDFile::opened(cups_file_t *file, const QByteArray &text,
                                         const QString &name, QString *error, Marks marks)
{
    ppd_file_t *ppd = ppdOpen2(file);
    cupsFileClose(file);
    if (!ppd) {
        setError(error, lastErrorOf(name));
        return nullptr;
    }
    return std::unique_ptr<PPDFile>(new PPDFile(ppd, text, name, marks));
}

std::unique_ptr<PPDFile> PPDFile::with(const QByteArray &lines, QString *error) const
{
    return read(mText + lines, mName, error, mMarks);
}

PPDFile::PPDFile(ppd_file_t *ppd, const QByteArray &text, const QString &name, Marks marks)
    : mPPD(ppd)
    , mText(text)
    , mName(name)
    , mMarks(marks)
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

QString PPDFile::choiceText(const PPDChoice &choice) const
{
    ppd_option_t *const found = option(choice.key);
    const ppd_choice_t *text =
        found ? ppdFindChoice(found, choice.choice.toUtf8().constData()) : nullptr;
    return text ? QString::fromUtf8(text->text) : QString();
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

QString PPDFile::defaultChoice(const QString &key) const
{
    const ppd_option_t *found = option(key);
    return found ? QString::fromUtf8(found->defchoice) : QString();
}

QString PPDFile::attribute(const QString &name) const
{
    const ppd_attr_t *found = ppdFindAttr(mPPD, name.toUtf8().constData(), nullptr);
    return found ? QString::fromUtf8(found->value) : QString();
}

QString PPDFile::markedChoice(const QString &key) const
{
    const ppd_choice_t *choice = ppdFindMarkedChoice(mPPD, key.toUtf8().constData());
    return choice ? QString::fromUtf8(choice->choice) : QString();
}

bool PPDFile::hasConstraints() const
{
    return mPPD->num_consts > 0 || ppdFindAttr(mPPD, "cupsUIConstraints", nullptr);
}

QList<PPDChoice> PPDFile::conflictsWith(const QString &key) const
{
    const QByteArray choice = markedChoice(key).toUtf8();
    cups_option_t *options = nullptr;
    const int count =
        cupsGetConflicts(mPPD, key.toUtf8().constData(), choice.constData(), &options);
    QList<PPDChoice> conflicts;
    for (int i = 0; i < count; ++i) {
        conflicts.append({QString::fromUtf8(options[i].name), QString::fromUtf8(options[i].value)});
    }
    cupsFreeOptions(count, options);
    return conflicts;
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
