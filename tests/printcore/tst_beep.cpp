// SPDX-License-Identifier: Apache-2.0
#include "printcore/Beep.h"

#include <QTest>

class TestBeep : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { setBeeper({}); }

    void isSilentWithoutABeeper()
    {
        QVERIFY(!setBeeper({}));
        NSBeep();
    }

    void soundsOnceThroughTheBeeper()
    {
        int beeps = 0;
        setBeeper([&beeps] { ++beeps; });
        NSBeep();
        QCOMPARE(beeps, 1);
    }

    void handsBackTheFormerBeeper()
    {
        int former = 0;
        int latter = 0;
        setBeeper([&former] { ++former; });
        const Beeper replaced = setBeeper([&latter] { ++latter; });
        NSBeep();
        replaced();
        QCOMPARE(former, 1);
        QCOMPARE(latter, 1);
    }

    void beeperMayReplaceItselfWhileItSounds()
    {
        int beeps = 0;
        setBeeper([&beeps] {
            ++beeps;
            setBeeper([&beeps] { beeps += 10; });
        });
        NSBeep();
        NSBeep();
        QCOMPARE(beeps, 11);
    }
};

KV_CORE_TEST(TestBeep)
#include "tst_beep.moc"
