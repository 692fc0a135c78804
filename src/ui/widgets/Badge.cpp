// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/Badge.h"

#include "ui/theme/Theme.h"
#include "ui/widgets/AccessibleRole.h"
#include "ui/widgets/PlainText.h"

#include <QPainter>

#include <algorithm>

namespace quillon {

namespace {

constexpr int pillHeight = 20;
constexpr int inset = Theme::unit;

} // namespace

Badge::Badge(const Theme &theme, const QString &text, Tone tone, QWidget *parent)
    : QWidget(parent)
    , m_theme(theme)
    , m_text(plainLine(text))
    , m_tone(tone)
{
    setFont(Theme::font(Theme::Type::Badge));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAccessibleRole(*this, QAccessible::StaticText);
    setAccessibleName(m_text);
    connect(&theme, &Theme::changed, this, qOverload<>(&QWidget::update));
}

void Badge::setWord(const QString &text)
{
    m_text = plainLine(text);
    setAccessibleName(m_text);
    updateGeometry();
    update();
}

void Badge::setTone(Tone tone)
{
    m_tone = tone;
    update();
}

void Badge::setOnTint(bool onTint)
{
    m_onTint = onTint;
    update();
}

QSize Badge::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(m_text) + 2 * inset,
        std::max(pillHeight, fontMetrics().height() + Theme::unit / 2)};
}

void Badge::paintEvent(QPaintEvent *)
{
    const ThemeColors &colors = m_theme.colors();
    const bool isTint = m_tone == Tone::Tint;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF pill = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(isTint ? colors.tintEdge : colors.surfaceBorder);
    painter.setBrush(isTint && !m_onTint ? colors.tint : colors.surface);
    painter.drawRoundedRect(pill, pill.height() / 2, pill.height() / 2);
    painter.setPen(isTint ? colors.onTint : colors.mutedText);
    painter.drawText(rect(), Qt::AlignCenter, m_text);
}

} // namespace quillon
