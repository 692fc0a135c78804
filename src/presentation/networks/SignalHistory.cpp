// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/networks/SignalHistory.h"

#include "networks/WiFiRecord.h"

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// Of "-52 dBm"; a level of 0 is one that the radio does not tell.
std::optional<int> levelIn(const QString &text)
{
    bool isNumber = false;
    const int level = text.section(u' ', 0, 0).toInt(&isNumber);
    return isNumber && level != 0 ? std::optional(level) : std::nullopt;
}

} // namespace

void SignalHistory::add(const WiFiRecord &record, std::chrono::milliseconds now)
{
    if (record.ssid != m_network) {
        m_samples.clear();
        m_network = record.ssid;
    }
    if (record.ssid.isEmpty()) {
        return;
    }
    m_samples.append({now, levelIn(record.rssi), levelIn(record.noise)});
    m_samples.removeIf([now](const Sample &sample) { return now - sample.time > length; });
}

} // namespace quillon
