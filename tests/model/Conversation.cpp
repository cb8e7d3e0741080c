// SPDX-License-Identifier: Apache-2.0
#include "Conversation.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <functional>

namespace model {
namespace {
using Simpler = std::vector<Conversation>;

bool isThere(const std::optional<PrinterOption> &option)
{
    return option.has_value();
}

/// Keeps a conversation that @p simplify has made from another, if it has.
void tryTo(Simpler &found, const Conversation &from,
           const std::function<bool(Conversation &)> &simplify)
{
    Conversation to = from;
    if (simplify(to)) {
        found.push_back(std::move(to));
    }
}

/// Gives a place another value; false when it has it.
template <typename Value>
bool change(Value &place, const Value &value)
{
    const bool differs = place != value;
    place = value;
    return differs;
}

bool withoutChoiceTexts(PrinterOption &option)
{
    bool had = false;
    for (Choice &choice : option.choices) {
        had |= change(choice.text, QString());
    }
    return had;
}

bool withTwoChoices(PrinterOption &option)
{
    const bool had = option.choices.size() > 2;
    option.choices.resize(qMin<qsizetype>(option.choices.size(), 2));
    return had;
}

void simplifyOption(Simpler &found, const Conversation &from, Option option)
{
    const auto tryOption = [&](const std::function<bool(PrinterOption &)> &simplify) {
        tryTo(found, from, [&](Conversation &to) { return simplify(*to.printer.options[option]); });
    };
    tryTo(found, from, [option](Conversation &to) {
        to.printer.options[option].reset();
        return true;
    });
    tryOption(withTwoChoices);
    tryOption(withoutChoiceTexts);
    tryOption([](PrinterOption &to) { return change(to.text, QString()); });
    tryOption([](PrinterOption &to) {
        return !to.choices.isEmpty() && change(to.defaultChoice, to.choices.first().keyword);
    });
}

/// Great steps, which save many small ones where they can be taken.
void simplifyAtOnce(Simpler &found, const Conversation &from)
{
    tryTo(found, from, [](Conversation &to) {
        const bool had = to.printer.sizes.size() > 1;
        to.printer.sizes.clear();
        return had;
    });
    tryTo(found, from, [](Conversation &to) {
        bool had = false;
        for (auto &option : to.printer.options) {
            if (option) {
                const bool hadTexts = withoutChoiceTexts(*option);
                had |= change(option->text, QString()) || hadTexts;
            }
        }
        return had;
    });
    for (const Option kept : everyOption) {
        tryTo(found, from, [kept](Conversation &to) {
            const Printer before = to.printer;
            to.printer.options = {};
            to.printer.options[kept] = before.options[kept];
            return std::ranges::count_if(before.options, isThere) > 2 &&
                   isThere(before.options[kept]);
        });
    }
}

void simplifyPrinter(Simpler &found, const Conversation &from)
{
    simplifyAtOnce(found, from);
    for (const Option option : everyOption) {
        if (from.printer.option(option)) {
            simplifyOption(found, from, option);
        }
    }
    for (auto Printer::*attribute : {&Printer::tapeType, &Printer::autoCutObjHidden}) {
        tryTo(found, from, [attribute](Conversation &to) {
            return change(to.printer.*attribute, std::optional<QString>());
        });
    }
    tryTo(found, from, [](Conversation &to) { return change(to.printer.takesCustomSizes, false); });
    for (qsizetype i = 0; i < from.printer.sizes.size(); ++i) {
        tryTo(found, from, [i](Conversation &to) {
            to.printer.sizes.removeAt(i);
            return true;
        });
    }
}

void simplifyOpening(Simpler &found, const Conversation &from, std::size_t line)
{
    const QJsonObject request = QJsonDocument::fromJson(from.lines[line]).object();
    if (request.value(QLatin1String("cmd")) != QLatin1String("open")) {
        return;
    }
    for (const char *name : {"settings", "paper", "paperHeight", "deviceURI", "markDefaults"}) {
        const QLatin1String member(name);
        tryTo(found, from, [&](Conversation &to) {
            QJsonObject plainer = request;
            plainer.remove(member);
            to.lines[line] = QJsonDocument(plainer).toJson(QJsonDocument::Compact);
            return request.contains(member);
        });
    }
}
} // namespace

std::vector<Conversation> simplerThan(const Conversation &conversation)
{
    Simpler found;
    simplifyPrinter(found, conversation);
    for (std::size_t line = 0; line < conversation.lines.size(); ++line) {
        simplifyOpening(found, conversation, line);
    }
    return found;
}

} // namespace model
