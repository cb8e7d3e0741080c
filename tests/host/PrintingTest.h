// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PrintingSite.h"

/// A test class with a place to print at, where each test begins without saved options.
class PrintingTest : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    void initTestCase();
    void init();

protected: // NOLINT(readability-redundant-access-specifiers)
    /// "KEY=CHOICE" of every option of the maker's that the last job carries, sorted.
    QStringList choicesOfLastJob() const;

    /// Adds a printer, without a PPD when the path is null; false, and told, when that fails.
    bool addPrinter(const QString &name, const QString &ppdPath = {}) const;

    PrintingSite mSite;
};
