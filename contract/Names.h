// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// What crosses a process between the program, its service and its helper: well-known names, limits
/// and error names. No Qt: the helper includes this. The operations are in the D-Bus XML beside it.
namespace quillon::contract {

/// Session bus, started on demand.
inline constexpr char serviceName[] = "com.orvandel.Quillon4XPCService";
inline constexpr char servicePath[] = "/com/orvandel/Quillon4XPCService";
inline constexpr char serviceInterface[] = "com.orvandel.Quillon4XPCService";

/// System bus, started on demand.
inline constexpr char helperName[] = "com.orvandel.Quillon4HelperTool";
inline constexpr char helperPath[] = "/com/orvandel/Quillon4HelperTool";
inline constexpr char helperInterface[] = "com.orvandel.Quillon4HelperTool";

/// Session bus: signal Posted(name, object) carries broadcasts between our programs.
inline constexpr char distributedPath[] = "/com/orvandel/Quillon4/DistributedNotifications";
inline constexpr char distributedInterface[] = "com.orvandel.Quillon4.DistributedNotifications";
inline constexpr char distributedSignal[] = "Posted";

/// Broadcasts: a name and an object each.
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

/// Errors of the helper and the service: a D-Bus error name and the code that the program logs.
struct ErrorName
{
    const char *name;
    int code;
};

namespace error {
inline constexpr ErrorName notAuthorized{"com.orvandel.Quillon4.Error.NotAuthorized", 1};
inline constexpr ErrorName invalidAuthorization{
    "com.orvandel.Quillon4.Error.InvalidAuthorization", 2};
inline constexpr ErrorName invalidDevice{"com.orvandel.Quillon4.Error.InvalidDevice", 3};
inline constexpr ErrorName invalidAddress{"com.orvandel.Quillon4.Error.InvalidAddress", 4};
inline constexpr ErrorName noSuchDevice{"com.orvandel.Quillon4.Error.NoSuchDevice", 5};
inline constexpr ErrorName unsupportedDevice{"com.orvandel.Quillon4.Error.UnsupportedDevice", 6};
inline constexpr ErrorName changeFailed{"com.orvandel.Quillon4.Error.ChangeFailed", 7};
inline constexpr ErrorName addressDidNotTake{"com.orvandel.Quillon4.Error.AddressDidNotTake", 8};
inline constexpr ErrorName tooManyRequests{"com.orvandel.Quillon4.Error.TooManyRequests", 9};
inline constexpr ErrorName ownedByPackage{"com.orvandel.Quillon4.Error.OwnedByPackage", 10};
inline constexpr ErrorName installFailed{"com.orvandel.Quillon4.Error.InstallFailed", 11};
inline constexpr ErrorName uninstallFailed{"com.orvandel.Quillon4.Error.UninstallFailed", 12};
} // namespace error

inline constexpr ErrorName allErrors[] = {error::notAuthorized, error::invalidAuthorization,
    error::invalidDevice, error::invalidAddress, error::noSuchDevice, error::unsupportedDevice,
    error::changeFailed, error::addressDidNotTake, error::tooManyRequests, error::ownedByPackage,
    error::installFailed, error::uninstallFailed};

} // namespace quillon::contract
