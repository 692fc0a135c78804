// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/overview/OverviewChanges.h"

namespace quillon {

OverviewChanges::OverviewChanges(const AddressChanger &changer)
    : m_underWay(changer)
{
    connect(&m_underWay, &ChangesUnderWay::began, this, &OverviewChanges::begin);
    connect(&m_underWay, &ChangesUnderWay::spared, this, &OverviewChanges::changed);
    connect(&m_underWay, &ChangesUnderWay::ended, this, &OverviewChanges::end);
}

std::optional<ChangeOutcome> OverviewChanges::outcomeOf(const QString &device) const
{
    const auto found = m_outcomes.constFind(device);
    return found == m_outcomes.constEnd() ? std::nullopt : std::optional(*found);
}

void OverviewChanges::begin(const QString &device)
{
    m_outcomes.remove(device);
    Q_EMIT changed();
}

void OverviewChanges::end(const QString &device, const ChangeOutcome &outcome)
{
    m_outcomes.insert(device, outcome);
    Q_EMIT changed();
}

} // namespace quillon
