// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/features/UpdateFeature.h"

#include "fakes/SignedFeed.h"
#include "unit/app/ProgramOnFakes.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
namespace {

/// The whole program, of a build that knows whom to ask. It is version 4.0.0.
class UpdateFeatureTest : public ProgramOnFakes
{
protected:
    UpdateFeatureTest()
    {
        machine.updateFeed = feed;
        machine.updateKey = key.publicKey();
        FakeHttpClient::Page page;
        page.body = key.sign(feedText(feedItem("4.1")));
        page.contentType = "text/xml";
        machine.http.serve(feed, page);
    }

    void optIn() { machine.settings.setBool(keys::SUEnableAutomaticChecks, true); }
    qsizetype looks() const { return machine.http.requests().count(feed); }

    const FeedKey key;
    const QUrl feed{u"https://updates.example/appcast.xml"_s};
};

TEST_F(UpdateFeatureTest, NothingIsAskedUnlessTheUserWantsIt)
{
    run();
    machine.scheduler.advance(24h * 30);
    EXPECT_EQ(looks(), 0);
}

TEST_F(UpdateFeatureTest, TheStartIsLeftAlone)
{
    optIn();
    run();
    EXPECT_EQ(looks(), 0);
    machine.scheduler.advance(1min);
    EXPECT_EQ(looks(), 1);
}

TEST_F(UpdateFeatureTest, ANewVersionIsToldToTheUserAndInThePane)
{
    optIn();
    run();
    features().updates.pane.load();
    machine.scheduler.advance(2min);
    EXPECT_EQ(features().updates.pane.state().offer, u"Quillon 4.1 is available"_s);
    bool isTold = false;
    for (const auto &shown : machine.userNotifications.everShown) {
        isTold = isTold || shown.title == u"Quillon 4.1 is available"_s;
    }
    EXPECT_TRUE(isTold);
}

TEST_F(UpdateFeatureTest, FollowsItsSettingsWhoeverChangesThem)
{
    run();
    features().updates.pane.load();
    machine.settings.changeFromOutside(keys::SUEnableAutomaticChecks, true);
    machine.settings.changeFromOutside(keys::SUAutomaticallyUpdate, true);
    machine.settings.changeFromOutside(keys::SUScheduledCheckInterval, 86400);
    machine.scheduler.runPending();
    const auto &state = features().updates.pane.state();
    EXPECT_TRUE(state.checkForUpdatesButton);
    EXPECT_TRUE(state.autoInstallButton);
    EXPECT_EQ(state.intervalPopup, 0);
    machine.scheduler.advance(2min);
    EXPECT_EQ(looks(), 1);
    EXPECT_EQ(machine.softwareCenter.opened.size(), 1);
    machine.scheduler.advance(24h);
    EXPECT_EQ(looks(), 2);
}

TEST_F(UpdateFeatureTest, LooksWhenTheNetworkIsBack)
{
    optIn();
    machine.reachability.reachable = false;
    run();
    machine.scheduler.advance(2h);
    EXPECT_EQ(looks(), 0);
    machine.reachability.reachable = true;
    machine.networkChanges.networkChanges();
    machine.scheduler.runPending();
    EXPECT_EQ(looks(), 1);
}

TEST_F(UpdateFeatureTest, ABuildThatDoesNotLookNeverDoes)
{
    machine.updateFeed = {};
    machine.updateKey = {};
    optIn();
    run();
    machine.settings.set(keys::SUFeedURL, feed.toString());
    features().updates.pane.checkNow();
    machine.scheduler.advance(24h * 30);
    EXPECT_EQ(looks(), 0);
}

} // namespace
} // namespace quillon::test
