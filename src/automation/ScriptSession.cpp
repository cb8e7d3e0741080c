// SPDX-License-Identifier: Apache-2.0
#include "automation/ScriptSession.h"

#include "automation/ControlHand.h"
#include "automation/PanelLook.h"
#include "automation/Picture.h"
#include "automation/ScriptRequest.h"
#include "cups/PPDPaper.h"
#include "cups/PrintQueue.h"
#include "plugin/PDEPanelAutomation.h"
#include "printcore/CheckedFile.h"
#include "printcore/PropertyList.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

namespace {
// The controls of the cut-option panel that a request need not name.
const QString presetMenu = QStringLiteral("mOptionPopUpButton");
const QString countField = QStringLiteral("mCutEveryTxBx");
const QString countStepper = QStringLiteral("mCutEveryStpr");

/// The window's size in pixels, wide and tall enough for any panel.
constexpr QSize windowSize(1200, 1200);

QJsonObject member(const char *name, const QJsonValue &value)
{
    return {{QLatin1String(name), value}};
}

QJsonObject with(QJsonObject object, const char *name, const QJsonValue &value)
{
    object.insert(QLatin1String(name), value);
    return object;
}

/// What "open" tells of a panel; null for what there is not, or the panel does not tell.
QJsonObject descriptionOf(PDEPanel *panel)
{
    PDEPanelAutomation *automation = panel ? panel->automation() : nullptr;
    const QJsonObject flags =
        automation ? automation->state().value(QLatin1String("flags")).toObject() : QJsonObject();
    const bool isOnUSB = flags.value(QLatin1String("usb_dec")).toInt() == 1;
    return {
        {QStringLiteral("name"), panel ? QJsonValue(panel->panelName()) : QJsonValue()},
        {QStringLiteral("kind"), panel ? QJsonValue(panel->panelKind()) : QJsonValue()},
        {QStringLiteral("isRV"), automation ? QJsonValue(automation->isRVPrinter()) : QJsonValue()},
        {QStringLiteral("usb"), automation ? QJsonValue(isOnUSB) : QJsonValue()},
    };
}

/// A paper that a request names, else @p otherwise.
Paper paperOf(ScriptRequest &request, const char *nameMember, const char *heightMember,
              const PPDFile &ppd, const Paper &otherwise)
{
    Paper paper = otherwise;
    if (request.has(nameMember)) {
        const QString name = request.optionalName(nameMember, true);
        paper = name.isNull() ? Paper(name, 0.0) : paperNamed(ppd, name);
    }
    return Paper(paper.ppdPaperName(),
                 request.optionalNumber(heightMember).value_or(paper.height()));
}

/// The control that a request names, else @p otherwise.
QString controlOf(ScriptRequest &request, const QString &otherwise)
{
    const QString name = request.optionalName("control");
    return name.isNull() ? otherwise : name;
}

/// A null text as JSON's null.
QJsonValue orNull(const QString &text)
{
    return text.isNull() ? QJsonValue() : QJsonValue(text);
}

PrintSettings settingsOf(ScriptRequest &request)
{
    const QString path = request.optionalName("settings");
    if (path.isNull()) {
        return {};
    }
    CheckedFile file = CheckedFile::ofAnybody(path);
    const QByteArray bytes = file.read(PropertyList::kGreatestSize);
    QString error = file.fault();
    const auto settings =
        error.isNull() ? PrintSettings::fromData(bytes, &error) : std::optional<PrintSettings>();
    if (!settings) {
        request.refuse(QStringLiteral("%1: %2").arg(path, error));
    }
    return settings.value_or(PrintSettings());
}
} // namespace

const ScriptSession::Command ScriptSession::commands[] = {
    {"open",
     Stage::Closed,
     {"ppd", "printer", "paper", "paperHeight", "settings", "deviceURI", "markDefaults", "locale",
      "bundle"},
     &ScriptSession::open},
    {"close", Stage::Open, {}, &ScriptSession::close},
    {"view", Stage::Open, {}, &ScriptSession::view},
    {"show", Stage::Open, {"options"}, &ScriptSession::show},
    {"hide", Stage::Open, {}, &ScriptSession::hide},
    {"click", Stage::Viewed, {"control"}, &ScriptSession::click},
    {"preset", Stage::Viewed, {"tag", "control"}, &ScriptSession::preset},
    {"type", Stage::Viewed, {"text", "control"}, &ScriptSession::type},
    {"step", Stage::Viewed, {"by", "control"}, &ScriptSession::step},
    {"paper", Stage::Open, {"name", "height"}, &ScriptSession::paper},
    {"choose", Stage::Open, {"key", "choice"}, &ScriptSession::choose},
    {"save", Stage::Open, {}, &ScriptSession::save},
    {"restore", Stage::Open, {}, &ScriptSession::restore},
    {"keys", Stage::Open, {}, &ScriptSession::keys},
    {"options", Stage::Open, {}, &ScriptSession::options},
    {"print", Stage::Open, {}, &ScriptSession::print},
    {"submit",
     Stage::Open,
     {"files", "data", "title", "copies", "options"},
     &ScriptSession::submit},
    {"jobs", Stage::Any, {"job"}, &ScriptSession::jobs},
    {"cancel", Stage::Any, {"job"}, &ScriptSession::cancel},
    {"summary", Stage::Open, {}, &ScriptSession::summary},
    {"state", Stage::Open, {}, &ScriptSession::state},
    {"look", Stage::Viewed, {"scale"}, &ScriptSession::look},
    {"screenshot", Stage::Viewed, {"file"}, &ScriptSession::screenshot},
};

ScriptSession::ScriptSession(Setup setup)
    : mSetup(std::move(setup))
    , mJobs(mSetup.schedulerLimit)
{
    mWindow.resize(windowSize);
}

ScriptSession::~ScriptSession() = default;

QByteArray ScriptSession::answer(const QByteArray &line)
{
    ScriptRequest request(line);
    QJsonObject answer = request.isFaulty() ? QJsonObject() : run(request);
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    if (request.isFaulty()) {
        mHasFailed = true;
        answer = member("error", request.fault());
    }
    answer.insert(QStringLiteral("ok"), !request.isFaulty());
    answer.insert(QStringLiteral("events"), mEvents.take());
    return QJsonDocument(answer).toJson(QJsonDocument::Compact);
}

QJsonObject ScriptSession::run(ScriptRequest &request)
{
    for (const Command &command : commands) {
        if (request.command() != QLatin1String(command.name)) {
            continue;
        }
        if (const QString fault = faultOfStage(command.stage); !fault.isNull()) {
            request.refuse(
                QStringLiteral("\"%1\" is out of place: %2").arg(request.command(), fault));
        }
        request.allow(command.members);
        return request.isFaulty() ? QJsonObject() : (this->*command.run)(request);
    }
    request.refuse(QStringLiteral("there is no command \"%1\"").arg(request.command()));
    return {};
}

QString ScriptSession::faultOfStage(Stage stage) const
{
    switch (stage) {
    case Stage::Any:
        return {};
    case Stage::Closed:
        return mConversation ? QStringLiteral("a panel is open") : QString();
    case Stage::Open:
        return mConversation ? QString() : QStringLiteral("no panel is open");
    case Stage::Viewed:
        break;
    }
    return mConversation && mConversation->view()
               ? QString()
               : QStringLiteral("no panel's view has been asked for");
}

std::optional<PanelTarget> ScriptSession::targetOf(ScriptRequest &request) const
{
    QString ppd = request.optionalName("ppd");
    QString printer = request.optionalName("printer");
    const auto marks =
        request.flag("markDefaults", true) ? PPDFile::Marks::Defaults : PPDFile::Marks::None;
    if (ppd.isNull() && printer.isNull()) {
        ppd = mSetup.ppd;
        printer = mSetup.printer;
    }
    if (ppd.isNull() == printer.isNull()) {
        request.refuse(QStringLiteral("\"open\" needs either \"ppd\" or \"printer\""));
    }
    const QString uri = request.optionalName("deviceURI");
    PrintSettings settings = settingsOf(request);
    if (request.isFaulty()) {
        return std::nullopt;
    }
    QString error;
    SchedulerConnection scheduler(mSetup.schedulerLimit);
    std::optional<PanelTarget> target;
    if (printer.isNull()) {
        target = PanelTarget::ofPPD(ppd, marks, &error);
    } else if (!PrintQueue::choose(scheduler, printer, &error).isNull()) {
        target = PanelTarget::ofQueue(scheduler, printer, marks, &error);
    }
    if (!target) {
        request.refuse(error.isNull() ? QStringLiteral("the printer %1 has no PPD").arg(printer)
                                      : error);
        return std::nullopt;
    }
    target->settings = std::move(settings);
    target->paper = paperOf(request, "paper", "paperHeight", *target->ppd, target->paper);
    if (!uri.isNull()) {
        target->printer = Printer(target->printer.name(), uri);
    }
    return target;
}

void ScriptSession::prepareBundles(ScriptRequest &request)
{
    const QString path = request.optionalName("bundle");
    const QString locale = request.optionalName("locale");
    const QJsonArray wanted{orNull(path), orNull(locale)};
    if (!request.isFaulty() && wanted != mWantedBundles) {
        mBundles = loadBundles(request, path, locale);
        mWantedBundles = request.isFaulty() ? QJsonArray() : wanted;
    }
}

PanelBundles ScriptSession::loadBundles(ScriptRequest &request, const QString &path,
                                        const QString &locale)
{
    QStringList problems;
    ProblemReporter reporter([this, &problems](const QString &problem) {
        problems.append(problem);
        mReporter.report(problem);
    });
    PanelBundles bundles;
    const QFileInfo named(QDir::cleanPath(QDir(path).absolutePath()));
    if (path.isNull()) {
        bundles = PanelBundles::load(mSetup.bundleFolder, reporter);
    } else if (auto bundle = PanelBundle::load(named.path(), named.fileName(), reporter)) {
        bundles.add(std::move(bundle));
    }
    if (bundles.empty()) {
        request.refuse(problems.join(QStringLiteral("; ")));
    }
    if (!locale.isNull()) {
        const QStringList languages =
            locale == QLatin1String("none") ? QStringList() : QStringList(locale);
        for (const auto &bundle : bundles) {
            bundle->setLanguages(languages);
        }
    }
    return bundles;
}

QJsonObject ScriptSession::open(ScriptRequest &request)
{
    auto target = targetOf(request);
    if (target) {
        prepareBundles(request);
    }
    if (!target || request.isFaulty()) {
        return {};
    }
    mReporter.report(target->use(mBundles.maps()));
    target->ppd->mark(target->take(target->savedOptions));
    mConversation =
        std::make_unique<PanelConversation>(std::move(*target), mBundles, &mWindow, mEvents);
    const QJsonObject answer = descriptionOf(mConversation->panel());
    const int count = mConversation->panelCount();
    if (count == 0) {
        mConversation.reset();
    }
    return with(answer, "panels", count);
}

QJsonObject ScriptSession::close(ScriptRequest &)
{
    mConversation.reset();
    return {};
}

QJsonObject ScriptSession::view(ScriptRequest &request)
{
    const QWidget *view = mConversation->makeView();
    if (!view) {
        request.refuse(QStringLiteral("the panel could not make its view"));
        return {};
    }
    PDEPanelAutomation *automation = panel().automation();
    return automation ? automation->state().value(QLatin1String("view")).toObject()
                      : with(member("width", view->width()), "height", view->height());
}

QJsonObject ScriptSession::show(ScriptRequest &request)
{
    const bool isToStart = request.has("options");
    const JobOptions options = request.optionalChoices("options");
    if (request.isFaulty()) {
        return {};
    }
    if (!isToStart) {
        panel().willShow();
        return {};
    }
    return member("refused", QJsonArray::fromStringList(mConversation->showFrom(options)));
}

QJsonObject ScriptSession::hide(ScriptRequest &)
{
    return member("answer", panel().shouldHide());
}

QJsonObject ScriptSession::click(ScriptRequest &request)
{
    const QString control = request.name("control");
    if (request.isFaulty()) {
        return {};
    }
    return member("delivered", ControlHand(mConversation->view()).click(control));
}

QJsonObject ScriptSession::preset(ScriptRequest &request)
{
    const int tag = request.integer("tag");
    const QString menu = controlOf(request, presetMenu);
    if (request.isFaulty()) {
        return {};
    }
    return member("delivered", ControlHand(mConversation->view()).pick(menu, tag));
}

QJsonObject ScriptSession::type(ScriptRequest &request)
{
    const QString text = request.text("text");
    const QString field = controlOf(request, countField);
    if (request.isFaulty()) {
        return {};
    }
    return member("delivered", ControlHand(mConversation->view()).type(field, text));
}

QJsonObject ScriptSession::step(ScriptRequest &request)
{
    const int by = request.integer("by");
    const QString stepper = controlOf(request, countStepper);
    if (by != 1 && by != -1) {
        request.refuse(QStringLiteral("\"by\" has to be 1 or -1"));
    }
    if (request.isFaulty()) {
        return {};
    }
    return member("delivered", ControlHand(mConversation->view()).step(stepper, by == 1));
}

QJsonObject ScriptSession::paper(ScriptRequest &request)
{
    if (!request.has("name")) {
        request.refuse(QStringLiteral("\"name\" has to be a text or null"));
    }
    const Paper paper =
        paperOf(request, "name", "height", mConversation->ppd(), Paper(QString(), 0.0));
    if (!request.isFaulty()) {
        mConversation->changePaper(paper);
    }
    return {};
}

QJsonObject ScriptSession::choose(ScriptRequest &request)
{
    const QString key = request.name("key");
    const QString choice = request.name("choice");
    if (!request.isFaulty() && !mConversation->choose(key, choice)) {
        request.refuse(QStringLiteral("the printer's PPD has no choice %1=%2").arg(key, choice));
    }
    return {};
}

QJsonObject ScriptSession::save(ScriptRequest &)
{
    QString error;
    const bool isSaved = panel().saveValuesAndReturnError(&error);
    mReporter.report(error);
    return member("answer", isSaved);
}

QJsonObject ScriptSession::restore(ScriptRequest &)
{
    QString error;
    const bool isRestored = panel().restoreValuesAndReturnError(&error);
    mReporter.report(error);
    return member("answer", isRestored);
}

QJsonObject ScriptSession::keys(ScriptRequest &)
{
    const auto keys = panel().supportedPPDOptionKeys();
    return member("keys", keys ? QJsonValue(QJsonArray::fromStringList(*keys)) : QJsonValue());
}

QJsonObject ScriptSession::options(ScriptRequest &)
{
    const JobOptions options = mConversation->jobOptions();
    QJsonObject choices;
    for (const auto &[key, choice] : options.pairs()) {
        choices.insert(key, choice);
    }
    return member("options", choices);
}

QJsonObject ScriptSession::print(ScriptRequest &)
{
    return member("answer", panel().shouldPrint());
}

QJsonObject ScriptSession::submit(ScriptRequest &request)
{
    return mJobs.submit(request, *mConversation);
}

QJsonObject ScriptSession::jobs(ScriptRequest &request)
{
    return mJobs.jobs(request);
}

QJsonObject ScriptSession::cancel(ScriptRequest &request)
{
    return mJobs.cancel(request);
}

QJsonObject ScriptSession::summary(ScriptRequest &)
{
    QVariantMap lines = panel().summaryInfo().value_or(QVariantMap());
    const QStringList order = lines.take(kSummaryDisplayOrder).toStringList();
    return {{QStringLiteral("order"), QJsonArray::fromStringList(order)},
            {QStringLiteral("lines"), QJsonObject::fromVariantMap(lines)}};
}

QJsonObject ScriptSession::state(ScriptRequest &request)
{
    PDEPanelAutomation *automation = automationOr(request);
    return automation ? automation->state() : QJsonObject();
}

QJsonObject ScriptSession::look(ScriptRequest &request)
{
    constexpr double largestScale = 4.0;
    const double scale = request.optionalNumber("scale").value_or(1.0);
    if (scale < 1.0 || scale > largestScale) {
        request.refuse(QStringLiteral("\"scale\" has to be from 1 to 4"));
    }
    if (!automationOr(request) || request.isFaulty()) {
        return {};
    }
    return PanelLook(panel(), *mConversation->view(), scale).toJson();
}

PDEPanelAutomation *ScriptSession::automationOr(ScriptRequest &request) const
{
    PDEPanelAutomation *automation = panel().automation();
    if (!automation) {
        request.refuse(QStringLiteral("the panel tells nothing of its state"));
    }
    return automation;
}

QJsonObject ScriptSession::screenshot(ScriptRequest &request)
{
    const QString file = request.name("file");
    if (!request.isFaulty()) {
        request.refuse(writePictureOf(*mConversation->view(), file));
    }
    return {};
}
