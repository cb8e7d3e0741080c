// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ppd/PPD.h"
#include "printcore/PMCore.h"

#include <QByteArray>
#include <QString>

/// Which medium a job is printed on, and in which colours.
struct TapeInfo
{
    /// Height of the paper in millimetres; 100 when it is not known.
    double length = 100.0;
    /// 0: a standard size of the PPD; 1: one of isLabelPaper(); 2: a custom size, or a name known
    /// from the private ticket alone.
    qint32 tapeState = 0;
    /// The PPD's name of the paper; null when it is not known.
    QString paperName;
    /// 0: monochrome; 1: black and red; 2: not specified.
    qint32 colorSetting = 0;
};

/// The pages of a job, from 1; 0 where the settings do not tell.
struct PageRangeInfo
{
    quint32 firstPage = 0;
    quint32 lastPage = 0;
};

/// The print settings' key of the maker's private ticket: data that holds a property list.
inline const QString kPrivateTicketKey =
    QStringLiteral("com.korvane.print.PrintSettingsTicket.MqE5");

/**
 * Tells the medium of the job.
 *
 * @param printSession is not read.
 * @param printSettings hold the private ticket; may be null.
 * @param ppd its sizes table tells standard sizes from others; a null PPD has no sizes.
 * @param info overwritten, with the defaults where the lookup stops early.
 * @return 0, or the status of the page format's or paper's that stopped the lookup.
 */
OSStatus GetTapeInfo(PMPrintSession printSession, PMPrintSettings printSettings,
                     PMPageFormat pageFormat, const ppd_file_t *ppd, TapeInfo *info);

/// TapeInfo::paperName alone, without a search of the PPD's sizes, of which there may be many.
QString tapePaperName(PMPrintSettings printSettings, PMPageFormat pageFormat);

/// Takes the paper name from the private ticket, null when it has none; always 0.
OSStatus GetTapeInfo2(PMPrintSession printSession, PMPrintSettings printSettings, TapeInfo *info);

/// Takes the colour setting from the private ticket, 2 when it has none; always 0.
OSStatus GetColorSetting(PMPrintSession printSession, PMPrintSettings printSettings,
                         TapeInfo *info);

/// Reads a number that the session holds under the key; kPMInvalidTicket when there is no value.
/// A value that is no number leaves the number alone.
OSStatus GetTicketFromSession(PMPrintSession printSession, const QString &key, qint32 *number);

/// Reads the page range and writes the same numbers back; the status of the last call made.
OSStatus GetTapeInfo3(PMPrintSettings printSettings, PageRangeInfo *range);

/// The nearest whole number; halves go away from zero. Beyond 64 bits, the limit that is nearer;
/// the lower one for what is no number.
qint64 RoundDouble(double value);

/// Millimetres to inches.
double MiriToInch(double millimetres);

/// Inches to millimetres, by the same factor.
double InchToMiri(double inches);

/// The PPD's name of the page format's paper in UTF-8; empty when there is none, or when it does
/// not fit the 255 bytes that paper names are compared over.
QByteArray paperNameOfPageFormat(PMPageFormat pageFormat);
