// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "unit/rules/RuleFixture.h"

#include <algorithm>

namespace quillon::test {

/// A rule that changes the address once for the wired interface and one for the Wi-Fi interface,
/// and what happens to the two on their networks.
class VisitFixture : public RuleFixture
{
protected:
    VisitFixture()
    {
        addRule({.name = QStringLiteral("once")});
        addRule({.name = QStringLiteral("once"), .device = en1});
        helper.changeTakes = std::chrono::milliseconds(500);
    }

    Rule ruleOf(const QString &device) { return queries.managedRuleArrayForDevice(device).first(); }
    /// The interface is given a lease, and the system tells of it.
    void news(const QString &device)
    {
        giveLease(device);
        networkEvent();
    }
    void linkGoes(const QString &device)
    {
        host.at(device).active = false;
        host.at(device).ipv4.clear();
        reachability.reachable = false;
        networkEvent();
    }
    void linkComes(const QString &device)
    {
        host.at(device).active = true;
        networkEvent();
        reachability.reachable = true;
        news(device);
    }
    /// Another program on this computer sets an address.
    void anotherProgramSets(const QString &device, const QString &address)
    {
        ASSERT_TRUE(host.giveAddress(device, address));
        networkEvent();
    }
    void joinHome() { joinWifi(QStringLiteral("Home"), QStringLiteral("02:00:00:00:aa:01")); }
    void pass(std::chrono::milliseconds time) { scheduler.advance(time); }

    qsizetype told(const QString &title) const
    {
        const QList<FakeNotifier::Message> messages = notifier.messages();
        return std::count_if(messages.begin(), messages.end(),
            [&](const FakeNotifier::Message &message) { return message.title == title; });
    }
    qsizetype changes(const QString &device) const { return changesOf(device).size(); }
    /// How often the helper was asked, also in vain.
    qsizetype asked() const { return helper.journal().count(QStringLiteral("change")); }

    const QString factory = host.addressOf(en0);
};

} // namespace quillon::test
