// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/preferences/AdvancedPreferencesModel.h"

#include "helperlink/XPCMethods.h"
#include "platform/Scheduler.h"
#include "platform/SettingsStore.h"

#include <QPointer>

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
    m_helper.getVersionOfHelperToolwithReply(
        [self = QPointer(this), &scheduler = m_scheduler](const QString &version) {
            scheduler.onMain([self, version] {
                if (auto *const that = self.data()) {
                    that->set(version != XPCMethods::helperToolVersion(), that->m_uninstallEnabled);
                }
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
    m_helper.installHelperToolwithReply(
        [self = QPointer(this), &scheduler = m_scheduler](bool success) {
            scheduler.onMain([self, success] {
                auto *const that = self.data();
                if (that == nullptr) {
                    return;
                }
                if (success) {
                    that->m_helper.updateHelperInstalledStatus();
                }
                Q_EMIT that->appKeyWanted();
            });
        });
}

void AdvancedPreferencesModel::uninstallHelper()
{
    m_helper.uninstallHelperToolwithReply(
        [self = QPointer(this), &scheduler = m_scheduler](bool success) {
            scheduler.onMain([self, success] {
                auto *const that = self.data();
                if (that == nullptr) {
                    return;
                }
                if (success) {
                    that->purgeGroupDefaults();
                    that->m_helper.updateHelperInstalledStatus();
                }
                Q_EMIT that->appKeyWanted();
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
