// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/widgets/RevealingScrollArea.h"

namespace quillon {

/// Content that is as tall as it needs to be up to a height, and scrolls from there on. Where it
/// gets less, as in a popover that would be taller than the screen, it scrolls as well.
class ContentScrollArea : public RevealingScrollArea
{
    Q_OBJECT

public:
    /// Takes `content`; `tallest` is in device-independent pixels.
    ContentScrollArea(QWidget *content, int tallest, QWidget *parent = nullptr);

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    /// Begins at the top.
    void showEvent(QShowEvent *event) override;

private:
    int contentHeight(int width) const;

    int m_tallest;
};

} // namespace quillon
