// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/networks/TracesView.h"

#include "presentation/networks/TracesModel.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/ContentScrollArea.h"
#include "ui/widgets/PlainText.h"

#include <QFontMetrics>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// Three entries of two lines each, and a bit of the next one, which shows that there is more.
/// What is above it grows with the text, and all of it has to fit on a small screen: the larger the
/// text, the less of the list is seen at once.
int tallest()
{
    constexpr int most = 200;
    constexpr int least = 72;
    constexpr int usualLine = 18;
    constexpr int lessForEachPixel = 9;
    const int line = QFontMetrics(Theme::font(Theme::Type::Body)).lineSpacing();
    return std::clamp(most - (line - usualLine) * lessForEachPixel, least, most);
}

constexpr int ring = ContentScrollArea::ringRoom;

QLabel *caption()
{
    auto *label = plainLabel();
    label->setProperty("look", u"caption"_s);
    label->setWordWrap(true);
    return label;
}

} // namespace

TracesView::TracesView(TracesModel &model, QWidget *parent)
    : QWidget(parent)
    , m_model(model)
    , m_title(plainLabel())
    , m_line(caption())
{
    auto *list = new QWidget;
    m_list = new QVBoxLayout(list);
    // Room for the ring around a value that has the keyboard.
    m_list->setContentsMargins(ring, ring, ring, ring);
    m_list->setSpacing(Theme::unit / 4);
    m_area = new ContentScrollArea(list, tallest());

    auto *rule = new QFrame;
    rule->setProperty("look", u"rule"_s);
    m_title->setProperty("look", u"head"_s);
    m_title->setFont(Theme::font(Theme::Type::Strong));
    m_title->setWordWrap(true);
    // All begins where the values begin.
    m_title->setContentsMargins(ring, 0, ring, 0);
    m_line->setContentsMargins(ring, 0, ring, 0);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Theme::unit / 2);
    column->addWidget(rule);
    column->addWidget(m_title);
    column->addWidget(m_line);
    column->addWidget(m_area);
    connect(&m_model, &TracesModel::changed, this, &TracesView::refresh);
    refresh();
}

TracesView::Entry TracesView::makeEntry()
{
    const Entry entry{caption(), plainLabel(), caption()};
    entry.value->setProperty("look", u"value"_s);
    entry.value->setWordWrap(true);
    // To be read and copied by the keyboard as well, which also brings it into sight.
    entry.value->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    entry.value->setFocusPolicy(Qt::StrongFocus);
    entry.label->setBuddy(entry.value);
    if (!m_entries.isEmpty()) {
        m_list->addSpacing(Theme::unit / 2);
    }
    for (QLabel *part : {entry.label, entry.value, entry.hint}) {
        m_list->addWidget(part);
    }
    return entry;
}

void TracesView::refresh()
{
    const auto &state = m_model.state();
    showBroken(*m_title, plainLine(state.title));
    showBroken(*m_line, plainLine(state.line));
    m_line->setVisible(!state.line.isEmpty());
    while (m_entries.size() < state.rows.size()) {
        m_entries.append(makeEntry());
    }
    for (qsizetype at = 0; at < m_entries.size(); ++at) {
        const Entry &entry = m_entries.at(at);
        const bool isUsed = at < state.rows.size();
        entry.label->setVisible(isUsed);
        entry.value->setVisible(isUsed);
        entry.hint->setVisible(isUsed && !state.rows.at(at).hint.isEmpty());
        if (isUsed) {
            const auto &row = state.rows.at(at);
            showBroken(*entry.label, row.label);
            showBroken(*entry.value, plainLine(row.value));
            entry.value->setAccessibleName(row.label + u", "_s + plainLine(row.value));
            entry.value->setAccessibleDescription(row.hint);
            entry.value->setToolTip(plainToolTip(row.value));
            showBroken(*entry.hint, plainParagraphs(row.hint));
        }
    }
    m_area->setVisible(!state.rows.isEmpty());
    m_area->updateGeometry();
}

void TracesView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    m_model.setShown(true);
}

void TracesView::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    m_model.setShown(false);
}

} // namespace quillon
