// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/model/QuillonModel.h"

#include <array>

namespace quillon {

/// What the history's table shows of a record, in the order of its columns.
enum class HistoryColumn
{
    Date,
    Interface,
    Device,
    Address,
    Network,
    Bssid,
    Notes,
};

inline constexpr std::array historyColumns{HistoryColumn::Date, HistoryColumn::Interface,
    HistoryColumn::Device, HistoryColumn::Address, HistoryColumn::Network, HistoryColumn::Bssid,
    HistoryColumn::Notes};

/// The attribute that a column shows.
inline const QString &attributeOf(HistoryColumn column)
{
    using namespace model::connection;
    switch (column) {
    case HistoryColumn::Date:
        return date;
    case HistoryColumn::Interface:
        return interface;
    case HistoryColumn::Device:
        return device;
    case HistoryColumn::Address:
        return address;
    case HistoryColumn::Network:
        return ssid;
    case HistoryColumn::Bssid:
        return bssid;
    case HistoryColumn::Notes:
        break;
    }
    return notes;
}

} // namespace quillon
