#pragma once

#include <QString>
#include <QTemporaryDir>

/// A folder of bundles in which a test may spoil the copy of the built one.
class BundleFolder
{
public:
    BundleFolder();

    /// Copies the built bundle into the folder under this name; false when that fails.
    bool add(const QString &name = QStringLiteral("Spoilt.pde")) const;

    /// Adds a bundle whose one panel is odd in the way of its kind; false when that fails.
    bool addOdd(const QString &name, const QString &kind) const;

    QString path() const { return mFolder.path(); }
    /// The path of a file of the first copy, "Contents/…" in front included.
    QString path(const QString &file) const;

    bool remove(const QString &file) const;
    bool overwrite(const QString &file, const QByteArray &bytes) const;
    /// Cuts the file after so many bytes.
    bool truncate(const QString &file, qint64 size) const;
    /// Puts a copy of another file in the file's place.
    bool replace(const QString &file, const QString &by) const;

private:
    QTemporaryDir mFolder;
};
