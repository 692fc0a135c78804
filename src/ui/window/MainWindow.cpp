// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/MainWindow.h"

#include "base/Localized.h"
#include "platform/desktop/TaskBar.h"
#include "presence/Presence.h"
#include "presentation/window/MainWindowModel.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/DetailsArea.h"
#include "ui/widgets/EmptyState.h"
#include "ui/widgets/SecondaryWindow.h"
#include "ui/window/AddressCard.h"
#include "ui/window/AddressField.h"
#include "ui/window/FactsCard.h"
#include "ui/window/Footer.h"
#include "ui/window/InterfaceHeader.h"
#include "ui/window/InterfaceSelector.h"
#include "ui/window/ReadMeStrip.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QMouseEvent>
#include <QScreen>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// What a desktop draws around windows, before it has told us.
constexpr int usualFrame = 32;
/// To assistive technology a plain widget is a part of something; this one is a window.
QAccessibleInterface *accessibleWindow(const QString &, QObject *object)
{
    auto *window = qobject_cast<MainWindow *>(object);
    return window == nullptr ? nullptr : new QAccessibleWidget(window, QAccessible::Window);
}

} // namespace

MainWindow::MainWindow(const Models &models, const Theme &theme, TaskBar &taskBar)
    : m_model(models.window)
    , m_presence(models.presence)
    , m_taskBar(taskBar)
    , m_header(new InterfaceHeader(models.window, theme))
    , m_addressCard(new AddressCard(models.window, theme))
    , m_facts(new FactsCard(theme))
    , m_noInterface(new EmptyState(theme, u"wired"_s))
    , m_area(new DetailsArea)
    , m_footer(new Footer(models.presence, theme))
    , m_column(new QVBoxLayout(this))
{
    QAccessible::installFactory(accessibleWindow);
    setObjectName(u"windowView"_s);
    setWindowTitle(u"Quillon"_s);
    m_area->add(m_facts);
    m_noInterface->setObjectName(u"noInterface"_s);
    m_noInterface->say(localized("No interface here can be changed."));
    m_column->setContentsMargins(Theme::windowMargin, Theme::windowMargin - Theme::unit / 2,
        Theme::windowMargin, Theme::unit);
    m_column->setSpacing(Theme::spacing);
    // The window is as large as its texts need, in any language and at any scale.
    m_column->setSizeConstraint(QLayout::SetFixedSize);
    m_column->addWidget(m_header);
    m_column->addWidget(new ReadMeStrip(models.readMe, theme));
    m_column->addWidget(m_addressCard);
    m_column->addWidget(m_noInterface);
    m_column->addWidget(m_area);
    m_column->addWidget(m_footer);

    makeShortcuts();
    connectModel();
    connectPresence();
    m_presence.setWindowInSight(false);
    refresh();
}

void MainWindow::addMenuButton(QWidget *button)
{
    m_header->addAtEnd(button);
}

MainWindow::~MainWindow()
{
    // Popovers close with it, and say so, while it is still whole.
    hide();
}

void MainWindow::putFooterAndHeaderLast()
{
    const auto isIn = [](const QWidget *part, const QWidget *widget) {
        return (widget->focusPolicy() & Qt::TabFocus) != 0 && part->isAncestorOf(widget);
    };
    QWidget *last = previousInFocusChain();
    while (last != this && ((last->focusPolicy() & Qt::TabFocus) == 0 || isIn(m_footer, last) ||
                               isIn(m_header, last))) {
        last = last->previousInFocusChain();
    }
    QList<QWidget *> stops;
    for (const QWidget *part : std::initializer_list<const QWidget *>{m_footer, m_header}) {
        for (QWidget *widget = nextInFocusChain(); widget != this;
            widget = widget->nextInFocusChain()) {
            if (isIn(part, widget)) {
                stops.append(widget);
            }
        }
    }
    for (QWidget *stop : std::as_const(stops)) {
        setTabOrder(last, stop);
        last = stop;
    }
}

void MainWindow::addShortcut(
    const QKeySequence &keys, const QString &text, std::function<void()> act)
{
    auto *action = new QAction(text, this);
    action->setShortcut(keys);
    action->setAutoRepeat(false);
    connect(action, &QAction::triggered, this, std::move(act));
    addAction(action);
}

void MainWindow::focusApply()
{
    m_addressCard->focusApply();
}

void MainWindow::makeShortcuts()
{
    addShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q), localized("Quit Quillon"),
        [this] { m_presence.quit(); });
    addShortcut(QKeySequence(Qt::CTRL | Qt::Key_L), localized("Address"), [this] {
        m_addressCard->field().setFocus(Qt::ShortcutFocusReason);
        m_addressCard->field().selectAll();
    });
    addShortcut(QKeySequence(Qt::CTRL | Qt::Key_R), localized("Randomize"),
        [this] { m_addressCard->randomize(); });
    addShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_R), localized("Restore"), [this] {
        if (m_model.state().restoreEnabled) {
            m_model.restoreDefaultAddress();
        }
    });
}

void MainWindow::connectModel()
{
    connect(&m_model, &MainWindowModel::changed, this, &MainWindow::refresh);
    connect(&m_model, &MainWindowModel::infoButtonsReset, &m_header->selector(),
        &InterfaceSelector::resetEmphasis);
}

void MainWindow::connectPresence()
{
    connect(&m_presence, &Presence::windowOpened, this, &MainWindow::bringUp);
    connect(&m_presence, &Presence::windowHidden, this, &QWidget::hide);
    connect(&m_presence, &Presence::dockIconHiddenChanged, this, &MainWindow::followTaskBar);
    connect(&m_presence, &Presence::windowMinimized, this, &MainWindow::minimize);
    connect(&m_presence, &Presence::minimizedWindowHidden, this, [this] {
        if (isMinimized()) {
            hide();
        }
    });
    connect(&m_presence, &Presence::openWindowsBroughtToFront, this, [this] {
        if (isVisible() && !isMinimized()) {
            bringUp();
        }
    });
}

void MainWindow::refresh()
{
    const bool isWithout = m_model.state().withoutInterfaces;
    m_noInterface->setVisible(isWithout);
    m_addressCard->setVisible(!isWithout);
    m_facts->setVisible(!isWithout);
    m_header->refresh();
    if (!m_fieldHadFocus && m_model.state().fieldEnabled) {
        // Before anybody knows of the helper it cannot have the keyboard.
        m_fieldHadFocus = true;
        m_addressCard->field().setFocus();
    }
    m_footer->showVersion(m_model.state().versionLabel);
}

void MainWindow::bringUp()
{
    m_minimizesOncePainted = false;
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
    // Under X11 Qt notices only after a while that a hidden window lost the keyboard. Shown again
    // before that, the window would have the keyboard without knowing it.
    if (QGuiApplication::focusWindow() == windowHandle()) {
        QApplication::setActiveWindow(this);
    }
}

void MainWindow::minimize()
{
    if (windowHandle() != nullptr) {
        showMinimized();
        return;
    }
    // Under X11 a window comes up open for the first time, whatever state is wished for: it is
    // minimized when it has been painted.
    m_minimizesOncePainted = true;
    setAttribute(Qt::WA_ShowWithoutActivating);
    show();
    setAttribute(Qt::WA_ShowWithoutActivating, false);
}

void MainWindow::followTaskBar()
{
    // A window that was never shown has nothing to be skipped yet; showEvent makes up for it.
    if (!testAttribute(Qt::WA_WState_Created)) {
        return;
    }
    m_taskBar.setSkipped(static_cast<quintptr>(winId()), m_presence.isDockIconHidden());
}

void MainWindow::showEvent(QShowEvent *event)
{
    followTaskBar();
    fitScreen();
    QWidget::showEvent(event);
    m_presence.setWindowShown(true);
    m_presence.setWindowInSight(true);
    if (!testAttribute(Qt::WA_SetWindowIcon)) {
        // Not before the window is on its way to the display: to draw the icon takes longer than
        // most of what is in it.
        QMetaObject::invokeMethod(this, &MainWindow::drawIcon, Qt::QueuedConnection);
    }
}

void MainWindow::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    // A window that is minimized gets this event, too, and is still open.
    m_presence.setWindowShown(isVisible());
    m_presence.setWindowInSight(false);
}

void MainWindow::drawIcon()
{
    setWindowIcon(QIcon(u":/icons/com.orvandel.Quillon4.svg"_s));
}

bool MainWindow::event(QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest) {
        fitScreen();
    }
    if (event->type() == QEvent::Paint && std::exchange(m_minimizesOncePainted, false)) {
        QMetaObject::invokeMethod(this, &QWidget::showMinimized, Qt::QueuedConnection);
    }
    return QWidget::event(event);
}

void MainWindow::fitScreen()
{
    const int width = m_column->totalSizeHint().width();
    const int area = m_area->heightForWidth(width - 2 * Theme::windowMargin);
    const int rest = m_column->totalHeightForWidth(width) - area;
    const int frame = std::max(frameGeometry().height() - height(), usualFrame);
    m_area->setTallest(screen()->availableGeometry().height() - frame - rest);
}

void MainWindow::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && isGround(*this, event->position().toPoint())) {
        // Where the desktop cannot move windows on request there is still the title bar.
        windowHandle()->startSystemMove();
    } else {
        event->ignore();
    }
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    // The window is kept either way: hidden it can come back, and ending is the program's business.
    event->ignore();
    if (m_reachableWhenClosed) {
        hide();
    } else {
        m_presence.quit();
    }
}

} // namespace quillon
