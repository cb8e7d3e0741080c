// SPDX-License-Identifier: Apache-2.0
#include "bench/LongEdits.h"

#include "bench/Measurement.h"
#include "textinput/PDEFormatter.h"

#include <limits>
#include <stdexcept>

namespace {
constexpr const char *editIsChecked = "edit of 1 MB is checked";
constexpr const char *textIsConverted = "text of 1 MB is converted";
constexpr int printableStyle = 10;

QString longText()
{
    return QString(1 << 20, QLatin1Char('x'));
}

void checkEdit(benchmark::State &state)
{
    const QString text = longText();
    const auto formatter = PDEFormatter::initWithStyle(printableStyle);
    formatter->setMaxLength(std::numeric_limits<qint32>::max());
    const TextRange caret{text.size(), 0};
    for ([[maybe_unused]] auto _ : state) {
        if (!formatter->isPartialStringValid(text, &caret, {}, {}, nullptr)) {
            throw std::runtime_error("the edit is refused");
        }
    }
}

void convertText(benchmark::State &state)
{
    const QString text = longText();
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(text.toUtf8());
    }
}
} // namespace

void LongEdits::add()
{
    Measurement::addShort(editIsChecked, checkEdit);
    Measurement::addShort(textIsConverted, convertText);
}

ComparisonGroup LongEdits::comparisons()
{
    return {"Long edits", {{editIsChecked, textIsConverted, Aim()}}};
}
