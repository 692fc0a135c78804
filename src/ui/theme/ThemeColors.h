// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/AppearanceSource.h"

#include <QColor>
#include <QList>
#include <QPalette>

namespace quillon {

enum class Contrast
{
    Normal,
    High,
};

/// Every color of the program's windows, by what it is for.
struct ThemeColors
{
    QColor window;        ///< behind everything
    QColor surface;       ///< cards
    QColor surfaceBorder; ///< decoration only
    QColor popoverBorder; ///< the edge of what lies over a window
    QColor control;       ///< what is raised: secondary buttons, selectors, popovers, menus
    QColor controlHover;
    QColor controlPressed;
    QColor controlBorder; ///< the outline by which a control is recognized
    QColor text;
    QColor mutedText;
    QColor disabledText;
    QColor accent; ///< the primary button, links, the ring around the focused control
    QColor tint;   ///< badges, tokens, the selection, the row whose popover is open
    QColor tintEdge;
    QColor onTint;
    QColor accentHover;
    QColor accentPressed;
    QColor onAccent;
    QColor disabledFill;
    QColor positive;
    QColor notice; ///< text on noticeSurface
    QColor noticeSurface;
    QColor danger; ///< what failed, and what cannot be taken back
    QColor dangerSurface;
    QColor heart;
    QColor hint; ///< the panel that offers the helper: dark in both schemes
    QColor hintText;
    QColor hintBody;
    QColor hintButton;
    QColor hintButtonHover;
    QColor onHintButton;

    /// With high contrast every edge is as dark as text, and nothing is told by a tint alone.
    static ThemeColors forScheme(ColorScheme scheme, Contrast contrast = Contrast::Normal);
    QPalette palette() const;
};

/// The scheme that a palette belongs to, as a desktop's platform theme gives it: dark when its text
/// is lighter than its windows.
ColorScheme schemeOf(const QPalette &palette);

/// Contrast of two opaque colors as WCAG 2.1 defines it: 1 to 21.
double contrastRatio(const QColor &first, const QColor &second);

/// A color that is drawn on another, and the least contrast that makes it legible: 4.5 for text, 3
/// for large text, outlines and symbols.
struct ColorPair
{
    const char *use;
    QColor foreground;
    QColor background;
    double leastContrast;
};

/// All pairs that carry meaning.
QList<ColorPair> meaningfulPairs(const ThemeColors &colors);

} // namespace quillon
