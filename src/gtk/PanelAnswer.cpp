// SPDX-License-Identifier: Apache-2.0
#include "gtk/PanelAnswer.h"

PanelAnswer::PanelAnswer(VariantRef members)
    : mMembers(std::move(members))
{
    if (mMembers && !g_variant_is_of_type(mMembers.get(), G_VARIANT_TYPE_VARDICT)) {
        mMembers.reset();
    }
}

PanelAnswer PanelAnswer::ofRequest(GVariant *answers, gsize index)
{
    const bool isThere = answers && index < g_variant_n_children(answers);
    return PanelAnswer(VariantRef(isThere ? g_variant_get_child_value(answers, index) : nullptr));
}

VariantRef PanelAnswer::value(const char *member, const char *type) const
{
    return VariantRef(mMembers ? g_variant_lookup_value(mMembers.get(), member,
                                                        type ? G_VARIANT_TYPE(type) : nullptr)
                               : nullptr);
}

std::string PanelAnswer::text(const char *member) const
{
    const VariantRef text = value(member, "s");
    return text ? g_variant_get_string(text.get(), nullptr) : std::string();
}

gint64 PanelAnswer::number(const char *member) const
{
    const VariantRef number = value(member, "x");
    return number ? g_variant_get_int64(number.get()) : 0;
}

bool PanelAnswer::flag(const char *member) const
{
    const VariantRef flag = value(member, "b");
    return flag && g_variant_get_boolean(flag.get());
}

PanelAnswer PanelAnswer::object(const char *member) const
{
    return PanelAnswer(value(member, "a{sv}"));
}

gsize PanelAnswer::count(const char *array) const
{
    const VariantRef elements = value(array, "av");
    return elements ? g_variant_n_children(elements.get()) : 0;
}

PanelAnswer PanelAnswer::element(const char *array, gsize index) const
{
    const VariantRef elements = value(array, "av");
    const VariantRef element(g_variant_get_child_value(elements.get(), index));
    return PanelAnswer(VariantRef(g_variant_get_variant(element.get())));
}

std::vector<std::string> PanelAnswer::alerts() const
{
    std::vector<std::string> texts;
    const VariantRef events = value("events", "av");
    for (gsize i = 0; events && i < g_variant_n_children(events.get()); ++i) {
        const VariantRef boxed(g_variant_get_child_value(events.get(), i));
        const VariantRef event(g_variant_get_variant(boxed.get()));
        if (g_variant_check_format_string(event.get(), "av", FALSE) &&
            g_variant_n_children(event.get()) == 2) {
            const auto textAt = [&event](gsize index) {
                const VariantRef boxed(g_variant_get_child_value(event.get(), index));
                const VariantRef text(g_variant_get_variant(boxed.get()));
                return g_variant_is_of_type(text.get(), G_VARIANT_TYPE_STRING)
                           ? std::string(g_variant_get_string(text.get(), nullptr))
                           : std::string();
            };
            if (textAt(0) == "alert") {
                texts.push_back(textAt(1));
            }
        }
    }
    return texts;
}
