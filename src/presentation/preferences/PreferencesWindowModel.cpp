// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/preferences/PreferencesWindowModel.h"

#include "base/NotificationNames.h"
#include "base/SettingsKeys.h"
#include "platform/NotificationCenter.h"
#include "platform/SettingsStore.h"

namespace quillon {

using namespace Qt::StringLiterals;

PreferencesWindowModel::PreferencesWindowModel(
    SettingsStore &settings, NotificationCenter &notifications)
    : m_settings(settings)
    , m_notifications(notifications)
{
}

void PreferencesWindowModel::showPane(PreferencesPane pane)
{
    if (pane != m_pane) {
        m_pane = pane;
        Q_EMIT paneChanged();
    }
}

void PreferencesWindowModel::changePrefsTab(const QVariantMap &userInfo)
{
    const QString wanted = userInfo.value(u"tab"_s).toString();
    for (const PreferencesPaneInfo &info : preferencesPanes()) {
        if (info.identifier == wanted) {
            showPane(info.pane);
        }
    }
}

void PreferencesWindowModel::openPreferencesWindow()
{
    Q_EMIT windowOpened();
}

void PreferencesWindowModel::aboutQuillon()
{
    openPane(PreferencesPane::About);
}

void PreferencesWindowModel::openFavsEditor()
{
    openRulesPane(RulesTab::SavedItems);
}

void PreferencesWindowModel::openRuleEditor()
{
    openRulesPane(RulesTab::Rules);
}

void PreferencesWindowModel::goTo(Destination destination)
{
    switch (destination) {
    case Destination::Preferences:
        openPreferencesWindow();
        break;
    case Destination::About:
        aboutQuillon();
        break;
    case Destination::SavedItems:
        openFavsEditor();
        break;
    case Destination::Rules:
    case Destination::NewNetworkRule:
    case Destination::NewLoginRule:
        openRuleEditor();
        break;
    case Destination::Overview:
    case Destination::History:
        break;
    }
}

void PreferencesWindowModel::openPane(PreferencesPane pane)
{
    openPreferencesWindow();
    const QString identifier = preferencesPanes().at(static_cast<qsizetype>(pane)).identifier;
    m_notifications.post(notifications::changePrefsTab, this, {{u"tab"_s, identifier}});
}

void PreferencesWindowModel::openRulesPane(RulesTab tab)
{
    m_settings.set(keys::customTabIndex, static_cast<qlonglong>(tab));
    openPane(PreferencesPane::Rules);
    m_notifications.post(notifications::changeRulesTab, this);
}

} // namespace quillon
