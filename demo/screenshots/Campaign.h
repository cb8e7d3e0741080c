// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "demo/screenshots/PhotoProcess.h"

#include <QDir>
#include <QList>
#include <QStringList>
#include <QTemporaryDir>

/// Makes all pictures, those of a style with the first version of Qt that has it.
class Campaign
{
public:
    /// @param sheetFolder gets the sheets, @param guideFolder the pictures of the guide.
    Campaign(const QString &sheetFolder, const QString &guideFolder);

    /// Starts a scheduler and makes everything; the number of sheets, or −1 when one is missing.
    int run();

    /// The styles that there are no sheets of, since no version of Qt has them.
    QStringList missingStyles() const { return mMissingStyles; }

    /// The languages that the bundle has string tables of.
    static QStringList languages();

private:
    QList<PhotoProcess::Task> tasks() const;
    /// Those for GTK's dialogs, which only whole scales make larger.
    QList<PhotoProcess::Task> gtkTasks() const;
    bool runAll(const QList<PhotoProcess::Task> &tasks) const;

    QTemporaryDir mFolder;
    QDir mSheets;
    QDir mGuide;
    /// For each version of Qt the styles whose sheets are made with it.
    QList<QStringList> mStyles;
    QStringList mMissingStyles;
};
