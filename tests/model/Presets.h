// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Options.h"

#include <QList>
#include <QStringList>

namespace model {

/// Which of the options that count for presets and pictures are on.
using OptionSet = std::array<bool, optionCount>;

/// The menu of presets: its items are known by tags.
namespace Presets {

/// Every tag in the nib's order.
QList<int> allTags();

/// The tag of the item that the nib names so; 0 when it has no such item.
int tagOf(QLatin1String identifier);

/// What picking an item does to each option's box; nothing for a box that it leaves alone.
using Effect = std::array<std::optional<bool>, optionCount>;

/// The effect of picking an item.
const Effect &effectOf(int tag);

/// Whether an item can be picked while that paper is in use.
bool isAllowed(int tag, const QString &paperName);

/// What the choice of an item depends on besides the boxes.
struct Setting
{
    bool isRV = false;
    bool showsCutMark = false;
    QString paperName;
};

/// The item that describes the boxes.
int tagFor(const OptionSet &shownAndOn, const Setting &setting);

/// The picture of the strip that the boxes stand for.
QString pictureFor(const OptionSet &shownAndOn, bool isRV);

} // namespace Presets
} // namespace model
