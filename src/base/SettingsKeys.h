// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/PropertyList.h"

#include <QLatin1StringView>
#include <QString>

#include <span>

/// Every key of the settings store, once. Owners and meaning are in docs/settings.md.
namespace quillon::keys {

#define QUILLON_KEY(name) inline const QString name = QStringLiteral(#name)
QUILLON_KEY(deviceDict);
QUILLON_KEY(currentInterfaceDict);
QUILLON_KEY(lowerCaseHEX);
QUILLON_KEY(displayNotifications);
QUILLON_KEY(driftAlarm);
QUILLON_KEY(hideOnLaunch);
QUILLON_KEY(showInMenu);
QUILLON_KEY(hideDock);
QUILLON_KEY(loginStart);
QUILLON_KEY(showKeyEnabled);
QUILLON_KEY(randomKeyEnabled);
QUILLON_KEY(updateKeyEnabled);
QUILLON_KEY(showKeyCombo);
QUILLON_KEY(randomKeyCombo);
QUILLON_KEY(savedNetworks);
QUILLON_KEY(savedAddresses);
QUILLON_KEY(currentWiFiDict);
QUILLON_KEY(shouldUpdateExternalIP);
QUILLON_KEY(externalIPAddress);
QUILLON_KEY(defaultTimerMinutes);
QUILLON_KEY(timerEnabled);
QUILLON_KEY(timerMinutes);
QUILLON_KEY(editingRuleNetwork);
QUILLON_KEY(historySearchType);
QUILLON_KEY(iCloudSync);
QUILLON_KEY(iCloudToken);
QUILLON_KEY(cloudAccount);
QUILLON_KEY(vendorCountValue);
QUILLON_KEY(vendorIDUpdatedDate);
QUILLON_KEY(currentVendorData);
QUILLON_KEY(customTabIndex);
QUILLON_KEY(SUEnableAutomaticChecks);
QUILLON_KEY(SUAutomaticallyUpdate);
QUILLON_KEY(SUScheduledCheckInterval);
QUILLON_KEY(SUFeedURL);
QUILLON_KEY(updateCheckDate);
QUILLON_KEY(updateCheckFailed);
QUILLON_KEY(updateFeed);
QUILLON_KEY(updateToldVersion);
QUILLON_KEY(releasedDevices);
QUILLON_KEY(givenAddresses);
QUILLON_KEY(statusItemAbsenceTold);
QUILLON_KEY(historyColumnWidths);
#undef QUILLON_KEY

/// A key and the type that it holds; none where the platform's own value is stored as it is given
/// (hot keys, the cloud account's token).
struct Entry
{
    const QString &name;
    std::optional<PropertyListType> type;
};

/// The whole table, in the order above.
std::span<const Entry> all();

} // namespace quillon::keys

/// The keys inside a device record and the current interface record.
namespace quillon::record {

#define QUILLON_KEY(name) inline const QString name = QStringLiteral(#name)
QUILLON_KEY(device);
QUILLON_KEY(interface);
QUILLON_KEY(localizedInterface);
QUILLON_KEY(hardware);
QUILLON_KEY(current);
QUILLON_KEY(status);
QUILLON_KEY(ipAddress);
QUILLON_KEY(router);
QUILLON_KEY(vendor);
QUILLON_KEY(hasRule);
QUILLON_KEY(rule);
QUILLON_KEY(loginRule);
#undef QUILLON_KEY

} // namespace quillon::record
