// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "integration/helper/BigEndianCaller.h"

#include "contract/Names.h"
#include "integration/helper/Sandbox.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace quillon::test {

namespace {

constexpr char busName[] = "org.freedesktop.DBus";
constexpr char busPath[] = "/org/freedesktop/DBus";

/// What the "Message Protocol" chapter of the D-Bus specification says, for what is needed here.
class Body
{
public:
    void align(std::size_t to) { bytes.resize((bytes.size() + to - 1) / to * to); }
    void number(std::size_t value)
    {
        align(4);
        for (int shift = 24; shift >= 0; shift -= 8) {
            bytes.push_back(static_cast<char>(value >> shift & 0xff));
        }
    }
    void text(const std::string &value)
    {
        number(value.size());
        bytes += value + '\0';
    }
    void signature(const std::string &value)
    {
        bytes.push_back(static_cast<char>(value.size()));
        bytes += value + '\0';
    }
    /// Of the message's header; `type` is "s", "o" or "g".
    void field(char code, const std::string &type, const std::string &value)
    {
        align(8);
        bytes.push_back(code);
        signature(type);
        type == "g" ? signature(value) : text(value);
    }

    std::string bytes;
};

struct Call
{
    const char *destination;
    const char *path;
    const char *interface;
    const char *member;
    const char *signature;
};

std::string message(const Call &call, unsigned number, const std::string &body)
{
    Body fields;
    fields.field(1, "o", call.path);
    fields.field(2, "s", call.interface);
    fields.field(3, "s", call.member);
    fields.field(6, "s", call.destination);
    fields.field(8, "g", call.signature);
    Body whole;
    whole.bytes = {'B', 1, 0, 1};
    whole.number(body.size());
    whole.number(number);
    whole.number(fields.bytes.size());
    whole.bytes += fields.bytes;
    whole.align(8);
    return whole.bytes + body;
}

} // namespace

BigEndianCaller::BigEndianCaller(const std::string &user)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strcpy(address.sun_path, "/run/dbus/system_bus_socket");
    // The bus asks the kernel who connected.
    const auto original = geteuid();
    EXPECT_EQ(seteuid(userId(user)), 0);
    m_socket = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    EXPECT_EQ(connect(m_socket, reinterpret_cast<sockaddr *>(&address), sizeof(address)), 0);
    send({"\0AUTH EXTERNAL\r\nDATA\r\n", 22});
    std::array<char, 256> answer{};
    std::string answers;
    while (answers.find("OK ") == std::string::npos && answers.size() < answer.size()) {
        const auto size = recv(m_socket, answer.data(), answer.size(), 0);
        if (size <= 0) {
            break;
        }
        answers.append(answer.data(), static_cast<std::size_t>(size));
    }
    EXPECT_EQ(seteuid(original), 0);
    send("BEGIN\r\n");
    send(message({busName, busPath, busName, "Hello", ""}, ++m_number, {}));
}

BigEndianCaller::~BigEndianCaller()
{
    close(m_socket);
}

void BigEndianCaller::change(
    const std::string &device, const std::string &address, std::size_t authorization)
{
    Body body;
    body.text(device);
    body.text(address);
    body.number(0);
    body.number(authorization);
    body.bytes += std::string(authorization, 'x');
    const auto &method = contract::helper::changeAddressOfDevice;
    send(message({contract::helperName, contract::helper::path, contract::helper::interface,
                     method.name, method.inputSignature},
        ++m_number, body.bytes));
}

void BigEndianCaller::send(const std::string &bytes) const
{
    EXPECT_EQ(::send(m_socket, bytes.data(), bytes.size(), MSG_NOSIGNAL),
        static_cast<ssize_t>(bytes.size()));
}

} // namespace quillon::test
