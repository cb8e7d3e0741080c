// SPDX-License-Identifier: Apache-2.0
#include "bench/MeasuredPrinter.h"

#include "support/PPDText.h"

namespace {
constexpr const char *onOffOptions[] = {
    "KvCutAtEnd",   "KvMirror",      "KvAutoTapeCut",    "KvHalfCut",
    "KvChainPrint", "KvSpecialTape", "KvRemoveBlkSpace", "KvCutMark",
};

constexpr double sizeWidth = 34.0;
constexpr double firstHeight = 283.0;
/// From one size to the next, so that no two are alike.
constexpr double heightStep = 0.5;

QByteArray sizeName(int index)
{
    return "T12x" + QByteArray::number(100 + index);
}
} // namespace

QString MeasuredPrinter::queue() const
{
    return QStringLiteral("counts%1sizes%2").arg(counts).arg(sizes);
}

QString MeasuredPrinter::lastCount() const
{
    return QString::number(counts);
}

QString MeasuredPrinter::lastSize() const
{
    return QString::fromLatin1(sizeName(sizes - 1));
}

QByteArray MeasuredPrinter::ppd() const
{
    PPDText text;
    for (int i = 0; i < sizes; ++i) {
        text.size(sizeName(i), sizeWidth, firstHeight + i * heightStep);
    }
    switch (keywords) {
    case Keywords::Panels:
        text.counts(1, counts).attribute("KvAutoCutObjHidden", "False");
        for (const char *keyword : onOffOptions) {
            text.onOff(keyword);
        }
        break;
    case Keywords::Standard:
        text.option("CutMedia", {"None", "EndOfPage", "EndOfJob"}, "None")
            .option("MirrorPrint", {"False", "True"}, "False");
        break;
    case Keywords::OfTheMap:
        text.counts(1, counts).attribute("KvTapeType", "RV");
        text.onOff("KvCutAtEnd").onOff("KvMirror").onOff("KvAutoTapeCut");
        break;
    }
    return text.data();
}

std::string MeasuredPrinter::labelled(const std::string &measurement) const
{
    return *name ? measurement + ", " + name : measurement;
}
