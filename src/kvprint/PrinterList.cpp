// SPDX-License-Identifier: Apache-2.0
#include "kvprint/PrinterList.h"

#include "cups/PrinterRecord.h"
#include "host/ProblemReporter.h"
#include "plugin/PDEPanelAutomation.h"

#include <QJsonArray>

#include <cstring>
#include <span>

namespace {
const QString choicesMember = QStringLiteral("choices");
const QString currentMember = QStringLiteral("current");
const QString defaultMember = QStringLiteral("default");
const QString mapMember = QStringLiteral("map");
const QString nameMember = QStringLiteral("name");
const QString optionsMember = QStringLiteral("options");
const QString panelMember = QStringLiteral("panel");
const QString presetsMember = QStringLiteral("presets");
const QString textMember = QStringLiteral("text");

QString fromPPD(const char *text)
{
    return QString::fromUtf8(text);
}

QJsonValue nullIfEmpty(const QString &text)
{
    return text.isEmpty() ? QJsonValue() : QJsonValue(text);
}

QJsonObject described(const ppd_option_t &option, const PPDFile &ppd, bool isOfPanel)
{
    QJsonArray choices;
    for (const ppd_choice_t &choice : std::span(option.choices, std::size_t(option.num_choices))) {
        choices.append(
            QJsonObject{{nameMember, fromPPD(choice.choice)}, {textMember, fromPPD(choice.text)}});
    }
    const QString keyword = fromPPD(option.keyword);
    return {{nameMember, keyword},
            {textMember, fromPPD(option.text)},
            {panelMember, isOfPanel},
            {defaultMember, nullIfEmpty(fromPPD(option.defchoice))},
            {currentMember, nullIfEmpty(ppd.markedChoice(keyword))},
            {choicesMember, choices}};
}

/// The options of a group and of the groups in it.
void addOptions(const ppd_group_t &group, const PanelHost &panels, QJsonArray &ofPanel,
                QJsonArray &others)
{
    for (const ppd_option_t &option : std::span(group.options, std::size_t(group.num_options))) {
        // The same paper once more, for pages that do not fill theirs.
        if (std::strcmp(option.keyword, "PageRegion") == 0) {
            continue;
        }
        const bool isOfPanel = panels.keys().contains(fromPPD(option.keyword));
        (isOfPanel ? ofPanel : others).append(described(option, panels.ppd(), isOfPanel));
    }
    for (const ppd_group_t &inner : std::span(group.subgroups, std::size_t(group.num_subgroups))) {
        addOptions(inner, panels, ofPanel, others);
    }
}

/// All options of the PPD, the panels' first.
QJsonArray optionsOf(const PanelHost &panels)
{
    QJsonArray options;
    QJsonArray others;
    const ppd_file_t *ppd = panels.ppd().get();
    for (const ppd_group_t &group : std::span(ppd->groups, std::size_t(ppd->num_groups))) {
        addOptions(group, panels, options, others);
    }
    for (const auto &option : std::as_const(others)) {
        options.append(option);
    }
    return options;
}

QJsonArray presetsOf(const PanelHost &panels)
{
    QJsonArray presets;
    for (PDEPanel *panel : panels.panels()) {
        const PDEPanelAutomation *automation = panel->automation();
        const auto offered = automation ? automation->presets() : QList<PDEPreset>();
        for (const PDEPreset &preset : offered) {
            presets.append(QJsonObject{{nameMember, preset.identifier},
                                       {QStringLiteral("tag"), preset.tag},
                                       {textMember, preset.name},
                                       {QStringLiteral("enabled"), preset.isEnabled},
                                       {QStringLiteral("selected"), preset.isSelected}});
        }
    }
    return presets;
}
} // namespace

PrinterList::PrinterList(const PanelBundles &bundles, ProblemReporter &reporter)
    : mBundles(bundles)
    , mReporter(reporter)
{
}

bool PrinterList::addQueue(SchedulerConnection &scheduler, const QString &name, bool isDefault,
                           PrinterRecord::MissingQueue missing)
{
    const PrinterRecord printer = PrinterRecord::read(scheduler, name, missing);
    QString error;
    auto target = PanelTarget::of(printer, PPDFile::Marks::Defaults, &error);
    mReporter.report(error);
    add({{nameMember, name}, {defaultMember, isDefault}}, std::move(target));
    return printer.error.isNull();
}

bool PrinterList::addPPD(const QString &path, QString *error)
{
    auto target = PanelTarget::ofPPD(path, PPDFile::Marks::Defaults, error);
    if (!target) {
        return false;
    }
    add({{nameMember, QJsonValue()}, {QStringLiteral("ppd"), path}}, std::move(target));
    return true;
}

void PrinterList::add(QJsonObject printer, std::optional<PanelTarget> target)
{
    QJsonArray options;
    QJsonArray presets;
    QJsonValue panel;
    QJsonValue map;
    if (target) {
        JobSetup setup(std::move(*target), mBundles, mReporter);
        mReporter.report(setup.apply({}));
        options = optionsOf(setup.panels());
        presets = presetsOf(setup.panels());
        if (!setup.panels().panels().empty()) {
            panel = setup.panels().panels().front()->panelName();
        }
        if (const auto &used = setup.panels().map()) {
            map = used->name();
        }
    }
    printer.insert(panelMember, panel);
    printer.insert(mapMember, map);
    printer.insert(optionsMember, options);
    printer.insert(presetsMember, presets);
    mPrinters.append(printer);
}

QJsonObject PrinterList::toJSON() const
{
    QJsonArray printers;
    for (const QJsonObject &printer : mPrinters) {
        printers.append(printer);
    }
    return {{QStringLiteral("printers"), printers}};
}
