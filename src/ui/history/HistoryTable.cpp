// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/history/HistoryTable.h"

#include "base/Localized.h"
#include "ui/history/HistoryNoteDelegate.h"
#include "ui/history/HistoryRows.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/PlainText.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScrollBar>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int headHeight = 30;
constexpr int cellPadding = 24;
constexpr int arrowRoom = 14; ///< of the order, beside a title
constexpr int leastNoteWidth = 76;
// A selection of more rows is not looked for again in another list.
constexpr qsizetype mostSelectedAgain = 100;

constexpr int sectionOf(HistoryColumn column)
{
    return static_cast<int>(column);
}

} // namespace

HistoryTable::HistoryTable(HistoryController &controller, const Theme &theme, QWidget *parent)
    : QTableView(parent)
    , m_controller(controller)
    , m_rows(new HistoryRows(controller, this))
    , m_delegate(new HistoryNoteDelegate(controller.note(), theme, this))
{
    setObjectName(u"historyTable"_s);
    setAccessibleName(localized("History"));
    setAccessibleDescription(localized("F2 edits the note, Delete deletes."));
    setModel(m_rows);
    setItemDelegate(m_delegate);
    setFrameShape(QFrame::NoFrame);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(recordHeight);
    makeColumns();
    connect(&m_controller, &HistoryController::changed, this, &HistoryTable::showOrder);
    connect(&m_controller, &HistoryController::searched, this, [this] { m_fromTop = true; });
    connect(
        &m_controller, &HistoryController::rowsReloaded, this, [this] { viewport()->update(); });
    connect(&m_controller, &HistoryController::recordsDeleted, this, &HistoryTable::selectOne);
    connect(&m_controller.rows(), &RecordListing::aboutToReset, this, &HistoryTable::noteWhereItIs);
    // What is selected counts by its rows, which these move.
    connect(m_rows, &QAbstractItemModel::rowsInserted, this, &HistoryTable::tellSelection);
    connect(m_rows, &QAbstractItemModel::rowsRemoved, this, &HistoryTable::tellSelection);
    // After the selection has heard of it, which forgets everything then.
    connect(m_rows, &QAbstractItemModel::modelReset, this, &HistoryTable::selectAgain);
    connect(&m_controller.note(), &HistoryNote::ended, this, &HistoryTable::closeNote);
    showOrder();
}

// MARK: columns

void HistoryTable::makeColumns()
{
    QHeaderView *head = horizontalHeader();
    head->setObjectName(u"historyHead"_s);
    head->setHighlightSections(false);
    head->setSectionsClickable(true);
    head->setSortIndicatorShown(true);
    head->setStretchLastSection(true);
    head->setMinimumSectionSize(48);
    head->setTextElideMode(Qt::ElideRight);
    setMeasures();
    connect(head, &QHeaderView::sectionClicked, this, &HistoryTable::sortByColumn);
    head->viewport()->installEventFilter(this);
}

QList<int> HistoryTable::usualWidths() const
{
    const QFontMetrics text(font());
    QFont headFont = font();
    headFont.setWeight(QFont::DemiBold);
    const QFontMetrics head(headFont);
    const QFontMetrics fixed(Theme::font(Theme::Type::Address));
    const int address = fixed.horizontalAdvance(u"00:00:00:00:00:00"_s);
    // What is usual in each column; the last one has what is left.
    QList<int> widths{text.horizontalAdvance(u"Nov 30, 2026 08:08"_s),
        text.horizontalAdvance(u"Ethernet"_s), text.horizontalAdvance(u"enp0s31f6"_s), address,
        text.horizontalAdvance(u"Harbor-Office"_s), address, leastNoteWidth};
    for (const HistoryColumn column : historyColumns) {
        int &width = widths[sectionOf(column)];
        width = std::max(width, head.horizontalAdvance(titleOf(column)) + arrowRoom) + cellPadding;
    }
    return widths;
}

void HistoryTable::setMeasures()
{
    verticalHeader()->setDefaultSectionSize(
        std::max(recordHeight, fontMetrics().height() + Theme::spacing));
    horizontalHeader()->setFixedHeight(
        std::max(headHeight, fontMetrics().height() + Theme::spacing));
    QList<int> widths = m_controller.columnWidths();
    if (widths.isEmpty()) {
        widths = usualWidths();
    }
    for (int section = 0; section < widths.size(); ++section) {
        setColumnWidth(section, widths[section]);
    }
}

void HistoryTable::rememberWidths()
{
    QList<int> widths = m_controller.columnWidths();
    widths = widths.isEmpty() ? usualWidths() : widths;
    const QList<int> before = widths;
    // The last one stretches by itself.
    for (int section = 0; section < sectionOf(HistoryColumn::Notes); ++section) {
        if (!isColumnHidden(section)) {
            widths[section] = columnWidth(section);
        }
    }
    if (widths != before) {
        m_controller.setColumnWidths(widths);
        fold();
    }
}

bool HistoryTable::eventFilter(QObject *watched, QEvent *event)
{
    const bool isFiltered = QTableView::eventFilter(watched, event);
    if (watched == horizontalHeader()->viewport() && event->type() == QEvent::MouseButtonRelease) {
        // By now the head has the width that the hand gave it.
        rememberWidths();
    }
    return isFiltered;
}

void HistoryTable::fold()
{
    QList<int> widths = m_controller.columnWidths();
    widths = widths.isEmpty() ? usualWidths() : widths;
    int needed = leastNoteWidth + cellPadding;
    for (int section = 0; section < sectionOf(HistoryColumn::Notes); ++section) {
        needed += widths[section];
    }
    for (const HistoryColumn column : {HistoryColumn::Bssid, HistoryColumn::Device}) {
        const int section = sectionOf(column);
        const bool isFolded = needed > viewport()->width();
        if (isColumnHidden(section) != isFolded) {
            setColumnHidden(section, isFolded);
            if (!isFolded) {
                setColumnWidth(section, widths[section]);
            }
        }
        needed -= isFolded ? widths[section] : 0;
    }
}

void HistoryTable::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    fold();
}

void HistoryTable::changeEvent(QEvent *event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        setMeasures();
        fold();
    }
}

void HistoryTable::showOrder()
{
    const auto &state = m_controller.state();
    horizontalHeader()->setSortIndicator(
        sectionOf(state.sortColumn), state.isAscending ? Qt::AscendingOrder : Qt::DescendingOrder);
}

void HistoryTable::sortByColumn(int section)
{
    const auto &state = m_controller.state();
    const auto column = historyColumns[static_cast<std::size_t>(section)];
    const bool isAscending =
        column == state.sortColumn ? !state.isAscending : column != HistoryColumn::Date;
    m_controller.sortBy(column, isAscending);
    // The header has turned its arrow already, whatever became of it.
    showOrder();
}

// MARK: rows that come and go

void HistoryTable::noteWhereItIs()
{
    m_scrolled = verticalScrollBar()->value();
    m_selectedKeys.clear();
    for (const QItemSelectionRange &range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            if (m_selectedKeys.size() == mostSelectedAgain) {
                m_selectedKeys.clear();
                return;
            }
            m_selectedKeys << m_controller.rows().keyAt(row);
        }
    }
}

void HistoryTable::reset()
{
    QTableView::reset();
    if (m_controller.rows().size() == 0) {
        return;
    }
    if (std::exchange(m_fromTop, false)) {
        scrollToTop();
    } else {
        updateGeometries();
        verticalScrollBar()->setValue(m_scrolled);
    }
}

void HistoryTable::selectAgain()
{
    QItemSelection again;
    for (const qint64 key : std::as_const(m_selectedKeys)) {
        if (const auto row = static_cast<int>(m_controller.rows().rowOf(key)); row >= 0) {
            again.select(m_rows->index(row, 0), m_rows->index(row, m_rows->columnCount() - 1));
        }
    }
    if (!again.isEmpty()) {
        selectionModel()->setCurrentIndex(again.first().topLeft(), QItemSelectionModel::NoUpdate);
        selectionModel()->select(again, QItemSelectionModel::ClearAndSelect);
    }
    tellSelection();
}

void HistoryTable::rowsInserted(const QModelIndex &parent, int start, int end)
{
    const int scrolled = verticalScrollBar()->value();
    const bool isAbove = scrolled > 0 && start <= rowAt(0);
    QTableView::rowsInserted(parent, start, end);
    if (isAbove) {
        // What is being looked at stays where it is.
        updateGeometries();
        verticalScrollBar()->setValue(
            scrolled + (end - start + 1) * verticalHeader()->defaultSectionSize());
    }
}

void HistoryTable::selectOne(qsizetype row)
{
    const QModelIndex index = m_rows->index(static_cast<int>(row), 0);
    selectionModel()->setCurrentIndex(
        index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    scrollTo(index);
}

void HistoryTable::selectionChanged(
    const QItemSelection &selected, const QItemSelection &deselected)
{
    QTableView::selectionChanged(selected, deselected);
    tellSelection();
}

void HistoryTable::tellSelection()
{
    QList<HistoryController::Rows> rows;
    for (const QItemSelectionRange &range : selectionModel()->selection()) {
        rows << HistoryController::Rows{range.top(), range.bottom()};
    }
    m_controller.select(rows);
}

// MARK: the keyboard and notes

void HistoryTable::takeKeyboard()
{
    setFocus(Qt::OtherFocusReason);
    if (m_rows->rowCount() > 0 && !selectionModel()->hasSelection()) {
        selectOne(0);
    }
}

void HistoryTable::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        if (!event->isAutoRepeat()) {
            m_controller.keyDown(HistoryController::Key::Delete);
        }
        return;
    case Qt::Key_F2:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        editNote();
        return;
    default:
        QTableView::keyPressEvent(event);
    }
}

void HistoryTable::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && indexAt(event->position().toPoint()).isValid()) {
        editNote();
    }
}

void HistoryTable::contextMenuEvent(QContextMenuEvent *event)
{
    QPoint place = event->pos();
    if (event->reason() == QContextMenuEvent::Keyboard) {
        if (currentIndex().isValid()) {
            scrollTo(currentIndex());
        }
        place = visualRect(currentIndex()).center();
    }
    Q_EMIT customContextMenuRequested(place);
}

void HistoryTable::editNote()
{
    const QModelIndex current = currentIndex();
    if (!current.isValid() || state() == QAbstractItemView::EditingState) {
        return;
    }
    const QModelIndex note = m_rows->index(current.row(), sectionOf(HistoryColumn::Notes));
    m_controller.editNote(note.row());
    scrollTo(note);
    selectionModel()->setCurrentIndex(note, QItemSelectionModel::NoUpdate);
    edit(note);
}

void HistoryTable::closeNote()
{
    if (m_delegate->isClosing()) {
        return;
    }
    if (auto *editor = viewport()->findChild<QLineEdit *>(u"noteEditor"_s)) {
        // What is in it is taken or given up already: losing the keyboard means nothing any more.
        editor->removeEventFilter(m_delegate);
        closeEditor(editor, QAbstractItemDelegate::NoHint);
    }
}

} // namespace quillon
