// SPDX-License-Identifier: Apache-2.0
#include "ConversationMaker.h"

#include "PrinterMaker.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace model {
namespace {
/// Makes the lines of a conversation about a printer.
class LineMaker
{
public:
    LineMaker(Dice &dice, const Printer &printer)
        : mDice(dice)
        , mPrinter(printer)
    {
    }

    QByteArray opening();
    QByteArray line();
    /// The cut-every box, and then its count.
    std::vector<QByteArray> countLines();
    static QByteArray plain(const char *command)
    {
        return serialised({{key("cmd"), key(command)}});
    }

private:
    using Make = QByteArray (LineMaker::*)();

    static QLatin1String key(const char *name) { return QLatin1String(name); }
    static QByteArray serialised(const QJsonObject &request);
    QByteArray command(const char *name, const char *member, const QJsonValue &value) const;

    QByteArray plainCommand();
    QByteArray click();
    QByteArray preset();
    QByteArray type();
    QByteArray step();
    QByteArray paper();
    QByteArray choose();
    QByteArray faulty();
    QByteArray rareCommand();

    Option anyOption() { return everyOption[std::size_t(mDice.below(int(optionCount)))]; }
    Option likelyOption();
    int likelyTag();
    double height() { return mDice.weighted<double>({{8, 175.75}, {2, 0.0}, {1, -3.0}}); }

    Dice &mDice;
    const Printer &mPrinter;
};

QByteArray LineMaker::serialised(const QJsonObject &request)
{
    return QJsonDocument(request).toJson(QJsonDocument::Compact);
}

QByteArray LineMaker::command(const char *name, const char *member, const QJsonValue &value) const
{
    return serialised({{key("cmd"), key(name)}, {key(member), value}});
}

QByteArray LineMaker::opening()
{
    QJsonObject request{
        {key("cmd"), key("open")}, {key("ppd"), key(ppdPlaceholder)}, {key("locale"), key("none")}};
    const auto add = [&](int percent, const char *member, const QJsonValue &value) {
        if (mDice.chance(percent)) {
            request.insert(key(member), value);
        }
    };
    const QString name = makePaperName(mDice, mPrinter);
    add(85, "paper", name.isNull() ? QJsonValue() : QJsonValue(name));
    add(name.isNull() ? 80 : 30, "paperHeight", height());
    add(60, "settings", key(settingsPlaceholder));
    add(70, "deviceURI",
        mDice.oneOf<QLatin1String>({key("usb://Korvane/Q"), key("KVMQUSB://Korvane/Q"),
                                    key("USB://Korvane/Q"), key("kvmqusb://Korvane/Q"),
                                    key("usbx://Korvane/Q"), key("ipp://printer.example/ipp/print"),
                                    key("")}));
    add(50, "markDefaults", mDice.chance(60));
    return serialised(request);
}

QByteArray LineMaker::line()
{
    static const QList<std::pair<int, Make>> kinds = {
        {28, &LineMaker::click},        {12, &LineMaker::preset}, {7, &LineMaker::type},
        {6, &LineMaker::step},          {10, &LineMaker::paper},  {9, &LineMaker::choose},
        {28, &LineMaker::plainCommand}, {2, &LineMaker::faulty},  {1, &LineMaker::rareCommand},
    };
    return (this->*mDice.weighted(kinds))();
}

std::vector<QByteArray> LineMaker::countLines()
{
    std::vector<QByteArray> lines = {command("click", "control", namesOf(CutEvery).checkBox)};
    for (int i = mDice.between(1, 4); i > 0; --i) {
        lines.push_back(mDice.chance(50) ? step() : type());
    }
    return lines;
}

QByteArray LineMaker::plainCommand()
{
    static const QList<std::pair<int, const char *>> names = {
        {6, "view"}, {6, "show"},  {3, "hide"},    {4, "save"},
        {4, "keys"}, {4, "print"}, {6, "restore"}, {1, "summary"}};
    return plain(mDice.weighted(names));
}

Option LineMaker::likelyOption()
{
    QList<Option> present;
    for (const Option option : everyOption) {
        if (mPrinter.option(option)) {
            present.append(option);
        }
    }
    return present.isEmpty() || mDice.chance(15) ? anyOption() : mDice.oneOf(present);
}

int LineMaker::likelyTag()
{
    if (mDice.chance(20)) {
        return mDice.between(1, 17);
    }
    if (mPrinter.isRV()) {
        return mDice.between(1, 4);
    }
    return mPrinter.option(CutMark) ? mDice.between(14, 17) : mDice.between(5, 13);
}

QByteArray LineMaker::click()
{
    const Option option = likelyOption();
    return command("click", "control",
                   mDice.chance(97) ? namesOf(option).checkBox
                                    : mDice.oneOf<QLatin1String>(
                                          {key("mNoSuchChkBx"), key("mCutEveryTxBx"), key("")}));
}

QByteArray LineMaker::preset()
{
    return command("preset", "tag",
                   mDice.chance(95) ? likelyTag() : mDice.oneOf<int>({0, 18, -1, 99}));
}

QByteArray LineMaker::type()
{
    static const QList<const char *> texts = {"",    "0",   "150",         "abc",         "-3",
                                              " 4",  "+2",  "3.7",         "007",         "2x",
                                              "9 9", "1e1", "99999999999", "-99999999999"};
    return command("type", "text",
                   mDice.chance(60) ? QString::number(mDice.between(0, 22))
                                    : QString(key(mDice.oneOf(texts))));
}

QByteArray LineMaker::step()
{
    return command("step", "by", mDice.chance(50) ? 1 : -1);
}

QByteArray LineMaker::paper()
{
    const QString name = makePaperName(mDice, mPrinter);
    QJsonObject request{{key("cmd"), key("paper")},
                        {key("name"), name.isNull() ? QJsonValue() : QJsonValue(name)}};
    if (mDice.chance(name.isNull() ? 80 : 30)) {
        request.insert(key("height"), height());
    }
    return serialised(request);
}

QByteArray LineMaker::choose()
{
    const Option option = likelyOption();
    const PrinterOption *known = mPrinter.option(option);
    QString keyword = namesOf(option).keyword;
    QString choice =
        known && !known->choices.isEmpty() ? mDice.oneOf(known->choices).keyword : u"ON"_s;
    switch (mDice.below(20)) {
    case 0:
        keyword = keyword.toLower();
        break;
    case 1:
        choice = choice.toLower();
        break;
    case 2:
        choice = u"Unknown"_s;
        break;
    case 3:
        keyword = u"PageSize"_s;
        choice = makePaperName(mDice, mPrinter);
        break;
    default:
        break;
    }
    return serialised(
        {{key("cmd"), key("choose")}, {key("key"), keyword}, {key("choice"), choice}});
}

QByteArray LineMaker::faulty()
{
    static const QByteArrayList lines = {
        "nonsense",
        "",
        "{}",
        "[\"show\"]",
        R"({"cmd":7})",
        R"({"cmd":"frobnicate"})",
        R"({"cmd":"Show"})",
        R"({"cmd":"open"})",
        R"({"cmd":"open","ppd":"@PPD@","locale":"none"})",
        R"({"cmd":"open","ppd":"@PPD@","locale":"none","colour":"red"})",
        R"({"cmd":"show","twice":true})",
        R"({"cmd":"click"})",
        R"({"cmd":"click","control":1})",
        R"({"cmd":"preset"})",
        R"({"cmd":"preset","tag":"5"})",
        R"({"cmd":"type"})",
        R"({"cmd":"step"})",
        R"({"cmd":"step","by":0})",
        R"({"cmd":"step","by":2})",
        R"({"cmd":"paper"})",
        R"({"cmd":"paper","name":5})",
        R"({"cmd":"choose","key":"KvHalfCut"})",
        R"({"cmd":"choose","choice":"ON"})",
        R"({"cmd":"screenshot"})",
    };
    return mDice.oneOf(lines);
}

QByteArray LineMaker::rareCommand()
{
    return mDice.chance(30) ? plain("close")
                            : command("screenshot", "file", key(picturePlaceholder));
}

/// What a dialog begins with, and how often out of a hundred times.
const std::pair<int, const char *> usualStart[] = {{60, "keys"}, {90, "view"}, {90, "show"}};
} // namespace

Conversation makeConversation(Dice &dice, int length)
{
    Conversation conversation;
    conversation.printer = makePrinter(dice);
    if (dice.chance(70)) {
        conversation.ticket = makeTicket(dice);
    }
    LineMaker maker(dice, conversation.printer);
    auto &lines = conversation.lines;
    if (dice.chance(3)) {
        lines.push_back(maker.line());
    }
    lines.push_back(maker.opening());
    for (const auto &[percent, usual] : usualStart) {
        if (dice.chance(percent)) {
            lines.push_back(LineMaker::plain(usual));
        }
    }
    for (int i = 0; i < length; ++i) {
        lines.push_back(maker.line());
        if (conversation.printer.option(CutEvery) && dice.chance(7)) {
            const auto more = maker.countLines();
            lines.insert(lines.end(), more.begin(), more.end());
        }
    }
    if (dice.chance(15)) {
        lines.push_back(LineMaker::plain("close"));
        lines.push_back(maker.line());
        lines.push_back(maker.opening());
        lines.push_back(LineMaker::plain("view"));
    }
    return conversation;
}

} // namespace model
