// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/window/ChangeProgress.h"

#include "devices/AddressChanger.h"
#include "devices/AddressText.h"

namespace quillon {

ChangeProgress::ChangeProgress(const AddressChanger &changer)
{
    connect(&changer, &AddressChanger::changeBegan, this, &ChangeProgress::begin);
    connect(&changer, &AddressChanger::changeEnded, this, &ChangeProgress::end);
}

std::optional<AddressFieldLine> ChangeProgress::lineFor(
    const QString &device, const QString &current) const
{
    if (isUnderWay(device)) {
        return AddressFieldLine::changing();
    }
    const auto result = m_results.constFind(device);
    if (result == m_results.constEnd() || !isSameAddress(result->address, current)) {
        return std::nullopt;
    }
    return result->line;
}

void ChangeProgress::begin(const QString &device)
{
    ++m_underWay[device];
    Q_EMIT changed();
}

void ChangeProgress::end(const QString &device, const ChangeOutcome &outcome)
{
    if (--m_underWay[device] <= 0) {
        m_underWay.remove(device);
    }
    m_results.insert(
        device, {outcome.address, AddressFieldLine::forResult(outcome.isInPlace, outcome.failure)});
    Q_EMIT changed();
}

} // namespace quillon
