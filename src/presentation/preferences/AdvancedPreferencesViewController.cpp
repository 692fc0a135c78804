// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/preferences/AdvancedPreferencesViewController.h"

#include "base/Localized.h"
#include "helperlink/XPCMethods.h"
#include "platform/Scheduler.h"
#include "platform/SettingsStore.h"
#include "presence/Presence.h"

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

QString installedText()
{
    return filled(localized("Helper: installed, version %@"), {XPCMethods::helperToolVersion()});
}

/// `version` is the helper's answer, or the text of an error.
QString statusText(const QString &version)
{
    if (version == XPCMethods::helperToolVersion()) {
        return installedText();
    }
    const bool isError = version.isEmpty() || version.startsWith("error "_L1);
    return isError ? localized("Helper: not installed")
                   : filled(localized("Helper: outdated, version %@"), {version});
}

} // namespace

AdvancedPreferencesViewController::AdvancedPreferencesViewController(
    XPCMethods &helper, Presence &presence, SettingsStore &groupSettings, Scheduler &scheduler)
    : m_helper(helper)
    , m_presence(presence)
    , m_groupSettings(groupSettings)
    , m_scheduler(scheduler)
{
}

void AdvancedPreferencesViewController::load()
{
    m_isLoaded = true;
    checkButtonStatus();
    m_state.update([](State &state) { state.installEnabled = false; });
    m_helper.getVersionOfHelperToolwithReply(
        m_scheduler.replyOnMain<QString>(this, [this](const QString &version) {
            takeVersion(version);
            m_state.update([&version](State &state) {
                state.installEnabled = version != XPCMethods::helperToolVersion();
            });
        }));
}

void AdvancedPreferencesViewController::checkButtonStatus()
{
    const bool installed = m_helper.isHelperInstalled();
    m_state.update([installed](State &state) {
        state.installEnabled = !installed;
        state.uninstallEnabled = installed;
        if (installed) {
            state.status = installedText();
        } else if (state.status.isEmpty() || state.status == installedText()) {
            state.status = localized("Helper: not installed");
        }
    });
    if (!installed && m_isLoaded) {
        askVersion();
    }
}

/// One that is there and is not ours is told apart from none.
void AdvancedPreferencesViewController::askVersion()
{
    m_helper.getVersionOfHelperToolwithReply(m_scheduler.replyOnMain<QString>(
        this, [this](const QString &version) { takeVersion(version); }));
}

void AdvancedPreferencesViewController::takeVersion(const QString &version)
{
    m_state.update([&version](State &state) { state.status = statusText(version); });
}

void AdvancedPreferencesViewController::installHelper()
{
    if (m_state->work != Work::None) {
        return;
    }
    m_state.update([](State &state) { state.work = Work::Installing; });
    m_helper.installHelperToolwithReply(m_scheduler.replyOnMain<bool>(this, [this](bool success) {
        m_state.update([](State &state) { state.work = Work::None; });
        if (success) {
            m_helper.updateHelperInstalledStatus();
        }
        makeAppKey();
    }));
}

void AdvancedPreferencesViewController::uninstallHelper()
{
    if (m_state->work != Work::None) {
        return;
    }
    m_state.update([](State &state) { state.work = Work::Uninstalling; });
    m_helper.uninstallHelperToolwithReply(m_scheduler.replyOnMain<bool>(this, [this](bool success) {
        m_state.update([](State &state) { state.work = Work::None; });
        if (success) {
            purgeGroupDefaults();
            m_helper.updateHelperInstalledStatus();
        }
        makeAppKey();
    }));
}

void AdvancedPreferencesViewController::purgeGroupDefaults()
{
    for (const char *key : {"success", "device", "version"}) {
        m_groupSettings.set(QString::fromLatin1(key), QVariant());
    }
    m_groupSettings.synchronize();
}

/// The main window first: the preferences lie over it.
void AdvancedPreferencesViewController::makeAppKey()
{
    m_presence.openWindow();
    m_presence.goTo(Destination::Preferences);
}

} // namespace quillon
