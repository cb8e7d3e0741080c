// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QTemporaryDir>

/**
 * A copy of the bundle that is read faster: without blanks between the tags of its form, and with
 * pictures of one pixel. Reading the real ones for each input would take more time than the panel.
 */
class LightBundle
{
public:
    LightBundle();

    /// The folder that contains the bundle.
    QString folder() const { return mFolder.path(); }

private:
    QTemporaryDir mFolder;
};
