// SPDX-License-Identifier: Apache-2.0
#include "PrintingTest.h"

#include <QTest>

void PrintingTest::initTestCase()
{
    QCOMPARE(mSite.open(), QString());
}

void PrintingTest::init()
{
    QVERIFY(mSite.saveUserOptions(""));
}

QStringList PrintingTest::choicesOfLastJob() const
{
    const QList<int> jobs = mSite.scheduler().jobIds();
    return jobs.isEmpty() ? QStringList() : mSite.choices(jobs.last());
}

bool PrintingTest::addPrinter(const QString &name, const QString &ppdPath) const
{
    QString error;
    const bool isAdded = mSite.scheduler().addPrinter(name, ppdPath, &error);
    if (!isAdded) {
        qWarning("%s", qPrintable(error));
    }
    return isAdded;
}

#include "moc_PrintingTest.cpp"
