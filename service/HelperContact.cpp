// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/HelperContact.h"

#include "contract/Names.h"
#include "service/PollLoop.h"

#include <chrono>
#include <cstdio>
#include <utility>

namespace quillon::service {

namespace {

constexpr std::chrono::milliseconds startLimit{contract::helperStartLimit};

std::string answerText(sdbus::MethodReply &answer)
{
    try {
        std::string text;
        answer >> text;
        return text;
    } catch (const sdbus::Error &) {
        return {};
    }
}

} // namespace

HelperContact::HelperContact(PollLoop &loop)
    : m_loop(loop)
{
}

HelperContact::~HelperContact()
{
    if (m_bus) {
        m_loop.remove(*m_bus);
    }
}

void HelperContact::askEndpoint(TextReply reply)
{
    ask(
        contract::helper::connectWithEndpoint,
        [](const std::string &text, const std::string &sender) { return text == sender; },
        std::move(reply));
}

void HelperContact::askVersion(TextReply reply)
{
    ask(
        contract::helper::getVersion, [](const std::string &, const std::string &) { return true; },
        std::move(reply));
}

bool HelperContact::connect()
{
    if (m_bus && !m_lost) {
        return true;
    }
    m_helper.reset();
    m_bus.reset();
    m_lost = false;
    try {
        m_bus = sdbus::createSystemBusConnection();
        m_helper = sdbus::createProxy(
            *m_bus, bus::Name{contract::helperName}, bus::Path{contract::helper::path});
    } catch (const sdbus::Error &error) {
        std::fprintf(stderr, "No system bus: %s\n", error.what());
        m_helper.reset();
        m_bus.reset();
        return false;
    }
    m_loop.add(*m_bus, [this] { m_lost = true; });
    return true;
}

void HelperContact::ask(const contract::Method &method, Accept accept, TextReply reply)
{
    if (!connect()) {
        reply({});
        return;
    }
    try {
        const auto call = m_helper->createMethodCall(
            bus::Interface{contract::helper::interface}, bus::Member{method.name});
        bus::callLater(
            *m_helper, call,
            [accept = std::move(accept), reply](
                sdbus::MethodReply &answer, const sdbus::Error *error) {
                const std::string text = error ? std::string() : answerText(answer);
                const bool accepted = !text.empty() && accept(text, bus::senderOf(answer));
                reply(accepted ? text : std::string());
            },
            startLimit);
    } catch (const sdbus::Error &error) {
        std::fprintf(stderr, "The helper cannot be asked: %s\n", error.what());
        reply({});
    }
}

} // namespace quillon::service
