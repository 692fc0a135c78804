// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>
#include <Qt>

#include <optional>

namespace quillon {

/// Where a popover lies beside its anchor. All in device-independent pixels; positions are those of
/// the screen.
struct PopoverPlacement
{
    enum class Side
    {
        Right, ///< where a line of text ends: left of the anchor where text runs from right to left
        Below,
    };
    /// The edge of the body that the arrow grows out of.
    enum class Edge
    {
        Left,
        Right,
        Top,
        Bottom,
    };

    static constexpr int arrowWidth = 16;
    static constexpr int arrowHeight = 8;

    QPoint position; ///< of the body, without its arrow
    Edge edge = Edge::Left;
    /// Of the arrow's tip, along the edge. None where the body cannot be beside the anchor, and
    /// lies over it.
    std::optional<int> arrow;

    /// On the wanted side; on the opposite one where there is no room; below or above the anchor
    /// where there is none either. Then it slides until it is on the screen, and the arrow stays at
    /// the anchor's middle.
    static PopoverPlacement find(const QRect &anchor, const QSize &body, const QRect &screen,
        Side side, Qt::LayoutDirection direction);
};

} // namespace quillon
