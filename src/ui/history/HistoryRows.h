// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "presentation/history/HistoryController.h"

#include <QAbstractTableModel>

namespace quillon {

/// The records that HistoryController lists, as rows of a table. It holds none of them.
class HistoryRows : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit HistoryRows(HistoryController &controller, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    /// Notes are edited in place.
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    HistoryController &m_controller;
};

} // namespace quillon
