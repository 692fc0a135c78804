// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/EventWiring.h"
#include "app/LaunchSequence.h"
#include "app/RecordSaving.h"
#include "app/Termination.h"
#include "app/UserNotifications.h"
#include "app/features/Features.h"
#include "platform/Platform.h"

namespace quillon {

/// Owns the program's features and runs their life. No component receives it. Main thread.
class QuillonAppDelegate
{
public:
    /// Before the first instance is made: registers the packaged defaults. None registers nothing.
    static void initialize(SettingsStore &settings, const QVariantMap &packagedDefaults);

    explicit QuillonAppDelegate(const Platform &platform);

    LaunchSequence &launch() { return m_launch; }
    Termination &termination() { return m_termination; }
    Notifier &userNotifications() { return m_userNotifications; }
    /// What the user interface mirrors is in there.
    Features &features() { return m_features; }

private:
    Platform m_platform;
    UserNotifications m_userNotifications;
    Features m_features;
    RecordSaving m_recordSaving;
    Termination m_termination;
    EventWiring m_wiring;
    LaunchSequence m_launch;
};

} // namespace quillon
