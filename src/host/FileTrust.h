#pragma once

#include <QString>
#include <QStringList>

/**
 * @file
 * Whose files may be loaded into an application: root's and those of the user who runs it, where
 * nobody else can write.
 */

/// Why a file or folder, links followed, is not to be trusted: its path, and its owner or mode.
/// Null when it is, or when there is no such file.
QString distrust(const QString &path);

/**
 * Why a file in a folder is not to be trusted: looks at the folder, at the file and at every folder
 * between them. Null when it is, or when there is no such file.
 *
 * A file that a link puts elsewhere is not to be trusted.
 */
QString distrust(const QString &folder, const QString &file);
