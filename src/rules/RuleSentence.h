// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMap>
#include <QString>

namespace quillon {

class DeviceTable;
class SettingsStore;
struct DeviceRecord;
struct RuleValues;

/// What the things that rules name are called. A snapshot.
struct RuleNames
{
    QMap<QString, QString> networks = {};  ///< BSSID to the saved network's name
    QMap<QString, QString> addresses = {}; ///< address to the saved address's name
    QMap<QString, QString> devices = {};   ///< device to what it is called in lists

    static RuleNames of(const SettingsStore &settings, const DeviceTable &devices);

    bool operator==(const RuleNames &) const = default;
};

/// "Wi-Fi · wlp2s0", in the user's language.
QString deviceString(const DeviceRecord &record, const QString &device);

/// What the rule does, in one sentence in the user's language: what evaluation will make of it, so
/// that a choice without effect, as a vendor beside a fixed address, is not in it. What has no name
/// is called as it is stored. The names are as long as they are.
QString ruleSentence(const RuleValues &rule, const RuleNames &names);

} // namespace quillon
