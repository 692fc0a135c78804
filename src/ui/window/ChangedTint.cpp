// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/ChangedTint.h"

#include "ui/theme/Theme.h"

#include <QEvent>
#include <QPainter>
#include <QVariantAnimation>

namespace quillon {

ChangedTint::ChangedTint(const Theme &theme, QWidget &field)
    : QWidget(&field)
    , m_theme(theme)
    , m_motion(new QVariantAnimation(this))
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    m_motion->setStartValue(1.0);
    m_motion->setEndValue(0.0);
    connect(m_motion, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
    connect(m_motion, &QVariantAnimation::finished, this, &QWidget::hide);
    field.installEventFilter(this);
    hide();
}

void ChangedTint::flash()
{
    const int duration = m_theme.motion(Theme::fieldMotion);
    m_motion->stop();
    if (duration == 0) {
        hide();
        return;
    }
    resize(parentWidget()->size());
    show();
    m_motion->setDuration(duration);
    m_motion->start();
}

void ChangedTint::paintEvent(QPaintEvent *)
{
    const bool isDark = m_theme.scheme() == ColorScheme::Dark;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // The ground takes the tint; the text, further from it than the tint, stays as it is.
    painter.setCompositionMode(
        isDark ? QPainter::CompositionMode_Lighten : QPainter::CompositionMode_Darken);
    painter.setOpacity(m_motion->currentValue().toReal());
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_theme.colors().tint);
    painter.drawRoundedRect(
        rect().adjusted(1, 1, -1, -1), Theme::controlRadius - 1, Theme::controlRadius - 1);
}

bool ChangedTint::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize) {
        resize(parentWidget()->size());
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace quillon
