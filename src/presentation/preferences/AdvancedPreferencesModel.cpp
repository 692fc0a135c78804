// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/preferences/AdvancedPreferencesModel.h"

#include "helperlink/XPCMethods.h"
#include "platform/Scheduler.h"
#include "platform/SettingsStore.h"
#include "presence/Presence.h"

namespace quillon {

AdvancedPreferencesModel::AdvancedPreferencesModel(
    XPCMethods &helper, Presence &presence, SettingsStore &groupSettings, Scheduler &scheduler)
    : m_helper(helper)
    , m_presence(presence)
    , m_groupSettings(groupSettings)
    , m_scheduler(scheduler)
{
}

void AdvancedPreferencesModel::load()
{
    checkButtonStatus();
    set(false, m_uninstallEnabled);
    m_helper.getVersionOfHelperToolwithReply(
        m_scheduler.replyOnMain<QString>(this, [this](const QString &version) {
            set(version != XPCMethods::helperToolVersion(), m_uninstallEnabled);
        }));
}

void AdvancedPreferencesModel::checkButtonStatus()
{
    const bool installed = m_helper.isHelperInstalled();
    set(!installed, installed);
}

void AdvancedPreferencesModel::installHelper()
{
    m_helper.installHelperToolwithReply(m_scheduler.replyOnMain<bool>(this, [this](bool success) {
        if (success) {
            m_helper.updateHelperInstalledStatus();
        }
        m_presence.openWindow();
    }));
}

void AdvancedPreferencesModel::uninstallHelper()
{
    m_helper.uninstallHelperToolwithReply(m_scheduler.replyOnMain<bool>(this, [this](bool success) {
        if (success) {
            purgeGroupDefaults();
            m_helper.updateHelperInstalledStatus();
        }
        m_presence.openWindow();
    }));
}

void AdvancedPreferencesModel::purgeGroupDefaults()
{
    for (const char *key : {"success", "device", "version"}) {
        m_groupSettings.set(QString::fromLatin1(key), QVariant());
    }
    m_groupSettings.synchronize();
}

void AdvancedPreferencesModel::set(bool installEnabled, bool uninstallEnabled)
{
    if (installEnabled != m_installEnabled || uninstallEnabled != m_uninstallEnabled) {
        m_installEnabled = installEnabled;
        m_uninstallEnabled = uninstallEnabled;
        Q_EMIT changed();
    }
}

} // namespace quillon
