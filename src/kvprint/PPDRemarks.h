// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>

class PPDFile;

/**
 * What is wrong with a PPD for its panels: each remark begins with the keyword or the size that it
 * is about.
 *
 * @param keys the options that the panels set; none when there is no panel.
 */
QStringList remarksOnPPD(const PPDFile &ppd, const QStringList &keys);
