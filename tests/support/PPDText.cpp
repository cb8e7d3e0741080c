// SPDX-License-Identifier: Apache-2.0
#include "support/PPDText.h"

#include <QTemporaryFile>

namespace {
constexpr char header[] = R"PPD(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: UTF-8
*PCFileName: "KVTEST.PPD"
*Manufacturer: "Korvane"
*Product: "(Korvane Test)"
*ModelName: "Korvane Test"
*ShortNickName: "Korvane Test"
*NickName: "Korvane Test, 1.0"
*PSVersion: "(3010.000) 0"
*LanguageLevel: "3"
*ColorDevice: False
*DefaultColorSpace: Gray
*FileSystem: False
*cupsVersion: 2.4
*cupsFilter: "application/vnd.cups-pdf 0 -"
)PPD";

QByteArray uiOpen(const QByteArray &keyword, const QByteArray &text)
{
    return "*OpenUI *" + keyword + (text.isEmpty() ? QByteArray() : "/" + text) + ": PickOne\n";
}
} // namespace

PPDText &PPDText::attribute(const QByteArray &name, const QByteArray &value)
{
    mBody += "*" + name + ": \"" + value + "\"\n";
    return *this;
}

PPDText &PPDText::option(const QByteArray &keyword, const QByteArrayList &choices,
                         const QByteArray &defaultChoice, const QByteArray &text)
{
    mBody += uiOpen(keyword, text);
    if (!defaultChoice.isEmpty()) {
        mBody += "*Default" + keyword + ": " + defaultChoice + "\n";
    }
    for (const QByteArray &choice : choices) {
        mBody += "*" + keyword + " " + choice + ": \"\"\n";
    }
    mBody += "*CloseUI: *" + keyword + "\n";
    return *this;
}

PPDText &PPDText::onOff(const QByteArray &keyword, const QByteArray &defaultChoice,
                        const QByteArray &text)
{
    return option(keyword, {"OFF/Off", "ON/On"}, defaultChoice, text);
}

PPDText &PPDText::counts(int smallest, int largest, const QByteArray &defaultChoice)
{
    QByteArrayList choices;
    for (int count = smallest; count <= largest; ++count) {
        choices.append(QByteArray::number(count));
    }
    return option("KvCutLabel", choices, defaultChoice, "Cut Every");
}

PPDText &PPDText::allNine()
{
    counts();
    for (const char *keyword : {"KvCutAtEnd", "KvMirror", "KvAutoTapeCut", "KvHalfCut",
                                "KvChainPrint", "KvSpecialTape", "KvRemoveBlkSpace", "KvCutMark"}) {
        onOff(keyword);
    }
    return attribute("KvAutoCutObjHidden", "False");
}

PPDText &PPDText::size(const QByteArray &name, double width, double height)
{
    const QByteArray w = QByteArray::number(width);
    const QByteArray h = QByteArray::number(height);
    mSizeNames.append(name);
    mPageSizes.append("*PageSize " + name + "/" + name + ": \"\"\n");
    mImageableAreas.append("*ImageableArea " + name + ": \"0 0 " + w + " " + h + "\"\n");
    mPaperDimensions.append("*PaperDimension " + name + ": \"" + w + " " + h + "\"\n");
    return *this;
}

QByteArray PPDText::data() const
{
    QByteArray text = header;
    if (!mSizeNames.isEmpty()) {
        const QByteArray first = mSizeNames.first();
        text += uiOpen("PageSize", {}) + "*DefaultPageSize: " + first + "\n" + mPageSizes.join() +
                "*CloseUI: *PageSize\n";
        text += "*DefaultImageableArea: " + first + "\n" + mImageableAreas.join();
        text += "*DefaultPaperDimension: " + first + "\n" + mPaperDimensions.join();
    }
    return text + mBody;
}

PPDHandle PPDText::open() const
{
    QTemporaryFile file;
    if (!file.open() || file.write(data()) < 0 || !file.flush()) {
        return nullptr;
    }
    PPDHandle ppd(ppdOpenFile(file.fileName().toLocal8Bit().constData()));
    if (ppd) {
        ppdMarkDefaults(ppd.get());
    }
    return ppd;
}
