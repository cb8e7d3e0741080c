// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ppd/PPD.h"

#include <QByteArray>
#include <QStringList>

#include <memory>

/// Closes an open PPD.
struct PPDCloser
{
    void operator()(ppd_file_t *ppd) const { ppdClose(ppd); }
};
using PPDHandle = std::unique_ptr<ppd_file_t, PPDCloser>;

/// Writes the PPD of a printer that a test needs, and opens it.
class PPDText
{
public:
    /// A main keyword with a quoted value.
    PPDText &attribute(const QByteArray &name, const QByteArray &value);

    /**
     * An option.
     *
     * @param choices the choices' keywords, each with its text behind a slash if it has one.
     * @param defaultChoice an empty one leaves the default out.
     * @param text the option's text, in whatever bytes.
     */
    PPDText &option(const QByteArray &keyword, const QByteArrayList &choices,
                    const QByteArray &defaultChoice, const QByteArray &text = {});

    /// An option with the choices OFF and ON.
    PPDText &onOff(const QByteArray &keyword, const QByteArray &defaultChoice = "OFF",
                   const QByteArray &text = {});

    /// "KvCutLabel" with the counts from the smallest to the largest.
    PPDText &counts(int smallest = 1, int largest = 99, const QByteArray &defaultChoice = "1");

    /// All nine options with a separate auto-cut box; every OFF/ON option off, every count from 1.
    PPDText &allNine();

    /// A paper size in points. The first one is the default.
    PPDText &size(const QByteArray &name, double width, double height);

    /// The whole file.
    QByteArray data() const;

    /// The file opened by libcups; null when libcups refuses it.
    PPDHandle open() const;

private:
    QByteArray mBody;
    QByteArrayList mSizeNames;
    QByteArrayList mPageSizes;
    QByteArrayList mPaperDimensions;
    QByteArrayList mImageableAreas;
};
