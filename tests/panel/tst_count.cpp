// SPDX-License-Identifier: Apache-2.0
#include "PanelFixture.h"

#include "printcore/NotificationCenter.h"
#include "support/BundleCopy.h"

#include <QClipboard>
#include <QWheelEvent>

/// How the user changes the number of labels between cuts.
class CountTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void typedCountIsClampedOnEveryKeystroke_data();
    void typedCountIsClampedOnEveryKeystroke();
    void enteredTextIsReadAsANumber_data();
    void enteredTextIsReadAsANumber();
    void pastedCountIsClamped();
    void stepperArrowsStayWithinTheCounts_data();
    void stepperArrowsStayWithinTheCounts();
    void stepperTakesKeysAndWheel();
    void countBetweenTheChoicesIsNotTold();
    void countOfAStrangerIsNone();
    void countWithoutOptionStaysBelowAHundred();
    void otherTextFieldsAreIgnored();
    void fieldThatAnnouncesItsEditsLeavesThePanelOut();
};

namespace {

/// A printer with these counts, 1 by default, and every other option but those without a row.
PPDText printerWithCounts(const QByteArrayList &counts)
{
    return TestPrinter{.options = everyOptionBut(cutEvery)}.text().option("KvCutLabel", counts,
                                                                          counts.first());
}

/// Shows the panel and clicks cut every on, so that the count can be changed.
void showWithCount(PanelFixture &fixture)
{
    fixture.show();
    if (fixture.isOn(cutEvery)) {
        fixture.click(cutEvery);
    }
    fixture.click(cutEvery);
    QVERIFY(fixture.panel->mCutEveryTxBx->isEnabled());
    fixture.takeTold();
}

QString fieldText(const PanelFixture &fixture)
{
    return fixture.panel->mCutEveryTxBx->text();
}

int stepperValue(const PanelFixture &fixture)
{
    return fixture.panel->mCutEveryStpr->intValue();
}

} // namespace

void CountTest::typedCountIsClampedOnEveryKeystroke_data()
{
    QTest::addColumn<int>("smallest");
    QTest::addColumn<int>("largest");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QStringList>("counts");
    QTest::newRow("42") << 1 << 99 << u"42"_s << QStringList{u"4"_s, u"42"_s};
    QTest::newRow("0") << 1 << 99 << u"0"_s << QStringList{u"1"_s};
    QTest::newRow("150") << 1 << 99 << u"150"_s << QStringList{u"1"_s, u"15"_s, u"99"_s};
    QTest::newRow("a letter") << 1 << 99 << u"a"_s << QStringList{u"1"_s};
    QTest::newRow("a letter after a digit") << 1 << 99 << u"8x"_s << QStringList{u"8"_s, u"8"_s};
    QTest::newRow("nothing left") << 1 << 99 << u"\b"_s << QStringList{u"1"_s};
    QTest::newRow("below the smallest") << 5 << 20 << u"3"_s << QStringList{u"5"_s};
    QTest::newRow("above the largest") << 5 << 20 << u"73"_s << QStringList{u"7"_s, u"20"_s};
}

void CountTest::typedCountIsClampedOnEveryKeystroke()
{
    QFETCH(int, smallest);
    QFETCH(int, largest);
    QFETCH(QString, keys);
    QFETCH(QStringList, counts);
    PanelFixture fixture(printerWithCounts(countsFrom(smallest, largest)));
    showWithCount(fixture);
    fixture.type(keys);
    QStringList told;
    for (const QString &count : std::as_const(counts)) {
        told.append(u"KvCutLabel="_s + count);
    }
    QCOMPARE(fixture.takeTold(), told);
    QCOMPARE(fieldText(fixture), counts.constLast());
    QCOMPARE(stepperValue(fixture), counts.constLast().toInt());
    QCOMPARE(fixture.selectedKeyword(cutEvery), counts.constLast());
    QCOMPARE(fixture.panel->refreshed.last(), 256U);
}

void CountTest::enteredTextIsReadAsANumber_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("count");
    QTest::newRow("7") << u"7"_s << 7;
    QTest::newRow("leading space") << u" 8"_s << 8;
    QTest::newRow("plus sign") << u"+9"_s << 9;
    QTest::newRow("negative") << u"-5"_s << 1;
    QTest::newRow("leading zeros") << u"007"_s << 7;
    QTest::newRow("letters behind") << u"12abc"_s << 12;
    QTest::newRow("fraction") << u"3.9"_s << 3;
    QTest::newRow("letters") << u"abc"_s << 1;
    QTest::newRow("empty") << u""_s << 1;
    QTest::newRow("99") << u"99"_s << 99;
    QTest::newRow("100") << u"100"_s << 99;
    QTest::newRow("beyond 32 bits") << u"99999999999"_s << 99;
    QTest::newRow("below 32 bits") << u"-99999999999"_s << 1;
}

void CountTest::enteredTextIsReadAsANumber()
{
    QFETCH(QString, text);
    QFETCH(int, count);
    PanelFixture fixture;
    showWithCount(fixture);
    fixture.setCount(text);
    fixture.panel->controlTextDidChange(fixture.panel->mCutEveryTxBx);
    QCOMPARE(fieldText(fixture), QString::number(count));
    QCOMPARE(stepperValue(fixture), count);
    QCOMPARE(fixture.takeTold(), QStringList{u"KvCutLabel=%1"_s.arg(count)});
}

void CountTest::pastedCountIsClamped()
{
    PanelFixture fixture;
    showWithCount(fixture);
    QGuiApplication::clipboard()->setText(u"150"_s);
    QLineEdit *field = fixture.panel->mCutEveryTxBx;
    field->selectAll();
    QTest::keySequence(field, QKeySequence::Paste);
    QCOMPARE(fieldText(fixture), u"99"_s);
    QCOMPARE(fixture.takeTold(), QStringList{u"KvCutLabel=99"_s});
}

void CountTest::stepperArrowsStayWithinTheCounts_data()
{
    QTest::addColumn<QByteArray>("start");
    QTest::addColumn<QByteArray>("arrow");
    QTest::addColumn<QStringList>("counts");
    const QByteArray up = "stepUp";
    const QByteArray down = "stepDown";
    QTest::newRow("up from 1") << QByteArray("1") << up << QStringList{u"2"_s, u"3"_s};
    QTest::newRow("up to 99") << QByteArray("97") << up
                              << QStringList{u"98"_s, u"99"_s, u"99"_s, u"99"_s};
    QTest::newRow("down to 1") << QByteArray("3") << down
                               << QStringList{u"2"_s, u"1"_s, u"1"_s, u"1"_s};
}

void CountTest::stepperArrowsStayWithinTheCounts()
{
    QFETCH(QByteArray, start);
    QFETCH(QByteArray, arrow);
    QFETCH(QStringList, counts);
    PanelFixture fixture;
    fixture.host->mark("KvCutLabel", start);
    showWithCount(fixture);
    QCOMPARE(stepperValue(fixture), start.toInt());
    for (const QString &count : std::as_const(counts)) {
        fixture.step(arrow);
        QCOMPARE(fieldText(fixture), count);
        QCOMPARE(stepperValue(fixture), count.toInt());
        QCOMPARE(fixture.takeTold(), QStringList{u"KvCutLabel="_s + count});
        QCOMPARE(fixture.selectedKeyword(cutEvery), count);
    }
}

void CountTest::stepperTakesKeysAndWheel()
{
    PanelFixture fixture;
    showWithCount(fixture);
    Stepper *stepper = fixture.panel->mCutEveryStpr;
    QTest::keyClick(stepper, Qt::Key_Up);
    QTest::keyClick(stepper, Qt::Key_Up);
    QTest::keyClick(stepper, Qt::Key_Down);
    const QPoint at(2, 2);
    QWheelEvent wheel(at, stepper->mapToGlobal(at), QPoint(), QPoint(0, 120), {}, {},
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(stepper, &wheel);
    QCOMPARE(fixture.takeTold(), QStringList({u"KvCutLabel=2"_s, u"KvCutLabel=3"_s,
                                              u"KvCutLabel=2"_s, u"KvCutLabel=3"_s}));
    QCOMPARE(fieldText(fixture), u"3"_s);
}

void CountTest::countBetweenTheChoicesIsNotTold()
{
    PanelFixture fixture(printerWithCounts({"1", "2", "10"}));
    showWithCount(fixture);
    fixture.type(u"2"_s);
    QCOMPARE(fixture.takeTold(), QStringList{u"KvCutLabel=2"_s});
    // The fourth count is past the last of the three choices.
    fixture.type(u"4"_s);
    QCOMPARE(fixture.takeTold(), QStringList());
    QCOMPARE(fieldText(fixture), u"2"_s);
    QCOMPARE(stepperValue(fixture), 2);
}

void CountTest::countOfAStrangerIsNone()
{
    QLineEdit stranger(u"5"_s);
    PanelFixture fromOne;
    fromOne.show();
    fromOne.panel->changeCutEveryValue(&stranger);
    QCOMPARE(fromOne.takeTold(), QStringList());
    QCOMPARE(fieldText(fromOne), u"1"_s);

    PanelFixture fromZero(printerWithCounts(countsFrom(0, 9)));
    fromZero.show();
    fromZero.host->mark("KvCutLabel", "4");
    fromZero.panel->changeCutEveryValue(&stranger);
    QCOMPARE(fromZero.takeTold(), QStringList{u"KvCutLabel=0"_s});
    QCOMPARE(fieldText(fromZero), u"0"_s);
}

void CountTest::countWithoutOptionStaysBelowAHundred()
{
    PanelFixture fixture({.options = {}});
    fixture.show();
    for (const auto &[text, count] :
         {std::pair(u"150"_s, 99), std::pair(u"0"_s, 1), std::pair(u"50"_s, 50)}) {
        fixture.setCount(text);
        fixture.panel->changeCutEveryValue(fixture.panel->mCutEveryTxBx);
        QCOMPARE(fieldText(fixture), QString::number(count));
        QCOMPARE(stepperValue(fixture), count);
    }
    QCOMPARE(fixture.takeTold(), QStringList());
}

void CountTest::otherTextFieldsAreIgnored()
{
    PanelFixture fixture;
    showWithCount(fixture);
    QLineEdit stranger(u"5"_s);
    fixture.panel->refreshed.clear();
    fixture.panel->controlTextDidChange(&stranger);
    fixture.panel->controlTextDidChange(nullptr);
    fixture.panel->controlTextDidChange(fixture.panel->mCutEveryStpr);
    QCOMPARE(fixture.takeTold(), QStringList());
    QCOMPARE(fixture.panel->refreshed, QList<quint32>());
    QCOMPARE(fieldText(fixture), u"1"_s);
}

void CountTest::fieldThatAnnouncesItsEditsLeavesThePanelOut()
{
    const BundleCopy bundle;
    QVERIFY(bundle.replaceInNib(QStringLiteral("class=\"QLineEdit\" name=\"mCutEveryTxBx\""),
                                QStringLiteral("class=\"PDETextField13_v400_\" "
                                               "name=\"mCutEveryTxBx\"")));
    PanelFixture fixture(TestPrinter{}, bundle.open());
    fixture.show();
    int announced = 0;
    NotificationCenter::defaultCenter().addObserver(
        this, [&announced](const Notification &) { ++announced; },
        QStringLiteral("TextFieldResignFirstResponderNotification"),
        fixture.panel->mCutEveryTxBx.data());
    fixture.type(QStringLiteral("250"));
    NotificationCenter::defaultCenter().removeObserver(this);
    QCOMPARE(fixture.panel->mCutEveryTxBx->text(), u"250"_s);
    QCOMPARE(announced, 3);
    QCOMPARE(fixture.takeTold(), QStringList());
}

KV_TEST(CountTest)
#include "tst_count.moc"
