#pragma once

#include <QDir>
#include <QList>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>
#include <vector>

/**
 * Makes all pictures, each scale and language in a process of its own: Qt takes both over when a
 * program starts.
 */
class Campaign
{
public:
    /// @param sheetFolder gets the sheets, @param guideFolder the pictures of the guide.
    Campaign(const QString &sheetFolder, const QString &guideFolder);

    /// Starts a scheduler and makes everything; the number of sheets, or −1 when one is missing.
    int run();

    /// Makes the sheets of the running process's language and scale; how many, or −1.
    static int makeSheets(const QString &folder, const QString &language, const QString &scale);

    /// The languages that the bundle has string tables of.
    static QStringList languages();

private:
    struct Task
    {
        QString language;
        QString scale;
        QStringList arguments;
    };

    QList<Task> tasks() const;
    /// The file that describes the screen that pictures of a scale are taken on.
    QString screenFile(const QString &scale) const;
    std::unique_ptr<QProcess> start(const Task &task) const;
    bool runAll(const QList<Task> &tasks) const;

    QTemporaryDir mFolder;
    QDir mSheets;
    QDir mGuide;
};
