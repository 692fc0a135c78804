// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScrollArea>

namespace quillon {

/// As high as what is in it, up to a limit: what is more is scrolled to. It begins at the top each
/// time that it is shown; what has the keyboard comes into sight.
class LimitedScrollArea : public QScrollArea
{
    Q_OBJECT

public:
    /// `tallest` in pixels.
    LimitedScrollArea(QWidget *content, int tallest, QWidget *parent = nullptr);
    ~LimitedScrollArea() override;

    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void reveal(QWidget *focused);

    int m_tallest;
};

} // namespace quillon
