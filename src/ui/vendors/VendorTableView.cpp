// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/vendors/VendorTableView.h"

#include "base/Localized.h"
#include "presentation/vendors/VendorFieldModel.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/PlainText.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int shownRows = 6;
constexpr int rowsOfMessage = 2;

VendorFieldModel::Key keyOf(int key)
{
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return VendorFieldModel::Key::Return;
    case Qt::Key_Down:
        return VendorFieldModel::Key::Down;
    case Qt::Key_Up:
        return VendorFieldModel::Key::Up;
    default:
        return VendorFieldModel::Key::Other;
    }
}

} // namespace

VendorListRows::VendorListRows(VendorFieldModel &model, QObject *parent)
    : QAbstractListModel(parent)
    , m_model(model)
    , m_popoverShown(model.state().popoverShown)
{
    connect(&m_model, &VendorFieldModel::rowsChanged, this, &VendorListRows::reset);
    connect(&m_model, &VendorFieldModel::changed, this, [this] {
        if (m_model.state().popoverShown != m_popoverShown) {
            m_popoverShown = !m_popoverShown;
            reset();
        }
    });
}

void VendorListRows::reset()
{
    beginResetModel();
    endResetModel();
}

int VendorListRows::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_model.rowCount());
}

QVariant VendorListRows::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_model.rowCount()) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return plainEntry(m_model.rowText(index.row()));
    case Qt::ToolTipRole:
        return plainToolTip(m_model.rowToolTip(index.row()));
    default:
        return {};
    }
}

VendorTableView::VendorTableView(VendorFieldModel &model, const Theme &theme, QWidget *parent)
    : QListView(parent)
    , m_model(model)
    , m_theme(theme)
{
    setObjectName(u"vendorTable"_s);
    setAccessibleName(localized("Vendors"));
    // Tens of thousands of rows are laid out by the first one's height.
    setUniformItemSizes(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextElideMode(Qt::ElideMiddle);
    setTabKeyNavigation(false);
    const QScopedValueRollback mirrors(m_mirrors, true);
    setModel(new VendorListRows(model, this));
    // After the rows have become others: a reset takes the selection away.
    connect(&m_model, &VendorFieldModel::changed, this, &VendorTableView::refresh);
    connect(&m_model, &VendorFieldModel::rowsChanged, this, &VendorTableView::refresh);
    connect(&m_model, &VendorFieldModel::rowsChanged, this, &QListView::scrollToTop);
    connect(&m_model, &VendorFieldModel::rowSelected, this, [this](qsizetype row) {
        scrollTo(this->model()->index(static_cast<int>(row), 0), QAbstractItemView::EnsureVisible);
    });
    connect(&m_model, &VendorFieldModel::openedAtChoice, this,
        [this] { scrollTo(currentIndex(), QAbstractItemView::PositionAtCenter); });
    refresh();
}

void VendorTableView::refresh()
{
    const QScopedValueRollback mirrors(m_mirrors, true);
    const auto &row = m_model.state().selectedRow;
    const QModelIndex wanted = row ? model()->index(static_cast<int>(*row), 0) : QModelIndex();
    if (currentIndex() != wanted) {
        setCurrentIndex(wanted);
    }
    if (!wanted.isValid()) {
        clearSelection();
    }
    const QString message = plainLine(m_model.state().message);
    if (accessibleDescription() != message) {
        setAccessibleDescription(message);
        viewport()->update();
    }
}

void VendorTableView::paintEvent(QPaintEvent *event)
{
    QListView::paintEvent(event);
    // Below the row that is always there, if it is shown.
    const int rows = visualRect(model()->index(model()->rowCount() - 1, 0)).bottom() + 1;
    const QRect room = viewport()->rect().adjusted(Theme::unit, rows, -Theme::unit, 0);
    QPainter painter(viewport());
    painter.setPen(m_theme.colors().mutedText);
    painter.drawText(
        room, int(Qt::AlignCenter) | int(Qt::TextWordWrap), plainLine(m_model.state().message));
}

QSize VendorTableView::sizeHint() const
{
    const int row = std::max(sizeHintForRow(0), fontMetrics().height() + 8);
    // With a message it is no higher than that takes: below it may stand what helps.
    const int rows = m_model.state().message.isEmpty()
                         ? shownRows
                         : static_cast<int>(m_model.rowCount()) + rowsOfMessage;
    return {QListView::sizeHint().width(), rows * row + 2 * frameWidth()};
}

void VendorTableView::keyPressEvent(QKeyEvent *event)
{
    if (m_model.tableKeyDown(keyOf(event->key()))) {
        QListView::keyPressEvent(event);
    } else {
        event->accept();
    }
}

void VendorTableView::mousePressEvent(QMouseEvent *event)
{
    const QPersistentModelIndex before = currentIndex();
    QListView::mousePressEvent(event);
    // The row that is selected already is chosen too: the field may hold another text.
    if (before.isValid() && indexAt(event->position().toPoint()) == before) {
        m_model.tableViewShouldSelectRow(before.row());
    }
}

void VendorTableView::focusInEvent(QFocusEvent *event)
{
    {
        // A list that gets the keyboard without a current row takes the first; nobody chose it.
        const QScopedValueRollback mirrors(m_mirrors, true);
        QListView::focusInEvent(event);
    }
    refresh();
}

void VendorTableView::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QListView::currentChanged(current, previous);
    if (!m_mirrors && current.isValid()) {
        m_model.tableViewShouldSelectRow(current.row());
    }
}

} // namespace quillon
