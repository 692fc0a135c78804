// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/ChangeLimit.h"

#include <algorithm>

namespace quillon {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds period = 1min;
constexpr qsizetype mostChanges = 10;
/// A failure is most often a question that somebody has to dismiss.
constexpr qsizetype mostFailures = 3;

void note(QList<ChangeLimit::Moment> &moments, ChangeLimit::Moment now)
{
    moments.append(now);
    // Older ones can never make anybody wait.
    while (moments.size() > mostChanges) {
        moments.removeFirst();
    }
}

/// Until fewer than `most` of the moments lie within the period.
std::chrono::milliseconds remaining(
    const QList<ChangeLimit::Moment> &moments, qsizetype most, ChangeLimit::Moment now)
{
    if (moments.size() < most) {
        return 0ms;
    }
    return std::max(moments.at(moments.size() - most) + period - now, ChangeLimit::Moment(0));
}

} // namespace

void ChangeLimit::asked(const QString &device, Moment now)
{
    note(m_asked[device], now);
}

void ChangeLimit::failed(const QString &device, Moment now)
{
    note(m_failed[device], now);
}

void ChangeLimit::forgetFailures(const QString &device)
{
    m_failed.remove(device);
}

std::chrono::milliseconds ChangeLimit::wait(const QString &device, Moment now) const
{
    return std::max(remaining(m_asked.value(device), mostChanges, now),
        remaining(m_failed.value(device), mostFailures, now));
}

} // namespace quillon
