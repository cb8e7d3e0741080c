// SPDX-License-Identifier: Apache-2.0
#include "gtk/DialogFollower.h"

#include "gtk/FailureText.h"

namespace {
constexpr char dataName[] = "kvprint-dialog-follower";
/// How the keywords of the panel's own options begin: a printer that has one is known to have a
/// panel, whatever the service says.
constexpr char ownKeywords[] = "Kv";
/// How long the user waits for the job's options when the panel is late.
constexpr guint longestHoldMs = 2'000;

GVariant *request(const char *command)
{
    GVariantDict members;
    g_variant_dict_init(&members, nullptr);
    g_variant_dict_insert(&members, "cmd", "s", command);
    return g_variant_dict_end(&members);
}

/// Requests for a message, which takes them over.
GVariant *listOf(std::initializer_list<GVariant *> requests)
{
    return g_variant_new_array(G_VARIANT_TYPE_VARDICT, requests.begin(), requests.size());
}

/// Whether nothing is lost when the panel is told the later one of these two actions alone.
bool replaces(GVariant *later, GVariant *earlier)
{
    const char *command = nullptr;
    const char *before = nullptr;
    g_variant_lookup(later, "cmd", "&s", &command);
    g_variant_lookup(earlier, "cmd", "&s", &before);
    return g_strcmp0(command, before) == 0 &&
           (g_strcmp0(command, "type") == 0 || g_strcmp0(command, "paper") == 0);
}

// The requests behind the user's actions.
enum class Outlook : gsize {
    Options,
    Look,
    Count,
};
// Those that open a conversation.
enum class Opening : gsize {
    Open,
    Keys,
    View,
    Show,
    Options,
    Look,
    Count,
};
// Those before the job is printed.
enum class Accepting : gsize {
    Save,
    Print,
    Options,
    Count,
};

template <typename Place>
PanelAnswer answerAt(GVariant *answers, Place place)
{
    return PanelAnswer::ofRequest(answers, gsize(place));
}

/// Whether every one of these requests has been answered well.
template <typename Place>
bool areAllWell(GVariant *answers, Place count)
{
    return answers && g_variant_n_children(answers) == gsize(count) &&
           PanelAnswer::ofRequest(answers, gsize(count) - 1).flag("ok");
}

/// The user's language as the service takes it.
std::string language()
{
    const std::string name = g_get_language_names()[0];
    const std::string tag = name.substr(0, name.find_first_of(".@"));
    return tag == "C" || tag == "POSIX" ? "en" : tag;
}

/// Adds the paper of the dialog's page to a request: a PPD's name for it, else GTK's and its
/// height.
void addPaper(GVariantDict &members, GtkPrintUnixDialog *dialog, const char *name,
              const char *height)
{
    GtkPageSetup *page = gtk_print_unix_dialog_get_page_setup(dialog);
    GtkPaperSize *paper = page ? gtk_page_setup_get_paper_size(page) : nullptr;
    if (!paper) {
        return;
    }
    if (const char *ppdName = gtk_paper_size_get_ppd_name(paper)) {
        g_variant_dict_insert(&members, name, "s", ppdName);
    } else {
        g_variant_dict_insert(&members, name, "s", gtk_paper_size_get_name(paper));
        g_variant_dict_insert(&members, height, "d",
                              gtk_paper_size_get_height(paper, GTK_UNIT_POINTS));
    }
}
} // namespace

void DialogFollower::follow(GtkPrintUnixDialog *dialog)
{
    if (!g_object_get_data(G_OBJECT(dialog), dataName)) {
        const auto end = +[](gpointer follower) {
            delete static_cast<DialogFollower *>(follower);
        };
        g_object_set_data_full(G_OBJECT(dialog), dataName, new DialogFollower(dialog), end);
    }
}

DialogFollower::DialogFollower(GtkPrintUnixDialog *dialog)
    : mDialog(dialog)
    , mTab([this](GVariant *request) { act(request); })
{
    const auto connect = [this](const char *signal, auto *handler) {
        g_signal_connect(mDialog, signal, G_CALLBACK(handler), this);
    };
    connect(
        "response", +[](GtkDialog *dialog, int response, gpointer self) {
            if (static_cast<DialogFollower *>(self)->holds(response)) {
                g_signal_stop_emission_by_name(dialog, "response");
            }
        });
    connect(
        "notify::selected-printer", +[](GObject *, GParamSpec *, gpointer self) {
            static_cast<DialogFollower *>(self)->followPrinter();
        });
    connect(
        "notify::page-setup", +[](GObject *, GParamSpec *, gpointer self) {
            static_cast<DialogFollower *>(self)->followPaper();
        });
    connect(
        "map",
        +[](GtkWidget *, gpointer self) { static_cast<DialogFollower *>(self)->awaitSight(); });
    connect(
        "unmap",
        +[](GtkWidget *, gpointer self) { static_cast<DialogFollower *>(self)->forgetSight(); });
    connect(
        "destroy",
        +[](GtkWidget *, gpointer self) { static_cast<DialogFollower *>(self)->forgetDialog(); });
}

DialogFollower::~DialogFollower()
{
    forgetSight();
}

void DialogFollower::awaitSight()
{
    mTab.suspend();
    mPaintWatch = std::make_unique<PaintWatch>(GTK_WIDGET(mDialog), [this] { begin(); });
}

void DialogFollower::begin()
{
    mPaintWatch.reset();
    mIsSeen = true;
    followPrinter();
}

void DialogFollower::forgetSight()
{
    endTalk();
    mPaintWatch.reset();
    mIsSeen = false;
}

void DialogFollower::forgetDialog()
{
    forgetSight();
    mIsDestroyed = true;
    mHidden.clear();
}

void DialogFollower::endTalk()
{
    dropTalk();
    endHolding();
}

void DialogFollower::dropTalk()
{
    mTalk.reset();
    mIsOpen = false;
    mActions.clear();
    mUnanswered = 0;
}

void DialogFollower::followPrinter()
{
    if (!mIsSeen) {
        return;
    }
    endTalk();
    mHasOtherPaper = false;
    // GTK has made the controls of another printer.
    mHidden.clear();
    GtkPrinter *printer =
        mIsDestroyed ? nullptr : gtk_print_unix_dialog_get_selected_printer(mDialog);
    if (!printer || gtk_printer_is_virtual(printer)) {
        dropTab();
        return;
    }
    mTab.suspend();
    mTalk = std::make_unique<ServiceTalk>(
        openingRequests(printer),
        [this](ServiceTalk::Outcome outcome, GVariant *answers) { takeOpened(outcome, answers); });
}

GVariant *DialogFollower::openingRequests(GtkPrinter *printer) const
{
    GVariantDict open;
    g_variant_dict_init(&open, nullptr);
    g_variant_dict_insert(&open, "cmd", "s", "open");
    g_variant_dict_insert(&open, "printer", "s", gtk_printer_get_name(printer));
    g_variant_dict_insert(&open, "locale", "s", language().c_str());
    addPaper(open, mDialog, "paper", "paperHeight");

    GVariantDict choices;
    g_variant_dict_init(&choices, nullptr);
    for (const auto &[key, choice] : DialogOptions(GTK_WIDGET(mDialog)).choices()) {
        g_variant_dict_insert(&choices, key.c_str(), "s", choice.c_str());
    }
    GVariantDict show;
    g_variant_dict_init(&show, nullptr);
    g_variant_dict_insert(&show, "cmd", "s", "show");
    g_variant_dict_insert_value(&show, "options", g_variant_dict_end(&choices));

    return listOf({g_variant_dict_end(&open), request("keys"), request("view"),
                   g_variant_dict_end(&show), request("options"), lookRequest()});
}

GVariant *DialogFollower::lookRequest() const
{
    GVariantDict look;
    g_variant_dict_init(&look, nullptr);
    g_variant_dict_insert(&look, "cmd", "s", "look");
    g_variant_dict_insert(&look, "scale", "x",
                          gint64(gtk_widget_get_scale_factor(GTK_WIDGET(mDialog))));
    return g_variant_dict_end(&look);
}

void DialogFollower::takeOpened(ServiceTalk::Outcome outcome, GVariant *answers)
{
    const PanelAnswer opened = answerAt(answers, Opening::Open);
    const bool hasNoPanel = opened.flag("ok") && opened.number("panels") == 0;
    if (outcome == ServiceTalk::Outcome::SwitchedOff || hasNoPanel) {
        dropTab();
    } else if (!areAllWell(answers, Opening::Count)) {
        fail();
    } else {
        takePanel(answerAt(answers, Opening::Options).object("options"),
                  answerAt(answers, Opening::Look));
    }
}

void DialogFollower::takePanel(const PanelAnswer &options, const PanelAnswer &look)
{
    const DialogOptions known(GTK_WIDGET(mDialog));
    std::set<std::string> keys;
    options.forEachText([&keys, &known](const std::string &key, const std::string &) {
        if (known.has(key)) {
            keys.insert(key);
        }
    });
    if (keys.empty()) {
        dropTab();
        return;
    }
    if (look.count("boxes") == 0) {
        fail();
        return;
    }
    mIsOpen = true;
    mHidden = known.hide(keys);
    applyOptions(options);
    mTab.show(look);
    addTab(look.text("title"));
    if (mHasOtherPaper) {
        followPaper();
    }
    if (mHeld != 0) {
        askPermission();
    }
}

void DialogFollower::act(GVariant *action)
{
    VariantRef owned(g_variant_ref_sink(action));
    if (!mIsOpen) {
        return;
    }
    if (!mActions.empty() && replaces(action, mActions.back().get())) {
        mActions.pop_back();
    }
    mActions.push_back(std::move(owned));
    // A user who holds an arrow down is faster than the service.
    if (mUnanswered == 0) {
        sendActions();
    }
}

void DialogFollower::sendActions()
{
    if (mActions.empty()) {
        return;
    }
    for (const VariantRef &action : mActions) {
        mTalk->ask(listOf({action.get()}),
                   [this](ServiceTalk::Outcome, GVariant *answers) { takeAction(answers); });
    }
    mActions.clear();
    ++mUnanswered;
    mTalk->ask(listOf({request("options"), lookRequest()}),
               [this](ServiceTalk::Outcome, GVariant *answers) { takeOutlook(answers); });
}

void DialogFollower::takeAction(GVariant *answers)
{
    if (!answers) {
        fail();
        return;
    }
    // The panel refuses what has become grey since the user saw it, and goes on.
    for (const std::string &text : PanelAnswer::ofRequest(answers, 0).alerts()) {
        alert(text);
    }
}

void DialogFollower::takeOutlook(GVariant *answers)
{
    --mUnanswered;
    if (!areAllWell(answers, Outlook::Count)) {
        fail();
        return;
    }
    applyOptions(answerAt(answers, Outlook::Options).object("options"));
    sendActions();
    // What has been done since is not in it yet.
    if (mUnanswered == 0) {
        mTab.show(answerAt(answers, Outlook::Look));
    }
}

void DialogFollower::followPaper()
{
    mHasOtherPaper = true;
    GVariantDict paper;
    g_variant_dict_init(&paper, nullptr);
    g_variant_dict_insert(&paper, "cmd", "s", "paper");
    addPaper(paper, mDialog, "name", "height");
    act(g_variant_dict_end(&paper));
}

void DialogFollower::applyOptions(const PanelAnswer &options) const
{
    const DialogOptions known(GTK_WIDGET(mDialog));
    options.forEachText(
        [&known](const std::string &key, const std::string &choice) { known.choose(key, choice); });
}

void DialogFollower::alert(const std::string &text) const
{
    GtkWidget *alert = gtk_message_dialog_new(
        GTK_WINDOW(mDialog), GtkDialogFlags(GTK_DIALOG_MODAL | GTK_DIALOG_DESTROY_WITH_PARENT),
        GTK_MESSAGE_WARNING, GTK_BUTTONS_OK, "%s", text.c_str());
    const auto close = +[](GtkWidget *alert) {
        GtkVersions::destroyWindow(alert);
    };
    g_signal_connect(alert, "response", G_CALLBACK(close), nullptr);
    gtk_widget_set_visible(alert, TRUE);
}

bool DialogFollower::holds(int response)
{
    if (response != GTK_RESPONSE_OK || mIsReleasing) {
        return false;
    }
    if (mPaintWatch) {
        begin();
    }
    if (!mTalk) {
        return false;
    }
    if (mHeld == 0) {
        mHeld = response;
        const auto lose = +[](gpointer self) {
            auto *follower = static_cast<DialogFollower *>(self);
            follower->mPatience = 0;
            follower->fail();
            return gboolean(G_SOURCE_REMOVE);
        };
        mPatience = g_timeout_add(longestHoldMs, lose, this);
        if (mIsOpen) {
            askPermission();
        }
    }
    return true;
}

void DialogFollower::askPermission()
{
    sendActions();
    mTalk->ask(listOf({request("save"), request("print"), request("options")}),
               [this](ServiceTalk::Outcome, GVariant *answers) { takePermission(answers); });
}

void DialogFollower::takePermission(GVariant *answers)
{
    if (!areAllWell(answers, Accepting::Count)) {
        fail();
        return;
    }
    if (!answerAt(answers, Accepting::Print).flag("answer")) {
        endHolding();
        gtk_widget_error_bell(GTK_WIDGET(mDialog));
        return;
    }
    applyOptions(answerAt(answers, Accepting::Options).object("options"));
    release();
}

void DialogFollower::release()
{
    const int response = mHeld;
    endHolding();
    if (response == 0) {
        return;
    }
    // The application may give the dialog up, and this with it.
    const auto dialog = refTo(mDialog);
    mIsReleasing = true;
    gtk_dialog_response(GTK_DIALOG(mDialog), response);
    mIsReleasing = false;
}

void DialogFollower::endHolding()
{
    mHeld = 0;
    if (mPatience != 0) {
        g_source_remove(mPatience);
        mPatience = 0;
    }
}

void DialogFollower::addTab(const std::string &title)
{
    GtkWidget *notebook = gtk_widget_get_ancestor(mTab.widget(), GTK_TYPE_NOTEBOOK);
    if (notebook) {
        gtk_notebook_set_tab_label_text(GTK_NOTEBOOK(notebook), mTab.widget(), title.c_str());
    } else {
        GtkWidget *label = gtk_label_new(title.c_str());
        gtk_print_unix_dialog_add_custom_tab(mDialog, mTab.widget(), label);
    }
}

void DialogFollower::dropTab()
{
    GtkWidget *widget = mTab.widget();
    if (GtkWidget *notebook = gtk_widget_get_ancestor(widget, GTK_TYPE_NOTEBOOK)) {
        gtk_notebook_remove_page(GTK_NOTEBOOK(notebook),
                                 gtk_notebook_page_num(GTK_NOTEBOOK(notebook), widget));
    }
    goOnWithoutPanel();
}

void DialogFollower::fail()
{
    // GTK's own controls of the options are better than none.
    for (const GtkRef<GtkWidget> &widget : mHidden) {
        gtk_widget_set_visible(widget.get(), TRUE);
    }
    mHidden.clear();
    if (!mIsOpen && !DialogOptions(GTK_WIDGET(mDialog)).hasAny(ownKeywords)) {
        dropTab();
        return;
    }
    g_printerr("kvprint: the panel of %s cannot be shown: the panel service does not answer\n",
               gtk_printer_get_name(gtk_print_unix_dialog_get_selected_printer(mDialog)));
    mTab.showFailure();
    addTab(failureTitle());
    goOnWithoutPanel();
}

void DialogFollower::goOnWithoutPanel()
{
    dropTalk();
    release();
}
