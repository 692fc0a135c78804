// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMap>
#include <QString>
#include <QVariantMap>

#include <optional>

namespace quillon {

/// What is stored of one network interface. A field without a value is not in the stored
/// dictionary; an empty text is there and empty.
struct DeviceRecord
{
    std::optional<QString> device = {};    ///< in the record of the selected interface only
    std::optional<QString> interface = {}; ///< the port's name, in English
    std::optional<QString> localizedInterface = {}; ///< shownInterface() when it was written
    std::optional<QString> hardware = {};           ///< the factory address
    std::optional<QString> current = {};            ///< the address in use
    std::optional<QString> status = {};
    std::optional<QString> ipAddress = {};
    std::optional<QString> router = {};    ///< see PortRecord; missing when it has none
    std::optional<QString> vendor = {};    ///< the manufacturer chosen for random addresses
    std::optional<qlonglong> hasRule = {}; ///< a RuleStatus
    std::optional<QVariantMap> rule = {};  ///< the network rule in force, flattened
    std::optional<QVariantMap> loginRule = {};
    /// Keys that are not ours, and values that are not of their field's type.
    QVariantMap other = {};

    /// Empty when `stored` is no dictionary.
    static DeviceRecord fromPropertyList(const QVariant &stored);
    QVariantMap toPropertyList() const;

    /// The port's name is exactly "Wi-Fi".
    bool isWifi() const;
    /// The port's name for the user; of all names only "Wi-Fi" has one in other languages.
    QString shownInterface() const;
    /// The link is up.
    bool isUp() const;

    bool operator==(const DeviceRecord &) const = default;
};

/// Device name to record.
using DeviceRecords = QMap<QString, DeviceRecord>;

/// Whether both records say the same of the interface; what the program itself keeps there, such as
/// rules and what the port is called in the user's language, is left aside.
bool isSameInterface(const DeviceRecord &one, const DeviceRecord &other);

} // namespace quillon
