// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/PopoverPlacement.h"

#include "ui/theme/Theme.h"

#include <QList>

#include <algorithm>

namespace quillon {

namespace {

using Edge = PopoverPlacement::Edge;
using Side = PopoverPlacement::Side;

constexpr int arrowHeight = PopoverPlacement::arrowHeight;

/// The edges that may face the anchor, the best one first.
QList<Edge> preferredEdges(Side side, Qt::LayoutDirection direction)
{
    if (side == Side::Below) {
        return {Edge::Top, Edge::Bottom};
    }
    if (direction == Qt::RightToLeft) {
        return {Edge::Right, Edge::Left, Edge::Top, Edge::Bottom};
    }
    return {Edge::Left, Edge::Right, Edge::Top, Edge::Bottom};
}

bool isUpright(Edge edge)
{
    return edge == Edge::Left || edge == Edge::Right;
}

bool hasRoom(Edge edge, const QRect &anchor, const QSize &body, const QRect &screen)
{
    switch (edge) {
    case Edge::Left:
        return anchor.right() + arrowHeight + body.width() <= screen.right();
    case Edge::Right:
        return anchor.left() - arrowHeight - body.width() >= screen.left();
    case Edge::Top:
        return anchor.bottom() + arrowHeight + body.height() <= screen.bottom();
    case Edge::Bottom:
        return anchor.top() - arrowHeight - body.height() >= screen.top();
    }
    Q_UNREACHABLE();
}

QPoint beside(Edge edge, const QRect &anchor, const QSize &body)
{
    const QPoint middle = anchor.center() - QPoint(body.width() / 2, body.height() / 2);
    switch (edge) {
    case Edge::Left:
        return {anchor.right() + 1 + arrowHeight, middle.y()};
    case Edge::Right:
        return {anchor.left() - arrowHeight - body.width(), middle.y()};
    case Edge::Top:
        return {middle.x(), anchor.bottom() + 1 + arrowHeight};
    case Edge::Bottom:
        return {middle.x(), anchor.top() - arrowHeight - body.height()};
    }
    Q_UNREACHABLE();
}

/// Its beginning is in sight even where it is larger than the screen.
int slid(int position, int size, int first, int last)
{
    return std::max(first, std::min(position, last + 1 - size));
}

} // namespace

PopoverPlacement PopoverPlacement::find(const QRect &anchor, const QSize &body, const QRect &screen,
    Side side, Qt::LayoutDirection direction)
{
    const QList<Edge> edges = preferredEdges(side, direction);
    const auto found = std::find_if(
        edges.begin(), edges.end(), [&](Edge edge) { return hasRoom(edge, anchor, body, screen); });
    PopoverPlacement placement;
    placement.edge = found != edges.end() ? *found : edges.first();
    const QPoint wanted = beside(placement.edge, anchor, body);
    placement.position = {slid(wanted.x(), body.width(), screen.left(), screen.right()),
        slid(wanted.y(), body.height(), screen.top(), screen.bottom())};
    if (found != edges.end()) {
        const QPoint tip = anchor.center() - placement.position;
        const int along = isUpright(placement.edge) ? tip.y() : tip.x();
        const int length = isUpright(placement.edge) ? body.height() : body.width();
        // The corners are round.
        constexpr int corner = Theme::cardRadius + arrowWidth / 2;
        placement.arrow = std::max(corner, std::min(along, length - corner));
    }
    return placement;
}

} // namespace quillon
