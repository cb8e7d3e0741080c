// SPDX-License-Identifier: Apache-2.0
#include "cutoption/OptionPDE.h"

#include "cutoption/OptionState.h"

#include <algorithm>

QList<PDEPreset> OptionPDE13_v400_::presets() const
{
    const PopUpButton *popUp = mOptionPopUpButton;
    QList<PDEPreset> presets;
    for (int i = 0; popUp && i < popUp->count(); ++i) {
        const int tag = popUp->tagAt(i);
        presets.append({popUp->itemIdentifier(i), tag, popUp->itemName(i), validateMenuItem(tag),
                        i == popUp->currentIndex()});
    }
    return presets;
}

bool OptionPDE13_v400_::choosePreset(const QString &identifier)
{
    const QList<PDEPreset> all = presets();
    const auto preset = std::ranges::find(all, identifier, &PDEPreset::identifier);
    const bool canBeChosen = preset != all.end() && preset->isEnabled;
    if (canBeChosen) {
        mOptionPopUpButton->choose(int(preset - all.begin()));
    }
    return canBeChosen;
}

QJsonObject OptionPDE13_v400_::state() const
{
    return {{QStringLiteral("view"), OptionState::ofView(kPDEView)},
            {QStringLiteral("controls"), OptionState::ofControls(*this)},
            {QStringLiteral("popup"), OptionState::ofMenu(presets())},
            {QStringLiteral("selections"), OptionState::ofSelections(*this)},
            {QStringLiteral("marks"), OptionState::ofMarks(*this, ppd)},
            {QStringLiteral("flags"),
             QJsonObject({{QStringLiteral("mTapeState"), mTapeState},
                          {QStringLiteral("mAutoCutHideKey_dec"), int(mAutoCutHideKey_dec)},
                          {QStringLiteral("set_formatSetting"), int(set_formatSetting)},
                          {QStringLiteral("usb_dec"), int(usb_dec)}})},
            {QStringLiteral("preview"), OptionState::ofPreview(*this)}};
}
