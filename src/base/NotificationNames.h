// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Names of broadcasts: in-process (NotificationCenter) and between programs
/// (DistributedNotificationCenter).
namespace quillon::notifications {

inline const QString networkChanged = QStringLiteral("networkChanged");
inline const QString addressUpdated = QStringLiteral("addressUpdated");
inline const QString helperStatusChanged = QStringLiteral("helperStatusChanged");
inline const QString icloudUpdated = QStringLiteral("icloudUpdated");
inline const QString cloudContainerChanged = QStringLiteral("cloudContainerChanged");
inline const QString closeVendorViewPopover = QStringLiteral("closeVendorViewPopover");
inline const QString toggleCheckbox = QStringLiteral("toggleCheckbox");
inline const QString ruleTable = QStringLiteral("ruleTable");
inline const QString updateNamesArray = QStringLiteral("updateNamesArray");
inline const QString updateOverview = QStringLiteral("updateOverview");
inline const QString showNetworkWarning = QStringLiteral("showNetworkWarning");
inline const QString changePrefsTab = QStringLiteral("changePrefsTab");
inline const QString changeRulesTab = QStringLiteral("changeRulesTab");
inline const QString vendorUpdated = QStringLiteral("vendorUpdated");

inline const QString helperUpdated = QStringLiteral("HelperUpdated");
inline const QString helperUpdatedObject = QStringLiteral("com.orvandel.Quillon4MASHelper");
inline const QString terminateLoginHelper = QStringLiteral("terminateQuillon4LoginHelper");
inline const QString applicationObject = QStringLiteral("com.orvandel.Quillon4");

} // namespace quillon::notifications
