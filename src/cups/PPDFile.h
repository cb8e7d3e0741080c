// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ppd/PPD.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <cups/file.h>

#include <memory>

class JobOptions;

/// The longest PPD that is read, in bytes. One with pictures of its choices in 50 languages is
/// still shorter.
inline constexpr int mostBytesOfPPD = 16 << 20;

/// A choice of an option by their keywords.
struct PPDChoice
{
    QString key;
    QString choice;

    bool operator==(const PPDChoice &other) const = default;
};

/// An open PPD with its texts in the user's language.
class PPDFile
{
public:
    /// Which choices are marked from the start.
    enum class Marks {
        Defaults,
        None,
    };

    /**
     * Opens a PPD.
     *
     * @param error set to the file's name, the line and the reason when the result is null.
     */
    static std::unique_ptr<PPDFile> open(const QString &path, QString *error,
                                         Marks marks = Marks::Defaults);

    /**
     * Reads a PPD from its text.
     *
     * @param name what stands for the file's name in the error.
     */
    static std::unique_ptr<PPDFile> read(const QByteArray &text, const QString &name,
                                         QString *error, Marks marks = Marks::Defaults);

    /// The same PPD with more lines behind its own, with nothing else marked than from the start;
    /// null, with the reason in @p error, when libcups refuses them.
    std::unique_ptr<PPDFile> with(const QByteArray &lines, QString *error) const;

    ~PPDFile();
    PPDFile(const PPDFile &) = delete;
    PPDFile &operator=(const PPDFile &) = delete;

    /// The record, owned by this object.
    ppd_file_t *get() const { return mPPD; }

    /// Whether the PPD has an option with that keyword.
    bool hasOption(const QString &key) const;
    /// Whether the PPD has an option with that keyword and the option that choice.
    bool hasChoice(const QString &key, const QString &choice) const;
    /// The option's translated text, for people; null when there is no such option.
    QString optionText(const QString &key) const;
    /// The choice's translated text, for people; null when there is no such choice.
    QString choiceText(const PPDChoice &choice) const;
    /// The keywords of the option's choices in the PPD's order, for a message.
    QStringList choices(const QString &key) const;
    /// The option's default choice; null when there is no such option.
    QString defaultChoice(const QString &key) const;
    /// The value of an attribute such as "Manufacturer"; null when the PPD has none of that name.
    QString attribute(const QString &name) const;
    /// The choice that is marked; null when there is none.
    QString markedChoice(const QString &key) const;
    /// Whether the PPD forbids any choices together.
    bool hasConstraints() const;
    /// The marked choices that the PPD forbids beside the marked one of that option.
    QList<PPDChoice> conflictsWith(const QString &key) const;
    /// Marks the choice; false, with nothing marked, when the PPD lacks it.
    bool mark(const QString &key, const QString &choice);
    /// Marks what the options of a job stand for in the PPD; options that it lacks are left out.
    void mark(const JobOptions &options);

private:
    /// Reads the PPD of that text from a file, and closes the file.
    static std::unique_ptr<PPDFile> opened(cups_file_t *file, const QByteArray &text,
                                           const QString &name, QString *error, Marks marks);
    PPDFile(ppd_file_t *ppd, const QByteArray &text, const QString &name, Marks marks);

    ppd_option_t *option(const QString &key) const;

    ppd_file_t *mPPD;
    QByteArray mText;
    QString mName;
    Marks mMarks;
};
