// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/linux/wifi/Nl80211Messages.h"

#include <optional>

namespace quillon {

/// A question to the kernel's wireless configuration.
struct Nl80211Request
{
    enum class Table
    {
        Interfaces,       ///< all of the machine
        Networks,         ///< that the interface heard in its last scans
        Stations,         ///< at the other end of the interface's connection
        Noises,           ///< that the interface measured
        RegulatoryDomain, ///< of the radio, or of all when it has none of its own
    };

    Table table = Table::Interfaces;
    quint32 index = 0; ///< of the interface; of the radio for RegulatoryDomain

    bool operator==(const Nl80211Request &) const = default;
};

/// Who answers such questions: the kernel, or a recording of it.
class Nl80211Exchange
{
public:
    virtual ~Nl80211Exchange() = default;

    virtual Nl80211Messages ask(const Nl80211Request &request) = 0;
};

} // namespace quillon
