// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "cutoption/OptionOutlets.h"
#include "cutoption/OptionRecords.h"

#include <array>

struct OptionRow;

/// Bits of an item-type word: the items of the panel that a refresh is about.
enum ItemType : quint32 {
    CutEveryItem = 0x100,
    CutAtEndItem = 0x200,
    MirrorItem = 0x400,
    AutoCutItem = 0x800,
    HalfCutItem = 0x1000,
    ChainPrintItem = 0x2000,
    SpecialTapeItem = 0x4000,
    RemoveBlkSpaceItem = 0x10000,
    PopUpButtonItem = 0x40000,
    CutMarkItem = 0x80000,
};

/// The nine options of the panel, in the order in which every per-option sequence runs.
struct OptionCatalogue
{
    /// Index of an option's row.
    enum Option : std::size_t {
        CutEvery,
        CutAtEnd,
        Mirror,
        AutoCut,
        HalfCut,
        ChainPrint,
        SpecialTape,
        RemoveBlkSpace,
        CutMark,
    };

    static constexpr std::size_t size = 9;

    static const std::array<OptionRow, size> rows;

    /// The row of a PPD keyword; null for any other keyword.
    static const OptionRow *rowForKeyword(const QString &keyword);
};

/// One option: its names at the print system and in the string table, and its fields of the
/// panel.
struct OptionRow
{
    OptionCatalogue::Option id;
    /// The option's PPD keyword.
    const char *keyword;
    /// The check box's object name in the nib.
    const char *outlet;
    QPointer<CheckBox> OptionOutlets::*checkBox;
    ppd_option_t *OptionRecords::*option;
    ChoiceList OptionRecords::*choices;
    const PDEChoice *OptionRecords::*selection;
    /// Key of the check box's title, for an option whose PPD text cannot be read.
    const char *labelKey;
    /// Key of the summary line's title, likewise.
    const char *summaryTitleKey;
    /// Key of what the option does, for its tip.
    const char *helpKey;
    /// The default choice keyword with which the box starts ticked.
    const char *checkedKeyword = "ON";
    quint32 itemType;
    /// Whether special tape, shown and on, makes the box be saved as off.
    bool offUnderSpecialTape = false;
    /// Whether a disabled box keeps its state in a refresh.
    bool keptWhileDisabled = false;
};
