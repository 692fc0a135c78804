// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/DetailsArea.h"

#include "ui/theme/Theme.h"

#include <QApplication>
#include <QEvent>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int fewRows = 3 * Theme::rowHeight;
/// Of the wheel, in the eighths of a degree that Qt counts; a notch is three rows.
constexpr int turnPerRow = 40;

int heightOf(const QLayoutItem &item, int width)
{
    return item.hasHeightForWidth() ? item.heightForWidth(width) : item.sizeHint().height();
}

} // namespace

DetailsArea::DetailsArea(QWidget *parent)
    : QScrollArea(parent)
    , m_tallest(QWIDGETSIZE_MAX)
{
    setObjectName(u"detailsArea"_s);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // Its sections take the keyboard, it does not.
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);

    auto *content = new QWidget;
    m_column = new QVBoxLayout(content);
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->setSpacing(Theme::spacing);
    setWidget(content);
    // The window's ground shows through.
    viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &DetailsArea::snap);
    connect(qApp, &QApplication::focusChanged, this,
        [this](const QWidget *, const QWidget *now) { reveal(now); });
}

DetailsArea::~DetailsArea()
{
    // Its sections go when it is only a widget any more, and the keyboard with them.
    disconnect(qApp, nullptr, this, nullptr);
    disconnect(verticalScrollBar(), nullptr, this, nullptr);
}

void DetailsArea::add(QWidget *section)
{
    m_column->addWidget(section);
}

void DetailsArea::setTallest(int height)
{
    const int tallest = std::max(height, fewRows);
    if (tallest != m_tallest) {
        m_tallest = tallest;
        updateGeometry();
    }
}

int DetailsArea::heightForWidth(int width) const
{
    const int wanted = m_column->hasHeightForWidth() ? m_column->totalHeightForWidth(width)
                                                     : m_column->totalSizeHint().height();
    const int needed = wanted - m_column->contentsMargins().bottom();
    if (needed <= m_tallest) {
        return needed;
    }
    const QList<int> ends = rowEnds(width);
    const auto tooFar = std::upper_bound(ends.begin(), ends.end(), m_tallest);
    return tooFar == ends.begin() ? m_tallest : *std::prev(tooFar);
}

QList<int> DetailsArea::rowEnds(int width) const
{
    QList<int> ends;
    int end = 0;
    for (int index = 0; index < m_column->count(); ++index) {
        QLayoutItem &section = *m_column->itemAt(index);
        if (section.isEmpty()) {
            continue;
        }
        end += ends.isEmpty() ? 0 : m_column->spacing();
        QLayout *rows =
            section.widget()->property("rows").toBool() ? section.widget()->layout() : nullptr;
        if (rows == nullptr) {
            end += heightOf(section, width);
            ends.append(end);
            continue;
        }
        const int before = end;
        const QMargins margins = rows->contentsMargins();
        end += margins.top();
        for (int row = 0; row < rows->count(); ++row) {
            if (!rows->itemAt(row)->isEmpty()) {
                end += heightOf(*rows->itemAt(row), width - margins.left() - margins.right()) +
                       rows->spacing();
                ends.append(end);
            }
        }
        // What is below its last row belongs to it.
        end = before + heightOf(section, width);
        if (!ends.isEmpty()) {
            ends.last() = end;
        }
    }
    return ends;
}

QList<int> DetailsArea::stops() const
{
    QList<int> stops = rowEnds(viewport()->width());
    stops.prepend(0);
    return stops;
}

void DetailsArea::alignEnd()
{
    // The last rows end with the view only if one begins where it begins.
    const int hidden = m_column->contentsMargins().bottom();
    const int needed = heightOf(*m_column, viewport()->width()) - hidden;
    const int last = std::max(0, needed - viewport()->height());
    const QList<int> all = stops();
    const auto stop = std::lower_bound(all.begin(), all.end(), last);
    m_column->setContentsMargins(0, 0, 0, stop == all.end() ? 0 : *stop - last);
    // What is above may have become higher or lower.
    snap();
}

void DetailsArea::snap()
{
    QScrollBar &bar = *verticalScrollBar();
    const QList<int> all = stops();
    const auto after = std::lower_bound(all.begin(), all.end(), bar.value());
    if (after == all.end() || *after == bar.value() || after == all.begin()) {
        return;
    }
    const int before = *std::prev(after);
    bar.setValue(bar.value() - before < *after - bar.value() ? before : *after);
}

void DetailsArea::scrollBy(int rows)
{
    const QList<int> all = stops();
    const auto now =
        std::lower_bound(all.begin(), all.end(), verticalScrollBar()->value()) - all.begin();
    verticalScrollBar()->setValue(all[std::clamp(now + rows, qsizetype(0), all.size() - 1)]);
}

void DetailsArea::reveal(const QWidget *focused)
{
    if (focused == nullptr || !widget()->isAncestorOf(focused)) {
        return;
    }
    const QPoint middle = focused->mapTo(widget(), focused->rect().center());
    const QList<int> all = stops();
    const auto end = std::upper_bound(all.begin(), all.end(), middle.y());
    if (end == all.begin() || end == all.end()) {
        return;
    }
    QScrollBar &bar = *verticalScrollBar();
    if (*std::prev(end) < bar.value()) {
        bar.setValue(*std::prev(end));
    } else if (*end > bar.value() + viewport()->height()) {
        bar.setValue(*std::lower_bound(all.begin(), all.end(), *end - viewport()->height()));
    }
}

void DetailsArea::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    verticalScrollBar()->setSingleStep(Theme::rowHeight);
    alignEnd();
}

void DetailsArea::wheelEvent(QWheelEvent *event)
{
    m_turned += event->angleDelta().y();
    const int rows = m_turned / turnPerRow;
    m_turned -= rows * turnPerRow;
    scrollBy(-rows);
    event->accept();
}

QSize DetailsArea::sizeHint() const
{
    const int width = m_column->totalMinimumSize().width();
    const int height = heightForWidth(width);
    const int whole = m_column->hasHeightForWidth() ? m_column->totalHeightForWidth(width)
                                                    : m_column->totalSizeHint().height();
    const bool scrolls = height < whole - m_column->contentsMargins().bottom();
    return {width + (scrolls ? verticalScrollBar()->sizeHint().width() : 0), height};
}

bool DetailsArea::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == widget() && event->type() == QEvent::LayoutRequest) {
        updateGeometry();
        alignEnd();
    }
    return QScrollArea::eventFilter(watched, event);
}

} // namespace quillon
