// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/history/HistoryRows.h"

#include "ui/theme/Theme.h"
#include "ui/widgets/PlainText.h"

namespace quillon {

namespace {

HistoryColumn columnOf(int section)
{
    return historyColumns[static_cast<std::size_t>(section)];
}

bool isFixedWidth(HistoryColumn column)
{
    return column == HistoryColumn::Address || column == HistoryColumn::Bssid;
}

} // namespace

HistoryRows::HistoryRows(HistoryController &controller, QObject *parent)
    : QAbstractTableModel(parent)
    , m_controller(controller)
{
    const RecordListing &rows = controller.rows();
    connect(&rows, &RecordListing::aboutToReset, this, [this] {
        // The reset ends an editor without asking it: what was typed is taken before.
        m_controller.note().end();
        beginResetModel();
    });
    connect(&rows, &RecordListing::reset, this, [this] { endResetModel(); });
    connect(&rows, &RecordListing::aboutToInsert, this, [this](qsizetype first, qsizetype last) {
        beginInsertRows({}, static_cast<int>(first), static_cast<int>(last));
    });
    connect(&rows, &RecordListing::inserted, this, [this] { endInsertRows(); });
    connect(&rows, &RecordListing::aboutToRemove, this, [this](qsizetype first, qsizetype last) {
        beginRemoveRows({}, static_cast<int>(first), static_cast<int>(last));
    });
    connect(&rows, &RecordListing::removed, this, [this] { endRemoveRows(); });
}

int HistoryRows::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_controller.rows().size());
}

int HistoryRows::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(historyColumns.size());
}

QVariant HistoryRows::data(const QModelIndex &index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const HistoryColumn column = columnOf(index.column());
    switch (role) {
    case Qt::DisplayRole:
        return plainLine(m_controller.text(index.row(), column));
    case Qt::ToolTipRole:
        return plainToolTip(m_controller.toolTip(index.row(), column));
    case Qt::FontRole:
        return isFixedWidth(column) ? QVariant(Theme::font(Theme::Type::Address)) : QVariant();
    default:
        return {};
    }
}

QVariant HistoryRows::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return plainLine(titleOf(columnOf(section)));
    case Qt::TextAlignmentRole:
        return QVariant(Qt::AlignVCenter | Qt::AlignLeading);
    default:
        return {};
    }
}

Qt::ItemFlags HistoryRows::flags(const QModelIndex &index) const
{
    const bool isNote = index.isValid() && columnOf(index.column()) == HistoryColumn::Notes;
    return Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren |
           (isNote ? Qt::ItemIsEditable : Qt::NoItemFlags);
}

} // namespace quillon
