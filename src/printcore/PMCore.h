// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "printcore/Export.h"
#include "printcore/OSStatus.h"

#include <QByteArray>
#include <QString>
#include <QVariant>

#include <memory>

class PageFormat;
class Paper;
class Printer;
class PrintSession;
class PrintSettings;

/**
 * @file
 * The printing layer's functions under their established names.
 *
 * A handle is a borrowed pointer that may be null: a function that is given a null handle answers
 * the status that names it and leaves its results alone. A null result pointer answers
 * kPMInvalidParameter. A "Get" function hands out what its object goes on owning, a "Copy" or
 * "Create" function what the caller owns from then on.
 */

using PMPrintSession = PrintSession *;
using PMPrintSettings = PrintSettings *;
using PMPageFormat = PageFormat *;
using PMPrinter = Printer *;
using PMPaper = const Paper *;

/// How PMPrintSettingsCreateDataRepresentation() writes settings.
enum PMDataFormat {
    kPMDataFormatXMLDefault,
};

/// The page format's paper, owned by the page format; null (with status 0) when it has none.
KVPRINTCORE_EXPORT OSStatus PMGetPageFormatPaper(PMPageFormat pageFormat, PMPaper *paper);

/// The PPD's name of the paper; null (with status 0) when it has none.
KVPRINTCORE_EXPORT OSStatus PMPaperGetPPDPaperName(PMPaper paper, QString *name);

/// The paper's height in points, 0 when it is not known; kPMInvalidPaper when it is no height.
KVPRINTCORE_EXPORT OSStatus PMPaperGetHeight(PMPaper paper, double *height);

/// The value of the settings under the key; kPMInvalidKey when there is none.
KVPRINTCORE_EXPORT OSStatus PMPrintSettingsGetValue(PMPrintSettings settings, const QString &key,
                                                    QVariant *value);

/// The settings as a property list.
KVPRINTCORE_EXPORT OSStatus PMPrintSettingsCreateDataRepresentation(PMPrintSettings settings,
                                                                    QByteArray *data,
                                                                    PMDataFormat format);

/// Settings made from a property list in XML; kPMInvalidValue when it is none.
KVPRINTCORE_EXPORT OSStatus PMPrintSettingsCreateWithDataRepresentation(
    const QByteArray &data, std::unique_ptr<PrintSettings> *settings);

/// The session's value under the key; kPMInvalidKey when there is none.
KVPRINTCORE_EXPORT OSStatus PMSessionGetDataFromSession(PMPrintSession session, const QString &key,
                                                        QVariant *data);

/// The first page of the range, 1 when none is set; kPMInvalidValue when the entry is no page
/// number.
KVPRINTCORE_EXPORT OSStatus PMGetFirstPage(PMPrintSettings settings, quint32 *first);
/// Sets the first page; kPMLockIgnored (and the page is set) when @p lock asks to lock it.
KVPRINTCORE_EXPORT OSStatus PMSetFirstPage(PMPrintSettings settings, quint32 first, bool lock);
/// The last page of the range, the largest page number (all pages) when none is set;
/// kPMInvalidValue when the entry is no page number.
KVPRINTCORE_EXPORT OSStatus PMGetLastPage(PMPrintSettings settings, quint32 *last);
/// Sets the last page; kPMLockIgnored (and the page is set) when @p lock asks to lock it.
KVPRINTCORE_EXPORT OSStatus PMSetLastPage(PMPrintSettings settings, quint32 last, bool lock);

/// The printer's device URI as the scheduler tells it; null (with status 0) when it is not known.
KVPRINTCORE_EXPORT OSStatus PMPrinterCopyDeviceURI(PMPrinter printer, QString *deviceURI);

/// What stands before the first colon of a URI, in its own case; null when that is no scheme.
KVPRINTCORE_EXPORT QString URLCopyScheme(const QString &uri);
