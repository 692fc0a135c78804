// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "devices/ChangesUnderWay.h"

#include "devices/AddressChanger.h"

#include <utility>

namespace quillon {

ChangesUnderWay::ChangesUnderWay(const AddressChanger &changer)
{
    connect(&changer, &AddressChanger::changeBegan, this, &ChangesUnderWay::begin);
    connect(&changer, &AddressChanger::changeSpared, this, &ChangesUnderWay::spare);
    connect(&changer, &AddressChanger::changeEnded, this, &ChangesUnderWay::end);
}

void ChangesUnderWay::ask(const QString &device, ChangeRequest request)
{
    UnderWay &underWay = m_underWay[device];
    ++underWay.changes;
    underWay.isAwaited = true;
    underWay.request = request;
    Q_EMIT began(device);
}

void ChangesUnderWay::begin(const QString &device)
{
    UnderWay &underWay = m_underWay[device];
    if (!std::exchange(underWay.isAwaited, false)) {
        ++underWay.changes;
    }
    Q_EMIT began(device);
}

void ChangesUnderWay::spare(const QString &device)
{
    const auto underWay = m_underWay.find(device);
    if (underWay != m_underWay.end() && std::exchange(underWay->isAwaited, false)) {
        endOne(device);
        Q_EMIT spared(device);
    }
}

void ChangesUnderWay::end(const QString &device, const ChangeOutcome &outcome)
{
    endOne(device);
    Q_EMIT ended(device, outcome);
}

void ChangesUnderWay::endOne(const QString &device)
{
    if (--m_underWay[device].changes <= 0) {
        m_underWay.remove(device);
    }
}

} // namespace quillon
