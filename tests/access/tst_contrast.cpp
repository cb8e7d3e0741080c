// SPDX-License-Identifier: Apache-2.0
#include "PanelFixture.h"
#include "support/CheckedStyles.h"

#include <QApplication>

#include <algorithm>
#include <cmath>

/// Whether the panel's texts stand out from what is behind them.
class ContrastTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void ratioIsThatOfTheEye();
    void textsStandOut_data();
    void textsStandOut();

private:
    QPalette mPalette;
    QString mStyle;
};

namespace {
/// What the guidelines for accessible texts ask for.
constexpr double leastContrast = 4.5;

QPalette darkPalette()
{
    QPalette palette(QColor(0x31, 0x31, 0x31), QColor(0x2a, 0x2a, 0x2a));
    palette.setColor(QPalette::Base, QColor(0x1e, 0x1e, 0x1e));
    palette.setColor(QPalette::Highlight, QColor(0x3d, 0x7e, 0xc8));
    return palette;
}

double linear(int channel)
{
    const double value = channel / 255.0;
    return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double luminance(QRgb color)
{
    return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) +
           0.0722 * linear(qBlue(color));
}

double contrast(double one, double other)
{
    return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

/// The strongest contrast of a pixel with the picture's most frequent colour.
double contrastIn(const QImage &picture)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            ++counts[picture.pixel(x, y)];
        }
    }
    const auto background = std::max_element(counts.cbegin(), counts.cend());
    double strongest = 1.0;
    for (auto color = counts.cbegin(); color != counts.cend(); ++color) {
        strongest =
            std::max(strongest, contrast(luminance(color.key()), luminance(background.key())));
    }
    return strongest;
}

/// The part of a control that holds its text, as it is on the screen.
QImage textOf(QWidget *control)
{
    const QRect text = control->rect().adjusted(24, 4, -4, -4);
    return control->window()
        ->grab(QRect(control->mapTo(control->window(), text.topLeft()), text.size()))
        .toImage();
}
} // namespace

void ContrastTest::initTestCase()
{
    mPalette = QApplication::palette();
    mStyle = QApplication::style()->objectName();
}

void ContrastTest::cleanup()
{
    QApplication::setStyle(mStyle);
    QApplication::setPalette(mPalette);
}

void ContrastTest::ratioIsThatOfTheEye()
{
    QCOMPARE(contrast(luminance(qRgb(0, 0, 0)), luminance(qRgb(255, 255, 255))), 21.0);
    QImage picture(20, 20, QImage::Format_RGB32);
    picture.fill(Qt::white);
    picture.setPixel(3, 3, qRgb(0x77, 0x77, 0x77));
    QVERIFY(std::abs(contrastIn(picture) - 4.48) < 0.01);
}

void ContrastTest::textsStandOut_data()
{
    QTest::addColumn<QString>("style");
    QTest::addColumn<bool>("isDark");
    const QStringList styles = checkedStyles();
    for (const QString &style : styles) {
        QTest::addRow("%s, light", qPrintable(style)) << style << false;
        QTest::addRow("%s, dark", qPrintable(style)) << style << true;
    }
}

void ContrastTest::textsStandOut()
{
    QFETCH(QString, style);
    QFETCH(bool, isDark);
    QApplication::setStyle(style);
    QApplication::setPalette(isDark ? darkPalette() : QApplication::style()->standardPalette());
    PanelFixture fixture;
    fixture.show();
    // The caption is dimmed and shown as usual again.
    fixture.click(OptionCatalogue::CutEvery);
    QVERIFY(contrastIn(textOf(fixture.panel->mCutEveryStr)) < leastContrast);
    fixture.click(OptionCatalogue::CutEvery);
    QVERIFY(fixture.panel->mCutEveryTxBx->isEnabled());
    QList<QWidget *> controls = {fixture.panel->mCutEveryTxBx, fixture.panel->mCutEveryStr};
    for (const Option option : everyOption) {
        controls.append(fixture.box(option));
    }
    for (QWidget *control : controls) {
        const double found = contrastIn(textOf(control));
        QVERIFY2(found >= leastContrast,
                 qPrintable(u"%1: %2"_s.arg(control->objectName()).arg(found)));
    }
}

KV_TEST(ContrastTest)
#include "tst_contrast.moc"
