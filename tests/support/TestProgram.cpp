// SPDX-License-Identifier: Apache-2.0
#include "TestProgram.h"

#include <QApplication>
#include <QFileInfo>
#include <QTest>

#include <cstdio>
#include <vector>

namespace {
std::vector<TestProgram::Test> &tests()
{
    static std::vector<TestProgram::Test> all;
    return all;
}

QString nameOf(const TestProgram::Test &test)
{
    return QFileInfo(QString::fromUtf8(test.source)).completeBaseName();
}

const TestProgram::Test *find(const char *name)
{
    for (const TestProgram::Test &test : tests()) {
        if (nameOf(test) == QString::fromLocal8Bit(name)) {
            return &test;
        }
    }
    return nullptr;
}

std::unique_ptr<QCoreApplication> makeApplication(TestProgram::Application kind, int &argc,
                                                  char **argv)
{
    if (kind == TestProgram::Application::Core) {
        return std::make_unique<QCoreApplication>(argc, argv);
    }
    auto application = std::make_unique<QApplication>(argc, argv);
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    return application;
}

int printUsage(const char *program)
{
    std::fprintf(stderr, "Usage: %s TEST [ARGUMENT OF QTTEST]...\nThe tests:\n", program);
    for (const TestProgram::Test &test : tests()) {
        std::fprintf(stderr, "  %s\n", qPrintable(nameOf(test)));
    }
    return 2;
}
} // namespace

bool TestProgram::add(const Test &test)
{
    tests().push_back(test);
    return true;
}

int main(int argc, char *argv[])
{
    const TestProgram::Test *const test = argc > 1 ? find(argv[1]) : nullptr;
    if (!test) {
        return printUsage(argv[0]);
    }
    // QtTest sees the program's name and its own arguments.
    argv[1] = argv[0];
    argc -= 1;
    argv += 1;
    if (test->prepare) {
        test->prepare();
    }
    const std::unique_ptr<QCoreApplication> application =
        makeApplication(test->application, argc, argv);
    const std::unique_ptr<QObject> object = test->make();
    return QTest::qExec(object.get(), argc, argv);
}
