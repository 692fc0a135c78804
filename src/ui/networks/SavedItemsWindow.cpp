// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/networks/SavedItemsWindow.h"

#include "base/Localized.h"
#include "presence/Presence.h"
#include "ui/networks/FavoriteToast.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/RevealingScrollArea.h"

#include <QCoreApplication>
#include <QVBoxLayout>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize usualSize(Theme::windowWidth, 320);
constexpr QSize leastSize(340, 220);

} // namespace

SavedItemsWindow::SavedItemsWindow(
    const Models &models, const Theme &theme, Scheduler &scheduler, TaskBar &taskBar)
    : SecondaryWindow(u"savedItems"_s, models.presence, taskBar)
{
    setWindowTitle(localized("Saved Networks and Addresses"));
    auto *view = new SavedItemsView(models.view, theme);
    view->layout()->setContentsMargins(
        Theme::windowMargin, Theme::windowMargin, Theme::windowMargin, Theme::windowMargin);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(new RevealingScrollArea(view));
    setMinimumSize(leastSize);
    resize(usualSize);
    // Lies over the rest.
    new FavoriteToast(models.removed, theme, scheduler, this);
    // The program ends by the user's wish, or is ended.
    connect(&models.presence, &Presence::terminated, view, &SavedItemsView::endEditing);
    connect(qApp, &QCoreApplication::aboutToQuit, view, &SavedItemsView::endEditing);
}

SavedItemsWindow::~SavedItemsWindow()
{
    // Popovers close with it, and say so, while it is still whole.
    hide();
}

} // namespace quillon
