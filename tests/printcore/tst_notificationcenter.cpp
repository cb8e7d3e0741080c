// SPDX-License-Identifier: Apache-2.0
#include "printcore/NotificationCenter.h"

#include <QTest>

#include <functional>
#include <memory>
#include <utility>

namespace {
const QString kOpened = u"Opened"_s;
const QString kClosed = u"Closed"_s;

/// Does something when it is destroyed.
class Farewell
{
public:
    explicit Farewell(std::function<void()> action)
        : mAction(std::move(action))
    {
    }
    ~Farewell() { mAction(); }
    Q_DISABLE_COPY_MOVE(Farewell)

private:
    std::function<void()> mAction;
};

/// An observer that goes away as soon as it is told of something.
class Mayfly
{
public:
    Mayfly(NotificationCenter &center, QStringList &log, std::unique_ptr<Mayfly> &owner)
        : mCenter(center)
        , mLog(log)
        , mOwner(owner)
    {
        mCenter.addObserver(
            this,
            [this](const Notification &notification) {
                mLog.append(notification.name);
                mOwner.reset();
            },
            kOpened);
    }
    ~Mayfly() { mCenter.removeObserver(this); }
    Q_DISABLE_COPY_MOVE(Mayfly)

private:
    NotificationCenter &mCenter;
    QStringList &mLog;
    std::unique_ptr<Mayfly> &mOwner;
};
} // namespace

/// What users of the notification centre can rely on.
class NotificationCenterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        mCenter = std::make_unique<NotificationCenter>();
        mLog.clear();
    }

    void tellsOnlyOfTheNameAndObjectAskedFor_data();
    void tellsOnlyOfTheNameAndObjectAskedFor();
    void tellsWhatHappenedToWhat();
    void tellsInOrderOfRegistration();
    void tellsOncePerRegistration();
    void sharesOneDefaultCenter();
    void removesOneRegistrationOnly_data();
    void removesOneRegistrationOnly();
    void removesEveryRegistrationOfOneObserverOnly();
    void observerMayRemoveItselfWhileTold();
    void observerRemovedByAnEarlierOneIsNotTold();
    void observerAddedWhileToldIsToldFromTheNextOn();
    void observerMayPostWhileTold();
    void observerRemovedInANestedPostIsNotToldOfTheOuterOne();
    void observerMayBeDestroyedWhileTold();
    void handlerMayOwnWhatRemovesFurtherObservers();

private: // NOLINT(readability-redundant-access-specifiers): these are no slots
    NotificationCenter::Handler logging(const QString &entry)
    {
        return [this, entry](const Notification &) {
            mLog.append(entry);
        };
    }
    void observe(const void *observer, const QString &entry, const QString &name = kOpened)
    {
        mCenter->addObserver(observer, logging(entry), name);
    }
    void post(const QString &name = kOpened) { mCenter->postNotification(name, nullptr); }
    QString told() { return std::exchange(mLog, {}).join(u' '); }

    std::unique_ptr<NotificationCenter> mCenter;
    QStringList mLog;
    // Stand for observers and for objects alike: nothing but their addresses matters.
    int mFirst = 0;
    int mSecond = 0;
    int mThird = 0;
};

void NotificationCenterTest::tellsOnlyOfTheNameAndObjectAskedFor_data()
{
    const TestTable<QString, bool, QString> table("name", "oneObject", "expected");
    table.add("one name, any object", kOpened, false, u"O1 O2 O0"_s);
    table.add("one name, one object", kOpened, true, u"O1"_s);
    table.add("any name, one object", QString(), true, u"O1 C1"_s);
    table.add("any name, any object", QString(), false, u"O1 O2 O0 C1 C2 C0"_s);
    table.add("an empty name is not any", u""_s, false, u""_s);
}

void NotificationCenterTest::tellsOnlyOfTheNameAndObjectAskedFor()
{
    QFETCH(QString, name);
    QFETCH(bool, oneObject);
    const auto handler = [this](const Notification &notification) {
        const int object = notification.object == &mFirst    ? 1
                           : notification.object == &mSecond ? 2
                                                             : 0;
        mLog.append(notification.name.front() + QString::number(object));
    };
    mCenter->addObserver(this, handler, name, oneObject ? &mFirst : nullptr);

    for (const QString &posted : {kOpened, kClosed}) {
        mCenter->postNotification(posted, &mFirst);
        mCenter->postNotification(posted, &mSecond);
        mCenter->postNotification(posted, nullptr);
    }
    QTEST(told(), "expected");
}

void NotificationCenterTest::tellsWhatHappenedToWhat()
{
    Notification seen{QString(), nullptr};
    mCenter->addObserver(
        this, [&](const Notification &notification) { seen = notification; }, QString());
    mCenter->postNotification(kClosed, &mSecond);
    QCOMPARE(seen.name, kClosed);
    QCOMPARE(seen.object, static_cast<const void *>(&mSecond));
}

void NotificationCenterTest::tellsInOrderOfRegistration()
{
    observe(&mSecond, u"2"_s);
    observe(&mFirst, u"1"_s);
    observe(&mThird, u"3"_s, QString());
    observe(&mSecond, u"2b"_s);
    post();
    QCOMPARE(told(), u"2 1 3 2b"_s);
}

void NotificationCenterTest::tellsOncePerRegistration()
{
    observe(&mFirst, u"1"_s);
    observe(&mFirst, u"1"_s);
    post();
    QCOMPARE(told(), u"1 1"_s);
}

void NotificationCenterTest::sharesOneDefaultCenter()
{
    NotificationCenter &center = NotificationCenter::defaultCenter();
    center.addObserver(this, logging(u"told"_s), kOpened);
    NotificationCenter::defaultCenter().postNotification(kOpened, nullptr);
    QCOMPARE(told(), u"told"_s);

    center.removeObserver(this);
    NotificationCenter::defaultCenter().postNotification(kOpened, nullptr);
    QCOMPARE(told(), QString());
}

void NotificationCenterTest::removesOneRegistrationOnly_data()
{
    const TestTable<QString, bool, QString> table("name", "oneObject", "left");
    table.add("name and object", kOpened, true, u"opened any-first closed-first other"_s);
    table.add("name, any object", kOpened, false, u"any-first closed-first other"_s);
    table.add("any name, object", QString(), true, u"opened other"_s);
    table.add("any name and object", QString(), false, u"other"_s);
    table.add("never registered", u"Moved"_s, false,
              u"opened opened-first any-first closed-first other"_s);
}

void NotificationCenterTest::removesOneRegistrationOnly()
{
    QFETCH(QString, name);
    QFETCH(bool, oneObject);
    mCenter->addObserver(&mSecond, logging(u"opened"_s), kOpened);
    mCenter->addObserver(&mSecond, logging(u"opened-first"_s), kOpened, &mFirst);
    mCenter->addObserver(&mSecond, logging(u"any-first"_s), QString(), &mFirst);
    mCenter->addObserver(&mSecond, logging(u"closed-first"_s), kClosed, &mFirst);
    mCenter->addObserver(&mThird, logging(u"other"_s), kOpened, &mFirst);

    mCenter->removeObserver(&mSecond, name, oneObject ? &mFirst : nullptr);

    mCenter->postNotification(kOpened, &mFirst);
    mCenter->postNotification(kClosed, &mFirst);
    mLog.removeDuplicates();
    mLog.sort();
    QFETCH(QString, left);
    QStringList expected = left.split(u' ');
    expected.sort();
    QCOMPARE(mLog, expected);
}

void NotificationCenterTest::removesEveryRegistrationOfOneObserverOnly()
{
    observe(&mFirst, u"1"_s);
    observe(&mSecond, u"2"_s);
    observe(&mFirst, u"1b"_s, QString());
    mCenter->removeObserver(&mFirst);
    mCenter->removeObserver(&mThird);
    post();
    QCOMPARE(told(), u"2"_s);
}

void NotificationCenterTest::observerMayRemoveItselfWhileTold()
{
    const QString captured = u"still here after the removal"_s;
    mCenter->addObserver(
        &mFirst,
        [this, captured](const Notification &) {
            mCenter->removeObserver(&mFirst);
            mLog.append(captured);
        },
        kOpened);
    observe(&mSecond, u"2"_s);
    post();
    QCOMPARE(told(), captured + u" 2"_s);
    post();
    QCOMPARE(told(), u"2"_s);
}

void NotificationCenterTest::observerRemovedByAnEarlierOneIsNotTold()
{
    mCenter->addObserver(
        &mFirst, [this](const Notification &) { mCenter->removeObserver(&mSecond); }, kOpened);
    observe(&mSecond, u"2"_s);
    observe(&mThird, u"3"_s);
    post();
    QCOMPARE(told(), u"3"_s);
}

void NotificationCenterTest::observerAddedWhileToldIsToldFromTheNextOn()
{
    mCenter->addObserver(
        &mFirst,
        [this](const Notification &) {
            mCenter->removeObserver(&mFirst);
            for (int i = 0; i < 100; ++i)
                observe(&mSecond, u"2"_s);
        },
        kOpened);
    post();
    QCOMPARE(told(), QString());
    post();
    QCOMPARE(mLog.size(), 100);
}

void NotificationCenterTest::observerMayPostWhileTold()
{
    mCenter->addObserver(
        &mFirst,
        [this](const Notification &) {
            mLog.append(u"opening"_s);
            post(kClosed);
            mLog.append(u"opened"_s);
        },
        kOpened);
    observe(&mSecond, u"closed"_s, kClosed);
    observe(&mThird, u"any"_s, QString());
    post();
    QCOMPARE(told(), u"opening closed any opened any"_s);
}

void NotificationCenterTest::observerRemovedInANestedPostIsNotToldOfTheOuterOne()
{
    mCenter->addObserver(&mFirst, [this](const Notification &) { post(kClosed); }, kOpened);
    mCenter->addObserver(
        &mFirst, [this](const Notification &) { mCenter->removeObserver(&mSecond); }, kClosed);
    observe(&mSecond, u"2"_s);
    post();
    QCOMPARE(told(), QString());
}

void NotificationCenterTest::observerMayBeDestroyedWhileTold()
{
    std::unique_ptr<Mayfly> mayfly;
    mayfly = std::make_unique<Mayfly>(*mCenter, mLog, mayfly);
    observe(&mSecond, u"2"_s);
    post();
    QVERIFY(!mayfly);
    QCOMPARE(told(), u"Opened 2"_s);
    post();
    QCOMPARE(told(), u"2"_s);
}

void NotificationCenterTest::handlerMayOwnWhatRemovesFurtherObservers()
{
    auto farewell = std::make_shared<Farewell>([this] { mCenter->removeObserver(&mSecond); });
    mCenter->addObserver(&mFirst, [farewell](const Notification &) {}, kOpened);
    farewell.reset();
    observe(&mSecond, u"2"_s);
    observe(&mThird, u"3"_s);
    mCenter->removeObserver(&mFirst);
    post();
    QCOMPARE(told(), u"3"_s);
}

KV_CORE_TEST(NotificationCenterTest)
#include "tst_notificationcenter.moc"
