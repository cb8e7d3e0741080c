#pragma once

#include "ppd/PPD.h"

#include <QString>

#include <memory>
#include <vector>

/// One choice of a PPD option.
class PDEChoice
{
public:
    /**
     * @param choice a record of an open PPD: not owned, valid as long as the PPD is, never null.
     */
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
    explicit PDEChoice(ppd_choice_t *choice);

    mutable QString mUserTitle;
    mutable QString mPPDTitle;
    ppd_choice_t *mChoice;
};

/// The choices of one option in the PPD's order. A null pointer to a list, "no such option", is
/// told from an empty one, "an option without choices".
using ChoiceList = std::vector<std::unique_ptr<PDEChoice>>;
