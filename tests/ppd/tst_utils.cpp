// SPDX-License-Identifier: Apache-2.0
#include "ppd/PDEUtilsMethod.h"
#include "support/PPDText.h"
#include "support/SystemCodeset.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <utility>

using Utils = PDEUtilsMethod13;

/// What a panel reads from a PPD, and the helpers for strings and controls.
class UtilsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void measuresTextInBytes_data();
    void measuresTextInBytes();
    void findsTextToTheLetter_data();
    void findsTextToTheLetter();
    void deletesTheFirstOccurrence_data();
    void deletesTheFirstOccurrence();
    void runsOnEverySystemFrom105();

    void readsAttributes_data();
    void readsAttributes();
    void attributeWithoutValueIsNone();
    void readsAttributesInTheSystemEncoding();
    void readsOptionTexts();
    void readsOptionTextsInTheSystemEncoding();
    void itemIsSupportedWhenItIsNotHidden_data();
    void itemIsSupportedWhenItIsNotHidden();
    void readsPoints_data();
    void readsPoints();

    void listsChoicesInTheOrderOfThePPD();
    void absentOptionHasNoList();
    void optionWithoutChoicesHasAnEmptyList();
    void findsAChoiceByKeyword();
    void findsTheFirstOfDuplicateKeywords();
    void findsTheDefaultWhenNoKeywordIsGiven();
    void optionWithoutDefaultHasNoDefaultChoice();
    void findsNothingInAnEmptyList();

    void titlesAreUTF8WhateverTheSystemEncoding();
    void emptyTitlesAreNotNull();
    void titlesThatAreNoUTF8AreNull_data();
    void titlesThatAreNoUTF8AreNull();

    void dimsCaptions_data();
    void dimsCaptions();
    void dimsTextFields();
    void leavesOtherControlsAlone();
};

namespace {
PPDHandle ppdWithAttribute(const QByteArray &value)
{
    return PPDText().attribute("KvTest", value).open();
}

PPDHandle ppdWithOption(const QByteArrayList &choices, const QByteArray &defaultChoice,
                        const QByteArray &text = {})
{
    return PPDText().option("KvTest", choices, defaultChoice, text).open();
}

ppd_option_t *option(const PPDHandle &ppd)
{
    return ppdFindOption(ppd.get(), "KvTest");
}

QStringList titles(const ChoiceList &choices)
{
    QStringList titles;
    for (int i = 0; i < choices.size(); ++i) {
        titles.append(choices.at(i)->ppdTitle());
    }
    return titles;
}

QColor textColor(QPalette::ColorGroup group, QPalette::ColorRole role)
{
    return QGuiApplication::palette().color(group, role);
}
} // namespace

void UtilsTest::cleanup()
{
    setSystemCodeset({});
}

void UtilsTest::measuresTextInBytes_data()
{
    QTest::addColumn<QByteArray>("encoding");
    QTest::addColumn<QString>("text");
    QTest::addColumn<std::size_t>("length");

    const auto row = [](const char *name, const char *encoding, const QString &text,
                        std::size_t length) {
        QTest::newRow(name) << QByteArray(encoding) << text << length;
    };
    row("none", "UTF-8", QString(), 0);
    row("empty", "UTF-8", u""_s, 0);
    row("letters", "UTF-8", u"Tape"_s, 4);
    row("accents", "UTF-8", u"Größe"_s, 7);
    row("accents in one byte each", "ISO-8859-1", u"Größe"_s, 5);
    row("kana in two bytes each", "Shift_JIS", u"テープ"_s, 6);
    row("kana in three bytes each", "UTF-8", u"テープ"_s, 9);
    row("beyond 16 bits", "UTF-8", u"\U0001F600"_s, 4);
    row("not in the system encoding, in the next one", "US-ASCII", u"Größe"_s, 5);
    row("not in the system encoding, in a later one", "US-ASCII", u"テープ"_s, 6);
    row("in no one-byte and no two-byte encoding", "US-ASCII", u"a\U0001F600"_s, 6);
    row("unknown system encoding", "no-such-encoding", u"Tape"_s, 4);
    row("in no encoding at all", "UTF-8", QString(QChar(0xd83d)), 0);
}

void UtilsTest::measuresTextInBytes()
{
    QFETCH(QByteArray, encoding);
    QFETCH(QString, text);
    setSystemCodeset(encoding);
    QTEST(Utils::stringLengthConvertedToEncoding(text), "length");
}

void UtilsTest::findsTextToTheLetter_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("part");
    QTest::addColumn<bool>("found");

    QTest::newRow("at the start") << u"KvHalfCut"_s << u"Kv"_s << true;
    QTest::newRow("inside") << u"KvHalfCut"_s << u"Half"_s << true;
    QTest::newRow("at the end") << u"KvHalfCut"_s << u"Cut"_s << true;
    QTest::newRow("the whole") << u"KvHalfCut"_s << u"KvHalfCut"_s << true;
    QTest::newRow("longer") << u"Kv"_s << u"KvHalfCut"_s << false;
    QTest::newRow("other case") << u"HALF"_s << u"half"_s << false;
    QTest::newRow("another accent") << u"Größe"_s << u"Grösse"_s << false;
    QTest::newRow("accent in two characters") << u"\u00e9"_s << u"e\u0301"_s << false;
    QTest::newRow("nothing") << u"Half"_s << u""_s << false;
    QTest::newRow("in nothing") << u""_s << u"Half"_s << false;
}

void UtilsTest::findsTextToTheLetter()
{
    QFETCH(QString, text);
    QFETCH(QString, part);
    QTEST(Utils::scanString(text, part), "found");
}

void UtilsTest::deletesTheFirstOccurrence_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("part");
    QTest::addColumn<QString>("rest");

    QTest::newRow("first of two") << u"a-b-c"_s << u"-"_s << u"ab-c"_s;
    QTest::newRow("overlapping") << u"aaa"_s << u"aa"_s << u"a"_s;
    QTest::newRow("at the end") << u"12mm"_s << u"mm"_s << u"12"_s;
    QTest::newRow("the whole") << u"mm"_s << u"mm"_s << u""_s;
    QTest::newRow("other case") << u"12MM"_s << u"mm"_s << QString();
    QTest::newRow("absent") << u"12"_s << u"mm"_s << QString();
    QTest::newRow("nothing") << u"12"_s << u""_s << QString();
}

void UtilsTest::deletesTheFirstOccurrence()
{
    QFETCH(QString, text);
    QFETCH(QString, part);
    QFETCH(QString, rest);
    const QString result = Utils::deleteString(text, part);
    QCOMPARE(result, rest);
    QCOMPARE(result.isNull(), rest.isNull());
}

void UtilsTest::runsOnEverySystemFrom105()
{
    QCOMPARE(Utils::runningOn105OrLater(), true);
}

void UtilsTest::readsAttributes_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("value");

    QTest::newRow("present") << QByteArray("KvTapeType") << u"RV"_s;
    QTest::newRow("first of two") << QByteArray("KvTwice") << u"one"_s;
    QTest::newRow("absent") << QByteArray("KvNone") << QString();
    QTest::newRow("accents") << QByteArray("KvName") << u"Größe"_s;
    QTest::newRow("not in the system encoding") << QByteArray("KvBroken") << QString();
}

void UtilsTest::readsAttributes()
{
    QFETCH(QByteArray, name);
    QFETCH(QString, value);
    const PPDHandle ppd = PPDText()
                              .attribute("KvTapeType", "RV")
                              .attribute("KvTwice", "one")
                              .attribute("KvTwice", "two")
                              .attribute("KvName", "Gr\xc3\xb6\xc3\x9f"
                                                   "e")
                              .attribute("KvBroken", "Gr\xf6\xdf"
                                                     "e")
                              .open();
    QVERIFY(ppd);
    const QString result = Utils::ppdAttrValStr(ppd.get(), name.constData());
    QCOMPARE(result, value);
    QCOMPARE(result.isNull(), value.isNull());
}

void UtilsTest::attributeWithoutValueIsNone()
{
    const PPDHandle ppd = ppdWithAttribute("RV");
    ppd_attr_t *attribute = ppdFindAttr(ppd.get(), "KvTest", nullptr);
    char *const value = std::exchange(attribute->value, nullptr);
    QVERIFY(Utils::ppdAttrValStr(ppd.get(), "KvTest").isNull());
    QCOMPARE(Utils::isSupportedItem(ppd.get(), "KvTest"), false);
    QCOMPARE(Utils::originItem(ppd.get(), "KvTest"), QPointF(0.0, 0.0));
    attribute->value = value;
}

void UtilsTest::readsAttributesInTheSystemEncoding()
{
    const PPDHandle ppd = ppdWithAttribute("Gr\xf6\xdf"
                                           "e");
    setSystemCodeset("ISO-8859-1");
    QCOMPARE(Utils::ppdAttrValStr(ppd.get(), "KvTest"), u"Größe"_s);
    setSystemCodeset("US-ASCII");
    QVERIFY(Utils::ppdAttrValStr(ppd.get(), "KvTest").isNull());
}

void UtilsTest::readsOptionTexts()
{
    const PPDHandle ppd = ppdWithOption({"ON/On"}, "ON",
                                        "Gr\xc3\xb6\xc3\x9f"
                                        "e");
    QCOMPARE(Utils::ppdOptionTextStr(ppd.get(), "KvTest"), u"Größe"_s);
    QVERIFY(Utils::ppdOptionTextStr(ppd.get(), "KvNone").isNull());
}

void UtilsTest::readsOptionTextsInTheSystemEncoding()
{
    const PPDHandle ppd = ppdWithOption({"ON/On"}, "ON",
                                        "Gr\xf6\xdf"
                                        "e");
    QVERIFY(Utils::ppdOptionTextStr(ppd.get(), "KvTest").isNull());
    setSystemCodeset("ISO-8859-1");
    QCOMPARE(Utils::ppdOptionTextStr(ppd.get(), "KvTest"), u"Größe"_s);
}

void UtilsTest::itemIsSupportedWhenItIsNotHidden_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<bool>("supported");

    QTest::newRow("False") << QByteArray("False") << true;
    QTest::newRow("True") << QByteArray("True") << false;
    QTest::newRow("false in small letters") << QByteArray("false") << false;
    QTest::newRow("FALSE in capitals") << QByteArray("FALSE") << false;
    QTest::newRow("False and a space") << QByteArray("False ") << false;
    QTest::newRow("empty") << QByteArray("") << false;
    QTest::newRow("not in the system encoding") << QByteArray("False\xff") << false;
    QTest::newRow("absent") << QByteArray() << false;
}

void UtilsTest::itemIsSupportedWhenItIsNotHidden()
{
    QFETCH(QByteArray, value);
    const PPDHandle ppd = value.isNull() ? PPDText().open() : ppdWithAttribute(value);
    QVERIFY(ppd);
    QCOMPARE(ppdFindAttr(ppd.get(), "KvTest", nullptr) == nullptr, value.isNull());
    QTEST(Utils::isSupportedItem(ppd.get(), "KvTest"), "supported");
}

void UtilsTest::readsPoints_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QPointF>("point");

    QTest::newRow("whole numbers") << QByteArray("{12, 34}") << QPointF(12, 34);
    QTest::newRow("no space") << QByteArray("{12,34}") << QPointF(12, 34);
    QTest::newRow("fractions") << QByteArray("{12.5, 0.25}") << QPointF(12.5, 0.25);
    QTest::newRow("exponents") << QByteArray("{1.25e2, 5E-1}") << QPointF(125, 0.5);
    QTest::newRow("negative") << QByteArray("{-1.5, -2}") << QPointF(-1.5, -2);
    QTest::newRow("one number") << QByteArray("{12}") << QPointF(12, 0);
    QTest::newRow("words") << QByteArray("left, top") << QPointF(0, 0);
    QTest::newRow("braces alone") << QByteArray("{}") << QPointF(0, 0);
    QTest::newRow("empty") << QByteArray("") << QPointF(0, 0);
    QTest::newRow("absent") << QByteArray() << QPointF(0, 0);
}

void UtilsTest::readsPoints()
{
    QFETCH(QByteArray, value);
    const PPDHandle ppd = value.isNull() ? PPDText().open() : ppdWithAttribute(value);
    QVERIFY(ppd);
    QTEST(Utils::originItem(ppd.get(), "KvTest"), "point");
}

void UtilsTest::listsChoicesInTheOrderOfThePPD()
{
    const PPDHandle ppd = ppdWithOption({"3/C", "1/A", "2/B"}, "1");
    const auto choices = Utils::arrayFromPPDOption(option(ppd));
    QCOMPARE(titles(choices), QStringList({u"3"_s, u"1"_s, u"2"_s}));
    QCOMPARE(choices.at(1)->choice(), option(ppd)->choices + 1);
    QVERIFY(!choices.at(-1));
    QVERIFY(!choices.at(3));
}

void UtilsTest::absentOptionHasNoList()
{
    QVERIFY(Utils::arrayFromPPDOption(nullptr).isNull());
}

void UtilsTest::optionWithoutChoicesHasAnEmptyList()
{
    const PPDHandle ppd = ppdWithOption({}, {});
    QVERIFY(ppd);
    QVERIFY(option(ppd));
    QCOMPARE(option(ppd)->num_choices, 0);
    const auto choices = Utils::arrayFromPPDOption(option(ppd));
    QVERIFY(!choices.isNull());
    QVERIFY(choices.isEmpty());
}

void UtilsTest::findsAChoiceByKeyword()
{
    const PPDHandle ppd = ppdWithOption({"OFF/Off", "ON/On"}, "OFF");
    const auto choices = Utils::arrayFromPPDOption(option(ppd));
    QCOMPARE(Utils::findChoiceForString(u"ON"_s, choices), choices.at(1));
    QVERIFY(!Utils::findChoiceForString(u"on"_s, choices));
    QVERIFY(!Utils::findChoiceForString(u"On"_s, choices));
    QVERIFY(!Utils::findChoiceForString(u""_s, choices));
}

void UtilsTest::findsTheFirstOfDuplicateKeywords()
{
    const PPDHandle ppd = ppdWithOption({"OFF/Off", "ON/First", "ON/Second"}, "OFF");
    const auto choices = Utils::arrayFromPPDOption(option(ppd));
    QCOMPARE(Utils::findChoiceForString(u"ON"_s, choices), choices.at(1));
}

void UtilsTest::findsTheDefaultWhenNoKeywordIsGiven()
{
    const PPDHandle ppd = ppdWithOption({"OFF/Off", "ON/On"}, "ON");
    ppdMarkOption(ppd.get(), "KvTest", "OFF");
    const auto choices = Utils::arrayFromPPDOption(option(ppd));
    QCOMPARE(Utils::findChoiceForString(QString(), choices), choices.at(1));
}

void UtilsTest::optionWithoutDefaultHasNoDefaultChoice()
{
    const PPDHandle ppd = ppdWithOption({"OFF/Off", "ON/On"}, {});
    const auto choices = Utils::arrayFromPPDOption(option(ppd));
    QVERIFY(!Utils::findChoiceForString(QString(), choices));
    QCOMPARE(Utils::findChoiceForString(u"OFF"_s, choices), choices.at(0));
}

void UtilsTest::findsNothingInAnEmptyList()
{
    QVERIFY(!Utils::findChoiceForString(QString(), {}));
    QVERIFY(!Utils::findChoiceForString(u"ON"_s, {}));
}

void UtilsTest::titlesAreUTF8WhateverTheSystemEncoding()
{
    setSystemCodeset("ISO-8859-1");
    const PPDHandle ppd = ppdWithOption({"ON/\xe3\x81\x82"}, "ON",
                                        "Gr\xc3\xb6\xc3\x9f"
                                        "e");
    QCOMPARE(Utils::newOptionTitle(option(ppd)), u"Größe"_s);
    QCOMPARE(Utils::newChoiceTitle(option(ppd)->choices), u"あ"_s);
}

void UtilsTest::emptyTitlesAreNotNull()
{
    const PPDHandle ppd = ppdWithOption({"ON/On"}, "ON", "Text");
    option(ppd)->text[0] = '\0';
    option(ppd)->choices[0].text[0] = '\0';
    QVERIFY(!Utils::newOptionTitle(option(ppd)).isNull());
    QCOMPARE(Utils::newOptionTitle(option(ppd)), u""_s);
    QVERIFY(!Utils::newChoiceTitle(option(ppd)->choices).isNull());
    QCOMPARE(Utils::newChoiceTitle(option(ppd)->choices), u""_s);
}

void UtilsTest::titlesThatAreNoUTF8AreNull_data()
{
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("Latin-1") << QByteArray("Gr\xf6\xdf"
                                           "e");
    QTest::newRow("stray byte") << QByteArray("a\xff");
    QTest::newRow("cut off at the end") << QByteArray("a\xc3");
    QTest::newRow("overlong") << QByteArray("\xc0\xaf");
    QTest::newRow("cut off by the longest text")
        << QByteArray(PPD_MAX_TEXT - 2, 'T') + QByteArray("\xe3\x81\x82");
}

void UtilsTest::titlesThatAreNoUTF8AreNull()
{
    QFETCH(QByteArray, text);
    const PPDHandle ppd = ppdWithOption({"ON/" + text}, "ON", text);
    QVERIFY(ppd);
    QVERIFY(text.startsWith(option(ppd)->text));
    QVERIFY(Utils::newOptionTitle(option(ppd)).isNull());
    QVERIFY(Utils::newChoiceTitle(option(ppd)->choices).isNull());
}

void UtilsTest::dimsCaptions_data()
{
    QTest::addColumn<quint8>("flag");
    QTest::addColumn<bool>("dimmed");

    QTest::newRow("0") << quint8(0) << true;
    QTest::newRow("1") << quint8(1) << false;
    QTest::newRow("2") << quint8(2) << true;
    QTest::newRow("255") << quint8(255) << true;
}

void UtilsTest::dimsCaptions()
{
    QFETCH(quint8, flag);
    QFETCH(bool, dimmed);
    const QColor enabled = textColor(QPalette::Active, QPalette::WindowText);
    const QColor disabled = textColor(QPalette::Disabled, QPalette::WindowText);
    QVERIFY(enabled != disabled);

    QLabel label;
    Utils::setEnabledForText(dimmed ? 1 : 0, &label);
    Utils::setEnabledForText(flag, &label);
    QCOMPARE(label.palette().color(label.foregroundRole()), dimmed ? disabled : enabled);
    QCOMPARE(label.palette().color(QPalette::Inactive, QPalette::WindowText),
             dimmed ? disabled : enabled);
    QCOMPARE(Utils::isTextDimmed(&label), dimmed);
    QVERIFY(label.isEnabled());
}

void UtilsTest::dimsTextFields()
{
    QLineEdit field;
    QCOMPARE(Utils::isTextDimmed(&field), false);
    Utils::setEnabledForText(0, &field);
    QCOMPARE(field.palette().color(field.foregroundRole()),
             textColor(QPalette::Disabled, QPalette::Text));
    QCOMPARE(Utils::isTextDimmed(&field), true);
    Utils::setEnabledForText(1, &field);
    QCOMPARE(field.palette().color(field.foregroundRole()),
             textColor(QPalette::Active, QPalette::Text));
    QCOMPARE(Utils::isTextDimmed(&field), false);
}

void UtilsTest::leavesOtherControlsAlone()
{
    QPushButton button;
    const QPalette before = button.palette();
    Utils::setEnabledForText(0, &button);
    QCOMPARE(button.palette(), before);
    QCOMPARE(Utils::isTextDimmed(&button), false);
    Utils::setEnabledForText(0, nullptr);
    QCOMPARE(Utils::isTextDimmed(nullptr), false);
    QVERIFY(button.isEnabled());
}

KV_TEST(UtilsTest)
#include "tst_utils.moc"
