// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

namespace quillon {

/// One port as the textual port list tells it.
struct HardwarePort
{
    QString interface; ///< port name without line breaks, cut before " ("
    QString device;    ///< en0 to en9, bridge0 to bridge9: the width is fixed
    QString hardware; ///< the 17 characters after "Ethernet Address: ", unchecked; fewer at the end

    bool operator==(const HardwarePort &) const = default;
};

/// The kept ports of the output of "networksetup -listallhardwareports", in its order. A device may
/// occur twice: en10 reads as en1. Unexpected text yields no ports.
QList<HardwarePort> hardwarePorts(const QString &portList);

} // namespace quillon
