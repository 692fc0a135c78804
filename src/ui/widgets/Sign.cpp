// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/Sign.h"

#include <QPainter>

namespace quillon {

Sign::Sign(const Theme &theme, int size, QWidget *parent)
    : QWidget(parent)
    , m_theme(theme)
{
    setFixedSize(size, size);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    connect(&theme, &Theme::changed, this, qOverload<>(&QWidget::update));
}

void Sign::setSign(const QString &icon, Theme::Ink ink)
{
    if (icon != m_name || ink != m_ink) {
        m_name = icon;
        m_ink = ink;
        m_icon = m_theme.icon(icon, ink);
        update();
    }
}

void Sign::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    m_icon.paint(&painter, rect());
}

} // namespace quillon
