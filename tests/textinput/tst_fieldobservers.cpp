// SPDX-License-Identifier: Apache-2.0
#include "FieldWays.h"
#include "RefusalLog.h"

#include "printcore/NotificationCenter.h"
#include "textinput/FormatterAdapter.h"
#include "textinput/PDEFormatter.h"

#include <QTest>

#include <functional>

/// What an observer may do to a text field when it is told of a refused edit.
class FieldObserversTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void observerMayRemoveItself();
    void observerMayChangeTheField_data();
    void observerMayChangeTheField();
    void observerMayDestroyTheField_data();
    void observerMayDestroyTheField();
    void textDroppedOnADestroyedFieldStaysWithItsSource();
    void observerMayDestroyTheFormatter_data();
    void observerMayDestroyTheFormatter();
};

namespace {
/// Does something when a refusal is told, for as long as it lives.
class RefusalObserver
{
public:
    explicit RefusalObserver(const std::function<void()> &action)
    {
        NotificationCenter::defaultCenter().addObserver(
            this, [action](const Notification &) { action(); }, InvalidCharacterNotification);
    }
    ~RefusalObserver() { NotificationCenter::defaultCenter().removeObserver(this); }
    Q_DISABLE_COPY_MOVE(RefusalObserver)
};

void addWaysOfTheUser()
{
    const TestTable<FieldAction> table("puts");
    for (const FieldWay &way : waysOfTheUser()) {
        table.add(way.name, way.puttingX());
    }
    table.add("drop", FieldAction([](FieldUser &user) { user.drops(u"x"_s, 1); }));
    table.add("composition", FieldAction([](FieldUser &user) {
                  user.composes(u"ks"_s);
                  user.commits(u"x"_s);
              }));
}

void addWaysOfTheProgram()
{
    for (const FieldWay &way : waysOfTheProgram()) {
        QTest::newRow(way.name) << way.puttingX();
    }
}
} // namespace

void FieldObserversTest::observerMayRemoveItself()
{
    const auto formatter = PDEFormatter::initWithStyle(2);
    FieldUser user;
    FormatterAdapter::attach(formatter.get(), user.field());
    int told = 0;
    std::unique_ptr<RefusalObserver> observer;
    observer = std::make_unique<RefusalObserver>([&] {
        ++told;
        observer.reset();
    });
    user.types(u"1xx2"_s);
    QCOMPARE(told, 1);
    QCOMPARE(user.seen(), u"12| undo"_s);
}

void FieldObserversTest::observerMayChangeTheField_data()
{
    addWaysOfTheUser();
    addWaysOfTheProgram();
}

void FieldObserversTest::observerMayChangeTheField()
{
    QFETCH(FieldAction, puts);
    const auto formatter = PDEFormatter::initWithStyle(2);
    FieldUser user;
    FormatterAdapter::attach(formatter.get(), user.field());
    user.types(u"1234"_s);
    const std::unique_ptr<RefusalObserver> observer =
        std::make_unique<RefusalObserver>([&user] { user.field()->setText(u"99"_s); });
    puts(user);
    QCOMPARE(user.seen(), u"99|"_s);
    user.types(u"5"_s);
    QCOMPARE(user.seen(), u"995| undo"_s);
    puts(user);
    QCOMPARE(user.seen(), u"99|"_s);
}

void FieldObserversTest::observerMayDestroyTheField_data()
{
    addWaysOfTheUser();
}

void FieldObserversTest::observerMayDestroyTheField()
{
    QFETCH(FieldAction, puts);
    const auto formatter = PDEFormatter::initWithStyle(2);
    FieldUser user;
    FormatterAdapter::attach(formatter.get(), user.field());
    user.types(u"1234"_s);
    RefusalLog log;
    const RefusalObserver observer([&user] { delete user.field(); });
    puts(user);
    QVERIFY(!user.field());
    QCOMPARE(log.takenBeeps(), 1);
    QCoreApplication::processEvents();
}

void FieldObserversTest::textDroppedOnADestroyedFieldStaysWithItsSource()
{
    const auto formatter = PDEFormatter::initWithStyle(2);
    FieldUser user;
    FormatterAdapter::attach(formatter.get(), user.field());
    const RefusalObserver observer([&user] { delete user.field(); });
    QCOMPARE(user.drops(u"x"_s, 0), Qt::IgnoreAction);
    QVERIFY(!user.field());
}

void FieldObserversTest::observerMayDestroyTheFormatter_data()
{
    addWaysOfTheUser();
    addWaysOfTheProgram();
}

void FieldObserversTest::observerMayDestroyTheFormatter()
{
    QFETCH(FieldAction, puts);
    auto formatter = PDEFormatter::initWithStyle(2);
    FieldUser user;
    FormatterAdapter::attach(formatter.get(), user.field());
    user.types(u"12"_s);
    RefusalLog log;
    const RefusalObserver observer([&formatter] { formatter.reset(); });
    puts(user);
    QCOMPARE(user.seen(), u"12| undo"_s);
    QCOMPARE(log.takenBeeps(), 1);
    puts(user);
    QCOMPARE(user.field()->text().count(u'x'), 1);
    QCOMPARE(log.takenBeeps(), 0);
}

KV_TEST(FieldObserversTest)
#include "tst_fieldobservers.moc"
