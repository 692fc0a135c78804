// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/UserInterface.h"

#include "base/Localized.h"
#include "platform/desktop/AppearanceSource.h"
#include "presence/Presence.h"
#include "presentation/menu/FileMenuModel.h"
#include "presentation/networks/SavedListsModel.h"
#include "presentation/rules/CountdownModel.h"
#include "presentation/window/MainWindowModel.h"
#include "ui/networks/ExternalAddressRow.h"
#include "ui/networks/FavoriteToast.h"
#include "ui/networks/NetworkRow.h"
#include "ui/networks/SavedAddressesRow.h"
#include "ui/networks/WiredTraces.h"
#include "ui/rules/CountdownRow.h"
#include "ui/vendors/MissingVendors.h"
#include "ui/vendors/VendorChooser.h"
#include "ui/vendors/VendorRow.h"
#include "ui/window/AddressCard.h"
#include "ui/window/FactsCard.h"
#include "ui/window/HardwareRow.h"

#include <QApplication>
#include <QKeySequence>
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
    , m_fileMenu(models.fileMenu, models.editMenu)
    , m_mainWindow(models.window, applied(m_theme), desktop.taskBar)
    , m_otherWindows(models.others, m_theme, {desktop.scheduler, desktop.taskBar})
    , m_statusItem(models.statusMenu, models.window.presence, desktop.trayHost, m_theme)
{
    qApp->installEventFilter(&m_heldKeys);
    m_mainWindow.addMenuButton(m_fileMenu.makeButton(m_theme));
    m_mainWindow.addressCard().addChoice(new VendorChooser(models.vendorField, m_theme));
    makeFacts(models);
    makeShortcuts(models);
    new FavoriteToast(models.removedInMainWindow, m_theme, desktop.scheduler, &m_mainWindow);
    m_mainWindow.putFooterAndHeaderLast();
    // Closing the window is not the end: MainWindow says what it means.
    QApplication::setQuitOnLastWindowClosed(false);
    QObject::connect(&models.window.presence, &Presence::windowClosed, &m_mainWindow, [] {
        if (QWidget *inUse = QApplication::activeWindow()) {
            inUse->close();
        }
    });
    QObject::connect(&m_statusItem, &StatusItem::shownChanged, &m_mainWindow,
        [this](bool shown) { m_mainWindow.setReachableWhenClosed(shown); });
    m_theme.setCompositing(desktop.compositing);
    const ColorScheme usual = m_theme.scheme();
    desktop.appearance.watch([this, usual](const Appearance &wanted) {
        m_theme.setScheme(wanted.scheme.value_or(usual));
        m_theme.setContrast(wanted.isHighContrast ? Contrast::High : Contrast::Normal);
        m_theme.setAnimated(!wanted.isStill);
    });
}

void UserInterface::makeFacts(const Models &models)
{
    FactsCard &facts = m_mainWindow.facts();
    const auto makeWiredTraces = [&traces = models.traces, &network = models.network](
                                     QWidget *parent) {
        return new WiredTraces(traces, network, parent);
    };
    auto *hardware = new HardwareRow(models.window.window, m_theme, makeWiredTraces);
    facts.add(hardware);
    auto *saved = new SavedAddressesRow(
        {models.savedLists, models.window.window, models.window.presence}, m_theme);
    QObject::connect(saved, &SavedAddressesRow::filled, &m_mainWindow, &MainWindow::focusApply);
    facts.add(saved);
    auto *vendor = new VendorRow(models.vendorInfo, m_theme);
    facts.add(vendor);
    facts.add(new MissingVendors(models.vendorPane, models.others.preferences.window));
    auto *network = new NetworkRow(models.network, models.traces, m_theme);
    facts.add(network);
    facts.add(new RulesRow(models.rules, m_theme));
    facts.add(new CountdownRow(models.countdown, m_theme));
    facts.add(new ExternalAddressRow(models.externalAddress, m_theme));
    for (const RowButton *row :
        std::initializer_list<RowButton *>{hardware, saved, vendor, network}) {
        QObject::connect(&models.window.window, &MainWindowModel::infoButtonsReset, row,
            &RowButton::resetEmphasis);
    }
}

void UserInterface::makeShortcuts(const Models &models)
{
    SavedListsModel &saved = models.savedLists;
    CountdownModel &countdown = models.countdown;
    addWindowShortcuts(m_mainWindow, models.window.presence);
    m_mainWindow.addShortcut(QKeySequence(Qt::CTRL | Qt::Key_D), localized("Favorite"),
        [&saved] { saved.chooseFavoriteButton(); });
    m_mainWindow.addShortcut(
        QKeySequence(Qt::CTRL | Qt::Key_T), localized("Pause or Resume Timer"), [&countdown] {
            const auto &state = countdown.state();
            if (state.buttonsVisible && state.pauseEnabled) {
                countdown.pauseCountdownTimer();
            } else if (state.buttonsVisible && state.resumeEnabled) {
                countdown.resumeCountdownTimer();
            }
        });
}

} // namespace quillon
