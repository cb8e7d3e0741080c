// SPDX-License-Identifier: Apache-2.0
#include "PanelModel.h"

#include <algorithm>
#include <limits>

namespace model {
namespace {
struct SummaryLine
{
    Option option;
    bool (*isLeftOut)(bool hasCutEvery, int tapeState);
};

bool never(bool, int)
{
    return false;
}

const SummaryLine summaryLines[] = {
    {CutEvery, never},
    {AutoCut,
     [](bool hasCutEvery, int) {
         return hasCutEvery;
     }},
    {CutAtEnd, never},
    {HalfCut, never},
    {SpecialTape, never},
    {ChainPrint, never},
    {Mirror, never},
    {RemoveBlkSpace,
     [](bool, int tapeState) {
         return tapeState != 0;
     }},
    {CutMark, never},
};

/// Options whose box is saved as off while special tape is on.
bool yieldsToSpecialTape(Option option)
{
    return option == AutoCut || option == HalfCut || option == ChainPrint || option == CutMark;
}

/// A box that keeps its state while it is disabled.
bool keepsStateWhileDisabled(Option option)
{
    return option == RemoveBlkSpace || option == CutMark;
}

QString defaultThatTicks(Option option)
{
    return option == CutEvery ? u"1"_s : u"ON"_s;
}

bool isHS(const Medium &medium)
{
    return medium.name.startsWith(QLatin1String("HS"));
}
} // namespace

qint32 leadingNumber(const QString &text)
{
    constexpr qint64 most = std::numeric_limits<qint32>::max();
    const QString trimmed = text.trimmed();
    const bool isSigned = trimmed.startsWith(u'-') || trimmed.startsWith(u'+');
    qint64 number = 0;
    for (qsizetype i = isSigned ? 1 : 0;
         i < trimmed.size() && trimmed.at(i) >= u'0' && trimmed.at(i) <= u'9' && number <= most;
         ++i) {
        number = 10 * number + trimmed.at(i).digitValue();
    }
    return trimmed.startsWith(u'-') ? qint32(std::max(-number, -most - 1))
                                    : qint32(std::min(number, most));
}

PanelModel::PanelModel(Job job, bool isOnUSB)
    : mJob(std::move(job))
    , mIsOnUSB(isOnUSB)
{
    mSelection.fill(-1);
    if (isHS(mJob.medium())) {
        mJob.mark(namesOf(AutoCut).keyword, u"OFF"_s);
    }
}

void PanelModel::loadView()
{
    if (!mView) {
        mView.emplace(mJob.printer());
        mEvents.append(QJsonArray{u"resized"_s});
    }
}

void PanelModel::show()
{
    if (!mIsInitialised) {
        initialiseControls();
        save();
        mIsInitialised = true;
    }
    refreshControls();
}

void PanelModel::save()
{
    for (const Option option : everyOption) {
        saveOption(option);
    }
}

void PanelModel::restore()
{
    for (const Option option : everyOption) {
        reread(option);
    }
    refreshControls();
}

void PanelModel::print()
{
    for (const Option option : everyOption) {
        const PrinterOption *found = mJob.printer().option(option);
        const int index = found ? found->defaultIndex() : -1;
        if (mJob.marked(option).isNull() && index >= 0 && index < found->choices.size()) {
            tell(namesOf(option).keyword, found->choices.at(index).keyword);
        }
    }
}

QStringList PanelModel::declareKeys()
{
    if (!mHasDeclaredKeys) {
        save();
        mHasDeclaredKeys = true;
    }
    QStringList keys;
    for (const Option option : everyOption) {
        if (mJob.printer().option(option)) {
            keys.append(namesOf(option).keyword);
        }
        if (option == CutEvery && !keys.isEmpty() && !mJob.printer().option(AutoCut)) {
            keys.append(namesOf(AutoCut).keyword);
        }
    }
    return keys;
}

void PanelModel::takeBackChoice(const QString &keyword, const QString &choice)
{
    if (const auto option = optionOfKeyword(keyword)) {
        const PrinterOption *found = mJob.printer().option(*option);
        mSelection[*option] = found ? found->indexOf(choice) : -1;
    }
}

void PanelModel::changePaper(const JobPaper &paper)
{
    mJob.setPaper(paper);
    if (isHS(mJob.medium())) {
        mJob.mark(namesOf(AutoCut).keyword, u"OFF"_s);
        reread(CutEvery);
    }
    refreshControls();
    applyRules();
}

// Starting the controls

void PanelModel::initialiseControls()
{
    for (const Option option : everyOption) {
        if (option == RemoveBlkSpace) {
            checkTape(TapeUse::First);
        } else if (mView) {
            mView->setEnabled(option, mJob.printer().option(option));
        }
        initialiseBox(option);
    }
}

void PanelModel::initialiseBox(Option option)
{
    const PrinterOption *found = mJob.printer().option(option);
    if (!mView || !found || (option == AutoCut && !mJob.printer().hasAutoCutBox())) {
        return;
    }
    mView->titles[option] = mJob.printer().optionText(option);
    if (!found->choices.isEmpty()) {
        mView->setOn(option, found->defaultChoice == defaultThatTicks(option));
    }
    if (option == CutEvery) {
        initialiseCount(*found);
    }
}

void PanelModel::initialiseCount(const PrinterOption &option)
{
    mView->captionTitle = u"RS_Labels"_s;
    mView->setEnabled(View::Field, true);
    mView->fieldText = option.defaultChoice;
    mView->setEnabled(View::Stepper, true);
    mView->stepperValue = leadingNumber(option.defaultChoice);
}

void PanelModel::checkTape(TapeUse use)
{
    mTapeState = mJob.medium().tapeState;
    if (mView) {
        mView->setEnabled(RemoveBlkSpace,
                          mTapeState == 0 || (mTapeState == 2 && use == TapeUse::First));
    }
}

// Saving

void PanelModel::saveOption(Option option)
{
    if (option == RemoveBlkSpace) {
        checkTape(TapeUse::Saving);
    }
    const PrinterOption *found = mJob.printer().option(option);
    if (!found || found->choices.isEmpty() ||
        (option == AutoCut && !mJob.printer().hasAutoCutBox())) {
        return;
    }
    const int last = int(found->choices.size()) - 1;
    const int index = std::clamp(indexToSave(option), 0, last);
    if (option == CutEvery) {
        saveAutoCutOfCutEvery();
    }
    tell(namesOf(option).keyword, found->choices.at(index).keyword);
}

int PanelModel::indexToSave(Option option) const
{
    if (!mView) {
        return mJob.markedOrDefaultIndex(option);
    }
    if (option == CutEvery) {
        return mJob.markedIndex(CutEvery);
    }
    return yieldsToSpecialTape(option) ? boxIndexUnlessSpecialTape(option)
                                       : int(mView->isOn(option));
}

int PanelModel::boxIndexUnlessSpecialTape(Option box) const
{
    return !mView->isShownAndOn(SpecialTape) && mView->isOn(box);
}

void PanelModel::saveAutoCutOfCutEvery()
{
    if (!mJob.printer().option(AutoCut) || mJob.printer().hasAutoCutBox()) {
        return;
    }
    const int index =
        mView ? boxIndexUnlessSpecialTape(CutEvery) : mJob.markedOrDefaultIndex(AutoCut);
    tell(namesOf(AutoCut).keyword, index == 1 ? u"ON"_s : u"OFF"_s);
}

void PanelModel::tell(const QString &keyword, const QString &choice)
{
    mEvents.append(QJsonArray{u"willChange"_s, keyword, choice});
    if (mJob.mark(keyword, choice)) {
        takeBackChoice(keyword, choice);
    }
}

// The user's actions

bool PanelModel::click(Option option)
{
    if (!mView->isUsable(option)) {
        return false;
    }
    mView->setOn(option, !mView->isOn(option));
    if (option == CutEvery && mView->isOn(CutEvery) && isHS(mJob.medium())) {
        mEvents.append(QJsonArray{u"alert"_s, u"RS_Alrt_AutoCutWithHS"_s});
    }
    choose(mView->isOn(option), option == CutEvery ? AutoCut : option, option);
    refresh(option);
    applyRules();
    return true;
}

bool PanelModel::pick(int tag)
{
    if (!mView->hasItem(tag) || !Presets::isAllowed(tag, mJob.paper().name)) {
        return false;
    }
    mView->select(tag);
    pushPreset();
    return true;
}

bool PanelModel::type(const QString &text)
{
    if (!mView->isUsable(View::Field)) {
        return false;
    }
    if (!text.isEmpty() || !mView->fieldText.isEmpty()) {
        changeCount(leadingNumber(text));
    }
    return true;
}

bool PanelModel::step(int by)
{
    if (!mView->isUsable(View::Stepper)) {
        return false;
    }
    constexpr qint64 most = std::numeric_limits<qint32>::max();
    changeCount(qint32(std::clamp(qint64(mView->stepperValue) + by, -most - 1, most)));
    return true;
}

void PanelModel::changeCount(qint32 value)
{
    const PrinterOption *option = mJob.printer().option(CutEvery);
    const bool hasCounts = option && !option->choices.isEmpty();
    const qint32 smallest = hasCounts ? leadingNumber(option->choices.first().keyword) : 1;
    const qint32 largest = hasCounts ? leadingNumber(option->choices.last().keyword) : 99;
    const qint32 count = value < smallest ? smallest : std::min(value, largest);
    mView->stepperValue = count;
    mView->fieldText = QString::number(count);
    choose(count - smallest, CutEvery, CutEvery);
    refresh(CutEvery);
}

void PanelModel::choose(int index, Option option, Option item)
{
    const PrinterOption *found = mJob.printer().option(option);
    if (found && index >= 0 && index < found->choices.size()) {
        tell(namesOf(option).keyword, found->choices.at(index).keyword);
        reread(item);
    }
}

// Selections and controls

void PanelModel::reread(Option option)
{
    if (!mJob.printer().option(option)) {
        return;
    }
    const auto readInto = [this](Option source, int &selection) {
        const PrinterOption *found = mJob.printer().option(source);
        const int index = mJob.markedOrDefaultIndex(source);
        if (found && index >= 0 && index < found->choices.size()) {
            selection = index;
        }
    };
    readInto(option, mSelection[option]);
    if (option == CutEvery) {
        readInto(AutoCut, mAutoCutOfCutEvery);
    }
}

void PanelModel::refreshControls()
{
    for (const Option option : everyOption) {
        refresh(option);
    }
    pushPreset();
}

void PanelModel::refresh(Option option)
{
    if (!mView) {
        return;
    }
    if (option == CutEvery) {
        refreshCount();
    } else if (!keepsStateWhileDisabled(option) || mView->control(option).isEnabled) {
        refreshBox(option, mSelection[option]);
    }
    mView->select(Presets::tagFor(
        mView->shownAndOn(),
        {mJob.printer().isRV(), !mView->control(CutMark).isHidden, mJob.paper().name}));
    applyRules();
}

void PanelModel::refreshCount()
{
    if (mSelection[CutEvery] < 0) {
        return;
    }
    mView->fieldText = mJob.printer().option(CutEvery)->choices.at(mSelection[CutEvery]).keyword;
    mView->stepperValue = leadingNumber(mView->fieldText);
    refreshBox(CutEvery, mAutoCutOfCutEvery);
}

void PanelModel::refreshBox(Option box, int index)
{
    if (index >= 0) {
        mView->setOn(box, index != 0);
    }
}

void PanelModel::pushPreset()
{
    if (!mView) {
        return;
    }
    if (const auto tag = mView->selectedTag()) {
        const Presets::Effect &effect = Presets::effectOf(*tag);
        for (const Option option : everyOption) {
            mView->setOn(option, effect[option].value_or(mView->isOn(option)));
        }
    }
    applyRules();
}

// Which controls can be used

void PanelModel::applyRules()
{
    if (!mView) {
        return;
    }
    const QString paperName = mJob.paper().name;
    const bool isFL = paperName.startsWith(QLatin1String("FL"));
    mView->setEnabled(RemoveBlkSpace, !isLabelName(paperName));
    if (isFL) {
        mView->setEnabled(HalfCut, false);
    }
    if (!mView->control(SpecialTape).isHidden) {
        applySpecialTapeRule(isFL);
    }
    if (mView->control(CutEvery).isEnabled) {
        applyCountRule();
    }
}

void PanelModel::applySpecialTapeRule(bool isFL)
{
    mView->setEnabled(SpecialTape, !isFL);
    if (isFL) {
        mView->setEnabled(ChainPrint, false);
        return;
    }
    const bool isSpecial = mView->isOn(SpecialTape);
    for (const Option option : {AutoCut, CutEvery, HalfCut, ChainPrint}) {
        mView->setEnabled(option, !isSpecial);
    }
    if (isSpecial) {
        const bool wasSteppable = mView->control(View::Stepper).isEnabled;
        mView->setEnabled(View::Field, false);
        mView->setEnabled(View::Stepper, false);
        mView->isCaptionDimmed = mView->isCaptionDimmed || wasSteppable;
    }
}

void PanelModel::applyCountRule()
{
    const bool isOn = mView->isOn(CutEvery);
    const bool fieldDiffers = mView->control(View::Field).isEnabled != isOn;
    const bool stepperDiffers = mView->control(View::Stepper).isEnabled != isOn;
    if (fieldDiffers && stepperDiffers) {
        mView->setEnabled(View::Field, isOn);
        mView->setEnabled(View::Stepper, isOn);
        mView->isCaptionDimmed = !isOn;
    }
}

// What can be asked

QJsonObject PanelModel::summary() const
{
    QJsonArray order;
    QJsonObject lines;
    for (const SummaryLine &line : summaryLines) {
        if (mSelection[line.option] < 0 || line.isLeftOut(mSelection[CutEvery] >= 0, mTapeState)) {
            continue;
        }
        const QString title = mJob.printer().optionText(line.option);
        order.append(title);
        lines.insert(title, summaryValue(line.option));
    }
    return {{QLatin1String("order"), order}, {QLatin1String("lines"), lines}};
}

QString PanelModel::summaryValue(Option option) const
{
    const Choice &selected = mJob.printer().option(option)->choices.at(mSelection[option]);
    switch (mJob.markedIndex(option == CutEvery ? AutoCut : option)) {
    case 0:
        return u"RS_STitle_No"_s;
    case 1:
        return option == CutEvery ? selected.keyword + QLatin1String(" RS_Labels")
                                  : u"RS_STitle_Yes"_s;
    default:
        return selected.shownText();
    }
}

QJsonObject PanelModel::selectionsToJson() const
{
    const auto selected = [this](Option option, int index) {
        return index < 0 ? QJsonValue()
                         : QJsonValue(mJob.printer().option(option)->choices.at(index).keyword);
    };
    QJsonObject json;
    for (const Option option : everyOption) {
        json.insert(namesOf(option).selection, selected(option, mSelection[option]));
    }
    json.insert(QLatin1String("mAutoCut_CutEvery_Selection"),
                selected(AutoCut, mAutoCutOfCutEvery));
    return json;
}

QJsonObject PanelModel::marksToJson() const
{
    QJsonObject json;
    for (const Option option : everyOption) {
        if (mJob.printer().option(option)) {
            const QString marked = mJob.marked(option);
            json.insert(namesOf(option).keyword,
                        marked.isNull() ? QJsonValue() : QJsonValue(marked));
        }
    }
    return json;
}

QJsonObject PanelModel::state() const
{
    QJsonObject json;
    if (mView) {
        json = mView->toJson(mJob.paper().name, mJob.printer().isRV());
    } else {
        json = {{QLatin1String("view"), QJsonValue()},
                {QLatin1String("controls"), QJsonObject()},
                {QLatin1String("popup"), QJsonObject{{QLatin1String("tags"), QJsonArray()},
                                                     {QLatin1String("selected"), QJsonValue()},
                                                     {QLatin1String("disabled"), QJsonArray()}}},
                {QLatin1String("preview"), QJsonValue()}};
    }
    json.insert(QLatin1String("selections"), selectionsToJson());
    json.insert(QLatin1String("marks"), marksToJson());
    json.insert(
        QLatin1String("flags"),
        QJsonObject{{QLatin1String("mTapeState"), mTapeState},
                    {QLatin1String("mAutoCutHideKey_dec"), int(mJob.printer().hasAutoCutBox())},
                    {QLatin1String("set_formatSetting"), int(mIsInitialised)},
                    {QLatin1String("usb_dec"), int(mIsOnUSB)}});
    return json;
}

QJsonArray PanelModel::takeEvents()
{
    return std::exchange(mEvents, {});
}

} // namespace model
