// SPDX-License-Identifier: Apache-2.0
#pragma once

class QAbstractButton;
class QWidget;

/**
 * @file
 * What a control of a nib is now. A null control, which the nib lacks, counts as hidden, disabled
 * and off.
 */

/// Enables or disables a control unless it is so already.
void setControlEnabled(QWidget *control, bool enabled);
/// Whether the control itself is enabled, whatever its parents are.
bool isControlEnabled(const QWidget *control);

/// Whether the control itself is not hidden, whatever its parents are.
bool isControlShown(const QWidget *control);

/// Whether a check box counts as on: it is shown and ticked.
bool isOn(const QAbstractButton *box);
