// SPDX-License-Identifier: Apache-2.0
#include "ppd/PDEChoice.h"
#include "ppd/PDEUtilsMethod.h"
#include "support/PPDText.h"

#include <QTest>

#include <cstring>

/// One choice of a PPD option as an object.
class ChoiceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsKeywordAndText_data();
    void readsKeywordAndText();
    void wrappersOfOneRecordAreDistinctWithEqualKeywords();
    void emptyTextIsAnEmptyTitle();
    void textThatIsNoUTF8HasNoTitle_data();
    void textThatIsNoUTF8HasNoTitle();
    void titlesAreReadOnce();
    void handsOutTheRecordItself();
    void declaredDefaultStaysTheDefaultWhenAnotherIsMarked();
    void keywordMustEqualTheDeclaredDefault_data();
    void keywordMustEqualTheDeclaredDefault();
    void keywordIsComparedToItsLastLetter();
    void describesTheSecondOfFive();
    void describesAMarkedChoice();
    void descriptionTakesTitlesLiterally();
};

namespace {
const QByteArray longestKeyword(40, 'K');
const QByteArray longestText(80, 'T');

/// The record of a choice, counted from 0, of the PPD's option "KvTest".
ppd_choice_t *record(const PPDHandle &ppd, int index)
{
    return ppdFindOption(ppd.get(), "KvTest")->choices + index;
}

PPDHandle ppdWith(const QByteArrayList &choices, const QByteArray &defaultChoice = "1")
{
    return PPDText().option("KvTest", choices, defaultChoice).open();
}

QString address(const PDEChoice &choice)
{
    return QStringLiteral("0x") + QString::number(quintptr(&choice), 16);
}
} // namespace

void ChoiceTest::readsKeywordAndText_data()
{
    QTest::addColumn<QByteArray>("choice");
    QTest::addColumn<QString>("ppdTitle");
    QTest::addColumn<QString>("userTitle");

    QTest::newRow("plain") << QByteArray("ON/On") << u"ON"_s << u"On"_s;
    QTest::newRow("accents") << QByteArray("ON/Gr\xc3\xb6\xc3\x9f"
                                           "e")
                             << u"ON"_s << u"Größe"_s;
    QTest::newRow("kana") << QByteArray("ON/\xe3\x81\x82") << u"ON"_s << u"あ"_s;
    QTest::newRow("beyond 16 bits")
        << QByteArray("ON/\xf0\x9f\x98\x80") << u"ON"_s << u"\U0001F600"_s;
    QTest::newRow("no text") << QByteArray("ON") << u"ON"_s << u"ON"_s;
    QTest::newRow("longest") << longestKeyword + '/' + longestText
                             << QString::fromLatin1(longestKeyword)
                             << QString::fromLatin1(longestText);
}

void ChoiceTest::readsKeywordAndText()
{
    QFETCH(QByteArray, choice);
    const PPDHandle ppd = ppdWith({choice});
    QVERIFY(ppd);
    const auto wrapper = PDEChoice::choiceWithChoice(record(ppd, 0));
    QTEST(wrapper->ppdTitle(), "ppdTitle");
    QTEST(wrapper->userTitle(), "userTitle");
}

void ChoiceTest::wrappersOfOneRecordAreDistinctWithEqualKeywords()
{
    const PPDHandle ppd = ppdWith({"1/One", "2/Two"});
    const auto one = PDEChoice::choiceWithChoice(record(ppd, 1));
    const auto other = PDEChoice::choiceWithChoice(record(ppd, 1));
    QCOMPARE(one->ppdTitle(), other->ppdTitle());
    QCOMPARE(one->choice(), other->choice());
    QVERIFY(one.get() != other.get());
}

void ChoiceTest::emptyTextIsAnEmptyTitle()
{
    const PPDHandle ppd = ppdWith({"1/One"});
    record(ppd, 0)->text[0] = '\0';
    const QString title = PDEChoice::choiceWithChoice(record(ppd, 0))->userTitle();
    QVERIFY(!title.isNull());
    QCOMPARE(title, u""_s);
}

void ChoiceTest::textThatIsNoUTF8HasNoTitle_data()
{
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("Latin-1") << QByteArray("Gr\xf6\xdf"
                                           "e");
    QTest::newRow("Shift JIS") << QByteArray("\x83\x65\x81\x5b\x83\x76");
    QTest::newRow("stray byte") << QByteArray("On\xff");
    QTest::newRow("continuation alone") << QByteArray("\x81");
    QTest::newRow("cut off") << QByteArray("On\xe3\x81");
    QTest::newRow("overlong") << QByteArray("\xc0\xaf");
    QTest::newRow("surrogate") << QByteArray("\xed\xa0\xbd");
}

void ChoiceTest::textThatIsNoUTF8HasNoTitle()
{
    QFETCH(QByteArray, text);
    const PPDHandle ppd = ppdWith({"1/" + text, "2/Two"});
    QVERIFY(ppd);
    QCOMPARE(QByteArray(record(ppd, 0)->text), text);
    const auto choice = PDEChoice::choiceWithChoice(record(ppd, 0));
    QVERIFY(choice->userTitle().isNull());
    QCOMPARE(choice->ppdTitle(), u"1"_s);
    QCOMPARE(PDEChoice::choiceWithChoice(record(ppd, 1))->userTitle(), u"Two"_s);
}

void ChoiceTest::titlesAreReadOnce()
{
    const PPDHandle ppd = ppdWith({"1/One"});
    ppd_choice_t *choice = record(ppd, 0);
    const auto wrapper = PDEChoice::choiceWithChoice(choice);
    QCOMPARE(wrapper->userTitle(), u"One"_s);
    QCOMPARE(wrapper->ppdTitle(), u"1"_s);
    std::strcpy(choice->text, "Two");
    std::strcpy(choice->choice, "2");
    QCOMPARE(wrapper->userTitle(), u"One"_s);
    QCOMPARE(wrapper->ppdTitle(), u"1"_s);
    QCOMPARE(PDEChoice::choiceWithChoice(choice)->userTitle(), u"Two"_s);
}

void ChoiceTest::handsOutTheRecordItself()
{
    const PPDHandle ppd = ppdWith({"1/One", "2/Two"});
    QCOMPARE(PDEChoice::choiceWithChoice(record(ppd, 1))->choice(), record(ppd, 1));
}

void ChoiceTest::declaredDefaultStaysTheDefaultWhenAnotherIsMarked()
{
    const PPDHandle ppd = ppdWith({"1/One", "2/Two"});
    ppdMarkOption(ppd.get(), "KvTest", "2");
    QCOMPARE(QByteArray(ppdFindMarkedChoice(ppd.get(), "KvTest")->choice), QByteArray("2"));
    QCOMPARE(PDEChoice::choiceWithChoice(record(ppd, 0))->isDefaultChoice(), true);
    QCOMPARE(PDEChoice::choiceWithChoice(record(ppd, 1))->isDefaultChoice(), false);
}

void ChoiceTest::keywordMustEqualTheDeclaredDefault_data()
{
    QTest::addColumn<QByteArray>("declared");
    QTest::addColumn<bool>("isDefault");

    QTest::newRow("same") << QByteArray("ON") << true;
    QTest::newRow("other case") << QByteArray("on") << false;
    QTest::newRow("longer") << QByteArray("ONE") << false;
    QTest::newRow("shorter") << QByteArray("O") << false;
    QTest::newRow("none") << QByteArray() << false;
}

void ChoiceTest::keywordMustEqualTheDeclaredDefault()
{
    QFETCH(QByteArray, declared);
    const PPDHandle ppd = ppdWith({"OFF/Off", "ON/On"}, "OFF");
    std::strcpy(ppdFindOption(ppd.get(), "KvTest")->defchoice, declared.constData());
    QTEST(PDEChoice::choiceWithChoice(record(ppd, 1))->isDefaultChoice(), "isDefault");
}

void ChoiceTest::keywordIsComparedToItsLastLetter()
{
    QByteArray other = longestKeyword;
    other.back() = 'L';
    const PPDHandle ppd = ppdWith({longestKeyword, other}, longestKeyword);
    QVERIFY(ppd);
    QCOMPARE(PDEChoice::choiceWithChoice(record(ppd, 0))->isDefaultChoice(), true);
    QCOMPARE(PDEChoice::choiceWithChoice(record(ppd, 1))->isDefaultChoice(), false);
}

void ChoiceTest::describesTheSecondOfFive()
{
    const PPDHandle ppd = ppdWith({"1/One", "2/Two", "3/Three", "4/Four", "5/Five"});
    const auto choice = PDEChoice::choiceWithChoice(record(ppd, 1));
    QCOMPARE(
        choice->description(),
        QStringLiteral("<PDEChoice %1 userTitle:\"Two\" ppdTitle:\"2\" marked:NO choice:2 of 5>")
            .arg(address(*choice)));
}

void ChoiceTest::describesAMarkedChoice()
{
    const PPDHandle ppd = ppdWith({"1/One", "2/Two"});
    ppdMarkOption(ppd.get(), "KvTest", "2");
    const auto choice = PDEChoice::choiceWithChoice(record(ppd, 1));
    QCOMPARE(
        choice->description(),
        QStringLiteral("<PDEChoice %1 userTitle:\"Two\" ppdTitle:\"2\" marked:YES choice:2 of 2>")
            .arg(address(*choice)));
}

void ChoiceTest::descriptionTakesTitlesLiterally()
{
    const PPDHandle ppd = ppdWith({"1/%1 %3 %s"});
    const auto choice = PDEChoice::choiceWithChoice(record(ppd, 0));
    QCOMPARE(
        choice->description(),
        QStringLiteral("<PDEChoice ") + address(*choice) +
            QStringLiteral(" userTitle:\"%1 %3 %s\" ppdTitle:\"1\" marked:YES choice:1 of 1>"));
}

KV_CORE_TEST(ChoiceTest)
#include "tst_choice.moc"
