// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "integration/helper/DeafBus.h"

#include "contract/Names.h"

#include <gtest/gtest.h>

#include <array>
#include <string_view>
#include <sys/socket.h>
#include <unistd.h>

namespace quillon::test {

namespace {

constexpr std::chrono::milliseconds roundTime{5};
// More answers than both sockets hold.
constexpr int mostCalls = 20'000;
constexpr int callsAtOnce = 100;

} // namespace

DeafBus::DeafBus()
{
    std::array<int, 2> sockets{};
    EXPECT_EQ(
        socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, sockets.data()), 0);
    m_clientSocket = sockets[0];
    EXPECT_GE(sd_bus_new(&m_bus), 0);
    EXPECT_GE(sd_bus_set_fd(m_bus, sockets[1], sockets[1]), 0);
    sd_id128_t id{};
    sd_id128_randomize(&id);
    EXPECT_GE(sd_bus_set_server(m_bus, 1, id), 0);
    EXPECT_GE(sd_bus_set_anonymous(m_bus, 1), 0);
    EXPECT_GE(sd_bus_add_filter(m_bus, nullptr, received, this), 0);
    EXPECT_GE(sd_bus_start(m_bus), 0);
    m_thread = std::thread{[this] { serve(); }};
}

DeafBus::~DeafBus()
{
    m_isOver = true;
    m_thread.join();
    sd_bus_close_unref(m_bus);
}

SystemBus DeafBus::client()
{
    sd_bus *bus = nullptr;
    EXPECT_GE(sd_bus_new(&bus), 0);
    EXPECT_GE(sd_bus_set_fd(bus, m_clientSocket, m_clientSocket), 0);
    EXPECT_GE(sd_bus_set_bus_client(bus, 1), 0);
    EXPECT_GE(sd_bus_set_anonymous(bus, 1), 0);
    EXPECT_GE(sd_bus_start(bus), 0);
    limitOutput(*bus);
    return SystemBus{bus};
}

int DeafBus::received(sd_bus_message *message, void *self, sd_bus_error *)
{
    auto *bus = static_cast<DeafBus *>(self);
    const char *text = sd_bus_message_get_member(message);
    const std::string_view member = text == nullptr ? "" : text;
    if (member == "Hello") {
        sd_bus_reply_method_return(message, "s", ":1.1");
    } else if (member == "AddMatch") {
        sd_bus_reply_method_return(message, nullptr);
    } else if (member == "RequestName") {
        sd_bus_reply_method_return(message, "u", 1U);
        bus->m_isEntered = true;
    } else if (member == "ReleaseName") {
        bus->m_isLeft = true;
    }
    return 1;
}

void DeafBus::serve()
{
    while (!m_isOver) {
        if (m_readsNothing) {
            for (int i = 0; i < callsAtOnce && m_calls < mostCalls; ++i) {
                sendCall();
            }
            finishOutput(*m_bus, roundTime);
        } else if (sd_bus_process(m_bus, nullptr) == 0) {
            sd_bus_wait(m_bus, std::chrono::microseconds{roundTime}.count());
        }
    }
}

void DeafBus::sendCall()
{
    sd_bus_message *call = nullptr;
    if (sd_bus_message_new_method_call(m_bus, &call, ":1.1", contract::helper::path,
            contract::helper::interface, contract::helper::getVersion.name) >= 0 &&
        sd_bus_message_set_sender(call, ":1.2") >= 0) {
        // Who does not want the number wants no reply either.
        std::uint64_t number = 0;
        sd_bus_send(m_bus, call, &number);
        ++m_calls;
    }
    sd_bus_message_unref(call);
}

} // namespace quillon::test
