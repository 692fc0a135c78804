// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/wifi/Nl80211LocationAuthorization.h"

#include "fakes/FakeScheduler.h"

#include <QList>
#include <gtest/gtest.h>

#include <memory>

namespace quillon::test {

namespace {

using Status = LocationAuthorization::Status;

class Nl80211LocationAuthorizationTest : public ::testing::Test
{
protected:
    Nl80211LocationAuthorizationTest()
    {
        authorization = std::make_unique<Nl80211LocationAuthorization>(scheduler, [this] {
            ++asked;
            return access;
        });
        authorization->setDelegate(
            {.didChangeAuthorization = [this](Status status) { heard.append(status); },
                .didFailWithError = [this](int) { ++failures; }});
    }

    Status answer(WiFiAccess given)
    {
        access = given;
        heard.clear();
        authorization->requestWhenInUseAuthorization();
        scheduler.runPending();
        return heard.size() == 1 ? heard.first() : Status::NotDetermined;
    }

    FakeScheduler scheduler;
    WiFiAccess access = WiFiAccess::Granted;
    int asked = 0;
    int failures = 0;
    QList<Status> heard;
    std::unique_ptr<Nl80211LocationAuthorization> authorization;
};

} // namespace

TEST_F(Nl80211LocationAuthorizationTest, IsThereUnlessTheProcessIsKeptFromAsking)
{
    EXPECT_EQ(answer(WiFiAccess::Granted), Status::Authorized);
    EXPECT_EQ(answer(WiFiAccess::NoWireless), Status::Authorized) << "a machine without Wi-Fi";
    EXPECT_EQ(answer(WiFiAccess::Broken), Status::Authorized) << "nobody refused";
    EXPECT_EQ(answer(WiFiAccess::Refused), Status::Denied);
    EXPECT_EQ(answer(WiFiAccess::Granted), Status::Authorized) << "asked anew at each request";
    EXPECT_EQ(failures, 0);
    EXPECT_TRUE(authorization->servicesEnabled());
}

TEST_F(Nl80211LocationAuthorizationTest, IsToldInALaterTurn)
{
    authorization->requestWhenInUseAuthorization();
    EXPECT_EQ(asked, 0);
    EXPECT_TRUE(heard.isEmpty());
    scheduler.runPending();
    EXPECT_EQ(heard, QList<Status>{Status::Authorized});
}

TEST_F(Nl80211LocationAuthorizationTest, IsToldToNobodyAfterItsEnd)
{
    authorization->requestWhenInUseAuthorization();
    authorization.reset();
    scheduler.runPending();
    EXPECT_TRUE(heard.isEmpty());
    EXPECT_EQ(asked, 0);
}

TEST_F(Nl80211LocationAuthorizationTest, NeedsNoDelegate)
{
    authorization->setDelegate({});
    authorization->requestWhenInUseAuthorization();
    scheduler.runPending();
    EXPECT_EQ(asked, 1);
}

TEST_F(Nl80211LocationAuthorizationTest, TheDelegateMayTakeItsLeaveWhileItHears)
{
    authorization->setDelegate({.didChangeAuthorization =
                                    [this](Status status) {
                                        heard.append(status);
                                        authorization.reset();
                                    },
        .didFailWithError = {}});
    EXPECT_EQ(answer(WiFiAccess::Granted), Status::Authorized);
}

} // namespace quillon::test
