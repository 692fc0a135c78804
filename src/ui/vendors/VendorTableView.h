// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractListModel>
#include <QListView>

namespace quillon {

class Theme;
class VendorFieldModel;

/// The manufacturers that VendorFieldModel shows, as rows of a list; none while its popover is
/// closed.
class VendorListRows : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit VendorListRows(VendorFieldModel &model, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    void reset();

    VendorFieldModel &m_model;
    bool m_popoverShown;
};

/// The list to choose a manufacturer from. Selecting a row, by pointer or arrow key, is the choice.
class VendorTableView : public QListView
{
    Q_OBJECT

public:
    VendorTableView(VendorFieldModel &model, const Theme &theme, QWidget *parent = nullptr);

    QSize sizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;

private:
    /// Selects what the model says is selected.
    void refresh();

    VendorFieldModel &m_model;
    const Theme &m_theme;
    bool m_mirrors = false; ///< the selection comes from the model, not from the user
};

} // namespace quillon
