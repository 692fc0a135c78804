// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/AddressChange.h"

#include "fakes/FakeKernelLink.h"

#include <gmock/gmock.h>

namespace quillon {
namespace {

using test::FakeKernelLink;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr contract::LinkLayerAddress wanted{0x02, 0x11, 0x22, 0x33, 0x44, 0x55};

class AddressChangeTest : public testing::Test
{
protected:
    Outcome change(const std::string &device, bool wifi = false)
    {
        AddressChange addressChange{kernel};
        LinkState asked;
        auto refusal = addressChange.find(device, asked);
        return refusal ? refusal : addressChange.change(asked, wanted, wifi);
    }
    static std::string errorOf(const Outcome &outcome)
    {
        return outcome ? outcome->error.name : "done";
    }

    FakeKernelLink kernel;
};

TEST_F(AddressChangeTest, isMadeLiveWhereTheDriverAllows)
{
    kernel.add("enp1s0");
    EXPECT_EQ(errorOf(change("enp1s0")), "done");
    EXPECT_THAT(kernel.steps, ElementsAre("read neighbors", "set while up", "put neighbors back"));
    EXPECT_EQ(kernel.named("enp1s0").state.address, wanted);
}

TEST_F(AddressChangeTest, renewsIPv6AddressesThatWouldTellTheAddressOfBefore)
{
    auto &interface = kernel.add("enp1s0");
    interface.configuration.formedAddresses = {{7, 8}};
    EXPECT_EQ(errorOf(change("enp1s0")), "done");
    EXPECT_THAT(kernel.steps, ElementsAre("read neighbors", "set while up", "put neighbors back"));
    EXPECT_THAT(kernel.formedRenewed, ElementsAre(LinkConfiguration::Message{7, 8}));
    EXPECT_THAT(kernel.formedRemoved, IsEmpty());

    kernel.failsToRenewFormed = ENOMEM;
    EXPECT_THAT(change("enp1s0")->message, HasSubstr("renewing the IPv6 addresses"));
}

TEST_F(AddressChangeTest, removesThemWhereTheKernelFormsThemAnewByItself)
{
    auto &interface = kernel.add("enp1s0");
    interface.refusesWhileUp = EBUSY;
    interface.configuration.formedAddresses = {{7, 8}};
    EXPECT_EQ(errorOf(change("enp1s0")), "done");
    EXPECT_THAT(
        kernel.steps, ElementsAre("read neighbors", "set while up", "put neighbors back", "read",
                          "down", "set while down", "put neighbors back", "up", "put back"));
    EXPECT_THAT(kernel.formedRenewed, IsEmpty());
    // A kernel that was told to keep addresses keeps them while the interface is down.
    EXPECT_THAT(kernel.formedRemoved, ElementsAre(LinkConfiguration::Message{7, 8}));
}

TEST_F(AddressChangeTest, takesThoseOnTopDownThatTookTheAddressOverAndStayedUp)
{
    auto &interface = kernel.add("enp1s0");
    // All have its old address; the first two show another one now.
    for (const char *name : {"br0", "br1", "br2", "br3"}) {
        auto &onTop = kernel.add(name);
        onTop.state.formsAddresses = true;
        interface.configuration.linksOnTop.push_back(onTop.state);
    }
    kernel.named("br0").state.address = wanted;
    kernel.named("br1").state.address = wanted;
    kernel.named("br1").state.flags = 0;
    kernel.named("br2").state.address = wanted;
    interface.configuration.linksOnTop[2].formsAddresses = false;
    EXPECT_EQ(errorOf(change("enp1s0", true)), "done");
    EXPECT_THAT(kernel.steps, ElementsAre("read", "down", "set while down", "down",
                                  "put neighbors back", "up", "put back"));
    EXPECT_EQ(kernel.named("br0").state.flags & IFF_UP, 0U);
}

TEST_F(AddressChangeTest, isNotMadeWhereItIsUnknownWhichAddressesWouldStay)
{
    kernel.add("enp1s0");
    kernel.failsToReadFormed = EINTR;
    EXPECT_EQ(errorOf(change("enp1s0")), contract::error::changeFailed.name);
    EXPECT_THAT(kernel.steps, ElementsAre("read neighbors"));
}

TEST_F(AddressChangeTest, putsStaticNeighborsBackInEveryCase)
{
    const std::vector<LinkConfiguration::Message> neighbors{{1, 2}, {3}};
    kernel.flushesNeighborsInAnyCase = true;
    for (int refusal : {0, EBUSY, EADDRNOTAVAIL}) {
        for (bool wifi : {false, true}) {
            for (unsigned flags : {0U, unsigned{IFF_UP}}) {
                auto &interface = kernel.add("enp1s0", flags);
                interface.refusesWhileUp = refusal;
                interface.configuration.neighbors = neighbors;
                change("enp1s0", wifi);
                EXPECT_EQ(interface.configuration.neighbors, neighbors) << refusal << wifi << flags;
                interface.refusesAlways = EADDRNOTAVAIL;
                change("enp1s0", wifi);
                EXPECT_EQ(interface.configuration.neighbors, neighbors) << refusal << wifi << flags;
                interface.state.name = "gone";
            }
        }
    }
}

TEST_F(AddressChangeTest, doesNotChangeWhatWouldCostNeighborsThatItDoesNotKnow)
{
    kernel.add("enp1s0");
    kernel.failsToRead = EINTR;
    EXPECT_EQ(errorOf(change("enp1s0")), contract::error::changeFailed.name);
    EXPECT_THAT(kernel.steps, ElementsAre("read neighbors"));
}

TEST_F(AddressChangeTest, takesTheInterfaceDownWhereTheDriverRefusesAndPutsEverythingBack)
{
    for (int refusal : {EBUSY, EOPNOTSUPP}) {
        kernel = {};
        auto &interface = kernel.add("enp1s0");
        interface.refusesWhileUp = refusal;
        interface.configuration.addresses = {{1, 2, 3}};
        const std::vector<LinkConfiguration::Route> routes{{{4, 5}, true}, {{6}, false}};
        interface.configuration.routes = routes;
        EXPECT_EQ(errorOf(change("enp1s0")), "done");
        EXPECT_THAT(kernel.steps,
            ElementsAre("read neighbors", "set while up", "put neighbors back", "read", "down",
                "set while down", "put neighbors back", "up", "put back"));
        EXPECT_EQ(interface.state.address, wanted);
        EXPECT_EQ(interface.configuration.addresses,
            (std::vector<LinkConfiguration::Message>{{1, 2, 3}}));
        EXPECT_EQ(interface.configuration.routes, routes);
    }
}

TEST_F(AddressChangeTest, ofAWiFiInterfaceLeavesTheNetworkWithoutTryingLive)
{
    kernel.add("wlp2s0");
    EXPECT_EQ(errorOf(change("wlp2s0", true)), "done");
    EXPECT_THAT(kernel.steps,
        ElementsAre("read", "down", "set while down", "put neighbors back", "up", "put back"));
}

TEST_F(AddressChangeTest, leavesAnInterfaceDownThatWasDown)
{
    kernel.add("wlp2s0", 0);
    kernel.add("enp1s0", 0);
    EXPECT_EQ(errorOf(change("wlp2s0", true)), "done");
    EXPECT_EQ(errorOf(change("enp1s0")), "done");
    EXPECT_THAT(kernel.steps, ElementsAre("read neighbors", "set while down", "put neighbors back",
                                  "read neighbors", "set while down", "put neighbors back"));
    EXPECT_EQ(kernel.named("enp1s0").state.flags & IFF_UP, 0U);
}

TEST_F(AddressChangeTest, thatFailsWhileDownStillBringsTheInterfaceBack)
{
    auto &interface = kernel.add("enp1s0");
    interface.refusesAlways = EOPNOTSUPP;
    interface.configuration.addresses = {{1}};
    interface.configuration.routes = {{{2}, false}};
    const auto outcome = change("enp1s0");
    EXPECT_EQ(errorOf(outcome), contract::error::changeFailed.name);
    EXPECT_THAT(
        kernel.steps, ElementsAre("read neighbors", "set while up", "put neighbors back", "read",
                          "down", "set while down", "put neighbors back", "up", "put back"));
    EXPECT_NE(interface.state.flags & IFF_UP, 0U);
    EXPECT_EQ(interface.configuration.addresses.size(), 1U);
}

TEST_F(AddressChangeTest, doesNotTakeDownWhatItCouldNotPutBack)
{
    kernel.add("wlp2s0");
    kernel.failsToRead = EINTR;
    EXPECT_EQ(errorOf(change("wlp2s0", true)), contract::error::changeFailed.name);
    EXPECT_THAT(kernel.steps, ElementsAre("read"));
}

TEST_F(AddressChangeTest, saysWhichStepFailed)
{
    kernel.add("wlp2s0");
    kernel.failsToGoDown = EPERM;
    EXPECT_THAT(change("wlp2s0", true)->message, HasSubstr("taking the interface down"));
    kernel.failsToGoDown = 0;
    kernel.failsToComeUp = EIO;
    EXPECT_THAT(change("wlp2s0", true)->message, HasSubstr("bringing the interface up"));
    kernel.failsToComeUp = 0;
    kernel.named("wlp2s0").state.flags |= IFF_UP;
    kernel.failsToRemoveFormed = ENOMEM;
    EXPECT_THAT(change("wlp2s0", true)->message, HasSubstr("removing the IPv6 addresses"));
    kernel.failsToRemoveFormed = 0;
    kernel.failsToPutBack = EINVAL;
    EXPECT_THAT(change("wlp2s0", true)->message, HasSubstr("putting addresses and routes back"));
    kernel.failsToPutNeighborsBack = ENOBUFS;
    EXPECT_THAT(change("wlp2s0", true)->message, HasSubstr("putting the static neighbors back"));
    EXPECT_THAT(change("wlp2s0")->message, HasSubstr("putting the static neighbors back"));
}

TEST_F(AddressChangeTest, isNotRetriedForAnAddressThatTheKernelRefuses)
{
    kernel.add("enp1s0").refusesAlways = EADDRNOTAVAIL;
    EXPECT_EQ(errorOf(change("enp1s0")), contract::error::changeFailed.name);
    EXPECT_THAT(kernel.steps, ElementsAre("read neighbors", "set while up", "put neighbors back"));
}

TEST_F(AddressChangeTest, isAnErrorUnlessItTook)
{
    kernel.add("enp1s0").ignoresAddress = true;
    EXPECT_EQ(errorOf(change("enp1s0")), contract::error::addressDidNotTake.name);
}

TEST_F(AddressChangeTest, ofAnInterfaceThatVanishesMeanwhileIsAnError)
{
    kernel.add("enp1s0").vanishesAfterwards = true;
    EXPECT_EQ(errorOf(change("enp1s0")), contract::error::addressDidNotTake.name);
}

TEST_F(AddressChangeTest, needsAnInterfaceOfExactlyThisName)
{
    kernel.add("enp1s0");
    kernel.alternativeNames["lan"] = "enp1s0";
    EXPECT_EQ(errorOf(change("enp9s0")), contract::error::noSuchDevice.name);
    EXPECT_EQ(errorOf(change("lan")), contract::error::noSuchDevice.name);
    EXPECT_THAT(kernel.steps, IsEmpty());
}

TEST_F(AddressChangeTest, leavesAnInterfaceAloneThatTookTheNameMeanwhile)
{
    AddressChange addressChange{kernel};
    kernel.add("enp1s0");
    LinkState asked;
    ASSERT_EQ(errorOf(addressChange.find("enp1s0", asked)), "done");
    kernel.named("enp1s0").state.name = "lan";
    EXPECT_EQ(
        errorOf(addressChange.change(asked, wanted, false)), contract::error::noSuchDevice.name);
    kernel.add("enp1s0");
    EXPECT_EQ(
        errorOf(addressChange.change(asked, wanted, true)), contract::error::noSuchDevice.name);
    EXPECT_THAT(kernel.steps, IsEmpty());
}

TEST_F(AddressChangeTest, leavesLoopbackAndOtherKindsOfLinkAlone)
{
    kernel.add("lo", IFF_UP | IFF_LOOPBACK, ARPHRD_LOOPBACK);
    kernel.add("odd", IFF_UP | IFF_LOOPBACK, ARPHRD_ETHER);
    kernel.add("tun0", IFF_UP, ARPHRD_NONE);
    kernel.add("ib0", IFF_UP, ARPHRD_INFINIBAND);
    for (const char *device : {"lo", "odd", "tun0", "ib0"}) {
        EXPECT_EQ(errorOf(change(device)), contract::error::unsupportedDevice.name) << device;
    }
    EXPECT_THAT(kernel.steps, IsEmpty());
}

} // namespace
} // namespace quillon
