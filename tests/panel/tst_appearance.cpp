// SPDX-License-Identifier: Apache-2.0
#include "PanelFixture.h"

#include "toolkit/ViewGeometry.h"

#include <QApplication>

#include <cmath>

/// How the panel looks with the user's fonts and with long texts.
class AppearanceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void noTextIsClipped_data();
    void noTextIsClipped();
    void layoutKeepsItsPoints_data();
    void layoutKeepsItsPoints();
    void viewIsAsWideAsItsTitlesNeed();
    void captionStandsOnTheFieldsLine_data();
    void captionStandsOnTheFieldsLine();
    void pictureGrowsWithTheFont();
    void longTitleIsElidedAndKeptWhole();
    void ampersandOfATitleIsShown();

private:
    static void useFontOf(int points);

    const QFont mFont = QApplication::font();
    const QString mStyle = QApplication::style()->objectName();
};

void AppearanceTest::cleanup()
{
    QApplication::setFont(mFont);
    QApplication::setStyle(mStyle);
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

void AppearanceTest::useFontOf(int points)
{
    QFont font = QApplication::font();
    font.setPointSize(points);
    QApplication::setFont(font);
}

void AppearanceTest::noTextIsClipped_data()
{
    QTest::addColumn<int>("points");
    for (const int points : {7, 9, 12, 16, 20, 28}) {
        QTest::addRow("%d points", points) << points;
    }
}

void AppearanceTest::noTextIsClipped()
{
    QFETCH(int, points);
    useFontOf(points);
    PanelFixture fixture;
    fixture.show();
    for (const Option option : everyOption) {
        const CheckBox *box = fixture.box(option);
        QVERIFY2(box->height() >= box->fontMetrics().height(), factsOf(option).outlet);
        QVERIFY2(box->y() + box->height() <= fixture.panel->kPDEView->height(),
                 factsOf(option).outlet);
    }
    const QLabel *caption = fixture.panel->mCutEveryStr;
    QVERIFY(caption->height() >= caption->fontMetrics().height());
    QVERIFY(caption->width() >= caption->sizeHint().width());
    const QLineEdit *field = fixture.panel->mCutEveryTxBx;
    QVERIFY(field->height() >= field->fontMetrics().height());
    QVERIFY(fixture.panel->mOptionView->geometry().right() < fixture.panel->kPDEView->width());
}

void AppearanceTest::layoutKeepsItsPoints_data()
{
    noTextIsClipped_data();
}

void AppearanceTest::layoutKeepsItsPoints()
{
    QFETCH(int, points);
    useFontOf(points);
    PanelFixture fixture;
    fixture.show();
    QCOMPARE(frameSize(fixture.panel->kPDEView), QSizeF(480.0, 292.0));
    QCOMPARE(frameOrigin(fixture.box(OptionCatalogue::CutMark)).y(), 254.0);
    QCOMPARE(frameOrigin(fixture.box(OptionCatalogue::CutEvery)).y(), 228.0);
    QCOMPARE(frameOrigin(fixture.panel->mCutEveryTxBx).y(), 198.0);
    QCOMPARE(frameOrigin(fixture.panel->mCutEveryStpr).y(), 197.0);
    QCOMPARE(frameOrigin(fixture.panel->mCutEveryStr).y(), 204.0);
    QCOMPARE(frameOrigin(fixture.box(OptionCatalogue::RemoveBlkSpace)).y(), 20.0);
    QCOMPARE(frameOrigin(fixture.panel->mOptionView).y(), 162.0);
}

void AppearanceTest::viewIsAsWideAsItsTitlesNeed()
{
    PanelFixture fixture;
    fixture.show();
    QCOMPARE(frameSize(fixture.panel->kPDEView).width(), 480.0);
    QCOMPARE(frameSize(fixture.box(OptionCatalogue::HalfCut)).width(), 190.0);
    useFontOf(9);
    PanelFixture wordy(PPDText().onOff("KvHalfCut", "OFF", QByteArray(30, 'W')));
    wordy.show();
    const CheckBox *box = wordy.box(OptionCatalogue::HalfCut);
    const double by = frameSize(box).width() - 190.0;
    QVERIFY(by > 0.0);
    QVERIFY(box->sizeHint().width() <= box->width());
    QCOMPARE(frameSize(wordy.panel->kPDEView).width(), 480.0 + by);
    QCOMPARE(frameOrigin(wordy.panel->mOptionView).x(), 220.0 + by);
    QCOMPARE(frameOrigin(wordy.panel->mOptionPopUpButton).x(), 220.0 + by);
}

void AppearanceTest::captionStandsOnTheFieldsLine_data()
{
    noTextIsClipped_data();
}

void AppearanceTest::captionStandsOnTheFieldsLine()
{
    QFETCH(int, points);
    useFontOf(points);
    PanelFixture fixture;
    fixture.show();
    const QLabel *caption = fixture.panel->mCutEveryStr;
    const QLineEdit *field = fixture.panel->mCutEveryTxBx;
    const Stepper *stepper = fixture.panel->mCutEveryStpr;
    const double middle = caption->geometry().bottom() + 1 - caption->fontMetrics().height() / 2.0;
    const double fieldsMiddle = field->geometry().top() + field->height() / 2.0;
    const double steppersMiddle = stepper->geometry().top() + stepper->height() / 2.0;
    QVERIFY2(std::abs(middle - fieldsMiddle) <= 2.0,
             qPrintable(QString::number(middle - fieldsMiddle)));
    QVERIFY(std::abs(fieldsMiddle - steppersMiddle) <= 1.0);
    QVERIFY(field->geometry().right() < stepper->geometry().left());
    QVERIFY(stepper->geometry().right() < caption->geometry().left());
    // Neighbours touch; a length that is no whole pixel may make that one pixel of both.
    const QRect inside = field->geometry().adjusted(0, 1, 0, -1);
    QVERIFY(!fixture.box(OptionCatalogue::CutEvery)->geometry().intersects(inside));
    QVERIFY(!fixture.box(OptionCatalogue::AutoCut)->geometry().intersects(inside));
}

void AppearanceTest::pictureGrowsWithTheFont()
{
    useFontOf(20);
    PanelFixture fixture;
    fixture.show();
    const OptionView13_v400_ *view = fixture.panel->mOptionView;
    const double scale = pixelsPerPoint(view);
    QVERIFY2(scale > 1.2, qPrintable(QString::number(scale)));
    const QImage shown = fixture.panel->mOptionView->grab().toImage();
    const QImage picture = view->targetDrawImage()->toImage();
    const QPoint middle(picture.width() / 2, picture.height() - 30);
    QVERIFY(picture.pixelColor(middle).alpha() > 0);
    const int fromBottom = picture.height() - middle.y();
    const QColor drawn =
        shown.pixelColor(int(middle.x() * scale), shown.height() - int(fromBottom * scale));
    QCOMPARE(drawn.lightness() > 128, picture.pixelColor(middle).lightness() > 128);
    // The printer at the picture's right end is drawn at the view's right end.
    const QPoint printer(picture.width() - 4, picture.height() / 2);
    const QColor printerDrawn = shown.pixelColor(
        int(printer.x() * scale), shown.height() - int((picture.height() - printer.y()) * scale));
    QCOMPARE(printerDrawn.lightness() / 16, picture.pixelColor(printer).lightness() / 16);
}

void AppearanceTest::longTitleIsElidedAndKeptWhole()
{
    const QByteArray title(79, 'W');
    PanelFixture fixture(PPDText().onOff("KvHalfCut", "OFF", title));
    fixture.show();
    const CheckBox *box = fixture.box(OptionCatalogue::HalfCut);
    QCOMPARE(box->title(), QString::fromLatin1(title));
    QVERIFY(box->sizeHint().width() > box->width());
    QVERIFY(box->geometry().right() < fixture.panel->mOptionView->geometry().left());
    QCOMPARE(box->accessibleName(), QString::fromLatin1(title));
}

void AppearanceTest::ampersandOfATitleIsShown()
{
    PanelFixture fixture(PPDText().onOff("KvHalfCut", "OFF", "Cut & Peel"));
    fixture.show();
    const CheckBox *box = fixture.box(OptionCatalogue::HalfCut);
    QCOMPARE(box->title(), u"Cut & Peel"_s);
    QCOMPARE(box->text(), u"Cut && Peel"_s);
    QVERIFY(box->shortcut().isEmpty());
}

KV_TEST(AppearanceTest)
#include "tst_appearance.moc"
