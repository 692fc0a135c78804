// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/UserInterface.h"

#include "platform/desktop/ColorSchemeSource.h"
#include "presentation/menu/FileMenuModel.h"
#include "ui/vendors/VendorChooser.h"
#include "ui/vendors/VendorDataCard.h"
#include "ui/window/InterfaceDetails.h"

#include <QApplication>
#include <QToolButton>

namespace quillon {

namespace {

/// The theme must dress the application before the first window measures itself.
Theme &applied(Theme &theme)
{
    theme.apply();
    return theme;
}

} // namespace

UserInterface::UserInterface(const Models &models, const Desktop &desktop)
    : m_theme(schemeOf(QGuiApplication::palette()))
    , m_fileMenu(models.fileMenu)
    , m_mainWindow(models.mainWindow, models.presence, applied(m_theme), desktop.taskBar)
    , m_statusItem(models.statusMenu, models.presence, desktop.trayHost, m_theme)
{
    m_mainWindow.addMenuButton(m_fileMenu.makeButton(m_theme));
    m_mainWindow.addChoice(new VendorChooser(models.vendorField, m_theme));
    // It belongs to the details.
    new StatusRows(models.status, m_theme, m_mainWindow.details());
    m_mainWindow.addDetails(new VendorDataCard(models.vendorPane, m_theme));
    // Closing the window is not the end: MainWindow says what it means.
    QApplication::setQuitOnLastWindowClosed(false);
    QObject::connect(&m_statusItem, &StatusItem::shownChanged, &m_mainWindow,
        [this](bool shown) { m_mainWindow.setReachableWhenClosed(shown); });
    m_theme.setCompositing(desktop.compositing);
    desktop.colorScheme.watch([this](ColorScheme scheme) { m_theme.setScheme(scheme); });
}

} // namespace quillon
