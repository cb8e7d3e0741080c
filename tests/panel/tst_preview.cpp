// SPDX-License-Identifier: Apache-2.0
#include "PanelFixture.h"
#include "StripTable.h"
#include "support/BundleCopy.h"

#include <QPainter>

#include <array>

/// The picture of the strip that will come out.
class PreviewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyCombinationHasItsPicture_data();
    void everyCombinationHasItsPicture();
    void pictureStandsInTheLowerLeftCorner_data();
    void pictureStandsInTheLowerLeftCorner();
    void missingPictureLeavesItsCombinationsBlank_data();
    void missingPictureLeavesItsCombinationsBlank();
    void unreadablePictureCountsAsMissing();
    void picturesAreReadOnce();
    void onlyThePrintersKindIsLoaded_data();
    void onlyThePrintersKindIsLoaded();
    void viewStartsWithoutBoxes();
    void cutMarkNeverChangesThePicture();
    void clickIsShownInThePanel_data();
    void clickIsShownInThePanel();
};

namespace {
/// A preview with nine check boxes of its own, all shown.
struct Preview
{
    Preview(bool isRV, const Bundle &bundle, const QSize &size = QSize(240, 92))
        : view(OptionView13_v400_::initWithFrame(QRect(QPoint(7, 9), size), bundle, isRV))
    {
        for (auto &box : boxes) {
            box = new QCheckBox(&panel);
            box->show();
        }
        view->setCutEveryChkBx(boxes[OptionCatalogue::CutEvery]);
        view->setCutAndEndChkBx(boxes[OptionCatalogue::CutAtEnd]);
        view->setMirrorPrintChkBx(boxes[OptionCatalogue::Mirror]);
        view->setAutoCutChkBx(boxes[OptionCatalogue::AutoCut]);
        view->setHalfCutChkBx(boxes[OptionCatalogue::HalfCut]);
        view->setChainPrintChkBx(boxes[OptionCatalogue::ChainPrint]);
        view->setSpecialTapeChkBx(boxes[OptionCatalogue::SpecialTape]);
        view->setRemoveBlkSpaceChkBx(boxes[OptionCatalogue::RemoveBlkSpace]);
        view->setCutMarkChkBx(boxes[OptionCatalogue::CutMark]);
    }

    void setOn(const Boxes &on)
    {
        for (std::size_t i = 0; i < boxes.size(); ++i) {
            boxes[i]->setChecked(on[i]);
        }
    }
    QString name(std::initializer_list<Option> on)
    {
        Boxes states;
        for (const Option option : on) {
            states.set(option);
        }
        setOn(states);
        return view->targetDrawImageName();
    }

    QWidget panel;
    std::array<QCheckBox *, 9> boxes{};
    std::unique_ptr<OptionView13_v400_> view;
};

QImage imageOf(QWidget *widget)
{
    return widget->grab().toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

/// What a view of that size looks like with no picture.
QImage blank(const QSize &size)
{
    QWidget plain;
    plain.resize(size);
    return imageOf(&plain);
}

/// What a view of that size looks like with the picture in its lower left corner.
QImage withPicture(const QSize &size, const QString &name)
{
    QImage image = blank(size);
    const QPixmap picture(QStringLiteral(KV_BUNDLE_DIR "/Contents/Resources/") + name + u".png"_s);
    QPainter painter(&image);
    painter.drawPixmap(0, size.height() - picture.height(), picture);
    return image;
}

void addKindRows()
{
    QTest::addColumn<bool>("isRV");
    QTest::newRow("label printer") << true;
    QTest::newRow("tape printer") << false;
}
} // namespace

void PreviewTest::everyCombinationHasItsPicture_data()
{
    addKindRows();
}

void PreviewTest::everyCombinationHasItsPicture()
{
    QFETCH(bool, isRV);
    Preview preview(isRV, *testBundle());
    QMap<QString, QImage> pictures;
    for (unsigned long long on = 0; on < everyCombination; ++on) {
        const QString name = expectedName(isRV, on);
        preview.setOn(on);
        QCOMPARE(preview.view->targetDrawImageName(), name);
        if (!pictures.contains(name)) {
            pictures.insert(name, withPicture(preview.view->size(), name));
        }
        QCOMPARE(imageOf(preview.view.get()), pictures.value(name));
    }
    QCOMPARE(pictures.size(), isRV ? 6 : 18);
    // No two of them look the same, and none is empty.
    pictures.insert(u"none"_s, blank(preview.view->size()));
    const QList<QImage> images = pictures.values();
    for (int i = 0; i < images.size(); ++i) {
        QCOMPARE(int(images.indexOf(images.at(i))), i);
    }
}

void PreviewTest::pictureStandsInTheLowerLeftCorner_data()
{
    QTest::addColumn<bool>("isRV");
    QTest::addColumn<QSize>("size");
    for (const bool isRV : {true, false}) {
        const char *kind = isRV ? "label" : "tape";
        QTest::addRow("%s printer, of the picture's size", kind) << isRV << QSize(240, 92);
        QTest::addRow("%s printer, larger", kind) << isRV << QSize(301, 151);
        QTest::addRow("%s printer, smaller", kind) << isRV << QSize(101, 53);
        QTest::addRow("%s printer, higher and narrower", kind) << isRV << QSize(100, 200);
    }
}

void PreviewTest::pictureStandsInTheLowerLeftCorner()
{
    QFETCH(bool, isRV);
    QFETCH(QSize, size);
    Preview preview(isRV, *testBundle(), size);
    QCOMPARE(preview.view->geometry(), QRect(QPoint(7, 9), size));
    QVERIFY(!preview.view->isFlipped());
    for (const unsigned long long on : {0ULL, 1ULL, 4ULL, 0x1FULL, 0x44ULL}) {
        preview.setOn(on);
        const QImage expected = withPicture(size, expectedName(isRV, on));
        QCOMPARE(imageOf(preview.view.get()), expected);
        QVERIFY(expected != blank(size));
    }
}

void PreviewTest::missingPictureLeavesItsCombinationsBlank_data()
{
    QTest::addColumn<bool>("isRV");
    QTest::addColumn<QString>("name");
    for (const bool isRV : {true, false}) {
        QStringList names;
        for (unsigned long long on = 0; on < everyCombination; ++on) {
            names.append(expectedName(isRV, on));
        }
        names.removeDuplicates();
        for (const QString &name : std::as_const(names)) {
            QTest::newRow(qPrintable(name)) << isRV << name;
        }
    }
}

void PreviewTest::missingPictureLeavesItsCombinationsBlank()
{
    QFETCH(bool, isRV);
    QFETCH(QString, name);
    BundleCopy copy;
    for (const char *mark : {"", "@1.5x", "@2x", "@3x"}) {
        QVERIFY(copy.removeResource(name + QLatin1String(mark) + u".png"_s));
    }
    Preview preview(isRV, *copy.open());
    int blanks = 0;
    for (unsigned long long on = 0; on < everyCombination; ++on) {
        preview.setOn(on);
        const QString expected = expectedName(isRV, on);
        const bool missing = expected == name;
        QCOMPARE(preview.view->targetDrawImage() == nullptr, missing);
        QCOMPARE(preview.view->targetDrawImageName(), missing ? QString() : expected);
        if (missing && blanks++ == 0) {
            QCOMPARE(imageOf(preview.view.get()), blank(preview.view->size()));
        }
    }
    QVERIFY(blanks > 0);
}

void PreviewTest::unreadablePictureCountsAsMissing()
{
    BundleCopy copy;
    const auto bundle = copy.open();
    QFile picture(bundle->pathForImageResource(u"AHCMOffOffOffOff"_s));
    QVERIFY(picture.open(QIODevice::WriteOnly));
    picture.write("no picture");
    picture.close();
    Preview preview(false, *bundle);
    QVERIFY(!preview.view->targetDrawImage());
    QCOMPARE(imageOf(preview.view.get()), blank(preview.view->size()));
    QCOMPARE(preview.name({OptionCatalogue::HalfCut}), u"AHCMOffOnOffOff"_s);
}

void PreviewTest::picturesAreReadOnce()
{
    auto copy = std::make_unique<BundleCopy>();
    Preview preview(false, *copy->open());
    copy.reset();
    preview.setOn(0);
    QCOMPARE(imageOf(preview.view.get()), withPicture(preview.view->size(), u"AHCMOffOffOffOff"_s));
}

void PreviewTest::onlyThePrintersKindIsLoaded_data()
{
    addKindRows();
}

void PreviewTest::onlyThePrintersKindIsLoaded()
{
    QFETCH(bool, isRV);
    Preview preview(isRV, *testBundle());
    QCOMPARE(preview.view->isRV(), isRV);
    preview.view->setIsRV(!isRV);
    QCOMPARE(preview.view->isRV(), !isRV);
    for (unsigned long long on = 0; on < everyCombination; ++on) {
        preview.setOn(on);
        QVERIFY(!preview.view->targetDrawImage());
    }
}

void PreviewTest::viewStartsWithoutBoxes()
{
    for (const bool isRV : {true, false}) {
        const auto view =
            OptionView13_v400_::initWithFrame(QRect(0, 0, 240, 92), *testBundle(), isRV);
        for (const QAbstractButton *box :
             {view->cutEveryChkBx(), view->cutAndEndChkBx(), view->mirrorPrintChkBx(),
              view->autoCutChkBx(), view->halfCutChkBx(), view->chainPrintChkBx(),
              view->specialTapeChkBx(), view->removeBlkSpaceChkBx()}) {
            QVERIFY(!box);
        }
        QCOMPARE(view->targetDrawImageName(),
                 isRV ? u"EveryEndMirrorOffOffOff"_s : u"AHCMOffOffOffOff"_s);
    }
}

void PreviewTest::cutMarkNeverChangesThePicture()
{
    for (const bool isRV : {true, false}) {
        Preview preview(isRV, *testBundle());
        for (unsigned long long on = 0; on < everyCombination; ++on) {
            preview.setOn(on);
            const QPixmap *picture = preview.view->targetDrawImage();
            preview.boxes.at(OptionCatalogue::CutMark)->toggle();
            QVERIFY(picture);
            QCOMPARE(preview.view->targetDrawImage(), picture);
        }
    }
}

void PreviewTest::clickIsShownInThePanel_data()
{
    QTest::addColumn<bool>("labelSeries");
    QTest::addColumn<int>("clicked");
    QTest::addColumn<QString>("name");
    const auto row = [](bool labelSeries, Option clicked, const QString &name) {
        QTest::addRow("%s printer, %s", labelSeries ? "label" : "tape", factsOf(clicked).keyword)
            << labelSeries << int(clicked) << name;
    };
    // Cut every starts off.
    row(true, OptionCatalogue::CutEvery, u"EveryEndMirrorOnOffOff"_s);
    row(true, OptionCatalogue::CutAtEnd, u"EveryEndMirrorOffOnOff"_s);
    row(true, OptionCatalogue::Mirror, u"EveryEndMirrorOffOffOn"_s);
    row(true, OptionCatalogue::RemoveBlkSpace, u"EveryEndMirrorOffOffOff"_s);
    row(false, OptionCatalogue::CutEvery, u"AHCMOnOffOffOff"_s);
    row(false, OptionCatalogue::AutoCut, u"AHCMOnOffOffOff"_s);
    row(false, OptionCatalogue::HalfCut, u"AHCMOffOnOffOff"_s);
    row(false, OptionCatalogue::ChainPrint, u"AHCMOffOffOnOff"_s);
    row(false, OptionCatalogue::Mirror, u"AHCMOffOffOffOn"_s);
    row(false, OptionCatalogue::SpecialTape, u"SPMROnOff"_s);
    row(false, OptionCatalogue::CutMark, u"AHCMOffOffOffOff"_s);
}

void PreviewTest::clickIsShownInThePanel()
{
    QFETCH(bool, labelSeries);
    QFETCH(int, clicked);
    QFETCH(QString, name);
    PanelFixture fixture(
        {.labelSeries = labelSeries, .defaults = {{OptionCatalogue::CutEvery, "7"}}});
    fixture.show();
    OptionView13_v400_ *preview = fixture.panel->mOptionView;
    QCOMPARE(preview->targetDrawImageName(), expectedName(labelSeries, 0));
    fixture.click(Option(clicked));
    QCOMPARE(preview->targetDrawImageName(), name);
    QCOMPARE(imageOf(preview), withPicture(preview->size(), name));
}

KV_TEST(PreviewTest)
#include "tst_preview.moc"
