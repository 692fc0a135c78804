// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/rules/RulesDetails.h"

#include "base/Localized.h"
#include "presentation/rules/RuleStatusModel.h"
#include "presentation/rules/RulesListModel.h"
#include "ui/rules/RuleSwitchLine.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/PlainText.h"
#include "ui/widgets/PopoverHead.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <memory>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

void shouldAddStrikeThroughToTextfield(bool isStruck, QLabel &label)
{
    QFont font = label.font();
    font.setStrikeOut(isStruck);
    label.setFont(font);
    label.setEnabled(!isStruck);
}

} // namespace

RulesDetails::RulesDetails(RuleStatusModel &status, RulesListModel &list, const Theme &theme)
    : m_status(status)
    , m_list(list)
    , m_theme(theme)
    , m_head(new PopoverHead(theme))
    , m_activeRule(plainLabel(localized("Active rule")))
    , m_noActiveRules(plainLabel(localized("No active rules")))
    , m_noRules(plainLabel(localized("No rules")))
    , m_rules(new QVBoxLayout)
    , m_empty(plainLabel(localized("No rule for this interface.")))
{
    auto *labels = new QHBoxLayout;
    labels->setSpacing(Theme::unit + 4);
    for (auto *label : {m_activeRule, m_noActiveRules, m_noRules}) {
        label->setFont(Theme::font(Theme::Type::Caption));
        labels->addWidget(label);
    }
    labels->addStretch();
    m_rules->setSpacing(0);
    m_empty->setProperty("look", u"caption"_s);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Theme::unit);
    column->addWidget(m_head);
    column->addLayout(labels);
    column->addLayout(m_rules);
    column->addWidget(m_empty);
    connect(&m_status, &RuleStatusModel::changed, this, &RulesDetails::refreshStatus);
    connect(&m_list, &RulesListModel::changed, this, &RulesDetails::refreshList);
}

void RulesDetails::refresh()
{
    refreshStatus();
    refreshList();
}

void RulesDetails::refreshStatus()
{
    const auto &state = m_status.state();
    shouldAddStrikeThroughToTextfield(state.activeRuleStruckThrough, *m_activeRule);
    shouldAddStrikeThroughToTextfield(state.noActiveRulesStruckThrough, *m_noActiveRules);
    shouldAddStrikeThroughToTextfield(state.noRulesStruckThrough, *m_noRules);
}

void RulesDetails::refreshList()
{
    m_head->setTitle(m_list.state().title);
    m_head->setIcon(m_list.state().symbol == "wifi"_L1 ? u"wireless"_s : u"wired"_s);
    const auto &rows = m_list.state().rows;
    m_empty->setVisible(rows.isEmpty());
    // Rows that are there already keep the keyboard.
    while (m_rules->count() > rows.size()) {
        const std::unique_ptr<QLayoutItem> last(m_rules->takeAt(m_rules->count() - 1));
        last->widget()->hide();
        last->widget()->deleteLater();
    }
    for (qsizetype row = 0; row < rows.size(); ++row) {
        if (row == m_rules->count()) {
            auto *line = new RuleSwitchLine(m_theme);
            connect(line, &RuleSwitchLine::switched, this,
                [this, row](bool isOn) { m_list.toggle(row, isOn); });
            m_rules->addWidget(line);
        }
        auto *line =
            static_cast<RuleSwitchLine *>(m_rules->itemAt(static_cast<int>(row))->widget());
        line->setRule(rows.at(row));
    }
}

} // namespace quillon
