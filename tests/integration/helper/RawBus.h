// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <systemd/sd-bus.h>
#include <vector>

namespace quillon::test {

/// A connection to the system bus that sends what no client library would: somebody who means ill.
class RawBus
{
public:
    /// Adds the arguments to a message.
    using Fill = std::function<void(sd_bus_message *message)>;

    explicit RawBus(const std::string &user);
    ~RawBus();
    RawBus(const RawBus &) = delete;
    RawBus &operator=(const RawBus &) = delete;

    std::string uniqueName() const;
    sd_bus *get() const { return m_bus; }

    /// A signal straight to `destination`, as the bus would send it.
    void signalAsTheBus(const std::string &destination, const char *member, const Fill &fill);
    /// A signal, method call, reply or error; -1 when it could not even be made.
    int send(std::uint8_t type, const std::string &destination, const char *path,
        const char *interface, const char *member, const Fill &fill = {});
    /// The name of the error that answers a call, "done" after a reply.
    std::string call(const std::string &destination, const char *path, const char *interface,
        const char *member, const Fill &fill = {});
    /// What the last error said in words.
    const std::string &lastErrorText() const { return m_lastErrorText; }
    /// A yes of polkit's form to a call of this number that nobody made to us.
    int replyToNothing(const std::string &destination, std::uint32_t number);
    /// Lets go out what waits, and takes in what came: the names of errors.
    std::vector<std::string> settle();

private:
    sd_bus *m_bus = nullptr;
    std::string m_lastErrorText;
};

} // namespace quillon::test
