// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presence/StatusItemAbsence.h"

#include "base/Localized.h"
#include "base/Notifier.h"
#include "base/SettingsKeys.h"
#include "platform/Scheduler.h"
#include "platform/SettingsStore.h"
#include "presence/Presence.h"

#include <utility>

namespace quillon {

namespace {

// At login a panel may start after us, and one that crashed is started again.
constexpr std::chrono::milliseconds patience{20000};

} // namespace

StatusItemAbsence::StatusItemAbsence(
    SettingsStore &settings, Scheduler &scheduler, Notifier &notifier, Presence &presence)
    : m_settings(settings)
    , m_scheduler(scheduler)
    , m_notifier(notifier)
    , m_presence(presence)
{
}

void StatusItemAbsence::begin()
{
    m_hasBegun = true;
    look();
}

void StatusItemAbsence::look()
{
    if (!m_hasBegun) {
        return;
    }
    if (m_presence.isStatusItemInSight()) {
        stopWaiting();
        returned();
    } else if (!m_presence.isStatusItemShown() || m_isGone) {
        stopWaiting();
        keepInReach();
    } else if (!m_waiting) {
        m_waiting = m_scheduler.onMainAfter(patience, this, [this] { takeAsGone(); });
    }
}

void StatusItemAbsence::returned()
{
    m_isGone = false;
    if (m_settings.getBool(keys::statusItemAbsenceTold)) {
        m_settings.setBool(keys::statusItemAbsenceTold, false);
        m_settings.synchronize();
    }
    if (std::exchange(m_hasMinimized, false)) {
        m_presence.hideMinimizedWindow();
    }
}

void StatusItemAbsence::stopWaiting()
{
    if (m_waiting) {
        m_scheduler.cancel(*std::exchange(m_waiting, std::nullopt));
    }
}

void StatusItemAbsence::takeAsGone()
{
    m_waiting.reset();
    m_isGone = true;
    tellOnce();
    keepInReach();
}

void StatusItemAbsence::tellOnce()
{
    if (m_settings.getBool(keys::statusItemAbsenceTold)) {
        return;
    }
    m_settings.setBool(keys::statusItemAbsenceTold, true);
    m_settings.synchronize();
    m_notifier.sendNotificationWithBody(localized("Quillon is not in the status bar"),
        localized("This desktop shows no status items. Minimize the window to keep Quillon "
                  "running: closing it ends Quillon."));
}

void StatusItemAbsence::keepInReach()
{
    if (!m_presence.isWindowShown()) {
        m_hasMinimized = true;
        m_presence.minimizeWindow();
    }
}

} // namespace quillon
