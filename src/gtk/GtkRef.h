// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <glib-object.h>

#include <memory>

struct GtkUnref
{
    void operator()(gpointer object) const { g_object_unref(object); }
};
struct VariantUnref
{
    void operator()(GVariant *variant) const { g_variant_unref(variant); }
};

/// A reference to an object, which is given back with this.
template <typename Object>
using GtkRef = std::unique_ptr<Object, GtkUnref>;
using VariantRef = std::unique_ptr<GVariant, VariantUnref>;

/// One more reference to the object; sinks a floating one.
template <typename Object>
GtkRef<Object> refTo(Object *object)
{
    return GtkRef<Object>(static_cast<Object *>(g_object_ref_sink(object)));
}
