// SPDX-License-Identifier: Apache-2.0
#pragma once

class QString;
class QWidget;

/// Describes a control in its tool tip and, with the same words, to assistive technology, unless it
/// is described so already; does nothing for null.
void setTip(QWidget *control, const QString &text);
