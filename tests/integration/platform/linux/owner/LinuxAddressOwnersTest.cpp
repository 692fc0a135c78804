// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/owner/LinuxAddressOwners.h"

#include "MadeUpBusOwner.h"
#include "MadeUpNetworkManager.h"
#include "base/SettingsKeys.h"
#include "fakes/FakeScheduler.h"
#include "fakes/FakeSettingsStore.h"
#include "integration/platform/linux/Waiting.h"

#include <QDBusPendingCall>

namespace quillon::test {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using Kind = MadeUpNetworkManager::Kind;
using Outcome = AddressOwner::Outcome;

class LinuxAddressOwnersTest : public testing::Test
{
protected:
    bool soon(const std::function<bool()> &condition)
    {
        return eventually([&] {
            scheduler.runPending();
            return condition();
        });
    }
    std::unique_ptr<AddressOwner> find(const QString &device)
    {
        std::optional<std::unique_ptr<AddressOwner>> found;
        owners.find(device, [&](std::unique_ptr<AddressOwner> owner) { found = std::move(owner); });
        EXPECT_TRUE(soon([&] { return found.has_value(); }));
        return found ? std::move(*found) : nullptr;
    }
    QString nameOf(const QString &device)
    {
        const auto owner = find(device);
        EXPECT_NE(owner, nullptr);
        return owner ? owner->name() : u"none"_s;
    }
    /// Time goes by, and what is asked then is answered: answers come in the order of questions.
    void advance(std::chrono::milliseconds time)
    {
        constexpr int questionsInARow = 5;
        scheduler.advance(time);
        const QString service = u"org.freedesktop.NetworkManager"_s;
        const auto call = QDBusMessage::createMethodCall(
            service, u"/org/freedesktop/NetworkManager"_s, service, u"GetPermissions"_s);
        for (int i = 0; i < questionsInARow; ++i) {
            const QDBusPendingCall question = connection.asyncCall(call);
            EXPECT_TRUE(soon([&] { return question.isFinished(); }));
        }
    }
    bool prepare(AddressOwner &owner)
    {
        std::optional<bool> ready;
        owner.prepare([&ready](bool isReady) { ready = isReady; });
        EXPECT_TRUE(soon([&] { return ready.has_value(); }));
        return ready.value_or(false);
    }
    AddressOwner::Outcomes settle(AddressOwner &owner, bool isChanged)
    {
        std::optional<AddressOwner::Outcomes> outcome;
        owner.settle(isChanged, [&outcome](AddressOwner::Outcomes came) { outcome = came; });
        EXPECT_TRUE(soon([&] { return outcome.has_value(); }));
        return outcome.value_or(Outcome::NotBack);
    }
    QStringList released() const { return settings.get(u"releasedDevices"_s).toStringList(); }

    PrivateBus bus;
    QDBusConnection connection = bus.connect();
    FakeScheduler scheduler;
    FakeSettingsStore settings{scheduler};
    LinuxAddressOwners owners{scheduler, settings, {}, connection};
    static QString activated(const MadeUpNetworkManager &networkManager)
    {
        return u"activate "_s + networkManager.profile();
    }
};

TEST_F(LinuxAddressOwnersTest, KnowNobodyWhereNothingManagesNetworks)
{
    EXPECT_EQ(nameOf(u"wlan0"_s), QString());
}

TEST_F(LinuxAddressOwnersTest, KnowNobodyForAnInterfaceThatIsNotManaged)
{
    MadeUpNetworkManager networkManager(bus, Kind::WiFi);
    EXPECT_EQ(nameOf(u"eth7"_s), QString());
    networkManager.isManaged = false;
    EXPECT_EQ(nameOf(u"wlan0"_s), QString());
    EXPECT_EQ(networkManager.journal(), QStringList());
}

TEST_F(LinuxAddressOwnersTest, KnowNobodyForAnInterfaceThatSomebodyConnectedByHand)
{
    for (const Kind kind : {Kind::Ethernet, Kind::WiFi}) {
        MadeUpNetworkManager networkManager(bus, kind);
        networkManager.isExternal = true;
        const auto owner = find(networkManager.name());
        ASSERT_NE(owner, nullptr);
        EXPECT_EQ(owner->name(), QString());
        EXPECT_TRUE(prepare(*owner));
        EXPECT_EQ(settle(*owner, false), Outcome::Settled);
        EXPECT_EQ(networkManager.journal(), QStringList());
        networkManager.end();
    }
}

TEST_F(LinuxAddressOwnersTest, AskTheOthersWhenNetworkManagerHangs)
{
    MadeUpNetworkManager networkManager(bus, Kind::Ethernet);
    networkManager.answers = false;
    const MadeUpBusOwner networkd(bus, u"org.freedesktop.network1"_s);
    EXPECT_EQ(nameOf(u"dev0"_s), u"systemd-networkd"_s);
}

TEST_F(LinuxAddressOwnersTest, EthernetConnectsAnewWithItsProfile)
{
    MadeUpNetworkManager networkManager(bus, Kind::Ethernet);
    const auto owner = find(u"eth0"_s);
    ASSERT_NE(owner, nullptr);
    EXPECT_EQ(owner->name(), u"NetworkManager"_s);
    EXPECT_TRUE(prepare(*owner));
    EXPECT_EQ(networkManager.journal(), QStringList());
    EXPECT_EQ(settle(*owner, true), Outcome::Settled);
    EXPECT_EQ(networkManager.journal(), QStringList{activated(networkManager)});
}

TEST_F(LinuxAddressOwnersTest, EthernetStaysAsItIsWhenNothingWasChangedOrConnected)
{
    MadeUpNetworkManager networkManager(bus, Kind::Ethernet);
    const auto unchanged = find(u"eth0"_s);
    EXPECT_TRUE(prepare(*unchanged));
    EXPECT_EQ(settle(*unchanged, false), Outcome::Settled);
    networkManager.isConnected = false;
    const auto unconnected = find(u"eth0"_s);
    EXPECT_TRUE(prepare(*unconnected));
    EXPECT_EQ(settle(*unconnected, true), Outcome::Settled);
    EXPECT_EQ(networkManager.journal(), QStringList());
}

TEST_F(LinuxAddressOwnersTest, WiFiIsLetGoTakenBackAndConnectedAnew)
{
    MadeUpNetworkManager networkManager(bus, Kind::WiFi);
    QStringList known;
    networkManager.whenAsked = [&](const QString &what) {
        known.append(what + u": "_s + released().join(u' '));
    };
    const auto owner = find(u"wlan0"_s);
    ASSERT_NE(owner, nullptr);
    EXPECT_TRUE(prepare(*owner));
    EXPECT_FALSE(networkManager.isManaged);
    EXPECT_EQ(settle(*owner, true), Outcome::Settled);
    EXPECT_TRUE(networkManager.isManaged);
    EXPECT_TRUE(networkManager.isConnected);
    // Known on disk before it is let go, until it is back.
    EXPECT_EQ(known, (QStringList{u"managed false: wlan0"_s, u"managed true: wlan0"_s,
                         activated(networkManager) + u": "_s}));
}

TEST_F(LinuxAddressOwnersTest, WiFiOnNoNetworkIsConnectedToNone)
{
    MadeUpNetworkManager networkManager(bus, Kind::WiFi);
    networkManager.isConnected = false;
    const auto owner = find(u"wlan0"_s);
    EXPECT_TRUE(prepare(*owner));
    EXPECT_EQ(settle(*owner, true), Outcome::Settled);
    EXPECT_EQ(networkManager.journal(), (QStringList{u"managed false"_s, u"managed true"_s}));
}

TEST_F(LinuxAddressOwnersTest, WiFiComesBackAlsoWhenNothingWasChanged)
{
    MadeUpNetworkManager networkManager(bus, Kind::WiFi);
    const auto owner = find(u"wlan0"_s);
    EXPECT_TRUE(prepare(*owner));
    EXPECT_EQ(settle(*owner, false), Outcome::Settled);
    EXPECT_TRUE(networkManager.isConnected);
}

TEST_F(LinuxAddressOwnersTest, AskAgainWhenAnActivationIsRefusedForAMoment)
{
    MadeUpNetworkManager networkManager(bus, Kind::WiFi);
    networkManager.refusals = 2;
    const auto owner = find(u"wlan0"_s);
    EXPECT_TRUE(prepare(*owner));
    std::optional<AddressOwner::Outcomes> outcome;
    owner->settle(true, [&outcome](AddressOwner::Outcomes came) { outcome = came; });
    for (int second = 0; second < 30 && !outcome; ++second) {
        advance(1s);
    }
    EXPECT_EQ(outcome, Outcome::Settled);
}

TEST_F(LinuxAddressOwnersTest, AreNotDoneBeforeNetworkManagerHasNotedThatItManagesTheRadio)
{
    MadeUpNetworkManager networkManager(bus, Kind::WiFi);
    networkManager.isConnected = false;
    const auto owner = find(networkManager.name());
    ASSERT_NE(owner, nullptr);
    ASSERT_TRUE(prepare(*owner));
    networkManager.isBlocked = true;
    std::optional<AddressOwner::Outcomes> outcome;
    owner->settle(true, [&outcome](AddressOwner::Outcomes came) { outcome = came; });
    ASSERT_TRUE(soon([&] { return networkManager.isManaged; }));
    advance(4s);
    EXPECT_FALSE(outcome);
    // Killed at that moment, as what it last noted has it.
    networkManager.isManaged = false;
    networkManager.restart();
    networkManager.isBlocked = false;
    for (int second = 0; second < 10 && !outcome; ++second) {
        advance(1s);
    }
    EXPECT_EQ(outcome, Outcome::Settled);
    EXPECT_TRUE(networkManager.isManaged);
}

TEST_F(LinuxAddressOwnersTest, DoNotWaitLongForARadioThatIsBlocked)
{
    MadeUpNetworkManager networkManager(bus, Kind::WiFi);
    networkManager.isConnected = false;
    networkManager.isBlocked = true;
    const auto owner = find(networkManager.name());
    ASSERT_NE(owner, nullptr);
    ASSERT_TRUE(prepare(*owner));
    std::optional<AddressOwner::Outcomes> outcome;
    owner->settle(true, [&outcome](AddressOwner::Outcomes came) { outcome = came; });
    for (int second = 0; second < 8 && !outcome; ++second) {
        advance(1s);
    }
    EXPECT_EQ(outcome, Outcome::Settled);
    EXPECT_TRUE(networkManager.isManaged);
    EXPECT_EQ(settings.get(keys::releasedDevices).toStringList(), QStringList{u"wlan0"_s})
        << "the next start has it taken back, should NetworkManager forget it";
}

TEST_F(LinuxAddressOwnersTest, TellWhoMayNotControlNetworks)
{
    for (const Kind kind : {Kind::Ethernet, Kind::WiFi}) {
        MadeUpNetworkManager networkManager(bus, kind);
        networkManager.permission = u"auth"_s;
        const auto owner = find(networkManager.name());
        ASSERT_NE(owner, nullptr);
        EXPECT_TRUE(prepare(*owner));
        EXPECT_EQ(settle(*owner, true), Outcome::Untold);
        EXPECT_EQ(settle(*owner, false), Outcome::Untold);
        EXPECT_EQ(networkManager.journal(), QStringList()) << "no prompt comes from this";
        networkManager.end();
    }
}

TEST_F(LinuxAddressOwnersTest, WaitUntilItIsKnownWhoMayControlNetworks)
{
    MadeUpNetworkManager networkManager(bus, Kind::Ethernet);
    // A polkit that is only starting, on a slow machine. The bus's own clock measures it.
    networkManager.thinking = 6s;
    const auto owner = find(u"eth0"_s);
    EXPECT_TRUE(prepare(*owner));
    EXPECT_EQ(settle(*owner, true), Outcome::Settled);
    EXPECT_EQ(networkManager.journal(), QStringList{activated(networkManager)});
}

TEST_F(LinuxAddressOwnersTest, AnInterfaceThatIsNotLetGoIsTakenBack)
{
    MadeUpNetworkManager networkManager(bus, Kind::WiFi);
    networkManager.letsGo = false;
    const auto owner = find(u"wlan0"_s);
    std::optional<bool> ready;
    owner->prepare([&ready](bool isReady) { ready = isReady; });
    EXPECT_TRUE(soon([&] { return !networkManager.journal().isEmpty(); }));
    for (int second = 0; second < 30 && !ready; ++second) {
        advance(1s);
    }
    EXPECT_EQ(ready, false);
    EXPECT_TRUE(networkManager.isManaged);
    EXPECT_EQ(released(), QStringList());
}

TEST_F(LinuxAddressOwnersTest, WaitForNoNetworkForEver)
{
    MadeUpNetworkManager networkManager(bus, Kind::WiFi);
    networkManager.connects = false;
    const auto owner = find(u"wlan0"_s);
    EXPECT_TRUE(prepare(*owner));
    std::optional<AddressOwner::Outcomes> outcome;
    owner->settle(true, [&outcome](AddressOwner::Outcomes came) { outcome = came; });
    EXPECT_TRUE(soon([&] { return networkManager.journal().contains(activated(networkManager)); }));
    EXPECT_FALSE(outcome);
    advance(61s);
    EXPECT_EQ(outcome, Outcome::NotBack);
    EXPECT_TRUE(networkManager.isManaged);
}

TEST_F(LinuxAddressOwnersTest, TakeTheInterfaceBackFromARestartedNetworkManager)
{
    MadeUpNetworkManager networkManager(bus, Kind::WiFi);
    const auto owner = find(u"wlan0"_s);
    EXPECT_TRUE(prepare(*owner));
    networkManager.restart();
    EXPECT_EQ(settle(*owner, true), Outcome::Settled);
    EXPECT_TRUE(networkManager.isConnected);
    // The IP address from before goes with a disconnection only.
    const QString again = activated(networkManager);
    EXPECT_EQ(networkManager.journal(),
        (QStringList{u"managed false"_s, u"managed true"_s, again, u"disconnect"_s, again}));
}

TEST_F(LinuxAddressOwnersTest, ARestartedNetworkManagerConnectsWithTheProfileFromBefore)
{
    MadeUpNetworkManager networkManager(bus, Kind::Ethernet);
    const QString before = activated(networkManager);
    const auto owner = find(u"eth0"_s);
    EXPECT_TRUE(prepare(*owner));
    networkManager.restart();
    advance(1s);
    EXPECT_EQ(settle(*owner, true), Outcome::Settled);
    EXPECT_TRUE(networkManager.isConnected);
    EXPECT_NE(activated(networkManager), before) << "it has another path now";
    EXPECT_EQ(networkManager.journal(), QStringList{activated(networkManager)});
}

TEST_F(LinuxAddressOwnersTest, AProfileThatIsGoneIsReplacedByTheBest)
{
    MadeUpNetworkManager networkManager(bus, Kind::WiFi);
    const auto owner = find(u"wlan0"_s);
    EXPECT_TRUE(prepare(*owner));
    networkManager.knowsProfile = false;
    EXPECT_EQ(settle(*owner, true), Outcome::Settled);
    EXPECT_EQ(networkManager.journal(),
        (QStringList{u"managed false"_s, u"managed true"_s, u"activate /"_s}));
}

TEST_F(LinuxAddressOwnersTest, AskOnceWhoMayControlNetworksUntilThatChanges)
{
    MadeUpNetworkManager networkManager(bus, Kind::Ethernet);
    const auto change = [&] {
        const auto owner = find(u"eth0"_s);
        EXPECT_TRUE(prepare(*owner));
        return settle(*owner, true);
    };
    EXPECT_EQ(change(), Outcome::Settled);
    EXPECT_EQ(change(), Outcome::Settled);
    EXPECT_EQ(networkManager.permissionQuestions(), 1);
    networkManager.changePermission(u"auth"_s);
    advance(1s);
    const int before = networkManager.permissionQuestions();
    EXPECT_EQ(change(), Outcome::Untold);
    EXPECT_EQ(networkManager.permissionQuestions(), before + 1);
    networkManager.permission = u"yes"_s;
    networkManager.restart();
    advance(1s);
    EXPECT_EQ(change(), Outcome::Settled);
}

TEST_F(LinuxAddressOwnersTest, ABlockedRadioIsTakenBackFromANetworkManagerThatWasKilled)
{
    MadeUpNetworkManager networkManager(bus, Kind::WiFi);
    networkManager.isConnected = false;
    networkManager.isBlocked = true;
    {
        const auto owner = find(networkManager.name());
        ASSERT_TRUE(prepare(*owner));
        std::optional<AddressOwner::Outcomes> outcome;
        owner->settle(true, [&outcome](AddressOwner::Outcomes came) { outcome = came; });
        for (int second = 0; second < 8 && !outcome; ++second) {
            advance(1s);
        }
        ASSERT_EQ(outcome, Outcome::Settled);
    }
    advance(1s);
    // As what it last noted has it.
    networkManager.isManaged = false;
    networkManager.restart();
    for (int second = 0; second < 8 && !networkManager.isManaged; ++second) {
        advance(1s);
    }
    EXPECT_TRUE(networkManager.isManaged);
    EXPECT_EQ(released(), QStringList{u"wlan0"_s}) << "not noted yet";
    networkManager.isBlocked = false;
    for (int second = 0; second < 8 && !released().isEmpty(); ++second) {
        advance(1s);
    }
    EXPECT_EQ(released(), QStringList());
}

TEST_F(LinuxAddressOwnersTest, WaitForANetworkManagerThatIsBeingRestarted)
{
    MadeUpNetworkManager networkManager(bus, Kind::WiFi);
    const auto owner = find(u"wlan0"_s);
    EXPECT_TRUE(prepare(*owner));
    networkManager.end();
    std::optional<AddressOwner::Outcomes> outcome;
    owner->settle(true, [&outcome](AddressOwner::Outcomes came) { outcome = came; });
    advance(5s);
    EXPECT_FALSE(outcome);
    networkManager.restart();
    EXPECT_TRUE(soon([&] { return outcome.has_value(); }));
    EXPECT_EQ(outcome, Outcome::Settled);
    EXPECT_TRUE(networkManager.isConnected);
}

TEST_F(LinuxAddressOwnersTest, AnInterfaceIsTakenBackWhenTheProgramEnds)
{
    MadeUpNetworkManager networkManager(bus, Kind::WiFi);
    auto owner = find(u"wlan0"_s);
    EXPECT_TRUE(prepare(*owner));
    owner.reset();
    EXPECT_TRUE(soon([&] { return networkManager.isManaged; }));
}

TEST_F(LinuxAddressOwnersTest, AnInterfaceIsTakenBackAfterAProgramThatDied)
{
    MadeUpNetworkManager networkManager(bus, Kind::WiFi);
    networkManager.isManaged = false;
    settings.set(u"releasedDevices"_s, QVariantList{u"wlan0"_s, u"gone0"_s});
    owners.finishInterrupted();
    EXPECT_TRUE(soon([&] { return networkManager.isManaged; }));
    EXPECT_TRUE(soon([&] { return released() == QStringList{u"gone0"_s}; }));
}

} // namespace

} // namespace quillon::test
