// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

/**
 * @file
 * Names that a user, a job or a script meets in the print dialog, as tests write them.
 */

/// The titles of our tabs.
inline const QString kPanelTab = QStringLiteral("Cut Options");
inline const QString kSummaryTab = QStringLiteral("Summary");

/// The sample tape printer's queue.
inline const QString tape = QStringLiteral("tape");

/// Check boxes of the panel.
inline const QString halfCutBox = QStringLiteral("mHalfCutChkBx");
inline const QString mirrorBox = QStringLiteral("mMirrorPrintChkBx");

/// Choices in a job.
inline const QString halfCutOn = QStringLiteral("KvHalfCut=ON");
