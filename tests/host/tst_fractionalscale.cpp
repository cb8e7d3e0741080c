// SPDX-License-Identifier: Apache-2.0
#include "Application.h"
#include "PrintingTest.h"

#include <QLayout>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

/// The dialog on a screen whose units are one and a half pixels.
class tst_fractionalscale : public PrintingTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void viewIsWholeInADialogThatWasRoundedDown();
};

void tst_fractionalscale::initTestCase()
{
    QCOMPARE(qApp->devicePixelRatio(), 1.5);
    QCOMPARE(mSite.open(), QString());
}

void tst_fractionalscale::viewIsWholeInADialogThatWasRoundedDown()
{
    Application application(u"label"_s);
    QPrintDialog &dialog = application.dialog();
    QVERIFY(application.show() && application.openTab());
    // As a display does that counts in pixels.
    const QSize rounded = dialog.layout()->totalMinimumSize() - QSize(1, 1);
    dialog.layout()->setSizeConstraint(QLayout::SetNoConstraint);
    dialog.setMinimumSize(0, 0);
    dialog.resize(rounded);
    QTest::qWait(0);

    const auto *tab = dialog.findChild<QScrollArea *>(u"panelTab"_s);
    QVERIFY(tab->isVisible());
    QCOMPARE(dialog.size(), rounded);
    QVERIFY(!tab->horizontalScrollBar()->isVisible());
    QVERIFY(!tab->verticalScrollBar()->isVisible());
}

KV_TEST(tst_fractionalscale)
#include "tst_fractionalscale.moc"
