#include "PanelFixture.h"

#include "toolkit/ViewGeometry.h"

#include <QApplication>

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
    void pictureGrowsWithTheFont();
    void longTitleIsElidedAndKeptWhole();
    void ampersandOfATitleIsShown();

private:
    static void useFontOf(int points);

    const QFont mFont = QApplication::font();
};

void AppearanceTest::cleanup()
{
    QApplication::setFont(mFont);
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
    QCOMPARE(frameSize(fixture.panel->kPDEView), QSizeF(550.0, 292.0));
    QCOMPARE(frameOrigin(fixture.box(OptionCatalogue::CutMark)).y(), 254.0);
    QCOMPARE(frameOrigin(fixture.box(OptionCatalogue::CutEvery)).y(), 228.0);
    QCOMPARE(frameOrigin(fixture.panel->mCutEveryTxBx).y(), 198.0);
    QCOMPARE(frameOrigin(fixture.panel->mCutEveryStpr).y(), 197.0);
    QCOMPARE(frameOrigin(fixture.panel->mCutEveryStr).y(), 204.0);
    QCOMPARE(frameOrigin(fixture.box(OptionCatalogue::RemoveBlkSpace)).y(), 20.0);
    QCOMPARE(frameOrigin(fixture.panel->mOptionView).y(), 162.0);
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
    QCOMPARE(box->title(), u"Cut & Peel"_qs);
    QCOMPARE(box->text(), u"Cut && Peel"_qs);
    QVERIFY(box->shortcut().isEmpty());
}

QTEST_MAIN(AppearanceTest)
#include "tst_appearance.moc"
