// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "contract/SdBus.h"
#include "helper/Callers.h"

#include <memory>

namespace quillon {

/// Callers by asking the bus (org.freedesktop.DBus of the D-Bus specification). Answers come from
/// the connection's event loop.
class BusCallers : public Callers
{
public:
    explicit BusCallers(sdbus::IConnection &connection);

    void userOf(const std::string &caller, UserAnswer answer) override;
    void isPresent(const std::string &caller, PresenceAnswer answer) override;

private:
    std::unique_ptr<sdbus::IProxy> m_bus;
};

} // namespace quillon
