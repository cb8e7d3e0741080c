// SPDX-License-Identifier: Apache-2.0
#include "gtk/ServiceTalk.h"

#include "gtk/GtkRef.h"
#include "service/ServiceName.h"

#include <string>

namespace {
/// How long the service may take to start, to ask the print scheduler and to show a panel.
constexpr int openLimitMs = 10'000;
/// How long it may take for anything else.
constexpr int askLimitMs = 4'000;

/// The session bus, found without starting one; empty when there is none.
std::string sessionBusAddress()
{
    if (const char *address = g_getenv("DBUS_SESSION_BUS_ADDRESS")) {
        return address;
    }
    const std::string socket = std::string(g_get_user_runtime_dir()) + "/bus";
    return g_file_test(socket.c_str(), G_FILE_TEST_EXISTS) ? "unix:path=" + socket : std::string();
}
} // namespace

/// What outlives the conversation as long as something is under way.
struct ServiceTalk::State
{
    ~State()
    {
        if (bus) {
            g_dbus_connection_close(bus.get(), nullptr, nullptr, nullptr);
        }
    }

    GtkRef<GDBusConnection> bus;
    GtkRef<GCancellable> cancellable{g_cancellable_new()};
    guint32 number = 0;
};

/// A message that has been sent and is to be answered.
struct ServiceTalk::Call
{
    std::shared_ptr<State> state;
    Answered answered;
    /// For the message that opens the conversation.
    VariantRef requests;

    void fail() { tell(Outcome::Failed, nullptr); }
    void tell(Outcome outcome, GVariant *answers) const
    {
        if (!g_cancellable_is_cancelled(state->cancellable.get())) {
            answered(outcome, answers);
        }
    }
};

ServiceTalk::ServiceTalk(GVariant *requests, Answered opened)
    : mState(std::make_shared<State>())
{
    auto *open = new Call{mState, std::move(opened), VariantRef(g_variant_ref_sink(requests))};
    const auto connected = [](GObject *, GAsyncResult *result, gpointer data) {
        std::unique_ptr<Call> open(static_cast<Call *>(data));
        open->state->bus.reset(g_dbus_connection_new_for_address_finish(result, nullptr));
        if (!open->state->bus) {
            open->fail();
            return;
        }
        g_dbus_connection_set_exit_on_close(open->state->bus.get(), FALSE);
        GVariant *parameters = g_variant_new("(@aa{sv})", open->requests.get());
        call(open.release(), "Open", parameters, "(uaa{sv})", openLimitMs);
    };
    g_dbus_connection_new_for_address(
        sessionBusAddress().c_str(),
        GDBusConnectionFlags(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                             G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION),
        nullptr, mState->cancellable.get(), connected, open);
}

ServiceTalk::~ServiceTalk()
{
    g_cancellable_cancel(mState->cancellable.get());
}

void ServiceTalk::ask(GVariant *requests, Answered answered)
{
    GVariant *parameters = g_variant_new("(u@aa{sv})", mState->number, requests);
    call(new Call{mState, std::move(answered), nullptr}, "Ask", parameters, "(aa{sv})", askLimitMs);
}

void ServiceTalk::call(Call *call, const char *method, GVariant *parameters, const char *replyType,
                       int limitMs)
{
    const auto replied = [](GObject *bus, GAsyncResult *result, gpointer data) {
        const std::unique_ptr<Call> call(static_cast<Call *>(data));
        GError *error = nullptr;
        const VariantRef reply(
            g_dbus_connection_call_finish(G_DBUS_CONNECTION(bus), result, &error));
        if (!reply) {
            g_autofree char *name = g_dbus_error_get_remote_error(error);
            g_clear_error(&error);
            call->tell(g_strcmp0(name, ServiceName::switchedOff) == 0 ? Outcome::SwitchedOff
                                                                      : Outcome::Failed,
                       nullptr);
            return;
        }
        const gsize last = g_variant_n_children(reply.get()) - 1;
        if (last == 1) {
            g_variant_get_child(reply.get(), 0, "u", &call->state->number);
        }
        const VariantRef answers(g_variant_get_child_value(reply.get(), last));
        call->tell(Outcome::Answered, answers.get());
    };
    g_dbus_connection_call(call->state->bus.get(), ServiceName::bus, ServiceName::path,
                           ServiceName::interface, method, parameters, G_VARIANT_TYPE(replyType),
                           G_DBUS_CALL_FLAGS_NONE, limitMs, call->state->cancellable.get(), replied,
                           call);
}
