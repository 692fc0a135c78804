// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What follows when the helper's status is read, and when it is installed.
#include "unit/app/ProgramOnFakes.h"
#include "unit/app/StateOrder.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

const QString newDevice = u"enp9s0"_s;

class HelperEventsTest : public ProgramOnFakes
{
protected:
    HelperEventsTest() { run(); }

    void deliverHelperUpdated()
    {
        machine.distributed.deliver(
            notifications::helperUpdated, notifications::helperUpdatedObject);
        machine.scheduler.runPending();
    }
    void removeHelper()
    {
        machine.helper.installed = false;
        deliverHelperUpdated();
    }
    void installFromWindow()
    {
        features().readMe.installHelper();
        machine.scheduler.runPending();
    }
    /// The selected interface has lost its address in the table and is away, so that reading the
    /// interfaces does not tell it; and there is another interface.
    void makeTableStale()
    {
        QVariantMap table = machine.settings.getDictionary(keys::deviceDict);
        QVariantMap record = table.value(enp1s0).toMap();
        record.remove(record::current);
        table[enp1s0] = record;
        machine.settings.set(keys::deviceDict, table);
        m_isStale = true;
        machine.host.unplug(enp1s0);
        machine.host.plug({u"Ethernet"_s, newDevice, {}, u"3c:22:fb:00:00:09"_s, {}});
    }
    /// The steps that put right what makeTableStale() did.
    void expectRefresh(StateOrder &order)
    {
        order.expectSignal(u"buttons"_s, features().mainWindow, &MainWindowModel::infoButtonsReset);
        order.expect(u"hex values"_s,
            [this] { return m_isStale && deviceRecord(enp1s0).contains(record::current); });
        order.expect(
            u"interfaces"_s, [this] { return features().devices.table.contains(newDevice); });
        order.expect(u"selection"_s, [this] { return window().devices.contains(newDevice); });
        order.followSetting(machine.settings, keys::deviceDict);
        order.follow(features().mainWindow, &MainWindowModel::changed);
    }
    bool menuOffersChanges() const
    {
        for (const MenuEntry &entry : features().statusMenu.entries()) {
            if (!entry.submenu.empty()) {
                return true;
            }
        }
        return false;
    }

private:
    bool m_isStale = false;
};

TEST_F(HelperEventsTest, AnUpdatedHelperIsAskedForItsVersion)
{
    removeHelper();
    EXPECT_TRUE(features().readMe.state().visible);
    EXPECT_FALSE(window().fieldEnabled);

    machine.helper.installed = true;
    deliverHelperUpdated();
    EXPECT_FALSE(features().readMe.state().visible);
    EXPECT_TRUE(window().fieldEnabled);
}

TEST_F(HelperEventsTest, WhatFailedForWantOfAHelperIsCarriedOutOnceItIsFound)
{
    insertRule(randomOnce(enp1s0, u"once"_s));
    removeHelper();
    machine.host.at(enp1s0).ipv4 = QStringList(u"192.0.2.77"_s);
    machine.networkChanges.networkChanges();
    machine.scheduler.advance(std::chrono::minutes(1));
    ASSERT_FALSE(isChanged(enp1s0));

    machine.helper.installed = true;
    deliverHelperUpdated();
    machine.scheduler.advance(std::chrono::seconds(1));
    EXPECT_TRUE(isChanged(enp1s0));
    deliverHelperUpdated();
    machine.scheduler.advance(std::chrono::hours(2));
    EXPECT_EQ(machine.helper.changes().size(), 1);
}

TEST_F(HelperEventsTest, WhatTheUserRefusedIsNotAskedAgainForUpdates)
{
    insertRule(randomOnce(enp1s0, u"once"_s));
    machine.helper.mood = FakeHelper::Mood::Refusing;
    machine.host.at(enp1s0).ipv4 = QStringList(u"192.0.2.77"_s);
    machine.networkChanges.networkChanges();
    machine.scheduler.advance(std::chrono::seconds(10));
    const qsizetype asked = machine.helper.changes().size();
    ASSERT_GT(asked, 0);
    for (int time = 0; time < 100; ++time) {
        deliverHelperUpdated();
        machine.scheduler.advance(std::chrono::seconds(3));
    }
    EXPECT_EQ(machine.helper.changes().size(), asked);

    removeHelper();
    machine.helper.mood = FakeHelper::Mood::Obliging;
    machine.helper.installed = true;
    deliverHelperUpdated();
    machine.scheduler.advance(std::chrono::seconds(1));
    EXPECT_TRUE(isChanged(enp1s0));
}

TEST_F(HelperEventsTest, AnUpdateOfAnotherObjectIsIgnored)
{
    machine.distributed.deliver(notifications::helperUpdated, u"somebody.else"_s);
    machine.scheduler.runPending();
    EXPECT_TRUE(machine.helper.journal().isEmpty());
}

TEST_F(HelperEventsTest, ItsStatusIsFollowedInItsOrder)
{
    StateOrder order;
    order.expect(u"field and hint"_s,
        [this] { return features().readMe.state().visible && !window().fieldEnabled; });
    order.expectSignal(u"hint style"_s, features().readMe, &ReadMeModel::styleReset);
    order.expectSignal(
        u"rules"_s, features().rules.evaluation, &RuleEvaluation::ruleStatusEvaluated);
    QObject::connect(&features().rules.evaluation, &RuleEvaluation::ruleStatusEvaluated,
        [this] { makeTableStale(); });
    expectRefresh(order);
    order.expectSignal(u"all of it"_s, features().helper, &XPCMethods::helperStatusRead);
    order.expectBroadcast(
        u"broadcast"_s, machine.notifications, notifications::helperStatusChanged);

    machine.helper.version = u"1.9"_s;
    deliverHelperUpdated();
    EXPECT_EQ(order.seen(), order.expected());
}

TEST_F(HelperEventsTest, AnInstallationFromTheWindowIsFollowedInItsOrder)
{
    removeHelper();
    // Nothing follows from a status that is never read.
    machine.helper.mood = FakeHelper::Mood::Hanging;
    makeTableStale();

    StateOrder order;
    order.expect(u"hint hidden"_s, [this] { return !features().readMe.state().visible; });
    expectRefresh(order);
    order.expectSignal(u"window opened"_s, features().presence, &Presence::windowOpened);
    installFromWindow();
    EXPECT_EQ(order.seen(), order.expected());
    EXPECT_TRUE(machine.helper.journal().contains(u"version"_s));
}

TEST_F(HelperEventsTest, AFailedInstallationChangesNothing)
{
    removeHelper();
    int fronts = 0;
    QObject::connect(&features().presence, &Presence::windowOpened, [&] { ++fronts; });
    machine.helper.installFails = true;
    installFromWindow();
    EXPECT_EQ(fronts, 0);
    EXPECT_TRUE(features().readMe.state().visible);
}

TEST_F(HelperEventsTest, TheInstallButtonIsBusyUntilTheInstallationHasEnded)
{
    for (const bool fails : {true, false}) {
        machine.helper.installFails = fails;
        features().readMe.installHelper();
        EXPECT_TRUE(features().readMe.state().installing);
        machine.scheduler.runPending();
        EXPECT_FALSE(features().readMe.state().installing);
    }
    EXPECT_FALSE(features().readMe.state().visible);
}

TEST_F(HelperEventsTest, PreferencesAndMenuFollowItsStatusWithTheBroadcast)
{
    ASSERT_TRUE(menuOffersChanges());
    bool seen = false;
    const auto token =
        machine.notifications.addObserver(notifications::helperStatusChanged, [&](const auto &) {
            EXPECT_TRUE(features().preferences.advanced.state().installEnabled);
            EXPECT_FALSE(features().preferences.advanced.state().uninstallEnabled);
            EXPECT_FALSE(menuOffersChanges());
            seen = true;
        });
    removeHelper();
    EXPECT_TRUE(seen);
    machine.notifications.removeObserver(token);
}

} // namespace
} // namespace quillon::test
