// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QPen>
#include <QWidget>

#include <chrono>
#include <optional>

namespace quillon {

class Theme;

/// Signal and noise of a radio over the last minutes as two small lines, in dBm. What was not known
/// at some time is a gap. In words it is the accessible value, and the tool tip.
class LiveGraph : public QWidget
{
    Q_OBJECT

public:
    static constexpr std::chrono::minutes span{5};
    static constexpr int lowest = -100; ///< dBm, where the scale begins
    static constexpr int highest = -20; ///< and where it ends

    struct Sample
    {
        std::chrono::milliseconds time{0}; ///< on any clock that only goes forward
        std::optional<int> signal;         ///< dBm
        std::optional<int> noise;          ///< dBm
    };

    explicit LiveGraph(const Theme &theme, QWidget *parent = nullptr);

    /// Samples come in the order of their times; what is older than the span is forgotten.
    void add(const Sample &sample);
    /// Another network: what was before it says nothing of it.
    void clear();
    const QList<Sample> &samples() const { return m_samples; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void describe();
    QRect plot() const;
    void drawScale(QPainter &painter) const;
    void drawLegend(QPainter &painter) const;
    QPen signalPen() const;
    QPen noisePen() const;
    void drawLine(QPainter &painter, std::optional<int> Sample::*value) const;

    const Theme &m_theme;
    QList<Sample> m_samples;
};

} // namespace quillon
