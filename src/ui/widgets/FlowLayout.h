// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLayout>
#include <QList>

namespace quillon {

/// Lays widgets beside each other as words in a paragraph: a line that is full goes on below. Lines
/// begin where texts begin, or are centered (setAlignment).
class FlowLayout : public QLayout
{
    Q_OBJECT

public:
    /// `gap` between widgets and between lines, in pixels.
    explicit FlowLayout(QWidget *parent, int gap);
    ~FlowLayout() override;

    void addItem(QLayoutItem *item) override;
    int count() const override { return static_cast<int>(m_items.size()); }
    QLayoutItem *itemAt(int index) const override { return m_items.value(index); }
    QLayoutItem *takeAt(int index) override;
    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect &rect) override;

private:
    /// Where each goes within a width, from left to right; the last value is the height.
    int arrange(int width, QList<QRect> &places) const;

    int m_gap;
    QList<QLayoutItem *> m_items;
};

} // namespace quillon
