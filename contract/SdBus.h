// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "contract/Interfaces.h"

#include <sdbus-c++/sdbus-c++.h>

#include <chrono>
#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <utility>
#include <vector>

// sdbus-c++ 2 has this header; the library tells its version by no macro.
#if __has_include(<sdbus-c++/VTableItems.h>)
#define QUILLON_SDBUS 2
#else
#define QUILLON_SDBUS 1
#endif

/// What sdbus-c++ 1 and 2 spell differently, for those who speak D-Bus without Qt; the rest of the
/// library is used as it is. Functions throw sdbus::Error as those of the library do. Handlers are
/// called from processOne() or from the connection's own loop, in its thread.
namespace quillon::bus {

#if QUILLON_SDBUS >= 2
using Name = sdbus::BusName;
using Path = sdbus::ObjectPath;
using Interface = sdbus::InterfaceName;
using Member = sdbus::MemberName;
using ErrorName = sdbus::Error::Name;
#else
using Name = std::string;
using Path = std::string;
using Interface = std::string;
using Member = std::string;
using ErrorName = std::string;
#endif

struct OfferedMethod
{
    contract::Method description;
    /// Answers the call, at once or later. An sdbus::Error that it throws becomes the answer.
    sdbus::method_callback handler;
};

/// The answer to callLater(): a reply, or an error when the pointer is not null.
using ReplyHandler = std::function<void(sdbus::MethodReply &reply, const sdbus::Error *error)>;
using MessageHandler = std::function<void(sdbus::Message &message)>;

/// Offers all methods and signals of one interface on `object`; called once.
inline void publish(sdbus::IObject &object, const char *interface,
    const std::vector<OfferedMethod> &methods, const std::vector<contract::Signal> &signals = {})
{
    const auto texts = [](const std::initializer_list<const char *> &names) {
        return std::vector<std::string>{names.begin(), names.end()};
    };
#if QUILLON_SDBUS >= 2
    std::vector<sdbus::VTableItem> items;
    for (const auto &[method, handler] : methods) {
        items.emplace_back(sdbus::MethodVTableItem{sdbus::MethodName{method.name},
            sdbus::Signature{method.inputSignature}, texts(method.inputNames),
            sdbus::Signature{method.outputSignature}, texts(method.outputNames), handler, {}});
    }
    for (const contract::Signal &signal : signals) {
        items.emplace_back(sdbus::SignalVTableItem{sdbus::SignalName{signal.name},
            sdbus::Signature{signal.signature}, texts(signal.names), {}});
    }
    object.addVTable(sdbus::InterfaceName{interface}, std::move(items));
#else
    for (const auto &[method, handler] : methods) {
        object.registerMethod(interface, method.name, method.inputSignature,
            texts(method.inputNames), method.outputSignature, texts(method.outputNames), handler);
    }
    for (const contract::Signal &signal : signals) {
        object.registerSignal(interface, signal.name, signal.signature, texts(signal.names));
    }
    object.finishRegistration();
#endif
}

/// Sends `call` and returns. `handler` is called once, with an error after `limit` at the latest,
/// unless `proxy` goes away before.
inline void callLater(sdbus::IProxy &proxy, const sdbus::MethodCall &call, ReplyHandler handler,
    std::chrono::microseconds limit)
{
#if QUILLON_SDBUS >= 2
    proxy.callMethodAsync(
        call,
        [handler = std::move(handler)](
            sdbus::MethodReply reply, const std::optional<sdbus::Error> &error) {
            handler(reply, error ? &*error : nullptr);
        },
        limit);
#else
    proxy.callMethod(call, std::move(handler), limit);
#endif
}

/// Calls `handler` for each message that `match` (a match rule of the D-Bus specification) lets
/// through, until the slot goes away.
[[nodiscard]] inline sdbus::Slot listen(
    sdbus::IConnection &connection, const std::string &match, MessageHandler handler)
{
#if QUILLON_SDBUS >= 2
    return connection.addMatch(
        match, [handler = std::move(handler)](sdbus::Message message) { handler(message); },
        sdbus::return_slot);
#else
    return connection.addMatch(match, std::move(handler));
#endif
}

/// The unique name of whoever sent `message`, as the bus put it there, or the bus's own name. Empty
/// when no bus was involved.
inline std::string senderOf(const sdbus::Message &message)
{
#if QUILLON_SDBUS >= 2
    const char *const sender = message.getSender();
    return sender == nullptr ? std::string{} : std::string{sender};
#else
    return message.getSender();
#endif
}

/// Handles one message or time limit of a connection without a loop. False when there was none;
/// then the caller polls what getEventLoopPollData() tells, asked anew each time.
inline bool processOne(sdbus::IConnection &connection)
{
#if QUILLON_SDBUS >= 2
    return connection.processPendingEvent();
#else
    return connection.processPendingRequest();
#endif
}

} // namespace quillon::bus
