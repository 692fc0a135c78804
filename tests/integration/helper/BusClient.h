// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "contract/Interfaces.h"
#include "contract/SdBus.h"

#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <sys/types.h>
#include <vector>

namespace quillon::test {

/// 32 bytes, as the program would send them.
std::vector<std::uint8_t> someAuthorization();

/// A connection to the system bus with the user's effective id, which is what the bus believes.
std::unique_ptr<sdbus::IConnection> connectAs(const std::string &user);

/// A connection of one user to the system bus, and the helper as this user sees it. The connection
/// is made with the user's effective id, which is what the bus believes.
class BusClient
{
public:
    static constexpr char done[] = "done";

    explicit BusClient(const std::string &user);
    ~BusClient();
    BusClient(const BusClient &) = delete;
    BusClient &operator=(const BusClient &) = delete;

    std::string uniqueName() const { return m_connection->getUniqueName(); }

    /// The methods of the helper: their reply, or the name of their error. They wait for the
    /// answer.
    std::string version();
    std::string endpoint();
    std::string change(const std::string &device, const std::string &address,
        bool deviceIsWiFi = false,
        const std::vector<std::uint8_t> &authorization = someAuthorization());
    std::string uninstall(const std::vector<std::uint8_t> &authorization = someAuthorization());
    /// Any method without arguments, of any destination.
    std::string call(const std::string &destination, const std::string &path,
        const std::string &interface, const std::string &method);

    /// Asks without waiting; answers() counts what came. From then on the waiting methods may not
    /// be called any more.
    void changeLater(const std::string &device, const std::string &address);
    std::map<std::string, int> answers() const;

    /// Whether the bus knows a connection of this name, and whose process it is.
    bool hasOwner(const std::string &name);
    pid_t processOf(const std::string &name);

private:
    sdbus::MethodCall callOf(const contract::Method &method);
    std::string send(sdbus::MethodCall &call);

    std::unique_ptr<sdbus::IConnection> m_connection;
    std::unique_ptr<sdbus::IProxy> m_helper;
    std::unique_ptr<sdbus::IProxy> m_bus;
    bool m_loops = false;
    mutable std::mutex m_mutex;
    std::map<std::string, int> m_answers;
};

} // namespace quillon::test
