// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "contract/Interfaces.h"

/// What crosses a process between the program, its service and its helper, beyond the interfaces
/// and errors, which are made from the D-Bus XML beside this: well-known names and limits. No Qt:
/// the helper includes this.
namespace quillon::contract {

/// Well-known names, each the same as that of the interface: the service on the session bus, the
/// helper on the system bus, both started on demand.
inline constexpr auto &serviceName = service::interface;
inline constexpr auto &helperName = helper::interface;
/// On the system bus for a moment: the root process that removes a self-installed helper.
inline constexpr auto &removalName = removal::interface;

/// Broadcasts (distributed::posted): a name and an object each.
inline constexpr char helperUpdated[] = "HelperUpdated";
inline constexpr char helperUpdatedObject[] = "com.orvandel.Quillon4MASHelper";
inline constexpr char terminateLoginHelper[] = "terminateQuillon4LoginHelper";
inline constexpr char terminateLoginHelperObject[] = "com.orvandel.Quillon4";

/// Session bus names that say "this program runs".
inline constexpr char applicationName[] = "com.orvandel.Quillon4";
inline constexpr char loginHelperName[] = "com.orvandel.Quillon4Helper";

inline constexpr char helperVersion[] = "2.0";
inline constexpr unsigned authorizationSize = 32;

/// How long a caller waits for an answer, in milliseconds. A request that may open an
/// administrator's prompt gets the time a person needs. The service gives up on the helper before
/// the program gives up on the service, so that the program learns that the helper cannot be
/// reached.
inline constexpr int promptLimit = 150'000;
inline constexpr int answerLimit = 5'000;
inline constexpr int helperStartLimit = 4'000;

inline constexpr char actionChange[] = "com.orvandel.quillon4.change-address";
inline constexpr char actionInstall[] = "com.orvandel.quillon4.install";
inline constexpr char actionUninstall[] = "com.orvandel.quillon4.uninstall";

} // namespace quillon::contract
