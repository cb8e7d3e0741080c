// SPDX-License-Identifier: Apache-2.0
#include "PictureNames.h"

#include "preview/OptionView.h"
#include "printcore/CheckedFile.h"
#include "support/BundleCopy.h"
#include "toolkit/PictureFile.h"
#include "toolkit/PictureIcon.h"

#include <QCheckBox>
#include <QPainter>
#include <QProcess>
#include <QtTest>

#include <cmath>

#include <sys/stat.h>

/// The pictures on a screen of this process's fineness.
class PictureScaleTest : public QObject
{
    Q_OBJECT

    /// The variant for this screen, and whether its pixels are the screen's.
    PictureNames::Variant mVariant{};
    bool mIsExact = false;

private Q_SLOTS:
    void initTestCase();
    void pictureIsOfTheVariantForTheScreen_data();
    void pictureIsOfTheVariantForTheScreen();
    void previewIsDrawnSharp_data();
    void previewIsDrawnSharp();
    void previewIsDrawnSharpAtAnyPlace();
    void iconIsDrawnSharp_data();
    void iconIsDrawnSharp();
    void smallIconIsTheWholePicture();
    void disabledIconIsPaler();
    void missingVariantIsReplaced();
    void pipeIsNoVariant();
    void drawingReadsNoFile();
};

namespace {
PictureFile pictureAt(const QString &path)
{
    const QFileInfo file(path);
    return {CheckedFile::trusted(file.path(), FileUse::Enter), file.fileName()};
}

double screenRatio()
{
    return qGuiApp->devicePixelRatio();
}

QImage plain(const QImage &image)
{
    QImage copy = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    copy.setDevicePixelRatio(1.0);
    return copy;
}

/// The picture as the drawing describes it, rendered for this screen.
QImage reference(const QString &name, const PictureNames::Variant &variant)
{
    const QString own =
        QStringLiteral(KV_PICTURE_SVG_DIR "/%1%2.svg").arg(name, QLatin1String(variant.mark));
    const QString source =
        QFile::exists(own) ? own : QStringLiteral(KV_PICTURE_SVG_DIR "/%1.svg").arg(name);
    QProcess renderer;
    renderer.start(QStringLiteral(KV_RSVG_CONVERT),
                   {u"--zoom"_s, QString::number(variant.ratio), source});
    renderer.waitForFinished();
    return plain(QImage::fromData(renderer.readAllStandardOutput(), "PNG"));
}

/// An image on a ground.
QImage onGround(const QImage &image)
{
    QImage drawn(image.size(), QImage::Format_ARGB32_Premultiplied);
    drawn.fill(QColor(0xef, 0xef, 0xef));
    QPainter(&drawn).drawImage(0, 0, image);
    return drawn;
}

/// How steep the picture's edges are: the mean square of the steps between neighbouring pixels.
double sharpness(const QImage &image)
{
    const QImage grey = image.convertToFormat(QImage::Format_Grayscale8);
    qint64 sum = 0;
    for (int y = 0; y < grey.height(); ++y) {
        const uchar *line = grey.constScanLine(y);
        for (int x = 1; x < grey.width(); ++x) {
            const int step = line[x] - line[x - 1];
            sum += qint64(step) * step;
        }
    }
    return double(sum) / (double(image.width()) * image.height());
}

QImage grabbed(QWidget &widget)
{
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(0xef, 0xef, 0xef));
    widget.setPalette(palette);
    return plain(widget.grab().toImage());
}

QRect viewFrame()
{
    return {QPoint(0, 0), PictureNames::previewFrame()};
}

std::shared_ptr<Bundle> builtBundle()
{
    return Bundle::open(QStringLiteral(KV_BUNDLE_DIR));
}

/// A view with nothing ticked but what the picture of that name shows.
struct ShownPicture
{
    ShownPicture(const Bundle &bundle, const QString &name)
        : view(OptionView13_v400_::initWithFrame(viewFrame(), bundle,
                                                 name.startsWith(u"EveryEndMirror")))
    {
        QList<bool> on = PictureNames::switchesOf(name);
        mirror.setChecked(on.takeLast());
        if (name.startsWith(u"EveryEndMirror")) {
            autoCut.setChecked(on.at(0));
            atEnd.setChecked(on.at(1));
        } else if (name.startsWith(u"AHCM")) {
            autoCut.setChecked(on.at(0));
            halfCut.setChecked(on.at(1));
            chain.setChecked(on.at(2));
        } else {
            special.setChecked(true);
        }
        for (QCheckBox *box : {&autoCut, &atEnd, &halfCut, &chain, &special, &mirror}) {
            box->setVisible(true);
        }
        view->setAutoCutChkBx(&autoCut);
        view->setCutAndEndChkBx(&atEnd);
        view->setHalfCutChkBx(&halfCut);
        view->setChainPrintChkBx(&chain);
        view->setSpecialTapeChkBx(&special);
        view->setMirrorPrintChkBx(&mirror);
    }

    QCheckBox autoCut, atEnd, halfCut, chain, special, mirror;
    std::unique_ptr<OptionView13_v400_> view;
};

QStringList drawnNames()
{
    QStringList names = PictureNames::previews();
    names.removeIf([](const QString &name) { return name.startsWith(u"CTMR"); });
    return names;
}

/// The picture of that name in a variant, as large as it is on this screen.
QImage scaledVariant(const QString &name, const char *mark, const QSize &size)
{
    return plain(QImage(PictureNames::path(name, mark)))
        .scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}
} // namespace

void PictureScaleTest::initTestCase()
{
    QCOMPARE(PictureNames::previews().size(), 28);
    for (const PictureNames::Variant &variant : PictureNames::variants) {
        if (variant.ratio >= screenRatio() && mVariant.ratio == 0.0) {
            mVariant = variant;
        }
    }
    QVERIFY(mVariant.ratio > 0.0);
    mIsExact = mVariant.ratio == screenRatio();
}

void PictureScaleTest::pictureIsOfTheVariantForTheScreen_data()
{
    PictureNames::addRows(PictureNames::previews() + PictureNames::presets());
}

void PictureScaleTest::pictureIsOfTheVariantForTheScreen()
{
    QFETCH(const QString, name);
    const PictureFile file = pictureAt(PictureNames::path(name, ""));
    QCOMPARE(file.pixmap().devicePixelRatio(), mVariant.ratio);
    const QImage drawn = plain(file.pixmap().toImage());
    QCOMPARE(drawn, plain(QImage(PictureNames::path(name, mVariant.mark))));
    // Another scale has the same variant for its own.
    if (mIsExact) {
        QCOMPARE(drawn, reference(name, mVariant));
    }
}

void PictureScaleTest::previewIsDrawnSharp_data()
{
    PictureNames::addRows(drawnNames());
}

void PictureScaleTest::previewIsDrawnSharp()
{
    QFETCH(const QString, name);
    const ShownPicture shown(*builtBundle(), name);
    QCOMPARE(shown.view->targetDrawImageName(), name);
    const QImage drawn = grabbed(*shown.view);
    QCOMPARE(drawn.size(), (QSizeF(viewFrame().size()) * screenRatio()).toSize());
    const QImage variant = onGround(scaledVariant(name, mVariant.mark, drawn.size()));
    if (mIsExact) {
        QCOMPARE(drawn, variant);
    }
    const double fine = sharpness(variant);
    const double coarse = sharpness(onGround(scaledVariant(name, "", drawn.size())));
    const double sharp = sharpness(drawn);
    QVERIFY(sharp > 0.97 * fine);
    if (screenRatio() > 1.4) {
        QVERIFY2(sharp > 1.3 * coarse, qPrintable(u"%1 %2"_s.arg(sharp).arg(coarse)));
    }
}

void PictureScaleTest::previewIsDrawnSharpAtAnyPlace()
{
    const QString name = u"AHCMOnOnOffOff"_s;
    QWidget parent;
    parent.resize(300, 120);
    ShownPicture shown(*builtBundle(), name);
    OptionView13_v400_ *view = shown.view.release();
    view->setParent(&parent);
    const QImage whole = onGround(plain(QImage(PictureNames::path(name, mVariant.mark))));
    for (const QPoint place : {QPoint(0, 0), QPoint(1, 1), QPoint(3, 2), QPoint(8, 5)}) {
        view->move(place);
        const QImage drawn = grabbed(parent);
        if (!mIsExact) {
            QVERIFY(sharpness(drawn) > 0.0);
            continue;
        }
        // Between the screen's pixels there is nothing: one of the next places has the picture.
        const QPointF exact = QPointF(place) * screenRatio();
        const QRect inside = whole.rect().adjusted(2, 2, -2, -2);
        bool isFound = false;
        for (const QPoint &pixel : {QPoint(int(std::floor(exact.x())), int(std::floor(exact.y()))),
                                    QPoint(int(std::ceil(exact.x())), int(std::ceil(exact.y())))}) {
            isFound |= drawn.copy(inside.translated(pixel)) == whole.copy(inside);
        }
        QVERIFY(isFound);
    }
}

void PictureScaleTest::iconIsDrawnSharp_data()
{
    PictureNames::addRows(PictureNames::presets());
}

void PictureScaleTest::iconIsDrawnSharp()
{
    QFETCH(const QString, name);
    const QIcon icon(new PictureIcon(pictureAt(PictureNames::path(name, ""))));
    const QSize frame = PictureNames::iconFrame();
    const QSize pixels = (QSizeF(frame) * screenRatio()).toSize();
    QCOMPARE(icon.actualSize(frame), frame);
    const QPixmap pixmap = icon.pixmap(frame);
    QCOMPARE(pixmap.size(), pixels);
    QCOMPARE(pixmap.devicePixelRatio(), screenRatio());

    QImage painted(pixels, QImage::Format_ARGB32_Premultiplied);
    painted.setDevicePixelRatio(screenRatio());
    painted.fill(Qt::transparent);
    QPainter painter(&painted);
    icon.paint(&painter, QRect(QPoint(), frame));
    painter.end();

    const QImage expected = scaledVariant(name, mVariant.mark, pixels);
    QCOMPARE(plain(pixmap.toImage()), expected);
    QCOMPARE(plain(painted), expected);
}

void PictureScaleTest::smallIconIsTheWholePicture()
{
    const QString name = PictureNames::presets().first();
    const QIcon icon(new PictureIcon(pictureAt(PictureNames::path(name, ""))));
    const QSize half = PictureNames::iconFrame() / 2;
    QCOMPARE(icon.actualSize(half), half);
    const QImage small = plain(icon.pixmap(half).toImage());
    QVERIFY(std::abs(small.width() - half.width() * screenRatio()) <= 1.0);
    QVERIFY(std::abs(small.height() - half.height() * screenRatio()) <= 1.0);
    QCOMPARE(small, scaledVariant(name, mVariant.mark, small.size()));
    QVERIFY(QIcon(new PictureIcon(pictureAt(u"none.png"_s))).pixmap(half).isNull());
}

void PictureScaleTest::disabledIconIsPaler()
{
    const QIcon icon(
        new PictureIcon(pictureAt(PictureNames::path(u"PresetAHCMOnOffOffOff"_s, ""))));
    const QSize frame = PictureNames::iconFrame();
    const QImage enabled = onGround(plain(icon.pixmap(frame).toImage()));
    const QImage disabled = onGround(plain(icon.pixmap(frame, QIcon::Disabled).toImage()));
    QCOMPARE(disabled.size(), enabled.size());
    QVERIFY(sharpness(disabled) < 0.8 * sharpness(enabled));
}

void PictureScaleTest::missingVariantIsReplaced()
{
    const QString name = u"AHCMOnOnOffOff"_s;
    BundleCopy copy;
    const auto bundle = copy.open();
    const QString path = bundle->pathForImageResource(name);
    QList<double> ratios;
    for (int i = 0; i < 4; ++i) {
        const double ratio = pictureAt(path).pixmap().devicePixelRatio();
        ratios.append(ratio);
        for (const PictureNames::Variant &variant : PictureNames::variants) {
            if (variant.ratio == ratio) {
                QVERIFY(copy.removeResource(name + QLatin1String(variant.mark) + u".png"_s));
            }
        }
        if (ratio == 1.0) {
            break;
        }
    }
    // First the finer ones from the coarsest upwards, then the coarser ones downwards.
    QList<double> expected;
    for (const PictureNames::Variant &variant : PictureNames::variants) {
        if (variant.ratio >= screenRatio()) {
            expected.append(variant.ratio);
        }
    }
    for (auto variant = std::rbegin(PictureNames::variants);
         variant != std::rend(PictureNames::variants); ++variant) {
        if (variant->ratio < screenRatio()) {
            expected.append(variant->ratio);
        }
    }
    if (screenRatio() == 1.0) {
        expected = {1.0};
    }
    QCOMPARE(ratios, expected);
    QVERIFY(pictureAt(path).pixmap().isNull() || screenRatio() == 1.0);
}

void PictureScaleTest::pipeIsNoVariant()
{
    const QString name = u"AHCMOnOnOffOff"_s;
    const BundleCopy copy;
    const QString path = copy.open()->pathForImageResource(name);
    const QString variant = QFileInfo(path).path() + u'/' + name + u"%1.png"_s;
    for (const char *mark : {"@1.5x", "@2x", "@3x"}) {
        const QString pipe = variant.arg(QLatin1String(mark));
        QVERIFY(QFile::remove(pipe));
        QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0644), 0);
    }
    QCOMPARE(pictureAt(path).pixmap().devicePixelRatio(), 1.0);
}

void PictureScaleTest::drawingReadsNoFile()
{
    auto copy = std::make_unique<BundleCopy>();
    const auto bundle = copy->open();
    std::vector<std::unique_ptr<ShownPicture>> previews;
    for (const QString &name : drawnNames()) {
        previews.push_back(std::make_unique<ShownPicture>(*bundle, name));
    }
    QList<QIcon> icons;
    for (const QString &name : PictureNames::presets()) {
        icons.append(QIcon(new PictureIcon(pictureAt(bundle->pathForImageResource(name)))));
    }
    const QString gone = bundle->pathForImageResource(u"AHCMOffOffOffOff"_s);
    copy.reset();
    QVERIFY(!QFile::exists(gone));

    for (const auto &preview : previews) {
        const QString name = preview->view->targetDrawImageName();
        QVERIFY(!name.isEmpty());
        QCOMPARE(grabbed(*preview->view), grabbed(*ShownPicture(*builtBundle(), name).view));
    }
    const QSize frame = PictureNames::iconFrame();
    for (qsizetype i = 0; i < icons.size(); ++i) {
        const QIcon other(
            new PictureIcon(pictureAt(PictureNames::path(PictureNames::presets().at(i), ""))));
        QVERIFY(!icons.at(i).pixmap(frame).isNull());
        QCOMPARE(icons.at(i).pixmap(frame).toImage(), other.pixmap(frame).toImage());
    }
}

KV_TEST(PictureScaleTest)
#include "tst_picturescale.moc"
