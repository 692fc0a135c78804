// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

namespace quillon {

class EventWiring;
class UserNotifications;
struct Features;
struct Platform;

/// What happens, in which order, between the start of the process and the first rule check, and at
/// quit. Main thread.
class LaunchSequence : public QObject
{
    Q_OBJECT

public:
    LaunchSequence(const Platform &platform, Features &features,
        UserNotifications &userNotifications, EventWiring &wiring);

    // Called in this order, once each.
    void awakeFromNib();
    void applicationWillFinishLaunching();
    void applicationDidFinishLaunching();

    /// The user started the program again while it runs. Always true: the window was opened.
    bool applicationShouldHandleReopen();
    void applicationWillTerminate();

    /// True when the login item is running, which means that it started this process.
    bool startupCheck();

private:
    void openRecords();
    void startup();
    void checkRules();

    const Platform &m_platform;
    Features &m_features;
    UserNotifications &m_userNotifications;
    EventWiring &m_wiring;
    bool m_windowPrepared = false;
    /// From a start by the login item until the first rule check has run.
    bool m_startedFromLogin = false;
};

} // namespace quillon
