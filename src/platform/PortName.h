// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quillon {

/// Ports that no host lists, by the name as the system writes it: Bluetooth, and Thunderbolt links
/// other than the Thunderbolt bridge. Plain case-sensitive substring tests.
inline bool isSkippedPortName(const QString &portName)
{
    return portName.contains(QLatin1String("tooth")) ||
           (portName.contains(QLatin1String("bolt")) && !portName.contains(QLatin1String("idge")));
}

} // namespace quillon
