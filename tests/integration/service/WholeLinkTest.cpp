// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "contract/Names.h"
#include "integration/platform/linux/Waiting.h"
#include "platform/linux/GetrandomSource.h"
#include "platform/linux/bus/DBusHelperLink.h"
#include "platform/linux/netlink/NetlinkHost.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;

/// The program's side as the ordinary user, the real service, the real helper, polkit and the
/// kernel.
class WholeLink : public ::testing::Test
{
protected:
    void SetUp() override
    {
        service = link.connectToService(QLatin1String(contract::serviceName));
        service->resume();
        service->setupAuthorizationRights();
        bool answered = false;
        service->connectWithEndpointAndAuthorizationReply(
            [&](const std::optional<QString> &endpoint, const QByteArray &data) {
                answered = true;
                authorization = data;
                helper = endpoint ? link.connectToListenerEndpoint(*endpoint) : nullptr;
            },
            failure());
        ASSERT_TRUE(eventually([&] { return answered || error; }));
        ASSERT_TRUE(helper) << (error ? qPrintable(error->message) : "no endpoint");
        helper->resume();
    }

    ErrorHandler failure()
    {
        return [this](const Error &problem) { error = problem; };
    }

    // None when it worked.
    std::optional<Error> change(const QString &device, const QString &address)
    {
        bool answered = false;
        std::optional<Error> own;
        helper->changeAddressOfDeviceToAddressDeviceIsWiFiAuthorizationWithReply(
            device, address, false, authorization,
            [&](const std::optional<Error> &answer) {
                answered = true;
                own = answer;
            },
            failure());
        EXPECT_TRUE(eventually([&] { return answered || error; }));
        EXPECT_TRUE(answered) << qPrintable(error ? error->domain : QString());
        return own;
    }

    GetrandomSource random;
    DBusHelperLink link{random};
    std::shared_ptr<XPCServiceConnection> service;
    std::shared_ptr<HelperToolConnection> helper;
    QByteArray authorization;
    std::optional<Error> error;
};

TEST_F(WholeLink, TheHelperTellsItsVersion)
{
    QString version;
    helper->getVersionWithReply([&](const QString &text) { version = text; }, failure());
    EXPECT_TRUE(eventually([&] { return !version.isEmpty() || error; }));
    EXPECT_EQ(version, QLatin1String(contract::helperVersion));
}

TEST_F(WholeLink, AnAddressIsChangedInTheKernel)
{
    const QString address = u"02:00:00:00:be:ef"_s;
    EXPECT_FALSE(change(u"enp2s0"_s, address));
    EXPECT_EQ(NetlinkHost().info(u"enp2s0"_s).macAddress, address);
}

TEST_F(WholeLink, TheHelpersRefusalsArriveWithTheirCodes)
{
    const auto missing = change(u"eth99"_s, u"02:00:00:00:be:ef"_s);
    ASSERT_TRUE(missing);
    EXPECT_EQ(missing->code, contract::error::noSuchDevice.code);
    const auto multicast = change(u"enp2s0"_s, u"01:00:5e:00:00:01"_s);
    ASSERT_TRUE(multicast);
    EXPECT_EQ(multicast->code, contract::error::invalidAddress.code);
    authorization.chop(1);
    const auto shortened = change(u"enp2s0"_s, u"02:00:00:00:be:ef"_s);
    ASSERT_TRUE(shortened);
    EXPECT_EQ(shortened->code, contract::error::invalidAuthorization.code);
}

TEST_F(WholeLink, InstallingWhatIsThereSucceeds)
{
    bool answered = false;
    std::optional<Error> own;
    service->installHelperToolWithReply(
        [&](const std::optional<Error> &answer) {
            answered = true;
            own = answer;
        },
        failure());
    EXPECT_TRUE(eventually([&] { return answered || error; }));
    EXPECT_TRUE(answered);
    EXPECT_FALSE(own);
}

} // namespace quillon::test
