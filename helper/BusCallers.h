// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "helper/BusCall.h"
#include "helper/Callers.h"

#include <functional>
#include <string>

namespace quillon {

/// Callers by asking the bus (org.freedesktop.DBus of the D-Bus specification). Answers come while
/// the bus is processed.
class BusCallers : public Callers
{
public:
    /// A connection has gone.
    using Departure = std::function<void(const std::string &caller)>;

    explicit BusCallers(sd_bus &bus);
    ~BusCallers() override;
    BusCallers(const BusCallers &) = delete;
    BusCallers &operator=(const BusCallers &) = delete;

    void userOf(const std::string &caller, UserAnswer answer) override;
    void isPresent(const std::string &caller, PresenceAnswer answer) override;
    /// From now on; called before the helper takes its name, it misses no caller. Only the bus
    /// itself is believed. False when the bus cannot be asked to tell.
    bool watchDepartures(Departure departed);

private:
    static int ownerChanged(sd_bus_message *signal, void *self, sd_bus_error *error);
    void ask(
        const char *method, const std::string &name, BusAnswer answer, const BusAnswer &failed);

    sd_bus &m_bus;
    Departure m_departed;
    sd_bus_slot *m_departures = nullptr;
};

} // namespace quillon
