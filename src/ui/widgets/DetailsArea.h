// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScrollArea>

class QVBoxLayout;

namespace quillon {

/// The lower part of the main window: sections under each other. It is as tall as they need, unless
/// that is more than it may be: then it scrolls.
class DetailsArea : public QScrollArea
{
    Q_OBJECT

public:
    explicit DetailsArea(QWidget *parent = nullptr);

    void add(QWidget *section);
    /// In device-independent pixels; it is never less than a few rows.
    void setTallest(int height);

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    /// Sections that grow or shrink change its size.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QVBoxLayout *m_column;
    int m_tallest;
};

} // namespace quillon
