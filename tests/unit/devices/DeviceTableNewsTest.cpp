// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "DeviceFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class DeviceTableNews : public DeviceFixture
{
protected:
    DeviceTableNews() { table.updateNetWorkInterfaces(); }

    void refresh() { table.updateNetWorkInterfaces(); }
    /// As a change of the address by the program ends: all of the interface is read back.
    void readBack(const QString &device)
    {
        const InterfaceInfo info = table.getInfoForDevice(device);
        table.update(device, [&info](DeviceRecord &record) {
            record.current = info.macAddress;
            record.ipAddress = info.ipAddress;
            record.status = info.status;
        });
    }
    QStringList news() const { return table.devicesWithNews(); }

    const QString en0 = u"en0"_s;
    const QString en1 = u"en1"_s;
};

TEST_F(DeviceTableNews, IsEveryDeviceThatTheHostTellsSomethingElseOf)
{
    refresh();
    EXPECT_EQ(news(), QStringList());
    host.at(en1).active = false;
    host.at(u"bridge0"_s).router = u"192.0.2.1"_s;
    host.at(en0).ipv4 = QStringList{u"203.0.113.1"_s};
    refresh();
    EXPECT_EQ(news(), (QStringList{u"bridge0"_s, en0, en1}));
}

TEST_F(DeviceTableNews, StaysUntilItIsForgottenHoweverOftenTheTableIsRefreshed)
{
    host.at(en0).active = false;
    refresh();
    refresh();
    host.at(en1).active = false;
    refresh();
    EXPECT_EQ(news(), (QStringList{en0, en1}));
    table.forgetNews(en0);
    refresh();
    EXPECT_EQ(news(), QStringList(en1));
    table.forgetAllNews();
    EXPECT_EQ(news(), QStringList());
    host.at(en0).active = true;
    refresh();
    EXPECT_EQ(news(), QStringList(en0));
}

TEST_F(DeviceTableNews, IsNoneWhereEverythingIsAgainAsItWas)
{
    host.at(en0).active = false;
    refresh();
    host.at(en0).active = true;
    refresh();
    EXPECT_EQ(news(), QStringList());
    host.at(en0).active = false;
    refresh();
    EXPECT_EQ(news(), QStringList(en0));
}

TEST_F(DeviceTableNews, IsNotADeviceThatIsNewNorOneThatWasTakenAway)
{
    host.plug({u"USB Ethernet"_s, u"en5"_s, {}, u"02:00:00:00:00:55"_s, {}});
    host.unplug(en0);
    refresh();
    EXPECT_EQ(news(), QStringList());
    host.at(u"en5"_s).active = false;
    refresh();
    EXPECT_EQ(news(), QStringList(u"en5"_s));
}

TEST_F(DeviceTableNews, IsADeviceThatIsBackAlsoWhereItIsAsItWas)
{
    const FakeNetworkHost::Interface taken = host.at(en0);
    host.unplug(en0);
    refresh();
    refresh();
    host.setUnreadable(true);
    refresh();
    host.setUnreadable(false);
    EXPECT_EQ(news(), QStringList());
    host.plug(taken);
    refresh();
    table.noteOwnAddress(en0, taken.address);
    refresh();
    EXPECT_EQ(news(), QStringList(en0));
    table.forgetNews(en0);
    refresh();
    EXPECT_EQ(news(), QStringList());
}

TEST_F(DeviceTableNews, IsNotADeviceThatCouldNotBeReadForAMoment)
{
    host.setUnreadable(true);
    refresh();
    host.setUnreadable(false);
    refresh();
    EXPECT_EQ(news(), QStringList());
}

TEST_F(DeviceTableNews, IsNotWhatTheProgramItselfKeepsInTheRecord)
{
    table.update(en0, [](DeviceRecord &record) {
        record.vendor = u"Maker (A1B2C3)"_s;
        record.hasRule = 1;
        record.rule = QVariantMap{{u"name"_s, u"home"_s}};
    });
    refresh();
    EXPECT_EQ(news(), QStringList());
}

TEST_F(DeviceTableNews, IsNotTheAddressThatTheProgramGave)
{
    host.giveAddress(en0, u"02:00:00:00:00:01"_s);
    readBack(en0);
    refresh();
    EXPECT_EQ(news(), QStringList());
    host.giveAddress(en0, u"02:00:00:00:00:02"_s);
    refresh();
    EXPECT_EQ(news(), QStringList(en0)) << "that one another program gave";
}

TEST_F(DeviceTableNews, IsNotTheAddressThatTheProgramGaveAlsoWhereARefreshSawItFirst)
{
    host.giveAddress(en0, u"02:00:00:00:00:01"_s);
    table.update(en0, [](DeviceRecord &record) { record.vendor = u"Maker (A1B2C3)"_s; });
    host.at(en0).active = false;
    refresh();
    table.forgetNews(en0);
    host.giveAddress(en0, u"02:00:00:00:00:02"_s);
    host.at(en0).active = true;
    refresh();
    host.giveAddress(en0, u"02:00:00:00:00:03"_s);
    readBack(en0);
    EXPECT_EQ(news(), QStringList(en0)) << "the link is news still";
    host.at(en0).active = false;
    refresh();
    EXPECT_EQ(news(), QStringList());
}

TEST_F(DeviceTableNews, IsNotTheAddressThatTheProgramGaveAlsoWhereOnlyARefreshSawItChange)
{
    const QString own = u"02:00:00:00:00:01"_s;
    host.giveAddress(en0, own);
    refresh();
    ASSERT_EQ(news(), QStringList(en0));
    readBack(en0);
    table.noteOwnAddress(en0, own);
    EXPECT_EQ(news(), QStringList());
    host.at(en0).active = false;
    refresh();
    EXPECT_EQ(news(), QStringList(en0));
    table.noteOwnAddress(u"en9"_s, own);
    EXPECT_EQ(news(), QStringList(en0));
}

TEST_F(DeviceTableNews, TellsWhetherTheHostCouldBeRead)
{
    EXPECT_TRUE(table.updateNetWorkInterfaces());
    host.setUnreadable(true);
    EXPECT_FALSE(table.updateNetWorkInterfaces());
}

TEST_F(DeviceTableNews, IsTheLeaseThatWasReadBackWithAnAddress)
{
    host.giveAddress(en0, u"02:00:00:00:00:01"_s);
    host.at(en0).ipv4 = QStringList{u"203.0.113.1"_s};
    readBack(en0);
    EXPECT_EQ(news(), QStringList(en0));
    refresh();
    EXPECT_EQ(news(), QStringList(en0));
    table.forgetNews(en0);
    EXPECT_EQ(news(), QStringList());
}

TEST_F(DeviceTableNews, IsTheAddressOfOthersThatWasReadBack)
{
    const auto readBackOf = [this](const QString &address) {
        host.giveAddress(en0, address);
        table.update(
            en0, [&](DeviceRecord &record) { record.current = host.addressOf(en0); },
            DeviceTable::AddressOf::Others);
    };
    const QString before = host.addressOf(en0);
    readBackOf(before);
    EXPECT_EQ(news(), QStringList()) << "it is the one that was known";
    readBackOf(u"02:00:00:00:00:01"_s);
    EXPECT_EQ(news(), QStringList(en0));
    refresh();
    EXPECT_EQ(news(), QStringList(en0));
    readBackOf(before);
    EXPECT_EQ(news(), QStringList()) << "everything is again as it was";
    readBackOf(u"02:00:00:00:00:02"_s);
    table.forgetNews(en0);
    EXPECT_EQ(news(), QStringList());
}

TEST_F(DeviceTableNews, IsNoneOfADeviceThatTheTableDidNotHold)
{
    table.update(u"en9"_s, [](DeviceRecord &record) { record.status = u"active"_s; });
    EXPECT_EQ(news(), QStringList());
}

} // namespace
} // namespace quillon::test
