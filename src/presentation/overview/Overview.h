// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "presentation/overview/OverviewController.h"

namespace quillon {

/// The overview as the rest of the program knows it: whether it is open, and whether anybody sees
/// it. Its controller is made on demand and released when the window closes. Main thread.
class Overview : public QObject
{
    Q_OBJECT

public:
    struct Collaborators
    {
        SettingsStore &settings;
        Scheduler &scheduler;
        NotificationCenter &notifications;
        const DeviceTable &devices;
        CurrentInterface &currentInterface;
        AddressChanger &addressChanger;
        CountdownTimers &timers;
        Presence &presence;
        const XPCMethods &helper;
    };

    explicit Overview(const Collaborators &collaborators);
    ~Overview() override;

    /// Null while the window is closed.
    OverviewController *controller() const { return m_controller.get(); }
    /// One that is open and out of date is loaded anew.
    void openOverviewWindow();
    void loadAnew();
    void releaseOverviewWindow();

    /// The interfaces were read.
    void look();
    void setHelperInstalled(bool installed);

    /// Whether there is anything of the window to see.
    bool isInSight() const { return m_isInSight; }
    void setInSight(bool inSight);

Q_SIGNALS:
    /// Nobody may use it after this.
    void controllerGoing();
    void controllerMade();
    void inSightChanged();

private:
    void makeController();

    Collaborators m_deps;
    OverviewChanges m_changes;
    std::unique_ptr<OverviewController> m_controller;
    bool m_isInSight = false;
};

} // namespace quillon
