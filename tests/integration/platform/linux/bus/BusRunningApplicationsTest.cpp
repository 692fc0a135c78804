// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/bus/BusRunningApplications.h"

#include "contract/Names.h"
#include "integration/platform/linux/Waiting.h"
#include "integration/platform/linux/bus/PrivateBus.h"

#include <QElapsedTimer>
#include <gtest/gtest.h>

namespace quillon::test {

TEST(BusRunningApplicationsTest, AreThoseWhoseNameIsOwned)
{
    PrivateBus bus;
    BusRunningApplications running(bus.connect());
    const QString loginHelper = QLatin1String(contract::loginHelperName);
    EXPECT_FALSE(running.isRunning(loginHelper));
    const QString item = bus.open();
    QDBusConnection(item).registerService(loginHelper);
    EXPECT_TRUE(running.isRunning(loginHelper));
    bus.drop(item);
    EXPECT_TRUE(eventually([&] { return !running.isRunning(loginHelper); }));
}

TEST(BusRunningApplicationsTest, AreUnknownWithoutASession)
{
    PrivateBus bus;
    BusRunningApplications running(bus.connect());
    bus.stop();
    QElapsedTimer time;
    time.start();
    EXPECT_FALSE(running.isRunning(QLatin1String(contract::loginHelperName)));
    EXPECT_LT(time.elapsed(), 24'000) << "a call without an answer ends after 25 s";
}

} // namespace quillon::test
