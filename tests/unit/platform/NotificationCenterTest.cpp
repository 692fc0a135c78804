// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/NotificationCenter.h"

#include <QStringList>
#include <gtest/gtest.h>

#include <thread>

namespace quillon {

using namespace Qt::StringLiterals;
namespace {

const QString rain = u"rain"_s;

TEST(NotificationCenter, ObserversOfTheNameHearInTheOrderInWhichTheyWereAdded)
{
    NotificationCenter center;
    QStringList heard;
    center.addObserver(rain, [&](const auto &) { heard << u"first"_s; });
    center.addObserver(u"sun"_s, [&](const auto &) { heard << u"sun"_s; });
    center.addObserver(rain, [&](const auto &) { heard << u"second"_s; });
    center.post(rain);
    EXPECT_EQ(heard, QStringList({u"first"_s, u"second"_s}));
}

TEST(NotificationCenter, TheNotificationCarriesItsObjectAndUserInfo)
{
    NotificationCenter center;
    NotificationCenter::Notification heard;
    center.addObserver(rain, [&](const auto &notification) { heard = notification; });
    const int poster = 0;
    center.post(rain, &poster, {{u"drops"_s, 3}});
    EXPECT_EQ(heard.name, rain);
    EXPECT_EQ(heard.object, &poster);
    EXPECT_EQ(heard.userInfo.value(u"drops"_s).toInt(), 3);
}

TEST(NotificationCenter, ARemovedObserverHearsNothingMore)
{
    NotificationCenter center;
    int heard = 0;
    const auto token = center.addObserver(rain, [&](const auto &) { ++heard; });
    center.post(rain);
    center.removeObserver(token);
    center.removeObserver(token);
    center.post(rain);
    EXPECT_EQ(heard, 1);
}

TEST(NotificationCenter, AnObserverMayRemoveItselfAndOthers)
{
    NotificationCenter center;
    int removedHeard = 0;
    NotificationCenter::Token self = 0;
    NotificationCenter::Token other = 0;
    self = center.addObserver(rain, [&](const auto &) {
        center.removeObserver(self);
        center.removeObserver(other);
    });
    other = center.addObserver(rain, [&](const auto &) { ++removedHeard; });
    center.post(rain);
    center.post(rain);
    EXPECT_EQ(removedHeard, 0);
}

TEST(NotificationCenter, AnObserverAddedDuringAPostHearsOnlyLaterOnes)
{
    NotificationCenter center;
    int lateHeard = 0;
    bool added = false;
    center.addObserver(rain, [&](const auto &) {
        if (!std::exchange(added, true)) {
            center.addObserver(rain, [&](const auto &) { ++lateHeard; });
        }
    });
    center.post(rain);
    EXPECT_EQ(lateHeard, 0);
    center.post(rain);
    EXPECT_EQ(lateHeard, 1);
}

TEST(NotificationCenter, AnObserverMayPost)
{
    NotificationCenter center;
    QStringList heard;
    center.addObserver(rain, [&](const auto &) {
        center.post(u"flood"_s);
        heard << rain;
    });
    center.addObserver(u"flood"_s, [&](const auto &) { heard << u"flood"_s; });
    center.post(rain);
    EXPECT_EQ(heard, QStringList({u"flood"_s, rain}));
}

TEST(NotificationCenter, APostIsDeliveredOnThePostingThread)
{
    NotificationCenter center;
    std::thread::id heardOn;
    center.addObserver(rain, [&](const auto &) { heardOn = std::this_thread::get_id(); });
    std::thread poster([&] { center.post(rain); });
    const auto posterId = poster.get_id();
    poster.join();
    EXPECT_EQ(heardOn, posterId);
}

} // namespace
} // namespace quillon
