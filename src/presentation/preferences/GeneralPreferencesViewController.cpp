// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/preferences/GeneralPreferencesViewController.h"

#include "base/Localized.h"
#include "base/SettingsKeys.h"
#include "loginitem/StartAtLoginController.h"
#include "platform/Scheduler.h"
#include "platform/SettingsSync.h"
#include "presence/Presence.h"
#include "presentation/preferences/LoginLine.h"

#include <QPointer>

namespace quillon {

GeneralPreferencesViewController::GeneralPreferencesViewController(
    const Collaborators &collaborators)
    : loginStart(collaborators.settings, keys::loginStart)
    , hideOnLaunch(collaborators.settings, keys::hideOnLaunch)
    , showInMenu(collaborators.settings, keys::showInMenu)
    , hideDock(collaborators.settings, keys::hideDock)
    , displayNotifications(collaborators.settings, keys::displayNotifications)
    , showButton(collaborators.settings, keys::showKeyEnabled)
    , randButton(collaborators.settings, keys::randomKeyEnabled)
    , iCloudSync(collaborators.settings, keys::iCloudSync)
    , showRecorder(ShortcutRecorder::For::ShowWindow, collaborators.settings, collaborators.hotKeys)
    , randRecorder(
          ShortcutRecorder::For::RandomAddress, collaborators.settings, collaborators.hotKeys)
    , m_deps(collaborators)
{
    connect(&m_deps.login, &StartAtLoginController::changed, this,
        &GeneralPreferencesViewController::showLogin);
    connect(
        &loginStart, &BoundSetting::changed, this, &GeneralPreferencesViewController::showLogin);
    connect(&showInMenu, &BoundSetting::changed, this, &GeneralPreferencesViewController::showDock);
    connect(&m_deps.presence, &Presence::reachChanged, this,
        &GeneralPreferencesViewController::showDock);
    showDock();
}

void GeneralPreferencesViewController::load()
{
    m_deps.login.initLoginController();
    if (!m_deps.login.hasProgram()) {
        loginStart.setWhyDisabled(loginLine(true, false, {}, {}).text);
    }
    m_deps.hotKeys.findWay();
    m_deps.loginItem.findDesktop([self = QPointer(this)](LoginItem::Desktop desktop) {
        if (self) {
            self->m_desktop = desktop;
            self->showLogin();
        }
    });
    look();
}

void GeneralPreferencesViewController::look()
{
    showLogin();
    showDock();
}

void GeneralPreferencesViewController::refreshKeyButtons()
{
    showButton.refresh();
    randButton.refresh();
}

void GeneralPreferencesViewController::refreshView()
{
    m_deps.scheduler.onMain(this, [this] {
        for (BoundSetting *setting : {&loginStart, &hideOnLaunch, &showInMenu, &hideDock,
                 &displayNotifications, &showButton, &randButton, &iCloudSync}) {
            setting->refresh();
        }
        showRecorder.refresh();
        randRecorder.refresh();
        look();
        Q_EMIT viewRefreshed();
    });
}

void GeneralPreferencesViewController::synciCloud(bool isOn)
{
    iCloudSync.set(isOn);
    m_deps.scheduler.onMain(this, [this, isOn] {
        if (isOn) {
            m_deps.sync.syncFromCurrentState();
        }
    });
}

void GeneralPreferencesViewController::showTrouble(const QString &trouble)
{
    m_trouble = trouble;
    refreshCloud();
}

void GeneralPreferencesViewController::showAccount(bool isThere)
{
    m_whyNoAccount =
        isThere ? QString() : localized("No account yet: there is nowhere to sync with.");
    refreshCloud();
}

void GeneralPreferencesViewController::refreshCloud()
{
    m_state.update([this](State &state) {
        state.cloud = m_trouble.isEmpty()
                          ? PreferencesLine{PreferencesLine::Kind::Hint, m_whyNoAccount}
                          : PreferencesLine{PreferencesLine::Kind::Notice, m_trouble};
    });
}

void GeneralPreferencesViewController::showLogin()
{
    const PreferencesLine line = loginLine(
        !m_deps.login.hasProgram(), loginStart.state().isOn, m_deps.loginItem.entry(), m_desktop);
    m_state.update([&line](State &state) { state.login = line; });
}

void GeneralPreferencesViewController::showDock()
{
    const bool isOn = showInMenu.state().isOn;
    const QString why = m_deps.presence.isStatusItemInSight() ? QString()
                        : isOn ? localized("Not while this desktop shows no status items.")
                               : localized("Only with the icon in the status bar.");
    hideDock.setWhyDisabled(why);
    m_state.update([&why](State &state) { state.hideDock = {PreferencesLine::Kind::Hint, why}; });
}

} // namespace quillon
