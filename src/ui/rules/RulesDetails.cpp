// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/rules/RulesDetails.h"

#include "base/Localized.h"
#include "presentation/rules/RuleStatusModel.h"
#include "ui/rules/RuleSwitchLine.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/ContentScrollArea.h"
#include "ui/widgets/PlainText.h"
#include "ui/widgets/PopoverHead.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// What lies beside a switch is its ring's; all begins where the switches begin.
constexpr int ring = ContentScrollArea::ringRoom;
/// A row more would be seen to its half.
constexpr int tallest = 8 * Theme::rowHeight + Theme::rowHeight / 2;

QWidget *makeList(QVBoxLayout *rows)
{
    auto *list = new QWidget;
    list->setLayout(rows);
    return list;
}

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
    , m_area(new ContentScrollArea(makeList(m_rules), tallest))
    , m_empty(plainLabel(localized("No rule for this interface.")))
    , m_edit(new QPushButton)
{
    auto *labels = new QHBoxLayout;
    labels->setSpacing(Theme::unit + 4);
    for (auto *label : {m_activeRule, m_noActiveRules, m_noRules}) {
        label->setFont(Theme::font(Theme::Type::Caption));
        labels->addWidget(label);
    }
    labels->addStretch();
    labels->setContentsMargins(ring, 0, ring, 0);
    m_rules->setSpacing(0);
    m_rules->setContentsMargins(ring, 0, ring, 0);
    m_head->setContentsMargins(ring, 0, ring, 0);
    m_empty->setContentsMargins(ring, 0, ring, 0);
    m_empty->setProperty("look", u"caption"_s);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Theme::unit);
    column->addWidget(m_head);
    column->addLayout(labels);
    column->addWidget(m_area);
    column->addWidget(m_empty);
    m_edit->setObjectName(u"editRules"_s);
    m_edit->setAutoDefault(true);
    auto *ending = new QHBoxLayout;
    ending->setContentsMargins(0, 0, ring, 0);
    ending->addStretch();
    ending->addWidget(m_edit);
    column->addLayout(ending);
    connect(m_edit, &QPushButton::clicked, this,
        [this] { Q_EMIT editChosen(m_list.state().rows.isEmpty()); });
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
    m_edit->setText(
        plainLine(rows.isEmpty() ? localized("New Network Rule…") : localized("Edit Rules")));
    m_edit->setAccessibleName(m_edit->text());
    m_edit->setToolTip(plainToolTip(localized("Opens the rule editor")));
    m_area->setVisible(!rows.isEmpty());
    setRules(rows);
    m_area->updateGeometry();
}

void RulesDetails::setRules(const QList<RulesListModel::Row> &rules)
{
    // A rule keeps its line, wherever it goes: the keyboard goes with it.
    QList<RuleSwitchLine *> gone = std::exchange(m_lines, {});
    // The order of Tab begins at the area, which counts only while it takes the keyboard itself.
    m_area->setFocusPolicy(Qt::TabFocus);
    QWidget *before = m_area;
    for (const RulesListModel::Row &rule : rules) {
        RuleSwitchLine *const line = takeOrMake(gone, rule.objID);
        const int place = static_cast<int>(m_lines.size());
        if (m_rules->indexOf(line) != place) {
            m_rules->removeWidget(line);
            m_rules->insertWidget(place, line);
        }
        line->setRule(rule);
        setTabOrder(before, line->control());
        before = line->control();
        m_lines.append(line);
    }
    m_area->setFocusPolicy(Qt::NoFocus);
    for (RuleSwitchLine *line : std::as_const(gone)) {
        m_rules->removeWidget(line);
        // It may be in the middle of its own click.
        line->hide();
        line->deleteLater();
    }
}

RuleSwitchLine *RulesDetails::takeOrMake(QList<RuleSwitchLine *> &from, const QString &objID)
{
    const auto same = std::ranges::find(from, objID, &RuleSwitchLine::objID);
    if (same != from.end()) {
        RuleSwitchLine *const line = *same;
        from.erase(same);
        return line;
    }
    auto *line = new RuleSwitchLine(m_theme);
    connect(line, &RuleSwitchLine::switched, this,
        [this, line](bool isOn) { m_list.toggleRule(line->objID(), isOn); });
    return line;
}

} // namespace quillon
