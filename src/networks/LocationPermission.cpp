// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "networks/LocationPermission.h"

#include "base/Localized.h"
#include "base/Log.h"
#include "networks/WiFiNetwork.h"
#include "platform/Scheduler.h"
#include "platform/desktop/SystemSettings.h"

#include <QPointer>

namespace quillon {

namespace {

// Alerts and questions wait until the window has come up, so that they appear above it.
constexpr std::chrono::milliseconds questionDelay{1000};
constexpr int openButton = 0;

} // namespace

LocationPermission::LocationPermission(const Collaborators &collaborators)
    : m_deps(collaborators)
{
}

void LocationPermission::requestNetworkPermissions()
{
    m_deps.scheduler.onMain(this, [this] { followAuthorization(); });
}

void LocationPermission::followAuthorization()
{
    m_deps.authorization.setDelegate({
        .didChangeAuthorization =
            [self = QPointer(this)](LocationAuthorization::Status status) {
                if (auto *const that = self.data()) {
                    that->locationManagerDidChangeAuthorization(status);
                }
            },
        .didFailWithError =
            [self = QPointer(this)](int code) {
                if (auto *const that = self.data()) {
                    that->locationManagerDidFailWithError(code);
                }
            },
    });
    if (!m_deps.authorization.servicesEnabled()) {
        Q_EMIT servicesFoundDisabled();
    }
    m_deps.scheduler.onMainAfter(
        questionDelay, this, [this] { m_deps.authorization.requestWhenInUseAuthorization(); });
}

void LocationPermission::locationManagerDidChangeAuthorization(LocationAuthorization::Status status)
{
    if (status == LocationAuthorization::Status::Denied) {
        showLocationError();
    }
    m_deps.wifi.updateWiFiNetwork();
}

void LocationPermission::locationManagerDidFailWithError(int code)
{
    if (code == LocationAuthorization::denied) {
        showLocationError();
    }
}

void LocationPermission::showLocationError()
{
    if (m_locationAlert) {
        return;
    }
    m_locationAlert = Alert{
        .message = localized(
            "Quillon requires Location Services to determine your current network details"),
        .informativeText = localized("You need to give Quillon access in System Settings > Privacy "
                                     "& Security > Privacy > Location Services"),
        .buttons = {localized("Open"), localized("Cancel")},
    };
    m_deps.scheduler.onMainAfter(questionDelay, this, [this] { runLocationAlert(); });
}

void LocationPermission::runLocationAlert()
{
    // Events go on while the alert is open: the program may end under it.
    const QPointer self(this);
    const Alert alert = *m_locationAlert;
    const int answer = m_deps.alerts.runModal(alert);
    if (!self) {
        return;
    }
    if (answer == openButton) {
        openSystemSettings();
    }
    m_locationAlert.reset();
}

void LocationPermission::openSystemSettings()
{
    if (!m_deps.systemSettings.openLocationServices()) {
        qCWarning(logNetworks, "No settings program found for location services");
    }
}

} // namespace quillon
