#include "FieldWays.h"
#include "RefusalLog.h"
#include "WitnessFormatter.h"

#include "textinput/FormatterAdapter.h"

#include <QInputMethodEvent>
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
    user.pastes(u"123456"_qs);
    QCOMPARE(user.field()->text(), u"1234"_qs);
    QCOMPARE(witness.taken(), QStringList{u"| > 1234|"_qs});
    user.selects(1, 1);
    user.pastes(u"567"_qs);
    QCOMPARE(user.field()->text(), u"1534"_qs);
    QCOMPARE(witness.taken().last(), u"1[2]34 > 15|34"_qs);

    const auto formatter = PDEFormatter::initWithStyle(2);
    FormatterAdapter::attach(formatter.get(), user.field());
    RefusalLog log;
    user.types(u"x"_qs);
    user.pastes(u"x"_qs);
    QCOMPARE(log.takenBeeps(), 0);
    QCOMPARE(user.field()->text(), u"1534"_qs);
}

void FieldSettingsTest::fieldKeepsItsMask()
{
    const auto formatter = PDEFormatter::init();
    formatter->addInvalidCharacter(u"5"_qs);
    FieldUser user;
    user.field()->setInputMask(u"9999"_qs);
    FormatterAdapter::attach(formatter.get(), user.field());
    RefusalLog log;
    user.presses(Qt::Key_Home);
    user.types(u"1"_qs);
    user.types(u"5"_qs);
    QCOMPARE(user.field()->text(), u"1"_qs);
    user.types(u"2x3"_qs);
    user.commits(u"5"_qs);
    QCOMPARE(user.field()->text(), u"123"_qs);
    QCOMPARE(log.taken(),
             QStringList(QVector<QString>(2, u"InvalidCharacterNotification 5"_qs).toList()));
    user.types(u"4"_qs);
    QCOMPARE(user.field()->text(), u"1234"_qs);

    // The mask keeps the places of what is replaced.
    const auto digits = PDEFormatter::initWithStyle(2);
    digits->setMaxValue(99);
    FormatterAdapter::attach(digits.get(), user.field());
    user.selects(1, 2);
    user.types(u"5"_qs);
    QCOMPARE(user.field()->displayText(), u"15 4"_qs);
    QCOMPARE(log.takenBeeps(), 2);
}

void FieldSettingsTest::fieldKeepsItsValidator()
{
    /// Takes odd digits only, and two of them before it is content.
    class OddValidator : public QRegularExpressionValidator
    {
    public:
        explicit OddValidator(QObject *parent)
            : QRegularExpressionValidator(QRegularExpression(u"[13579]{2}"_qs), parent)
        {
        }
        void fixup(QString &text) const override { text = u"11"_qs; }
    };
    FieldUser user;
    user.field()->setValidator(new OddValidator(user.field()));
    const auto formatter = PDEFormatter::initWithStyle(2);
    FormatterAdapter::attach(formatter.get(), user.field());
    RefusalLog log;
    user.types(u"12x"_qs);
    QCOMPARE(user.seen(), u"1| undo"_qs);
    QCOMPARE(log.takenBeeps(), 1);
    QVERIFY(!user.field()->hasAcceptableInput());
    user.presses(Qt::Key_Return);
    QCOMPARE(user.field()->text(), u"11"_qs);
    QVERIFY(user.field()->hasAcceptableInput());
    user.presses(Qt::Key_End);
    user.types(u"\b"_qs);
    pasteByProgram(user, u"2"_qs);
    pasteByProgram(user, u"x"_qs);
    QCOMPARE(user.field()->text(), u"1"_qs);
    pasteByProgram(user, u"3"_qs);
    QCOMPARE(user.field()->text(), u"13"_qs);
    QCOMPARE(log.takenBeeps(), 1);
}

void FieldSettingsTest::fieldWithAPasswordIsChecked()
{
    const auto formatter = PDEFormatter::initWithStyle(6);
    FieldUser user;
    user.field()->setEchoMode(QLineEdit::Password);
    FormatterAdapter::attach(formatter.get(), user.field());
    RefusalLog log;
    user.types(u"a-b"_qs);
    QCOMPARE(user.field()->text(), u"ab"_qs);
    pasteByProgram(user, u"-"_qs);
    QCOMPARE(user.field()->text(), u"ab"_qs);
    QCOMPARE(log.takenBeeps(), 2);
}

void FieldSettingsTest::fieldOfASpinBoxIsChecked()
{
    const auto formatter = PDEFormatter::init();
    formatter->addInvalidCharacter(u"5"_qs);
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
    QCOMPARE(log.taken(), QStringList{u"InvalidCharacterNotification 5"_qs});
    QInputMethodEvent event;
    event.setCommitString(u"5"_qs);
    QCoreApplication::sendEvent(&spinBox, &event);
    QCOMPARE(spinBox.value(), 12);
    QCOMPARE(log.taken(), QStringList{u"InvalidCharacterNotification 5"_qs});
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
        first.types(u"1x"_qs);
        second.types(u"2y"_qs);
        QCOMPARE(first.field()->text(), u"1"_qs);
        QCOMPARE(second.field()->text(), u"2"_qs);
        QCOMPARE(FormatterAdapter::formatterOf(second.field()), formatter.get());
    }
    first.types(u"x3"_qs);
    QCOMPARE(first.field()->text(), u"13"_qs);
    QCOMPARE(log.takenBeeps(), 3);
}

void FieldSettingsTest::formatterMayGoBeforeTheField()
{
    auto formatter = PDEFormatter::initWithStyle(2);
    FieldUser user;
    FormatterAdapter::attach(formatter.get(), user.field());
    user.types(u"1x"_qs);
    formatter.reset();
    QVERIFY(!FormatterAdapter::formatterOf(user.field()));
    RefusalLog log;
    user.types(u"x"_qs);
    pasteByProgram(user, u"y"_qs);
    user.pastesFromMenu(u"z"_qs);
    user.drops(u"w"_qs, 0);
    QCOMPARE(user.field()->text(), u"w1xyz"_qs);
    QCOMPARE(log.takenBeeps(), 0);
}

void FieldSettingsTest::formatterMayBeExchanged()
{
    const auto digits = PDEFormatter::initWithStyle(2);
    const auto letters = PDEFormatter::init();
    letters->addInvalidCharacter(u"1"_qs);
    FieldUser user;
    QVERIFY(!FormatterAdapter::formatterOf(user.field()));
    for (int times = 0; times < 3; ++times) {
        FormatterAdapter::attach(digits.get(), user.field());
        FormatterAdapter::attach(letters.get(), user.field());
        QCOMPARE(FormatterAdapter::formatterOf(user.field()), letters.get());
    }
    RefusalLog log;
    user.types(u"1a"_qs);
    QCOMPARE(user.field()->text(), u"a"_qs);
    QCOMPARE(log.taken(), QStringList{u"InvalidCharacterNotification 1"_qs});
    FormatterAdapter::attach(digits.get(), user.field());
    user.types(u"1a"_qs);
    QCOMPARE(user.field()->text(), u"a1"_qs);
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
    user.types(u"ab"_qs);
    user.undoes();
    FormatterAdapter::attach(formatter.get(), user.field());
    user.types(u"c3"_qs);
    QCOMPARE(user.field()->text(), u"3"_qs);
    QCOMPARE(log.takenBeeps(), 1);
}

KV_TEST(FieldSettingsTest)
#include "tst_fieldsettings.moc"
