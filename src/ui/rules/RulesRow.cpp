// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/rules/RulesRow.h"

#include "base/Localized.h"
#include "presence/Presence.h"
#include "presentation/rules/RuleStatusModel.h"
#include "presentation/rules/RulesListModel.h"
#include "ui/rules/RulesDetails.h"

namespace quillon {

using namespace Qt::StringLiterals;

RulesRow::RulesRow(const Models &models, const Theme &theme)
    : PopoverRow(theme, localized("Rules"))
    , m_models(models)
{
    setObjectName(u"rulesButton"_s);
    connect(this, &RowButton::clicked, &m_models.list, &RulesListModel::toggleRulesPopover);
    connect(this, &PopoverRow::popoverClosed, &m_models.list, &RulesListModel::popoverWillClose);
    connect(&m_models.status, &RuleStatusModel::changed, this, &RulesRow::refreshStatus);
    connect(&m_models.list, &RulesListModel::changed, this, &RulesRow::refreshPopover);
    refreshStatus();
    refreshPopover();
}

PopoverDetails *RulesRow::makeDetails()
{
    auto *details = new RulesDetails(m_models.status, m_models.list, theme());
    connect(details, &RulesDetails::editChosen, this, [this](bool isNew) {
        m_models.list.popoverWillClose();
        m_models.presence.goTo(isNew ? Destination::NewNetworkRule : Destination::Rules);
    });
    return details;
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
}

void RulesRow::refreshPopover()
{
    setPopoverShown(m_models.list.state().popoverShown);
}

} // namespace quillon
