// SPDX-License-Identifier: Apache-2.0
#include "Application.h"
#include "AttachedDialog.h"
#include "BundleFolder.h"
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
    void picturesOfThisScreenAreChecked();
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

void tst_fractionalscale::picturesOfThisScreenAreChecked()
{
    const BundleFolder folder;
    QVERIFY(folder.add());
    for (const QString &mark : {u""_s, u"@1.5x"_s}) {
        const QString picture = u"Contents/Resources/AHCMOnOffOffOff%1.png"_s.arg(mark);
        QVERIFY(folder.overwrite(picture, "no picture"));
    }
    AttachedDialog dialog(u"tape"_s, {}, folder.path());
    QVERIFY(dialog.user().open());
    QVERIFY(QTest::qWaitFor([&dialog] { return !dialog.problems().isEmpty(); }));
    // The pictures behind it are checked, too.
    QTest::qWait(200);
    QCOMPARE(dialog.problems().join(u"; "_s),
             u"Spoilt.pde: AHCMOnOffOffOff@1.5x.png is no picture"_s);
}

KV_TEST(tst_fractionalscale)
#include "tst_fractionalscale.moc"
