// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "contract/Names.h"
#include "fakes/FakeHelper.h"
#include "fakes/FakeNetworkHost.h"
#include "fakes/FakeScheduler.h"
#include "fakes/QtPrinting.h"
#include "integration/platform/linux/Waiting.h"
#include "platform/linux/GetrandomSource.h"
#include "platform/linux/bus/DBusHelperLink.h"
#include "platform/linux/netlink/NetlinkHost.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <gtest/gtest.h>

#include <csignal>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using namespace std::chrono_literals;

/// A machine with an installed helper, made up.
struct MadeUp
{
    MadeUp() { host.plug({u"Ethernet"_s, u"enp2s0"_s, {}, u"3c:22:fb:00:00:02"_s, {}}); }

    QString addressOf(const QString &device) { return host.info(device).macAddress; }
    void stopService() { link.serviceHangs = true; }
    void waitUntilCallsAreOut() { scheduler.runPending(); }
    void killService()
    {
        link.serviceHangs = false;
        link.dropService();
    }
    void settle() { scheduler.runPending(); }
    bool soon(const std::function<bool()> &condition)
    {
        settle();
        return condition();
    }

    FakeScheduler scheduler;
    FakeNetworkHost host;
    FakeHelper link{scheduler, host};
};

/// The same with the real service and helper, polkit and the kernel, for an ordinary user.
struct Installed
{
    static qint64 serviceProcess()
    {
        // The bus answers in order: it has passed on every call that was made before.
        return QDBusConnection::sessionBus()
            .interface()
            ->servicePid(QLatin1String(contract::serviceName))
            .value();
    }

    QString addressOf(const QString &device) { return NetlinkHost().info(device).macAddress; }
    void stopService() { signalService(SIGSTOP); }
    void waitUntilCallsAreOut() { serviceProcess(); }
    void killService() { signalService(SIGKILL); }
    void settle()
    {
        eventually([] { return false; }, 50ms);
    }
    bool soon(const std::function<bool()> &condition) { return eventually(condition); }

    static void signalService(int number)
    {
        const qint64 process = serviceProcess();
        ASSERT_GT(process, 1);
        ASSERT_EQ(::kill(static_cast<pid_t>(process), number), 0);
    }

    GetrandomSource random;
    DBusHelperLink link{random};
};

/// How one call ended.
struct Outcome
{
    int replies = 0;
    int failures = 0;
    std::optional<Error> refusal;
    QString text;
    QByteArray authorization;

    bool ended() const { return replies + failures > 0; }
    ErrorHandler failed()
    {
        return [this](const Error &) { ++failures; };
    }
    ErrorReply reply()
    {
        return [this](const std::optional<Error> &error) {
            ++replies;
            refusal = error;
        };
    }
    std::function<void(const QString &)> version()
    {
        return [this](const QString &answer) {
            ++replies;
            text = answer;
        };
    }
    std::function<void(const std::optional<QString> &, const QByteArray &)> endpoint()
    {
        return [this](const std::optional<QString> &answer, const QByteArray &data) {
            ++replies;
            text = answer.value_or(QString());
            authorization = data;
        };
    }
};

template <typename Fixture>
class HelperLinkConformance : public ::testing::Test
{
protected:
    std::shared_ptr<XPCServiceConnection> service()
    {
        auto connection = link.connectToService(QLatin1String(contract::serviceName));
        connection->resume();
        return connection;
    }
    /// How a call ends that `ask` makes, a function of the outcome.
    template <typename Ask>
    Outcome outcomeOf(Ask ask)
    {
        Outcome outcome;
        ask(outcome);
        EXPECT_FALSE(outcome.ended()) << "never before the call returns";
        expectEndedOnce(outcome);
        return outcome;
    }
    Outcome askEndpoint(XPCServiceConnection &connection)
    {
        return outcomeOf([&](Outcome &outcome) {
            connection.connectWithEndpointAndAuthorizationReply(
                outcome.endpoint(), outcome.failed());
        });
    }
    // With the authorization that belongs to it.
    std::shared_ptr<HelperToolConnection> helper()
    {
        const Outcome given = askEndpoint(*service());
        EXPECT_EQ(given.replies, 1);
        authorization = given.authorization;
        auto connection = link.connectToListenerEndpoint(given.text);
        connection->resume();
        return connection;
    }
    Outcome askVersion(HelperToolConnection &connection)
    {
        return outcomeOf([&](Outcome &outcome) {
            connection.getVersionWithReply(outcome.version(), outcome.failed());
        });
    }
    Outcome change(HelperToolConnection &connection, const QString &where, const QString &wanted)
    {
        return outcomeOf([&](Outcome &outcome) {
            connection.changeAddressOfDeviceToAddressDeviceIsWiFiAuthorizationWithReply(
                where, wanted, false, authorization, outcome.reply(), outcome.failed());
        });
    }
    void expectRefused(const Outcome &outcome, const contract::ErrorName &error)
    {
        EXPECT_EQ(outcome.replies, 1) << error.name;
        ASSERT_TRUE(outcome.refusal) << error.name;
        EXPECT_EQ(outcome.refusal->domain, QLatin1String(error.name));
        EXPECT_EQ(outcome.refusal->code, error.code);
    }
    void expectEndedOnce(const Outcome &outcome)
    {
        EXPECT_TRUE(machine.soon([&] { return outcome.ended(); }));
        machine.settle();
        EXPECT_EQ(outcome.replies + outcome.failures, 1);
    }

    const QString device = u"enp2s0"_s;
    const QString address = u"02:00:00:00:be:0f"_s;
    Fixture machine;
    HelperLink &link = machine.link;
    QByteArray authorization;
};

using Fixtures = ::testing::Types<MadeUp, Installed>;
TYPED_TEST_SUITE(HelperLinkConformance, Fixtures);

TYPED_TEST(HelperLinkConformance, AnAuthorizationIsThirtyTwoBytesFreshEachTime)
{
    const auto first = this->link.createAuthorization();
    const auto second = this->link.createAuthorization();
    ASSERT_TRUE(first && second);
    EXPECT_EQ(first.value().size(), 32);
    EXPECT_EQ(second.value().size(), 32);
    EXPECT_NE(first.value(), second.value());
}

TYPED_TEST(HelperLinkConformance, TheServiceGivesAnEndpointAndThirtyTwoBytes)
{
    const auto service = this->service();
    service->setupAuthorizationRights();
    const Outcome given = this->askEndpoint(*service);
    EXPECT_EQ(given.replies, 1);
    EXPECT_FALSE(given.text.isEmpty());
    EXPECT_EQ(given.authorization.size(), 32);
}

TYPED_TEST(HelperLinkConformance, TheHelperTellsItsVersion)
{
    const auto helper = this->helper();
    const Outcome told = this->askVersion(*helper);
    EXPECT_EQ(told.replies, 1);
    EXPECT_EQ(told.text, u"2.0"_s);
}

TYPED_TEST(HelperLinkConformance, AChangeTakes)
{
    const auto helper = this->helper();
    const Outcome changed = this->change(*helper, this->device, u"2:0:0:0:BE:f"_s);
    EXPECT_EQ(changed.replies, 1);
    EXPECT_FALSE(changed.refusal);
    EXPECT_EQ(this->machine.addressOf(this->device), this->address);
}

TYPED_TEST(HelperLinkConformance, WhatCannotBeDoneIsRefusedByName)
{
    const auto helper = this->helper();
    const QString before = this->machine.addressOf(this->device);
    this->expectRefused(
        this->change(*helper, u"eth99"_s, this->address), contract::error::noSuchDevice);
    this->expectRefused(
        this->change(*helper, u"../enp2s0"_s, this->address), contract::error::invalidDevice);
    for (const char *bad : {"01:00:5e:00:00:01", "00:00:00:00:00:00", "02:00:00:00:be", ""}) {
        this->expectRefused(this->change(*helper, this->device, QLatin1String(bad)),
            contract::error::invalidAddress);
    }
    this->authorization.chop(1);
    this->expectRefused(
        this->change(*helper, this->device, this->address), contract::error::invalidAuthorization);
    EXPECT_EQ(this->machine.addressOf(this->device), before);
}

TYPED_TEST(HelperLinkConformance, InstallingWhatIsInstalledSucceeds)
{
    const auto service = this->service();
    Outcome installed;
    service->installHelperToolWithReply(installed.reply(), installed.failed());
    this->expectEndedOnce(installed);
    EXPECT_EQ(installed.replies, 1);
    EXPECT_FALSE(installed.refusal);
}

TYPED_TEST(HelperLinkConformance, BeforeItIsResumedAConnectionCarriesNothing)
{
    const QString endpoint = this->askEndpoint(*this->service()).text;
    const auto helper = this->link.connectToListenerEndpoint(endpoint);
    EXPECT_EQ(this->askVersion(*helper).failures, 1);
    helper->resume();
    EXPECT_EQ(this->askVersion(*helper).replies, 1);
}

TYPED_TEST(HelperLinkConformance, AHelperThatIsGoneEndsEveryCallInItsErrorHandlerOnce)
{
    this->helper();
    const QString before = this->machine.addressOf(this->device);
    const auto gone = this->link.connectToListenerEndpoint(u":1.999999"_s);
    int invalidated = 0;
    gone->setInvalidationHandler([&] { ++invalidated; });
    gone->resume();
    EXPECT_EQ(invalidated, 0);
    EXPECT_EQ(this->askVersion(*gone).failures, 1);
    EXPECT_TRUE(this->machine.soon([&] { return invalidated == 1; }));
    EXPECT_EQ(this->change(*gone, this->device, u"02:00:00:00:be:99"_s).failures, 1);
    Outcome uninstalled;
    gone->uninstallWithAuthorizationAndReply(
        this->authorization, uninstalled.reply(), uninstalled.failed());
    EXPECT_FALSE(uninstalled.ended());
    this->expectEndedOnce(uninstalled);
    EXPECT_EQ(uninstalled.failures, 1);
    gone->resume();
    EXPECT_EQ(this->askVersion(*gone).failures, 1) << "it is not opened again";
    EXPECT_EQ(invalidated, 1);
    EXPECT_EQ(this->machine.addressOf(this->device), before);
}

TYPED_TEST(HelperLinkConformance, AServiceThatDiesEndsItsCallsAndItsConnectionOnce)
{
    const auto service = this->service();
    this->askEndpoint(*service);
    int invalidated = 0;
    service->setInvalidationHandler([&] { ++invalidated; });
    this->machine.stopService();
    Outcome pending;
    service->connectWithEndpointAndAuthorizationReply(pending.endpoint(), pending.failed());
    this->machine.waitUntilCallsAreOut();
    EXPECT_FALSE(pending.ended());
    this->machine.killService();
    this->expectEndedOnce(pending);
    EXPECT_EQ(pending.failures, 1);
    EXPECT_TRUE(this->machine.soon([&] { return invalidated == 1; }));

    service->resume();
    EXPECT_EQ(this->askEndpoint(*service).failures, 1) << "it is not opened again";
    Outcome installed;
    service->installHelperToolWithReply(installed.reply(), installed.failed());
    this->expectEndedOnce(installed);
    EXPECT_EQ(installed.failures, 1);
    EXPECT_EQ(invalidated, 1);
}

TYPED_TEST(HelperLinkConformance, ANewConnectionReachesTheServiceThatIsStartedAnew)
{
    this->askEndpoint(*this->service());
    this->machine.killService();
    this->machine.settle();
    const Outcome given = this->askEndpoint(*this->service());
    EXPECT_EQ(given.replies, 1);
    EXPECT_FALSE(given.text.isEmpty());
    EXPECT_EQ(given.authorization.size(), 32);
}

TYPED_TEST(HelperLinkConformance, AServiceThatDoesNotExistEndsInTheErrorHandler)
{
    const auto service = this->link.connectToService(u"com.example.Nobody"_s);
    service->resume();
    EXPECT_EQ(this->askEndpoint(*service).failures, 1);
}

} // namespace
} // namespace quillon::test
