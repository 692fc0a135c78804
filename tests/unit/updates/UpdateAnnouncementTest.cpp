// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "updates/UpdateAnnouncement.h"

#include "base/SettingsKeys.h"
#include "fakes/FakeNotifier.h"
#include "fakes/FakeScheduler.h"
#include "fakes/FakeSettingsStore.h"
#include "fakes/FakeSoftwareCenter.h"
#include "fakes/LogCapture.h"
#include "fakes/QtPrinting.h"

#include <gmock/gmock.h>

#include <optional>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const QUrl page(u"https://pages.example/4.1"_s);

UpdateRelease release(const QString &version)
{
    return {UpdateVersion::fromText(version).value_or(UpdateVersion()), page, u"Better."_s};
}

class UpdateAnnouncementTest : public ::testing::Test
{
protected:
    FakeScheduler scheduler;
    FakeSettingsStore settings{scheduler};
    FakeNotifier notifier;
    FakeSoftwareCenter center;
    std::optional<UpdateAnnouncement> announcement{std::in_place, settings, notifier, center};
};

TEST_F(UpdateAnnouncementTest, TellsOfAVersionOnce)
{
    announcement->tell(release(u"4.1"_s));
    ASSERT_EQ(notifier.questions.size(), 1);
    EXPECT_EQ(notifier.questions.first().title, u"Quillon 4.1 is available"_s);
    EXPECT_EQ(
        notifier.questions.first().body, u"Better.\nWhat is new is in Preferences › Updates."_s);
    announcement->tell(release(u"4.1"_s));
    announcement.emplace(settings, notifier, center);
    announcement->tell(release(u"4.1"_s));
    EXPECT_EQ(notifier.questionsEver, 1);
    announcement->tell(release(u"4.2"_s));
    EXPECT_EQ(notifier.questionsEver, 2);
    EXPECT_THAT(center.opened, IsEmpty());
}

TEST_F(UpdateAnnouncementTest, NotesMayBeMissingOrLong)
{
    UpdateRelease update = release(u"4.1"_s);
    update.notes.clear();
    announcement->tell(update);
    EXPECT_EQ(notifier.questions.first().body, u"What is new is in Preferences › Updates."_s);
    update = release(u"4.2"_s);
    update.notes = u"Better. "_s.repeated(8000);
    announcement->tell(update);
    EXPECT_LT(notifier.questions.first().body.size(), 400);
    EXPECT_TRUE(notifier.questions.first().body.contains(u"\u2026\nWhat is new"_s));
}

TEST_F(UpdateAnnouncementTest, DoesNotTellWhatTheUserHasSeen)
{
    announcement->tell(release(u"4.1"_s));
    announcement->wasSeen(release(u"4.2"_s));
    EXPECT_TRUE(notifier.questions.isEmpty());
    announcement->tell(release(u"4.2"_s));
    EXPECT_EQ(notifier.questionsEver, 1);
}

TEST_F(UpdateAnnouncementTest, TheMessageGoesOnceTheUserSeesIt)
{
    announcement->tell(release(u"4.1"_s));
    announcement->wasSeen(release(u"4.1"_s));
    EXPECT_TRUE(notifier.questions.isEmpty());
}

TEST_F(UpdateAnnouncementTest, TheMessageLeadsToThePage)
{
    announcement->tell(release(u"4.1"_s));
    notifier.choose(u"softwareUpdate"_s, u"Open Page"_s);
    EXPECT_THAT(center.opened, ElementsAre(page));
}

TEST_F(UpdateAnnouncementTest, AnAnswerThatComesTooLateDoesNothing)
{
    announcement->tell(release(u"4.1"_s));
    const Question asked = notifier.questions.first();
    announcement.reset();
    EXPECT_TRUE(notifier.questions.isEmpty());
    asked.actions.first().chosen();
    EXPECT_THAT(center.opened, IsEmpty());
}

TEST_F(UpdateAnnouncementTest, OpensThePageAtOnceWhereTheUserWantsThat)
{
    settings.setBool(keys::SUAutomaticallyUpdate, true);
    announcement->tell(release(u"4.1"_s));
    announcement->tell(release(u"4.1"_s));
    EXPECT_THAT(center.opened, ElementsAre(page));
    EXPECT_EQ(notifier.questionsEver, 1);
}

TEST_F(UpdateAnnouncementTest, PrefersTheSoftwareCenter)
{
    center.hasOwnPage = true;
    EXPECT_TRUE(announcement->open(release(u"4.1"_s)));
    EXPECT_EQ(center.ownPagesOpened, 1);
    EXPECT_THAT(center.opened, IsEmpty());
}

TEST_F(UpdateAnnouncementTest, SaysWhenNothingCanBeOpened)
{
    const LogCapture log;
    center.hasBrowser = false;
    EXPECT_FALSE(announcement->open(release(u"4.1"_s)));
    EXPECT_EQ(LogCapture::taken().size(), 1);
}

TEST_F(UpdateAnnouncementTest, ASettingOfAnotherTypeMeansNothingWasTold)
{
    settings.set(keys::updateToldVersion, 7);
    announcement->tell(release(u"4.1"_s));
    EXPECT_EQ(notifier.questionsEver, 1);
}

} // namespace
} // namespace quillon::test
