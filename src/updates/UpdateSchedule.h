// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>

#include <chrono>
#include <optional>

namespace quillon {

class Scheduler;
class SettingsStore;

/// When to look for new versions: one interval after the last time, but never within an hour of the
/// last request, whatever the settings and the clock say, and not while the program starts. Of a
/// request of an earlier run the stored moment is known. Main thread.
class UpdateSchedule
{
public:
    UpdateSchedule(SettingsStore &settings, const Scheduler &scheduler);

    /// The program has started just now.
    void begin();
    /// A request is about to be made. It counts as failed until its answer is noted, in a later
    /// run, too.
    void noteRequest();
    /// The request brought what it was made for.
    void noteAnswer();

    /// The next moment, as the clock is now; one that is past means now. After a failure it comes
    /// within a day.
    QDateTime due();
    /// The last request was made at a moment that the clock has not reached: it was set back.
    bool isClockBehind() const;
    /// Of the last request, of an earlier run too; invalid before the first.
    QDateTime lastRequest() const;

private:
    std::chrono::seconds interval() const;

    SettingsStore &m_settings;
    const Scheduler &m_scheduler;
    // By the time that nobody sets.
    std::chrono::milliseconds m_notBefore{0};
    std::optional<std::chrono::milliseconds> m_behindUntil; ///< while the clock is behind
};

} // namespace quillon
