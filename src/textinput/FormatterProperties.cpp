// SPDX-License-Identifier: Apache-2.0
#include "textinput/FormatterProperties.h"

#include "printcore/ProblemLine.h"
#include "textinput/FormatterAdapter.h"
#include "textinput/PDEFormatter.h"

#include <QDebug>
#include <QLineEdit>

#include <algorithm>
#include <iterator>
#include <optional>

namespace {
struct FormatterProperty
{
    const char *name;
    void (PDEFormatter::*set)(qint32 value);
    /// Goes back to a formatter without the property.
    void (*clear)(PDEFormatter *formatter);
};

const FormatterProperty formatterProperties[] = {
    {"formatterStyle", &PDEFormatter::setTextStyle,
     [](PDEFormatter *formatter) {
         formatter->setTextStyle(0);
     }},
    {"formatterMaxLength", &PDEFormatter::setMaxLength,
     [](PDEFormatter *formatter) {
         formatter->setMaxLength(0);
     }},
    {"formatterMinValue", &PDEFormatter::setMinValue,
     [](PDEFormatter *formatter) {
         formatter->setValidityMinValue(false);
     }},
    {"formatterMaxValue", &PDEFormatter::setMaxValue,
     [](PDEFormatter *formatter) {
         formatter->setValidityMaxValue(false);
     }},
};

std::optional<qint32> integerOf(const QVariant &value)
{
    bool isInteger = false;
    const qint32 number = value.toString().toInt(&isInteger);
    return isInteger ? std::optional<qint32>(number) : std::nullopt;
}

/// The formatter that checks the field's edits; one that the field owns where there was none.
PDEFormatter *formatterFor(QLineEdit *field)
{
    if (PDEFormatter *attached = FormatterAdapter::formatterOf(field)) {
        return attached;
    }
    auto *formatter = field->findChild<PDEFormatter *>(QString(), Qt::FindDirectChildrenOnly);
    if (!formatter) {
        formatter = PDEFormatter::init().release();
        formatter->setParent(field);
    }
    FormatterAdapter::attach(formatter, field);
    return formatter;
}
} // namespace

void FormatterProperties::apply(QLineEdit *field, const QByteArray &name)
{
    const auto *const property =
        std::find_if(std::begin(formatterProperties), std::end(formatterProperties),
                     [&name](const FormatterProperty &known) { return name == known.name; });
    if (property == std::end(formatterProperties)) {
        return;
    }
    const QVariant value = field->property(name.constData());
    if (!value.isValid()) {
        property->clear(formatterFor(field));
    } else if (const std::optional<qint32> number = integerOf(value)) {
        (formatterFor(field)->*property->set)(*number);
    } else {
        qWarning().noquote() << asOneLine(
            QStringLiteral("%1: %2 is no integer of 32 bits: %3")
                .arg(field->objectName(), QLatin1String(name), value.toString()));
    }
}
