// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

/// A printer with the standard's words for cutting and mirroring in place of the panel's.
namespace CutterPrinter {
/// The choices of CutMedia, one of which no map names.
inline constexpr const char *cuts[] = {"None",     "Auto",     "EndOfPage", "EndOfDoc",
                                       "EndOfSet", "EndOfJob", "Twice"};

/// The PPD, with that choice of CutMedia as the default. It forbids CutMedia=EndOfJob beside
/// InkType=Thick.
QByteArray ppd(const QByteArray &cut);

/// What a job's attributes say of the printer's options, and of the panel's, which it should have
/// none of. The scheduler keeps "True" and "False" as truth values.
QString printed(const QMap<QString, QString> &attributes);
} // namespace CutterPrinter
