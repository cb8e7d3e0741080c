// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

#include <memory>

/**
 * A program that holds all test classes of a folder. Its first argument names the one to run, as in
 * "tests/panel tst_layout"; the arguments behind it are those of QtTest.
 */
namespace TestProgram {
/// What a test class needs around it.
enum class Application {
    Core,    ///< A QCoreApplication: nothing is shown.
    Widgets, ///< A QApplication.
};

/// A test class that the program can run.
struct Test
{
    const char *source; ///< Its source's path; the file's name without suffix names the test.
    Application application;
    void (*prepare)(); ///< Runs before there is an application; may be null.
    std::unique_ptr<QObject> (*make)();
};

/// Adds a test to those of the program; called by the macros below, before main().
bool add(const Test &test);

/// The test of a class, which may have a static function "initMain", as with QTEST_MAIN.
template <typename TestClass>
Test testOf(const char *source, Application application)
{
    Test test{source, application, nullptr, [] {
                  return std::unique_ptr<QObject>(std::make_unique<TestClass>());
              }};
    if constexpr (requires { TestClass::initMain(); }) {
        test.prepare = &TestClass::initMain;
    }
    return test;
}
} // namespace TestProgram

/// Stands at the end of a test's source in place of QTEST_MAIN.
#define KV_TEST(TestClass) KV_TEST_IN(TestClass, Widgets)
/// Stands at the end of a test's source in place of QTEST_GUILESS_MAIN.
#define KV_CORE_TEST(TestClass) KV_TEST_IN(TestClass, Core)

#define KV_TEST_IN(TestClass, application)                                                         \
    [[maybe_unused]] static const bool isKnown##TestClass = TestProgram::add(                      \
        TestProgram::testOf<TestClass>(__FILE__, TestProgram::Application::application));
