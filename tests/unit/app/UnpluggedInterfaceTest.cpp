// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "unit/app/ProgramOnFakes.h"

#include <algorithm>
#include <functional>

namespace quillon::test {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
namespace {

/// A laptop on a Wi-Fi network, its radio selected, with a wire beside it. The radio is taken out.
class UnpluggedInterfaceTest : public ProgramOnFakes
{
protected:
    UnpluggedInterfaceTest()
    {
        machine.host.unplug(enp2s0);
        plugRadioIn();
        create();
        saveRule(randomEveryFiveMinutes(radio));
        start();
        machine.scheduler.advance(2s);
        select(radio);
        machine.scheduler.advance(2s);
    }

    void plugRadioIn()
    {
        machine.host.plug({u"Wi-Fi"_s, radio, address, address, {u"192.0.2.20"_s}});
        WiFiInterface network;
        network.device = radio;
        network.ssid = u"Harbor"_s;
        network.bssid = u"a4:2b:b0:11:22:33"_s;
        machine.wifi.join(network);
    }
    void happen()
    {
        machine.networkChanges.networkChanges();
        machine.scheduler.runPending();
    }
    void unplugRadio()
    {
        machine.host.unplug(radio);
        machine.wifi.interface.reset();
        happen();
    }
    void unplugWire()
    {
        machine.host.unplug(enp1s0);
        happen();
    }

    const QString radio = u"wlp2s0"_s;
    const QString address = u"00:00:5e:00:53:01"_s;
};

TEST_F(UnpluggedInterfaceTest, ClosesWhatIsOpenBesideIt)
{
    Features &f = features();
    struct Opened
    {
        const char *what;
        std::function<void()> open;
        std::function<bool()> isOpen;
    };
    const QList<Opened> each{
        {"hardware", [&f] { f.mainWindow.toggleHardwarePopover(); },
            [&f] { return f.mainWindow.state().hardwarePopoverShown; }},
        {"saved addresses", [&f] { f.networks.savedLists.toggleSoftwarePopover(); },
            [&f] { return f.networks.savedLists.state().softwarePopoverShown; }},
        {"network", [&f] { f.networks.info.toggleNetworkInfoPopover(); },
            [&f] { return f.networks.info.state().popoverShown; }},
        {"vendor",
            [&f] {
                f.vendors.info.showVendorButton(true);
                f.vendors.info.toggleVendorPopover();
            },
            [&f] { return f.vendors.info.state().popoverShown; }},
        {"list of vendors", [&f] { f.vendors.field.showVendorViewPopover(); },
            [&f] { return f.vendors.field.state().popoverShown; }},
        {"rules", [&f] { f.rules.list.toggleRulesPopover(); },
            [&f] { return f.rules.list.state().popoverShown; }},
    };
    for (const Opened &popover : each) {
        popover.open();
        happen();
        EXPECT_TRUE(popover.isOpen()) << popover.what << ": nothing has changed";
        unplugRadio();
        EXPECT_FALSE(popover.isOpen()) << popover.what;
        plugRadioIn();
        happen();
        EXPECT_FALSE(window().isGone);
        EXPECT_FALSE(popover.isOpen()) << popover.what << ": it does not open by itself";
    }
}

TEST_F(UnpluggedInterfaceTest, WhatIsOpenedBesideItLaterStaysOpen)
{
    unplugRadio();
    features().mainWindow.toggleHardwarePopover();
    happen();
    EXPECT_TRUE(window().hardwarePopoverShown)
        << "the address that it was made with is still known";
}

TEST_F(UnpluggedInterfaceTest, AnotherOneLeavesWhatIsOpenBesideTheSelectedOne)
{
    features().mainWindow.toggleHardwarePopover();
    unplugWire();
    EXPECT_TRUE(window().hardwarePopoverShown);
    EXPECT_FALSE(window().isGone);
}

TEST_F(UnpluggedInterfaceTest, HasNoLinkAndNoAddressOfTheNetworkAndIsStillTheSelectedOne)
{
    EXPECT_TRUE(window().linkActive);
    EXPECT_EQ(window().ipAddress, u"192.0.2.20"_s);
    const QVariantMap before = machine.settings.getDictionary(keys::currentInterfaceDict);
    unplugRadio();
    EXPECT_TRUE(window().isGone);
    EXPECT_FALSE(window().linkActive);
    EXPECT_EQ(window().ipAddress, QString());
    EXPECT_EQ(window().fieldLine, AddressFieldLine::interfaceGone());
    EXPECT_FALSE(window().randomizeEnabled);
    EXPECT_FALSE(window().withoutInterfaces) << "there is another one";
    EXPECT_EQ(window().selectedDevice, radio);
    EXPECT_EQ(machine.settings.getDictionary(keys::currentInterfaceDict), before)
        << "whom the user has chosen is remembered";
    EXPECT_EQ(deviceRecord(radio).value(record::ipAddress), u"192.0.2.20"_s)
        << "and so is the last that was known of it";

    plugRadioIn();
    happen();
    EXPECT_FALSE(window().isGone);
    EXPECT_TRUE(window().linkActive);
    EXPECT_EQ(window().ipAddress, u"192.0.2.20"_s);
    EXPECT_TRUE(window().randomizeEnabled);
    EXPECT_EQ(window().fieldLine, AddressFieldLine::forText({}, {}));
}

TEST_F(UnpluggedInterfaceTest, TheRadioIsNotReadAnyMore)
{
    features().networks.info.toggleNetworkInfoPopover();
    machine.scheduler.advance(10s);
    unplugRadio();
    EXPECT_FALSE(features().networks.info.state().hasRadio);
    const int reads = machine.wifi.reads;
    machine.scheduler.advance(30s);
    EXPECT_EQ(machine.wifi.reads, reads);
    plugRadioIn();
    happen();
    EXPECT_TRUE(features().networks.info.state().hasRadio);
}

TEST_F(UnpluggedInterfaceTest, ThePopoverOfTheNetworkClosesWhicheverInterfaceIsSelected)
{
    select(enp1s0);
    features().networks.info.toggleNetworkInfoPopover();
    unplugRadio();
    EXPECT_FALSE(features().networks.info.state().popoverShown);
}

TEST_F(UnpluggedInterfaceTest, TheLastOneLeavesNothingToShowUntilOneIsBack)
{
    unplugRadio();
    EXPECT_FALSE(window().withoutInterfaces);
    unplugWire();
    EXPECT_TRUE(window().withoutInterfaces);
    EXPECT_EQ(window().fieldLine, AddressFieldLine::withoutInterface());
    EXPECT_EQ(window().devices, (QStringList{radio, enp1s0})) << "they can come back";
    plugRadioIn();
    happen();
    EXPECT_FALSE(window().withoutInterfaces);
    EXPECT_EQ(window().selectedDevice, radio);
    EXPECT_EQ(window().fieldLine, AddressFieldLine::forText({}, {}));
}

TEST_F(UnpluggedInterfaceTest, ItsCountdownGoesOnAndSaysNothingOfChangesThatCannotBe)
{
    unplugRadio();
    ASSERT_TRUE(features().rules.timers.showing(radio));
    machine.userNotifications.everShown.clear();
    for (int time = 0; time < 3; ++time) {
        machine.scheduler.advance(300s);
        EXPECT_TRUE(features().rules.timers.showing(radio));
        EXPECT_EQ(window().fieldLine, AddressFieldLine::interfaceGone());
        EXPECT_FALSE(window().changing);
    }
    EXPECT_FALSE(std::ranges::any_of(machine.userNotifications.everShown,
        [](const auto &shown) { return shown.title.contains(u"not Changed"_s); }));
    EXPECT_TRUE(history().empty());
}

} // namespace
} // namespace quillon::test
