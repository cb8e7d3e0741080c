// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "demo/PrivateScheduler.h"

#include <QMap>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

/// A place to print at: a scheduler with the sample printers, a home folder and documents.
class PrintingSite
{
public:
    /// Gives the process its home folder: before its first call of libcups.
    PrintingSite();

    /// Starts the scheduler with the six sample printers; the reason when that fails. Jobs are
    /// kept, and not printed before isPrinted() asks for it.
    QString open();

    /// The queues, each named after its printer: "tape", "follow", "mark", "all", "label", "plain".
    static QStringList printers();
    /// The PPD of a sample printer.
    static QString ppdPath(const QString &printer);

    PrivateScheduler &scheduler() const { return *mScheduler; }

    /// Writes a document of one line of text; its path.
    QString document(const QString &name = u"label.txt"_s) const;
    /// Writes a file with these bytes; its path.
    QString file(const QString &name, const QByteArray &bytes) const;
    /// The path of a file in the folder of documents.
    QString path(const QString &name) const { return mFolder.filePath(name); }

    /// Saves what the user has chosen before, in the format of the file lpoptions; empty for
    /// nothing.
    bool saveUserOptions(const QByteArray &lines) const;

    /// Whether a job is completed, after some time to print it. All queues print from here on.
    bool isPrinted(int job) const;
    /// The attributes of a job.
    QMap<QString, QString> job(int id) const;
    /// "KEY=CHOICE" of every option of the maker's that a job carries, sorted.
    QStringList choices(int id) const;

private:
    QTemporaryDir mFolder;
    QTemporaryDir mHome;
    std::unique_ptr<PrivateScheduler> mScheduler;
};
