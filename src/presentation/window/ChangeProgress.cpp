// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/window/ChangeProgress.h"

#include "devices/AddressChanger.h"
#include "devices/AddressText.h"

#include <utility>

namespace quillon {

ChangeProgress::ChangeProgress(const AddressChanger &changer)
{
    connect(&changer, &AddressChanger::changeBegan, this, &ChangeProgress::begin);
    connect(&changer, &AddressChanger::changeSpared, this, &ChangeProgress::spare);
    connect(&changer, &AddressChanger::changeEnded, this, &ChangeProgress::end);
}

std::optional<AddressFieldLine> ChangeProgress::lineFor(
    const QString &device, const QString &current) const
{
    if (isUnderWay(device)) {
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

void ChangeProgress::ask(const QString &device, ChangeButton button)
{
    UnderWay &underWay = m_underWay[device];
    ++underWay.changes;
    underWay.isAwaited = true;
    underWay.button = button;
    Q_EMIT changed();
}

void ChangeProgress::begin(const QString &device)
{
    UnderWay &underWay = m_underWay[device];
    if (!std::exchange(underWay.isAwaited, false)) {
        ++underWay.changes;
    }
    Q_EMIT changed();
}

void ChangeProgress::spare(const QString &device)
{
    const auto underWay = m_underWay.find(device);
    if (underWay != m_underWay.end() && std::exchange(underWay->isAwaited, false)) {
        endOne(device);
        Q_EMIT changed();
    }
}

void ChangeProgress::end(const QString &device, const ChangeOutcome &outcome)
{
    endOne(device);
    m_results.insert(device, {outcome.address, AddressFieldLine::forResult(outcome)});
    Q_EMIT changed();
}

void ChangeProgress::endOne(const QString &device)
{
    if (--m_underWay[device].changes <= 0) {
        m_underWay.remove(device);
    }
}

} // namespace quillon
