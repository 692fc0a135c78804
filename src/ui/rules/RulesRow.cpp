// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/rules/RulesRow.h"

#include "base/Localized.h"
#include "presentation/rules/RuleStatusModel.h"
#include "presentation/rules/RulesListModel.h"
#include "ui/rules/RuleSwitchLine.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/LimitedScrollArea.h"
#include "ui/widgets/PlainText.h"
#include "ui/widgets/Popover.h"
#include "ui/widgets/PopoverHead.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <memory>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// Some rules, so that the popover has room on a low screen.
constexpr int tallestRules = 8 * Theme::rowHeight;

void shouldAddStrikeThroughToTextfield(bool isStruck, QLabel &label)
{
    QFont font = label.font();
    font.setStrikeOut(isStruck);
    label.setFont(font);
    label.setEnabled(!isStruck);
}

} // namespace

RulesRow::RulesRow(const Models &models, const Theme &theme, QWidget *parent)
    : PopoverRow(theme, localized("Rules"), new QWidget, parent)
    , m_models(models)
    , m_theme(theme)
    , m_head(new PopoverHead(theme))
    , m_activeRule(plainLabel(localized("Active rule")))
    , m_noActiveRules(plainLabel(localized("No active rules")))
    , m_noRules(plainLabel(localized("No rules")))
    , m_rules(new QVBoxLayout)
    , m_empty(plainLabel(localized("No rule for this interface.")))
{
    setObjectName(u"rulesButton"_s);
    makeContent();
    connect(this, &RowButton::clicked, &m_models.list, &RulesListModel::toggleRulesPopover);
    connect(this, &PopoverRow::popoverClosed, &m_models.list, &RulesListModel::popoverWillClose);
    connect(&m_models.status, &RuleStatusModel::changed, this, &RulesRow::refreshStatus);
    connect(&m_models.list, &RulesListModel::changed, this, &RulesRow::refreshList);
    refreshStatus();
    refreshList();
}

void RulesRow::makeContent()
{
    auto *labels = new QHBoxLayout;
    labels->setSpacing(Theme::unit + 4);
    for (auto *label : {m_activeRule, m_noActiveRules, m_noRules}) {
        label->setFont(Theme::font(Theme::Type::Caption));
        labels->addWidget(label);
    }
    labels->addStretch();
    m_rules->setSpacing(0);
    m_rules->setContentsMargins(0, 0, 0, 0);
    auto *rules = new QWidget;
    rules->setLayout(m_rules);
    m_empty->setProperty("look", u"caption"_s);
    auto *column = new QVBoxLayout(popover().content());
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Theme::unit);
    column->addWidget(m_head);
    column->addLayout(labels);
    column->addWidget(new LimitedScrollArea(rules, tallestRules));
    column->addWidget(m_empty);
}

void RulesRow::refreshStatus()
{
    const auto &state = m_models.status.state();
    const bool isActive = state.image == "NSStatusAvailable"_L1;
    const bool hasRules = isActive || state.image == "NSStatusPartiallyAvailable"_L1;
    setValue(isActive   ? localized("Active rule")
             : hasRules ? localized("No active rules")
                        : localized("No rules"));
    setDot(Dot{isActive   ? Theme::Ink::Positive
               : hasRules ? Theme::Ink::Notice
                          : Theme::Ink::Muted,
        isActive});
    setRowToolTip(state.toolTip);
    shouldAddStrikeThroughToTextfield(state.activeRuleStruckThrough, *m_activeRule);
    shouldAddStrikeThroughToTextfield(state.noActiveRulesStruckThrough, *m_noActiveRules);
    shouldAddStrikeThroughToTextfield(state.noRulesStruckThrough, *m_noRules);
}

void RulesRow::refreshList()
{
    const auto &state = m_models.list.state();
    m_head->setTitle(state.title);
    m_head->setIcon(state.symbol == "wifi"_L1 ? u"wireless"_s : u"wired"_s);
    makeRules();
    setPopoverShown(state.popoverShown);
}

void RulesRow::makeRules()
{
    const auto &rows = m_models.list.state().rows;
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
                [this, row](bool isOn) { m_models.list.toggle(row, isOn); });
            m_rules->addWidget(line);
        }
        auto *line =
            static_cast<RuleSwitchLine *>(m_rules->itemAt(static_cast<int>(row))->widget());
        line->setRule(rows.at(row));
    }
}

} // namespace quillon
