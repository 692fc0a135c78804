// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/ToggleSwitch.h"

#include "ui/theme/Theme.h"

#include <QKeyEvent>
#include <QPainter>
#include <QVariantAnimation>

namespace quillon {

namespace {

constexpr qreal knobInset = 3;

} // namespace

ToggleSwitch::ToggleSwitch(const Theme &theme, QWidget *parent)
    : QCheckBox(parent)
    , m_theme(theme)
    , m_motion(new QVariantAnimation(this))
{
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setProperty("ringRadius", trackSize.height() / 2);
    connect(m_motion, &QVariantAnimation::valueChanged, this, [this](const QVariant &value) {
        m_position = value.toReal();
        update();
    });
    connect(this, &QCheckBox::toggled, this, &ToggleSwitch::slide);
    connect(&theme, &Theme::changed, this, qOverload<>(&QWidget::update));
}

QSize ToggleSwitch::sizeHint() const
{
    // As large as what is clicked has to be; the track stands in its middle.
    return {trackSize.width(), Theme::target};
}

void ToggleSwitch::slide(bool on)
{
    m_motion->stop();
    const int duration = isVisible() ? m_theme.motion(Theme::switchMotion) : 0;
    if (duration == 0) {
        m_position = on ? 1 : 0;
        update();
        return;
    }
    m_motion->setDuration(duration);
    m_motion->setStartValue(m_position);
    m_motion->setEndValue(on ? 1.0 : 0.0);
    m_motion->start();
}

void ToggleSwitch::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    draw(painter, m_theme, rect(),
        {.position = m_position,
            .isOn = isChecked(),
            .isEnabled = isEnabled(),
            .isHovered = underMouse(),
            .isMirrored = isRightToLeft()});
}

void ToggleSwitch::draw(QPainter &painter, const Theme &theme, const QRectF &rect, const Look &look)
{
    const ThemeColors &colors = theme.colors();
    painter.setRenderHint(QPainter::Antialiasing);
    QRectF track(QPointF(0, 0), QSizeF(trackSize));
    track.moveCenter(rect.center());
    track.adjust(0.5, 0.5, -0.5, -0.5);
    const QColor edge = !look.isEnabled ? colors.disabledText
                        : look.isOn     ? colors.accent
                                        : colors.controlBorder;
    const QColor hovered = look.isHovered ? colors.controlHover : colors.control;
    painter.setPen(QPen(edge, 1));
    painter.setBrush(!look.isEnabled ? colors.disabledFill : look.isOn ? colors.accent : hovered);
    painter.drawRoundedRect(track, track.height() / 2, track.height() / 2);

    const qreal size = track.height() - 2 * knobInset;
    const qreal way = track.width() - 2 * knobInset - size;
    const qreal along = look.isMirrored ? way * (1 - look.position) : way * look.position;
    painter.setPen(Qt::NoPen);
    painter.setBrush(!look.isEnabled ? colors.disabledText
                     : look.isOn     ? colors.onAccent
                                     : colors.controlBorder);
    painter.drawEllipse(
        QRectF(track.left() + knobInset + along, track.top() + knobInset, size, size));
}

bool ToggleSwitch::hitButton(const QPoint &position) const
{
    return rect().contains(position);
}

void ToggleSwitch::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
    } else {
        QCheckBox::keyPressEvent(event);
    }
}

} // namespace quillon
