// SPDX-License-Identifier: Apache-2.0
#include "PrinterMaker.h"

namespace model {
namespace {
using Choices = QList<Choice>;

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

Choices choicesOf(const char *keywords)
{
    Choices choices;
    const QStringList words = text(keywords).split(u' ', Qt::SkipEmptyParts);
    for (const QString &word : words) {
        choices.append({word});
    }
    return choices;
}

Choices counts(int smallest, int largest)
{
    Choices choices;
    for (int count = smallest; count <= largest; ++count) {
        choices.append({QString::number(count)});
    }
    return choices;
}

Choices makeSwitchChoices(Dice &dice)
{
    static const QList<std::pair<int, Choices>> kinds = {
        {120, choicesOf("OFF ON")}, {3, choicesOf("ON OFF")},      {2, choicesOf("OFF")},
        {2, choicesOf("ON")},       {4, choicesOf("OFF ON AUTO")}, {2, choicesOf("Off On")},
        {2, choicesOf("No Yes")},   {1, choicesOf("OFF ON OFF")},  {2, choicesOf("")},
        {2, choicesOf("0 1")},
    };
    return dice.weighted(kinds);
}

Choices makeCounts(Dice &dice)
{
    static const QList<std::pair<int, Choices>> kinds = {
        {30, counts(1, 3)},
        {15, counts(1, 9)},
        {8, counts(1, 99)},
        {15, counts(2, 20)},
        {4, counts(0, 5)},
        {5, choicesOf("1")},
        {5, choicesOf("OFF 1 2 3")},
        {4, choicesOf("01 02 03 10")},
        {5, choicesOf("1 2 5 10 50")},
        {3, choicesOf("Each")},
        {2, choicesOf("2x 4x 6x")},
        {2, choicesOf("9 5 1")},
        {2, choicesOf("1 2 Max")},
        {3, choicesOf("")},
    };
    return dice.weighted(kinds);
}

void addTexts(Dice &dice, Choices &choices)
{
    for (Choice &choice : choices) {
        choice.text = dice.weighted<QString>({{8, text("Text of ") + choice.keyword},
                                              {4, QString()},
                                              {1, text("RS_STitle_Yes")},
                                              {1, text("Schräg & gut")}});
    }
}

QString makeDefault(Dice &dice, const Choices &choices)
{
    const QString listed = choices.isEmpty() ? QString() : dice.oneOf(choices).keyword;
    return dice.weighted<QString>({{40, listed},
                                   {20, choices.isEmpty() ? text("ON") : choices.last().keyword},
                                   {6, QString()},
                                   {3, text("ON")},
                                   {3, text("1")},
                                   {2, text("Unknown")},
                                   {2, listed.toLower()},
                                   {1, text("7up")}});
}

PrinterOption makeOption(Dice &dice, Option option)
{
    PrinterOption made;
    made.choices = option == CutEvery ? makeCounts(dice) : makeSwitchChoices(dice);
    made.defaultChoice = makeDefault(dice, made.choices);
    if (dice.chance(60)) {
        addTexts(dice, made.choices);
    }
    made.text = dice.weighted<QString>({{6, QString()},
                                        {6, text("Do ") + namesOf(option).keyword},
                                        {1, text("Cut")},
                                        {1, text("RS_Labels")},
                                        {1, text("Schnitt – groß & klein")}});
    return made;
}

/// Names of each kind, with near misses; no two that differ in letters' cases alone.
const QStringList &knownNames()
{
    static const QStringList names =
        text("62x29 DC03 AV2055 FL30 C_62 HS058 Customer 62Custom DC F "
             "FL HS C fl31 hs059 dc04 C-62 AFL DCHS CustomFL")
            .split(u' ');
    return names;
}
} // namespace

Printer makePrinter(Dice &dice)
{
    Printer printer;
    const int density = dice.weighted<int>({{5, 100}, {8, 85}, {4, 50}, {2, 20}, {1, 0}});
    // Cut mark puts most of the tape family's presets aside.
    const bool mayHaveCutMark = dice.chance(50);
    for (const Option option : everyOption) {
        if (dice.chance(density) && (option != CutMark || mayHaveCutMark)) {
            printer.options[option] = makeOption(dice, option);
        }
    }
    printer.tapeType = dice.weighted<std::optional<QString>>(
        {{6, text("RV")}, {6, text("MQ")}, {3, std::nullopt}, {1, text("rv")}, {1, text("")}});
    printer.autoCutObjHidden = dice.weighted<std::optional<QString>>({{8, text("False")},
                                                                      {4, text("True")},
                                                                      {4, std::nullopt},
                                                                      {1, text("false")},
                                                                      {1, text("")}});
    for (const QString &name : knownNames()) {
        if (dice.chance(60)) {
            printer.sizes.append({name, dice.chance(95) ? 100.0 : 0.0});
        }
    }
    printer.takesCustomSizes = dice.chance(50);
    return printer;
}

Ticket makeTicket(Dice &dice)
{
    Ticket ticket;
    ticket.kind = dice.weighted<Ticket::Kind>({{8, Ticket::Kind::Dictionary},
                                               {1, Ticket::Kind::List},
                                               {1, Ticket::Kind::NoPropertyList}});
    ticket.paperName = dice.weighted<std::optional<QString>>({{6, text("HS058")},
                                                              {1, text("HS")},
                                                              {1, text("hs058")},
                                                              {1, text("FL30")},
                                                              {1, text("24 mm & more")},
                                                              {1, text("")},
                                                              {2, std::nullopt}});
    ticket.colour = dice.weighted<std::optional<QString>>(
        {{1, text("MultiColorMonochrome")}, {1, text("MultiColorBlackRed")}, {2, std::nullopt}});
    return ticket;
}

QString makePaperName(Dice &dice, const Printer &printer)
{
    const QString listed = printer.sizes.isEmpty() ? QString() : dice.oneOf(printer.sizes).name;
    return dice.weighted<QString>({{6, listed},
                                   {2, text("FL30")},
                                   {4, text("HS058")},
                                   {2, text("Custom")},
                                   {6, dice.oneOf(knownNames())},
                                   {3, QString()},
                                   {1, text("")}});
}

} // namespace model
