#include "FieldWays.h"
#include "RefusalLog.h"
#include "WitnessFormatter.h"

#include "textinput/FormatterAdapter.h"

#include <QElapsedTimer>
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
    void longTextsAreQuick();
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
         user.types(u"1234"_qs);
     }},
    {"caret in typed text",
     [](FieldUser &user) {
         user.types(u"1234"_qs);
         user.field()->setCursorPosition(2);
     }},
    {"selection",
     [](FieldUser &user) {
         user.types(u"1234"_qs);
         user.selects(1, 2);
     }},
    {"selection backwards",
     [](FieldUser &user) {
         user.types(u"1234"_qs);
         user.selects(3, -2);
     }},
    {"selection of everything",
     [](FieldUser &user) {
         user.types(u"1234"_qs);
         user.field()->selectAll();
     }},
    {"undone text",
     [](FieldUser &user) {
         user.types(u"12"_qs);
         user.pastes(u"34"_qs);
         user.undoes();
     }},
    {"text of the program",
     [](FieldUser &user) {
         user.field()->setText(u"abc"_qs);
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
        QCOMPARE(log.taken(), QStringList{u"InvalidCharacterNotification"_qs});
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
    const QString seen = user.seen().remove(u" redo"_qs);
    RefusalLog log;
    for (int times = 1; times <= 3; ++times) {
        puts(user);
        QCOMPARE(user.seen(), seen);
        QCOMPARE(log.taken(), QStringList{u"InvalidCharacterNotification"_qs});
        QCOMPARE(log.takenBeeps(), 1);
    }
    // Later edits are checked as before.
    user.field()->deselect();
    const QString text = user.field()->text();
    user.types(u"x"_qs);
    QCOMPARE(user.field()->text(), text);
    user.types(u"7"_qs);
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
    user.types(u"12"_qs);
    user.presses(Qt::Key_Home);
    user.presses(Qt::Key_End);
    user.types(u"x3"_qs);
    QCOMPARE(user.field()->text(), u"123"_qs);
    user.undoes();
    QCOMPARE(user.field()->text(), u"12"_qs);
    user.types(u"x"_qs);
    user.redoes();
    QCOMPARE(user.field()->text(), u"123"_qs);
}

void FormattedFieldTest::everyWrittenCharacterLeavesRedo()
{
    const auto formatter = PDEFormatter::initWithStyle(2);
    FieldUser user;
    FormatterAdapter::attach(formatter.get(), user.field());
    user.types(u"12"_qs);
    user.undoes();
    RefusalLog log;
    const QString texts[] = {u"x"_qs,      u"é"_qs,      u"\U0001f600"_qs, u" "_qs,
                             u"\u200d"_qs, u"\ue000"_qs, u"e\u0301"_qs};
    for (const QString &text : texts) {
        user.strikes(text);
        QCOMPARE(user.seen(), u"| redo"_qs);
        QCOMPARE(log.takenBeeps(), 1);
    }
    // A field writes none of these.
    for (const QString &text : {u"\r"_qs, u"\t"_qs, u"\u0001"_qs, u"\u0085"_qs, QString()}) {
        user.strikes(text);
        QCOMPARE(user.seen(), u"| redo"_qs);
        QCOMPARE(log.takenBeeps(), 0);
    }
    user.redoes();
    QCOMPARE(user.seen(), u"12| undo"_qs);
}

void FormattedFieldTest::deletingIsNeverRefused()
{
    const auto formatter = PDEFormatter::initWithStyle(2);
    formatter->setMaxLength(-1);
    FieldUser user;
    FormatterAdapter::attach(formatter.get(), user.field());
    user.field()->setText(u"あbcdefg"_qs);
    RefusalLog log;
    user.types(u"\b"_qs);
    user.presses(Qt::Key_Home);
    user.presses(Qt::Key_Delete);
    user.selects(1, 2);
    user.presses(Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(user.field()->text(), u"bef"_qs);
    user.selects(0, 2);
    user.pastes({});
    QCOMPARE(user.field()->text(), u"f"_qs);
    user.field()->clear();
    QCOMPARE(user.field()->text(), QString());
    QCOMPARE(log.takenBeeps(), 0);
}

void FormattedFieldTest::undoAndRedoAreNeverRefused()
{
    const auto formatter = PDEFormatter::init();
    FieldUser user;
    FormatterAdapter::attach(formatter.get(), user.field());
    user.types(u"abc"_qs);
    user.pastes(u"defg"_qs);
    user.selects(1, 5);
    user.types(u"é"_qs);
    const QString seen = user.seen();
    FieldUser unchecked;
    unchecked.types(u"abc"_qs);
    unchecked.pastes(u"defg"_qs);
    unchecked.selects(1, 5);
    unchecked.types(u"é"_qs);

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
    user.types(u"abc"_qs);
    formatter->setTextStyle(2);
    RefusalLog log;
    user.field()->undo();
    QCOMPARE(user.seen(), u"| redo"_qs);
    user.field()->redo();
    QCOMPARE(user.seen(), u"abc| undo"_qs);
    QCOMPARE(log.takenBeeps(), 0);
    pasteByProgram(user, u"d"_qs);
    QCOMPARE(user.seen(), u"abc| undo"_qs);
    QCOMPARE(log.takenBeeps(), 1);
}

void FormattedFieldTest::textOfTheHistoryIsRefusedElsewhere()
{
    const auto formatter = PDEFormatter::init();
    FieldUser user;
    FormatterAdapter::attach(formatter.get(), user.field());
    user.types(u"abc"_qs);
    formatter->setTextStyle(2);
    user.undoes();
    // Now nothing is left to redo.
    user.types(u"1"_qs);
    user.field()->selectAll();
    RefusalLog log;
    pasteByProgram(user, u"abc"_qs);
    QCOMPARE(user.field()->text(), u"1"_qs);
    QCOMPARE(log.takenBeeps(), 1);

    user.field()->setText({});
    formatter->addInvalidCharacter(u"1"_qs);
    pasteByProgram(user, u"1"_qs);
    QCOMPARE(user.field()->text(), QString());
    QCOMPARE(log.takenBeeps(), 1);
}

void FormattedFieldTest::textOfTheProgramIsNeverRefused()
{
    const auto formatter = PDEFormatter::initWithStyle(2);
    FieldUser user;
    FormatterAdapter::attach(formatter.get(), user.field());
    RefusalLog log;
    user.field()->setText(u"abc"_qs);
    QCOMPARE(user.field()->text(), u"abc"_qs);
    QVERIFY(user.field()->hasAcceptableInput());
    user.presses(Qt::Key_Return);
    QCOMPARE(log.takenBeeps(), 0);
    user.types(u"1x"_qs);
    QCOMPARE(user.seen(), u"abc1| undo"_qs);
    QCOMPARE(log.takenBeeps(), 1);
    user.field()->setText(u"abcé"_qs);
    QCOMPARE(user.seen(), u"abcé|"_qs);
    pasteByProgram(user, u"x"_qs);
    QCOMPARE(user.seen(), u"abcé|"_qs);
    QCOMPARE(log.takenBeeps(), 1);
}

void FormattedFieldTest::refusedDropStaysWithItsSource()
{
    const auto formatter = PDEFormatter::initWithStyle(2);
    FieldUser user;
    FormatterAdapter::attach(formatter.get(), user.field());
    user.types(u"1234"_qs);
    RefusalLog log;
    const std::pair<int, int> selections[] = {{1, 2}, {3, -2}, {0, 4}, {2, 0}};
    for (const auto &[start, length] : selections) {
        user.selects(start, length);
        const QString seen = user.seen();
        QCOMPARE(user.drops(u"x"_qs, 3), Qt::IgnoreAction);
        QCOMPARE(user.seen(), seen);
        QCOMPARE(log.taken(), QStringList{u"InvalidCharacterNotification"_qs});
    }
    QCOMPARE(user.drops(u"5"_qs, 1), Qt::MoveAction);
    QCOMPARE(user.seen(), u"15|234 undo"_qs);
    user.undoes();
    QCOMPARE(user.drops(u"x"_qs, 3), Qt::IgnoreAction);
    QVERIFY(user.field()->isRedoAvailable());
    user.redoes();
    QCOMPARE(user.field()->text(), u"15234"_qs);
    QCOMPARE(user.drops({}, 3), Qt::IgnoreAction);
    QCOMPARE(log.takenBeeps(), 5);
}

void FormattedFieldTest::refusedCommitEndsTheComposition()
{
    const auto formatter = PDEFormatter::initWithStyle(2);
    FieldUser user;
    FormatterAdapter::attach(formatter.get(), user.field());
    user.types(u"12"_qs);
    const auto caretPlace = [&user] {
        return user.field()->inputMethodQuery(Qt::ImCursorRectangle).toRectF().left();
    };
    const double place = caretPlace();
    user.composes(u"かん"_qs);
    QVERIFY(caretPlace() > place);
    RefusalLog log;
    user.commits(u"漢"_qs);
    QCOMPARE(caretPlace(), place);
    QCOMPARE(user.seen(), u"12| undo"_qs);
    QCOMPARE(log.taken(), QStringList{u"InvalidCharacterNotification 漢"_qs});
    QCOMPARE(log.takenBeeps(), 1);
}

void FormattedFieldTest::longTextsAreQuick()
{
    constexpr qsizetype mebi = 1 << 20;
    const auto formatter = PDEFormatter::initWithStyle(10);
    FieldUser user;
    user.field()->setMaxLength(std::numeric_limits<int>::max());
    FormatterAdapter::attach(formatter.get(), user.field());
    user.types(u"1"_qs);
    RefusalLog log;
    QElapsedTimer timer;
    timer.start();
    user.pastes(QString(mebi, u'x') + u'é');
    QCOMPARE(user.seen(), u"1| undo"_qs);
    QCOMPARE(log.takenBeeps(), 1);
    user.pastes(QString(mebi, u'x'));
    QCOMPARE(user.field()->text().size(), mebi + 1);
    user.types(u"éy"_qs);
    QCOMPARE(user.field()->text().size(), mebi + 2);
    QCOMPARE(log.takenBeeps(), 1);
    user.undoes();
    QVERIFY(user.field()->text().size() <= mebi + 1);
    QVERIFY2(timer.elapsed() < 30'000, qPrintable(u"%1 ms"_qs.arg(timer.elapsed())));
}

KV_TEST(FormattedFieldTest)
#include "tst_formattedfield.moc"
