// SPDX-License-Identifier: Apache-2.0
#include "ApplicationTest.h"

#include <QTest>

ApplicationTest::ApplicationTest(std::vector<Application> applications)
    : mApplications(std::move(applications))
{
}

void ApplicationTest::initTestCase()
{
    QCOMPARE(Application::whatIsMissing(mApplications), QString());
    QCOMPARE(mDisplay.open(), QString());
}

void ApplicationTest::everyApplication() const
{
    const TestTable<int> table("row");
    for (size_t i = 0; i < mApplications.size(); ++i) {
        table.add(mApplications[i].name, int(i));
    }
}

const Application &ApplicationTest::application() const
{
    const auto *row = static_cast<const int *>(QTest::qData("row", qMetaTypeId<int>()));
    return mApplications[size_t(*row)];
}

#include "moc_ApplicationTest.cpp"
