// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quillon {

class DistributedNotificationCenter;
class HelperLink;
class InterfaceAddresses;
class NetworkChangeSource;
class NetworkHost;
class NotificationCenter;
class RandomSource;
class RunningApplications;
class Scheduler;
class SettingsStore;
class UserNotificationCenter;

/// Every seam to the platform that the program uses, filled by main.cpp (or by a test). What it
/// refers to outlives the program's components.
struct Platform
{
    Scheduler &scheduler;
    SettingsStore &settings;
    /// The settings that the program shares with its helper programs.
    SettingsStore &groupSettings;
    NotificationCenter &notifications;
    DistributedNotificationCenter &distributedNotifications;
    UserNotificationCenter &userNotifications;
    NetworkHost &network;
    InterfaceAddresses &interfaceAddresses;
    NetworkChangeSource &networkChanges;
    HelperLink &helperLink;
    RandomSource &random;
    RunningApplications &runningApplications;
};

} // namespace quillon
