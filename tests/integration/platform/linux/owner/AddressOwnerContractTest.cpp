// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What holds for every owner of an interface, the made-up one of the other tests included.
#include "fakes/FakeAddressOwners.h"
#include "fakes/FakeSettingsStore.h"
#include "integration/platform/linux/Waiting.h"
#include "integration/platform/linux/owner/MadeUpNetworkManager.h"
#include "integration/platform/linux/owner/WiredPair.h"
#include "platform/linux/owner/LinuxAddressOwners.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using Outcome = AddressOwner::Outcome;

/// An interface with its owner, and what can happen to them.
class OwnedInterface
{
public:
    virtual ~OwnedInterface() = default;

    virtual AddressOwners &owners() = 0;
    virtual QString device() const = 0;
    /// The helper has changed the address.
    virtual void change() {}
    /// The owner does what it does after that.
    virtual void react() {}
    /// From now on nothing gets anywhere.
    virtual void silence() = 0;
    virtual void remove() = 0;
};

class OfTheFake : public OwnedInterface
{
public:
    explicit OfTheFake(FakeScheduler &scheduler)
        : m_owners(scheduler)
    {
        m_owners.own(device());
    }
    AddressOwners &owners() override { return m_owners; }
    QString device() const override { return u"dev0"_s; }
    void silence() override { m_owners.settleAs(Outcome::NotBack); }
    void remove() override {}

private:
    FakeAddressOwners m_owners;
};

class OfNetworkManager : public OwnedInterface
{
public:
    OfNetworkManager(FakeScheduler &scheduler, MadeUpNetworkManager::Kind kind)
        : m_settings(scheduler)
        , m_networkManager(m_bus, kind)
        , m_owners(scheduler, m_settings, {}, m_bus.connect())
    {
    }
    AddressOwners &owners() override { return m_owners; }
    QString device() const override { return m_networkManager.name(); }
    void silence() override { m_networkManager.answers = false; }
    void remove() override { m_networkManager.end(); }

private:
    PrivateBus m_bus;
    FakeSettingsStore m_settings;
    MadeUpNetworkManager m_networkManager;
    LinuxAddressOwners m_owners;
};

/// Nobody knows the interface; somebody renews its lease.
class OfTheKernel : public OwnedInterface
{
public:
    explicit OfTheKernel(FakeScheduler &scheduler)
        : m_settings(scheduler)
        , m_owners(scheduler, m_settings, {}, m_bus.connect())
    {
    }
    AddressOwners &owners() override { return m_owners; }
    QString device() const override { return WiredPair::name(); }
    void change() override { m_pair.change(); }
    void react() override
    {
        if (!m_isSilent) {
            m_pair.renewLease();
        }
    }
    void silence() override { m_isSilent = true; }
    void remove() override { m_pair.remove(); }

private:
    WiredPair m_pair;
    PrivateBus m_bus;
    FakeSettingsStore m_settings;
    LinuxAddressOwners m_owners;
    bool m_isSilent = false;
};

using Make = std::unique_ptr<OwnedInterface> (*)(FakeScheduler &);
struct Case
{
    const char *name;
    Make make;
};

void PrintTo(const Case &tested, std::ostream *out)
{
    *out << tested.name;
}

template <MadeUpNetworkManager::Kind kind>
std::unique_ptr<OwnedInterface> ofNetworkManager(FakeScheduler &scheduler)
{
    return std::make_unique<OfNetworkManager>(scheduler, kind);
}

template <typename Kind>
std::unique_ptr<OwnedInterface> of(FakeScheduler &scheduler)
{
    return std::make_unique<Kind>(scheduler);
}

constexpr Case cases[]{
    {"Fake", of<OfTheFake>},
    {"NetworkManagerEthernet", ofNetworkManager<MadeUpNetworkManager::Kind::Ethernet>},
    {"NetworkManagerWiFi", ofNetworkManager<MadeUpNetworkManager::Kind::WiFi>},
    {"Kernel", of<OfTheKernel>},
};

class AddressOwnerContractTest : public testing::TestWithParam<Case>
{
protected:
    void SetUp() override
    {
        interface = GetParam().make(scheduler);
        std::optional<std::unique_ptr<AddressOwner>> found;
        interface->owners().find(interface->device(),
            [&](std::unique_ptr<AddressOwner> one) { found = std::move(one); });
        ASSERT_TRUE(soon([&] { return found.has_value(); }));
        owner = std::move(*found);
        ASSERT_NE(owner, nullptr);
    }
    bool soon(const std::function<bool()> &condition)
    {
        return eventually([&] {
            scheduler.runPending();
            return condition();
        });
    }
    void prepare()
    {
        owner->prepare([this](bool isReady) {
            ++preparations;
            ready = isReady;
        });
        EXPECT_EQ(preparations, 0) << "before the call returned";
    }
    void prepareAndChange()
    {
        prepare();
        ASSERT_TRUE(soon([&] { return preparations > 0; }));
        ASSERT_TRUE(ready);
        interface->change();
    }
    void settle(bool isChanged)
    {
        owner->settle(isChanged, [this](AddressOwner::Outcomes came) {
            ++settlements;
            outcomes = came;
        });
        EXPECT_EQ(settlements, 0) << "before the call returned";
    }
    /// A minute and a half by the owner's clock; what is asked meanwhile is answered now and then.
    void letTimePass(const std::function<bool()> &until = [] { return false; })
    {
        for (int second = 0; second < 90 && !until(); ++second) {
            scheduler.advance(1s);
            eventually(until, 5ms);
        }
    }

    FakeScheduler scheduler;
    std::unique_ptr<OwnedInterface> interface;
    std::unique_ptr<AddressOwner> owner;
    int preparations = 0;
    int settlements = 0;
    bool ready = false;
    AddressOwner::Outcomes outcomes;
};

TEST_P(AddressOwnerContractTest, AnswersOnceAndNotBeforeTheCallReturns)
{
    prepareAndChange();
    settle(true);
    interface->react();
    EXPECT_TRUE(soon([&] { return settlements > 0; }));
    EXPECT_EQ(outcomes, Outcome::Settled);
    letTimePass();
    EXPECT_EQ(preparations, 1);
    EXPECT_EQ(settlements, 1);
}

TEST_P(AddressOwnerContractTest, SettlesWhenNothingWasChanged)
{
    prepare();
    ASSERT_TRUE(soon([&] { return preparations > 0; }));
    settle(false);
    EXPECT_TRUE(soon([&] { return settlements > 0; }));
    EXPECT_EQ(outcomes, Outcome::Settled);
}

TEST_P(AddressOwnerContractTest, TellsWithinItsLimitWhenNothingComes)
{
    prepareAndChange();
    interface->silence();
    settle(true);
    interface->react();
    letTimePass([&] { return settlements > 0; });
    EXPECT_EQ(settlements, 1);
    EXPECT_NE(outcomes, Outcome::Settled);
    letTimePass();
    EXPECT_EQ(settlements, 1);
}

TEST_P(AddressOwnerContractTest, PreparesWithinItsLimitWhenNobodyAnswers)
{
    interface->silence();
    prepare();
    EXPECT_TRUE(soon([&] { return preparations > 0; }));
}

TEST_P(AddressOwnerContractTest, ThatGoesWhileItPreparesCallsNothing)
{
    prepare();
    owner.reset();
    letTimePass();
    EXPECT_EQ(preparations, 0);
}

TEST_P(AddressOwnerContractTest, ThatGoesWhileItSettlesCallsNothing)
{
    prepareAndChange();
    settle(true);
    owner.reset();
    interface->react();
    letTimePass();
    EXPECT_EQ(settlements, 0);
}

TEST_P(AddressOwnerContractTest, EndsWhenTheInterfaceGoes)
{
    prepareAndChange();
    interface->remove();
    settle(true);
    letTimePass([&] { return settlements > 0; });
    EXPECT_EQ(settlements, 1);
}

TEST_P(AddressOwnerContractTest, EndsWhenTheInterfaceGoesWhileItSettles)
{
    prepareAndChange();
    settle(true);
    interface->remove();
    letTimePass([&] { return settlements > 0; });
    EXPECT_EQ(settlements, 1);
}

INSTANTIATE_TEST_SUITE_P(Of, AddressOwnerContractTest, testing::ValuesIn(cases),
    [](const testing::TestParamInfo<Case> &tested) { return tested.param.name; });

} // namespace

} // namespace quillon::test
