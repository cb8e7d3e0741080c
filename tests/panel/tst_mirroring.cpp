// SPDX-License-Identifier: Apache-2.0
#include "PanelFixture.h"

#include "toolkit/ViewGeometry.h"

#include <QApplication>

/// The panel where texts are read from right to left.
class MirroringTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void controlsAreMirrored();
    void pointsAreTheSame();
    void directionMayChange();
    void mirroredControlsKeepToTheRightEdge();
    void movedControlStaysMirrored();
    void otherWidgetsAreNotMirrored();
};

namespace {
QList<QWidget *> controlsOf(const PanelFixture &fixture)
{
    return fixture.panel->kPDEView->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
}

/// The controls' places, each mirrored in its view.
QList<QRect> mirroredPlaces(const PanelFixture &fixture)
{
    QList<QRect> places;
    for (const QWidget *control : controlsOf(fixture)) {
        QRect place = control->geometry();
        place.moveLeft(fixture.panel->kPDEView->width() - place.x() - place.width());
        places.append(place);
    }
    return places;
}

QList<QRect> places(const PanelFixture &fixture)
{
    QList<QRect> places;
    for (const QWidget *control : controlsOf(fixture)) {
        places.append(control->geometry());
    }
    return places;
}

QList<QPointF> origins(const PanelFixture &fixture)
{
    QList<QPointF> origins;
    for (const QWidget *control : controlsOf(fixture)) {
        origins.append(frameOrigin(control));
    }
    return origins;
}
} // namespace

void MirroringTest::cleanup()
{
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

void MirroringTest::controlsAreMirrored()
{
    PanelFixture usual;
    usual.show();
    const QList<QRect> usualPlaces = places(usual);
    QApplication::setLayoutDirection(Qt::RightToLeft);
    PanelFixture mirrored;
    mirrored.show();
    QCOMPARE(mirroredPlaces(mirrored), usualPlaces);
    QCOMPARE(mirrored.box(OptionCatalogue::HalfCut)->geometry().right() + 1, 480 - 20);
    QCOMPARE(mirrored.panel->mOptionView->x(), 20);
}

void MirroringTest::pointsAreTheSame()
{
    PanelFixture usual;
    usual.show();
    const QList<QPointF> usualOrigins = origins(usual);
    const QJsonValue usualState = usual.panel->state().value(u"controls"_s);
    QApplication::setLayoutDirection(Qt::RightToLeft);
    PanelFixture mirrored;
    mirrored.show();
    QCOMPARE(origins(mirrored), usualOrigins);
    QCOMPARE(mirrored.panel->state().value(u"controls"_s), usualState);
}

void MirroringTest::directionMayChange()
{
    PanelFixture fixture;
    fixture.show();
    const QList<QRect> before = places(fixture);
    fixture.panel->kPDEView->setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(mirroredPlaces(fixture), before);
    fixture.panel->kPDEView->setLayoutDirection(Qt::LeftToRight);
    QCOMPARE(places(fixture), before);
}

void MirroringTest::mirroredControlsKeepToTheRightEdge()
{
    PanelFixture fixture;
    fixture.show();
    const QList<QPointF> before = origins(fixture);
    QWidget *view = fixture.panel->kPDEView;
    view->setLayoutDirection(Qt::RightToLeft);
    view->resize(view->width() + 77, view->height());
    QCOMPARE(origins(fixture), before);
    setFrameSize(view, {500.0, frameSize(view).height()});
    QCOMPARE(origins(fixture), before);
}

void MirroringTest::movedControlStaysMirrored()
{
    PanelFixture fixture;
    fixture.show();
    QWidget *box = fixture.box(OptionCatalogue::Mirror);
    fixture.panel->kPDEView->setLayoutDirection(Qt::RightToLeft);
    setFrameOrigin(box, 30.0, 40.0);
    QCOMPARE(frameOrigin(box), QPointF(30.0, 40.0));
    QCOMPARE(box->x(), 480 - 30 - box->width());
    setFrameSize(box, {100.0, 22.0});
    QCOMPARE(frameOrigin(box).x(), 30.0);
    QCOMPARE(box->x(), 480 - 30 - 100);
}

void MirroringTest::otherWidgetsAreNotMirrored()
{
    QWidget parent;
    QWidget child(&parent);
    parent.setLayoutDirection(Qt::RightToLeft);
    parent.resize(200, 100);
    child.setGeometry(10, 20, 30, 40);
    QCOMPARE(frameOrigin(&child), QPointF(10.0, 40.0));
    setFrameOrigin(&child, 5.0, 0.0);
    QCOMPARE(child.pos(), QPoint(5, 60));
}

KV_TEST(MirroringTest)
#include "tst_mirroring.moc"
