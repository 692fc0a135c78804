// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/bus/SessionBusNotificationCenter.h"

#include "contract/Interfaces.h"
#include "contract/Names.h"
#include "integration/platform/linux/Commands.h"
#include "integration/platform/linux/Waiting.h"
#include "integration/platform/linux/bus/PrivateBus.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;

namespace {

const QString name = QLatin1String(contract::helperUpdated);
const QString object = QLatin1String(contract::helperUpdatedObject);

} // namespace

class SessionBusNotificationCenterTest : public ::testing::Test
{
protected:
    PrivateBus bus;
    SessionBusNotificationCenter ours{bus.connect()};
    SessionBusNotificationCenter theirs{bus.connect()};
    int heard = 0;
    std::function<void()> hear = [this] { ++heard; };

    // Whatever was posted before has arrived when this has.
    void waitForAll()
    {
        bool arrived = false;
        const auto token = ours.addObserver(u"last"_s, QString(), [&] { arrived = true; });
        theirs.post(u"last"_s, QString());
        EXPECT_TRUE(eventually([&] { return arrived; }));
        ours.removeObserver(token);
    }
};

TEST_F(SessionBusNotificationCenterTest, ReachTheObserversOfNameAndObject)
{
    ours.addObserver(name, object, hear);
    theirs.post(name, object);
    theirs.post(name, u"com.example.Other"_s);
    theirs.post(u"Other"_s, object);
    theirs.post(name.toLower(), object);
    waitForAll();
    EXPECT_EQ(heard, 1);
}

TEST_F(SessionBusNotificationCenterTest, EveryObserverHearsUntilItIsRemoved)
{
    const auto first = ours.addObserver(name, object, hear);
    ours.addObserver(name, object, hear);
    theirs.post(name, object);
    waitForAll();
    EXPECT_EQ(heard, 2);
    ours.removeObserver(first);
    ours.removeObserver(12345);
    theirs.post(name, object);
    waitForAll();
    EXPECT_EQ(heard, 3);
}

TEST_F(SessionBusNotificationCenterTest, AnObserverMayRemoveTheNext)
{
    SessionBusNotificationCenter::Token next = 0;
    ours.addObserver(name, object, [&] { ours.removeObserver(next); });
    next = ours.addObserver(name, object, hear);
    theirs.post(name, object);
    waitForAll();
    EXPECT_EQ(heard, 0);
}

TEST_F(SessionBusNotificationCenterTest, ComeFromAnyProgramOfTheSession)
{
    ours.addObserver(name, object, hear);
    command(u"dbus-send --bus=%1 --type=signal %2 %3.%4 string:%5 string:%6"_s.arg(bus.address(),
        QLatin1String(contract::distributed::path), QLatin1String(contract::distributed::interface),
        QLatin1String(contract::distributed::posted.name), name, object));
    EXPECT_TRUE(eventually([this] { return heard == 1; }));
}

TEST_F(SessionBusNotificationCenterTest, OfAnotherShapeAreNotHeard)
{
    ours.addObserver(name, object, hear);
    QDBusConnection stranger = bus.connect();
    for (const QVariantList &contents : {QVariantList{}, QVariantList{name}, QVariantList{1, 2},
             QVariantList{name, object, u"more"_s}}) {
        QDBusMessage signal = QDBusMessage::createSignal(QLatin1String(contract::distributed::path),
            QLatin1String(contract::distributed::interface),
            QLatin1String(contract::distributed::posted.name));
        signal.setArguments(contents);
        stranger.send(signal);
    }
    waitForAll();
    EXPECT_EQ(heard, 0);
}

TEST(SessionBusNotificationCenterWithoutASession, DropsEverything)
{
    SessionBusNotificationCenter center{QDBusConnection(u"no such connection"_s)};
    center.addObserver(name, object, [] { ADD_FAILURE(); });
    center.post(name, object);
    eventually([] { return false; }, 50ms);
}

} // namespace quillon::test
