// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/SettingsKeys.h"

namespace quillon::keys {

std::span<const Entry> all()
{
    using enum PropertyListType;
    static const Entry table[] = {
        {deviceDict, Dictionary},
        {currentInterfaceDict, Dictionary},
        {lowerCaseHEX, Boolean},
        {displayNotifications, Boolean},
        {driftAlarm, Boolean},
        {hideOnLaunch, Boolean},
        {showInMenu, Boolean},
        {hideDock, Boolean},
        {loginStart, Boolean},
        {showKeyEnabled, Boolean},
        {randomKeyEnabled, Boolean},
        {updateKeyEnabled, Boolean},
        {showKeyCombo, std::nullopt},
        {randomKeyCombo, std::nullopt},
        {savedNetworks, Dictionary},
        {savedAddresses, Dictionary},
        {currentWiFiDict, Dictionary},
        {shouldUpdateExternalIP, Boolean},
        {externalIPAddress, String},
        {defaultTimerMinutes, Integer},
        {timerEnabled, Boolean},
        {timerMinutes, Integer},
        {editingRuleNetwork, String},
        {historySearchType, String},
        {iCloudSync, Boolean},
        {iCloudToken, std::nullopt},
        {cloudAccount, Dictionary},
        {vendorCountValue, Integer},
        {vendorIDUpdatedDate, String},
        {currentVendorData, Dictionary},
        {customTabIndex, Integer},
        {SUEnableAutomaticChecks, Boolean},
        {SUAutomaticallyUpdate, Boolean},
        {SUScheduledCheckInterval, Integer},
        {SUFeedURL, String},
        {updateCheckDate, Date},
        {updateCheckFailed, Boolean},
        {updateFeed, Data},
        {updateToldVersion, String},
        {releasedDevices, Array},
        {givenAddresses, Dictionary},
        {statusItemAbsenceTold, Boolean},
        {historyColumnWidths, Array},
    };
    return table;
}

} // namespace quillon::keys
