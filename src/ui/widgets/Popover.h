// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/widgets/PopoverPlacement.h"

#include <QPainterPath>
#include <QPointer>
#include <QWidget>

class QVariantAnimation;

namespace quillon {

class Theme;

/// A small window beside the control that opened it, with an arrow to it. One is open at a time: it
/// takes the keyboard, Tab stays in it, and Escape, its anchor or a press outside closes it, which
/// does nothing else. Then its anchor has the keyboard again.
/// While it is open the anchor's property "open" is true; what is dressed by the style sheet is
/// dressed anew. It closes when its anchor is hidden. Its accessible name is that of its anchor.
class Popover : public QWidget
{
    Q_OBJECT

public:
    using Side = PopoverPlacement::Side;

    static constexpr int usualWidth = 300; ///< of the body, unless setBodyWidth() says otherwise

    /// Takes `content`, which stands within the popover's margins. `parent` is in the window that
    /// it lies over.
    Popover(const Theme &theme, QWidget *content, QWidget *parent);

    QWidget *content() const { return m_content; }
    /// It is wider where its content cannot be as narrow, but never larger than the screen: then
    /// the tallest part of its content gets less than it asks for.
    void setBodyWidth(int pixels) { m_bodyWidth = pixels; }

    /// Shown when hidden, closed when shown.
    void toggle(QWidget &anchor, Side side = Side::Right);
    void open(QWidget &anchor, Side side = Side::Right);
    bool isOpen() const { return m_anchor != nullptr && isVisible(); }

    /// Goes out of the way of a drag that began in it: nothing of it is seen, and what is dropped
    /// falls on what lies under it. It is to be closed when the drag has ended. It cannot be closed
    /// before: under Wayland the window where a drag began must live as long as the drag.
    void stepAside();

    /// Whether it has an arrow now: only where it is known to lie beside its anchor, on a display
    /// that shows what is around the arrow.
    bool hasArrow() const { return m_placement.arrow.has_value() && m_margin > 0; }

Q_SIGNALS:
    /// Its content may still change; its size is found afterwards.
    void aboutToShow();
    /// Whoever closes it, once for each aboutToShow().
    void aboutToClose();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void place();
    QRect body() const;
    QPainterPath outline() const;
    void slideIn();
    /// Under Wayland: Qt 6.4 would draw between the compositor's first word on a window and its own
    /// answer, which ends the connection.
    void drawNothingUntilExposed();
    void giveFocus();
    void tellAnchor(bool open);

    const Theme &m_theme;
    QWidget *m_content;
    QVariantAnimation *m_motion;
    int m_bodyWidth = usualWidth;
    QPointer<QWidget> m_anchor;
    Side m_side = Side::Right;
    PopoverPlacement m_placement;
    /// Room for the arrow around the body: none where the display cannot show that it is empty.
    int m_margin = 0;
    bool m_isAside = false;
    QPoint m_target;
};

} // namespace quillon
