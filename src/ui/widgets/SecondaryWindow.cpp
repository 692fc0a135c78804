// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/SecondaryWindow.h"

#include "base/Localized.h"
#include "platform/desktop/TaskBar.h"
#include "presence/Presence.h"
#include "ui/widgets/AccessibleRole.h"

#include <QAction>
#include <QIcon>
#include <QMouseEvent>
#include <QWindow>

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

void addCommand(QWidget &window, const QKeySequence &keys, const QString &text,
    const std::function<void()> &act)
{
    auto *action = new QAction(text, &window);
    action->setShortcut(keys);
    action->setAutoRepeat(false);
    QObject::connect(action, &QAction::triggered, &window, act);
    window.addAction(action);
}

} // namespace

void addWindowShortcuts(QWidget &window, Presence &presence)
{
    const auto leadTo = [&](Qt::Key key, const QString &text, Destination destination) {
        addCommand(window, QKeySequence(Qt::CTRL | key), text,
            [&presence, destination] { presence.goTo(destination); });
    };
    leadTo(Qt::Key_O, localized("Overview"), Destination::Overview);
    leadTo(Qt::Key_H, localized("History"), Destination::History);
    leadTo(Qt::Key_Comma, localized("Preferences"), Destination::Preferences);
}

bool isGround(const QWidget &window, const QPoint &place)
{
    // A control that is disabled leaves its presses to the window but is no ground.
    const QWidget *widget = window.childAt(place);
    while (widget != nullptr && widget != &window && widget->focusPolicy() == Qt::NoFocus) {
        widget = widget->parentWidget();
    }
    return widget == nullptr || widget == &window;
}

SecondaryWindow::SecondaryWindow(const QString &objectName, Presence &presence, TaskBar &taskBar)
    : m_presence(presence)
    , m_taskBar(taskBar)
{
    setObjectName(objectName);
    setAccessibleRole(*this, QAccessible::Window);
    setWindowIcon(QIcon(u":/icons/com.orvandel.Quillon4.svg"_s));
    makeShortcuts();
    connect(&m_presence, &Presence::windowHidden, this, &QWidget::hide);
    connect(&m_presence, &Presence::dockIconHiddenChanged, this, &SecondaryWindow::followTaskBar);
    connect(&m_presence, &Presence::openWindowsBroughtToFront, this, [this] {
        if (isVisible() && !isMinimized()) {
            bringUp();
        }
    });
}

void SecondaryWindow::makeShortcuts()
{
    addWindowShortcuts(*this, m_presence);
    addShortcut(QKeySequence(Qt::CTRL | Qt::Key_N), localized("New Network Rule…"),
        [this] { m_presence.goTo(Destination::NewNetworkRule); });
    addShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_N), localized("New Login Rule…"),
        [this] { m_presence.goTo(Destination::NewLoginRule); });
    addShortcut(QKeySequence(Qt::CTRL | Qt::Key_W), localized("Close Window"), [this] { close(); });
    addShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q), localized("Quit Quillon"),
        [this] { m_presence.quit(); });
}

void SecondaryWindow::addShortcut(
    const QKeySequence &keys, const QString &text, std::function<void()> act)
{
    addCommand(*this, keys, text, act);
}

void SecondaryWindow::bringUp()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void SecondaryWindow::followTaskBar()
{
    if (testAttribute(Qt::WA_WState_Created)) {
        m_taskBar.setSkipped(static_cast<quintptr>(winId()), m_presence.isDockIconHidden());
    }
}

void SecondaryWindow::showEvent(QShowEvent *event)
{
    followTaskBar();
    QWidget::showEvent(event);
}

void SecondaryWindow::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && isGround(*this, event->position().toPoint())) {
        // Where the desktop cannot move windows on request there is still the title bar.
        windowHandle()->startSystemMove();
    } else {
        event->ignore();
    }
}

} // namespace quillon
