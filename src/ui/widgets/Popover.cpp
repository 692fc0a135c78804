// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/Popover.h"

#include "ui/theme/Theme.h"

#include <QApplication>
#include <QGraphicsOpacityEffect>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>
#include <QVariantAnimation>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// The arrow and the line around it.
constexpr int arrowRoom = PopoverPlacement::arrowHeight + 1;
constexpr int slideDistance = 4;

/// Wayland tells no window where it is on the screen: positions are those within the parent.
bool screenIsKnown()
{
    return QGuiApplication::platformName() != "wayland"_L1;
}

/// Where a popover may be. Without a screen to speak of the compositor moves what it has to.
QRect roomFor(const QWidget &anchor)
{
    constexpr int endless = 1 << 20;
    return screenIsKnown() ? anchor.screen()->availableGeometry()
                           : QRect(-endless, -endless, 2 * endless, 2 * endless);
}

/// In the direction in which text runs, from where it came to where it stays.
QPoint slideOffset(PopoverPlacement::Edge edge)
{
    switch (edge) {
    case PopoverPlacement::Edge::Left:
        return {-slideDistance, 0};
    case PopoverPlacement::Edge::Right:
        return {slideDistance, 0};
    case PopoverPlacement::Edge::Top:
        return {0, -slideDistance};
    case PopoverPlacement::Edge::Bottom:
        return {0, slideDistance};
    }
    Q_UNREACHABLE();
}

} // namespace

Popover::Popover(const Theme &theme, QWidget *content, QWidget *parent)
    : QWidget(parent, Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint)
    , m_theme(theme)
    , m_content(content)
    , m_motion(new QVariantAnimation(this))
{
    setAttribute(Qt::WA_TranslucentBackground);
    // The press that closes it is not also one on what lies under it.
    setAttribute(Qt::WA_NoMouseReplay);
    auto *column = new QVBoxLayout(this);
    column->setSizeConstraint(QLayout::SetNoConstraint);
    column->addWidget(content);
    m_motion->setStartValue(0.0);
    m_motion->setEndValue(1.0);
    m_motion->setEasingCurve(QEasingCurve::OutCubic);
    connect(m_motion, &QVariantAnimation::valueChanged, this, [this](const QVariant &value) {
        const qreal shown = value.toReal();
        setWindowOpacity(shown);
        move(m_target + (QPointF(slideOffset(m_placement.edge)) * (1 - shown)).toPoint());
    });
    connect(&theme, &Theme::changed, this, qOverload<>(&QWidget::update));
}

void Popover::toggle(QWidget &anchor, Side side)
{
    if (isOpen() && m_anchor == &anchor) {
        close();
    } else {
        open(anchor, side);
    }
}

void Popover::open(QWidget &anchor, Side side)
{
    if (auto *const other = qobject_cast<Popover *>(QApplication::activePopupWidget())) {
        other->close();
    }
    m_anchor = &anchor;
    m_side = side;
    setLayoutDirection(anchor.layoutDirection());
    setAccessibleName(anchor.accessibleName());
    Q_EMIT aboutToShow();
    m_margin = m_theme.windowsBlend() ? arrowRoom : 0;
    const int around = m_margin + Theme::popoverMargin;
    layout()->setContentsMargins(around, around, around, around);
    place();
    tellAnchor(true);
    slideIn();
    if (!screenIsKnown()) {
        drawNothingUntilExposed();
    }
    show();
}

void Popover::drawNothingUntilExposed()
{
    create();
    setUpdatesEnabled(false);
    windowHandle()->installEventFilter(this);
}

void Popover::place()
{
    const int inside = std::max(m_bodyWidth - 2 * Theme::popoverMargin,
        layout()->totalMinimumSize().width() - 2 * (m_margin + Theme::popoverMargin));
    const QRect room = roomFor(*m_anchor);
    const int wide =
        std::min(inside + 2 * (m_margin + Theme::popoverMargin), room.width() + 2 * m_margin);
    const int tall = layout()->hasHeightForWidth() ? layout()->totalHeightForWidth(wide)
                                                   : layout()->totalSizeHint().height();
    // Its tallest part gives way first, and scrolls.
    resize(wide, std::min(tall, room.height() + 2 * m_margin));
    const QRect anchor(m_anchor->mapToGlobal(QPoint(0, 0)), m_anchor->size());
    m_placement = PopoverPlacement::find(anchor, body().size(), room, m_side, layoutDirection());
    if (!screenIsKnown()) {
        // A compositor moves it where there is no room, and nobody is told: no arrow rather than a
        // wrong one.
        m_placement.arrow.reset();
    }
    m_target = m_placement.position - QPoint(m_margin, m_margin);
    move(m_target);
    update();
}

void Popover::stepAside()
{
    if (!isOpen() || m_isAside) {
        return;
    }
    m_isAside = true;
    m_motion->stop();
    auto *invisible = new QGraphicsOpacityEffect(m_content);
    invisible->setOpacity(0);
    m_content->setGraphicsEffect(invisible);
    // Under Wayland the mask is only what takes the pointer, and nothing outside of it is drawn
    // anew: so first there is nothing to see. Under X11 the mask is the window's shape.
    repaint();
    setMask(QRegion(-1, -1, 1, 1));
    tellAnchor(false);
}

QRect Popover::body() const
{
    return rect().adjusted(m_margin, m_margin, -m_margin, -m_margin);
}

QPainterPath Popover::outline() const
{
    // The line's middle runs between pixels.
    const QRectF frame = QRectF(body()).adjusted(0.5, 0.5, -0.5, -0.5);
    QPainterPath path;
    if (m_margin == 0) {
        // The corners outside would be black.
        path.addRect(frame);
        return path;
    }
    path.addRoundedRect(frame, Theme::cardRadius, Theme::cardRadius);
    if (!m_placement.arrow) {
        return path;
    }
    constexpr qreal half = PopoverPlacement::arrowWidth / 2.0;
    constexpr qreal high = PopoverPlacement::arrowHeight;
    const qreal along = *m_placement.arrow;
    QPolygonF arrow;
    switch (m_placement.edge) {
    case PopoverPlacement::Edge::Left:
        arrow << frame.topLeft() + QPointF(1, along - half)
              << frame.topLeft() + QPointF(-high, along)
              << frame.topLeft() + QPointF(1, along + half);
        break;
    case PopoverPlacement::Edge::Right:
        arrow << frame.topRight() + QPointF(-1, along - half)
              << frame.topRight() + QPointF(high, along)
              << frame.topRight() + QPointF(-1, along + half);
        break;
    case PopoverPlacement::Edge::Top:
        arrow << frame.topLeft() + QPointF(along - half, 1)
              << frame.topLeft() + QPointF(along, -high)
              << frame.topLeft() + QPointF(along + half, 1);
        break;
    case PopoverPlacement::Edge::Bottom:
        arrow << frame.bottomLeft() + QPointF(along - half, -1)
              << frame.bottomLeft() + QPointF(along, high)
              << frame.bottomLeft() + QPointF(along + half, -1);
        break;
    }
    QPainterPath tip;
    tip.addPolygon(arrow);
    tip.closeSubpath();
    return path.united(tip);
}

void Popover::paintEvent(QPaintEvent *)
{
    if (m_isAside) {
        return;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing, m_margin > 0);
    painter.setPen(QPen(m_theme.colors().popoverBorder, 1));
    painter.setBrush(m_theme.colors().control);
    painter.drawPath(outline());
}

void Popover::mousePressEvent(QMouseEvent *event)
{
    // What is around the body is not the popover, to whoever presses there.
    if (outline().contains(event->position())) {
        event->accept();
    } else {
        close();
    }
}

bool Popover::event(QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest && isOpen()) {
        place();
    }
    return QWidget::event(event);
}

void Popover::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    for (QWidget *watched : {m_anchor.data(), m_anchor->window()}) {
        watched->installEventFilter(this);
    }
    giveFocus();
}

void Popover::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    m_motion->stop();
    const QPointer<QWidget> anchor = m_anchor;
    if (anchor == nullptr) {
        return;
    }
    for (QWidget *watched : {anchor.data(), anchor->window()}) {
        watched->removeEventFilter(this);
    }
    Q_EMIT aboutToClose();
    tellAnchor(false);
    if (std::exchange(m_isAside, false)) {
        clearMask();
        m_content->setGraphicsEffect(nullptr);
    }
    m_anchor = nullptr;
    if (anchor != nullptr && anchor->isVisible() && anchor->focusPolicy() != Qt::NoFocus) {
        anchor->setFocus(Qt::PopupFocusReason);
    }
}

bool Popover::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == windowHandle()) {
        if (event->type() == QEvent::Expose && windowHandle()->isExposed()) {
            setUpdatesEnabled(true);
        }
    } else if (event->type() == QEvent::Hide || event->type() == QEvent::Close) {
        close();
    }
    return QWidget::eventFilter(watched, event);
}

void Popover::slideIn()
{
    const int duration = m_theme.motion(Theme::popoverMotion);
    // Nobody else can move or fade a window that is shown.
    if (m_margin == 0 || QGuiApplication::platformName() != "xcb"_L1) {
        return;
    }
    if (duration == 0) {
        setWindowOpacity(1);
        return;
    }
    m_motion->setDuration(duration);
    m_motion->start();
}

void Popover::giveFocus()
{
    QWidget *first = this;
    do {
        first = first->nextInFocusChain();
    } while (first != this && !((first->focusPolicy() & Qt::TabFocus) != 0 && isAncestorOf(first) &&
                                  first->isVisibleTo(this) && first->isEnabled()));
    if (first != this) {
        first->setFocus(Qt::PopupFocusReason);
    } else {
        setFocusPolicy(Qt::StrongFocus);
        setFocus(Qt::PopupFocusReason);
    }
}

void Popover::tellAnchor(bool open)
{
    if (m_anchor) {
        m_anchor->setProperty("open", open);
        m_anchor->style()->unpolish(m_anchor);
        m_anchor->style()->polish(m_anchor);
        m_anchor->update();
    }
}

} // namespace quillon
