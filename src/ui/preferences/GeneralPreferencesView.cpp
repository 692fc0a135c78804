// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/preferences/GeneralPreferencesView.h"

#include "base/Localized.h"
#include "presentation/preferences/GeneralPreferencesViewController.h"
#include "ui/preferences/PaneLayout.h"
#include "ui/preferences/SettingCheckBox.h"
#include "ui/preferences/ShortcutField.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/InlineLine.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace quillon {

using namespace Qt::StringLiterals;

GeneralPreferencesView::GeneralPreferencesView(
    GeneralPreferencesViewController &controller, const Theme &theme, const Account &account)
    : m_controller(controller)
    , m_login(new InlineLine(theme))
    , m_hideDock(new InlineLine(theme))
    , m_cloud(new InlineLine(theme))
{
    GeneralPreferencesViewController &c = controller;
    QVBoxLayout *pane = makePaneColumn(*this);
    QVBoxLayout *start = addCard(*pane);
    start->addWidget(
        new SettingCheckBox(c.loginStart, u"loginStart"_s, localized("Start Quillon at login")));
    addUnderCheckBox(*start, m_login);
    start->addWidget(new SettingCheckBox(
        c.hideOnLaunch, u"hideOnLaunch"_s, localized("Do not open the window at login")));
    QVBoxLayout *place = addCard(*pane);
    place->addWidget(
        new SettingCheckBox(c.showInMenu, u"showInMenu"_s, localized("Show in the status bar")));
    place->addWidget(
        new SettingCheckBox(c.hideDock, u"hideDock"_s, localized("Hide from the task bar")));
    addUnderCheckBox(*place, m_hideDock);
    place->addWidget(new SettingCheckBox(
        c.displayNotifications, u"displayNotifications"_s, localized("Show notifications")));
    QVBoxLayout *shortcuts = addCard(*pane, localized("Shortcuts that work in every window"));
    shortcuts->addWidget(new ShortcutField(c.showButton, c.showRecorder, u"showButton"_s, theme));
    shortcuts->addWidget(new ShortcutField(c.randButton, c.randRecorder, u"randButton"_s, theme));
    QVBoxLayout *sync = addCard(*pane);
    auto *cloud = new SettingCheckBox(
        c.iCloudSync, u"iCloudSync"_s, localized("Sync settings, rules and history"));
    // Switched on, the account gets the settings of this machine.
    connect(cloud, &SettingCheckBox::switched, this, [&c](bool isOn) { c.synciCloud(isOn); });
    auto *switchAndAccount = new QHBoxLayout;
    switchAndAccount->setSpacing(Theme::unit);
    switchAndAccount->addWidget(cloud, 1);
    switchAndAccount->addWidget(account.button);
    sync->addLayout(switchAndAccount);
    addUnderCheckBox(*sync, m_cloud);
    addUnderCheckBox(*sync, account.row);

    connect(&c, &GeneralPreferencesViewController::changed, this, &GeneralPreferencesView::refresh);
    connect(&c, &GeneralPreferencesViewController::viewRefreshed, this,
        &GeneralPreferencesView::redraw);
    c.load();
    refresh();
}

bool GeneralPreferencesView::event(QEvent *event)
{
    // Its entry may have been switched off in another window.
    if (event->type() == QEvent::WindowActivate && isVisible()) {
        m_controller.look();
    }
    return QWidget::event(event);
}

void GeneralPreferencesView::showEvent(QShowEvent *event)
{
    m_controller.look();
    QWidget::showEvent(event);
}

void GeneralPreferencesView::refresh()
{
    const auto &state = m_controller.state();
    sayLine(*m_login, state.login);
    sayLine(*m_hideDock, state.hideDock);
    sayLine(*m_cloud, state.cloud);
}

void GeneralPreferencesView::redraw()
{
    const auto parts = findChildren<QWidget *>();
    for (QWidget *part : parts) {
        part->update();
    }
}

} // namespace quillon
