// SPDX-License-Identifier: Apache-2.0
#include "ppd/PDEChoice.h"

#include "ppd/PDEUtilsMethod.h"

#include <cstring>

std::unique_ptr<PDEChoice> PDEChoice::choiceWithChoice(ppd_choice_t *choice)
{
    return std::make_unique<PDEChoice>(choice);
}

PDEChoice::PDEChoice(ppd_choice_t *choice)
    : mChoice(choice)
{
}

QString PDEChoice::userTitle() const
{
    if (mUserTitle.isNull()) {
        mUserTitle = PDEUtilsMethod13::newChoiceTitle(mChoice);
    }
    return mUserTitle;
}

QString PDEChoice::ppdTitle() const
{
    if (mPPDTitle.isNull()) {
        mPPDTitle = QString::fromUtf8(mChoice->choice);
    }
    return mPPDTitle;
}

bool PDEChoice::isDefaultChoice() const
{
    return std::strncmp(mChoice->choice, mChoice->option->defchoice, PPD_MAX_NAME) == 0;
}

QString PDEChoice::description() const
{
    const ppd_option_t *option = mChoice->option;
    return QStringLiteral(
               "<PDEChoice 0x%1 userTitle:\"%2\" ppdTitle:\"%3\" marked:%4 choice:%5 of %6>")
        .arg(QString::number(quintptr(this), 16), userTitle(), ppdTitle(),
             mChoice->marked ? QStringLiteral("YES") : QStringLiteral("NO"),
             QString::number(mChoice - option->choices + 1), QString::number(option->num_choices));
}
