// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presence/StatusItemAbsence.h"

#include "base/SettingsKeys.h"
#include "fakes/FakeNotifier.h"
#include "fakes/FakeScheduler.h"
#include "fakes/FakeSettingsStore.h"
#include "presence/Presence.h"

#include <gtest/gtest.h>

namespace quillon::test {
namespace {

using namespace std::chrono_literals;

class StatusItemAbsenceTest : public ::testing::Test
{
protected:
    StatusItemAbsenceTest()
    {
        settings.setBool(keys::showInMenu, true);
        presence.showMenuBarItem(true);
        QObject::connect(&presence, &Presence::reachChanged, [this] { absence.look(); });
        QObject::connect(&presence, &Presence::windowMinimized, [this] {
            ++minimizations;
            presence.setWindowShown(true);
        });
        QObject::connect(&presence, &Presence::minimizedWindowHidden, [this] {
            ++hidings;
            presence.setWindowShown(false);
        });
    }

    void pass(std::chrono::milliseconds time) { scheduler.advance(time); }

    FakeScheduler scheduler;
    FakeSettingsStore settings{scheduler};
    FakeNotifier notifier;
    Presence presence{settings};
    StatusItemAbsence absence{settings, scheduler, notifier, presence};
    int minimizations = 0;
    int hidings = 0;
};

TEST_F(StatusItemAbsenceTest, WhereNoPanelComesTheUserIsToldOnce)
{
    presence.setWindowShown(true);
    absence.begin();
    pass(19s);
    EXPECT_TRUE(notifier.messages().isEmpty());
    pass(2s);
    EXPECT_EQ(notifier.messages().size(), 1);
    EXPECT_EQ(minimizations, 0) << "the window is in reach already";
    presence.setWindowShown(false);
    presence.setWindowShown(true);
    pass(10min);
    EXPECT_EQ(notifier.messages().size(), 1);
}

TEST_F(StatusItemAbsenceTest, TheNextStartDoesNotTellAgain)
{
    settings.setBool(keys::statusItemAbsenceTold, true);
    absence.begin();
    pass(1min);
    EXPECT_TRUE(notifier.messages().isEmpty());
    EXPECT_EQ(minimizations, 1);
}

TEST_F(StatusItemAbsenceTest, AfterAStatusItemWasSeenItIsTellingAgain)
{
    settings.setBool(keys::statusItemAbsenceTold, true);
    absence.begin();
    presence.setStatusItemAvailable(true);
    EXPECT_FALSE(settings.getBool(keys::statusItemAbsenceTold));
    presence.setStatusItemAvailable(false);
    pass(1min);
    EXPECT_EQ(notifier.messages().size(), 1);
}

TEST_F(StatusItemAbsenceTest, APanelThatStartsAfterUsIsWaitedFor)
{
    absence.begin();
    pass(15s);
    presence.setStatusItemAvailable(true);
    pass(1min);
    EXPECT_TRUE(notifier.messages().isEmpty());
    EXPECT_EQ(minimizations, 0);
}

TEST_F(StatusItemAbsenceTest, StartedHiddenItGoesToTheTaskBarWhereNoPanelComes)
{
    absence.begin();
    pass(19s);
    EXPECT_EQ(minimizations, 0);
    pass(2s);
    EXPECT_EQ(minimizations, 1);
}

TEST_F(StatusItemAbsenceTest, APanelThatCrashesIsGivenTimeToComeBack)
{
    presence.setStatusItemAvailable(true);
    absence.begin();
    for (int crash = 0; crash < 3; ++crash) {
        presence.setStatusItemAvailable(false);
        pass(15s);
        presence.setStatusItemAvailable(true);
        pass(15s);
    }
    EXPECT_EQ(minimizations, 0);
    EXPECT_TRUE(notifier.messages().isEmpty());
}

TEST_F(StatusItemAbsenceTest, APanelThatStaysAwayLeavesNobodyStranded)
{
    presence.setStatusItemAvailable(true);
    absence.begin();
    presence.setStatusItemAvailable(false);
    pass(30s);
    EXPECT_EQ(minimizations, 1);
    presence.setWindowShown(false);
    EXPECT_EQ(minimizations, 2) << "known to be gone: at once";

    presence.setStatusItemAvailable(true);
    EXPECT_EQ(hidings, 1);
    EXPECT_EQ(minimizations, 2);
}

TEST_F(StatusItemAbsenceTest, AWindowThatItDidNotMinimizeStaysWhenThePanelIsBack)
{
    presence.setWindowShown(true);
    absence.begin();
    pass(1min);
    presence.setStatusItemAvailable(true);
    EXPECT_EQ(hidings, 0);
}

TEST_F(StatusItemAbsenceTest, SwitchedOffTheWindowComesAtOnceAndNothingIsTold)
{
    presence.setStatusItemAvailable(true);
    absence.begin();
    presence.showMenuBarItem(false);
    EXPECT_EQ(minimizations, 1);
    pass(1min);
    EXPECT_TRUE(notifier.messages().isEmpty());
    presence.showMenuBarItem(true);
    EXPECT_EQ(hidings, 1);
}

TEST_F(StatusItemAbsenceTest, SwitchedOffWhileItWaitsNothingIsTold)
{
    absence.begin();
    pass(5s);
    presence.showMenuBarItem(false);
    pass(1min);
    EXPECT_TRUE(notifier.messages().isEmpty());
}

TEST_F(StatusItemAbsenceTest, BeforeTheStartIsOverNothingHappens)
{
    presence.showMenuBarItem(false);
    pass(1min);
    EXPECT_EQ(minimizations, 0);
}

} // namespace
} // namespace quillon::test
