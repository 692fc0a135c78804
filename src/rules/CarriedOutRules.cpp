// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/CarriedOutRules.h"

namespace quillon {

namespace {

/// How long a link may take to come back after a change.
constexpr qint64 returnMilliseconds = 60'000;

} // namespace

bool CarriedOutRules::Stay::isExpectedBack(const QDateTime &now) const
{
    return downSince && *downSince <= now && downSince->msecsTo(now) <= returnMilliseconds;
}

void CarriedOutRules::carryOut(const QString &device, const Occasion &occasion)
{
    Stay &stay = m_stays[device];
    stay.occasion = occasion;
    stay.downSince.reset();
}

bool CarriedOutRules::isCarriedOut(const QString &device, const Occasion &occasion) const
{
    const auto stay = m_stays.constFind(device);
    return stay != m_stays.constEnd() && stay->occasion == occasion;
}

QStringList CarriedOutRules::devices() const
{
    QStringList devices;
    for (auto stay = m_stays.cbegin(); stay != m_stays.cend(); ++stay) {
        if (stay->occasion) {
            devices.append(stay.key());
        }
    }
    return devices;
}

void CarriedOutRules::changeBegan(const QString &device)
{
    ++m_stays[device].changesUnderWay;
}

void CarriedOutRules::changeSettled(const QString &device, bool linkIsUp, const QDateTime &now)
{
    Stay &stay = m_stays[device];
    if (stay.changesUnderWay > 0) {
        --stay.changesUnderWay;
    }
    stay.downSince = linkIsUp ? std::nullopt : std::optional(now);
}

void CarriedOutRules::sawOnNetwork(const QString &device, const QDateTime &now)
{
    const auto stay = m_stays.find(device);
    if (stay == m_stays.end()) {
        return;
    }
    // Away for longer than any change takes: this may be another network.
    if (stay->downSince && !stay->isExpectedBack(now) && stay->changesUnderWay == 0) {
        stay->occasion.reset();
    }
    stay->downSince.reset();
}

void CarriedOutRules::sawOffNetwork(const QString &device, const QDateTime &now)
{
    const auto stay = m_stays.find(device);
    if (stay != m_stays.end() && stay->changesUnderWay == 0 && !stay->isExpectedBack(now)) {
        stay->occasion.reset();
    }
}

void CarriedOutRules::sawGone(const QString &device)
{
    const auto stay = m_stays.find(device);
    if (stay != m_stays.end()) {
        stay->occasion.reset();
        stay->downSince.reset();
    }
}

} // namespace quillon
