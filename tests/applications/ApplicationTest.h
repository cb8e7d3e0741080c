// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application.h"
#include "DisplayServer.h"

#include <QObject>

#include <vector>

/// A test class whose functions run for each of some applications, on a display of their own.
class ApplicationTest : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    void initTestCase();

protected: // NOLINT(readability-redundant-access-specifiers)
    explicit ApplicationTest(std::vector<Application> applications = Application::all());

    /// Adds a row for each application.
    void everyApplication() const;
    /// The application of the row.
    const Application &application() const;

    DisplayServer mDisplay;
    std::vector<Application> mApplications;
};
