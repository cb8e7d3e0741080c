#pragma once

#include <QByteArray>
#include <QString>

/// Writes bytes to standard output at once; why that went wrong, null when it did not.
QString writeToStandardOutput(const QByteArray &bytes);
