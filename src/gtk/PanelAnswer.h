// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "gtk/GtkRef.h"

#include <string>
#include <vector>

/// The members of an answer of the service: what is missing or of another type is empty, 0 or
/// false.
class PanelAnswer
{
public:
    /// @param members of type "a{sv}"; anything else has none. Null for none.
    explicit PanelAnswer(VariantRef members);

    bool has(const char *member) const { return value(member) != nullptr; }
    std::string text(const char *member) const;
    gint64 number(const char *member) const;
    bool flag(const char *member) const;
    PanelAnswer object(const char *member) const;

    /// How many elements an array has.
    gsize count(const char *array) const;
    /// An element of an array of objects.
    PanelAnswer element(const char *array, gsize index) const;

    /// The texts of the panel's alerts among an answer's events.
    std::vector<std::string> alerts() const;

    /// Calls the function with the name and the text of every member that is a text.
    template <typename Function>
    void forEachText(Function function) const
    {
        for (gsize i = 0; mMembers && i < g_variant_n_children(mMembers.get()); ++i) {
            const char *name = nullptr;
            GVariant *content = nullptr;
            g_variant_get_child(mMembers.get(), i, "{&sv}", &name, &content);
            const VariantRef value(content);
            if (g_variant_is_of_type(value.get(), G_VARIANT_TYPE_STRING)) {
                function(std::string(name),
                         std::string(g_variant_get_string(value.get(), nullptr)));
            }
        }
    }

    /// The answer to one request of several; one without members when there is none.
    static PanelAnswer ofRequest(GVariant *answers, gsize index);

private:
    VariantRef value(const char *member, const char *type = nullptr) const;

    VariantRef mMembers;
};
