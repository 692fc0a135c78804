// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/menu/StatusItem.h"

#include "platform/desktop/TrayHost.h"
#include "presence/Presence.h"
#include "presentation/menu/StatusMenuModel.h"
#include "ui/menu/MenuView.h"
#include "ui/theme/Theme.h"

#include <QSystemTrayIcon>

namespace quillon {

using namespace Qt::StringLiterals;

StatusItem::StatusItem(
    StatusMenuModel &model, Presence &presence, TrayHost &host, const Theme &theme)
    : m_model(model)
    , m_presence(presence)
    , m_theme(theme)
{
    connect(&m_presence, &Presence::statusItemShownChanged, this, &StatusItem::follow);
    host.watch([this](bool available) { hostChanged(available); });
}

StatusItem::~StatusItem() = default;

void StatusItem::hostChanged(bool available)
{
    m_hostAvailable = available;
    m_hostWasThere = m_hostWasThere || available;
    m_presence.setStatusItemAvailable(available);
    if (!available) {
        // Nobody is left to say so.
        m_model.menuDidClose();
    }
    follow();
}

void StatusItem::follow()
{
    const bool wanted = m_presence.isStatusItemShown();
    if (!wanted && m_icon != nullptr) {
        drop();
    } else if (wanted && m_hostWasThere && m_icon == nullptr) {
        // A host that goes away and comes back finds the same item again.
        make();
    }
    if (isShown() != m_reportedShown) {
        m_reportedShown = isShown();
        Q_EMIT shownChanged(m_reportedShown);
    }
}

void StatusItem::make()
{
    m_menu = std::make_unique<MenuView>(m_model);
    m_icon = std::make_unique<QSystemTrayIcon>(m_theme.icon(u"menu"_s, Theme::Ink::Tray));
    m_icon->setToolTip(u"Quillon"_s);
    m_icon->setContextMenu(m_menu.get());
    m_menu->refresh();
    connect(m_icon.get(), &QSystemTrayIcon::activated, this,
        [this](QSystemTrayIcon::ActivationReason reason) {
            if (reason == QSystemTrayIcon::Trigger) {
                m_presence.openWindow();
            }
        });
    m_icon->show();
}

void StatusItem::drop()
{
    m_icon.reset();
    m_menu.reset();
    m_model.menuDidClose();
}

} // namespace quillon
