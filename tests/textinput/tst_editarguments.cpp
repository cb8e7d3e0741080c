// SPDX-License-Identifier: Apache-2.0
#include "FieldWays.h"
#include "WitnessFormatter.h"

#include "textinput/FormatterAdapter.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTest>

/// What a formatter is asked about the edits of a text field.
class EditArgumentsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void checkIsGivenTheEdit_data();
    void checkIsGivenTheEdit();
    void checkIsNotAsked_data();
    void checkIsNotAsked();
    void committedTextReplacesWhatIsAround_data();
    void committedTextReplacesWhatIsAround();
};

namespace {
/// What a user does, and what the formatter is asked of it.
struct AskedRow
{
    const char *name;
    void (*edit)(FieldUser &user);
    QStringList asked;
};

// The field holds "1234" with the caret at the end.
const AskedRow askedRows[] = {
    {"typing",
     [](FieldUser &user) { user.types(u"56"_s); },
     {u"1234| > 12345|"_s, u"12345| > 123456|"_s}},
    {"typing within",
     [](FieldUser &user) {
         user.presses(Qt::Key_Home);
         user.types(u"5"_s);
     },
     {u"|1234 > 5|1234"_s}},
    {"typing a pair",
     [](FieldUser &user) { user.commits(u"\U0001f600"_s); },
     {u"1234| > 1234\U0001f600|"_s}},
    {"typing over a selection",
     [](FieldUser &user) {
         user.selects(1, 2);
         user.types(u"5"_s);
     },
     {u"1[23]4 > 15|4"_s}},
    {"typing over a selection backwards",
     [](FieldUser &user) {
         user.selects(3, -2);
         user.types(u"5"_s);
     },
     {u"1[23]4 > 15|4"_s}},
    {"typing with modifiers",
     [](FieldUser &user) {
         user.strikes(u"5"_s, Qt::KeypadModifier);
         user.strikes(u"A"_s, Qt::ShiftModifier);
         user.strikes(u"€"_s, Qt::GroupSwitchModifier);
         user.strikes(u"@"_s, Qt::ControlModifier | Qt::AltModifier);
     },
     {u"1234| > 12345|"_s, u"12345| > 12345A|"_s, u"12345A| > 12345A€|"_s,
      u"12345A€| > 12345A€@|"_s}},
    {"pasting", [](FieldUser &user) { user.pastes(u"56"_s); }, {u"1234| > 123456|"_s}},
    {"pasting over a selection",
     [](FieldUser &user) {
         user.selects(0, 3);
         user.pastes(u"56"_s);
     },
     {u"[123]4 > 56|4"_s}},
    {"pasting with another key",
     [](FieldUser &user) {
         QGuiApplication::clipboard()->setText(u"56"_s);
         user.presses(Qt::Key_Insert, Qt::ShiftModifier);
     },
     {u"1234| > 123456|"_s}},
    {"menu",
     [](FieldUser &user) {
         user.selects(3, -1);
         user.pastesFromMenu(u"56"_s);
     },
     {u"12[3]4 > 1256|4"_s}},
    {"paste()",
     [](FieldUser &user) {
         user.selects(2, 1);
         pasteByProgram(user, u"56"_s);
     },
     {u"12[3]4 > 1256|4"_s}},
    {"insert()",
     [](FieldUser &user) {
         user.selects(2, 1);
         user.field()->insert(u"56"_s);
     },
     {u"12[3]4 > 1256|4"_s}},
    {"commit", [](FieldUser &user) { user.commits(u"56"_s); }, {u"1234| > 123456|"_s}},
    {"commit over a selection",
     [](FieldUser &user) {
         user.selects(1, 2);
         user.commits(u"5"_s);
     },
     {u"1[23]4 > 15|4"_s}},
    {"composition",
     [](FieldUser &user) {
         user.composes(u"k"_s);
         user.composes(u"ka"_s);
         user.commits(u"5"_s);
     },
     {u"1234| > 12345|"_s}},
    {"drop", [](FieldUser &user) { user.drops(u"56"_s, 1); }, {u"1|234 > 156|234"_s}},
    {"drop beside a selection",
     [](FieldUser &user) {
         user.selects(0, 2);
         user.drops(u"56"_s, 3);
     },
     {u"123|4 > 12356|4"_s}},
    {"deleting forward",
     [](FieldUser &user) {
         user.presses(Qt::Key_Home);
         user.presses(Qt::Key_Delete);
     },
     {u"|1234 > |234"_s}},
    {"deleting backward", [](FieldUser &user) { user.types(u"\b"_s); }, {u"1234| > 123|"_s}},
    {"cutting",
     [](FieldUser &user) {
         user.selects(1, 2);
         user.presses(Qt::Key_X, Qt::ControlModifier);
     },
     {u"1[23]4 > 1|4"_s}},
    {"after text of the program",
     [](FieldUser &user) {
         user.field()->setText(u"89"_s);
         user.types(u"5"_s);
         pasteByProgram(user, u"6"_s);
     },
     {u"89| > 895|"_s, u"895| > 8956|"_s}},
    {"after text of the program that nobody hears of",
     [](FieldUser &user) {
         user.field()->blockSignals(true);
         user.field()->setText(u"89"_s);
         user.field()->blockSignals(false);
         pasteByProgram(user, u"6"_s);
     },
     {u"89| > 896|"_s}},
    {"after undo",
     [](FieldUser &user) {
         user.pastes(u"5"_s);
         user.undoes();
         user.types(u"6"_s);
     },
     {u"1234| > 12345|"_s, u"1234| > 12346|"_s}},
};

/// What a user or the program does that no formatter is asked about.
struct UnaskedRow
{
    const char *name;
    void (*act)(FieldUser &user);
};

const UnaskedRow unaskedRows[] = {
    {"nothing",
     [](FieldUser &) {
     }},
    {"moving the caret",
     [](FieldUser &user) {
         user.presses(Qt::Key_Left);
         user.presses(Qt::Key_Home, Qt::ShiftModifier);
     }},
    {"copying",
     [](FieldUser &user) {
         user.presses(Qt::Key_A, Qt::ControlModifier);
         user.presses(Qt::Key_C, Qt::ControlModifier);
     }},
    {"undo and redo",
     [](FieldUser &user) {
         user.undoes();
         user.redoes();
         user.choosesFromMenu(QKeySequence::Undo);
         user.choosesFromMenu(QKeySequence::Redo);
         user.field()->undo();
         user.field()->redo();
     }},
    {"Return",
     [](FieldUser &user) {
         user.presses(Qt::Key_Return);
     }},
    {"asking whether the text is acceptable",
     [](FieldUser &user) {
         user.selects(1, 2);
         QVERIFY(user.field()->hasAcceptableInput());
     }},
    {"text of the program",
     [](FieldUser &user) {
         user.field()->setText(u"89"_s);
         user.field()->setMaxLength(1);
     }},
    {"read-only field",
     [](FieldUser &user) {
         user.field()->setReadOnly(true);
         user.types(u"5"_s);
         user.pastes(u"5"_s);
         user.drops(u"5"_s, 1);
         user.commits(u"5"_s);
     }},
    {"keys with no text of their own",
     [](FieldUser &user) {
         user.presses(Qt::Key_F5);
         user.presses(Qt::Key_Tab);
         user.presses(Qt::Key_B, Qt::AltModifier);
     }},
    {"keys that the field leaves to shortcuts",
     [](FieldUser &user) {
         user.strikes(u"5"_s, Qt::ControlModifier);
         user.strikes(u"%"_s, Qt::ControlModifier | Qt::ShiftModifier);
     }},
    {"focus elsewhere",
     [](FieldUser &user) {
         user.field()->clearFocus();
         user.field()->setFocus();
     }},
    {"composition without a commit",
     [](FieldUser &user) {
         user.composes(u"k"_s);
         user.composes({});
     }},
};
} // namespace

void EditArgumentsTest::checkIsGivenTheEdit_data()
{
    const TestTable<FieldAction, QStringList> table("edits", "asked");
    for (const AskedRow &row : askedRows) {
        table.add(row.name, FieldAction(row.edit), row.asked);
    }
}

void EditArgumentsTest::checkIsGivenTheEdit()
{
    QFETCH(FieldAction, edits);
    FieldUser user;
    user.types(u"1234"_s);
    WitnessFormatter witness;
    FormatterAdapter::attach(&witness, user.field());
    edits(user);
    QTEST(witness.taken(), "asked");
}

void EditArgumentsTest::checkIsNotAsked_data()
{
    const TestTable<FieldAction> table("acts");
    for (const UnaskedRow &row : unaskedRows) {
        table.add(row.name, FieldAction(row.act));
    }
}

void EditArgumentsTest::checkIsNotAsked()
{
    QFETCH(FieldAction, acts);
    FieldUser user;
    user.types(u"1234"_s);
    WitnessFormatter witness;
    FormatterAdapter::attach(&witness, user.field());
    acts(user);
    QCOMPARE(witness.taken(), QStringList());
}

void EditArgumentsTest::committedTextReplacesWhatIsAround_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("length");
    for (int start = -4; start <= 3; ++start) {
        for (int length = 0; length <= 8; ++length) {
            QTest::addRow("%d, %d", start, length) << start << length;
        }
    }
}

void EditArgumentsTest::committedTextReplacesWhatIsAround()
{
    QFETCH(int, start);
    QFETCH(int, length);
    FieldUser unchecked;
    unchecked.types(u"123456"_s);
    unchecked.field()->setCursorPosition(3);
    FieldUser user;
    WitnessFormatter witness;
    FormatterAdapter::attach(&witness, user.field());
    user.types(u"123456"_s);
    user.field()->setCursorPosition(3);
    witness.taken();
    unchecked.commits(u"xyz"_s, start, length);
    user.commits(u"xyz"_s, start, length);
    QCOMPARE(user.seen(), unchecked.seen());
    const QString after = user.field()->text().insert(user.field()->cursorPosition(), u'|');
    QCOMPARE(witness.taken(), QStringList{u"123|456 > "_s + after});

    witness.setAllowing(false);
    const QString seen = user.seen();
    user.commits(u"x"_s, start, qMin(length, 1));
    QCOMPARE(user.seen(), seen);
}

KV_TEST(EditArgumentsTest)
#include "tst_editarguments.moc"
