// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/FakeDistributedNotificationCenter.h"
#include "fakes/FakeScheduler.h"
#include "fakes/QtPrinting.h"
#include "integration/platform/linux/Waiting.h"
#include "integration/platform/linux/bus/PrivateBus.h"
#include "platform/linux/bus/SessionBusNotificationCenter.h"
#include "platform/qt/QtScheduler.h"

#include <QStringList>
#include <gtest/gtest.h>

#include <utility>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

/// A session of one program, made up and on a real bus.
struct MadeUpSession
{
    bool soon(const std::function<bool()> &condition)
    {
        scheduler.runPending();
        return condition();
    }

    FakeScheduler scheduler;
    FakeDistributedNotificationCenter center{scheduler};
};

struct BusSession
{
    bool soon(const std::function<bool()> &condition) { return eventually(condition); }

    PrivateBus bus;
    QtScheduler scheduler;
    SessionBusNotificationCenter center{bus.connect()};
};

template <typename Session>
class DistributedNotificationConformance : public ::testing::Test
{
protected:
    DistributedNotificationCenter::Token observe(const char *who)
    {
        return center.addObserver(name, object, [this, who] {
            EXPECT_TRUE(session.scheduler.isMainThread());
            heard << QString::fromUtf8(who);
        });
    }

    // Whatever was posted before has arrived when this has.
    void waitForAll()
    {
        bool arrived = false;
        const auto token = center.addObserver(u"last"_s, QString(), [&] { arrived = true; });
        center.post(u"last"_s, QString());
        EXPECT_TRUE(session.soon([&] { return arrived; }));
        center.removeObserver(token);
    }

    const QString name = u"HelperUpdated"_s;
    const QString object = u"com.example.Program"_s;
    Session session;
    DistributedNotificationCenter &center = session.center;
    QStringList heard;
};

using Sessions = ::testing::Types<MadeUpSession, BusSession>;
TYPED_TEST_SUITE(DistributedNotificationConformance, Sessions);

TYPED_TEST(DistributedNotificationConformance, APostComesBackToItsOwnProgramInALaterTurn)
{
    this->observe("a");
    this->center.post(this->name, this->object);
    EXPECT_EQ(this->heard, QStringList());
    this->waitForAll();
    EXPECT_EQ(this->heard, QStringList(u"a"_s));
}

TYPED_TEST(DistributedNotificationConformance, OnlyExactlyTheNameAndTheObjectAreHeard)
{
    this->observe("a");
    this->center.post(this->name.toLower(), this->object);
    this->center.post(this->name + u' ', this->object);
    this->center.post(this->name, QString());
    this->center.post(this->name, this->object.left(7));
    this->center.post(this->object, this->name);
    this->waitForAll();
    EXPECT_EQ(this->heard, QStringList());
}

TYPED_TEST(DistributedNotificationConformance, AnEmptyObjectIsAnObjectLikeAnother)
{
    int empty = 0;
    this->center.addObserver(this->name, QString(), [&] { ++empty; });
    this->center.post(this->name, this->object);
    this->center.post(this->name, QString());
    this->waitForAll();
    EXPECT_EQ(empty, 1);
}

TYPED_TEST(DistributedNotificationConformance, AnyTextArrivesAsItIs)
{
    int arrived = 0;
    const QString text = u"Zürich → 東京 🚆 \"%@\""_s;
    this->center.addObserver(text, text, [&] { ++arrived; });
    this->center.post(text, text);
    this->waitForAll();
    EXPECT_EQ(arrived, 1);
}

TYPED_TEST(DistributedNotificationConformance, EveryObserverHearsEveryPost)
{
    this->observe("a");
    this->observe("b");
    this->center.post(this->name, this->object);
    this->center.post(this->name, this->object);
    this->waitForAll();
    EXPECT_EQ(this->heard.count(u"a"_s), 2);
    EXPECT_EQ(this->heard.count(u"b"_s), 2);
}

TYPED_TEST(DistributedNotificationConformance, ARemovedObserverHearsNothing)
{
    const auto removed = this->observe("removed");
    this->observe("b");
    this->center.removeObserver(removed);
    this->center.removeObserver(removed);
    this->center.removeObserver(removed + 1000);
    this->center.post(this->name, this->object);
    this->waitForAll();
    EXPECT_EQ(this->heard, QStringList(u"b"_s));
}

TYPED_TEST(DistributedNotificationConformance, OneRemovedBeforeThePostArrivesHearsNothing)
{
    const auto removed = this->observe("removed");
    this->center.post(this->name, this->object);
    this->center.removeObserver(removed);
    this->waitForAll();
    EXPECT_EQ(this->heard, QStringList());
}

TYPED_TEST(DistributedNotificationConformance, AnObserverMayRemoveTheOthersAndItself)
{
    DistributedNotificationCenter::Token one = 0;
    DistributedNotificationCenter::Token other = 0;
    int calls = 0;
    one = this->center.addObserver(this->name, this->object, [&] {
        ++calls;
        this->center.removeObserver(other);
        this->center.removeObserver(one);
    });
    other = this->center.addObserver(this->name, this->object, [&] {
        ++calls;
        this->center.removeObserver(one);
        this->center.removeObserver(other);
    });
    this->center.post(this->name, this->object);
    this->center.post(this->name, this->object);
    this->waitForAll();
    EXPECT_EQ(calls, 1);
}

TYPED_TEST(DistributedNotificationConformance, AnObserverThatAnotherAddsHearsOnlyWhatComesLater)
{
    int added = 0;
    bool hasAdded = false;
    this->center.addObserver(this->name, this->object, [&] {
        if (!std::exchange(hasAdded, true)) {
            this->center.addObserver(this->name, this->object, [&] { ++added; });
        }
    });
    this->center.post(this->name, this->object);
    this->waitForAll();
    EXPECT_EQ(added, 0);
    this->center.post(this->name, this->object);
    this->waitForAll();
    EXPECT_EQ(added, 1);
}

} // namespace
} // namespace quillon::test
