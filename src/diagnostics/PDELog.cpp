// SPDX-License-Identifier: Apache-2.0
#include "diagnostics/PDELog.h"

#include "printcore/QtVersions.h"
#include "printcore/SystemEncoding.h"
#include "printcore/SystemLog.h"

#include <QSaveFile>

#include <cstring>

namespace {
template <typename... Arguments>
void logLine(const QString &format, const Arguments &...arguments)
{
    logToSystem(stringWithFormat(format, {FormatArgument(arguments)...}));
}

/// The C string at an offset of a record, which ends with the record at the latest.
template <typename Record>
QString textInRecord(const Record *record, std::size_t offset)
{
    if (!record) {
        return {};
    }
    const char *const text = reinterpret_cast<const char *>(record) + offset;
    const std::size_t length = strnlen(text, sizeof(Record) - offset);
    return SystemEncoding::decode(QByteArray(text, QtSize(length)).constData());
}

template <typename Record>
struct TextField
{
    QString format;
    std::size_t offset;
};

template <typename Record, std::size_t count>
void logTexts(const Record *record, const TextField<Record> (&fields)[count])
{
    for (const TextField<Record> &field : fields) {
        logLine(field.format, textInRecord(record, field.offset));
    }
}

void logOption(const ppd_option_t &option)
{
    static const TextField<ppd_option_t> texts[] = {
        {QStringLiteral("***** conflicted | %@"), offsetof(ppd_option_t, conflicted)},
        {QStringLiteral("***** keyword | %@"), offsetof(ppd_option_t, keyword)},
        {QStringLiteral("***** defchoice | %@"), offsetof(ppd_option_t, defchoice)},
        {QStringLiteral("***** text | %@"), offsetof(ppd_option_t, text)},
    };
    static const TextField<ppd_choice_t> choiceTexts[] = {
        {QStringLiteral("***** choices->marked | %@"), offsetof(ppd_choice_t, marked)},
        {QStringLiteral("***** choices->choice | %@"), offsetof(ppd_choice_t, choice)},
        {QStringLiteral("***** choices->text | %@"), offsetof(ppd_choice_t, text)},
    };
    logTexts(&option, texts);
    logLine(QStringLiteral("***** ui == %d"), option.ui);
    logLine(QStringLiteral("***** section == %d"), option.section);
    logLine(QStringLiteral("***** order == %f"), option.order);
    logLine(QStringLiteral("***** num_choices == %d"), option.num_choices);
    logTexts(option.num_choices > 0 ? option.choices : nullptr, choiceTexts);
}
} // namespace

void logTagged(const QString &tag, const FormatArgument &object, const QString &format,
               std::initializer_list<FormatArgument> arguments)
{
    if (std::holds_alternative<std::nullptr_t>(object.value())) {
        logToSystem(
            stringWithFormat(stringWithFormat(QStringLiteral("%@ %@"), {tag, format}), arguments));
        return;
    }
    const QString words = object.description().replace(u'%', QStringLiteral("%%"));
    logToSystem(stringWithFormat(
        stringWithFormat(QStringLiteral("%@ self(%@) %@"), {tag, words, format}), arguments));
}

// NOLINTBEGIN(bugprone-reserved-identifier)
void _PDELog_ppd_option_t(ppd_file_t *ppd, const char *ppdOptionName)
{
    if (!ppd) {
        logLine(QStringLiteral("PPD file is not loaded!!"));
        return;
    }
    if (!ppdOptionName) {
        logLine(QStringLiteral("ppdOptionName is NULL!!"));
        return;
    }
    const ppd_option_t *const option = ppdFindOption(ppd, ppdOptionName);
    if (!option) {
        logLine(QStringLiteral("PPD option %s is not found!!"), ppdOptionName);
        return;
    }
    const QString name = SystemEncoding::decode(ppdOptionName);
    logLine(QStringLiteral("+-+-+-+-+-+-+-+-+-+- start is %@"), name);
    logOption(*option);
    logLine(QStringLiteral("+-+-+-+-+-+-+-+-+-+- end is %@"), name);
}

void _PDELog_PMPrintSettings_WriteToFile(PMPrintSettings printSettings, const QString &name)
{
    if (name.isNull() || name.contains(u'/') || name.contains(QChar::Null)) {
        return;
    }
    QByteArray data;
    PMPrintSettingsCreateDataRepresentation(printSettings, &data, kPMDataFormatXMLDefault);
    QSaveFile file(stringWithFormat(QStringLiteral("/KvPDE_%@.plist"), {name}));
    // Without the flush a full disk would go unnoticed, and a part of the dump replace the last
    // one.
    if (!data.isEmpty() && file.open(QIODevice::WriteOnly) && file.write(data) == data.size() &&
        file.flush()) {
        file.commit();
    }
}
// NOLINTEND(bugprone-reserved-identifier)
