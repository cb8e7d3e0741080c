// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "applications/AccessibleObject.h"

#include <QStringList>

/**
 * What the applications at a bus tell assistive technology of their controls.
 *
 * @param bus of assistive technology.
 * @return a line for each control that has a name, in the order of the tree: "checkbox: Half Cut,
 *         checked, grey; why it is grey". A control with a value tells it behind its name.
 */
QStringList accessibleLines(const QDBusConnection &bus);
