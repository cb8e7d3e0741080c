// SPDX-License-Identifier: Apache-2.0
#include "Printer.h"

#include <algorithm>

namespace model {
namespace {
const QLatin1String customSize("Custom");

constexpr char header[] = R"PPD(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: UTF-8
*PCFileName: "KVMODEL.PPD"
*Manufacturer: "Korvane"
*Product: "(Korvane Model)"
*ModelName: "Korvane Model"
*ShortNickName: "Korvane Model"
*NickName: "Korvane Model, 1.0"
*PSVersion: "(3010.000) 0"
*LanguageLevel: "3"
*ColorDevice: False
*DefaultColorSpace: Gray
*FileSystem: False
*cupsVersion: 2.4
*cupsFilter: "application/vnd.cups-pdf 0 -"
)PPD";

QString attribute(const char *name, const std::optional<QString> &value)
{
    return value ? u"*%1: \"%2\"\n"_s.arg(QLatin1String(name), *value) : QString();
}

QString named(const QString &keyword, const QString &text)
{
    return text.isEmpty() ? keyword : keyword + u'/' + text;
}

QString optionLines(const QString &keyword, const PrinterOption &option)
{
    QString lines = u"*OpenUI *%1: PickOne\n"_s.arg(named(keyword, option.text));
    if (!option.defaultChoice.isEmpty()) {
        lines += u"*Default%1: %2\n"_s.arg(keyword, option.defaultChoice);
    }
    for (const Choice &choice : option.choices) {
        lines += u"*%1 %2: \"\"\n"_s.arg(keyword, named(choice.keyword, choice.text));
    }
    return lines + u"*CloseUI: *%1\n"_s.arg(keyword);
}

QString sizeLines(const QList<PaperSize> &sizes)
{
    if (sizes.isEmpty()) {
        return {};
    }
    PrinterOption pageSize{{}, {}, sizes.first().name};
    QString areas;
    QString dimensions;
    for (const PaperSize &size : sizes) {
        pageSize.choices.append({size.name});
        areas += u"*ImageableArea %1: \"0 0 100 %2\"\n"_s.arg(size.name).arg(size.height);
        dimensions += u"*PaperDimension %1: \"100 %2\"\n"_s.arg(size.name).arg(size.height);
    }
    return optionLines(u"PageSize"_s, pageSize) +
           u"*DefaultImageableArea: %1\n%2"_s.arg(sizes.first().name, areas) +
           u"*DefaultPaperDimension: %1\n%2"_s.arg(sizes.first().name, dimensions);
}
} // namespace

int PrinterOption::indexOf(const QString &keyword) const
{
    const auto found = std::ranges::find(choices, keyword, &Choice::keyword);
    return found == choices.end() ? -1 : int(found - choices.begin());
}

int PrinterOption::defaultIndex() const
{
    return choices.isEmpty() ? 0 : indexOf(defaultChoice);
}

const PrinterOption *Printer::option(Option option) const
{
    const auto &found = options[option];
    return found ? &*found : nullptr;
}

bool Printer::hasAutoCutBox() const
{
    return options[AutoCut] && autoCutObjHidden == u"False";
}

bool Printer::offersCustomSize() const
{
    return takesCustomSizes && !sizes.isEmpty();
}

std::optional<double> Printer::heightOf(const QString &size) const
{
    const auto found = std::ranges::find(sizes, size, &PaperSize::name);
    if (found != sizes.end()) {
        return found->height;
    }
    return offersCustomSize() && size == customSize ? std::optional(0.0) : std::nullopt;
}

bool Printer::hasSize(const QString &name) const
{
    const auto isIt = [&name](const QString &size) {
        return size.compare(name, Qt::CaseInsensitive) == 0;
    };
    return std::ranges::any_of(sizes, isIt, &PaperSize::name) ||
           (offersCustomSize() && isIt(customSize));
}

QString Printer::optionText(Option option) const
{
    const QString &text = options[option]->text;
    return text.isEmpty() ? QString(namesOf(option).keyword) : text;
}

QByteArray Printer::ppd() const
{
    QString text = QLatin1String(header);
    text += attribute("KvTapeType", tapeType);
    text += attribute("KvAutoCutObjHidden", autoCutObjHidden);
    text += sizeLines(sizes);
    if (offersCustomSize()) {
        text += QLatin1String("*CustomPageSize True: \"\"\n");
    }
    for (const Option option : everyOption) {
        if (options[option]) {
            text += optionLines(namesOf(option).keyword, *options[option]);
        }
    }
    return text.toUtf8();
}

} // namespace model
