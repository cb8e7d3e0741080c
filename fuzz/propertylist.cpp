// SPDX-License-Identifier: Apache-2.0

// Property lists: what is read can be written, and reads the same.

#include "printcore/PropertyList.h"
#include "FuzzTarget.h"
#include "printcore/PrintSettings.h"

namespace {
class PropertyListFuzzer : public FuzzTarget
{
public:
    void run(const QByteArray &input) override
    {
        QString error;
        const QVariant value = PropertyList::read(input, &error);
        expectRule(value.isValid() == error.isNull(), "a list is read or told to be faulty");
        expectRule(input.size() <= PropertyList::kGreatestSize || !value.isValid(),
                   "a long list is refused");
        if (value.isValid()) {
            writeAndRead(value);
        }
        QString fault;
        const auto settings = PrintSettings::fromData(input, &fault);
        expectRule(settings.has_value() == fault.isNull(),
                   "settings are read or told to be faulty");
        expectRule(!settings || value.userType() == QMetaType::QVariantMap,
                   "settings are a dictionary");
    }

private:
    static void writeAndRead(const QVariant &value)
    {
        QString error;
        const QByteArray written = PropertyList::write(value, &error);
        expectRule(!written.isEmpty() && error.isNull(), "what was read can be written");
        if (written.size() <= PropertyList::kGreatestSize) {
            const QByteArray again = PropertyList::write(PropertyList::read(written));
            expectRule(again == written, "what was written reads the same");
        }
    }
};
} // namespace

KV_FUZZ_TARGET("propertylist", PropertyListFuzzer)
