// SPDX-License-Identifier: Apache-2.0
#include "FieldWays.h"
#include "RefusalLog.h"
#include "WitnessFormatter.h"

#include "textinput/FormatterAdapter.h"

#include <QInputMethodEvent>
#include <QIntValidator>
#include <QRegularExpressionValidator>
#include <QSpinBox>
#include <QTest>

/// Fields with settings of their own, and formatters that come and go.
class FieldSettingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fieldKeepsItsMaximumLength();
    void fieldKeepsItsMask();
    void fieldKeepsItsValidator();
    void textThatAValidatorForbidsLetsNothingPass_data();
    void textThatAValidatorForbidsLetsNothingPass();
    void validatorMayComeLater_data();
    void validatorMayComeLater();
    void validatorMayGo();
    void fieldWithAPasswordIsChecked();
    void fieldOfASpinBoxIsChecked();
    void formatterChecksSeveralFields();
    void formatterMayGoBeforeTheField();
    void formatterMayBeExchanged();
    void formatterMayBeTakenAway();
};

void FieldSettingsTest::fieldKeepsItsMaximumLength()
{
    FieldUser user;
    WitnessFormatter witness;
    FormatterAdapter::attach(&witness, user.field());
    user.field()->setMaxLength(4);
    user.pastes(u"123456"_s);
    QCOMPARE(user.field()->text(), u"1234"_s);
    QCOMPARE(witness.taken(), QStringList{u"| > 1234|"_s});
    user.selects(1, 1);
    user.pastes(u"567"_s);
    QCOMPARE(user.field()->text(), u"1534"_s);
    QCOMPARE(witness.taken().last(), u"1[2]34 > 15|34"_s);

    const auto formatter = PDEFormatter::initWithStyle(2);
    FormatterAdapter::attach(formatter.get(), user.field());
    RefusalLog log;
    user.types(u"x"_s);
    user.pastes(u"x"_s);
    QCOMPARE(log.takenBeeps(), 0);
    QCOMPARE(user.field()->text(), u"1534"_s);
}

void FieldSettingsTest::fieldKeepsItsMask()
{
    const auto formatter = PDEFormatter::init();
    formatter->addInvalidCharacter(u"5"_s);
    FieldUser user;
    user.field()->setInputMask(u"9999"_s);
    FormatterAdapter::attach(formatter.get(), user.field());
    RefusalLog log;
    user.presses(Qt::Key_Home);
    user.types(u"1"_s);
    user.types(u"5"_s);
    QCOMPARE(user.field()->text(), u"1"_s);
    user.types(u"2x3"_s);
    user.commits(u"5"_s);
    QCOMPARE(user.field()->text(), u"123"_s);
    QCOMPARE(log.taken(),
             QStringList(QVector<QString>(2, u"InvalidCharacterNotification 5"_s).toList()));
    user.types(u"4"_s);
    QCOMPARE(user.field()->text(), u"1234"_s);

    // The mask keeps the places of what is replaced.
    const auto digits = PDEFormatter::initWithStyle(2);
    digits->setMaxValue(99);
    FormatterAdapter::attach(digits.get(), user.field());
    user.selects(1, 2);
    user.types(u"5"_s);
    QCOMPARE(user.field()->displayText(), u"15 4"_s);
    QCOMPARE(log.takenBeeps(), 2);
}

void FieldSettingsTest::fieldKeepsItsValidator()
{
    /// Takes odd digits only, and two of them before it is content.
    class OddValidator : public QRegularExpressionValidator
    {
    public:
        explicit OddValidator(QObject *parent)
            : QRegularExpressionValidator(QRegularExpression(u"[13579]{2}"_s), parent)
        {
        }
        void fixup(QString &text) const override { text = u"11"_s; }
    };
    FieldUser user;
    user.field()->setValidator(new OddValidator(user.field()));
    const auto formatter = PDEFormatter::initWithStyle(2);
    FormatterAdapter::attach(formatter.get(), user.field());
    RefusalLog log;
    user.types(u"12x"_s);
    QCOMPARE(user.seen(), u"1| undo"_s);
    QCOMPARE(log.takenBeeps(), 1);
    QVERIFY(!user.field()->hasAcceptableInput());
    user.presses(Qt::Key_Return);
    QCOMPARE(user.field()->text(), u"11"_s);
    QVERIFY(user.field()->hasAcceptableInput());
    user.presses(Qt::Key_End);
    user.types(u"\b"_s);
    pasteByProgram(user, u"2"_s);
    pasteByProgram(user, u"x"_s);
    QCOMPARE(user.field()->text(), u"1"_s);
    pasteByProgram(user, u"3"_s);
    QCOMPARE(user.field()->text(), u"13"_s);
    QCOMPARE(log.takenBeeps(), 1);
}

void FieldSettingsTest::textThatAValidatorForbidsLetsNothingPass_data()
{
    QTest::addColumn<FieldAction>("puts");
    QTest::addColumn<bool>("isAttachedFirst");
    for (const FieldWay &way : waysOfTheUser() + waysOfTheProgram()) {
        QTest::addRow("%s, text first", way.name) << way.puttingX() << false;
        QTest::addRow("%s, formatter first", way.name) << way.puttingX() << true;
    }
}

void FieldSettingsTest::textThatAValidatorForbidsLetsNothingPass()
{
    QFETCH(FieldAction, puts);
    QFETCH(bool, isAttachedFirst);
    const auto formatter = PDEFormatter::initWithStyle(2);
    FieldUser user;
    const QIntValidator upTo99(0, 99, nullptr);
    user.field()->setValidator(&upTo99);
    if (isAttachedFirst) {
        FormatterAdapter::attach(formatter.get(), user.field());
    }
    user.field()->setText(u"abc"_s);
    user.selects(2, -1);
    FormatterAdapter::attach(formatter.get(), user.field());
    RefusalLog log;
    for (int times = 1; times <= 2; ++times) {
        puts(user);
        QCOMPARE(user.seen(), u"a[|b]c"_s);
        QCOMPARE(log.takenBeeps(), 1);
    }
    QVERIFY(!user.field()->hasAcceptableInput());
    // What a validator without a formatter would let pass does so still.
    user.types(u"7"_s);
    QCOMPARE(user.seen(), u"a7|c undo"_s);
    user.undoes();
    QCOMPARE(user.field()->text(), u"abc"_s);
    user.field()->setText(u"9"_s);
    user.types(u"98"_s);
    QCOMPARE(user.field()->text(), u"99"_s);
    QVERIFY(user.field()->hasAcceptableInput());
}

void FieldSettingsTest::validatorMayComeLater_data()
{
    const TestTable<FieldAction> table("puts");
    for (const FieldWay &way : waysOfTheUser() + waysOfTheProgram()) {
        table.add(way.name, FieldAction([put = way.put](FieldUser &user) { put(user, u"5"_s); }));
    }
}

void FieldSettingsTest::validatorMayComeLater()
{
    QFETCH(FieldAction, puts);
    const auto formatter = PDEFormatter::init();
    formatter->addInvalidCharacter(u"5"_s);
    FieldUser user;
    FormatterAdapter::attach(formatter.get(), user.field());
    user.types(u"12"_s);
    const QIntValidator upTo999(0, 999, nullptr);
    user.field()->setValidator(&upTo999);
    RefusalLog log;
    for (int times = 1; times <= 2; ++times) {
        puts(user);
        QCOMPARE(user.field()->text(), u"12"_s);
        QCOMPARE(user.field()->cursorPosition(), 2);
        QCOMPARE(log.taken(), invalidCharacter(u"5"_s));
    }
    user.types(u"x3"_s);
    QCOMPARE(user.field()->text(), u"123"_s);
    user.types(u"4"_s);
    QCOMPARE(user.field()->text(), u"123"_s);
    QCOMPARE(log.takenBeeps(), 2);
}

void FieldSettingsTest::validatorMayGo()
{
    const auto formatter = PDEFormatter::initWithStyle(2);
    FieldUser user;
    const QIntValidator upTo9(0, 9, nullptr);
    user.field()->setValidator(&upTo9);
    FormatterAdapter::attach(formatter.get(), user.field());
    user.types(u"12"_s);
    QCOMPARE(user.field()->text(), u"1"_s);
    user.field()->setValidator(nullptr);
    RefusalLog log;
    user.field()->insert(u"x"_s);
    user.types(u"2"_s);
    QCOMPARE(user.field()->text(), u"12"_s);
    QCOMPARE(log.takenBeeps(), 1);
}

void FieldSettingsTest::fieldWithAPasswordIsChecked()
{
    const auto formatter = PDEFormatter::initWithStyle(6);
    FieldUser user;
    user.field()->setEchoMode(QLineEdit::Password);
    FormatterAdapter::attach(formatter.get(), user.field());
    RefusalLog log;
    user.types(u"a-b"_s);
    QCOMPARE(user.field()->text(), u"ab"_s);
    pasteByProgram(user, u"-"_s);
    QCOMPARE(user.field()->text(), u"ab"_s);
    QCOMPARE(log.takenBeeps(), 2);
}

void FieldSettingsTest::fieldOfASpinBoxIsChecked()
{
    const auto formatter = PDEFormatter::init();
    formatter->addInvalidCharacter(u"5"_s);
    QSpinBox spinBox;
    spinBox.setRange(0, 999);
    auto *field = spinBox.findChild<QLineEdit *>();
    FormatterAdapter::attach(formatter.get(), field);
    spinBox.show();
    field->selectAll();
    RefusalLog log;
    for (const Qt::Key key : {Qt::Key_1, Qt::Key_5, Qt::Key_X, Qt::Key_2}) {
        QTest::keyClick(&spinBox, key);
    }
    QCOMPARE(spinBox.value(), 12);
    QCOMPARE(log.taken(), QStringList{u"InvalidCharacterNotification 5"_s});
    QInputMethodEvent event;
    event.setCommitString(u"5"_s);
    QCoreApplication::sendEvent(&spinBox, &event);
    QCOMPARE(spinBox.value(), 12);
    QCOMPARE(log.taken(), QStringList{u"InvalidCharacterNotification 5"_s});
}

void FieldSettingsTest::formatterChecksSeveralFields()
{
    const auto formatter = PDEFormatter::initWithStyle(2);
    FieldUser first;
    FormatterAdapter::attach(formatter.get(), first.field());
    RefusalLog log;
    {
        FieldUser second;
        FormatterAdapter::attach(formatter.get(), second.field());
        first.types(u"1x"_s);
        second.types(u"2y"_s);
        QCOMPARE(first.field()->text(), u"1"_s);
        QCOMPARE(second.field()->text(), u"2"_s);
        QCOMPARE(FormatterAdapter::formatterOf(second.field()), formatter.get());
    }
    first.types(u"x3"_s);
    QCOMPARE(first.field()->text(), u"13"_s);
    QCOMPARE(log.takenBeeps(), 3);
}

void FieldSettingsTest::formatterMayGoBeforeTheField()
{
    auto formatter = PDEFormatter::initWithStyle(2);
    FieldUser user;
    FormatterAdapter::attach(formatter.get(), user.field());
    user.types(u"1x"_s);
    formatter.reset();
    QVERIFY(!FormatterAdapter::formatterOf(user.field()));
    RefusalLog log;
    user.types(u"x"_s);
    pasteByProgram(user, u"y"_s);
    user.pastesFromMenu(u"z"_s);
    user.drops(u"w"_s, 0);
    QCOMPARE(user.field()->text(), u"w1xyz"_s);
    QCOMPARE(log.takenBeeps(), 0);
}

void FieldSettingsTest::formatterMayBeExchanged()
{
    const auto digits = PDEFormatter::initWithStyle(2);
    const auto letters = PDEFormatter::init();
    letters->addInvalidCharacter(u"1"_s);
    FieldUser user;
    QVERIFY(!FormatterAdapter::formatterOf(user.field()));
    for (int times = 0; times < 3; ++times) {
        FormatterAdapter::attach(digits.get(), user.field());
        FormatterAdapter::attach(letters.get(), user.field());
        QCOMPARE(FormatterAdapter::formatterOf(user.field()), letters.get());
    }
    RefusalLog log;
    user.types(u"1a"_s);
    QCOMPARE(user.field()->text(), u"a"_s);
    QCOMPARE(log.taken(), QStringList{u"InvalidCharacterNotification 1"_s});
    FormatterAdapter::attach(digits.get(), user.field());
    user.types(u"1a"_s);
    QCOMPARE(user.field()->text(), u"a1"_s);
    QCOMPARE(log.takenBeeps(), 2);
}

void FieldSettingsTest::formatterMayBeTakenAway()
{
    const auto formatter = PDEFormatter::initWithStyle(2);
    FieldUser user;
    FormatterAdapter::attach(nullptr, user.field());
    QVERIFY(!user.field()->validator());
    FormatterAdapter::attach(formatter.get(), user.field());
    FormatterAdapter::attach(nullptr, user.field());
    QVERIFY(!FormatterAdapter::formatterOf(user.field()));
    RefusalLog log;
    user.types(u"ab"_s);
    user.undoes();
    FormatterAdapter::attach(formatter.get(), user.field());
    user.types(u"c3"_s);
    QCOMPARE(user.field()->text(), u"3"_s);
    QCOMPARE(log.takenBeeps(), 1);
}

KV_TEST(FieldSettingsTest)
#include "tst_fieldsettings.moc"
