// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/theme/ThemeColors.h"

#include <algorithm>
#include <cmath>

namespace quillon {

namespace {

// The hint has the same colors in both schemes: its blue is given, and legible on dark ground
// only.
void addHintColors(ThemeColors &colors)
{
    colors.hint = QColor(0x14203a);
    colors.hintText = QColor::fromRgbF(0.43F, 0.61F, 0.99F);
    colors.hintBody = QColor(0xd9e4fb);
    colors.hintButton = QColor(0x6e9cfc);
    colors.hintButtonHover = QColor(0x8db2ff);
    colors.onHintButton = QColor(0x0b1326);
}

ThemeColors lightColors()
{
    ThemeColors colors;
    colors.window = QColor(0xf3f5fa);
    colors.surface = QColor(0xffffff);
    colors.surfaceBorder = QColor(0xdbe1ec);
    colors.popoverBorder = QColor(0xb4bdcd);
    colors.control = QColor(0xffffff);
    colors.controlHover = QColor(0xeaf0fd);
    colors.controlPressed = QColor(0xdbe5fb);
    colors.controlBorder = QColor(0x7c889f);
    colors.text = QColor(0x161c28);
    colors.mutedText = QColor(0x536078);
    colors.disabledText = QColor(0x6f7b91);
    colors.accent = QColor(0x2457d6);
    colors.accentHover = QColor(0x1d4abc);
    colors.accentPressed = QColor(0x173c9c);
    colors.onAccent = QColor(0xffffff);
    colors.tint = QColor(0xe3ebfd);
    colors.tintEdge = QColor(0xe3ebfd);
    colors.onTint = QColor(0x1d4abc);
    colors.disabledFill = QColor(0xe6eaf2);
    colors.positive = QColor(0x147548);
    colors.notice = QColor(0x7f4600);
    colors.noticeSurface = QColor(0xfff0d3);
    colors.danger = QColor(0xb3261e);
    colors.dangerSurface = QColor(0xfdeceb);
    colors.heart = QColor(0xc2255c);
    addHintColors(colors);
    return colors;
}

ThemeColors darkColors()
{
    ThemeColors colors;
    colors.window = QColor(0x12161e);
    colors.surface = QColor(0x1b212c);
    colors.surfaceBorder = QColor(0x2c3545);
    colors.popoverBorder = QColor(0x465268);
    colors.control = QColor(0x232b38);
    colors.controlHover = QColor(0x2d3748);
    colors.controlPressed = QColor(0x364257);
    colors.controlBorder = QColor(0x738099);
    colors.text = QColor(0xeef2f9);
    colors.mutedText = QColor(0xa8b4c9);
    colors.disabledText = QColor(0x7d89a0);
    colors.accent = QColor(0x6e9cfc);
    colors.accentHover = QColor(0x8db2ff);
    colors.accentPressed = QColor(0x5a8af0);
    colors.onAccent = QColor(0x0b1326);
    colors.tint = QColor(0x22335a);
    colors.tintEdge = QColor(0x22335a);
    colors.onTint = QColor(0xb4cbff);
    colors.disabledFill = QColor(0x222936);
    colors.positive = QColor(0x4cc38a);
    colors.notice = QColor(0xffcc80);
    colors.noticeSurface = QColor(0x3a2d14);
    colors.danger = QColor(0xff9d94);
    colors.dangerSurface = QColor(0x402022);
    colors.heart = QColor(0xff8fab);
    addHintColors(colors);
    return colors;
}

ThemeColors withHighContrast(ThemeColors colors)
{
    colors.surfaceBorder = colors.text;
    colors.popoverBorder = colors.text;
    colors.controlBorder = colors.text;
    colors.mutedText = colors.text;
    colors.tint = colors.window;
    colors.tintEdge = colors.accent;
    colors.onTint = colors.text;
    return colors;
}

ThemeColors normalColors(ColorScheme scheme)
{
    switch (scheme) {
    case ColorScheme::Light:
        return lightColors();
    case ColorScheme::Dark:
        return darkColors();
    }
    Q_UNREACHABLE();
}

double linear(double channel)
{
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

} // namespace

ThemeColors ThemeColors::forScheme(ColorScheme scheme, Contrast contrast)
{
    const ThemeColors colors = normalColors(scheme);
    return contrast == Contrast::High ? withHighContrast(colors) : colors;
}

QPalette ThemeColors::palette() const
{
    QPalette palette(
        text, control, surface, surfaceBorder, controlBorder, text, text, surface, window);
    palette.setColor(QPalette::PlaceholderText, mutedText);
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, onAccent);
    palette.setColor(QPalette::Link, accent);
    palette.setColor(QPalette::ToolTipBase, surface);
    palette.setColor(QPalette::ToolTipText, text);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, disabledText);
    }
    return palette;
}

ColorScheme schemeOf(const QPalette &palette)
{
    const bool dark =
        luminance(palette.color(QPalette::WindowText)) > luminance(palette.color(QPalette::Window));
    return dark ? ColorScheme::Dark : ColorScheme::Light;
}

double contrastRatio(const QColor &first, const QColor &second)
{
    const double one = luminance(first);
    const double other = luminance(second);
    return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

QList<ColorPair> meaningfulPairs(const ThemeColors &colors)
{
    constexpr double text = 4.5;
    constexpr double shape = 3.0;
    return {
        {"text on the window", colors.text, colors.window, text},
        {"text on a card", colors.text, colors.surface, text},
        {"secondary text on the window", colors.mutedText, colors.window, text},
        {"secondary text on a card", colors.mutedText, colors.surface, text},
        {"secondary text on a popover", colors.mutedText, colors.control, text},
        {"text on a badge, a token or an open row", colors.text, colors.tint, text},
        {"secondary text on an open row", colors.mutedText, colors.tint, text},
        {"a badge or a token", colors.onTint, colors.tint, text},
        {"a badge on an open row", colors.onTint, colors.surface, text},
        {"a secondary button", colors.text, colors.control, text},
        {"a secondary button under the pointer", colors.text, colors.controlHover, text},
        {"a secondary button while pressed", colors.text, colors.controlPressed, text},
        {"the primary button", colors.onAccent, colors.accent, text},
        {"the primary button under the pointer", colors.onAccent, colors.accentHover, text},
        {"the primary button while pressed", colors.onAccent, colors.accentPressed, text},
        {"an active link", colors.positive, colors.window, text},
        {"what works, on a card", colors.positive, colors.surface, text},
        {"the notice", colors.notice, colors.noticeSurface, text},
        {"the notice on a card", colors.notice, colors.surface, text},
        {"the notice on a popover", colors.notice, colors.control, text},
        {"a failure on its own ground", colors.danger, colors.dangerSurface, text},
        {"a failure on a card", colors.danger, colors.surface, text},
        {"a failure on a popover", colors.danger, colors.control, text},
        {"a toast", colors.window, colors.text, text},
        {"the heart on a card", colors.heart, colors.surface, shape},
        {"the heart on a popover", colors.heart, colors.control, shape},
        {"a disabled control", colors.disabledText, colors.disabledFill, shape},
        {"the hint", colors.hintText, colors.hint, text},
        {"the hint's explanation", colors.hintBody, colors.hint, text},
        {"the hint's button", colors.onHintButton, colors.hintButton, text},
        {"the hint's button under the pointer", colors.onHintButton, colors.hintButtonHover, text},
        {"a control's outline on the window", colors.controlBorder, colors.window, shape},
        {"a control's outline on a card", colors.controlBorder, colors.surface, shape},
        {"the focus ring on the window", colors.accent, colors.window, shape},
        {"the focus ring on a card", colors.accent, colors.surface, shape},
        {"the focus ring on a secondary button", colors.accent, colors.control, shape},
        {"the focus ring of the primary button", colors.text, colors.window, shape},
        {"the focus ring on the hint", colors.hintBody, colors.hint, shape},
        {"an icon on the window", colors.accent, colors.window, shape},
    };
}

} // namespace quillon
