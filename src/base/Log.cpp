// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Log.h"

namespace quillon {

Q_LOGGING_CATEGORY(logApp, "quillon.app", QtWarningMsg)
Q_LOGGING_CATEGORY(logBase, "quillon.base", QtWarningMsg)
Q_LOGGING_CATEGORY(logDevices, "quillon.devices", QtWarningMsg)
Q_LOGGING_CATEGORY(logHelperLink, "quillon.helperlink", QtWarningMsg)
Q_LOGGING_CATEGORY(logSettings, "quillon.settings", QtWarningMsg)
Q_LOGGING_CATEGORY(logPlatform, "quillon.platform", QtWarningMsg)
Q_LOGGING_CATEGORY(logRecords, "quillon.records", QtWarningMsg)
Q_LOGGING_CATEGORY(logNetworks, "quillon.networks", QtWarningMsg)
Q_LOGGING_CATEGORY(logHistory, "quillon.history", QtWarningMsg)
Q_LOGGING_CATEGORY(logRules, "quillon.rules", QtWarningMsg)
Q_LOGGING_CATEGORY(logVendors, "quillon.vendors", QtWarningMsg)
Q_LOGGING_CATEGORY(logUpdates, "quillon.updates", QtWarningMsg)
Q_LOGGING_CATEGORY(logSync, "quillon.sync", QtWarningMsg)

} // namespace quillon
