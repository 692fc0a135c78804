// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/AdvancedPreferencesModel.h"

#include "XPCMethods.h"
#include "platform/Scheduler.h"
#include "platform/SettingsStore.h"

namespace quillon {

AdvancedPreferencesModel::AdvancedPreferencesModel(
    XPCMethods &helper, SettingsStore &groupSettings, Scheduler &scheduler)
    : m_helper(helper)
    , m_groupSettings(groupSettings)
    , m_scheduler(scheduler)
{
}

void AdvancedPreferencesModel::load()
{
    checkButtonStatus();
    set(false, m_uninstallEnabled);
    m_helper.getVersionOfHelperToolwithReply([this](const QString &version) {
        m_scheduler.onMain([this, version] {
            set(version != XPCMethods::helperToolVersion(), m_uninstallEnabled);
        });
    });
}

void AdvancedPreferencesModel::checkButtonStatus()
{
    const bool installed = m_helper.isHelperInstalled();
    set(!installed, installed);
}

void AdvancedPreferencesModel::installHelper()
{
    m_helper.installHelperToolwithReply([this](bool success) {
        m_scheduler.onMain([this, success] {
            if (success) {
                m_helper.updateHelperInstalledStatus();
            }
            Q_EMIT appKeyWanted();
        });
    });
}

void AdvancedPreferencesModel::uninstallHelper()
{
    m_helper.uninstallHelperToolwithReply([this](bool success) {
        m_scheduler.onMain([this, success] {
            if (success) {
                purgeGroupDefaults();
                m_helper.updateHelperInstalledStatus();
            }
            Q_EMIT appKeyWanted();
        });
    });
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
