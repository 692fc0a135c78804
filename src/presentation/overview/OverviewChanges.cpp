// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/overview/OverviewChanges.h"

#include "devices/AddressChanger.h"

#include <utility>

namespace quillon {

OverviewChanges::OverviewChanges(const AddressChanger &changer)
{
    connect(&changer, &AddressChanger::changeBegan, this, &OverviewChanges::begin);
    connect(&changer, &AddressChanger::changeSpared, this, &OverviewChanges::spare);
    connect(&changer, &AddressChanger::changeEnded, this, &OverviewChanges::end);
}

void OverviewChanges::ask(const QString &device, OverviewAction action)
{
    UnderWay &underWay = m_underWay[device];
    ++underWay.changes;
    underWay.isAwaited = true;
    underWay.action = action;
    m_outcomes.remove(device);
    Q_EMIT changed();
}

std::optional<ChangeOutcome> OverviewChanges::outcomeOf(const QString &device) const
{
    const auto found = m_outcomes.constFind(device);
    return found == m_outcomes.constEnd() ? std::nullopt : std::optional(*found);
}

void OverviewChanges::begin(const QString &device)
{
    UnderWay &underWay = m_underWay[device];
    if (!std::exchange(underWay.isAwaited, false)) {
        ++underWay.changes;
    }
    m_outcomes.remove(device);
    Q_EMIT changed();
}

void OverviewChanges::spare(const QString &device)
{
    const auto underWay = m_underWay.find(device);
    if (underWay != m_underWay.end() && std::exchange(underWay->isAwaited, false)) {
        endOne(device);
        Q_EMIT changed();
    }
}

void OverviewChanges::end(const QString &device, const ChangeOutcome &outcome)
{
    endOne(device);
    m_outcomes.insert(device, outcome);
    Q_EMIT changed();
}

void OverviewChanges::endOne(const QString &device)
{
    if (--m_underWay[device].changes <= 0) {
        m_underWay.remove(device);
    }
}

} // namespace quillon
