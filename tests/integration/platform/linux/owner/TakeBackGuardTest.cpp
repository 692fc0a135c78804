// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/owner/TakeBackGuard.h"

#include "MadeUpNetworkManager.h"
#include "Places.h"
#include "integration/platform/linux/Waiting.h"

#include <QDBusConnectionInterface>

#include <array>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

/// The real program as a guard, on a bus of the test's own.
class TakeBackGuardTest : public testing::Test
{
protected:
    TakeBackGuardTest() { qputenv("DBUS_SYSTEM_BUS_ADDRESS", bus.address().toUtf8()); }
    ~TakeBackGuardTest() override { qunsetenv("DBUS_SYSTEM_BUS_ADDRESS"); }

    qsizetype programsOnTheBus() const
    {
        return connection.interface()->registeredServiceNames().value().size();
    }

    PrivateBus bus;
    QDBusConnection connection = bus.connect();
    MadeUpNetworkManager networkManager{bus, MadeUpNetworkManager::Kind::WiFi};
    const QStringList command{buildFolder() + u"/src/quillon"_s, u"--take-back"_s};
};

TEST_F(TakeBackGuardTest, HasTheInterfaceTakenBackOnceItIsLeft)
{
    networkManager.isManaged = false;
    {
        const qsizetype before = programsOnTheBus();
        const TakeBackGuard guard(command, u"wlan0"_s);
        ASSERT_TRUE(eventually([&] { return programsOnTheBus() > before; }));
        EXPECT_EQ(networkManager.journal(), QStringList());
    }
    EXPECT_TRUE(eventually([this] { return networkManager.isManaged; }));
}

TEST_F(TakeBackGuardTest, LeavesAnInterfaceAloneThatIsBack)
{
    const qsizetype before = programsOnTheBus();
    {
        const TakeBackGuard guard(command, u"wlan0"_s);
        ASSERT_TRUE(eventually([&] { return programsOnTheBus() > before; }));
    }
    EXPECT_TRUE(eventually([&] { return programsOnTheBus() == before; })) << "it does not end";
    EXPECT_EQ(networkManager.journal(), QStringList());
}

TEST(TakeBackGuard, IsOnlyWhoWasStartedAsOne)
{
    std::array guard{const_cast<char *>("quillon"), const_cast<char *>("--take-back"),
        const_cast<char *>("wlan0")};
    EXPECT_EQ(TakeBackGuard::guardedDevice(3, guard.data()), u"wlan0"_s);
    EXPECT_EQ(TakeBackGuard::guardedDevice(2, guard.data()), std::nullopt);
    guard[1] = const_cast<char *>("--hidden");
    EXPECT_EQ(TakeBackGuard::guardedDevice(3, guard.data()), std::nullopt);
}

} // namespace

} // namespace quillon::test
