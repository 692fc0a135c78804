// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "updates/UpdateSchedule.h"

#include "base/SettingsKeys.h"
#include "platform/Scheduler.h"
#include "platform/SettingsStore.h"

#include <algorithm>

namespace quillon {

namespace {

using std::chrono::hours;
using std::chrono::seconds;

constexpr std::chrono::milliseconds startTakes = std::chrono::minutes(1);
constexpr std::chrono::milliseconds shortestPause = hours(1);
constexpr seconds usualInterval = hours(24 * 7);
constexpr seconds intervalAfterFailure = hours(24);
/// So that every moment is one that a date can name.
constexpr seconds longestInterval = hours(24 * 3650);

} // namespace

UpdateSchedule::UpdateSchedule(SettingsStore &settings, const Scheduler &scheduler)
    : m_settings(settings)
    , m_scheduler(scheduler)
{
}

void UpdateSchedule::begin()
{
    m_notBefore = m_scheduler.monotonic() + startTakes;
}

void UpdateSchedule::noteRequest()
{
    m_notBefore = m_scheduler.monotonic() + shortestPause;
    m_behindUntil.reset();
    m_settings.set(keys::updateCheckDate, m_scheduler.now());
    m_settings.setBool(keys::updateCheckFailed, true);
}

void UpdateSchedule::noteAnswer()
{
    m_settings.setBool(keys::updateCheckFailed, false);
}

QDateTime UpdateSchedule::due()
{
    const QDateTime now = m_scheduler.now();
    const auto monotonic = m_scheduler.monotonic();
    const auto after = [&](std::chrono::milliseconds moment) {
        return now.addMSecs((moment - monotonic).count());
    };
    if (isClockBehind()) {
        // When the last request really was nobody knows: at the worst just now.
        m_behindUntil = m_behindUntil.value_or(monotonic + shortestPause);
        return std::max(after(*m_behindUntil), after(m_notBefore));
    }
    m_behindUntil.reset();
    const QDateTime last = lastRequest();
    const QDateTime next = last.isValid() ? last.addSecs(interval().count()) : now;
    return std::max(next, after(m_notBefore));
}

bool UpdateSchedule::isClockBehind() const
{
    const QDateTime last = lastRequest();
    return last.isValid() && last > m_scheduler.now();
}

QDateTime UpdateSchedule::lastRequest() const
{
    const QVariant stored = m_settings.get(keys::updateCheckDate);
    return stored.metaType() == QMetaType::fromType<QDateTime>() ? stored.toDateTime()
                                                                 : QDateTime();
}

seconds UpdateSchedule::interval() const
{
    const qlonglong stored = m_settings.getInteger(keys::SUScheduledCheckInterval);
    const seconds interval =
        stored > 0 ? std::clamp<seconds>(seconds(stored),
                         std::chrono::duration_cast<seconds>(shortestPause), longestInterval)
                   : usualInterval;
    return m_settings.getBool(keys::updateCheckFailed) ? std::min(interval, intervalAfterFailure)
                                                       : interval;
}

} // namespace quillon
