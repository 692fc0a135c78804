// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Scheduler.h"

#include <QObject>

namespace quillon {

class CurrentInterface;
class DeviceTable;
class EventWiring;
class ExternalIPAddress;
class MainWindowModel;
class Presence;
class RunningApplications;
class SettingsStore;
class UserNotifications;
class XPCMethods;

/// What happens, in which order, between the start of the process and the first rule check, and at
/// quit. A step that belongs to a feature is a signal, emitted at its place in the order, which
/// the feature's room connects to.
class LaunchSequence : public QObject
{
    Q_OBJECT

public:
    struct Collaborators
    {
        Scheduler &scheduler;
        SettingsStore &settings;
        RunningApplications &runningApplications;
        XPCMethods &helper;
        DeviceTable &devices;
        CurrentInterface &currentInterface;
        ExternalIPAddress &externalAddress;
        MainWindowModel &mainWindow;
        Presence &presence;
        UserNotifications &userNotifications;
        EventWiring &wiring;
    };

    explicit LaunchSequence(const Collaborators &collaborators);

    // Called in this order, once each, on the main thread.
    void awakeFromNib();
    void applicationWillFinishLaunching();
    void applicationDidFinishLaunching();

    /// The user started the program again while it runs. Always true: the window was opened.
    bool applicationShouldHandleReopen();
    void applicationWillTerminate();

    /// True when the login item is running, which means that it started this process.
    bool startupCheck();
    /// True from a start by the login item until the first rule check has run.
    bool startedFromLogin() const { return m_startedFromLogin; }

Q_SIGNALS:
    // awakeFromNib
    void mainWindowPrepared();
    // applicationWillFinishLaunching
    void vendorDatabaseDue();
    // applicationDidFinishLaunching
    void recordStoreDue();
    void loginItemDue();
    // startup
    void countdownLabelDue();
    void hotKeysDue();
    void vendorCountDue();
    void quickAddressesDue();
    void vendorFieldDue();
    void cloudCheckDue();
    void locationPermissionDue();
    void externalAddressDue();
    /// One second after startup: every rule that holds now is to be carried out. startedFromLogin()
    /// is still true for a start by the login item.
    void firstRuleCheckDue();

private:
    void startup();

    Collaborators m_with;
    bool m_windowPrepared = false;
    bool m_startedFromLogin = false;
};

} // namespace quillon
