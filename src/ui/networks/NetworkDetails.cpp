// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/networks/NetworkDetails.h"

#include "base/Localized.h"
#include "presentation/networks/NetworkInfoModel.h"
#include "ui/networks/TracesView.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/HeartButton.h"
#include "ui/widgets/LiveGraph.h"
#include "ui/widgets/PlainText.h"
#include "ui/widgets/PopoverHead.h"

#include <QGridLayout>
#include <QLabel>
#include <QStyle>
#include <QVBoxLayout>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int widestValue = 24; ///< in characters of average width
/// Above it stands which network it is, below how the radio hears it.
constexpr qsizetype firstOfRadio = 4;

void showValue(QLabel &label, const QString &value)
{
    const bool isKnown = !value.isEmpty() && value != localized("Unknown");
    const QString look = isKnown ? u"value"_s : u"caption"_s;
    if (label.property("look") != look) {
        label.setProperty("look", look);
        label.style()->unpolish(&label);
        label.style()->polish(&label);
    }
    const QString line = value.isEmpty() ? u"–"_s : plainLine(value);
    const QFontMetrics metrics = label.fontMetrics();
    const QString shown =
        metrics.elidedText(line, Qt::ElideMiddle, widestValue * metrics.averageCharWidth());
    label.setText(plainLine(shown));
    label.setAccessibleName(value.isEmpty() ? localized("None") : line);
    label.setToolTip(plainToolTip(shown == line ? QString() : value));
}

} // namespace

NetworkDetails::NetworkDetails(NetworkInfoModel &model, TracesModel &traces, const Theme &theme)
    : m_model(model)
    , m_head(new PopoverHead(theme, u"wireless"_s))
    , m_heart(new HeartButton(theme))
    , m_grid(new QGridLayout)
    , m_graph(new LiveGraph(theme))
    , m_traces(new TracesView(traces))
{
    m_head->addAtEnd(m_heart);
    makeFields();
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Theme::unit);
    column->addWidget(m_head);
    column->addLayout(m_grid);
    column->addWidget(m_graph);
    column->addWidget(m_traces);

    connect(m_heart, &QToolButton::clicked, &m_model, &NetworkInfoModel::chooseFavoriteButton);
    connect(&m_model, &NetworkInfoModel::changed, this, &NetworkDetails::refresh);
}

void NetworkDetails::makeFields()
{
    m_grid->setHorizontalSpacing(Theme::unit + 4);
    m_grid->setVerticalSpacing(Theme::unit / 2);
    m_grid->setColumnStretch(1, 1);
    for (const auto &row : m_model.state().rows) {
        auto *label = plainLabel(row.label);
        label->setProperty("look", u"caption"_s);
        auto *value = plainLabel();
        value->setTextInteractionFlags(Qt::TextSelectableByMouse);
        label->setBuddy(value);
        if (m_values.size() == firstOfRadio) {
            auto *rule = new QFrame;
            rule->setProperty("look", u"rule"_s);
            m_grid->addWidget(rule, m_grid->rowCount(), 0, 1, 2);
        }
        const int line = m_grid->rowCount();
        m_grid->addWidget(label, line, 0);
        m_grid->addWidget(value, line, 1);
        m_values.append(value);
    }
}

void NetworkDetails::refresh()
{
    const auto &state = m_model.state();
    m_head->setTitle(state.name);
    m_heart->setVisible(state.buttonVisible);
    m_heart->setFavorite(state.favorite.removes, state.favorite.accessibilityText);
    for (qsizetype row = 0; row < m_values.size(); ++row) {
        showValue(*m_values.at(row), state.rows.value(row).value);
    }
    m_traces->refresh();
    m_graph->clear();
    for (const auto &sample : state.signal) {
        m_graph->add({sample.time, sample.signal, sample.noise});
    }
}

} // namespace quillon
