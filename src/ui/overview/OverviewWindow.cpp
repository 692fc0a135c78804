// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/overview/OverviewWindow.h"

#include "base/Localized.h"
#include "presentation/overview/Overview.h"
#include "presentation/window/ReadMeModel.h"
#include "ui/overview/OverviewTable.h"
#include "ui/overview/OverviewTableCellView.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/EmptyState.h"
#include "ui/widgets/InlineLine.h"
#include "ui/widgets/PlainText.h"
#include "ui/widgets/Strip.h"

#include <QHBoxLayout>
#include <QKeySequence>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>

#include <algorithm>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize usualSize(800, 360);
constexpr int leastHeight = 300;
/// The cards keep room for the ring around them.
constexpr int tableMargin = Theme::windowMargin - OverviewTable::ringRoom;

} // namespace

OverviewWindow::OverviewWindow(const Models &models, const Theme &theme, TaskBar &taskBar)
    : SecondaryWindow(u"overview"_s, models.presence, taskBar)
    , m_overview(models.overview)
    , m_readMe(models.readMe)
    , m_theme(theme)
    , m_helper(new Strip(theme))
    , m_table(new OverviewTable(theme))
    , m_empty(new EmptyState(theme, u"wired"_s))
    , m_age(new InlineLine(theme))
    , m_reload(new QPushButton(localized("Re&load")))
{
    setWindowTitle(localized("Overview"));
    m_empty->say(localized("No interface here can be changed."));
    auto *top = new QVBoxLayout;
    top->setContentsMargins(Theme::windowMargin, 0, Theme::windowMargin, 0);
    top->addWidget(m_helper);
    auto *middle = new QVBoxLayout;
    middle->setContentsMargins(tableMargin, 0, tableMargin, 0);
    middle->addWidget(m_table);
    middle->addWidget(m_empty);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, Theme::windowMargin, 0, Theme::unit);
    column->setSpacing(Theme::unit);
    column->addLayout(top);
    column->addLayout(middle, 1);
    column->addWidget(makeFooter());
    resize(usualSize);
    addShortcut(QKeySequence(Qt::Key_F5), localized("Reload"), [this] { m_overview.loadAnew(); });
    connect(m_helper, &Strip::acted, &m_readMe, &ReadMeModel::installHelper);
    connect(&m_readMe, &ReadMeModel::changed, this, &OverviewWindow::refreshHelper);
    connect(&m_overview, &Overview::controllerMade, this, &OverviewWindow::takeController);
    connect(&m_overview, &Overview::controllerGoing, this, &OverviewWindow::dropController);
    refreshHelper();
    takeController();
}

OverviewWindow::~OverviewWindow()
{
    hide();
    m_table->setController(nullptr);
}

QWidget *OverviewWindow::makeFooter()
{
    m_reload->setProperty("look", u"quiet"_s);
    m_reload->setIcon(m_theme.icon(u"refresh"_s, Theme::Ink::Muted));
    m_reload->setAutoDefault(true);
    m_reload->setAccessibleName(localized("Reload"));
    m_reload->setToolTip(plainToolTip(localized("Reads the interfaces and their addresses anew")));
    connect(m_reload, &QPushButton::clicked, &m_overview, &Overview::loadAnew);
    auto *footer = new QWidget;
    auto *line = new QHBoxLayout(footer);
    line->setContentsMargins(Theme::windowMargin, 0, Theme::windowMargin, 0);
    line->setSpacing(Theme::spacing);
    line->addWidget(m_age, 1, Qt::AlignVCenter);
    line->addWidget(m_reload);
    return footer;
}

void OverviewWindow::takeController()
{
    OverviewController *const controller = m_overview.controller();
    m_table->setController(controller);
    if (controller != nullptr) {
        connect(controller, &OverviewController::changed, this, &OverviewWindow::refreshAge);
        connect(controller, &OverviewController::rowsMade, this, &OverviewWindow::refreshRows);
        connect(controller, &OverviewController::madeKey, this, &OverviewWindow::bringUp);
        refreshRows();
        refreshAge();
    }
}

void OverviewWindow::dropController()
{
    m_table->setController(nullptr);
}

void OverviewWindow::refreshRows()
{
    const bool isEmpty = m_overview.controller()->rowCount() == 0;
    m_table->setVisible(!isEmpty);
    m_empty->setVisible(isEmpty);
    const OverviewTableCellView *const first = m_table->cell(0);
    const int least = first == nullptr ? 0 : first->minimumSizeHint().width();
    const int scrollBar = m_table->verticalScrollBar()->sizeHint().width();
    setMinimumSize(least + 2 * Theme::windowMargin + scrollBar, leastHeight);
}

void OverviewWindow::refreshAge()
{
    const auto &state = m_overview.controller()->state();
    if (state.hasNewInterfaces) {
        m_age->say(localized("There are interfaces that are not listed here yet."),
            InlineLine::Kind::Notice);
    } else if (state.hasNewAddresses) {
        m_age->say(localized("The list shows the addresses as they were when it was opened."));
    } else {
        m_age->say(QString());
    }
}

void OverviewWindow::refreshHelper()
{
    const auto &state = m_readMe.state();
    if (!state.visible) {
        m_helper->clear();
        return;
    }
    const QString install = localized("&Install Helper");
    m_helper->say(localized("The helper is not installed"),
        state.installing ? localized("Installing…") : install);
    QPushButton &button = m_helper->button();
    button.setEnabled(!state.installing);
    button.setAccessibleName(localized("Install helper"));
    button.setToolTip(plainToolTip(localized("Asks for an administrator's password")));
}

void OverviewWindow::showEvent(QShowEvent *event)
{
    SecondaryWindow::showEvent(event);
    m_overview.setInSight(true);
    if (!std::exchange(m_wasShown, true)) {
        // As high as its rows, as far as that is possible.
        const int highest = screen()->availableGeometry().height() * 3 / 4;
        resize(width(), std::clamp(height() + m_table->hiddenHeight(), leastHeight, highest));
    }
    if (focusWidget() == nullptr) {
        m_table->focusCurrentRow();
    }
}

void OverviewWindow::hideEvent(QHideEvent *event)
{
    SecondaryWindow::hideEvent(event);
    m_overview.setInSight(false);
    // One that is minimized gets this event, too, and is still open.
    if (!isVisible()) {
        m_overview.releaseOverviewWindow();
    }
}

} // namespace quillon
