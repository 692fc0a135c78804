// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/LocationAuthorization.h"
#include "platform/desktop/AlertPresenter.h"

#include <QObject>

#include <optional>

namespace quillon {

class Scheduler;
class SystemSettings;
class WiFiNetwork;

/// Asks for the permission without which the platform hides the names of networks, and tells the
/// user how to give it when it is refused. Main thread.
class LocationPermission : public QObject
{
    Q_OBJECT

public:
    struct Collaborators
    {
        Scheduler &scheduler;
        LocationAuthorization &authorization;
        AlertPresenter &alerts;
        SystemSettings &systemSettings;
        WiFiNetwork &wifi;
    };

    explicit LocationPermission(const Collaborators &collaborators);

    /// In a later turn of the main loop: follows the authorization, and asks for it one second
    /// after that.
    void requestNetworkPermissions();

    void locationManagerDidChangeAuthorization(LocationAuthorization::Status status);
    void locationManagerDidFailWithError(int code);
    /// One alert at a time, one second later; a call before its end changes nothing.
    void showLocationError();
    void openSystemSettings();

Q_SIGNALS:
    /// Location services are switched off for the whole system: the user is to see the program that
    /// is going to ask.
    void servicesFoundDisabled();

private:
    void followAuthorization();
    void runLocationAlert();

    Collaborators m_deps;
    std::optional<Alert> m_locationAlert; ///< kept until the user has answered it
};

} // namespace quillon
