// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Observations.h"

#include "platform/Platform.h"

#include <utility>

namespace quillon {

Observations::Observations(const Platform &platform)
    : m_platform(platform)
{
}

Observations::~Observations()
{
    for (const auto token : m_broadcasts) {
        m_platform.notifications.removeObserver(token);
    }
    for (const auto token : m_broadcastsOfOthers) {
        m_platform.distributedNotifications.removeObserver(token);
    }
    for (const auto token : m_settings) {
        m_platform.settings.removeObserver(token);
    }
}

void Observations::onSetting(const QString &key, std::function<void()> reactions)
{
    m_settings.push_back(m_platform.settings.addObserver(
        key, [reactions = std::move(reactions)](const SettingsStore::Change &) { reactions(); }));
}

void Observations::onBroadcast(const QString &name, NotificationCenter::Observer reactions)
{
    m_broadcasts.push_back(m_platform.notifications.addObserver(name, std::move(reactions)));
}

void Observations::onBroadcastOfOthers(
    const QString &name, const QString &object, std::function<void()> reactions)
{
    m_broadcastsOfOthers.push_back(
        m_platform.distributedNotifications.addObserver(name, object, std::move(reactions)));
}

} // namespace quillon
