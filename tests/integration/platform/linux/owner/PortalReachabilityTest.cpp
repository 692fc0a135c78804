// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/owner/PortalReachability.h"

#include "fakes/FakeReachability.h"
#include "fakes/FakeScheduler.h"
#include "integration/platform/linux/Waiting.h"
#include "integration/platform/linux/bus/FakePeer.h"
#include "integration/platform/linux/bus/PrivateBus.h"

#include <QDBusVariant>

#include <optional>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

using namespace std::chrono_literals;

// Of NMConnectivityState.
constexpr uint none = 1;
constexpr uint portal = 2;
constexpr uint limited = 3;
constexpr uint full = 4;
const QString service = u"org.freedesktop.NetworkManager"_s;
constexpr char path[] = "/org/freedesktop/NetworkManager";

/// Hears what everybody tells.
class Listener : public QObject
{
    Q_OBJECT

public:
    int heard = 0;

public Q_SLOTS:
    void hear() { ++heard; }
};

class PortalReachabilityTest : public testing::Test
{
protected:
    void startNetworkManager(uint found)
    {
        connectivity = found;
        program = bus.open();
        networkManager.emplace(program, path, [this](const QDBusMessage &call) {
            return call.createReply(QVariant::fromValue(QDBusVariant(connectivity)));
        });
        EXPECT_TRUE(QDBusConnection(program).registerService(service));
    }
    void find(uint found)
    {
        connectivity = found;
        tell(program, {{u"Connectivity"_s, found}});
    }
    static void tell(const QString &program, const QVariantMap &changed)
    {
        auto signal = QDBusMessage::createSignal(
            QLatin1String(path), u"org.freedesktop.DBus.Properties"_s, u"PropertiesChanged"_s);
        signal << service << changed << QStringList();
        QDBusConnection(program).send(signal);
    }
    bool becomes(bool isReachable)
    {
        return eventually([&] { return reachability.isReachable() == isReachable; });
    }

    PrivateBus bus;
    uint connectivity = full;
    QString program;
    std::optional<FakePeer> networkManager;
    FakeReachability network;
    QDBusConnection connection = bus.connect();
    FakeScheduler scheduler;
    PortalReachability reachability{network, scheduler, connection};
};

TEST_F(PortalReachabilityTest, IsThatOfTheNetworkWhereNobodyLooksForPortals)
{
    EXPECT_TRUE(reachability.isReachable());
    network.reachable = false;
    EXPECT_FALSE(reachability.isReachable());
}

TEST_F(PortalReachabilityTest, EndsAtAPortalUntilTheLogIn)
{
    int changes = 0;
    reachability.watch([&changes] { ++changes; });
    startNetworkManager(portal);
    EXPECT_TRUE(becomes(false));
    EXPECT_EQ(changes, 1);
    find(full);
    EXPECT_TRUE(becomes(true));
    EXPECT_EQ(changes, 2);
    find(portal);
    EXPECT_TRUE(becomes(false));
}

TEST_F(PortalReachabilityTest, WaitsUntilItIsKnownWhetherANewNetworkHasAPortal)
{
    network.reachable = false;
    startNetworkManager(none);
    int changes = 0;
    reachability.watch([&changes] { ++changes; });
    ASSERT_TRUE(eventually([&] { return changes == 1; }));
    scheduler.advance(1min);
    EXPECT_FALSE(reachability.isReachable());

    network.reachable = true;
    EXPECT_FALSE(reachability.isReachable())
        << "NetworkManager has not looked behind the route yet";
    scheduler.advance(3s);
    find(limited);
    ASSERT_TRUE(eventually([&] { return changes == 2; }));
    EXPECT_FALSE(reachability.isReachable());
    find(portal);
    ASSERT_TRUE(eventually([&] { return changes == 3; }));
    scheduler.advance(1min);
    EXPECT_FALSE(reachability.isReachable());
    EXPECT_EQ(changes, 3);
    find(full);
    EXPECT_TRUE(becomes(true));
}

TEST_F(PortalReachabilityTest, IsThatOfTheNetworkWhereNothingIsFoundInTenSeconds)
{
    startNetworkManager(none);
    int changes = 0;
    reachability.watch([&changes] { ++changes; });
    ASSERT_TRUE(eventually([&] { return changes == 1; }));
    EXPECT_FALSE(reachability.isReachable());
    scheduler.advance(4s);
    find(limited);
    ASSERT_TRUE(eventually([&] { return changes == 2; }));
    EXPECT_FALSE(reachability.isReachable());
    scheduler.advance(5999ms);
    EXPECT_FALSE(reachability.isReachable());
    scheduler.advance(1ms);
    EXPECT_EQ(changes, 3) << "nobody else would tell that it is time";
    EXPECT_TRUE(reachability.isReachable());

    // The next network is looked at anew.
    network.reachable = false;
    EXPECT_FALSE(reachability.isReachable());
    network.reachable = true;
    EXPECT_FALSE(reachability.isReachable());
    scheduler.advance(10s);
    EXPECT_TRUE(reachability.isReachable());
}

TEST_F(PortalReachabilityTest, KnowsOfNoPortalWithoutNetworkManager)
{
    startNetworkManager(portal);
    EXPECT_TRUE(becomes(false));
    networkManager.reset();
    bus.drop(program);
    EXPECT_TRUE(becomes(true));
}

TEST_F(PortalReachabilityTest, BelievesNobodyElse)
{
    startNetworkManager(full);
    int changes = 0;
    reachability.watch([&changes] { ++changes; });
    Listener listener;
    connection.connect(QString(), QLatin1String(path), u"org.freedesktop.DBus.Properties"_s,
        u"PropertiesChanged"_s, &listener, SLOT(hear()));
    tell(bus.open(), {{u"Connectivity"_s, portal}});
    ASSERT_TRUE(eventually([&] { return listener.heard > 0; }));
    EXPECT_EQ(changes, 0);
    EXPECT_TRUE(reachability.isReachable());
}

} // namespace

} // namespace quillon::test

#include "PortalReachabilityTest.moc"
