// SPDX-License-Identifier: Apache-2.0
#include "PictureNames.h"
#include "StripPicture.h"

#include <QPainter>
#include <QtTest>

/// What the pictures of the strip tell, to a person who may see no colours.
class PictureSetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thereIsAPictureForEachName();
    void everyVariantHasTheSameSize_data();
    void everyVariantHasTheSameSize();
    void everyCutIsSeen_data();
    void everyCutIsSeen();
    void chainedJobFollowsWithoutBlankTape_data();
    void chainedJobFollowsWithoutBlankTape();
    void everyOptionIsSeen_data();
    void everyOptionIsSeen();
    void menuItemsAreToldApart();
    void mirroredTextIsTheMirrorImage_data();
    void mirroredTextIsTheMirrorImage();
    void linesAreSeenOnEveryGround_data();
    void linesAreSeenOnEveryGround();
    void textIsLegible_data();
    void textIsLegible();
    void cutsAreToldApartInGrey();
};

namespace {
const QColor grounds[] = {QColor(0xff, 0xff, 0xff), QColor(0xef, 0xef, 0xef),
                          QColor(0x2b, 0x2b, 0x2b)};

QStringList allNames()
{
    return PictureNames::previews() + PictureNames::presets();
}

bool isPreset(const QString &name)
{
    return name.startsWith(u"Preset");
}

/// What a picture has to show, by its name.
struct Shown
{
    int gaps = 0;
    int slits = 0;
    int marks = 0;
    bool isChained = false;
    bool hasBlankTape = false;
};

Shown shownBy(const QString &name)
{
    const QList<bool> on = PictureNames::switchesOf(name);
    if (name.contains(u"EveryEndMirror")) {
        return {.gaps = 2 * on[0] + on[1]};
    }
    if (name.contains(u"AHCM")) {
        const int atEnd = on[2] ? 0 : 1;
        return {.gaps = on[0] ? 2 + atEnd : 0,
                .slits = on[1] ? 2 + atEnd : 0,
                .isChained = on[2],
                .hasBlankTape = !on[2]};
    }
    if (name.contains(u"CTMR")) {
        return {.marks = 2 * on[0], .isChained = on[1], .hasBlankTape = !on[1]};
    }
    return {};
}

/// How much of two texts is inked in both, of what is inked in one.
double agreement(const QImage &one, const QImage &other)
{
    int both = 0;
    int any = 0;
    for (int y = 0; y < std::min(one.height(), other.height()); ++y) {
        for (int x = 0; x < std::min(one.width(), other.width()); ++x) {
            const bool inOne = qGray(one.pixel(x, y)) == 0;
            const bool inOther = qGray(other.pixel(x, y)) == 0;
            both += inOne && inOther;
            any += inOne || inOther;
        }
    }
    return any == 0 ? 0.0 : double(both) / any;
}
} // namespace

void PictureSetTest::thereIsAPictureForEachName()
{
    QCOMPARE(PictureNames::previews().size(), 28);
    QCOMPARE(PictureNames::presets().size(), 17);
    QStringList names = allNames();
    QCOMPARE(names.removeDuplicates(), 0);
}

void PictureSetTest::everyVariantHasTheSameSize_data()
{
    PictureNames::addRows(allNames());
}

void PictureSetTest::everyVariantHasTheSameSize()
{
    QFETCH(const QString, name);
    const QSize frame = isPreset(name) ? PictureNames::iconFrame() : PictureNames::previewFrame();
    QVERIFY(!frame.isEmpty());
    for (const PictureNames::Variant &variant : PictureNames::variants) {
        const QImage image(PictureNames::path(name, variant.mark));
        QVERIFY2(!image.isNull(), variant.mark);
        QCOMPARE(QSizeF(image.size()) / variant.ratio, QSizeF(frame));
        QVERIFY(image.hasAlphaChannel());
    }
}

void PictureSetTest::everyCutIsSeen_data()
{
    PictureNames::addRows(allNames());
}

void PictureSetTest::everyCutIsSeen()
{
    QFETCH(const QString, name);
    const StripPicture picture(name);
    QVERIFY(!picture.isNull());
    const Shown shown = shownBy(name);
    QCOMPARE(picture.gaps(), shown.gaps);
    QCOMPARE(picture.slits(), shown.slits);
    QCOMPARE(picture.marks(), shown.marks);
}

void PictureSetTest::chainedJobFollowsWithoutBlankTape_data()
{
    PictureNames::addRows(allNames());
}

void PictureSetTest::chainedJobFollowsWithoutBlankTape()
{
    QFETCH(const QString, name);
    const StripPicture picture(name);
    const Shown shown = shownBy(name);
    const QList<QRect> texts = picture.texts();
    QCOMPARE(texts.size(), shown.isChained ? 4 : 3);
    QCOMPARE(picture.hatching() > 10.0, shown.hasBlankTape);
    if (shown.isChained) {
        // The next job has another text.
        QVERIFY(picture.inkOf(texts.at(3)).size() != picture.inkOf(texts.at(2)).size());
    }
}

void PictureSetTest::everyOptionIsSeen_data()
{
    QTest::addColumn<QString>("one");
    QTest::addColumn<QString>("other");
    const QStringList names = allNames();
    for (const QString &name : names) {
        for (qsizetype i = 0; i < PictureNames::switchesOf(name).size(); ++i) {
            const QString other = PictureNames::toggled(name, i);
            if (name < other && names.contains(other)) {
                QTest::addRow("%s %d", qPrintable(name), int(i)) << name << other;
            }
        }
    }
}

void PictureSetTest::everyOptionIsSeen()
{
    QFETCH(const QString, one);
    QFETCH(const QString, other);
    const double least = isPreset(one) ? 12.0 : 60.0;
    for (const QColor &ground : grounds) {
        const double area = StripPicture(one).differenceTo(StripPicture(other), ground);
        QVERIFY2(area >= least, qPrintable(QString::number(area)));
    }
}

void PictureSetTest::menuItemsAreToldApart()
{
    const QStringList names = PictureNames::presets();
    QList<StripPicture> pictures;
    for (const QString &name : names) {
        pictures.append(StripPicture(name));
    }
    for (qsizetype i = 0; i < pictures.size(); ++i) {
        for (qsizetype j = 0; j < i; ++j) {
            const double area = pictures.at(i).differenceTo(pictures.at(j), grounds[1]);
            QVERIFY2(area >= 12.0,
                     qPrintable(u"%1 and %2: %3"_s.arg(names.at(i), names.at(j)).arg(area)));
        }
    }
}

void PictureSetTest::mirroredTextIsTheMirrorImage_data()
{
    QStringList names;
    const QStringList previews = PictureNames::previews();
    for (const QString &name : previews) {
        if (!name.startsWith(u"CTMR") && !PictureNames::switchesOf(name).last()) {
            names.append(name);
        }
    }
    PictureNames::addRows(names);
    QCOMPARE(names.size(), 12);
}

void PictureSetTest::mirroredTextIsTheMirrorImage()
{
    QFETCH(const QString, name);
    const StripPicture plain(name);
    const StripPicture mirrored(
        PictureNames::toggled(name, PictureNames::switchesOf(name).size() - 1));
    const QList<QRect> texts = plain.texts();
    QCOMPARE(mirrored.texts().size(), texts.size());
    for (qsizetype i = 0; i < texts.size(); ++i) {
        const QImage ink = plain.inkOf(texts.at(i));
        const QImage other = mirrored.inkOf(mirrored.texts().at(i));
        QVERIFY(std::abs(ink.width() - other.width()) <= 1);
        QVERIFY(agreement(ink.mirrored(true, false), other) > 0.85);
        QVERIFY(agreement(ink, other) < 0.7);
    }
    // Nothing else changes: what stays beside both texts is the same.
    QImage rest = plain.withoutTexts();
    QPainter painter(&rest);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.drawImage(0, 0, mirrored.withoutTexts());
    painter.end();
    QImage otherRest = mirrored.withoutTexts();
    painter.begin(&otherRest);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.drawImage(0, 0, plain.withoutTexts());
    painter.end();
    QCOMPARE(rest, otherRest);
}

void PictureSetTest::linesAreSeenOnEveryGround_data()
{
    PictureNames::addRows(allNames());
}

void PictureSetTest::linesAreSeenOnEveryGround()
{
    QFETCH(const QString, name);
    const StripPicture picture(name);
    for (const QColor &ground : grounds) {
        const double least = picture.edgeContrast(ground);
        QVERIFY2(least >= 3.0, qPrintable(ground.name() + u' ' + QString::number(least)));
    }
}

void PictureSetTest::textIsLegible_data()
{
    PictureNames::addRows(allNames());
}

void PictureSetTest::textIsLegible()
{
    QFETCH(const QString, name);
    const StripPicture picture(name);
    QVERIFY(!picture.texts().isEmpty());
    for (const QRect &text : picture.texts()) {
        QVERIFY(picture.textContrast(text) >= 4.5);
    }
}

void PictureSetTest::cutsAreToldApartInGrey()
{
    for (const QString &kind : {QString(), u"Preset"_s}) {
        const StripPicture none(kind + u"AHCMOffOffOffOff"_s);
        const StripPicture half(kind + u"AHCMOffOnOffOff"_s);
        const StripPicture full(kind + u"AHCMOnOffOffOff"_s);
        QVERIFY(half.slitContrast() >= 3.0);
        QCOMPARE(none.slitContrast(), 0.0);
        QCOMPARE(full.slitContrast(), 0.0);
        const double least = kind.isEmpty() ? 400.0 : 80.0;
        for (const QColor &ground : grounds) {
            const double areas[] = {none.differenceTo(half, ground),
                                    half.differenceTo(full, ground),
                                    full.differenceTo(none, ground)};
            for (const double area : areas) {
                QVERIFY2(area >= least, qPrintable(QString::number(area)));
            }
        }
    }
}

KV_CORE_TEST(PictureSetTest)
#include "tst_pictureset.moc"
