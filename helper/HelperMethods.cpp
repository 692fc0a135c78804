// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/HelperMethods.h"

#include "contract/Names.h"
#include "contract/Validation.h"
#include "helper/Log.h"
#include "helper/PendingReply.h"
#include "helper/RequestLog.h"

#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <memory>
#include <utility>

namespace quillon {

namespace {

constexpr char refusedCalls[] = "refused calls";
constexpr std::size_t methodCount = 4;

/// As sd-bus wants them: one after the other, each with its zero.
std::string joined(
    std::initializer_list<const char *> inputs, std::initializer_list<const char *> outputs)
{
    std::string names;
    for (const auto &list : {inputs, outputs}) {
        for (const char *name : list) {
            names.append(name).push_back('\0');
        }
    }
    return names;
}

/// Whether the next argument is an array of exactly 32 bytes. No more of it is looked at than
/// decides, byte by byte: the library hands out whole arrays only of the machine's own byte order.
bool isAuthorizationSized(sd_bus_message &call)
{
    if (sd_bus_message_enter_container(&call, 'a', "y") <= 0) {
        return false;
    }
    std::size_t size = 0;
    std::uint8_t byte = 0;
    while (size <= contract::authorizationSize && sd_bus_message_read(&call, "y", &byte) > 0) {
        ++size;
    }
    return size == contract::authorizationSize;
}

/// No more of a text than it takes to see that it is too long.
std::string_view beginning(const char *text)
{
    constexpr std::size_t enough = 64;
    return {text, strnlen(text, enough)};
}

std::string senderOf(sd_bus_message &call)
{
    const char *sender = sd_bus_message_get_sender(&call);
    return sender == nullptr ? std::string{} : std::string{sender};
}

Refusal wrongSize()
{
    return {contract::error::invalidAuthorization, "The authorization is not 32 bytes long."};
}

} // namespace

HelperMethods::HelperMethods(
    sd_bus &bus, PrivilegedRequests &requests, RequestLog &log, Actions actions)
    : m_bus{bus}
    , m_requests{requests}
    , m_log{log}
    , m_actions{std::move(actions)}
    , m_filter{contract::helper::path}
{
}

HelperMethods::~HelperMethods()
{
    sd_bus_slot_unref(m_slot);
}

template <HelperMethods::Method method>
int HelperMethods::called(sd_bus_message *call, void *self, sd_bus_error *)
{
    return handleBusMessage([&] {
        auto *methods = static_cast<HelperMethods *>(self);
        methods->m_actions.called();
        return (methods->*method)(*call);
    });
}

template <HelperMethods::Method method>
void HelperMethods::add(const contract::Method &description)
{
    const auto &names =
        m_argumentNames.emplace_back(joined(description.inputNames, description.outputNames));
    const sd_bus_vtable entry =
        SD_BUS_METHOD_WITH_NAMES(description.name, description.inputSignature, names.c_str(),
            description.outputSignature, , called<method>, SD_BUS_VTABLE_UNPRIVILEGED);
    m_table.push_back(entry);
    m_filter.allow(contract::helper::interface, description);
}

bool HelperMethods::publish()
{
    const sd_bus_vtable start = SD_BUS_VTABLE_START(0);
    const sd_bus_vtable end = SD_BUS_VTABLE_END;
    // Its texts may not move while they are pointed to.
    m_argumentNames.reserve(methodCount);
    m_table.push_back(start);
    add<&HelperMethods::connectWithEndpoint>(contract::helper::connectWithEndpoint);
    add<&HelperMethods::version>(contract::helper::getVersion);
    add<&HelperMethods::changeAddress>(contract::helper::changeAddressOfDevice);
    add<&HelperMethods::uninstall>(contract::helper::uninstall);
    m_table.push_back(end);
    return m_filter.begin(m_bus) &&
           sd_bus_add_object_vtable(&m_bus, &m_slot, contract::helper::path,
               contract::helper::interface, m_table.data(), this) >= 0;
}

int HelperMethods::connectWithEndpoint(sd_bus_message &call)
{
    const char *name = nullptr;
    const int result = sd_bus_get_unique_name(&m_bus, &name);
    return result < 0 ? result : sd_bus_reply_method_return(&call, "s", name);
}

int HelperMethods::version(sd_bus_message &call)
{
    return sd_bus_reply_method_return(&call, "s", contract::helperVersion);
}

int HelperMethods::changeAddress(sd_bus_message &call)
{
    const char *deviceText = nullptr;
    const char *addressText = nullptr;
    int deviceIsWiFi = 0;
    if (const int result =
            sd_bus_message_read(&call, "ssb", &deviceText, &addressText, &deviceIsWiFi);
        result < 0) {
        return result;
    }
    if (!isAuthorizationSized(call)) {
        refuse(call, wrongSize());
        return 1;
    }
    const std::string device{beginning(deviceText)};
    if (!contract::isValidDeviceName(device)) {
        refuse(call, {contract::error::invalidDevice, "This is no name of an interface."});
        return 1;
    }
    const auto address = contract::unicastAddress(beginning(addressText));
    if (!address) {
        refuse(call,
            {contract::error::invalidAddress, "This is no address that an interface can have."});
        return 1;
    }
    if (!hasRoomFor(call)) {
        return 1;
    }
    const Authority::Details details{
        {"device", device}, {"address", contract::addressText(*address)}};
    // What the prompt names must be what is changed after it.
    const auto asked = std::make_shared<LinkState>();
    submit(call, {senderOf(call), contract::actionChange, details,
                     [this, device, asked] { return m_actions.addressChange.find(device, *asked); },
                     [this, asked, address, wifi = deviceIsWiFi != 0] {
                         return m_actions.addressChange.change(*asked, *address, wifi);
                     },
                     {}, device});
    return 1;
}

int HelperMethods::uninstall(sd_bus_message &call)
{
    if (!isAuthorizationSized(call)) {
        refuse(call, wrongSize());
        return 1;
    }
    if (hasRoomFor(call)) {
        submit(call, {senderOf(call), contract::actionUninstall, {}, [] { return Outcome{}; },
                         [this] { return m_actions.uninstall(); }, {}});
    }
    return 1;
}

bool HelperMethods::hasRoomFor(sd_bus_message &call)
{
    // Before anything is made of the call: who sends thousands shall cost little.
    const bool isRoom = m_requests.hasRoomFor(senderOf(call));
    if (!isRoom) {
        refuse(call,
            {contract::error::tooManyRequests, "Too many requests are waiting for a decision."});
    }
    return isRoom;
}

void HelperMethods::submit(sd_bus_message &call, PrivilegedRequest request)
{
    const auto reply = std::make_shared<PendingReply>(call);
    if (!reply->isValid()) {
        refuse(call, {contract::error::tooManyRequests, "There is no memory for the request."});
        return;
    }
    request.reply = [this, reply](const Outcome &outcome) {
        if (const int error = reply->send(outcome); error != 0) {
            m_log.limited("answers that could not be sent",
                std::string{"an answer could not be sent: "} + std::strerror(error));
        }
    };
    m_requests.submit(std::move(request));
}

void HelperMethods::refuse(sd_bus_message &call, const Refusal &refusal)
{
    const char *member = sd_bus_message_get_member(&call);
    m_log.limited(refusedCalls, senderOf(call) + ' ' + member + ": " + refusal.error.name);
    const sd_bus_error error{refusal.error.name, refusal.message.c_str(), 0};
    sd_bus_reply_method_error(&call, &error);
}

} // namespace quillon
