// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "contract/SdBus.h"
#include "helper/Outcome.h"

#include <chrono>
#include <functional>
#include <memory>

namespace quillon {

/// Has the self-installed helper removed: the bus starts a root process for it, which only the
/// helper's user may call. Waits for the answer. Errors: OwnedByPackage, UninstallFailed.
Outcome requestRemoval();

/// The root process's side. It answers one request and is done.
class RemovalService
{
public:
    using Uninstallation = std::function<Outcome()>;

    /// Owns the removal's name when it returns. Throws sdbus::Error.
    RemovalService(sdbus::IConnection &connection, Uninstallation uninstallation);

    /// Carries out the one request. False when none came within `limit`.
    bool serve(std::chrono::milliseconds limit);

private:
    void remove(const sdbus::MethodCall &call);

    sdbus::IConnection &m_connection;
    Uninstallation m_uninstallation;
    std::unique_ptr<sdbus::IObject> m_object;
    bool m_isDone = false;
};

} // namespace quillon
