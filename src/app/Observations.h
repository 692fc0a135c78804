// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/DistributedNotificationCenter.h"
#include "platform/NotificationCenter.h"
#include "platform/SettingsStore.h"

#include <QString>

#include <functional>
#include <vector>

namespace quillon {

struct Platform;

/// What is observed for as long as this lives: settings, the program's broadcasts, and those of
/// other programs. Main thread.
class Observations
{
public:
    explicit Observations(const Platform &platform);
    ~Observations();
    Observations(const Observations &) = delete;
    Observations &operator=(const Observations &) = delete;

    /// Whoever changes it, and to whatever.
    void onSetting(const QString &key, std::function<void()> reactions);
    void onBroadcast(const QString &name, NotificationCenter::Observer reactions);
    void onBroadcastOfOthers(
        const QString &name, const QString &object, std::function<void()> reactions);

private:
    const Platform &m_platform;
    std::vector<SettingsStore::Token> m_settings;
    std::vector<NotificationCenter::Token> m_broadcasts;
    std::vector<DistributedNotificationCenter::Token> m_broadcastsOfOthers;
};

} // namespace quillon
