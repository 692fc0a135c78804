// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScrollArea>

class QVBoxLayout;

namespace quillon {

/// The lower part of the main window: sections under each other. It is as tall as they need, unless
/// that is more than it may be: then it scrolls, by whole rows, and shows the row that gets the
/// keyboard. A section whose property "rows" is true is one of rows; any other is a row itself.
class DetailsArea : public QScrollArea
{
    Q_OBJECT

public:
    explicit DetailsArea(QWidget *parent = nullptr);
    ~DetailsArea() override;

    void add(QWidget *section);
    /// In device-independent pixels; it is never less than a few rows.
    void setTallest(int height);

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    /// Sections that grow or shrink change its size.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// Where each row ends, in the content, for a content of that width.
    QList<int> rowEnds(int width) const;
    /// Where scrolling may stop, upwards.
    QList<int> stops() const;
    void alignEnd();
    void snap();
    void scrollBy(int rows);
    void reveal(const QWidget *focused);

    QVBoxLayout *m_column;
    int m_turned = 0; ///< of the wheel, what was not enough for a row yet
    int m_tallest;
};

} // namespace quillon
