// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/QuillonAppDelegate.h"

#include "app/RecordFailure.h"
#include "platform/SettingsStore.h"

namespace quillon {

void QuillonAppDelegate::initialize(SettingsStore &settings, const QVariantMap &packagedDefaults)
{
    if (!packagedDefaults.isEmpty()) {
        settings.registerDefaults(packagedDefaults);
    }
    settings.synchronize();
}

QuillonAppDelegate::QuillonAppDelegate(const Platform &platform)
    : m_platform(platform)
    , m_userNotifications(platform.settings, platform.scheduler, platform.userNotifications)
    , m_features(m_platform, m_userNotifications,
          [&settings = platform.settings, &alerts = platform.alerts](const Error &error,
              const QString &path) { presentOpenFailure(settings, alerts, error, path); })
    , m_recordSaving(m_features.history.store, platform.alerts)
    , m_termination(m_features.history.store, platform.alerts)
    , m_wiring(m_platform, m_features, m_recordSaving, m_termination)
    , m_launch(m_platform, m_features, m_userNotifications, m_wiring)
{
}

} // namespace quillon
