// SPDX-License-Identifier: Apache-2.0
#include "RefusalLog.h"

#include "printcore/Beep.h"
#include "printcore/NotificationCenter.h"
#include "textinput/PDEFormatter.h"

#include <QTest>

#include <utility>

/// What is told of a refused edit, and what those who are told may do.
class RefusalsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { mFormatter = PDEFormatter::init(); }
    void cleanup() { mFormatter.reset(); }

    void tellsTheCharacterFirst();
    void tellsTheNotificationObjectNext();
    void tellsItselfLast();
    void beepsOncePerRefusal();
    void forgetsTheFormerCharacter();
    void knowsTheCharacterOnlyWhileItIsTold();
    void innerRefusalDoesNotHideTheOuterOne();
    void observerMayRemoveItself();
    void observerMayChangeTheFormatter();
    void observerMayDestroyTheFormatter();
    void beeperMayDestroyTheFormatter();

private: // NOLINT(readability-redundant-access-specifiers): these are no slots
    /// Whether the text may be typed into an empty field.
    bool allows(const QString &typed)
    {
        const TextRange caret{typed.size(), 0};
        return mFormatter->isPartialStringValid(typed, &caret, {}, {}, nullptr);
    }

    std::unique_ptr<PDEFormatter> mFormatter;
};

namespace {

} // namespace

void RefusalsTest::tellsTheCharacterFirst()
{
    RefusalLog log;
    const auto object = std::make_shared<int>(0);
    mFormatter->setNotificationObject(object);
    mFormatter->addInvalidCharacter(u"x"_s);
    QVERIFY(!allows(u"x"_s));
    QCOMPARE(log.taken(), invalidCharacter(u"x"_s));
    QVERIFY(log.lastObject() != object.get());
    QVERIFY(log.lastObject() != mFormatter.get());
}

void RefusalsTest::tellsTheNotificationObjectNext()
{
    RefusalLog log;
    const auto object = std::make_shared<int>(0);
    mFormatter->setNotificationObject(object);
    mFormatter->setTextStyle(2);
    QVERIFY(!allows(u"x"_s));
    QCOMPARE(log.taken(), invalid);
    QCOMPARE(log.lastObject(), static_cast<const void *>(object.get()));
    mFormatter->setMaxValue(3);
    QVERIFY(!allows(u"5"_s));
    QCOMPARE(log.taken(), outOfRange);
    QCOMPARE(log.lastObject(), static_cast<const void *>(object.get()));
}

void RefusalsTest::tellsItselfLast()
{
    RefusalLog log;
    mFormatter->setTextStyle(2);
    QVERIFY(!allows(u"x"_s));
    QCOMPARE(log.taken(), invalid);
    QCOMPARE(log.lastObject(), static_cast<const void *>(mFormatter.get()));
    mFormatter->setNotificationObject(std::make_shared<int>(0));
    mFormatter->setNotificationObject(nullptr);
    QVERIFY(!allows(u"é"_s));
    QCOMPARE(log.taken(), invalid);
    QCOMPARE(log.lastObject(), static_cast<const void *>(mFormatter.get()));
}

void RefusalsTest::beepsOncePerRefusal()
{
    mFormatter->setTextStyle(2);
    QStringList order;
    setBeeper([&order] { order += u"beep"_s; });
    NotificationCenter::defaultCenter().addObserver(
        this, [&order](const Notification &notification) { order += notification.name; }, {});
    QVERIFY(!allows(u"xyz"_s));
    QVERIFY(allows(u"123"_s));
    NotificationCenter::defaultCenter().removeObserver(this);
    setBeeper({});
    QCOMPARE(order, QStringList{u"beep"_s} + invalid);
}

void RefusalsTest::forgetsTheFormerCharacter()
{
    RefusalLog log;
    mFormatter->setTextStyle(2);
    QVERIFY(!allows(u"あ"_s));
    QCOMPARE(log.taken(), invalidCharacter(u"あ"_s));
    QVERIFY(!allows(u"x"_s));
    QCOMPARE(log.taken(), invalid);
    QCOMPARE(log.lastObject(), static_cast<const void *>(mFormatter.get()));
}

void RefusalsTest::knowsTheCharacterOnlyWhileItIsTold()
{
    RefusalLog log;
    mFormatter->addInvalidCharacter(u"x"_s);
    QVERIFY(!allows(u"x"_s));
    QVERIFY(!PDEFormatter::offendingCharacter({invalid.first(), log.lastObject()}));
    QVERIFY(!PDEFormatter::offendingCharacter({invalid.first(), nullptr}));
    QVERIFY(!PDEFormatter::offendingCharacter({invalid.first(), mFormatter.get()}));
}

void RefusalsTest::innerRefusalDoesNotHideTheOuterOne()
{
    int observer = 0;
    bool isInner = false;
    mFormatter->addInvalidCharacter(u"x"_s);
    const auto inner = PDEFormatter::initWithStyle(2);
    NotificationCenter::defaultCenter().addObserver(
        &observer,
        [&](const Notification &) {
            if (!std::exchange(isInner, true)) {
                const TextRange caret{1, 0};
                QVERIFY(!inner->isPartialStringValid(u"y"_s, &caret, {}, {}, nullptr));
            }
        },
        invalid.first());
    RefusalLog log;
    const bool allowed = allows(u"x"_s);
    NotificationCenter::defaultCenter().removeObserver(&observer);
    QVERIFY(!allowed);
    QCOMPARE(log.taken(), invalid + invalidCharacter(u"x"_s));
}

void RefusalsTest::observerMayRemoveItself()
{
    mFormatter->setTextStyle(2);
    int told = 0;
    NotificationCenter::defaultCenter().addObserver(
        this,
        [this, &told](const Notification &) {
            ++told;
            NotificationCenter::defaultCenter().removeObserver(this);
        },
        {});
    RefusalLog log;
    QVERIFY(!allows(u"x"_s));
    QVERIFY(!allows(u"x"_s));
    QCOMPARE(told, 1);
    QCOMPARE(log.taken(), invalid + invalid);
}

void RefusalsTest::observerMayChangeTheFormatter()
{
    const auto object = std::make_shared<int>(0);
    mFormatter->setNotificationObject(object);
    mFormatter->setTextStyle(2);
    NotificationCenter::defaultCenter().addObserver(
        this,
        [this](const Notification &) {
            NotificationCenter::defaultCenter().removeObserver(this);
            mFormatter->setTextStyle(0);
            mFormatter->setNotificationObject(nullptr);
            mFormatter->addInvalidCharacter(u"y"_s);
        },
        {});
    RefusalLog log;
    QVERIFY(!allows(u"x"_s));
    QCOMPARE(log.taken(), invalid);
    QCOMPARE(log.lastObject(), static_cast<const void *>(object.get()));
    QVERIFY(allows(u"x"_s));
    QVERIFY(!allows(u"y"_s));
}

void RefusalsTest::observerMayDestroyTheFormatter()
{
    mFormatter->setNotificationObject(std::make_shared<QString>(u"object"_s));
    for (const bool aboutCharacter : {false, true}) {
        mFormatter = PDEFormatter::initWithStyle(2);
        if (aboutCharacter) {
            mFormatter->addInvalidCharacter(u"x"_s);
        }
        mFormatter->setNotificationObject(std::make_shared<QString>(u"object"_s));
        NotificationCenter::defaultCenter().addObserver(
            this, [this](const Notification &) { mFormatter.reset(); }, {});
        QStringList seen;
        int later = 0;
        NotificationCenter::defaultCenter().addObserver(&later,
                                                        [&seen](const Notification &notification) {
                                                            seen += *static_cast<const QString *>(
                                                                notification.object);
                                                        },
                                                        {});
        const bool allowed = allows(u"x"_s);
        NotificationCenter::defaultCenter().removeObserver(this);
        NotificationCenter::defaultCenter().removeObserver(&later);
        QVERIFY(!allowed);
        QVERIFY(!mFormatter);
        QCOMPARE(seen, QStringList{aboutCharacter ? u"x"_s : u"object"_s});
    }
}

void RefusalsTest::beeperMayDestroyTheFormatter()
{
    mFormatter->setTextStyle(2);
    RefusalLog log;
    setBeeper([this] { mFormatter.reset(); });
    QVERIFY(!allows(u"x"_s));
    QVERIFY(!mFormatter);
    QCOMPARE(log.taken(), invalid);
}

KV_CORE_TEST(RefusalsTest)
#include "tst_refusals.moc"
