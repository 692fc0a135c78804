// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/SyncSchedule.h"

#include "platform/RandomSource.h"

#include <QPointer>

#include <algorithm>
#include <utility>

namespace quillon {

SyncSchedule::SyncSchedule(
    Scheduler &scheduler, RandomSource &random, Run run, const SyncPace &pace)
    : m_scheduler(scheduler)
    , m_random(random)
    , m_run(std::move(run))
    , m_pace(pace)
{
}

SyncSchedule::~SyncSchedule()
{
    if (m_timer) {
        m_scheduler.cancel(*m_timer);
    }
}

void SyncSchedule::start()
{
    m_hasStarted = true;
    m_nextPoll = m_scheduler.monotonic();
    arrange();
}

void SyncSchedule::setOnline(bool online)
{
    if (online && !m_isOnline) {
        // What failed may have failed for this reason.
        m_failures = 0;
        m_nextPoll = m_scheduler.monotonic();
    }
    m_isOnline = online;
    arrange();
}

void SyncSchedule::setSavingBattery(bool saving)
{
    m_isSaving = saving;
    arrange();
}

void SyncSchedule::edited()
{
    m_lastEdit = m_scheduler.monotonic();
    m_firstEdit = m_firstEdit.value_or(m_lastEdit);
    arrange();
}

void SyncSchedule::lookNow()
{
    m_waitsForPerson = false;
    m_failures = 0;
    m_mustList = true;
    m_nextPoll = m_scheduler.monotonic();
    // Also where the battery is saved: the person asked.
    m_firstEdit = m_nextPoll - m_pace.longestGathering;
    arrange();
}

std::optional<SyncSchedule::Moment> SyncSchedule::due() const
{
    if (!m_hasStarted || m_isRunning || !m_isOnline || m_waitsForPerson) {
        return std::nullopt;
    }
    if (!m_firstEdit) {
        return m_isSaving ? std::nullopt : std::optional(m_nextPoll);
    }
    if (m_failures > 0) {
        return m_nextPoll;
    }
    const Moment sending =
        std::min(m_lastEdit + m_pace.gathering, *m_firstEdit + m_pace.longestGathering);
    return m_isSaving ? sending : std::min(sending, m_nextPoll);
}

void SyncSchedule::arrange()
{
    if (m_timer) {
        m_scheduler.cancel(*std::exchange(m_timer, std::nullopt));
    }
    if (const auto moment = due()) {
        const Moment wait = std::max(*moment - m_scheduler.monotonic(), Moment(0));
        m_timer = m_scheduler.onMainAfter(wait, this, [this] { begin(); });
    }
}

void SyncSchedule::begin()
{
    m_timer.reset();
    m_isRunning = true;
    m_sends = std::exchange(m_firstEdit, std::nullopt).has_value();
    const bool lists = m_mustList || m_polls + 1 >= m_pace.pollsToListing;
    m_run(lists ? SyncRound::Look::Listing : SyncRound::Look::Head,
        [self = QPointer(this)](const SyncOutcome &outcome) {
            if (self) {
                self->end(outcome);
            }
        });
}

void SyncSchedule::end(const SyncOutcome &outcome)
{
    m_isRunning = false;
    m_polls = outcome.hasListed ? 0 : m_polls + 1;
    m_mustList = !outcome.isWell() || outcome.wantsListing;
    m_failures = outcome.isWell() ? 0 : m_failures + 1;
    m_waitsForPerson = outcome.error && outcome.error->problem == CloudProblem::WrongPassword;
    m_nextPoll = m_scheduler.monotonic() + varied(untilNext(outcome));
    if (!outcome.isWell() && m_sends && !m_firstEdit) {
        // It may still be there, and the battery does not keep it from another try.
        m_lastEdit = m_scheduler.monotonic();
        m_firstEdit = m_lastEdit;
    }
    arrange();
}

std::chrono::milliseconds SyncSchedule::untilNext(const SyncOutcome &outcome) const
{
    if (m_failures > 0) {
        const int doublings = std::min(m_failures - 1, 20);
        return std::min(m_pace.firstRetry * (1 << doublings), m_pace.longestRetry);
    }
    return outcome.wantsListing ? m_pace.soon : m_pace.poll;
}

SyncSchedule::Moment SyncSchedule::varied(std::chrono::milliseconds time)
{
    const QByteArray byte = m_random.bytes(1);
    const int share = byte.isEmpty() ? 0 : int(quint8(byte.at(0))) - 128;
    return time + time * share / 1280;
}

} // namespace quillon
