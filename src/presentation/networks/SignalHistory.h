// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

#include <chrono>
#include <optional>

namespace quillon {

struct WiFiRecord;

/// Signal and noise of the network that the radio is on, over the last minutes, as they were looked
/// at. Another network begins anew.
class SignalHistory
{
public:
    struct Sample
    {
        std::chrono::milliseconds time{}; ///< monotonic
        std::optional<int> signal;        ///< dBm
        std::optional<int> noise;         ///< dBm

        bool operator==(const Sample &) const = default;
    };

    static constexpr std::chrono::minutes length{5};

    void add(const WiFiRecord &record, std::chrono::milliseconds now);
    /// Oldest first, none older than `length` before the newest.
    const QList<Sample> &samples() const { return m_samples; }

private:
    QString m_network;
    QList<Sample> m_samples;
};

} // namespace quillon
