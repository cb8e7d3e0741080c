// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <gio/gio.h>

#include <functional>
#include <memory>

/**
 * A conversation with the panel service, on a connection to the session bus of its own: when that
 * is closed, the service ends the conversation.
 *
 * Nothing waits. What is not answered in time has failed.
 */
class ServiceTalk
{
public:
    enum class Outcome {
        Answered,
        /// The user wants no panels in this program.
        SwitchedOff,
        /// There is no service, or it has not answered as it should.
        Failed,
    };
    /// @param answers one for each request up to the first faulty one, of type "aa{sv}"; borrowed,
    ///        and null unless the outcome is Answered.
    using Answered = std::function<void(Outcome outcome, GVariant *answers)>;

    /// Opens the conversation with its first requests ("aa{sv}", floating).
    ServiceTalk(GVariant *requests, Answered opened);
    /// Ends the conversation; nothing is answered any more.
    ~ServiceTalk();
    ServiceTalk(const ServiceTalk &) = delete;
    ServiceTalk &operator=(const ServiceTalk &) = delete;

    /// Makes requests ("aa{sv}", floating). To be used after the conversation has been opened.
    /// The function may end the conversation.
    void ask(GVariant *requests, Answered answered);

private:
    struct State;
    struct Call;

    static void call(Call *call, const char *method, GVariant *parameters, const char *replyType,
                     int limitMs);

    std::shared_ptr<State> mState;
};
