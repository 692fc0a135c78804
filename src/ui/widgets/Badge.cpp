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

QSize sizeIn(const QFontMetrics &metrics, const QString &text)
{
    return {metrics.horizontalAdvance(text) + 2 * inset,
        std::max(pillHeight, metrics.height() + Theme::unit / 2)};
}

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
    const QString word = plainLine(text);
    if (word != m_text) {
        m_text = word;
        setAccessibleName(m_text);
        updateGeometry();
        update();
    }
}

void Badge::setTone(Tone tone)
{
    if (tone != m_tone) {
        m_tone = tone;
        update();
    }
}

void Badge::setOnTint(bool onTint)
{
    m_onTint = onTint;
    update();
}

QSize Badge::sizeHint() const
{
    return sizeIn(fontMetrics(), m_text);
}

QSize Badge::sizeOf(const QString &text)
{
    return sizeIn(QFontMetrics(Theme::font(Theme::Type::Badge)), text);
}

void Badge::draw(QPainter &painter, const Theme &theme, const QRect &rect, const QString &text,
    Tone tone, bool onTint)
{
    const ThemeColors &colors = theme.colors();
    const bool isTint = tone == Tone::Tint;
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF pill = QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(isTint ? colors.tintEdge : colors.surfaceBorder);
    painter.setBrush(isTint && !onTint ? colors.tint : colors.surface);
    painter.drawRoundedRect(pill, pill.height() / 2, pill.height() / 2);
    painter.setPen(isTint ? colors.onTint : colors.mutedText);
    painter.drawText(rect, Qt::AlignCenter, text);
}

void Badge::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    draw(painter, m_theme, rect(), m_text, m_tone, m_onTint);
}

} // namespace quillon
