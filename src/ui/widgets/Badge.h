// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace quillon {

class Theme;

/// A word in a pill: "Changed" and "Active" on a tint, "Hardware" and "Login" in neutral. On a
/// tinted row its ground is that of a card. What it says belongs into the accessible description of
/// what it stands beside.
class Badge : public QWidget
{
    Q_OBJECT

public:
    enum class Tone
    {
        Tint,
        Neutral,
    };

    /// For lists that draw their rows: what a badge that says `text` takes, and one in `rect`.
    static QSize sizeOf(const QString &text);
    static void draw(QPainter &painter, const Theme &theme, const QRect &rect, const QString &text,
        Tone tone, bool onTint);

    Badge(
        const Theme &theme, const QString &text, Tone tone = Tone::Tint, QWidget *parent = nullptr);

    const QString &text() const { return m_text; }
    void setWord(const QString &text);
    void setTone(Tone tone);
    void setOnTint(bool onTint);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const Theme &m_theme;
    QString m_text;
    Tone m_tone;
    bool m_onTint = false;
};

} // namespace quillon
