// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/networks/SavedItemsWindow.h"

#include "base/Localized.h"
#include "platform/desktop/TaskBar.h"
#include "presence/Presence.h"
#include "ui/networks/FavoriteToast.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/AccessibleRole.h"
#include "ui/widgets/RevealingScrollArea.h"

#include <QAction>
#include <QCoreApplication>
#include <QIcon>
#include <QVBoxLayout>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize usualSize(Theme::windowWidth, 320);
constexpr QSize leastSize(340, 220);

} // namespace

SavedItemsWindow::SavedItemsWindow(
    const Models &models, const Theme &theme, Scheduler &scheduler, TaskBar &taskBar)
    : m_presence(models.presence)
    , m_taskBar(taskBar)
{
    setObjectName(u"savedItems"_s);
    setAccessibleRole(*this, QAccessible::Window);
    setWindowTitle(localized("Saved Networks and Addresses"));
    setWindowIcon(QIcon(u":/icons/com.orvandel.Quillon4.svg"_s));
    auto *view = new SavedItemsView(models.view, theme);
    view->layout()->setContentsMargins(
        Theme::windowMargin, Theme::windowMargin, Theme::windowMargin, Theme::windowMargin);
    auto *area = new RevealingScrollArea(view);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(area);
    setMinimumSize(leastSize);
    resize(usualSize);
    // Lies over the rest.
    new FavoriteToast(models.removed, theme, scheduler, this);
    makeShortcuts();
    connect(&m_presence, &Presence::windowHidden, this, &QWidget::hide);
    // The program ends by the user's wish, or is ended.
    connect(&m_presence, &Presence::terminated, view, &SavedItemsView::endEditing);
    connect(qApp, &QCoreApplication::aboutToQuit, view, &SavedItemsView::endEditing);
    connect(&m_presence, &Presence::dockIconHiddenChanged, this, &SavedItemsWindow::followTaskBar);
    connect(&m_presence, &Presence::openWindowsBroughtToFront, this, [this] {
        if (isVisible() && !isMinimized()) {
            bringUp();
        }
    });
}

SavedItemsWindow::~SavedItemsWindow()
{
    // Popovers close with it, and say so, while it is still whole.
    hide();
}

void SavedItemsWindow::makeShortcuts()
{
    const auto add = [this](const QKeySequence &keys, const QString &text, auto act) {
        auto *action = new QAction(text, this);
        action->setShortcut(keys);
        action->setAutoRepeat(false);
        connect(action, &QAction::triggered, this, act);
        addAction(action);
    };
    add(QKeySequence(Qt::CTRL | Qt::Key_W), localized("Close Window"), [this] { close(); });
    add(QKeySequence(Qt::CTRL | Qt::Key_Q), localized("Quit Quillon"),
        [this] { m_presence.quit(); });
}

void SavedItemsWindow::bringUp()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void SavedItemsWindow::followTaskBar()
{
    if (testAttribute(Qt::WA_WState_Created)) {
        m_taskBar.setSkipped(static_cast<quintptr>(winId()), m_presence.isDockIconHidden());
    }
}

void SavedItemsWindow::showEvent(QShowEvent *event)
{
    followTaskBar();
    QWidget::showEvent(event);
}

} // namespace quillon
