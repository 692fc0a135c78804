// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLoggingCategory>

namespace quillon {

// One category per module, named quillon.<module>; warnings and worse are on by default.
Q_DECLARE_LOGGING_CATEGORY(logApp)
Q_DECLARE_LOGGING_CATEGORY(logBase)
Q_DECLARE_LOGGING_CATEGORY(logDevices)
Q_DECLARE_LOGGING_CATEGORY(logHelperLink)
Q_DECLARE_LOGGING_CATEGORY(logSettings)
Q_DECLARE_LOGGING_CATEGORY(logPlatform)
Q_DECLARE_LOGGING_CATEGORY(logRecords)
Q_DECLARE_LOGGING_CATEGORY(logNetworks)
Q_DECLARE_LOGGING_CATEGORY(logHistory)
Q_DECLARE_LOGGING_CATEGORY(logRules)
Q_DECLARE_LOGGING_CATEGORY(logVendors)
Q_DECLARE_LOGGING_CATEGORY(logUpdates)
Q_DECLARE_LOGGING_CATEGORY(logSync)

} // namespace quillon
