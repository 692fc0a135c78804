// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/Visits.h"

namespace quillon {

namespace {

/// How long a link may take to come back after a change.
constexpr qint64 returnMilliseconds = 60'000;

} // namespace

bool Visits::Visit::isExpectedBack(const QDateTime &now) const
{
    return downSince && *downSince <= now && downSince->msecsTo(now) <= returnMilliseconds;
}

void Visits::carryOut(const QString &device, const Act &act)
{
    Visit &visit = m_visits[device];
    visit.act = act;
    visit.downSince.reset();
}

bool Visits::isCarriedOut(const QString &device, const Act &act) const
{
    const auto visit = m_visits.constFind(device);
    return visit != m_visits.constEnd() && visit->act == act;
}

QStringList Visits::devices() const
{
    QStringList devices;
    for (auto visit = m_visits.cbegin(); visit != m_visits.cend(); ++visit) {
        if (visit->act) {
            devices.append(visit.key());
        }
    }
    return devices;
}

void Visits::changeBegan(const QString &device)
{
    ++m_visits[device].changesUnderWay;
}

void Visits::changeSettled(const QString &device, bool linkIsUp, const QDateTime &now)
{
    Visit &visit = m_visits[device];
    if (visit.changesUnderWay > 0) {
        --visit.changesUnderWay;
    }
    visit.downSince = linkIsUp ? std::nullopt : std::optional(now);
}

void Visits::sawOnNetwork(const QString &device, const QDateTime &now)
{
    const auto visit = m_visits.find(device);
    if (visit == m_visits.end()) {
        return;
    }
    // Away for longer than any change takes: this may be another network.
    if (visit->downSince && !visit->isExpectedBack(now) && visit->changesUnderWay == 0) {
        visit->act.reset();
    }
    visit->downSince.reset();
}

void Visits::sawOffNetwork(const QString &device, const QDateTime &now)
{
    const auto visit = m_visits.find(device);
    if (visit != m_visits.end() && visit->changesUnderWay == 0 && !visit->isExpectedBack(now)) {
        visit->act.reset();
    }
}

void Visits::sawGone(const QString &device)
{
    const auto visit = m_visits.find(device);
    if (visit != m_visits.end()) {
        visit->act.reset();
        visit->downSince.reset();
    }
}

} // namespace quillon
