// SPDX-License-Identifier: Apache-2.0
#include "AssistiveUser.h"

#include "Waiting.h"

#include <algorithm>
#include <ranges>

namespace {
/// The first object from that one downwards that meets the condition.
std::optional<AccessibleObject>
findBelow(const AccessibleObject &top,
          const std::function<bool(const AccessibleObject &)> &isWanted)
{
    if (isWanted(top)) {
        return top;
    }
    const QList<AccessibleObject> children = top.children();
    for (const AccessibleObject &child : children) {
        if (const auto found = findBelow(child, isWanted)) {
            return found;
        }
    }
    return std::nullopt;
}
} // namespace

AssistiveUser::AssistiveUser(const QDBusConnection &bus)
    : mBus(bus)
{
}

std::optional<AccessibleObject> AssistiveUser::find(const QString &name,
                                                    const Condition &isWanted) const
{
    // The newest window of the newest application is mostly the one.
    const QList<AccessibleObject> applications = AccessibleObject::desktop(mBus).children();
    for (const AccessibleObject &application : applications | std::views::reverse) {
        const QList<AccessibleObject> windows = application.children();
        for (const AccessibleObject &window : windows | std::views::reverse) {
            const auto found = findBelow(window, [&](const AccessibleObject &object) {
                return object.name() == name && isWanted(object);
            });
            if (found) {
                return found;
            }
        }
    }
    return std::nullopt;
}

std::optional<AccessibleObject> AssistiveUser::await(const QString &name,
                                                     const Condition &isWanted) const
{
    std::optional<AccessibleObject> found;
    waitFor([&] {
        found = find(name, isWanted);
        return found.has_value();
    });
    return found;
}

bool AssistiveUser::act(const QString &control, const QString &action) const
{
    int index = -1;
    const auto object = await(control, [&](const AccessibleObject &candidate) {
        index = candidate.indexOfAction(action);
        return index >= 0;
    });
    return object && object->act(index);
}

bool AssistiveUser::replaceText(const QString &field, const QString &text) const
{
    const auto object = await(field, [](const AccessibleObject &candidate) {
        return candidate.has("org.a11y.atspi.EditableText") &&
               candidate.is(AccessibleObject::State::Sensitive);
    });
    return object && object->replaceText(text);
}

bool AssistiveUser::focus(const QString &control) const
{
    return await(control, [](const AccessibleObject &candidate) { return candidate.focus(); })
        .has_value();
}

bool AssistiveUser::clickNow(const QString &control) const
{
    int index = -1;
    const auto object = find(control, [&index](const AccessibleObject &candidate) {
        index = -1;
        for (const QString &action : {u"Click"_s, u"Press"_s, u"Toggle"_s}) {
            index = std::max(index, candidate.indexOfAction(action));
        }
        return index >= 0;
    });
    return object && object->act(index);
}

bool AssistiveUser::sees(const QString &control, AccessibleObject::State state) const
{
    return find(control, [state](const AccessibleObject &object) { return object.is(state); })
        .has_value();
}

bool AssistiveUser::seesGrey(const QString &control) const
{
    // The first one: GTK 4 does not say so of a box's text.
    const auto shown =
        find(control, [](const AccessibleObject &object) { return !object.frame().isEmpty(); });
    return shown && !shown->is(AccessibleObject::State::Sensitive);
}

std::optional<QPoint> AssistiveUser::placeOf(const QString &control, const QString &role) const
{
    QRect frame;
    const auto hasPlace = [&](const AccessibleObject &object) {
        frame = object.frame();
        return !frame.isEmpty() && (role.isEmpty() || object.role() == role);
    };
    return find(control, hasPlace) ? std::optional<QPoint>(frame.center()) : std::nullopt;
}
