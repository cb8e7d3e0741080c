#include "cutoption/CountBounds.h"

#include "printcore/IntegerValue.h"

CountBounds CountBounds::of(const ChoiceList *choices)
{
    if (!choices || choices->empty()) {
        return {};
    }
    return {integerValue(choices->front()->ppdTitle()), integerValue(choices->back()->ppdTitle())};
}
