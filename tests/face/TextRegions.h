// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QRect>
#include <QString>

class QWidget;

namespace quillon::test {

/// A text that a widget shows. Rectangles are within the widget, in device-independent pixels.
struct TextRegion
{
    QString text; ///< as it would be with endless room
    QRect room;   ///< what there is for it
    QSize needed; ///< what it takes; empty where that is the widget's own affair
    QRect ink;    ///< where only the text and its ground are drawn
    bool isEnabled = true;
    bool mayBeCut = false; ///< a value: where there is no room the tool tip has to have it
    QString toolTip = {};
};

/// What the widget itself shows, not what is in it. None for one that is not known to show texts.
QList<TextRegion> textRegions(const QWidget &widget);

} // namespace quillon::test
