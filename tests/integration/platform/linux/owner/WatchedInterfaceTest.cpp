// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/owner/WatchedInterface.h"

#include "WiredPair.h"
#include "fakes/FakeScheduler.h"
#include "integration/platform/linux/Waiting.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using Outcome = AddressOwner::Outcome;

class WatchedInterfaceTest : public testing::Test
{
protected:
    bool soon(const std::function<bool()> &condition)
    {
        return eventually([&] {
            scheduler.runPending();
            return condition();
        });
    }
    void prepare()
    {
        // The kernel looks at carriers in its own time.
        ASSERT_TRUE(eventually([] {
            const auto traces = readTraces(WiredPair::name());
            return traces && traces->isRunning;
        }));
        bool isReady = false;
        owner.prepare([&](bool ready) { isReady = ready; });
        ASSERT_TRUE(soon([&] { return isReady; }));
    }
    void settle()
    {
        owner.settle(true, [this](AddressOwner::Outcomes came) { outcomes = came; });
        EXPECT_FALSE(outcomes);
    }
    bool isSettled()
    {
        return soon([&] { return outcomes.has_value(); });
    }

    WiredPair pair;
    FakeScheduler scheduler;
    WatchedInterface owner{scheduler, WiredPair::name(), u"systemd-networkd"_s};
    std::optional<AddressOwner::Outcomes> outcomes;
};

TEST_F(WatchedInterfaceTest, NamesItsOwner)
{
    EXPECT_EQ(owner.name(), u"systemd-networkd"_s);
}

TEST_F(WatchedInterfaceTest, HasSettledAsSoonAsItsLeaseIsRenewed)
{
    prepare();
    pair.change();
    settle();
    eventually([&] { return outcomes.has_value(); }, 200ms);
    scheduler.advance(2s);
    EXPECT_FALSE(outcomes);
    pair.renewLease();
    // By what the kernel tells: the clock stands still.
    EXPECT_TRUE(isSettled());
    EXPECT_EQ(outcomes, Outcome::Settled);
    EXPECT_FALSE(scheduler.hasTimers());
}

TEST_F(WatchedInterfaceTest, HasSettledAsSoonAsAnotherLeaseHasTakenTheOldOnesPlace)
{
    prepare();
    pair.change();
    settle();
    WiredPair::ip("address add 198.51.100.78/24 dev own0 valid_lft 4000 preferred_lft 3000");
    eventually([&] { return outcomes.has_value(); }, 200ms);
    EXPECT_FALSE(outcomes) << "the old one stands beside it";
    WiredPair::ip("address delete 192.0.2.77/24 dev own0");
    EXPECT_TRUE(isSettled());
    EXPECT_EQ(outcomes, Outcome::Settled);
}

TEST_F(WatchedInterfaceTest, TellsInTheEndWhatStays)
{
    prepare();
    // Live: the IPv6 address stays as well.
    WiredPair::ip("link set own0 address 02:00:00:00:00:a2");
    settle();
    scheduler.runPending();
    scheduler.advance(19s);
    EXPECT_FALSE(outcomes);
    scheduler.advance(2s);
    ASSERT_TRUE(outcomes);
    EXPECT_EQ(
        *outcomes, AddressOwner::Outcomes(Outcome::KeepsIPAddress) | Outcome::KeepsIPv6Address);
    EXPECT_FALSE(scheduler.hasTimers());
}

TEST_F(WatchedInterfaceTest, TellsInTheEndThatItIsNotConnected)
{
    prepare();
    pair.change();
    WiredPair::ip("link set far0 down");
    pair.renewLease();
    ASSERT_TRUE(eventually([] { return !readTraces(WiredPair::name())->isRunning; }));
    settle();
    scheduler.advance(21s);
    EXPECT_EQ(outcomes, Outcome::NotBack);
}

TEST_F(WatchedInterfaceTest, IsTheSameWhenItWasMadeAnewUnderItsName)
{
    prepare();
    // As iwd does it when it is restarted: another index.
    pair.remove();
    WiredPair::ip("link add own0 address 02:00:00:00:00:a2 type veth peer name far0");
    settle();
    eventually([&] { return outcomes.has_value(); }, 200ms);
    EXPECT_FALSE(outcomes);
    WiredPair::ip("link set far0 up");
    WiredPair::ip("link set own0 up");
    WiredPair::ip("address add 198.51.100.78/24 dev own0 valid_lft 4000 preferred_lft 3000");
    EXPECT_TRUE(isSettled());
    EXPECT_EQ(outcomes, Outcome::Settled);
    WiredPair::ip("link delete own0");
}

TEST_F(WatchedInterfaceTest, WithStaticAddressesHasSettledAtOnce)
{
    WiredPair::ip("address delete 192.0.2.77/24 dev own0");
    WiredPair::ip("address add 192.0.2.79/24 dev own0");
    WiredPair::ip("address add fd00:db8:1::5/64 dev own0 nodad");
    prepare();
    pair.change();
    // Else it would be waited for the carrier, with right.
    ASSERT_TRUE(eventually([] { return readTraces(WiredPair::name())->isRunning; }));
    settle();
    scheduler.runPending();
    EXPECT_EQ(outcomes, Outcome::Settled);
}

TEST_F(WatchedInterfaceTest, WithoutACableHasSettledAtOnce)
{
    WiredPair::ip("address delete 192.0.2.77/24 dev own0");
    prepare();
    WiredPair::ip("link set far0 down");
    ASSERT_TRUE(eventually([] { return !readTraces(WiredPair::name())->isRunning; }));
    WatchedInterface apart(scheduler, WiredPair::name(), QString());
    bool isReady = false;
    apart.prepare([&](bool ready) { isReady = ready; });
    ASSERT_TRUE(soon([&] { return isReady; }));
    pair.change();
    apart.settle(true, [this](AddressOwner::Outcomes came) { outcomes = came; });
    scheduler.runPending();
    EXPECT_EQ(outcomes, Outcome::Settled);
}

} // namespace

} // namespace quillon::test
