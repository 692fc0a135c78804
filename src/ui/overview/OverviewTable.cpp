// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/overview/OverviewTable.h"

#include "base/Localized.h"
#include "ui/overview/OverviewTableCellView.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/AccessibleRole.h"

#include <QApplication>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// Before the first one has been filled.
constexpr int usualHeight = 92;

} // namespace

OverviewTable::OverviewTable(const Theme &theme, QWidget *parent)
    : RevealingScrollArea(new QWidget, parent)
    , m_theme(theme)
    , m_column(new QVBoxLayout(widget()))
{
    setObjectName(u"overviewTable"_s);
    setAccessibleRole(*widget(), QAccessible::List);
    widget()->setAccessibleName(localized("Interfaces"));
    m_column->setContentsMargins(ringRoom, ringRoom, ringRoom, ringRoom);
    m_column->setSpacing(Theme::spacing);
    m_column->setAlignment(Qt::AlignTop);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { fillInSight(); });
    connect(qApp, &QApplication::focusChanged, this,
        [this](const QWidget *, QWidget *now) { follow(now); });
}

void OverviewTable::setController(OverviewController *controller)
{
    if (m_controller != nullptr) {
        m_controller->disconnect(this);
        removeRows();
    }
    m_controller = controller;
    if (m_controller != nullptr) {
        connect(m_controller, &OverviewController::rowsGoing, this, &OverviewTable::removeRows);
        connect(m_controller, &OverviewController::rowsMade, this, &OverviewTable::makeRows);
        makeRows();
    }
}

OverviewTableCellView *OverviewTable::cell(int row) const
{
    return m_cells.value(row);
}

int OverviewTable::hiddenHeight() const
{
    return m_column->sizeHint().height() - viewport()->height();
}

void OverviewTable::focusCurrentRow()
{
    if (m_current != nullptr) {
        m_current->setFocus(Qt::OtherFocusReason);
    }
}

void OverviewTable::removeRows()
{
    const QWidget *const focused = window()->focusWidget();
    m_place.scrolled = verticalScrollBar()->value();
    m_place.hasKeyboard = focused != nullptr && widget()->isAncestorOf(focused);
    if (m_current != nullptr) {
        m_place.device = m_current->row().device;
        m_place.control = m_current->placeOf(focused);
    }
    m_current = nullptr;
    qDeleteAll(std::exchange(m_cells, {}));
}

void OverviewTable::makeRows()
{
    for (int row = 0; row < m_controller->rowCount(); ++row) {
        m_cells.append(viewForRow(row));
        m_column->addWidget(m_cells.last());
        // At once: the layout overlooks what is shown later.
        m_cells.last()->show();
    }
    if (m_cells.isEmpty()) {
        return;
    }
    m_cells.first()->fill();
    const auto same = std::ranges::find_if(m_cells,
        [this](const OverviewTableCellView *each) { return each->row().device == m_place.device; });
    setCurrent(same == m_cells.end() ? m_cells.first() : *same);
    if (isVisible()) {
        reloadVisibleRows();
        verticalScrollBar()->setValue(m_place.scrolled);
    }
    if (std::exchange(m_place.hasKeyboard, false)) {
        m_current->fill();
        m_current->focusPlace(m_place.control);
    }
}

OverviewTableCellView *OverviewTable::viewForRow(int row)
{
    auto *view = new OverviewTableCellView(*m_controller, row, m_theme);
    view->setUsualHeight(usualHeight);
    connect(view, &OverviewTableCellView::keyToOtherRow, this,
        [this, view](int key) { moveFrom(view, key); });
    return view;
}

void OverviewTable::reloadVisibleRows()
{
    if (m_cells.isEmpty()) {
        return;
    }
    // What is filled may be higher or lower than it was taken to be.
    do {
        m_column->activate();
        const int height = m_cells.first()->height();
        for (OverviewTableCellView *each : std::as_const(m_cells)) {
            if (!each->isFilled()) {
                each->setUsualHeight(height);
            }
        }
        layOut();
    } while (fillInSight());
    viewport()->update();
}

void OverviewTable::layOut()
{
    m_column->activate();
    // The area asks how high its content is when that is told so, which is in a later turn.
    QEvent request(QEvent::LayoutRequest);
    QCoreApplication::sendEvent(widget(), &request);
}

bool OverviewTable::fillInSight()
{
    // A little more, so that most are ready when they come.
    const QRect seen = viewport()->rect().adjusted(0, -usualHeight, 0, usualHeight);
    bool hasFilled = false;
    for (OverviewTableCellView *each : std::as_const(m_cells)) {
        const QRect place(each->mapTo(viewport(), QPoint(0, 0)), each->size());
        if (!each->isFilled() && place.intersects(seen)) {
            each->fill();
            hasFilled = true;
        }
    }
    return hasFilled;
}

void OverviewTable::resizeEvent(QResizeEvent *event)
{
    RevealingScrollArea::resizeEvent(event);
    if (isVisible()) {
        reloadVisibleRows();
    }
}

void OverviewTable::showEvent(QShowEvent *event)
{
    RevealingScrollArea::showEvent(event);
    reloadVisibleRows();
    verticalScrollBar()->setValue(m_place.scrolled);
}

void OverviewTable::follow(QWidget *focused)
{
    for (OverviewTableCellView *each : std::as_const(m_cells)) {
        if (focused != nullptr && (each == focused || each->isAncestorOf(focused))) {
            setCurrent(each);
            return;
        }
    }
}

void OverviewTable::setCurrent(OverviewTableCellView *current)
{
    if (current == m_current) {
        return;
    }
    if (m_current != nullptr) {
        m_current->setCurrent(false);
    }
    m_current = current;
    m_current->setCurrent(true);
}

int OverviewTable::rowsOnAPage() const
{
    const int row = m_cells.first()->height() + m_column->spacing();
    return std::max(1, viewport()->height() / std::max(1, row));
}

void OverviewTable::moveFrom(OverviewTableCellView *from, int key)
{
    const auto last = m_cells.size() - 1;
    qsizetype row = m_cells.indexOf(from);
    switch (key) {
    case Qt::Key_Up:
        --row;
        break;
    case Qt::Key_Down:
        ++row;
        break;
    case Qt::Key_PageUp:
        row -= rowsOnAPage();
        break;
    case Qt::Key_PageDown:
        row += rowsOnAPage();
        break;
    case Qt::Key_Home:
        row = 0;
        break;
    case Qt::Key_End:
        row = last;
        break;
    default:
        return;
    }
    OverviewTableCellView *const to = m_cells[std::clamp<qsizetype>(row, 0, last)];
    if (to != from) {
        const int place = from->placeOf(from->window()->focusWidget());
        to->fill();
        layOut();
        setCurrent(to);
        to->focusPlace(place);
    }
}

} // namespace quillon
