// SPDX-License-Identifier: Apache-2.0
#include "ppd/TapeInfo.h"

#include "ppd/PDEUtilsMethod.h"
#include "ppd/PaperClass.h"
#include "printcore/PropertyList.h"
#include "printcore/QtVersions.h"

#include <QVariantMap>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <span>

namespace {
const QString kTicketPaperName = QStringLiteral("MqPaperName2");
constexpr double pointsPerInch = 72.0;
constexpr double inchesPerMillimetre = 0.0393701;
/// The longest name that a buffer of 256 bytes holds with its final zero.
constexpr QtSize longestName = 255;

QByteArray nameAsCString(const QString &name)
{
    const QByteArray bytes = name.toUtf8();
    return bytes.size() <= longestName ? bytes : QByteArray();
}

QVariantMap privateTicket(PMPrintSettings printSettings)
{
    QVariant data;
    if (PMPrintSettingsGetValue(printSettings, kPrivateTicketKey, &data) != noErr ||
        data.userType() != QMetaType::QByteArray) {
        return {};
    }
    const QVariant ticket = PropertyList::read(data.toByteArray());
    return ticket.userType() == QMetaType::QVariantMap ? ticket.toMap() : QVariantMap();
}

/// The ticket's string under the key; null when there is none.
QString ticketString(PMPrintSettings printSettings, const QString &key)
{
    const QVariant value = privateTicket(printSettings).value(key);
    return value.userType() == QMetaType::QString ? value.toString() : QString();
}

/// The paper's name as the PPD has it; null when it has none.
QString ppdNameOf(PMPaper paper)
{
    QString name;
    return PMPaperGetPPDPaperName(paper, &name) == noErr ? name : QString();
}

/// The paper's name as the PPD has it, or else the private ticket; null when neither has one.
QString nameOf(PMPaper paper, PMPrintSettings printSettings)
{
    const QString name = ppdNameOf(paper);
    return name.isNull() ? ticketString(printSettings, kTicketPaperName) : name;
}

/// A number's part before the decimal point; nothing for what is no number.
std::optional<qint64> wholeNumber(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::Double:
    case QMetaType::Float:
        return RoundDouble(std::trunc(value.toDouble()));
    case QMetaType::Bool:
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::UChar:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return value.toLongLong();
    default:
        return std::nullopt;
    }
}

bool isListedSize(const ppd_file_t *ppd, const QByteArray &name)
{
    if (!ppd) {
        return false;
    }
    const std::span sizes(ppd->sizes, std::size_t(ppd->num_sizes));
    return std::any_of(sizes.begin(), sizes.end(),
                       [&name](const ppd_size_t &size) { return name == size.name; });
}

qint32 tapeStateOfListedSize(PaperClass paper)
{
    if (isLabelPaper(paper)) {
        return 1;
    }
    return paper == PaperClass::Custom ? 2 : 0;
}
} // namespace

OSStatus GetTapeInfo(PMPrintSession printSession, PMPrintSettings printSettings,
                     PMPageFormat pageFormat, const ppd_file_t *ppd, TapeInfo *info)
{
    *info = {};
    PMPaper paper = nullptr;
    if (const OSStatus status = PMGetPageFormatPaper(pageFormat, &paper); status != noErr) {
        return status;
    }
    if (!paper) {
        return noErr;
    }

    info->paperName = nameOf(paper, printSettings);

    double height = 0.0;
    if (const OSStatus status = PMPaperGetHeight(paper, &height); status != noErr) {
        return status;
    }
    if (height == 0.0) {
        return noErr;
    }
    info->length = height / pointsPerInch / inchesPerMillimetre;

    const QByteArray cName = nameAsCString(ppdNameOf(paper));
    if (cName.isEmpty()) {
        info->tapeState = 2;
    } else if (isListedSize(ppd, cName)) {
        info->tapeState = tapeStateOfListedSize(paperClassOf(cName));
    }
    GetColorSetting(printSession, printSettings, info);
    return noErr;
}

QString tapePaperName(PMPrintSettings printSettings, PMPageFormat pageFormat)
{
    PMPaper paper = nullptr;
    const bool hasPaper = PMGetPageFormatPaper(pageFormat, &paper) == noErr && paper;
    return hasPaper ? nameOf(paper, printSettings) : QString();
}

OSStatus GetTapeInfo2(PMPrintSession, PMPrintSettings printSettings, TapeInfo *info)
{
    info->paperName = ticketString(printSettings, kTicketPaperName);
    return noErr;
}

OSStatus GetColorSetting(PMPrintSession, PMPrintSettings printSettings, TapeInfo *info)
{
    info->colorSetting = 2;
    const QString mode = ticketString(printSettings, QStringLiteral("MqRVMultiColor"));
    if (PDEUtilsMethod13::scanString(mode, QStringLiteral("MultiColorMonochrome"))) {
        info->colorSetting = 0;
    }
    if (PDEUtilsMethod13::scanString(mode, QStringLiteral("MultiColorBlackRed"))) {
        info->colorSetting = 1;
    }
    return noErr;
}

OSStatus GetTicketFromSession(PMPrintSession printSession, const QString &key, qint32 *number)
{
    QVariant data;
    if (PMSessionGetDataFromSession(printSession, key, &data) != noErr || !data.isValid()) {
        return kPMInvalidTicket;
    }
    if (const auto value = wholeNumber(data)) {
        *number = qint32(*value);
    }
    return noErr;
}

OSStatus GetTapeInfo3(PMPrintSettings printSettings, PageRangeInfo *range)
{
    *range = {};
    quint32 page = 0;
    if (PMGetFirstPage(printSettings, &page) == noErr) {
        PMSetFirstPage(printSettings, page, false);
        range->firstPage = page;
    }
    if (const OSStatus status = PMGetLastPage(printSettings, &page); status != noErr) {
        return status;
    }
    range->lastPage = page;
    return PMSetLastPage(printSettings, page, false);
}

qint64 RoundDouble(double value)
{
    constexpr double limit = 9223372036854775808.0;
    if (!(std::abs(value) < limit)) {
        return value > 0 ? std::numeric_limits<qint64>::max() : std::numeric_limits<qint64>::min();
    }
    const double truncated = std::trunc(value);
    const double fraction = value - truncated;
    if (fraction >= 0.5) {
        return qint64(truncated) + 1;
    }
    return fraction <= -0.5 ? qint64(truncated) - 1 : qint64(truncated);
}

double MiriToInch(double millimetres)
{
    return millimetres * inchesPerMillimetre;
}

double InchToMiri(double inches)
{
    return inches / inchesPerMillimetre;
}

QByteArray paperNameOfPageFormat(PMPageFormat pageFormat)
{
    PMPaper paper = nullptr;
    return PMGetPageFormatPaper(pageFormat, &paper) == noErr ? nameAsCString(ppdNameOf(paper))
                                                             : QByteArray();
}
