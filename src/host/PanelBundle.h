// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "plugin/PDEPlugIn.h"

#include <QPluginLoader>
#include <QString>

#include <memory>

class Bundle;
class ProblemReporter;

/// A bundle whose library has been loaded and works on this system.
class PanelBundle
{
public:
    /// Loads the bundle of that name in a folder; null, and reported, when it cannot be loaded. Its
    /// info file and its library must be trusted CheckedFiles of the folder, and the library for
    /// this version of the protocol, PDEPlugInFactory_iid.
    static std::unique_ptr<PanelBundle> load(const QString &folder, const QString &name,
                                             ProblemReporter &reporter);

    ~PanelBundle();
    PanelBundle(const PanelBundle &) = delete;
    PanelBundle &operator=(const PanelBundle &) = delete;

    /// Shows the panels in these languages, as Bundle::setLanguages() says.
    void setLanguages(const QStringList &languages);

    /// A plug-in object for one dialog.
    std::unique_ptr<PDEPlugIn> makePlugIn() const;
    /// The folder of the keyword maps in the bundle's resources, which may be missing.
    QString mapFolder() const;
    /// The bundle's folder name, for messages.
    QString name() const;

    /// Reads the next of the declared pictures and forms, and tells when it cannot be read. Of a
    /// picture only the file for this screen is read. False when all have been read: each is read
    /// once, and takes less than a millisecond.
    bool checkNextResource(ProblemReporter &reporter);

    /// Whether a declared form is missing or cannot be read now. Tells all that is wrong with the
    /// resources, as far as it has not been told.
    bool hasFormFault(ProblemReporter &reporter) const;

private:
    PanelBundle() = default;
    /// Loads the library; answers why that cannot be done, null when it can.
    QString loadLibrary();
    void reportProblems(ProblemReporter &reporter) const;
    /// Reads a declared picture or form, and tells when it is none. Whether it can be used.
    bool checkResource(const QString &file, ProblemReporter &reporter) const;
    /// Checks the file that stands for a picture on this screen; nothing for a finer variant.
    void checkPicture(const QString &file, ProblemReporter &reporter) const;

    std::shared_ptr<Bundle> mBundle;
    QPluginLoader mLoader;
    PDEPlugInFactory *mFactory = nullptr;
    int mCheckedResources = 0;
};
