// SPDX-License-Identifier: Apache-2.0
#include "printcore/NotificationCenter.h"

#include <QTest>

#include <functional>
#include <memory>
#include <utility>

namespace {
const QString kOpened = QStringLiteral("Opened");
const QString kClosed = QStringLiteral("Closed");

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
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("oneObject");
    QTest::addColumn<QString>("expected");

    QTest::newRow("one name, any object") << kOpened << false << "O1 O2 O0";
    QTest::newRow("one name, one object") << kOpened << true << "O1";
    QTest::newRow("any name, one object") << QString() << true << "O1 C1";
    QTest::newRow("any name, any object") << QString() << false << "O1 O2 O0 C1 C2 C0";
    QTest::newRow("an empty name is not any") << QStringLiteral("") << false << "";
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
    observe(&mSecond, QStringLiteral("2"));
    observe(&mFirst, QStringLiteral("1"));
    observe(&mThird, QStringLiteral("3"), QString());
    observe(&mSecond, QStringLiteral("2b"));
    post();
    QCOMPARE(told(), QStringLiteral("2 1 3 2b"));
}

void NotificationCenterTest::tellsOncePerRegistration()
{
    observe(&mFirst, QStringLiteral("1"));
    observe(&mFirst, QStringLiteral("1"));
    post();
    QCOMPARE(told(), QStringLiteral("1 1"));
}

void NotificationCenterTest::sharesOneDefaultCenter()
{
    NotificationCenter &center = NotificationCenter::defaultCenter();
    center.addObserver(this, logging(QStringLiteral("told")), kOpened);
    NotificationCenter::defaultCenter().postNotification(kOpened, nullptr);
    QCOMPARE(told(), QStringLiteral("told"));

    center.removeObserver(this);
    NotificationCenter::defaultCenter().postNotification(kOpened, nullptr);
    QCOMPARE(told(), QString());
}

void NotificationCenterTest::removesOneRegistrationOnly_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("oneObject");
    QTest::addColumn<QString>("left");

    QTest::newRow("name and object") << kOpened << true << "opened any-first closed-first other";
    QTest::newRow("name, any object") << kOpened << false << "any-first closed-first other";
    QTest::newRow("any name, object") << QString() << true << "opened other";
    QTest::newRow("any name and object") << QString() << false << "other";
    QTest::newRow("never registered")
        << QStringLiteral("Moved") << false << "opened opened-first any-first closed-first other";
}

void NotificationCenterTest::removesOneRegistrationOnly()
{
    QFETCH(QString, name);
    QFETCH(bool, oneObject);
    mCenter->addObserver(&mSecond, logging(QStringLiteral("opened")), kOpened);
    mCenter->addObserver(&mSecond, logging(QStringLiteral("opened-first")), kOpened, &mFirst);
    mCenter->addObserver(&mSecond, logging(QStringLiteral("any-first")), QString(), &mFirst);
    mCenter->addObserver(&mSecond, logging(QStringLiteral("closed-first")), kClosed, &mFirst);
    mCenter->addObserver(&mThird, logging(QStringLiteral("other")), kOpened, &mFirst);

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
    observe(&mFirst, QStringLiteral("1"));
    observe(&mSecond, QStringLiteral("2"));
    observe(&mFirst, QStringLiteral("1b"), QString());
    mCenter->removeObserver(&mFirst);
    mCenter->removeObserver(&mThird);
    post();
    QCOMPARE(told(), QStringLiteral("2"));
}

void NotificationCenterTest::observerMayRemoveItselfWhileTold()
{
    const QString captured = QStringLiteral("still here after the removal");
    mCenter->addObserver(
        &mFirst,
        [this, captured](const Notification &) {
            mCenter->removeObserver(&mFirst);
            mLog.append(captured);
        },
        kOpened);
    observe(&mSecond, QStringLiteral("2"));
    post();
    QCOMPARE(told(), captured + QStringLiteral(" 2"));
    post();
    QCOMPARE(told(), QStringLiteral("2"));
}

void NotificationCenterTest::observerRemovedByAnEarlierOneIsNotTold()
{
    mCenter->addObserver(
        &mFirst, [this](const Notification &) { mCenter->removeObserver(&mSecond); }, kOpened);
    observe(&mSecond, QStringLiteral("2"));
    observe(&mThird, QStringLiteral("3"));
    post();
    QCOMPARE(told(), QStringLiteral("3"));
}

void NotificationCenterTest::observerAddedWhileToldIsToldFromTheNextOn()
{
    mCenter->addObserver(
        &mFirst,
        [this](const Notification &) {
            mCenter->removeObserver(&mFirst);
            for (int i = 0; i < 100; ++i)
                observe(&mSecond, QStringLiteral("2"));
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
            mLog.append(QStringLiteral("opening"));
            post(kClosed);
            mLog.append(QStringLiteral("opened"));
        },
        kOpened);
    observe(&mSecond, QStringLiteral("closed"), kClosed);
    observe(&mThird, QStringLiteral("any"), QString());
    post();
    QCOMPARE(told(), QStringLiteral("opening closed any opened any"));
}

void NotificationCenterTest::observerRemovedInANestedPostIsNotToldOfTheOuterOne()
{
    mCenter->addObserver(&mFirst, [this](const Notification &) { post(kClosed); }, kOpened);
    mCenter->addObserver(
        &mFirst, [this](const Notification &) { mCenter->removeObserver(&mSecond); }, kClosed);
    observe(&mSecond, QStringLiteral("2"));
    post();
    QCOMPARE(told(), QString());
}

void NotificationCenterTest::observerMayBeDestroyedWhileTold()
{
    std::unique_ptr<Mayfly> mayfly;
    mayfly = std::make_unique<Mayfly>(*mCenter, mLog, mayfly);
    observe(&mSecond, QStringLiteral("2"));
    post();
    QVERIFY(!mayfly);
    QCOMPARE(told(), QStringLiteral("Opened 2"));
    post();
    QCOMPARE(told(), QStringLiteral("2"));
}

void NotificationCenterTest::handlerMayOwnWhatRemovesFurtherObservers()
{
    auto farewell = std::make_shared<Farewell>([this] { mCenter->removeObserver(&mSecond); });
    mCenter->addObserver(&mFirst, [farewell](const Notification &) {}, kOpened);
    farewell.reset();
    observe(&mSecond, QStringLiteral("2"));
    observe(&mThird, QStringLiteral("3"));
    mCenter->removeObserver(&mFirst);
    post();
    QCOMPARE(told(), QStringLiteral("3"));
}

KV_CORE_TEST(NotificationCenterTest)
#include "tst_notificationcenter.moc"
