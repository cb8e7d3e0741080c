// SPDX-License-Identifier: Apache-2.0
#include "SessionModel.h"

#include <QJsonDocument>

#include <algorithm>

namespace model {
namespace {
using Names = QList<QLatin1String>;

const QLatin1String pageSize("PageSize");

std::optional<QString> text(const QJsonObject &request, const char *member)
{
    const QJsonValue value = request.value(QLatin1String(member));
    return value.isString() ? std::optional(value.toString()) : std::nullopt;
}

std::optional<int> integer(const QJsonObject &request, const char *member)
{
    const QJsonValue value = request.value(QLatin1String(member));
    return value.isDouble() ? std::optional(value.toInt()) : std::nullopt;
}

QJsonObject member(const char *name, const QJsonValue &value)
{
    return {{QLatin1String(name), value}};
}

bool isUSB(const QString &uri)
{
    return uri.startsWith(QLatin1String("usb:")) || uri.startsWith(QLatin1String("KVMQUSB:"));
}
} // namespace

const SessionModel::Command SessionModel::commands[] = {
    {QLatin1String("open"), Stage::Closed,
     Names{QLatin1String("ppd"), QLatin1String("paper"), QLatin1String("paperHeight"),
           QLatin1String("settings"), QLatin1String("deviceURI"), QLatin1String("markDefaults"),
           QLatin1String("locale")},
     &SessionModel::open},
    {QLatin1String("close"), Stage::Open, {}, &SessionModel::close},
    {QLatin1String("view"), Stage::Open, {}, &SessionModel::view},
    {QLatin1String("show"), Stage::Open, {}, &SessionModel::show},
    {QLatin1String("hide"), Stage::Open, {}, &SessionModel::hide},
    {QLatin1String("click"), Stage::Viewed, Names{QLatin1String("control")}, &SessionModel::click},
    {QLatin1String("preset"), Stage::Viewed, Names{QLatin1String("tag")}, &SessionModel::preset},
    {QLatin1String("type"), Stage::Viewed, Names{QLatin1String("text")}, &SessionModel::type},
    {QLatin1String("step"), Stage::Viewed, Names{QLatin1String("by")}, &SessionModel::step},
    {QLatin1String("paper"), Stage::Open, Names{QLatin1String("name"), QLatin1String("height")},
     &SessionModel::paper},
    {QLatin1String("choose"), Stage::Open, Names{QLatin1String("key"), QLatin1String("choice")},
     &SessionModel::choose},
    {QLatin1String("save"), Stage::Open, {}, &SessionModel::save},
    {QLatin1String("restore"), Stage::Open, {}, &SessionModel::restore},
    {QLatin1String("keys"), Stage::Open, {}, &SessionModel::keys},
    {QLatin1String("print"), Stage::Open, {}, &SessionModel::print},
    {QLatin1String("summary"), Stage::Open, {}, &SessionModel::summary},
    {QLatin1String("state"), Stage::Open, {}, &SessionModel::state},
    {QLatin1String("screenshot"), Stage::Viewed, Names{QLatin1String("file")},
     &SessionModel::screenshot},
};

SessionModel::SessionModel(const Printer &printer, const std::optional<Ticket> &ticket)
    : mPrinter(printer)
    , mTicket(ticket)
{
}

QJsonObject SessionModel::answer(const QByteArray &line)
{
    const QJsonDocument document = QJsonDocument::fromJson(line);
    const Answer found = document.isObject() ? run(document.object()) : std::nullopt;
    QJsonObject answer = found.value_or(QJsonObject());
    answer.insert(QLatin1String("ok"), found.has_value());
    answer.insert(QLatin1String("events"), mPanel ? mPanel->takeEvents() : QJsonArray());
    return answer;
}

SessionModel::Answer SessionModel::run(const QJsonObject &request)
{
    const auto name = text(request, "cmd");
    const auto command = std::ranges::find_if(
        commands, [&](const Command &candidate) { return name == candidate.name; });
    if (command == std::end(commands) || !isInPlace(command->stage)) {
        return std::nullopt;
    }
    for (auto it = request.begin(); it != request.end(); ++it) {
        const auto isIt = [&it](QLatin1String member) {
            return it.key() == member;
        };
        if (it.key() != QLatin1String("cmd") && std::ranges::none_of(command->members, isIt)) {
            return std::nullopt;
        }
    }
    return (this->*command->run)(request);
}

bool SessionModel::isInPlace(Stage stage) const
{
    switch (stage) {
    case Stage::Closed:
        return !mPanel;
    case Stage::Open:
        return mPanel != nullptr;
    case Stage::Viewed:
        break;
    }
    return mPanel && mPanel->hasView();
}

JobPaper SessionModel::defaultPaper() const
{
    return mPrinter.sizes.isEmpty()
               ? JobPaper()
               : JobPaper{mPrinter.sizes.first().name, mPrinter.sizes.first().height};
}

JobPaper SessionModel::paperNamed(const QJsonValue &name) const
{
    return name.isNull()
               ? JobPaper()
               : JobPaper{name.toString(), mPrinter.heightOf(name.toString()).value_or(0.0)};
}

SessionModel::Answer SessionModel::open(const QJsonObject &request)
{
    if (!text(request, "ppd")) {
        return std::nullopt;
    }
    JobPaper paper = request.contains(QLatin1String("paper"))
                         ? paperNamed(request.value(QLatin1String("paper")))
                         : defaultPaper();
    paper.height = request.value(QLatin1String("paperHeight")).toDouble(paper.height);
    const std::optional<Ticket> ticket =
        request.contains(QLatin1String("settings")) ? mTicket : std::nullopt;
    const bool marksDefaults = request.value(QLatin1String("markDefaults")).toBool(true);
    mPanel =
        std::make_unique<PanelModel>(Job(mPrinter, ticket, paper, marksDefaults),
                                     isUSB(request.value(QLatin1String("deviceURI")).toString()));
    return QJsonObject{
        {QLatin1String("panels"), 1},
        {QLatin1String("name"), QLatin1String("OP_PANEL_NAME")},
        {QLatin1String("kind"), QLatin1String("jp.co.vendor.printer.cups.pde.OptionPDEKind")},
        {QLatin1String("isRV"), mPrinter.isRV()},
        {QLatin1String("usb"), mPanel->isOnUSB()}};
}

SessionModel::Answer SessionModel::close(const QJsonObject &)
{
    mPanel.reset();
    return QJsonObject();
}

SessionModel::Answer SessionModel::view(const QJsonObject &)
{
    mPanel->loadView();
    return QJsonObject{{QLatin1String("width"), mPanel->view().width()},
                       {QLatin1String("height"), mPanel->view().height()}};
}

SessionModel::Answer SessionModel::show(const QJsonObject &)
{
    mPanel->show();
    return QJsonObject();
}

SessionModel::Answer SessionModel::hide(const QJsonObject &)
{
    return member("answer", true);
}

SessionModel::Answer SessionModel::click(const QJsonObject &request)
{
    const auto control = text(request, "control");
    if (!control) {
        return std::nullopt;
    }
    const auto option = optionOfCheckBox(*control);
    return member("delivered", option && mPanel->click(*option));
}

SessionModel::Answer SessionModel::preset(const QJsonObject &request)
{
    const auto tag = integer(request, "tag");
    return tag ? Answer(member("delivered", mPanel->pick(*tag))) : std::nullopt;
}

SessionModel::Answer SessionModel::type(const QJsonObject &request)
{
    const auto typed = text(request, "text");
    return typed ? Answer(member("delivered", mPanel->type(*typed))) : std::nullopt;
}

SessionModel::Answer SessionModel::step(const QJsonObject &request)
{
    const auto by = integer(request, "by");
    return by == 1 || by == -1 ? Answer(member("delivered", mPanel->step(*by))) : std::nullopt;
}

SessionModel::Answer SessionModel::paper(const QJsonObject &request)
{
    const QJsonValue name = request.value(QLatin1String("name"));
    if (!name.isString() && !name.isNull()) {
        return std::nullopt;
    }
    JobPaper paper = paperNamed(name);
    paper.height = request.value(QLatin1String("height")).toDouble(paper.height);
    mPanel->changePaper(paper);
    return QJsonObject();
}

SessionModel::Answer SessionModel::choose(const QJsonObject &request)
{
    const auto key = text(request, "key");
    const auto choice = text(request, "choice");
    if (!key || !choice) {
        return std::nullopt;
    }
    if (*key == pageSize) {
        return mPrinter.hasSize(*choice) ? Answer(QJsonObject()) : std::nullopt;
    }
    if (!mPanel->job().mark(*key, *choice)) {
        return std::nullopt;
    }
    mPanel->takeBackChoice(*key, *choice);
    return QJsonObject();
}

SessionModel::Answer SessionModel::save(const QJsonObject &)
{
    mPanel->save();
    return member("answer", true);
}

SessionModel::Answer SessionModel::restore(const QJsonObject &)
{
    mPanel->restore();
    return member("answer", true);
}

SessionModel::Answer SessionModel::keys(const QJsonObject &)
{
    return member("keys", QJsonArray::fromStringList(mPanel->declareKeys()));
}

SessionModel::Answer SessionModel::print(const QJsonObject &)
{
    mPanel->print();
    return member("answer", true);
}

SessionModel::Answer SessionModel::summary(const QJsonObject &)
{
    return mPanel->summary();
}

SessionModel::Answer SessionModel::state(const QJsonObject &)
{
    return mPanel->state();
}

SessionModel::Answer SessionModel::screenshot(const QJsonObject &request)
{
    return text(request, "file") ? Answer(QJsonObject()) : std::nullopt;
}

} // namespace model
