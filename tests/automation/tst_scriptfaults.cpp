// SPDX-License-Identifier: Apache-2.0
#include "PrintingSite.h"
#include "ScriptTalk.h"
#include "printcore/Beep.h"

#include <QTemporaryDir>
#include <QTest>

namespace {
constexpr int mebibyte = 1 << 20;

/// How far a conversation has come.
enum Stage { Closed, Open, Viewed };

void bringTo(Stage stage, ScriptTalk &talk)
{
    if (stage >= Open) {
        talk.open(u"tape"_s);
    }
    if (stage >= Viewed) {
        talk.ask("view");
        talk.ask("show");
    }
}

/// A line with one command and one member more, in JSON.
QByteArray line(const char *command, const char *member, const QByteArray &value)
{
    return QByteArray(R"({"cmd":")") + command + R"(",")" + member + R"(":)" + value + '}';
}
} // namespace

/// Lines that are wrong: each is answered with an error, changes nothing and ends nothing.
class tst_scriptfaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lineThatIsNoRequest_data();
    void lineThatIsNoRequest();
    void memberOfAWrongType_data();
    void memberOfAWrongType();
    void memberThatIsMissing_data();
    void memberThatIsMissing();
    void memberThatIsUnknown_data();
    void memberThatIsUnknown();
    void commandOutOfPlace_data();
    void commandOutOfPlace();
    void textWithANullCharacter_data();
    void textWithANullCharacter();
    void openWhatIsWrongInPart_data();
    void openWhatIsWrongInPart();
    void spacesAndOrderAreFree();
    void longLineThatIsRight();
    void failureIsRemembered();

private: // NOLINT(readability-redundant-access-specifiers)
    /// Sends the line at the stage: its error, once it is certain that it has changed nothing.
    static QString errorAt(Stage stage, const QByteArray &line);

    QTemporaryDir mFolder;
};

QString tst_scriptfaults::errorAt(Stage stage, const QByteArray &line)
{
    ScriptTalk talk;
    bringTo(stage, talk);
    const QByteArray before = stage >= Open ? compact(talk.state()) : QByteArray();
    NSBeep();
    const QJsonObject answer = talk.answer(line);
    const QString error = errorOf(answer);
    const bool tellsEvents = eventsOf(answer) == QStringList{u"beep"_s};
    const bool isUnchanged =
        stage >= Open ? compact(talk.state()) == before : !errorOf(talk.ask("state")).isEmpty();
    bool goesOn = true;
    if (stage < Viewed) {
        goesOn = !errorOf(talk.click("mHalfCutChkBx")).isEmpty() &&
                 (stage == Open || isOK(talk.open(u"tape"_s))) && isOK(talk.ask("view"));
    }
    goesOn = goesOn && isOK(talk.ask("close"));
    return tellsEvents && isUnchanged && goesOn && talk.hasFailed() ? error : QString();
}

void tst_scriptfaults::lineThatIsNoRequest_data()
{
    const TestTable<QByteArray> table("line");
    table.add("nothing", "");
    table.add("line's end alone", "\n");
    table.add("spaces", "  \t\r\n");
    table.add("an empty object", "{}");
    table.add("half an object", QByteArray(R"({"cmd":"close")"));
    table.add("an object and more", QByteArray(R"({"cmd":"close"} {"cmd":"close"})"));
    QTest::newRow("a comment") << QByteArray(R"({"cmd":"close"} // the end)");
    table.add("an array", QByteArray(R"([{"cmd":"close"}])"));
    table.add("an empty array", "[]");
    table.add("a number", "7");
    table.add("a text", QByteArray(R"("close")"));
    table.add("null", "null");
    table.add("true", "true");
    table.add("a word", "close");
    table.add("single quotes", "{'cmd':'close'}");
    table.add("a comma at the end", QByteArray(R"({"cmd":"close",})"));
    table.add("no text", QByteArray(R"({"cmd":7})"));
    table.add("null command", QByteArray(R"({"cmd":null})"));
    table.add("unknown command", QByteArray(R"({"cmd":"frobnicate"})"));
    table.add("empty command", QByteArray(R"({"cmd":""})"));
    table.add("capital letter", QByteArray(R"({"cmd":"Close"})"));
    table.add("capital member", QByteArray(R"({"Cmd":"close"})"));
    table.add("space behind the command", QByteArray(R"({"cmd":"close "})"));
    table.add("command with a NUL", QByteArray(R"({"cmd":"close\u0000"})"));
    table.add("NUL behind the object", QByteArray("{\"cmd\":\"close\"}\0", 16));
    table.add("NUL before the object", QByteArray("\0{\"cmd\":\"close\"}", 16));
    table.add("NULs", QByteArray(100, '\0'));
    table.add("binary bytes", QByteArray("\x89PNG\r\x1a\xff\xfe\x80\x00\x01", 12));
    table.add("a text that is no UTF-8", "{\"cmd\":\"clo\xffse\"}");
    table.add("half a surrogate pair", QByteArray(R"({"cmd":"\ud800"})"));
    table.add("1 MiB of a letter", QByteArray(mebibyte, 'x'));
    table.add("1 MiB of spaces", QByteArray(mebibyte, ' '));
    table.add("1 MiB of a command", "{\"cmd\":\"" + QByteArray(mebibyte, 'x') + "\"}");
    table.add("1 MiB of open arrays", QByteArray(mebibyte, '['));
    table.add("deep arrays", QByteArray(100'000, '[') + QByteArray(100'000, ']'));
    table.add("deep objects",
              QByteArray("{\"cmd\":").repeated(100'000) + "7" + QByteArray(100'000, '}'));
}

void tst_scriptfaults::lineThatIsNoRequest()
{
    QFETCH(const QByteArray, line);
    for (const Stage stage : {Closed, Open, Viewed}) {
        QVERIFY(!errorAt(stage, line).isEmpty());
    }
}

void tst_scriptfaults::memberOfAWrongType_data()
{
    QTest::addColumn<int>("stage");
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("fault");
    const auto add = [](Stage stage, const char *command, const char *member,
                        const QByteArrayList &values, const char *expected) {
        for (const QByteArray &value : values) {
            QTest::addRow("%s %s %s", command, member, value.constData())
                << int(stage) << line(command, member, value)
                << u"\"%1\" has to be %2"_s.arg(QLatin1String(member), QLatin1String(expected));
        }
    };
    const QByteArrayList noTexts{"7", "true", "[]", "{}", R"(["a"])"};
    for (const char *member : {"ppd", "printer", "settings", "deviceURI", "locale", "bundle"}) {
        add(Closed, "open", member, noTexts + QByteArrayList{"null"}, "a text");
    }
    add(Closed, "open", "paper", noTexts, "a text");
    add(Closed, "open", "paperHeight", {"\"100\"", "true", "null", "[]", "{}"}, "a number");
    add(Closed, "open", "markDefaults", {"1", "0", "\"true\"", "null", "[]"}, "true or false");
    add(Viewed, "click", "control", noTexts + QByteArrayList{"null"}, "a text");
    add(Viewed, "type", "text", noTexts + QByteArrayList{"null"}, "a text");
    add(Viewed, "screenshot", "file", noTexts + QByteArrayList{"null"}, "a text");
    add(Viewed, "preset", "tag",
        {"\"4\"", "4.5", "null", "true", "[4]", "1e300", "-1e300", "2147483648", "-2147483649"},
        "a whole number");
    add(Open, "paper", "name", noTexts, "a text");
    add(Viewed, "show", "options", {"7", "null", "\"a\"", "[]", R"({"KvHalfCut":1})"},
        "an object of texts");
    add(Viewed, "look", "scale", {"\"1\"", "null", "[1]"}, "a number");
    add(Viewed, "look", "scale", {"0", "0.99", "4.5", "-1", "1e300"}, "from 1 to 4");
}

void tst_scriptfaults::memberOfAWrongType()
{
    QFETCH(const int, stage);
    QFETCH(const QByteArray, line);
    QByteArray whole = line;
    if (!line.contains("\"ppd\"") && !line.contains("\"printer\"") && line.contains("\"open\"")) {
        const QByteArray ppd = compact(PrintingSite::ppdPath(u"tape"_s));
        whole.insert(1, "\"ppd\":" + ppd + ',');
    }
    QTEST(errorAt(Stage(stage), whole), "fault");
}

void tst_scriptfaults::memberThatIsMissing_data()
{
    const TestTable<QByteArray, QString> table("line", "fault");
    const QString text = u"\"%1\" has to be a text"_s;
    table.add("click", R"({"cmd":"click"})", text.arg(u"control"_s));
    table.add("type", R"({"cmd":"type"})", text.arg(u"text"_s));
    table.add("screenshot", R"({"cmd":"screenshot"})", text.arg(u"file"_s));
    table.add("preset", R"({"cmd":"preset"})", u"\"tag\" has to be a whole number"_s);
    table.add("paper", R"({"cmd":"paper"})", u"\"name\" has to be a text or null"_s);
    table.add("paper with a height alone", R"({"cmd":"paper","height":100})",
              u"\"name\" has to be a text or null"_s);
    table.add("paper with an odd height", R"({"cmd":"paper","name":"FL21x45","height":"100"})",
              u"\"height\" has to be a number"_s);
    table.add("choose", R"({"cmd":"choose"})", text.arg(u"key"_s));
    table.add("choose without a choice", R"({"cmd":"choose","key":"KvHalfCut"})",
              text.arg(u"choice"_s));
    table.add("choose without a key", R"({"cmd":"choose","choice":"ON"})", text.arg(u"key"_s));
    const QString one = u"\"by\" has to be 1 or -1"_s;
    for (const char *value : {"0", "2", "-2"}) {
        QTest::addRow("step by %s", value) << line("step", "by", value) << one;
    }
    const QString whole = u"\"by\" has to be a whole number"_s;
    table.add("step", R"({"cmd":"step"})", whole);
    for (const char *value : {"0.5", "\"1\"", "null", "true"}) {
        QTest::addRow("step by %s", value) << line("step", "by", value) << whole;
    }
}

void tst_scriptfaults::memberThatIsMissing()
{
    QFETCH(const QByteArray, line);
    QTEST(errorAt(Viewed, line), "fault");
}

void tst_scriptfaults::memberThatIsUnknown_data()
{
    const TestTable<int, QByteArray> table("stage", "line");
    const QByteArray open =
        R"({"cmd":"open","ppd":)" + compact(PrintingSite::ppdPath(u"tape"_s)) + R"(,"PPD":"a"})";
    table.add("open", int(Closed), open);
    table.add("click", int(Viewed),
              QByteArray(R"({"cmd":"click","control":"mHalfCutChkBx","by":1})"));
    table.add("preset", int(Viewed), QByteArray(R"({"cmd":"preset","tag":5,"Tag":5})"));
    table.add("paper", int(Open), QByteArray(R"({"cmd":"paper","name":null,"size":1})"));
    table.add("choose", int(Open),
              QByteArray(R"({"cmd":"choose","key":"KvHalfCut","choice":"ON","":1})"));
    table.add("look", int(Viewed), line("look", "file", "\"a\""));
    for (const char *command : {"close", "view", "show", "hide", "save", "restore", "keys",
                                "options", "print", "summary", "state"}) {
        table.add(command, int(Open), line(command, "file", "\"a\""));
    }
}

void tst_scriptfaults::memberThatIsUnknown()
{
    QFETCH(const int, stage);
    QFETCH(const QByteArray, line);
    const QString error = errorAt(Stage(stage), line);
    QVERIFY2(error.contains(u" knows no "), qPrintable(error));
}

void tst_scriptfaults::commandOutOfPlace_data()
{
    const TestTable<int, QByteArray> table("stage", "line");
    const QByteArray control = R"("control":"mHalfCutChkBx")";
    const QByteArray openTape =
        R"("cmd":"open","ppd":)" + compact(PrintingSite::ppdPath(u"tape"_s));
    const std::pair<QByteArray, Stage> needs[] = {
        {R"("cmd":"close")", Open},
        {R"("cmd":"view")", Open},
        {R"("cmd":"show")", Open},
        {R"("cmd":"hide")", Open},
        {R"("cmd":"save")", Open},
        {R"("cmd":"restore")", Open},
        {R"("cmd":"keys")", Open},
        {R"("cmd":"options")", Open},
        {R"("cmd":"print")", Open},
        {R"("cmd":"summary")", Open},
        {R"("cmd":"state")", Open},
        {R"("cmd":"paper","name":"FL21x45")", Open},
        {R"("cmd":"choose","key":"KvHalfCut","choice":"ON")", Open},
        {R"("cmd":"click",)" + control, Viewed},
        {R"("cmd":"preset","tag":5)", Viewed},
        {R"("cmd":"type","text":"5")", Viewed},
        {R"("cmd":"step","by":1)", Viewed},
        {R"("cmd":"screenshot","file":"a.png")", Viewed},
        {R"("cmd":"look")", Viewed},
    };
    for (const auto &[members, needed] : needs) {
        for (int stage = Closed; stage < needed; ++stage) {
            QTest::addRow("%s at stage %d", members.constData(), stage)
                << stage << '{' + members + '}';
        }
    }
    table.add("open twice", int(Open), '{' + openTape + '}');
    table.add("open twice, behind the view", int(Viewed), '{' + openTape + '}');
}

void tst_scriptfaults::commandOutOfPlace()
{
    QFETCH(const int, stage);
    QFETCH(const QByteArray, line);
    const QString error = errorAt(Stage(stage), line);
    QVERIFY2(error.contains(u" is out of place: "), qPrintable(error));
}

void tst_scriptfaults::textWithANullCharacter_data()
{
    const TestTable<int, QByteArray> table("stage", "line");
    // Neither a file nor a choice has such a name, whatever comes in front of it.
    QByteArray ppd = compact(PrintingSite::ppdPath(u"tape"_s));
    ppd.chop(1);
    QByteArray picture = compact(mFolder.filePath(u"panel.png"_s));
    picture.chop(1);
    table.add("PPD", int(Closed), line("open", "ppd", ppd + R"(\u0000x")"));
    table.add("key", int(Open),
              QByteArray(R"({"cmd":"choose","key":"KvHalfCut\u0000","choice":"ON"})"));
    table.add("choice", int(Open),
              QByteArray(R"({"cmd":"choose","key":"KvHalfCut","choice":"ON\u0000"})"));
    table.add("picture", int(Viewed), line("screenshot", "file", picture + R"(\u0000x")"));
}

void tst_scriptfaults::textWithANullCharacter()
{
    QFETCH(const int, stage);
    QFETCH(const QByteArray, line);
    QVERIFY(!errorAt(Stage(stage), line).isEmpty());
}

void tst_scriptfaults::openWhatIsWrongInPart_data()
{
    const TestTable<QJsonObject> table("members");
    table.add("settings", {{u"settings"_s, u"/nowhere.plist"_s}});
    table.add("bundle", {{u"bundle"_s, u"/nowhere.pde"_s}});
    table.add("PPD", {{u"ppd"_s, u"/nowhere.ppd"_s}});
}

void tst_scriptfaults::openWhatIsWrongInPart()
{
    QFETCH(QJsonObject, members);
    if (!members.contains(u"ppd"_s)) {
        members.insert(u"ppd"_s, PrintingSite::ppdPath(u"tape"_s));
    }
    members.insert(u"cmd"_s, u"open"_s);
    QVERIFY(!errorAt(Closed, compact(members)).isEmpty());
}

void tst_scriptfaults::spacesAndOrderAreFree()
{
    ScriptTalk talk;
    const QByteArray ppd = compact(PrintingSite::ppdPath(u"tape"_s));
    QVERIFY(isOK(talk.answer(" {\t\"ppd\" : " + ppd + " , \"cmd\": \"op\\u0065n\" } \r\n")));
    QVERIFY(isOK(talk.answer("{\"cmd\":\"view\"}\r\n")));
    QVERIFY(isOK(talk.answer(R"({"by":1.0,"cmd":"step"})")));
    QVERIFY(!talk.hasFailed());
}

void tst_scriptfaults::longLineThatIsRight()
{
    ShownPanel talk(u"label"_s);
    const QString digits(mebibyte, u'7');
    QVERIFY(isOK(talk.ask("type", {{u"text"_s, digits}})));
    QCOMPARE(talk.state("controls.mCutEveryTxBx.text").toString(), u"99"_s);
    QVERIFY(isOK(talk.answer(QByteArray(mebibyte, ' ') + R"({"cmd":"state"})")));
    const QJsonObject noBox = talk.ask("click", {{u"control"_s, digits}});
    QCOMPARE(noBox.value(u"delivered"), QJsonValue(false));
}

void tst_scriptfaults::failureIsRemembered()
{
    ScriptTalk talk;
    talk.open(u"tape"_s);
    QVERIFY(!talk.hasFailed());
    talk.answer("nonsense");
    QVERIFY(talk.hasFailed());
    QVERIFY(isOK(talk.ask("state")));
    QVERIFY(talk.hasFailed());
}

KV_TEST(tst_scriptfaults)
#include "tst_scriptfaults.moc"
