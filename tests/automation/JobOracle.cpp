// SPDX-License-Identifier: Apache-2.0
#include "JobOracle.h"

#include "../model/PanelModel.h"

#include "ppd/PPD.h"

#include <QFile>

#include <algorithm>
#include <memory>
#include <span>

namespace {
struct SamplePPDCloser
{
    void operator()(ppd_file_t *ppd) const { ppdClose(ppd); }
};

std::optional<QString> attributeIn(ppd_file_t *ppd, const char *name)
{
    const ppd_attr_t *found = ppdFindAttr(ppd, name, nullptr);
    return found ? std::optional(QString::fromUtf8(found->value)) : std::nullopt;
}

model::PrinterOption optionIn(const ppd_option_t &option)
{
    model::PrinterOption read;
    read.text = QString::fromUtf8(option.text);
    read.defaultChoice = QString::fromUtf8(option.defchoice);
    for (const ppd_choice_t &choice : std::span(option.choices, std::size_t(option.num_choices))) {
        read.choices.append({QString::fromUtf8(choice.choice), QString::fromUtf8(choice.text)});
    }
    return read;
}

/// The box or field in which the panel shows an option.
bool choose(model::PanelModel &panel, model::Option option, const QString &choice)
{
    const model::Printer &printer = panel.job().printer();
    const model::View &view = panel.view();
    if (option == model::CutEvery) {
        panel.type(choice);
        return !view.control(model::View::Field).isHidden && view.fieldText == choice;
    }
    const bool isAutoCutOfCutEvery = option == model::AutoCut && !printer.hasAutoCutBox();
    const model::Option box = isAutoCutOfCutEvery ? model::CutEvery : option;
    const bool isOn = printer.option(option)->indexOf(choice) != 0;
    if (view.control(box).isHidden || (isOn && !view.control(box).isEnabled)) {
        return false;
    }
    if (view.isOn(box) != isOn) {
        panel.click(box);
    }
    return view.isOn(box) == isOn;
}

/// Uses the controls for all choices; whether all could be made.
bool chooseAll(model::PanelModel &panel, QMap<QString, QString> choices)
{
    for (qsizetype before = choices.size() + 1; !choices.isEmpty() && choices.size() < before;) {
        before = choices.size();
        for (const model::Option option : model::everyOption) {
            const QString keyword = model::namesOf(option).keyword;
            if (choices.contains(keyword) && choose(panel, option, choices.value(keyword))) {
                choices.remove(keyword);
            }
        }
    }
    return choices.isEmpty();
}
} // namespace

JobOracle::JobOracle(const QString &ppdPath)
{
    const std::unique_ptr<ppd_file_t, SamplePPDCloser> ppd(ppdOpenFile(QFile::encodeName(ppdPath)));
    for (const model::Option option : model::everyOption) {
        const QByteArray keyword = QString(model::namesOf(option).keyword).toLatin1();
        if (const ppd_option_t *found = ppdFindOption(ppd.get(), keyword.constData())) {
            mPrinter.options[option] = optionIn(*found);
        }
    }
    mPrinter.tapeType = attributeIn(ppd.get(), "KvTapeType");
    mPrinter.autoCutObjHidden = attributeIn(ppd.get(), "KvAutoCutObjHidden");
    for (const ppd_size_t &size : std::span(ppd->sizes, std::size_t(ppd->num_sizes))) {
        mPrinter.sizes.append({QString::fromUtf8(size.name), double(size.length)});
    }
}

std::optional<QStringList> JobOracle::choices(const JobWish &wish) const
{
    const double height = mPrinter.heightOf(wish.paper).value_or(0.0);
    model::Job job(mPrinter, std::nullopt, {wish.paper, height}, true);
    for (auto it = wish.options.begin(); it != wish.options.end(); ++it) {
        job.mark(it.key(), it.value());
    }
    model::PanelModel panel(job, false);
    QStringList carried;
    if (panel.declareKeys().isEmpty()) {
        return carried;
    }
    for (auto it = wish.options.begin(); it != wish.options.end(); ++it) {
        panel.job().mark(it.key(), it.value());
        panel.takeBackChoice(it.key(), it.value());
    }
    panel.loadView();
    panel.show();
    const bool isPreset = wish.preset.isNull() ||
                          panel.pick(model::Presets::tagOf(QLatin1String(wish.preset.toLatin1())));
    const bool areChosen = isPreset && chooseAll(panel, wish.options);
    panel.save();
    panel.print();
    for (const model::Option option : model::everyOption) {
        const QString choice = panel.job().marked(option);
        if (!choice.isNull()) {
            carried.append(model::namesOf(option).keyword + u'=' + choice);
        }
    }
    carried.sort();
    const bool areMarked =
        std::all_of(wish.options.keyBegin(), wish.options.keyEnd(), [&](const QString &keyword) {
            return carried.contains(keyword + u'=' + wish.options.value(keyword));
        });
    return areChosen && areMarked ? std::optional(carried) : std::nullopt;
}
