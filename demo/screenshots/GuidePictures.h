// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDir>
#include <QString>

/// The pictures of the guide: the dialog in English, in the state that each is about.
class GuidePictures
{
public:
    /// @param folder gets the pictures.
    explicit GuidePictures(const QString &folder);

    /// Makes all of them; how many, or −1 when one could not be made.
    int make() const;

private:
    QDir mFolder;
};
