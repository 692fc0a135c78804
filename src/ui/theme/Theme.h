// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/theme/ThemeColors.h"

#include <QFont>
#include <QIcon>
#include <QObject>

namespace quillon {

/// The look of all windows: Fusion with colors, measures and icons of our own, light or dark. One
/// per program; it outlives the windows and the icons that it made. Main thread.
class Theme : public QObject
{
    Q_OBJECT

public:
    // Distances in device-independent pixels, on a grid of eight.
    static constexpr int unit = 8;
    static constexpr int windowMargin = 3 * unit;
    static constexpr int cardMargin = 2 * unit;
    static constexpr int spacing = 2 * unit;
    static constexpr int iconSize = 20;
    static constexpr int windowWidth = 460;
    static constexpr int rowHeight = 26; ///< of a row of details

    /// Which of the theme's colors an icon is drawn in. Disabled icons are drawn as disabled text.
    enum class Ink
    {
        Text,
        Muted,
        Accent,
        OnAccent,
        Positive,
        Notice,
        Hint,
        OnHintButton,
        Tray, ///< legible on light and dark panels alike
    };

    explicit Theme(ColorScheme scheme = ColorScheme::Light);

    ColorScheme scheme() const { return m_scheme; }
    const ThemeColors &colors() const { return m_colors; }
    QColor ink(Ink ink) const;

    /// Dresses the whole application.
    void apply();
    void setScheme(ColorScheme scheme);

    /// The icon `name` of the resources in the given ink; it follows the scheme by itself.
    QIcon icon(const QString &name, Ink ink) const;
    /// Fixed-width digits, `scale` times as large as the application's font.
    static QFont addressFont(double scale);
    /// The application's font, `scale` times as large.
    static QFont textFont(double scale, QFont::Weight weight = QFont::Normal);

    /// The style sheet template with its @names filled in. A name that is unknown stays as it is.
    static QString styleSheet(
        const QString &pattern, const ThemeColors &colors, ColorScheme scheme);

Q_SIGNALS:
    void changed();

private:
    ColorScheme m_scheme;
    ThemeColors m_colors;
};

} // namespace quillon
