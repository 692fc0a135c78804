// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QVariantMap>

#include <optional>

namespace quillon {

/// A saved network or a saved address. A field without a value is not in the stored dictionary.
struct SavedEntry
{
    std::optional<QString> name = {};
    std::optional<QString> ssid = {};    ///< network only
    std::optional<QString> bssid = {};   ///< network only
    std::optional<QString> address = {}; ///< address only
    /// Keys that are not ours, and values that are no texts.
    QVariantMap other = {};

    /// As it is saved first: its own name.
    static SavedEntry ofAddress(const QString &address);
    /// As it is saved first: under the BSSID in lower case, by the name that it broadcasts.
    static SavedEntry ofNetwork(const QString &bssid, const QString &ssid);
    /// Empty when `stored` is no dictionary.
    static SavedEntry fromPropertyList(const QVariant &stored);
    QVariantMap toPropertyList() const;

    /// Whether the network is recognized by its SSID: its mark is there, whatever it holds.
    bool isSsidDefined() const;
    void setSsidDefined(bool defined);

    bool operator==(const SavedEntry &) const = default;
};

} // namespace quillon
