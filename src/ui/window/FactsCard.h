// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>

class QVBoxLayout;

namespace quillon {

class Theme;

/// What is known of the selected interface, row by row, with hairlines between those that are
/// shown.
class FactsCard : public QFrame
{
    Q_OBJECT

public:
    explicit FactsCard(const Theme &theme, QWidget *parent = nullptr);

    void add(QWidget *row);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const Theme &m_theme;
    QVBoxLayout *m_column;
    QList<QWidget *> m_rows;
};

} // namespace quillon
