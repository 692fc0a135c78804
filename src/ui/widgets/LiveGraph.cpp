// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/LiveGraph.h"

#include "base/Localized.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/AccessibleRole.h"
#include "ui/widgets/PlainText.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyle>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int plotHeight = 48;
constexpr int gap = Theme::unit / 2;
constexpr int ticks[] = {-30, -60, -90};
/// Longer without a sample than this, the line is broken.
constexpr std::chrono::seconds patience{10};

QString dBm(int value)
{
    // With a minus, not a hyphen.
    return u"%1%2 dBm"_s.arg(value < 0 ? u"−"_s : QString(), QString::number(std::abs(value)));
}

QString inWords(const LiveGraph::Sample &latest)
{
    if (!latest.signal && !latest.noise) {
        return localized("Signal and noise are not known");
    }
    if (!latest.noise) {
        return filled(localized("Signal %@"), {dBm(*latest.signal)});
    }
    if (!latest.signal) {
        return filled(localized("Noise %@"), {dBm(*latest.noise)});
    }
    return filled(localized("Signal %@, noise %@"), {dBm(*latest.signal), dBm(*latest.noise)});
}

/// They read in their own direction: that of the window would put a unit before its number.
void drawWords(QPainter &painter, const QRect &place, Qt::AlignmentFlag side, const QString &words)
{
    painter.setLayoutDirection(words.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    painter.drawText(place, int(side) | int(Qt::AlignVCenter) | int(Qt::AlignAbsolute), words);
}

} // namespace

LiveGraph::LiveGraph(const Theme &theme, QWidget *parent)
    : QWidget(parent)
    , m_theme(theme)
{
    setFont(Theme::font(Theme::Type::Caption));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleRole(*this, QAccessible::Chart);
    setAccessibleName(localized("Signal and noise over the last five minutes"));
    connect(&theme, &Theme::changed, this, qOverload<>(&QWidget::update));
    describe();
}

void LiveGraph::add(const Sample &sample)
{
    m_samples.append(sample);
    // One that is too old is kept: the line comes from there.
    while (m_samples.size() > 1 && m_samples[1].time < sample.time - span) {
        m_samples.removeFirst();
    }
    describe();
    update();
}

void LiveGraph::clear()
{
    m_samples.clear();
    describe();
    update();
}

void LiveGraph::describe()
{
    const Sample latest = m_samples.isEmpty() ? Sample() : m_samples.back();
    setAccessibleValue(*this, inWords(latest));
    setToolTip(plainToolTip(inWords(latest)));
}

QSize LiveGraph::sizeHint() const
{
    return {200, plotHeight + 2 * gap + 2 * fontMetrics().height()};
}

QSize LiveGraph::minimumSizeHint() const
{
    // The legend, with its words side by side.
    int width = 0;
    for (const QString &name : {localized("Signal"), localized("Noise")}) {
        width += 4 * Theme::unit + gap + fontMetrics().horizontalAdvance(name) + 2;
    }
    return {
        width + fontMetrics().horizontalAdvance(localized("5 minutes")) + 2, sizeHint().height()};
}

QRect LiveGraph::plot() const
{
    const int scale = fontMetrics().horizontalAdvance(dBm(ticks[2])) + gap;
    const int half = fontMetrics().height() / 2;
    const QRect area = rect().adjusted(scale, half, 0, -fontMetrics().height() - gap);
    return QStyle::visualRect(layoutDirection(), rect(), area);
}

void LiveGraph::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    drawScale(painter);
    drawLegend(painter);
    painter.setClipRect(plot().adjusted(0, -2, 1, 2));
    painter.setPen(noisePen());
    drawLine(painter, &Sample::noise);
    painter.setPen(signalPen());
    drawLine(painter, &Sample::signal);
}

void LiveGraph::drawScale(QPainter &painter) const
{
    const QRect area = plot();
    const int height = fontMetrics().height();
    for (const int tick : ticks) {
        const int y = area.top() + area.height() * (highest - tick) / (highest - lowest);
        painter.setPen(m_theme.colors().surfaceBorder);
        painter.drawLine(area.left(), y, area.right(), y);
        painter.setPen(m_theme.colors().mutedText);
        const QRect label = isRightToLeft() ? QRect(area.right() + gap, y - height / 2,
                                                  width() - area.right() - gap, height)
                                            : QRect(0, y - height / 2, area.left() - gap, height);
        drawWords(painter, label, isRightToLeft() ? Qt::AlignLeft : Qt::AlignRight, dBm(tick));
    }
}

void LiveGraph::drawLine(QPainter &painter, std::optional<int> Sample::*value) const
{
    if (m_samples.isEmpty()) {
        return;
    }
    const QRectF area = plot();
    const std::chrono::milliseconds now = m_samples.back().time;
    const auto place = [&](const Sample &sample) {
        const double age = std::chrono::duration<double>(now - sample.time) / span;
        const int shown = std::clamp(*(sample.*value), lowest, highest);
        const double x =
            isRightToLeft() ? area.left() + area.width() * age : area.right() - area.width() * age;
        return QPointF(x, area.top() + area.height() * (highest - shown) / (highest - lowest));
    };
    QPainterPath line;
    const Sample *last = nullptr;
    for (const Sample &sample : m_samples) {
        if (!(sample.*value)) {
            last = nullptr;
            continue;
        }
        if (last == nullptr || sample.time - last->time > patience) {
            // A single sample is a point, which a line of no length with round ends shows.
            line.moveTo(place(sample));
        }
        line.lineTo(place(sample));
        last = &sample;
    }
    painter.drawPath(line);
}

void LiveGraph::drawLegend(QPainter &painter) const
{
    const int height = fontMetrics().height();
    QRect line = rect();
    line.setTop(line.bottom() + 1 - height);
    int x = 0;
    const auto entry = [&](const QPen &pen, const QString &name) {
        const QRect dash(x, line.top(), 2 * Theme::unit, height);
        const QRect shownDash = QStyle::visualRect(layoutDirection(), rect(), dash);
        painter.setPen(pen);
        painter.drawLine(shownDash.left(), shownDash.center().y(), shownDash.right() + 1,
            shownDash.center().y());
        const int width = fontMetrics().horizontalAdvance(name) + 1;
        const QRect text(dash.right() + 1 + gap, line.top(), width, height);
        painter.setPen(m_theme.colors().mutedText);
        drawWords(
            painter, QStyle::visualRect(layoutDirection(), rect(), text), Qt::AlignHCenter, name);
        x = text.right() + 1 + 2 * Theme::unit;
    };
    entry(signalPen(), localized("Signal"));
    entry(noisePen(), localized("Noise"));
    const QString time = localized("5 minutes");
    const QRect end(width() - fontMetrics().horizontalAdvance(time) - 1, line.top(),
        fontMetrics().horizontalAdvance(time) + 1, height);
    drawWords(painter, QStyle::visualRect(layoutDirection(), rect(), end), Qt::AlignHCenter, time);
}

QPen LiveGraph::signalPen() const
{
    return {m_theme.colors().accent, 1.75, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

QPen LiveGraph::noisePen() const
{
    return {m_theme.colors().mutedText, 1.5, Qt::DashLine, Qt::FlatCap, Qt::RoundJoin};
}

} // namespace quillon
