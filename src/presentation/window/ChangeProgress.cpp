// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/window/ChangeProgress.h"

#include "devices/AddressText.h"

namespace quillon {

ChangeProgress::ChangeProgress(const AddressChanger &changer)
    : m_underWay(changer)
{
    connect(&m_underWay, &ChangesUnderWay::began, this, &ChangeProgress::changed);
    connect(&m_underWay, &ChangesUnderWay::spared, this, &ChangeProgress::changed);
    connect(&m_underWay, &ChangesUnderWay::ended, this, &ChangeProgress::end);
}

std::optional<AddressFieldLine> ChangeProgress::lineFor(
    const QString &device, const QString &current) const
{
    if (m_underWay.contains(device)) {
        return AddressFieldLine::changing();
    }
    const auto result = m_results.constFind(device);
    const bool isOld = result != m_results.constEnd() && !result->address.isEmpty() &&
                       !isSameAddress(result->address, current);
    if (result == m_results.constEnd() || isOld) {
        return std::nullopt;
    }
    return result->line;
}

void ChangeProgress::seeAddress(const QString &device, const QString &current)
{
    const auto result = m_results.find(device);
    if (result == m_results.end() || result->address.isEmpty()) {
        return;
    }
    // Until it is seen the window is behind: the change is told of before the address is.
    if (isSameAddress(result->address, current)) {
        result->wasSeen = true;
    } else if (result->wasSeen) {
        m_results.erase(result);
    }
}

void ChangeProgress::forgetUnreadAddress(const QString &device)
{
    const auto result = m_results.constFind(device);
    if (result != m_results.constEnd() && result->address.isEmpty()) {
        m_results.erase(result);
    }
}

void ChangeProgress::end(const QString &device, const ChangeOutcome &outcome)
{
    m_results.insert(device, {outcome.address, AddressFieldLine::forResult(outcome)});
    Q_EMIT changed();
}

} // namespace quillon
