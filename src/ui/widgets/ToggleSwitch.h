// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCheckBox>

class QVariantAnimation;

namespace quillon {

class Theme;

/// A check box that looks like a switch, for lists: what it switches acts at once. It needs an
/// accessible name, as its text is not shown.
class ToggleSwitch : public QCheckBox
{
    Q_OBJECT

public:
    static constexpr QSize trackSize{36, 20};

    /// How one looks, for lists that draw their rows.
    struct Look
    {
        qreal position = 0; ///< of the knob: 0 off, 1 on
        bool isOn = false;
        bool isEnabled = true;
        bool isHovered = false;
        bool isMirrored = false;
    };
    /// Draws one in the middle of `rect`.
    static void draw(QPainter &painter, const Theme &theme, const QRectF &rect, const Look &look);

    explicit ToggleSwitch(const Theme &theme, QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;
    bool hitButton(const QPoint &position) const override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void slide(bool on);

    const Theme &m_theme;
    QVariantAnimation *m_motion;
    /// Of the knob: 0 off, 1 on.
    qreal m_position = 0;
};

} // namespace quillon
