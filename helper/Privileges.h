// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

namespace quillon {

/// Puts /dev/null in place of standard input, output and error where they are closed: what is
/// opened next would take their place, and the log would be written into it. Returns what failed.
std::optional<std::string> openStandardDescriptors();

/// Whether this process may change interfaces: started by root, or by the unit as the helper's
/// user.
bool mayAdministerNetworks();

/// Gives up, for good, everything but CAP_NET_ADMIN: being root (for the helper's own user), the
/// other capabilities of every set, the way to gain any by executing a program (no_new_privs),
/// being traced or dumped, every inherited descriptor above standard error, and the whole
/// environment. The unit does the same and more; this holds also where the bus starts the helper
/// without a service manager. Before the first byte is read from outside; returns what failed, and
/// then the process must end.
std::optional<std::string> keepNetworkAdministrationOnly();

/// After that: executes `program` in this process's place, with the same user and capability.
/// Returns only when that failed, and says why.
std::string continueAs(const char *program);

} // namespace quillon
