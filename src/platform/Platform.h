// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

namespace quillon {

class AddressOwners;
class AlertPresenter;
class CloudProvider;
class DistributedNotificationCenter;
class ExposureSource;
class HelperLink;
class HotKeys;
class HttpClient;
class InterfaceAddresses;
class LinkOpener;
class LocationAuthorization;
class LoginItem;
class NetworkChangeSource;
class NetworkHost;
class NotificationCenter;
class PowerSaving;
class RadioSwitch;
class RandomSource;
class Reachability;
class RunningApplications;
class Scheduler;
class SecretStore;
class SettingsStore;
class SoftwareCenter;
class SystemSettings;
class SystemSleep;
class UserNotificationCenter;
class WiFiClient;

/// Where the program finds what is not its own.
struct Places
{
    /// Of the user's data; made when it is missing.
    QString supportFolder;
    /// The vendor database that the program is shipped with, "" when there is none.
    QString shippedVendorDatabase;
    /// The service that tells our external address.
    QUrl externalAddressService;
    QUrl vendorRegistry;
    /// The text of the license, "" when it is not installed.
    QString licenseFile;
    /// Of this program, "4.0.0".
    QString version = {};
    /// The build was told that new versions come with the system's own updates.
    bool areUpdatesLeftToSystem = false;
    /// Where new versions are told of; empty when nobody said so at build time.
    QUrl updateFeed = {};
    /// The Ed25519 key (32 bytes) of those who may tell of them; empty in a build that does not
    /// look for new versions.
    QByteArray updateKey = {};
};

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
    AlertPresenter &alerts;
    NetworkHost &network;
    InterfaceAddresses &interfaceAddresses;
    AddressOwners &addressOwners;
    ExposureSource &exposure;
    NetworkChangeSource &networkChanges;
    Reachability &reachability;
    SystemSleep &sleep;
    WiFiClient &wifi;
    RadioSwitch &radioSwitch;
    LocationAuthorization &location;
    SystemSettings &systemSettings;
    SoftwareCenter &softwareCenter;
    HotKeys &hotKeys;
    LoginItem &loginItem;
    LinkOpener &links;
    HttpClient &http;
    HelperLink &helperLink;
    RandomSource &random;
    RunningApplications &runningApplications;
    CloudProvider &cloud;
    SecretStore &secrets;
    PowerSaving &powerSaving;
    Places places;
};

} // namespace quillon
