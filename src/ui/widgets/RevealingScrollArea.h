// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScrollArea>

namespace quillon {

/// Content that scrolls upwards and downwards in a window or a popover, whose ground shows through.
/// What gets the keyboard, however it gets it, comes into sight.
class RevealingScrollArea : public QScrollArea
{
    Q_OBJECT

public:
    /// How far outside of a control the ring lies that shows its focus: content without a margin of
    /// its own leaves it that room, in pixels.
    static constexpr int ringRoom = 4;

    /// Takes `content`.
    explicit RevealingScrollArea(QWidget *content, QWidget *parent = nullptr);
    ~RevealingScrollArea() override;

    /// As wide as the content and the scroll bar beside it need.
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;

private:
    void reveal(QWidget *focused);
};

} // namespace quillon
