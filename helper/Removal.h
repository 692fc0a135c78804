// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "helper/CallFilter.h"
#include "helper/Outcome.h"

#include <chrono>
#include <functional>
#include <systemd/sd-bus.h>

namespace quillon {

/// Has the self-installed helper removed: the bus starts a root process for it, which only the
/// helper's user may call. Waits for the answer. Errors: OwnedByPackage, UninstallFailed.
Outcome requestRemoval();

/// The root process's side. It answers one request and is done.
class RemovalService
{
public:
    using Uninstallation = std::function<Outcome()>;

    /// `bus` is processed by nobody else; it outlives this.
    RemovalService(sd_bus &bus, Uninstallation uninstallation);
    ~RemovalService();
    RemovalService(const RemovalService &) = delete;
    RemovalService &operator=(const RemovalService &) = delete;

    /// Takes the removal's name and carries out the one request. False when none came within
    /// `limit`, or when the bus does not give the name or goes away.
    bool serve(std::chrono::milliseconds limit);

private:
    static int called(sd_bus_message *call, void *self, sd_bus_error *error);
    bool publish();
    int remove(sd_bus_message &call);

    sd_bus &m_bus;
    Uninstallation m_uninstallation;
    CallFilter m_filter;
    sd_bus_slot *m_slot = nullptr;
    bool m_isDone = false;
};

} // namespace quillon
