// SPDX-License-Identifier: Apache-2.0
#include "FieldWays.h"
#include "RefusalLog.h"
#include "WitnessFormatter.h"

#include "textinput/FormatterAdapter.h"

#include <QTest>

#include <limits>

/// A text field whose edits are checked, in the hands of a user.
class FormattedFieldTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refusedEditChangesNothing_data();
    void refusedEditChangesNothing();
    void refusedEditOfTheProgramKeepsUndo_data();
    void refusedEditOfTheProgramKeepsUndo();
    void allowedEditIsMadeOnce_data();
    void allowedEditIsMadeOnce();
    void refusedEditDoesNotJoinItsNeighbours();
    void everyWrittenCharacterLeavesRedo();
    void deletingIsNeverRefused();
    void undoAndRedoAreNeverRefused();
    void redoToTheEndIsNeverRefused();
    void textOfTheHistoryIsRefusedElsewhere();
    void textOfTheProgramIsNeverRefused();
    void refusedDropStaysWithItsSource();
    void refusedCommitEndsTheComposition();
    void longTexts();
};

namespace {
/// What has happened to a field before.
struct FieldHistory
{
    const char *name;
    void (*make)(FieldUser &user);
};

const FieldHistory fieldHistories[] = {
    {"an empty field",
     [](FieldUser &) {
     }},
    {"typed text",
     [](FieldUser &user) {
         user.types(u"1234"_s);
     }},
    {"caret in typed text",
     [](FieldUser &user) {
         user.types(u"1234"_s);
         user.field()->setCursorPosition(2);
     }},
    {"selection",
     [](FieldUser &user) {
         user.types(u"1234"_s);
         user.selects(1, 2);
     }},
    {"selection backwards",
     [](FieldUser &user) {
         user.types(u"1234"_s);
         user.selects(3, -2);
     }},
    {"selection of everything",
     [](FieldUser &user) {
         user.types(u"1234"_s);
         user.field()->selectAll();
     }},
    {"undone text",
     [](FieldUser &user) {
         user.types(u"12"_s);
         user.pastes(u"34"_s);
         user.undoes();
     }},
    {"text of the program",
     [](FieldUser &user) {
         user.field()->setText(u"abc"_s);
     }},
};

/// Rows with each history and each way to put text in after it.
void addHistories(const QList<FieldWay> &ways)
{
    QTest::addColumn<FieldAction>("before");
    QTest::addColumn<FieldAction>("puts");
    for (const FieldHistory &history : fieldHistories) {
        for (const FieldWay &way : ways) {
            QTest::addRow("%s, %s", way.name, history.name)
                << FieldAction(history.make) << way.puttingX();
        }
    }
}

/// What is in the field when everything is undone, or redone, step by step.
QStringList historyOf(FieldUser &user)
{
    QStringList steps;
    while (user.field()->isRedoAvailable()) {
        user.redoes();
        steps += user.seen();
    }
    while (user.field()->isUndoAvailable()) {
        user.undoes();
        steps += user.seen();
    }
    return steps;
}
} // namespace

void FormattedFieldTest::refusedEditChangesNothing_data()
{
    addHistories(waysOfTheUser());
}

void FormattedFieldTest::refusedEditChangesNothing()
{
    QFETCH(FieldAction, before);
    QFETCH(FieldAction, puts);
    const auto formatter = PDEFormatter::initWithStyle(2);
    FieldUser untouched;
    before(untouched);
    FieldUser user;
    FormatterAdapter::attach(formatter.get(), user.field());
    before(user);
    const QString seen = user.seen();
    QCOMPARE(seen, untouched.seen());

    RefusalLog log;
    int changes = 0;
    connect(user.field(), &QLineEdit::textChanged, this, [&changes] { ++changes; });
    connect(user.field(), &QLineEdit::textEdited, this, [&changes] { ++changes; });
    for (int times = 1; times <= 3; ++times) {
        puts(user);
        QCOMPARE(user.seen(), seen);
        QCOMPARE(log.taken(), QStringList{u"InvalidCharacterNotification"_s});
        QCOMPARE(log.takenBeeps(), 1);
    }
    QCOMPARE(changes, 0);
    QCOMPARE(historyOf(user), historyOf(untouched));
    QCOMPARE(log.takenBeeps(), 0);
}

void FormattedFieldTest::refusedEditOfTheProgramKeepsUndo_data()
{
    addHistories(waysOfTheProgram());
}

void FormattedFieldTest::refusedEditOfTheProgramKeepsUndo()
{
    QFETCH(FieldAction, before);
    QFETCH(FieldAction, puts);
    const auto formatter = PDEFormatter::initWithStyle(2);
    FieldUser user;
    FormatterAdapter::attach(formatter.get(), user.field());
    before(user);
    const QString seen = user.seen().remove(u" redo"_s);
    RefusalLog log;
    for (int times = 1; times <= 3; ++times) {
        puts(user);
        QCOMPARE(user.seen(), seen);
        QCOMPARE(log.taken(), QStringList{u"InvalidCharacterNotification"_s});
        QCOMPARE(log.takenBeeps(), 1);
    }
    // Later edits are checked as before.
    user.field()->deselect();
    const QString text = user.field()->text();
    user.types(u"x"_s);
    QCOMPARE(user.field()->text(), text);
    user.types(u"7"_s);
    QVERIFY(user.field()->text() != text);
}

void FormattedFieldTest::allowedEditIsMadeOnce_data()
{
    addHistories(waysOfTheUser() + waysOfTheProgram());
}

void FormattedFieldTest::allowedEditIsMadeOnce()
{
    QFETCH(FieldAction, before);
    QFETCH(FieldAction, puts);
    FieldUser unchecked;
    before(unchecked);
    FieldUser user;
    WitnessFormatter witness;
    FormatterAdapter::attach(&witness, user.field());
    before(user);
    witness.taken();
    int edits = 0;
    connect(user.field(), &QLineEdit::textEdited, this, [&edits] { ++edits; });
    for (int times = 1; times <= 3; ++times) {
        puts(unchecked);
        puts(user);
        QCOMPARE(user.seen(), unchecked.seen());
    }
    QCOMPARE(edits, 3);
    QCOMPARE(witness.taken().size(), 3);
    QCOMPARE(historyOf(user), historyOf(unchecked));
}

void FormattedFieldTest::refusedEditDoesNotJoinItsNeighbours()
{
    const auto formatter = PDEFormatter::initWithStyle(2);
    FieldUser user;
    FormatterAdapter::attach(formatter.get(), user.field());
    user.types(u"12"_s);
    user.presses(Qt::Key_Home);
    user.presses(Qt::Key_End);
    user.types(u"x3"_s);
    QCOMPARE(user.field()->text(), u"123"_s);
    user.undoes();
    QCOMPARE(user.field()->text(), u"12"_s);
    user.types(u"x"_s);
    user.redoes();
    QCOMPARE(user.field()->text(), u"123"_s);
}

void FormattedFieldTest::everyWrittenCharacterLeavesRedo()
{
    const auto formatter = PDEFormatter::initWithStyle(2);
    FieldUser user;
    FormatterAdapter::attach(formatter.get(), user.field());
    user.types(u"12"_s);
    user.undoes();
    RefusalLog log;
    const QString texts[] = {u"x"_s,      u"é"_s,      u"\U0001f600"_s, u" "_s,
                             u"\u200d"_s, u"\ue000"_s, u"e\u0301"_s};
    for (const QString &text : texts) {
        user.strikes(text);
        QCOMPARE(user.seen(), u"| redo"_s);
        QCOMPARE(log.takenBeeps(), 1);
    }
    // A field writes none of these.
    for (const QString &text : {u"\r"_s, u"\t"_s, u"\u0001"_s, u"\u0085"_s, QString()}) {
        user.strikes(text);
        QCOMPARE(user.seen(), u"| redo"_s);
        QCOMPARE(log.takenBeeps(), 0);
    }
    user.redoes();
    QCOMPARE(user.seen(), u"12| undo"_s);
}

void FormattedFieldTest::deletingIsNeverRefused()
{
    const auto formatter = PDEFormatter::initWithStyle(2);
    formatter->setMaxLength(-1);
    FieldUser user;
    FormatterAdapter::attach(formatter.get(), user.field());
    user.field()->setText(u"あbcdefg"_s);
    RefusalLog log;
    user.types(u"\b"_s);
    user.presses(Qt::Key_Home);
    user.presses(Qt::Key_Delete);
    user.selects(1, 2);
    user.presses(Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(user.field()->text(), u"bef"_s);
    user.selects(0, 2);
    user.pastes({});
    QCOMPARE(user.field()->text(), u"f"_s);
    user.field()->clear();
    QCOMPARE(user.field()->text(), QString());
    QCOMPARE(log.takenBeeps(), 0);
}

void FormattedFieldTest::undoAndRedoAreNeverRefused()
{
    const auto formatter = PDEFormatter::init();
    FieldUser user;
    FormatterAdapter::attach(formatter.get(), user.field());
    user.types(u"abc"_s);
    user.pastes(u"defg"_s);
    user.selects(1, 5);
    user.types(u"é"_s);
    const QString seen = user.seen();
    FieldUser unchecked;
    unchecked.types(u"abc"_s);
    unchecked.pastes(u"defg"_s);
    unchecked.selects(1, 5);
    unchecked.types(u"é"_s);

    formatter->setTextStyle(2);
    formatter->setMaxLength(1);
    RefusalLog log;
    for (int round = 0; round < 3; ++round) {
        QCOMPARE(historyOf(user), historyOf(unchecked));
    }
    while (user.field()->isRedoAvailable()) {
        user.choosesFromMenu(QKeySequence::Redo);
    }
    QCOMPARE(user.seen(), seen);
    QCOMPARE(log.takenBeeps(), 0);
}

void FormattedFieldTest::redoToTheEndIsNeverRefused()
{
    const auto formatter = PDEFormatter::init();
    FieldUser user;
    FormatterAdapter::attach(formatter.get(), user.field());
    user.types(u"abc"_s);
    formatter->setTextStyle(2);
    RefusalLog log;
    user.field()->undo();
    QCOMPARE(user.seen(), u"| redo"_s);
    user.field()->redo();
    QCOMPARE(user.seen(), u"abc| undo"_s);
    QCOMPARE(log.takenBeeps(), 0);
    pasteByProgram(user, u"d"_s);
    QCOMPARE(user.seen(), u"abc| undo"_s);
    QCOMPARE(log.takenBeeps(), 1);
}

void FormattedFieldTest::textOfTheHistoryIsRefusedElsewhere()
{
    const auto formatter = PDEFormatter::init();
    FieldUser user;
    FormatterAdapter::attach(formatter.get(), user.field());
    user.types(u"abc"_s);
    formatter->setTextStyle(2);
    user.undoes();
    // Now nothing is left to redo.
    user.types(u"1"_s);
    user.field()->selectAll();
    RefusalLog log;
    pasteByProgram(user, u"abc"_s);
    QCOMPARE(user.field()->text(), u"1"_s);
    QCOMPARE(log.takenBeeps(), 1);

    user.field()->setText({});
    formatter->addInvalidCharacter(u"1"_s);
    pasteByProgram(user, u"1"_s);
    QCOMPARE(user.field()->text(), QString());
    QCOMPARE(log.takenBeeps(), 1);
}

void FormattedFieldTest::textOfTheProgramIsNeverRefused()
{
    const auto formatter = PDEFormatter::initWithStyle(2);
    FieldUser user;
    FormatterAdapter::attach(formatter.get(), user.field());
    RefusalLog log;
    user.field()->setText(u"abc"_s);
    QCOMPARE(user.field()->text(), u"abc"_s);
    QVERIFY(user.field()->hasAcceptableInput());
    user.presses(Qt::Key_Return);
    QCOMPARE(log.takenBeeps(), 0);
    user.types(u"1x"_s);
    QCOMPARE(user.seen(), u"abc1| undo"_s);
    QCOMPARE(log.takenBeeps(), 1);
    user.field()->setText(u"abcé"_s);
    QCOMPARE(user.seen(), u"abcé|"_s);
    pasteByProgram(user, u"x"_s);
    QCOMPARE(user.seen(), u"abcé|"_s);
    QCOMPARE(log.takenBeeps(), 1);
}

void FormattedFieldTest::refusedDropStaysWithItsSource()
{
    const auto formatter = PDEFormatter::initWithStyle(2);
    FieldUser user;
    FormatterAdapter::attach(formatter.get(), user.field());
    user.types(u"1234"_s);
    RefusalLog log;
    const std::pair<int, int> selections[] = {{1, 2}, {3, -2}, {0, 4}, {2, 0}};
    for (const auto &[start, length] : selections) {
        user.selects(start, length);
        const QString seen = user.seen();
        QCOMPARE(user.drops(u"x"_s, 3), Qt::IgnoreAction);
        QCOMPARE(user.seen(), seen);
        QCOMPARE(log.taken(), QStringList{u"InvalidCharacterNotification"_s});
    }
    QCOMPARE(user.drops(u"5"_s, 1), Qt::MoveAction);
    QCOMPARE(user.seen(), u"15|234 undo"_s);
    user.undoes();
    QCOMPARE(user.drops(u"x"_s, 3), Qt::IgnoreAction);
    QVERIFY(user.field()->isRedoAvailable());
    user.redoes();
    QCOMPARE(user.field()->text(), u"15234"_s);
    QCOMPARE(user.drops({}, 3), Qt::IgnoreAction);
    QCOMPARE(log.takenBeeps(), 5);
}

void FormattedFieldTest::refusedCommitEndsTheComposition()
{
    const auto formatter = PDEFormatter::initWithStyle(2);
    FieldUser user;
    FormatterAdapter::attach(formatter.get(), user.field());
    user.types(u"12"_s);
    const auto caretPlace = [&user] {
        return user.field()->inputMethodQuery(Qt::ImCursorRectangle).toRectF().left();
    };
    const double place = caretPlace();
    user.composes(u"かん"_s);
    QVERIFY(caretPlace() > place);
    RefusalLog log;
    user.commits(u"漢"_s);
    QCOMPARE(caretPlace(), place);
    QCOMPARE(user.seen(), u"12| undo"_s);
    QCOMPARE(log.taken(), QStringList{u"InvalidCharacterNotification 漢"_s});
    QCOMPARE(log.takenBeeps(), 1);
}

void FormattedFieldTest::longTexts()
{
    constexpr qsizetype mebi = 1 << 20;
    const auto formatter = PDEFormatter::initWithStyle(10);
    FieldUser user;
    user.field()->setMaxLength(std::numeric_limits<int>::max());
    FormatterAdapter::attach(formatter.get(), user.field());
    user.types(u"1"_s);
    RefusalLog log;
    user.pastes(QString(mebi, u'x') + u'é');
    QCOMPARE(user.seen(), u"1| undo"_s);
    QCOMPARE(log.takenBeeps(), 1);
    user.pastes(QString(mebi, u'x'));
    QCOMPARE(user.field()->text().size(), mebi + 1);
    user.types(u"éy"_s);
    QCOMPARE(user.field()->text().size(), mebi + 2);
    QCOMPARE(log.takenBeeps(), 1);
    user.undoes();
    QVERIFY(user.field()->text().size() <= mebi + 1);
}

KV_TEST(FormattedFieldTest)
#include "tst_formattedfield.moc"
