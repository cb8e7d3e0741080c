// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ppd/PPD.h"

#include <QString>

#include <memory>

/// One choice of a PPD option.
class PDEChoice
{
public:
    /// @param choice a record of an open PPD: not owned, valid as long as the PPD is, never null.
    explicit PDEChoice(ppd_choice_t *choice);
    /// A choice on the heap, likewise.
    static std::unique_ptr<PDEChoice> choiceWithChoice(ppd_choice_t *choice);

    /// The translated text that the user sees; null when the PPD's bytes are no UTF-8.
    QString userTitle() const;

    /// The keyword that the PPD and the print system use.
    QString ppdTitle() const;

    /// The PPD's record, owned by the PPD.
    ppd_choice_t *choice() const { return mChoice; }

    /// Whether it is the PPD's declared default, whatever is marked.
    bool isDefaultChoice() const;

    /// The choice in words, for a developer.
    QString description() const;

private:
    mutable QString mUserTitle;
    mutable QString mPPDTitle;
    ppd_choice_t *mChoice;
};
