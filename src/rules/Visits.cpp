// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/Visits.h"

#include "devices/AddressText.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

namespace quillon {

namespace {

using namespace std::chrono_literals;

/// How long a link may take to come back after a change.
constexpr std::chrono::milliseconds returnTime = 1min;
/// From a failure to the next try, by the number of failures. Most often somebody was asked and
/// said no: he is asked again, as what was in the way may have gone, but ever more rarely.
constexpr std::array<std::chrono::milliseconds, 5> pauses = {0s, 1min, 5min, 15min, 1h};
/// On another network nobody has said no yet. A driver that drops its link at each try looks the
/// same, so this counts only so often.
constexpr int mostTriesAtOnce = 2;
/// A program that has put its own address back three times does so a fourth time.
constexpr int mostRepeats = 2;

} // namespace

// Back at the very end of the grace is back in time. A clock that was set back tells nothing.
bool Visits::Absence::isOver(const QDateTime &now) const
{
    return now < since || since.msecsTo(now) > grace.count();
}

Visits::Standing Visits::standing(
    const QString &device, const Act &act, const QString &address) const
{
    if (!isCarriedOut(device, act)) {
        return Standing::New;
    }
    const Visit &visit = *m_visits.constFind(device);
    const Carried &carried = *visit.carried;
    if (carried.isAsked || visit.unanswered > 0) {
        return Standing::UnderWay;
    }
    if (carried.isFailed) {
        const bool isOwnNews = visit.changesUnderWay > 0 && !carried.wentOff;
        return isOwnNews ? Standing::OwnNews : Standing::Failed;
    }
    const bool isKept =
        !carried.address || address.isEmpty() || isSameAddress(*carried.address, address);
    if (isKept) {
        return Standing::Done;
    }
    return carried.repeats < mostRepeats ? Standing::Undone : Standing::GivenUp;
}

quint64 Visits::carryOut(const QString &device, const Act &act)
{
    Visit &visit = m_visits[device];
    Carried next{.act = act, .number = ++m_lastNumber, .address = std::nullopt};
    if (visit.carried && visit.carried->act == act) {
        const bool isRepeat = visit.carried->address.has_value();
        next.failures = visit.carried->failures;
        next.repeats = visit.carried->repeats + (isRepeat ? 1 : 0);
    }
    visit.carried = next;
    visit.isElsewhere = false;
    visit.absence.reset();
    return next.number;
}

// What was asked for on a visit that has ended, or before it was asked for again, counts no more.
Visits::Carried *Visits::carried(const QString &device, quint64 number)
{
    const auto visit = m_visits.find(device);
    const bool isKnown =
        visit != m_visits.end() && visit->carried && visit->carried->number == number;
    return isKnown ? &*visit->carried : nullptr;
}

void Visits::succeeded(const QString &device, quint64 number, const QString &address)
{
    if (Carried *const done = carried(device, number)) {
        done->isAsked = false;
        done->address = address;
        done->failures = 0;
    }
}

bool Visits::failed(
    const QString &device, quint64 number, const QString &address, std::chrono::milliseconds now)
{
    Carried *const tried = carried(device, number);
    if (!tried) {
        return false;
    }
    tried->isAsked = false;
    tried->isFailed = true;
    tried->failedAt = now;
    tried->missing = address;
    ++tried->failures;
    return tried->wentOff;
}

std::chrono::milliseconds Visits::pause(const QString &device, std::chrono::milliseconds now) const
{
    const auto visit = m_visits.constFind(device);
    if (visit == m_visits.constEnd() || !visit->carried || !visit->carried->isFailed) {
        return 0ms;
    }
    const Carried &tried = *visit->carried;
    if (tried.wentOff && tried.failures <= mostTriesAtOnce) {
        return 0ms;
    }
    const auto place = std::min(static_cast<std::size_t>(tried.failures), pauses.size()) - 1;
    return std::max<std::chrono::milliseconds>(tried.failedAt + pauses[place] - now, 0ms);
}

QStringList Visits::forgetFailures()
{
    QStringList devices;
    for (auto visit = m_visits.begin(); visit != m_visits.end(); ++visit) {
        if (visit->carried && visit->carried->isFailed) {
            visit->carried.reset();
            devices.append(visit.key());
        }
    }
    return devices;
}

void Visits::sawAddress(const QString &device, const QString &address)
{
    const auto visit = m_visits.find(device);
    if (visit == m_visits.end() || !visit->carried || !visit->carried->isFailed) {
        return;
    }
    Carried &tried = *visit->carried;
    if (!address.isEmpty() && isSameAddress(tried.missing, address)) {
        tried.isFailed = false;
        tried.failures = 0;
        tried.address = address;
    }
}

void Visits::leaveAsItIs(const QString &device)
{
    const auto visit = m_visits.find(device);
    if (visit != m_visits.end() && visit->carried) {
        // What the rule has asked for and not got is not tried again either.
        visit->carried->number = 0;
        visit->carried->isAsked = false;
        visit->carried->isFailed = false;
        visit->carried->address.reset();
    }
}

void Visits::leaveAsItIs(const QString &device, const Act &act)
{
    m_visits[device].carried = Carried{.act = act, .address = std::nullopt};
    leaveAsItIs(device);
}

void Visits::forget(const QString &device)
{
    const auto visit = m_visits.find(device);
    if (visit != m_visits.end()) {
        visit->carried.reset();
    }
}

bool Visits::isCarriedOut(const QString &device, const Act &act) const
{
    const auto visit = m_visits.constFind(device);
    return visit != m_visits.constEnd() && visit->carried && visit->carried->act == act;
}

std::optional<QString> Visits::ssid(const QString &device) const
{
    const auto visit = m_visits.constFind(device);
    return visit != m_visits.constEnd() && visit->carried ? std::optional(visit->carried->act.ssid)
                                                          : std::nullopt;
}

QStringList Visits::devices() const
{
    QStringList devices;
    for (auto visit = m_visits.cbegin(); visit != m_visits.cend(); ++visit) {
        if (visit->carried) {
            devices.append(visit.key());
        }
    }
    return devices;
}

void Visits::changeBegan(const QString &device)
{
    Visit &visit = m_visits[device];
    ++visit.unanswered;
    ++visit.changesUnderWay;
    const bool isOver = visit.carried && !visit.carried->isAsked && !visit.carried->isFailed;
    if (isOver) {
        // What the link did for the change before says nothing about this one.
        visit.carried->wentOff = false;
    }
}

void Visits::changeAnswered(const QString &device)
{
    int &unanswered = m_visits[device].unanswered;
    unanswered = qMax(unanswered - 1, 0);
}

bool Visits::isChanging(const QString &device) const
{
    const auto visit = m_visits.constFind(device);
    return visit != m_visits.constEnd() && visit->changesUnderWay > 0;
}

void Visits::otherChangeFailed(const QString &device)
{
    const auto visit = m_visits.find(device);
    if (visit != m_visits.end() && visit->carried && !visit->carried->isAsked &&
        visit->carried->wentOff) {
        visit->carried.reset();
    }
}

void Visits::changeSettled(const QString &device, bool linkIsUp, const QDateTime &now)
{
    Visit &visit = m_visits[device];
    visit.absence = linkIsUp ? std::nullopt : std::optional(Absence{now, returnTime});
    endChange(visit);
}

void Visits::changeNotAsked(const QString &device)
{
    endChange(m_visits[device]);
}

void Visits::endChange(Visit &visit)
{
    visit.changesUnderWay = qMax(visit.changesUnderWay - 1, 0);
    if (visit.changesUnderWay == 0 && std::exchange(visit.isElsewhere, false)) {
        visit.carried.reset();
    }
}

void Visits::sawOnNetwork(const QString &device, const QDateTime &now)
{
    sawLinkUp(device, now);
    const auto visit = m_visits.find(device);
    if (visit != m_visits.end()) {
        visit->absence.reset();
        visit->isElsewhere = false;
    }
}

void Visits::sawLinkUp(const QString &device, const QDateTime &now)
{
    const auto visit = m_visits.find(device);
    // Away for longer than any change takes: this may be another network.
    if (visit != m_visits.end() && visit->changesUnderWay == 0 && visit->absence &&
        visit->absence->isOver(now)) {
        visit->carried.reset();
    }
}

void Visits::sawOffNetwork(
    const QString &device, const QDateTime &now, std::chrono::milliseconds grace)
{
    const auto visit = m_visits.find(device);
    if (visit == m_visits.end() || !visit->carried) {
        return;
    }
    if (visit->changesUnderWay > 0) {
        visit->carried->wentOff = true;
        return;
    }
    if (!visit->absence && grace.count() > 0) {
        visit->absence = Absence{now, grace};
    }
    if (!visit->absence || visit->absence->isOver(now)) {
        visit->carried.reset();
    }
}

void Visits::sawElsewhere(const QString &device)
{
    const auto visit = m_visits.find(device);
    if (visit == m_visits.end() || !visit->carried) {
        return;
    }
    if (visit->changesUnderWay > 0) {
        visit->carried->wentOff = true;
        visit->isElsewhere = true;
    } else {
        visit->carried.reset();
    }
}

void Visits::sawGone(const QString &device)
{
    const auto visit = m_visits.find(device);
    if (visit != m_visits.end()) {
        visit->carried.reset();
        visit->isElsewhere = false;
        visit->absence.reset();
    }
}

} // namespace quillon
