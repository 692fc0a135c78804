// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

namespace quillon {

/// What the overview holds of one interface. It is what the device table said when the rows were
/// built; only a choice of a vendor, rules, countdowns and the link's state reach it later.
struct OverviewRow
{
    QString device = {};
    QString interface = {}; ///< the port's name; only "Wi-Fi" is in the user's language
    QString icon = {};      ///< "wifi" or "network"
    std::optional<QString> network = {}; ///< the name of the joined network
    bool helperInstalled = false;        ///< the same in every row
    QString status = {};
    QString currentAddress = {}; ///< as stored, not in display case
    QString hardwareAddress = {};
    QString vendor = {}; ///< "Random Address" is in the user's language
    std::optional<qlonglong> hasRule = {};
    bool addressIsDefault = false;            ///< letter case does not count
    QString addressIcon = {};                 ///< "dot.viewfinder" when it is, else "viewfinder"
    std::optional<QString> timerDisplay = {}; ///< set by the cell; empty: no countdown runs
    bool isPaused = false;                    ///< set by the cell

    bool isWifi() const;

    bool operator==(const OverviewRow &) const = default;
};

inline bool OverviewRow::isWifi() const
{
    using namespace Qt::StringLiterals;
    return icon == u"wifi"_s;
}

} // namespace quillon
