// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/MainWindow.h"

#include "base/Localized.h"
#include "platform/desktop/TaskBar.h"
#include "presence/Presence.h"
#include "presentation/window/MainWindowModel.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/DetailsArea.h"
#include "ui/widgets/PlainText.h"
#include "ui/window/AddressField.h"
#include "ui/window/InterfaceDetails.h"
#include "ui/window/InterfaceHeader.h"
#include "ui/window/InterfaceSelector.h"
#include "ui/window/ReadMeHint.h"
#include "ui/window/TextFieldBackgroundView.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
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
/// The property that says what a button does when it is enabled.
constexpr const char *whatItDoes = "whatItDoes";

QLabel *makeCaption(const QString &text)
{
    auto *label = plainLabel(text);
    label->setProperty("look", u"caption"_s);
    return label;
}

QPushButton *makeButton(
    const QString &text, const QString &accessibleName, const QString &description)
{
    auto *button = new QPushButton(text);
    button->setAccessibleName(accessibleName);
    button->setProperty(whatItDoes, description);
    button->setIconSize(QSize(Theme::iconSize, Theme::iconSize));
    // Return presses the focused button, as the space bar does.
    button->setAutoDefault(true);
    return button;
}

/// Says what the button does, or why it does nothing.
void setUsable(QPushButton &button, bool enabled, const QString &whyNot)
{
    button.setEnabled(enabled);
    const QString hint = whyNot.isEmpty() ? button.property(whatItDoes).toString() : whyNot;
    button.setToolTip(plainToolTip(hint));
    button.setAccessibleDescription(hint);
}

/// To assistive technology a plain widget is a part of something; this one is a window.
QAccessibleInterface *accessibleWindow(const QString &, QObject *object)
{
    auto *window = qobject_cast<MainWindow *>(object);
    return window == nullptr ? nullptr : new QAccessibleWidget(window, QAccessible::Window);
}

} // namespace

MainWindow::MainWindow(
    MainWindowModel &model, Presence &presence, const Theme &theme, TaskBar &taskBar)
    : m_model(model)
    , m_presence(presence)
    , m_theme(theme)
    , m_taskBar(taskBar)
{
    QAccessible::installFactory(accessibleWindow);
    setObjectName(u"windowView"_s);
    setWindowTitle(u"Quillon"_s);

    m_header = new InterfaceHeader(model, theme);
    m_readMe = new ReadMeHint(model, theme);
    m_details = new InterfaceDetails(model);
    m_area = new DetailsArea;
    m_area->add(m_details);
    m_version = makeCaption(QString());
    m_version->setFont(Theme::textFont(0.9));
    m_version->setAccessibleName(localized("Version"));

    m_column = new QVBoxLayout(this);
    m_column->setContentsMargins(
        Theme::windowMargin, Theme::windowMargin, Theme::windowMargin, Theme::cardMargin);
    m_column->setSpacing(Theme::spacing);
    // The window is as large as its texts need, in any language and at any scale.
    m_column->setSizeConstraint(QLayout::SetFixedSize);
    m_top = new QHBoxLayout;
    m_top->setSpacing(Theme::unit);
    m_top->addWidget(m_header, 1);
    m_column->addLayout(m_top);
    m_column->addWidget(m_readMe);
    m_column->addWidget(makeAddressCard());
    m_column->addWidget(makeButtons());
    m_column->addWidget(m_area);
    m_column->addWidget(m_version, 0, Qt::AlignRight);

    makeShortcuts();
    connectModel();
    connectPresence();
    refresh();
    m_field->setFocus();
}

void MainWindow::addMenuButton(QWidget *button)
{
    m_top->addWidget(button);
}

void MainWindow::addChoice(QWidget *section)
{
    m_column->insertWidget(m_column->indexOf(m_area), section);
}

void MainWindow::addDetails(QWidget *section)
{
    m_area->add(section);
}

QWidget *MainWindow::makeAddressCard()
{
    auto *card = new TextFieldBackgroundView(m_model);
    auto *caption = makeCaption(localized("A&ddress"));
    m_field = new AddressField(m_model);
    caption->setBuddy(m_field);
    m_apply = makeButton(localized("&Apply"), localized("Apply address"),
        localized("Gives the interface the address in the field"));
    m_apply->setObjectName(u"updateButton"_s);
    m_apply->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::MinimumExpanding);

    auto *grid = new QGridLayout(card);
    grid->setContentsMargins(
        Theme::cardMargin, Theme::unit + 4, Theme::cardMargin, Theme::cardMargin);
    grid->setHorizontalSpacing(Theme::unit);
    grid->setVerticalSpacing(6);
    grid->setColumnStretch(0, 1);
    grid->addWidget(caption, 0, 0, 1, 2);
    grid->addWidget(m_field, 1, 0);
    grid->addWidget(m_apply, 1, 1);
    return card;
}

QWidget *MainWindow::makeButtons()
{
    auto *buttons = new QWidget;
    m_randomize = makeButton(localized("&Randomize address"), localized("Randomize address"),
        localized("Gives the interface a random, locally administered address"));
    m_randomize->setObjectName(u"randomizeButton"_s);
    m_randomize->setProperty("look", u"primary"_s);
    m_randomize->setIcon(m_theme.icon(u"random"_s, Theme::Ink::OnAccent));
    m_restore =
        makeButton(localized("Restore &factory address"), localized("Restore factory address"),
            localized("Gives the interface the address back that it was made with"));
    m_restore->setObjectName(u"restoreButton"_s);
    m_restore->setIcon(m_theme.icon(u"restore"_s, Theme::Ink::Text));

    auto *row = new QHBoxLayout(buttons);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Theme::unit);
    row->addWidget(m_randomize, 1);
    row->addWidget(m_restore, 1);
    return buttons;
}

void MainWindow::makeShortcuts()
{
    const auto add = [this](const QString &text, const QKeySequence &keys, auto reaction) {
        auto *action = new QAction(text, this);
        action->setShortcut(keys);
        connect(action, &QAction::triggered, this, reaction);
        addAction(action);
    };
    add(localized("Quit Quillon"), QKeySequence(Qt::CTRL | Qt::Key_Q),
        [this] { m_presence.quit(); });

    connect(m_apply, &QPushButton::clicked, &m_model, &MainWindowModel::changeMacAddress);
    connect(m_randomize, &QPushButton::clicked, &m_model, &MainWindowModel::randomizeAddress);
    connect(m_restore, &QPushButton::clicked, &m_model, &MainWindowModel::restoreDefaultAddress);
    connect(m_field, &QLineEdit::returnPressed, m_apply, &QPushButton::click);
}

void MainWindow::connectModel()
{
    connect(&m_model, &MainWindowModel::changed, this, &MainWindow::refresh);
    connect(&m_model, &MainWindowModel::fieldRestored, m_field, &AddressField::refresh);
    connect(&m_model, &MainWindowModel::infoButtonsReset, &m_header->selector(),
        &InterfaceSelector::resetEmphasis);
}

void MainWindow::connectPresence()
{
    connect(&m_presence, &Presence::windowOpened, this, &MainWindow::bringUp);
    connect(&m_presence, &Presence::windowHidden, this, &QWidget::hide);
    connect(&m_presence, &Presence::windowClosed, this, &QWidget::close);
    connect(&m_presence, &Presence::dockIconHiddenChanged, this, &MainWindow::followTaskBar);
    connect(&m_presence, &Presence::windowMinimized, this, &MainWindow::minimize);
    connect(&m_presence, &Presence::minimizedWindowHidden, this, [this] {
        if (isMinimized()) {
            hide();
        }
    });
    connect(&m_presence, &Presence::windowBroughtToFront, this, [this] {
        if (isVisible() && !isMinimized()) {
            bringUp();
        }
    });
}

void MainWindow::refresh()
{
    const auto &state = m_model.state();
    m_header->refresh();
    m_field->refresh();
    m_field->setPlaceholderText(plainLine(state.fieldPlaceholder));
    m_field->setEnabled(state.fieldEnabled);
    setUsable(*m_apply, state.updateEnabled, state.whyNoUpdate);
    setUsable(*m_randomize, state.randomizeEnabled, state.whyNoRandomize);
    setUsable(*m_restore, state.restoreEnabled, state.whyNoRestore);
    m_readMe->refresh();
    m_details->refresh();
    m_version->setText(plainLine(state.versionLabel));
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
    if (event->button() == Qt::LeftButton && isGround(event->position().toPoint())) {
        // Where the desktop cannot move windows on request there is still the title bar.
        windowHandle()->startSystemMove();
    } else {
        event->ignore();
    }
}

bool MainWindow::isGround(const QPoint &place) const
{
    // A control that is disabled leaves its presses to the window but is no ground.
    const QWidget *widget = childAt(place);
    while (widget != nullptr && widget != this && widget->focusPolicy() == Qt::NoFocus) {
        widget = widget->parentWidget();
    }
    return widget == nullptr || widget == this;
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
