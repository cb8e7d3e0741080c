// SPDX-License-Identifier: Apache-2.0
#include "ScriptTalk.h"

#include <QImage>
#include <QTest>

namespace {
QJsonObject lookOf(ScriptTalk &talk, int scale = 1)
{
    return talk.ask("look", {{u"scale"_s, scale}});
}

QJsonObject boxNamed(const QJsonObject &look, const QString &name)
{
    for (const auto &box : look.value(u"boxes"_s).toArray()) {
        if (box.toObject().value(u"name"_s).toString() == name) {
            return box.toObject();
        }
    }
    return {};
}

QStringList namesIn(const QJsonArray &objects)
{
    QStringList names;
    for (const auto &object : objects) {
        names.append(object.toObject().value(u"name"_s).toString());
    }
    return names;
}

QImage pictureIn(const QJsonObject &object)
{
    const QByteArray base64 = object.value(u"picture"_s).toString().toLatin1();
    return QImage::fromData(QByteArray::fromBase64(base64), "PNG");
}
} // namespace

/// What a script is told of the panel's look, and choices that the panel starts from.
class tst_scriptlook : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void boxes();
    void reasonOfAGreyBox();
    void count();
    void presets();
    void pictures();
    void startingChoices_data();
    void startingChoices();
    void startingChoicesThatCannotBe();
};

void tst_scriptlook::boxes()
{
    ScriptTalk talk;
    talk.show(u"tape"_s);
    const QJsonObject look = lookOf(talk);
    QCOMPARE(look.value(u"title"_s), QJsonValue(u"Cut Options"_s));
    QCOMPARE(namesIn(look.value(u"boxes"_s).toArray()),
             (QStringList{u"Auto Cut"_s, u"Half Cut"_s, u"Special Tape"_s, u"Chain Printing"_s,
                          u"Mirror Printing"_s, u"Remove Blank Space"_s}));
    const QJsonObject box = boxNamed(look, u"Half Cut"_s);
    QCOMPARE(box.value(u"control"_s), QJsonValue(u"mHalfCutChkBx"_s));
    QCOMPARE(box.value(u"ticked"_s), QJsonValue(false));
    talk.click("mHalfCutChkBx");
    QCOMPARE(boxNamed(lookOf(talk), u"Half Cut"_s).value(u"ticked"_s), QJsonValue(true));
}

void tst_scriptlook::reasonOfAGreyBox()
{
    ScriptTalk talk;
    talk.show(u"tape"_s);
    const QJsonObject before = boxNamed(lookOf(talk), u"Half Cut"_s);
    talk.paper(u"FL21x45"_s);
    const QJsonObject after = boxNamed(lookOf(talk), u"Half Cut"_s);
    QCOMPARE(before.value(u"enabled"_s), QJsonValue(true));
    QCOMPARE(after.value(u"enabled"_s), QJsonValue(false));
    QVERIFY(!before.value(u"tip"_s).toString().isEmpty());
    QVERIFY(!after.value(u"tip"_s).toString().isEmpty());
    QVERIFY(before.value(u"tip"_s) != after.value(u"tip"_s));
}

void tst_scriptlook::count()
{
    ScriptTalk talk;
    talk.show(u"all"_s);
    const QJsonObject count = lookOf(talk).value(u"count"_s).toObject();
    QCOMPARE(count.value(u"box"_s), QJsonValue(u"mCutEveryChkBx"_s));
    QCOMPARE(count.value(u"text"_s), QJsonValue(u"1"_s));
    QCOMPARE(count.value(u"caption"_s), QJsonValue(u"labels"_s));
    QCOMPARE(count.value(u"smallest"_s), QJsonValue(1));
    QCOMPARE(count.value(u"largest"_s), QJsonValue(99));
    ScriptTalk other;
    other.show(u"tape"_s);
    QVERIFY(lookOf(other).value(u"count"_s).isNull());
}

void tst_scriptlook::presets()
{
    ScriptTalk talk;
    talk.show(u"tape"_s);
    const QJsonArray items =
        lookOf(talk).value(u"presets"_s).toObject().value(u"items"_s).toArray();
    const QJsonArray tags = talk.state("popup.tags").toArray();
    QCOMPARE(items.size(), tags.size());
    for (qsizetype i = 0; i < items.size(); ++i) {
        const QJsonObject item = items.at(i).toObject();
        QCOMPARE(item.value(u"tag"_s), tags.at(i));
        QVERIFY(!item.value(u"name"_s).toString().isEmpty());
        QVERIFY(!pictureIn(item).isNull());
        QCOMPARE(item.value(u"selected"_s).toBool(),
                 talk.state("popup.selected") == item.value(u"tag"_s));
    }
}

void tst_scriptlook::pictures()
{
    ScriptTalk talk;
    talk.show(u"tape"_s);
    const QImage once = pictureIn(lookOf(talk).value(u"preview"_s).toObject());
    const QImage twice = pictureIn(lookOf(talk, 2).value(u"preview"_s).toObject());
    QVERIFY(!once.isNull());
    QCOMPARE(twice.size(), once.size() * 2);
    // Nothing but the strip is drawn.
    QCOMPARE(qAlpha(once.pixel(once.width() - 1, 0)), 0);
    talk.click("mHalfCutChkBx");
    QVERIFY(pictureIn(lookOf(talk).value(u"preview"_s).toObject()) != once);
}

void tst_scriptlook::startingChoices_data()
{
    QTest::addColumn<QJsonObject>("options");
    QTest::addColumn<QStringList>("refused");
    const QJsonObject on{{u"KvHalfCut"_s, u"ON"_s}, {u"KvMirror"_s, u"ON"_s}};
    QTest::newRow("taken") << on << QStringList();
    QJsonObject more = on;
    more.insert(u"KvNothing"_s, u"ON"_s);
    QTest::newRow("unknown keyword") << more << QStringList(u"KvNothing"_s);
    more = on;
    more.insert(u"KvChainPrint"_s, u"PERHAPS"_s);
    QTest::newRow("unknown choice") << more << QStringList(u"KvChainPrint"_s);
}

void tst_scriptlook::startingChoices()
{
    QFETCH(const QJsonObject, options);
    QFETCH(const QStringList, refused);
    ScriptTalk talk;
    talk.open(u"tape"_s);
    talk.ask("keys");
    talk.ask("view");
    const QJsonObject shown = talk.ask("show", {{u"options"_s, options}});
    QCOMPARE(shown.value(u"ok"_s), QJsonValue(true));
    QCOMPARE(shown.value(u"refused"_s), QJsonValue(QJsonArray::fromStringList(refused)));
    QCOMPARE(talk.box("mHalfCutChkBx"), 1);
    QCOMPARE(talk.box("mMirrorPrintChkBx"), 1);
    QCOMPARE(talk.box("mAutoCutChkBx"), 1);
    QCOMPARE(talk.state("marks.KvHalfCut"), QJsonValue(u"ON"_s));
}

void tst_scriptlook::startingChoicesThatCannotBe()
{
    ScriptTalk talk;
    talk.open(u"tape"_s, {{u"paper"_s, u"FL21x45"_s}});
    talk.ask("keys");
    talk.ask("view");
    const QJsonObject shown =
        talk.ask("show", {{u"options"_s, QJsonObject{{u"KvHalfCut"_s, u"ON"_s}}}});
    QVERIFY(shown.value(u"refused"_s).toArray().contains(u"KvHalfCut"_s));
    QCOMPARE(talk.box("mHalfCutChkBx"), 0);
}

KV_TEST(tst_scriptlook)
#include "tst_scriptlook.moc"
