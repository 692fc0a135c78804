// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/theme/ThemeColors.h"

#include <QFont>
#include <QIcon>
#include <QObject>

#include <chrono>
#include <memory>

namespace quillon {

class Compositing;
class FocusRing;

/// The look of all windows: Fusion with colors, measures, type and icons of our own, light or dark,
/// and with high contrast. One per program; it outlives the windows and the icons that it made.
/// Main thread.
class Theme : public QObject
{
    Q_OBJECT

public:
    // Distances in device-independent pixels, on a grid of four.
    static constexpr int unit = 8;
    static constexpr int windowMargin = 2 * unit;
    static constexpr int cardMargin = 2 * unit;    ///< left and right of what is in a card
    static constexpr int cardMarginTop = unit + 4; ///< above and below it
    static constexpr int spacing = unit + 4;       ///< between cards
    static constexpr int popoverMargin = 2 * unit;
    static constexpr int iconSize = 20;       ///< in buttons
    static constexpr int inlineIconSize = 16; ///< within a line of text
    static constexpr int toolBarIconSize = 24;
    static constexpr int headerIconSize = 32; ///< of a window's header, of an empty state
    static constexpr int windowWidth = 480;
    static constexpr int rowHeight = 34;     ///< least height of a row of details
    static constexpr int tallRowHeight = 54; ///< of a row with two lines, of the strip
    static constexpr int controlHeight = 34;
    static constexpr int fieldHeight = 46;    ///< of the address field and its button
    static constexpr int target = 28;         ///< least size of what is clicked
    static constexpr int rowLabelWidth = 124; ///< least width of the labels of rows
    static constexpr int cardRadius = 12;     ///< of cards and popovers
    static constexpr int controlRadius = 8;   ///< of controls, rows and strips
    static constexpr int ringWidth = 2;       ///< of the focus ring, and its distance

    // How long things move.
    static constexpr std::chrono::milliseconds popoverMotion{120};
    static constexpr std::chrono::milliseconds switchMotion{120};
    static constexpr std::chrono::milliseconds toastMotion{150};
    static constexpr std::chrono::milliseconds fieldMotion{400}; ///< of a field that changed

    /// What a text is for. All sizes follow the desktop's font.
    enum class Type
    {
        Title, ///< of a window or a pane
        Head,  ///< of a popover
        Body,
        Strong, ///< body text that stands out
        Caption,
        Badge,
        AddressField, ///< fixed width, the large field
        Address,      ///< fixed width, wherever else an address stands
    };

    /// Which of the theme's colors an icon is drawn in. Disabled icons are drawn as disabled text.
    enum class Ink
    {
        Text,
        Muted,
        Accent,
        OnAccent,
        OnTint,
        Positive,
        Notice,
        Danger,
        Heart,
        Hint,
        OnHintButton,
        Tray, ///< legible on light and dark panels alike
    };

    explicit Theme(ColorScheme scheme = ColorScheme::Light);
    ~Theme() override;

    ColorScheme scheme() const { return m_scheme; }
    Contrast contrast() const { return m_contrast; }
    const ThemeColors &colors() const { return m_colors; }
    QColor ink(Ink ink) const;

    /// Dresses the whole application.
    void apply();
    void setScheme(ColorScheme scheme);
    void setContrast(Contrast contrast);

    /// Whether things move. They do unless the desktop says that they shall not.
    bool isAnimated() const { return m_animated; }
    void setAnimated(bool animated) { m_animated = animated; }
    /// How long a motion takes here: `wanted`, or nothing at all.
    int motion(std::chrono::milliseconds wanted) const;

    /// Whether a window may have parts that one can look through. Asked anew each time: compositors
    /// come and go. No, until somebody has said who knows; `compositing` outlives this object.
    bool windowsBlend() const;
    void setCompositing(const Compositing &compositing) { m_compositing = &compositing; }

    /// The icon `name` of the resources in the given ink; it follows the scheme by itself.
    QIcon icon(const QString &name, Ink ink) const;
    static QFont font(Type type);
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
    void recolor();

    ColorScheme m_scheme;
    Contrast m_contrast = Contrast::Normal;
    ThemeColors m_colors;
    bool m_animated = true;
    const Compositing *m_compositing = nullptr;
    std::unique_ptr<FocusRing> m_focusRing;
};

} // namespace quillon
