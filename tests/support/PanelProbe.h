// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "cutoption/OptionCatalogue.h"
#include "cutoption/OptionPDE.h"

/// The panel with its outlets and state open to a test.
class PanelProbe : public OptionPDE13_v400_
{
public:
    PanelProbe(std::shared_ptr<PDEPluginCallback13_v400_> callback, std::shared_ptr<Bundle> bundle)
        : OptionPDE13_v400_(std::move(callback), std::move(bundle))
    {
    }

    using BasePDE13_v400_::deviceURI;
    using BasePDE13_v400_::kPDEView;
    using OptionPDE13_v400_::awakeFromNib;
    using OptionPDE13_v400_::checkValues_dec;
    using OptionPDE13_v400_::column_dec;
    using OptionPDE13_v400_::mAutoCut_CutEvery_Selection;
    using OptionPDE13_v400_::mAutoCutHideKey_dec;
    using OptionPDE13_v400_::mCutEveryStpr;
    using OptionPDE13_v400_::mCutEveryStr;
    using OptionPDE13_v400_::mCutEveryTxBx;
    using OptionPDE13_v400_::mOptionDummyView;
    using OptionPDE13_v400_::mOptionPopUpButton;
    using OptionPDE13_v400_::mOptionView;
    using OptionPDE13_v400_::mTapeState;
    using OptionPDE13_v400_::set_formatSetting;
    using OptionPDE13_v400_::usb_dec;

    CheckBox *box(OptionCatalogue::Option option) const
    {
        return this->*OptionCatalogue::rows[option].checkBox;
    }
    ppd_option_t *option(OptionCatalogue::Option option) const
    {
        return this->*OptionCatalogue::rows[option].option;
    }
    const ChoiceList &choices(OptionCatalogue::Option option) const
    {
        return this->*OptionCatalogue::rows[option].choices;
    }
    const PDEChoice *selection(OptionCatalogue::Option option) const
    {
        return this->*OptionCatalogue::rows[option].selection;
    }
};
