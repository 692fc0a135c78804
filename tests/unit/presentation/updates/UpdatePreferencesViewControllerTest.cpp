// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/updates/UpdatePreferencesViewController.h"

#include "unit/updates/UpdaterFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
namespace {

using Kind = UpdatePreferencesViewController::ResultKind;
using ::testing::IsEmpty;

class UpdatePreferencesViewControllerTest : public UpdaterFixture
{
protected:
    UpdatePreferencesViewControllerTest() { start(source); }

    void start(const UpdateSource &from)
    {
        pane.reset();
        create(from);
        updater->begin();
        pane.emplace(*updater, from.version);
        // As EventWiring does.
        QObject::connect(&*updater, &Updater::changed, &*pane, [this] { pane->refresh(); });
        QObject::connect(&*pane, &UpdatePreferencesViewController::changed, [this] { ++changes; });
    }
    void expectResult(const QString &text, Kind kind) const
    {
        EXPECT_EQ(state().result, text);
        EXPECT_EQ(state().resultKind, kind);
    }
    const UpdatePreferencesViewController::State &state() const { return pane->state(); }

    std::optional<UpdatePreferencesViewController> pane;
    int changes = 0;
};

TEST_F(UpdatePreferencesViewControllerTest, ShowsTheSettingsOnceItIsLoaded)
{
    settings.setBool(keys::SUEnableAutomaticChecks, true);
    EXPECT_EQ(state(), UpdatePreferencesViewController::State());
    EXPECT_EQ(changes, 0);
    pane->load();
    EXPECT_TRUE(state().isAvailable);
    EXPECT_TRUE(state().checkForUpdatesButton);
    EXPECT_FALSE(state().autoInstallButton);
    EXPECT_EQ(state().intervalPopup, 1);
    EXPECT_EQ(state().lastCheck, u"Not checked yet."_s);
    EXPECT_EQ(changes, 1);
}

TEST_F(UpdatePreferencesViewControllerTest, FollowsTheSettingsWhoeverChangesThem)
{
    pane->load();
    settings.setBool(keys::SUEnableAutomaticChecks, true);
    EXPECT_TRUE(state().checkForUpdatesButton);
    settings.setBool(keys::SUAutomaticallyUpdate, true);
    EXPECT_TRUE(state().autoInstallButton);
    settings.set(keys::SUScheduledCheckInterval, 86400);
    EXPECT_EQ(state().intervalPopup, 0);
}

TEST_F(UpdatePreferencesViewControllerTest, AnIntervalThatIsNotAmongTheTagsIsNoSelection)
{
    pane->load();
    for (const QVariant &interval : QVariantList{0, 1, 86401, -86400, 3600, u"86400"_s, true}) {
        settings.set(keys::SUScheduledCheckInterval, interval);
        EXPECT_EQ(state().intervalPopup, -1);
    }
    EXPECT_EQ(UpdatePreferencesViewController::intervals(),
        QStringList({u"Daily"_s, u"Weekly"_s, u"Monthly"_s}));
    const QList<qlonglong> tags{86400, 604800, 2592000};
    for (int index = 0; index < tags.size(); ++index) {
        settings.set(keys::SUScheduledCheckInterval, tags.at(index));
        EXPECT_EQ(state().intervalPopup, index);
    }
}

TEST_F(UpdatePreferencesViewControllerTest, TheUsersActsAreTheSettings)
{
    pane->load();
    pane->tickCheckForUpdates(true);
    pane->tickAutoInstall(true);
    pane->chooseInterval(2);
    EXPECT_EQ(settings.get(keys::SUEnableAutomaticChecks), true);
    EXPECT_EQ(settings.get(keys::SUAutomaticallyUpdate), true);
    EXPECT_EQ(settings.get(keys::SUScheduledCheckInterval).toLongLong(), 2592000);
    pane->chooseInterval(-1);
    pane->chooseInterval(3);
    EXPECT_EQ(settings.get(keys::SUScheduledCheckInterval).toLongLong(), 2592000);
}

TEST_F(UpdatePreferencesViewControllerTest, SaysWhenNothingIsNewer)
{
    pane->load();
    serve("4.0.0");
    pane->checkNow();
    EXPECT_TRUE(state().isChecking);
    EXPECT_EQ(state().result, QString());
    scheduler.runPending();
    EXPECT_FALSE(state().isChecking);
    expectResult(u"Quillon 4.0.0 is the newest version."_s, Kind::Positive);
    EXPECT_EQ(state().offer, QString());
    EXPECT_TRUE(state().lastCheck.startsWith(u"Last checked: "_s));
    EXPECT_TRUE(state().lastCheck.contains(u"2025"_s)) << state().lastCheck.toStdString();
}

TEST_F(UpdatePreferencesViewControllerTest, ShowsTheVersionOnOfferWithItsNotes)
{
    pane->load();
    serve("4.1");
    pane->checkNow();
    scheduler.runPending();
    EXPECT_EQ(state().offer, u"Quillon 4.1 is available"_s);
    EXPECT_EQ(state().offerDetails, u"This is version 4.0.0."_s);
    EXPECT_EQ(state().notes, u"Better."_s);
    EXPECT_EQ(state().page, u"https://pages.example/new"_s);
    EXPECT_EQ(state().result, QString());
    pane->openOffer();
    EXPECT_EQ(center.opened.size(), 1);
    EXPECT_EQ(state().result, QString());
}

TEST_F(UpdatePreferencesViewControllerTest, SaysWhenNothingCanBeOpened)
{
    pane->load();
    pane->openOffer();
    EXPECT_EQ(state().result, QString());
    serve("4.1");
    checkByHand();
    center.hasBrowser = false;
    pane->openOffer();
    expectResult(u"No browser could be opened."_s, Kind::Notice);
}

TEST_F(UpdatePreferencesViewControllerTest, SaysWhyALookBroughtNothing)
{
    pane->load();
    reachability.reachable = false;
    pane->checkNow();
    expectResult(u"The internet cannot be reached now."_s, Kind::Notice);
    reachability.reachable = true;
    const auto look = [this] {
        pane->checkNow();
        scheduler.runPending();
    };
    http.serve(source.feed, QByteArray("gone"), 404);
    look();
    expectResult(u"The list of versions could not be fetched."_s, Kind::Notice);
    http.serve(source.feed, page(feedText(feedItem("9.0"))));
    look();
    expectResult(u"What came is not from the authors of Quillon and was not used."_s, Kind::Danger);
    serve("4.1");
    look();
    EXPECT_EQ(state().result, QString());
    serve("4.0.5", "2025-05-01T12:00:00Z");
    look();
    expectResult(
        u"The list of versions that came is out of date and was not used."_s, Kind::Notice);
    EXPECT_EQ(state().offer, u"Quillon 4.1 is available"_s) << "what is known stays";
    settings.set(keys::SUFeedURL, u"http://pages.example/"_s);
    look();
    expectResult(u"The place to look at is not an https address."_s, Kind::Notice);
}

TEST_F(UpdatePreferencesViewControllerTest, ABuildThatDoesNotLookSaysSo)
{
    start({{}, {}, u"4.0.0"_s});
    pane->load();
    EXPECT_FALSE(state().isAvailable);
    pane->checkNow();
    pane->openOffer();
    EXPECT_THAT(http.requests(), IsEmpty());
    EXPECT_EQ(state().result, QString());
}

TEST_F(UpdatePreferencesViewControllerTest, SaysWhyABuildDoesNotLook)
{
    start({{}, {}, u"4.0.0"_s});
    pane->load();
    EXPECT_TRUE(state().absence.startsWith(u"It was built without a list of versions"_s));
    EXPECT_TRUE(state().hasSettings);
    start({{}, {}, u"4.0.0"_s, true});
    pane->load();
    EXPECT_EQ(state().absence, u"Your system's software updates bring new versions."_s);
    EXPECT_FALSE(state().hasSettings);
    start(source);
    pane->load();
    EXPECT_EQ(state().absence, QString());
    EXPECT_TRUE(state().hasSettings);
}

TEST_F(UpdatePreferencesViewControllerTest, APlaceOfTheUsersMakesItAvailable)
{
    start({{}, key.publicKey(), u"4.0.0"_s});
    pane->load();
    EXPECT_FALSE(state().isAvailable);
    settings.set(keys::SUFeedURL, source.feed.toString());
    EXPECT_TRUE(state().isAvailable);
}

} // namespace
} // namespace quillon::test
