// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRectF>

#include <optional>

namespace quillon {

/// How a token field and the scroll view around it are laid out, in points.
struct TokenFieldLayout
{
    /// Its origin is the lower left corner and y grows upwards, as the arithmetic counts: a field
    /// whose origin moves down while it grows keeps its upper edge.
    QRectF frame;
    /// Of the scroll view's content, whose scroll bars are then off; none when nothing changes.
    std::optional<qreal> documentHeight;

    bool operator==(const TokenFieldLayout &) const = default;
};

/// The field with `frame`, whose cell asks for `cellHeight`, after one adjustment for each of its
/// tokens.
TokenFieldLayout fixScrollForTokenField(const QRectF &frame, qreal cellHeight, int tokens);

} // namespace quillon
