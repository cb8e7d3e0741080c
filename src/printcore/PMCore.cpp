// SPDX-License-Identifier: Apache-2.0
#include "printcore/PMCore.h"

#include "printcore/IntegerKind.h"
#include "printcore/PageFormat.h"
#include "printcore/Paper.h"
#include "printcore/PrintSession.h"
#include "printcore/PrintSettings.h"
#include "printcore/Printer.h"
#include "printcore/QtVersions.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace {
constexpr quint32 kLastPageNumber = std::numeric_limits<quint32>::max();

/// An end of the page range. The keys are this printing core's own: callers use the functions.
struct PageRangeEnd
{
    QLatin1String key;
    quint32 unset;
};

const PageRangeEnd kFirstPage{QLatin1String("com.korvane.print.settings.FirstPage"), 1};
const PageRangeEnd kLastPage{QLatin1String("com.korvane.print.settings.LastPage"), kLastPageNumber};

template <typename Value>
OSStatus handOut(const Value &value, Value *result)
{
    if (!result) {
        return kPMInvalidParameter;
    }
    *result = value;
    return noErr;
}

template <typename Holder>
OSStatus handOutEntry(const Holder &holder, const QString &key, QVariant *result)
{
    if (!result) {
        return kPMInvalidParameter;
    }
    const QVariant value = holder.value(key);
    if (!value.isValid()) {
        return kPMInvalidKey;
    }
    *result = value;
    return noErr;
}

std::optional<quint32> pageNumber(const QVariant &value)
{
    const IntegerKind kind = integerKind(value);
    if (kind == IntegerKind::None || (kind == IntegerKind::Signed && value.toLongLong() < 1)) {
        return std::nullopt;
    }
    const qulonglong number = value.toULongLong();
    if (number < 1 || number > kLastPageNumber) {
        return std::nullopt;
    }
    return static_cast<quint32>(number);
}

OSStatus getPage(PMPrintSettings settings, const PageRangeEnd &end, quint32 *result)
{
    if (!settings) {
        return kPMInvalidPrintSettings;
    }
    if (!result) {
        return kPMInvalidParameter;
    }
    const QVariant value = settings->value(end.key);
    const std::optional<quint32> page = value.isValid() ? pageNumber(value) : end.unset;
    if (!page) {
        return kPMInvalidValue;
    }
    *result = *page;
    return noErr;
}

OSStatus setPage(PMPrintSettings settings, const PageRangeEnd &end, quint32 page, bool lock)
{
    if (!settings) {
        return kPMInvalidPrintSettings;
    }
    if (page == 0) {
        return kPMValueOutOfRange;
    }
    settings->setValue(end.key, QVariant::fromValue<qlonglong>(page));
    return lock ? kPMLockIgnored : noErr;
}

bool isLetter(QChar character)
{
    return (character >= u'a' && character <= u'z') || (character >= u'A' && character <= u'Z');
}

bool isSchemeCharacter(QChar character)
{
    return isLetter(character) || (character >= u'0' && character <= u'9') ||
           QLatin1String("+-.").contains(character);
}
} // namespace

OSStatus PMGetPageFormatPaper(PMPageFormat pageFormat, PMPaper *paper)
{
    return pageFormat ? handOut(pageFormat->paper(), paper) : kPMInvalidPageFormat;
}

OSStatus PMPaperGetPPDPaperName(PMPaper paper, QString *name)
{
    return paper ? handOut(paper->ppdPaperName(), name) : kPMInvalidPaper;
}

OSStatus PMPaperGetHeight(PMPaper paper, double *height)
{
    if (!paper) {
        return kPMInvalidPaper;
    }
    if (!height) {
        return kPMInvalidParameter;
    }
    if (!std::isfinite(paper->height()) || paper->height() < 0) {
        return kPMInvalidPaper;
    }
    *height = paper->height();
    return noErr;
}

OSStatus PMPrintSettingsGetValue(PMPrintSettings settings, const QString &key, QVariant *value)
{
    return settings ? handOutEntry(*settings, key, value) : kPMInvalidPrintSettings;
}

OSStatus PMPrintSettingsCreateDataRepresentation(PMPrintSettings settings, QByteArray *data,
                                                 PMDataFormat)
{
    if (!settings) {
        return kPMInvalidPrintSettings;
    }
    if (!data) {
        return kPMInvalidParameter;
    }
    const QByteArray representation = settings->dataRepresentation(nullptr);
    if (representation.isEmpty()) {
        return kPMInvalidValue;
    }
    *data = representation;
    return noErr;
}

OSStatus PMPrintSettingsCreateWithDataRepresentation(const QByteArray &data,
                                                     std::unique_ptr<PrintSettings> *settings)
{
    if (!settings) {
        return kPMInvalidParameter;
    }
    const std::optional<PrintSettings> read = PrintSettings::fromData(data, nullptr);
    if (!read) {
        return kPMInvalidValue;
    }
    *settings = std::make_unique<PrintSettings>(*read);
    return noErr;
}

OSStatus PMSessionGetDataFromSession(PMPrintSession session, const QString &key, QVariant *data)
{
    return session ? handOutEntry(*session, key, data) : kPMInvalidPrintSession;
}

OSStatus PMGetFirstPage(PMPrintSettings settings, quint32 *first)
{
    return getPage(settings, kFirstPage, first);
}

OSStatus PMSetFirstPage(PMPrintSettings settings, quint32 first, bool lock)
{
    return setPage(settings, kFirstPage, first, lock);
}

OSStatus PMGetLastPage(PMPrintSettings settings, quint32 *last)
{
    return getPage(settings, kLastPage, last);
}

OSStatus PMSetLastPage(PMPrintSettings settings, quint32 last, bool lock)
{
    return setPage(settings, kLastPage, last, lock);
}

OSStatus PMPrinterCopyDeviceURI(PMPrinter printer, QString *deviceURI)
{
    return printer ? handOut(printer->deviceURI(), deviceURI) : kPMInvalidPrinter;
}

QString URLCopyScheme(const QString &uri)
{
    const QtSize colon = uri.indexOf(u':');
    if (colon < 1 || !isLetter(uri.front())) {
        return {};
    }
    const QString scheme = uri.left(colon);
    return std::all_of(scheme.begin(), scheme.end(), isSchemeCharacter) ? scheme : QString();
}
