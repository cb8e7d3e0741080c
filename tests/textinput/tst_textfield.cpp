// SPDX-License-Identifier: Apache-2.0
#include "FieldWays.h"
#include "RefusalLog.h"

#include "printcore/NotificationCenter.h"
#include "support/Limits.h"
#include "textinput/FormatterAdapter.h"
#include "textinput/PDEFormatter.h"
#include "textinput/PDETextField.h"
#include "toolkit/NibLoader.h"

#include <QAccessible>
#include <QClipboard>
#include <QEventLoop>
#include <QGuiApplication>
#include <QIntValidator>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <functional>
#include <limits>

/// A text field that tells of its edits, made by the program and by a form.
class TextFieldTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void tellsOfEachEdit_data();
    void tellsOfEachEdit();
    void tellsNothingOfTheRest_data();
    void tellsNothingOfTheRest();
    void tellsNothingOfRefusedEdits();
    void tellsNothingOfEditsThatAreTakenBack();
    void tellsOfEachEditOfANestedLoop();
    void tabbingTellsNothing();
    void selectTextTellsAndSelectsNothing();
    void answersTell();
    void takesTheFocus();

    void observerMayRemoveItself();
    void observerMayChangeTheField();
    void observerMayDestroyTheField_data();
    void observerMayDestroyTheField();
    void observerMayHaveTheFieldDestroyedLater();

    void formMakesTheField();
    void formNamesTheFormatter();
    void formConnectsSelectText();
    void formatterFollowsProperties();
    void propertiesSetAnAttachedFormatter();
    void warnsOfPropertiesThatAreNoIntegers_data();
    void warnsOfPropertiesThatAreNoIntegers();
    void takesIntegersOfEveryKind_data();
    void takesIntegersOfEveryKind();
    void otherPropertiesMakeNoFormatter();
    void fieldOwnsItsFormatter();

private: // NOLINT(readability-redundant-access-specifiers): these are no slots
    PDETextField13_v400_ *field() const { return mField; }
    int told() { return std::exchange(mTold, 0); }

    std::unique_ptr<FieldUser> mUser;
    QPointer<PDETextField13_v400_> mField;
    int mTold = 0;
};

namespace {
/// A form with these widgets.
std::unique_ptr<QWidget> formWith(const QByteArray &widgets, const QByteArray &connections = {})
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"Form.ui"_s);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return nullptr;
    }
    file.write(R"(<?xml version="1.0"?><ui version="4.0"><class>form</class>)"
               R"(<widget class="QWidget" name="form">)" +
               widgets + "</widget><connections>" + connections + "</connections></ui>");
    file.close();
    const NibClass textField = NibClass::of<PDETextField13_v400_>();
    return NibLoader::load(path, nullptr, {&textField, 1});
}

/// How assistive technology edits the field.
QAccessibleEditableTextInterface *accessTo(const FieldUser &user)
{
    return QAccessible::queryAccessibleInterface(user.field())->editableTextInterface();
}

QByteArray fieldWith(const QByteArray &properties)
{
    return R"(<widget class="PDETextField13_v400_" name="count">)" + properties + "</widget>";
}

QByteArray propertyOf(const QByteArray &name, const QByteArray &value)
{
    return "<property name=\"" + name + "\" stdset=\"0\">" + value + "</property>";
}
} // namespace

void TextFieldTest::init()
{
    mField = new PDETextField13_v400_;
    mUser = std::make_unique<FieldUser>(mField);
    mTold = 0;
    NotificationCenter::defaultCenter().addObserver(
        this, [this](const Notification &) { ++mTold; },
        u"TextFieldResignFirstResponderNotification"_s, field());
}

void TextFieldTest::cleanup()
{
    NotificationCenter::defaultCenter().removeObserver(this);
    mUser.reset();
}

void TextFieldTest::tellsOfEachEdit_data()
{
    const TestTable<FieldAction, int> table("edits", "told");
    const auto row = [&table](const char *name, int told, const FieldAction &edits) {
        table.add(name, edits, told);
    };
    row("one character", 1, [](FieldUser &user) { user.types(u"x"_s); });
    row("three characters", 3, [](FieldUser &user) { user.types(u"xyz"_s); });
    row("over a selection", 1, [](FieldUser &user) {
        user.selects(0, 2);
        user.types(u"x"_s);
    });
    row("deleting", 2, [](FieldUser &user) { user.types(u"\b\b"_s); });
    row("pasting", 1, [](FieldUser &user) { user.pastes(u"xyz"_s); });
    row("pasting from the menu", 1, [](FieldUser &user) { user.pastesFromMenu(u"xyz"_s); });
    row("cutting", 1, [](FieldUser &user) {
        user.selects(0, 2);
        user.presses(Qt::Key_X, Qt::ControlModifier);
    });
    row("drop", 1, [](FieldUser &user) { user.drops(u"xyz"_s, 1); });
    row("commit", 1, [](FieldUser &user) {
        user.composes(u"ka"_s);
        user.commits(u"x"_s);
    });
    row("undo", 1, [](FieldUser &user) { user.undoes(); });
    row("redo", 2, [](FieldUser &user) {
        user.undoes();
        user.redoes();
    });
    row("undo from the menu", 1, [](FieldUser &user) { user.choosesFromMenu(QKeySequence::Undo); });
    row("replaced by assistive technology", 1,
        [](FieldUser &user) { accessTo(user)->replaceText(0, 4, u"56"_s); });
    row("inserted by assistive technology", 1,
        [](FieldUser &user) { accessTo(user)->insertText(2, u"56"_s); });
    row("deleted by assistive technology", 1,
        [](FieldUser &user) { accessTo(user)->deleteText(1, 3); });
    row("set as a value by assistive technology", 1, [](FieldUser &user) {
        QAccessible::queryAccessibleInterface(user.field())->setText(QAccessible::Value, u"7"_s);
    });
    row("set as the text of any line edit", 2, [](FieldUser &user) {
        user.field()->setText(u"5678"_s);
        user.field()->setText(u"567"_s);
    });
    row("pasting by the program", 1, [](FieldUser &user) {
        QGuiApplication::clipboard()->setText(u"xyz"_s);
        user.field()->paste();
    });
}

void TextFieldTest::tellsOfEachEdit()
{
    QFETCH(FieldAction, edits);
    mUser->types(u"1234"_s);
    QCOMPARE(told(), 4);
    edits(*mUser);
    QCoreApplication::sendPostedEvents(field());
    QTEST(told(), "told");
}

void TextFieldTest::tellsNothingOfTheRest_data()
{
    const TestTable<FieldAction> table("acts");
    table.add("text of the program", [](FieldUser &user) {
        static_cast<PDETextField13_v400_ *>(user.field())->setText(u"5678"_s);
    });
    table.add("text of the program, twice", [](FieldUser &user) {
        auto *field = static_cast<PDETextField13_v400_ *>(user.field());
        field->clear();
        field->setText(u"5678"_s);
    });
    table.add("text of a form",
              [](FieldUser &user) { user.field()->setProperty("text", u"5678"_s); });
    table.add("text that is there already", [](FieldUser &user) {
        static_cast<PDETextField13_v400_ *>(user.field())->setText(user.field()->text());
        user.field()->setText(user.field()->text());
    });
    table.add("moving the caret", [](FieldUser &user) { user.presses(Qt::Key_Home); });
    table.add("selecting", [](FieldUser &user) { user.presses(Qt::Key_Home, Qt::ShiftModifier); });
    table.add("Return", [](FieldUser &user) { user.presses(Qt::Key_Return); });
    table.add("deleting nothing", [](FieldUser &user) { user.presses(Qt::Key_Delete); });
    table.add("composing", [](FieldUser &user) { user.composes(u"ka"_s); });
    table.add("focus", [](FieldUser &user) {
        user.field()->clearFocus();
        user.field()->setFocus();
    });
    table.add("hiding", [](FieldUser &user) {
        user.field()->hide();
        user.field()->show();
    });
}

void TextFieldTest::tellsNothingOfTheRest()
{
    QFETCH(FieldAction, acts);
    mUser->types(u"1234"_s);
    told();
    acts(*mUser);
    QCoreApplication::sendPostedEvents(field());
    QCOMPARE(told(), 0);
    QCOMPARE(mUser->field()->text().size(), 4);
}

void TextFieldTest::tellsNothingOfRefusedEdits()
{
    const auto formatter = PDEFormatter::initWithStyle(2);
    FormatterAdapter::attach(formatter.get(), field());
    mUser->types(u"x1y"_s);
    mUser->pastes(u"x"_s);
    mUser->pastesFromMenu(u"x"_s);
    mUser->drops(u"x"_s, 0);
    mUser->commits(u"x"_s);
    QCoreApplication::sendPostedEvents(field());
    QCOMPARE(field()->text(), u"1"_s);
    QCOMPARE(told(), 1);
}

void TextFieldTest::tellsNothingOfEditsThatAreTakenBack()
{
    const auto formatter = PDEFormatter::init();
    formatter->addInvalidCharacter(u"5"_s);
    FormatterAdapter::attach(formatter.get(), field());
    mUser->types(u"12"_s);
    told();
    const QIntValidator upTo999(0, 999, nullptr);
    field()->setValidator(&upTo999);
    field()->insert(u"5"_s);
    QCOMPARE(field()->text(), u"12"_s);
    QCoreApplication::sendPostedEvents(field());
    QCOMPARE(told(), 0);
}

void TextFieldTest::tellsOfEachEditOfANestedLoop()
{
    QStringList seen;
    connect(field(), &QLineEdit::returnPressed, this, [&] {
        QEventLoop loop;
        QTimer::singleShot(0, &loop, [&] {
            for (const char16_t *key : {u"3", u"4"}) {
                mUser->types(QString::fromUtf16(key));
                seen.append(u"%1: %2"_s.arg(field()->text()).arg(told()));
            }
            loop.quit();
        });
        loop.exec();
    });
    mUser->types(u"12"_s);
    told();
    mUser->presses(Qt::Key_Return);
    QCOMPARE(seen, QStringList({u"123: 1"_s, u"1234: 1"_s}));
    QCOMPARE(told(), 0);
}

void TextFieldTest::tabbingTellsNothing()
{
    QLineEdit before(&mUser->window());
    QLineEdit after(&mUser->window());
    before.show();
    after.show();
    QWidget::setTabOrder(&before, field());
    QWidget::setTabOrder(field(), &after);
    field()->setText(u"1234"_s);
    before.setFocus();
    QTest::keyClick(&mUser->window(), Qt::Key_Tab);
    QCOMPARE(mUser->window().focusWidget(), field());
    QCOMPARE(field()->selectedText(), u"1234"_s);
    QTest::keyClick(&mUser->window(), Qt::Key_Tab);
    QCOMPARE(mUser->window().focusWidget(), &after);
    QTest::keyClick(&mUser->window(), Qt::Key_Backtab);
    QCOMPARE(mUser->window().focusWidget(), field());
    QCOMPARE(told(), 0);
}

void TextFieldTest::selectTextTellsAndSelectsNothing()
{
    field()->setText(u"1234"_s);
    field()->setCursorPosition(2);
    field()->selectText();
    QCOMPARE(told(), 1);
    QCOMPARE(mUser->seen(), u"12|34"_s);
    field()->setSelection(1, 2);
    field()->selectText(this);
    QCOMPARE(told(), 1);
    QCOMPARE(mUser->seen(), u"1[23|]4"_s);
    QVERIFY(QMetaObject::invokeMethod(field(), "selectText"));
    QCOMPARE(told(), 1);

    // The user may select everything all the same.
    mUser->presses(Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(mUser->seen(), u"[1234|]"_s);
    field()->deselect();
    mUser->choosesFromMenu(QKeySequence::SelectAll);
    QCOMPARE(mUser->seen(), u"[1234|]"_s);
    QCOMPARE(told(), 0);
}

void TextFieldTest::answersTell()
{
    field()->sendFirstResponderNotification(true);
    QCOMPARE(told(), 0);
    field()->sendFirstResponderNotification(false);
    QCOMPARE(told(), 1);
    field()->textDidEndEditing();
    QCOMPARE(told(), 0);
    field()->textDidChange();
    QCOMPARE(told(), 1);
}

void TextFieldTest::takesTheFocus()
{
    field()->clearFocus();
    QVERIFY(field()->becomeFirstResponder());
    QVERIFY(field()->hasFocus());
    field()->setEnabled(false);
    QVERIFY(!field()->becomeFirstResponder());
    QCOMPARE(told(), 0);
}

namespace {
/// Does something when the field tells of an edit, for as long as it lives.
class EditObserver
{
public:
    explicit EditObserver(const std::function<void()> &action)
    {
        NotificationCenter::defaultCenter().addObserver(
            this, [action](const Notification &) { action(); },
            TextFieldResignFirstResponderNotification);
    }
    ~EditObserver() { NotificationCenter::defaultCenter().removeObserver(this); }
    Q_DISABLE_COPY_MOVE(EditObserver)
};
} // namespace

void TextFieldTest::observerMayRemoveItself()
{
    int seen = 0;
    std::unique_ptr<EditObserver> observer;
    observer = std::make_unique<EditObserver>([&] {
        ++seen;
        observer.reset();
    });
    mUser->types(u"12"_s);
    QCOMPARE(seen, 1);
    QCOMPARE(told(), 2);
}

void TextFieldTest::observerMayChangeTheField()
{
    const EditObserver observer([this] { field()->setText(field()->text().toUpper()); });
    mUser->types(u"ab"_s);
    QCOMPARE(field()->text(), u"AB"_s);
    mUser->pastes(u"cd"_s);
    QCOMPARE(field()->text(), u"ABCD"_s);
    QGuiApplication::clipboard()->setText(u"ef"_s);
    field()->paste();
    QCoreApplication::sendPostedEvents(field());
    QCOMPARE(field()->text(), u"ABCDEF"_s);
    QCOMPARE(told(), 4);
}

void TextFieldTest::observerMayDestroyTheField_data()
{
    const TestTable<FieldAction> table("edits");
    table.add("typing", FieldAction([](FieldUser &user) { user.types(u"x"_s); }));
    table.add("deleting", FieldAction([](FieldUser &user) { user.types(u"\b"_s); }));
    table.add("pasting", FieldAction([](FieldUser &user) { user.pastes(u"x"_s); }));
    table.add("commit", FieldAction([](FieldUser &user) { user.commits(u"x"_s); }));
    table.add("drop", FieldAction([](FieldUser &user) { user.drops(u"x"_s, 0); }));
    table.add("undo", FieldAction([](FieldUser &user) { user.undoes(); }));
    table.add("menu", FieldAction([](FieldUser &user) { user.pastesFromMenu(u"x"_s); }));
}

void TextFieldTest::observerMayDestroyTheField()
{
    QFETCH(FieldAction, edits);
    mUser->types(u"12"_s);
    const EditObserver observer([this] { delete field(); });
    edits(*mUser);
    QCoreApplication::processEvents();
    QVERIFY(!field());
    QCOMPARE(told(), 3);
}

void TextFieldTest::observerMayHaveTheFieldDestroyedLater()
{
    const EditObserver observer([this] { field()->deleteLater(); });
    mUser->types(u"x"_s);
    QVERIFY(field());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!field());
}

void TextFieldTest::formMakesTheField()
{
    const auto form = formWith(fieldWith("<property name=\"text\"><string>12</string></property>"));
    QVERIFY(form);
    auto *made = form->findChild<PDETextField13_v400_ *>(u"count"_s);
    QVERIFY(made);
    QCOMPARE(made->text(), u"12"_s);
    QVERIFY(!FormatterAdapter::formatterOf(made));
}

void TextFieldTest::formNamesTheFormatter()
{
    const auto form = formWith(fieldWith(propertyOf("formatterStyle", "<number>2</number>") +
                                         propertyOf("formatterMaxLength", "<number>3</number>") +
                                         propertyOf("formatterMinValue", "<string>10</string>") +
                                         propertyOf("formatterMaxValue", "<number>200</number>")));
    auto *made = form->findChild<PDETextField13_v400_ *>();
    PDEFormatter *formatter = FormatterAdapter::formatterOf(made);
    QVERIFY(formatter);
    QCOMPARE(formatter->formatString(), u"%@"_s);
    QCOMPARE(formatter->textStyle(), 2);
    QCOMPARE(formatter->maxLength(), 3);
    QCOMPARE(formatter->minValue(), 10);
    QCOMPARE(formatter->maxValue(), 200);
    QVERIFY(formatter->isValidityMinValue());
    QVERIFY(formatter->isValidityMaxValue());

    RefusalLog log;
    QTest::keyClicks(made, u"5x005"_s);
    QCOMPARE(made->text(), u"50"_s);
    QCOMPARE(log.taken(),
             QStringList({u"InvalidCharacterNotification"_s, u"FormatErrorNotification"_s,
                          u"FormatErrorNotification"_s}));
}

void TextFieldTest::formConnectsSelectText()
{
    const auto form = formWith(fieldWith("") + R"(<widget class="QPushButton" name="button"/>)",
                               "<connection><sender>button</sender><signal>clicked()</signal>"
                               "<receiver>count</receiver><slot>selectText()</slot></connection>");
    int seen = 0;
    const EditObserver observer([&seen] { ++seen; });
    form->findChild<QPushButton *>()->click();
    QCOMPARE(seen, 1);
}

void TextFieldTest::formatterFollowsProperties()
{
    QVERIFY(!FormatterAdapter::formatterOf(field()));
    field()->setProperty("formatterMaxLength", 4);
    PDEFormatter *formatter = FormatterAdapter::formatterOf(field());
    QVERIFY(formatter);
    QCOMPARE(formatter->textStyle(), 0);
    QVERIFY(!formatter->isValidityMinValue());
    QVERIFY(!formatter->isValidityMaxValue());
    formatter->addInvalidCharacter(u"x"_s);

    field()->setProperty("formatterStyle", 6);
    field()->setProperty("formatterMinValue", -5);
    field()->setProperty("formatterMaxValue", 5);
    QCOMPARE(FormatterAdapter::formatterOf(field()), formatter);
    QCOMPARE(formatter->textStyle(), 6);
    QCOMPARE(formatter->maxLength(), 4);
    QCOMPARE(formatter->minValue(), -5);
    QCOMPARE(formatter->maxValue(), 5);
    mUser->types(u"ax-bcdef"_s);
    QCOMPARE(field()->text(), u"abcd"_s);

    for (const char *name :
         {"formatterStyle", "formatterMaxLength", "formatterMinValue", "formatterMaxValue"}) {
        field()->setProperty(name, QVariant());
    }
    QCOMPARE(formatter->textStyle(), 0);
    QCOMPARE(formatter->maxLength(), 0);
    QVERIFY(!formatter->isValidityMinValue());
    QVERIFY(!formatter->isValidityMaxValue());
    QCOMPARE(FormatterAdapter::formatterOf(field()), formatter);
    QVERIFY(formatter->isInvalidCharacter(u"x"_s));
}

void TextFieldTest::propertiesSetAnAttachedFormatter()
{
    const auto own = PDEFormatter::initWithStyle(2);
    FormatterAdapter::attach(own.get(), field());
    field()->setProperty("formatterMaxLength", 3);
    QCOMPARE(FormatterAdapter::formatterOf(field()), own.get());
    QCOMPARE(own->maxLength(), 3);
    RefusalLog log;
    mUser->types(u"1x234"_s);
    QCOMPARE(field()->text(), u"123"_s);
    QCOMPARE(log.takenBeeps(), 2);

    // A field from which it has been taken away gets one again.
    FormatterAdapter::attach(nullptr, field());
    field()->setProperty("formatterMaxLength", 5);
    QVERIFY(FormatterAdapter::formatterOf(field()));
    mUser->types(u"x456"_s);
    QCOMPARE(field()->text(), u"123x4"_s);
    QCOMPARE(own->maxLength(), 3);
}

void TextFieldTest::warnsOfPropertiesThatAreNoIntegers_data()
{
    const TestTable<QByteArray, QByteArray> table("value", "shown");
    table.add("text", "<string>twelve</string>", "twelve");
    table.add("number and text", "<string>12 mm</string>", "12 mm");
    table.add("two lines", "<string>1&#10;2</string>", "1\\n2");
    table.add("no text", "<string></string>", QByteArray());
    table.add("real", "<double>1.5</double>", "1.5");
    table.add("truth", "<bool>true</bool>", "true");
    table.add("beyond 32 bits", "<longLong>2147483648</longLong>", "2147483648");
    table.add("beyond 64 bits", "<uLongLong>18446744073709551615</uLongLong>",
              "18446744073709551615");
}

void TextFieldTest::warnsOfPropertiesThatAreNoIntegers()
{
    QFETCH(QByteArray, value);
    QFETCH(QByteArray, shown);
    for (const char *name :
         {"formatterStyle", "formatterMaxLength", "formatterMinValue", "formatterMaxValue"}) {
        const QByteArray warning =
            QByteArray("count: ") + name + " is no integer of 32 bits: " + shown;
        QTest::ignoreMessage(QtWarningMsg, warning.constData());
        const auto form = formWith(fieldWith(propertyOf(name, value)));
        auto *made = form->findChild<PDETextField13_v400_ *>(u"count"_s);
        QVERIFY(made);
        QVERIFY(!FormatterAdapter::formatterOf(made));
    }
    QTest::ignoreMessage(QtWarningMsg,
                         "count: formatterMaxLength is no integer of 32 bits: " + shown);
    const auto form = formWith(fieldWith(propertyOf("formatterStyle", "<number>2</number>") +
                                         propertyOf("formatterMaxLength", value)));
    auto *made = form->findChild<PDETextField13_v400_ *>();
    QTest::keyClicks(made, u"1x2"_s);
    QCOMPARE(made->text(), u"12"_s);
}

void TextFieldTest::takesIntegersOfEveryKind_data()
{
    const TestTable<QVariant, qint32> table("value", "number");
    table.add("integer", QVariant(7), 7);
    table.add("unsigned", QVariant(7U), 7);
    table.add("long", QVariant(-7LL), -7);
    table.add("unsigned long", QVariant(7ULL), 7);
    table.add("text", QVariant(u"-7"_s), -7);
    table.add("largest", QVariant(largest), largest);
    table.add("smallest", QVariant(smallest), smallest);
    table.add("real", QVariant(7.0), 7);
    table.add("text of the smallest", QVariant(u"-2147483648"_s), smallest);
}

void TextFieldTest::takesIntegersOfEveryKind()
{
    QFETCH(QVariant, value);
    QFETCH(qint32, number);
    for (const char *name :
         {"formatterStyle", "formatterMaxLength", "formatterMinValue", "formatterMaxValue"}) {
        field()->setProperty(name, value);
    }
    const PDEFormatter *formatter = FormatterAdapter::formatterOf(field());
    QCOMPARE(formatter->textStyle(), number);
    QCOMPARE(formatter->maxLength(), number);
    QCOMPARE(formatter->minValue(), number);
    QCOMPARE(formatter->maxValue(), number);
}

void TextFieldTest::otherPropertiesMakeNoFormatter()
{
    field()->setProperty("style", 2);
    field()->setProperty("formatter", u"x"_s);
    field()->setProperty("formatterstyle", u"x"_s);
    QVERIFY(!FormatterAdapter::formatterOf(field()));
}

void TextFieldTest::fieldOwnsItsFormatter()
{
    field()->setProperty("formatterStyle", 2);
    const QPointer<PDEFormatter> formatter = FormatterAdapter::formatterOf(field());
    QVERIFY(formatter);
    mUser.reset();
    QVERIFY(!formatter);
}

KV_TEST(TextFieldTest)
#include "tst_textfield.moc"
