// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/networks/TokenFieldLayout.h"

#include <cmath>

namespace quillon {

namespace {

constexpr qreal leastHeight = 73;
constexpr qreal lineHeight = 17;
constexpr qreal linesInView = 3;
constexpr qreal documentMargin = 5;

} // namespace

TokenFieldLayout fixScrollForTokenField(const QRectF &frame, qreal cellHeight, int tokens)
{
    TokenFieldLayout layout{.frame = frame, .documentHeight = {}};
    for (int token = 0; token < tokens; ++token) {
        if (cellHeight < leastHeight) {
            layout.frame.setHeight(leastHeight);
        } else {
            const qreal lines = std::trunc(cellHeight / lineHeight);
            const qreal growth = lineHeight * (lines - linesInView);
            layout.frame = QRectF(layout.frame.x(), layout.frame.y() - growth, layout.frame.width(),
                layout.frame.height() + growth);
        }
        layout.documentHeight = cellHeight + documentMargin;
    }
    return layout;
}

} // namespace quillon
