// SPDX-License-Identifier: Apache-2.0
#include "preview/OptionView.h"

#include "printcore/Bundle.h"
#include "printcore/CheckedFile.h"
#include "toolkit/ViewGeometry.h"

#include <QAbstractButton>
#include <QFileInfo>
#include <QPainter>

#include <span>

namespace {
constexpr const char *picturesRV[] = {
    "EveryEndMirrorOffOffOff", "EveryEndMirrorOffOnOff", "EveryEndMirrorOnOffOff",
    "EveryEndMirrorOffOffOn",  "EveryEndMirrorOffOnOn",  "EveryEndMirrorOnOffOn",
};

/// The first sixteen are indexed by auto cut, half cut, chain printing and mirror printing; the
/// cut-mark pictures at the end are never drawn.
constexpr const char *picturesMQ[] = {
    "AHCMOffOffOffOff", "AHCMOffOffOffOn", "AHCMOffOffOnOff", "AHCMOffOffOnOn",  "AHCMOffOnOffOff",
    "AHCMOffOnOffOn",   "AHCMOffOnOnOff",  "AHCMOffOnOnOn",   "AHCMOnOffOffOff", "AHCMOnOffOffOn",
    "AHCMOnOffOnOff",   "AHCMOnOffOnOn",   "AHCMOnOnOffOff",  "AHCMOnOnOffOn",   "AHCMOnOnOnOff",
    "AHCMOnOnOnOn",     "SPMROnOff",       "SPMROnOn",        "CTMROnOffOff",    "CTMROffOffOff",
    "CTMROnOnOff",      "CTMROffOnOff",
};

void loadPictures(std::span<PictureFile> pictures, std::span<const char *const> names,
                  const Bundle &bundle)
{
    const CheckedFile folder = bundle.resources();
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        const QString path = bundle.pathForImageResource(QLatin1String(names[i]));
        if (!path.isNull()) {
            pictures[i] = PictureFile(folder, QFileInfo(path).fileName());
        }
    }
}
} // namespace

std::unique_ptr<OptionView13_v400_>
OptionView13_v400_::initWithFrame(const QRect &frame, const Bundle &bundle, bool isRV)
{
    return std::unique_ptr<OptionView13_v400_>(new OptionView13_v400_(frame, bundle, isRV));
}

OptionView13_v400_::OptionView13_v400_(const QRect &frame, const Bundle &bundle, bool isRV)
    : mIsRV(isRV)
{
    static_assert(std::size(picturesRV) == std::tuple_size_v<decltype(mOptionImgRV)>);
    static_assert(std::size(picturesMQ) == std::tuple_size_v<decltype(mOptionImgMQ)>);
    setGeometry(frame);
    if (mIsRV) {
        loadPictures(mOptionImgRV, picturesRV, bundle);
    } else {
        loadPictures(mOptionImgMQ, picturesMQ, bundle);
    }
}

const QPixmap *OptionView13_v400_::targetDrawImage() const
{
    const std::size_t index = targetDrawIndex();
    const QPixmap &picture = mIsRV ? mOptionImgRV[index].pixmap() : mOptionImgMQ[index].pixmap();
    return picture.isNull() ? nullptr : &picture;
}

QString OptionView13_v400_::targetDrawImageName() const
{
    const std::size_t index = targetDrawIndex();
    return targetDrawImage() ? QLatin1String(mIsRV ? picturesRV[index] : picturesMQ[index])
                             : QString();
}

std::size_t OptionView13_v400_::targetDrawIndex() const
{
    const Strip strip = Strip::of(mBoxes);
    return mIsRV ? strip.pictureOfLabelSeries() : strip.pictureOfTapeFamily();
}

void OptionView13_v400_::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
    const QPixmap *picture = targetDrawImage();
    if (!picture) {
        return;
    }
    const double scale = pixelsPerPoint(this);
    const double ratio = picture->devicePixelRatio();
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, scale * devicePixelRatioF() != ratio);
    painter.scale(scale, scale);
    painter.drawPixmap(QPointF(0.0, height() / scale - picture->height() / ratio), *picture);
}

#include "moc_OptionView.cpp"
