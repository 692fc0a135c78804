// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "DeviceFixture.h"
#include "devices/DeviceTable.h"

#include <atomic>
#include <thread>
#include <vector>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

QVariantMap wifi()
{
    return {{record::interface, u"Wi-Fi"_s}};
}

QVariantMap wired()
{
    return {{record::interface, u"Ethernet"_s}};
}

class DeviceTableQueries : public DeviceFixture
{
};

TEST_F(DeviceTableQueries, ReadBackStoresNothing)
{
    const InterfaceInfo info = table.getInfoForDevice(u"en1"_s);
    EXPECT_EQ(info.macAddress, "02:16:3e:44:55:66"_L1);
    EXPECT_TRUE(settings.journal().isEmpty());
}

TEST_F(DeviceTableQueries, OfTwoIpAddressesOneQueryTellsTheLastTheOtherTheFirst)
{
    EXPECT_EQ(table.ipAddressForDevice(u"en0"_s), "192.0.2.11"_L1);
    EXPECT_EQ(table.getInfoForDevice(u"en0"_s).ipAddress, "192.0.2.10"_L1);
}

TEST_F(DeviceTableQueries, ADeviceWithoutIpAddressHasAnEmptyOne)
{
    EXPECT_EQ(table.ipAddressForDevice(u"en3"_s), QString());
    EXPECT_EQ(table.ipAddressForDevice(u"en"_s), QString()) << "names match whole";
    addresses.fail();
    EXPECT_EQ(table.ipAddressForDevice(u"en0"_s), QString());
}

TEST_F(DeviceTableQueries, WifiIsWhatIsCalledExactlyThat)
{
    store({{u"a"_s, wifi()}, {u"b"_s, wired()},
        {u"c"_s, QVariantMap{{record::interface, u"Wi-Fi 2"_s}}},
        {u"d"_s, QVariantMap{{record::interface, u"wi-fi"_s}}}});
    EXPECT_TRUE(table.isDeviceWifi(u"a"_s));
    EXPECT_FALSE(table.isDeviceWifi(u"b"_s));
    EXPECT_FALSE(table.isDeviceWifi(u"c"_s));
    EXPECT_FALSE(table.isDeviceWifi(u"d"_s));
    EXPECT_FALSE(table.isDeviceWifi(u"unknown"_s));
}

TEST_F(DeviceTableQueries, WithoutWifiTheWifiDeviceIsEmptyAndNothingIsForcedToTheFront)
{
    store({{u"bridge0"_s, wired()}, {u"en0"_s, wired()}});
    EXPECT_EQ(table.getWifiDevice(), QString());
    EXPECT_EQ(table.sortedDevicesArray(), (QStringList{u"en0"_s, u"bridge0"_s}));
    store({});
    EXPECT_EQ(table.getWifiDevice(), QString());
    EXPECT_TRUE(table.sortedDevicesArray().isEmpty());
}

TEST_F(DeviceTableQueries, ListsShowWifiFirstThenEthernetThenBridges)
{
    store({{u"bridge0"_s, wired()}, {u"en2"_s, wired()}, {u"en1"_s, wifi()}, {u"en0"_s, wired()}});
    EXPECT_EQ(table.getWifiDevice(), "en1"_L1);
    EXPECT_EQ(
        table.sortedDevicesArray(), (QStringList{u"en1"_s, u"en0"_s, u"en2"_s, u"bridge0"_s}));
}

TEST_F(DeviceTableQueries, ListsSortByCharacterAndPutOneWifiInFront)
{
    store({{u"wlp2s0"_s, wifi()}, {u"wlp1s0"_s, wifi()}, {u"eth0"_s, wired()},
        {u"enp1s0"_s, wired()}, {u"Eth1"_s, wired()}, {u"br0"_s, wired()}});
    EXPECT_EQ(table.getWifiDevice(), "wlp1s0"_L1);
    EXPECT_EQ(table.sortedDevicesArray(),
        (QStringList{u"wlp1s0"_s, u"enp1s0"_s, u"eth0"_s, u"Eth1"_s, u"br0"_s, u"wlp2s0"_s}));
}

/// Notices callers who do not wait for each other.
class TouchyHost : public NetworkHost
{
public:
    std::optional<QList<PortRecord>> ports() override
    {
        occupied();
        return QList<PortRecord>();
    }
    InterfaceInfo info(const QString &) override
    {
        occupied();
        return {};
    }
    bool wasCrowded() const { return m_crowded; }

private:
    void occupied()
    {
        if (m_inside.fetch_add(1) != 0) {
            m_crowded = true;
        }
        std::this_thread::yield();
        m_inside.fetch_sub(1);
    }

    std::atomic_int m_inside{0};
    std::atomic_bool m_crowded{false};
};

TEST_F(DeviceTableQueries, FromManyThreadsReachTheHostOneAtATime)
{
    TouchyHost touchy;
    DeviceTable shared(settings, touchy, addresses);
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&shared, i] {
            for (int n = 0; n < 2000; ++n) {
                i % 2 == 0 ? static_cast<void>(shared.updateNetWorkInterfaces())
                           : static_cast<void>(shared.getInfoForDevice(u"en0"_s));
            }
        });
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
    EXPECT_FALSE(touchy.wasCrowded());
}

} // namespace
} // namespace quillon::test
