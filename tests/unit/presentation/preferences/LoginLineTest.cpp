// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/preferences/LoginLine.h"

#include "fakes/QtPrinting.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using Entry = LoginItem::Entry;
using Desktop = LoginItem::Desktop;
using Kind = PreferencesLine::Kind;

constexpr bool missing = true;
constexpr bool on = true;

TEST(LoginLineTest, WhereAllIsAsItShouldBeNothingIsSaid)
{
    EXPECT_EQ(loginLine(!missing, on, Entry::Ours, Desktop::StartsPrograms).text, QString());
    for (const Desktop desktop : {Desktop::StartsPrograms, Desktop::Ignores, Desktop::Unknown}) {
        EXPECT_EQ(loginLine(!missing, !on, Entry::None, desktop).text, QString());
        EXPECT_EQ(loginLine(!missing, !on, Entry::SwitchedOff, desktop).text, QString());
    }
}

TEST(LoginLineTest, ADesktopThatIgnoresTheEntryIsToldOnceItIsWanted)
{
    const PreferencesLine line = loginLine(!missing, on, Entry::Ours, Desktop::Ignores);
    EXPECT_EQ(line.kind, Kind::Notice);
    EXPECT_EQ(line.text, u"This desktop does not start programs at login by itself."_s);
}

TEST(LoginLineTest, WhatCannotBeKnownIsSaidCalmly)
{
    const PreferencesLine line = loginLine(!missing, on, Entry::Ours, Desktop::Unknown);
    EXPECT_EQ(line.kind, Kind::Hint);
    EXPECT_EQ(
        line.text, u"Whether this desktop starts programs at login cannot be told from here."_s);
}

TEST(LoginLineTest, WhatTheDesktopSwitchedOffIsShown)
{
    const PreferencesLine line =
        loginLine(!missing, on, Entry::SwitchedOff, Desktop::StartsPrograms);
    EXPECT_EQ(line.kind, Kind::Notice);
    EXPECT_TRUE(line.text.contains(u"switched off in its own list"_s));
}

TEST(LoginLineTest, AnEntryForOtherDesktopsIsToldOnceItIsWanted)
{
    const PreferencesLine line =
        loginLine(!missing, on, Entry::OtherDesktop, Desktop::StartsPrograms);
    EXPECT_EQ(line.kind, Kind::Notice);
    EXPECT_TRUE(line.text.contains(u"for other desktops only"_s));
    EXPECT_EQ(loginLine(!missing, !on, Entry::OtherDesktop, Desktop::Unknown).text, QString());
}

TEST(LoginLineTest, AnEntryThatIsNotOursMattersMoreWhereNothingIsToBeStarted)
{
    EXPECT_EQ(loginLine(!missing, on, Entry::Foreign, Desktop::Unknown).kind, Kind::Hint);
    EXPECT_EQ(loginLine(!missing, !on, Entry::Foreign, Desktop::Unknown).kind, Kind::Notice);
    EXPECT_EQ(loginLine(!missing, !on, Entry::Foreign, Desktop::Unknown).text,
        u"There is an autostart entry of your own: it is left as it is."_s);
}

TEST(LoginLineTest, WhatCouldNotBeWrittenOrRemovedFailed)
{
    EXPECT_EQ(loginLine(!missing, on, Entry::None, Desktop::StartsPrograms),
        (PreferencesLine{Kind::Failure,
            u"The autostart entry is missing or cannot be written. Switch this off and on again "
            "to have it made anew."_s}));
    EXPECT_EQ(loginLine(!missing, !on, Entry::Ours, Desktop::StartsPrograms),
        (PreferencesLine{Kind::Failure,
            u"There still is an autostart entry. Switch this on and off again to have it taken "
            "out."_s}));
}

TEST(LoginLineTest, TheMissingProgramComesBeforeAnythingElse)
{
    for (const bool isOn : {true, false}) {
        const PreferencesLine line = loginLine(missing, isOn, Entry::Ours, Desktop::Ignores);
        EXPECT_EQ(line.kind, Kind::Notice);
        EXPECT_EQ(line.text, u"The program that starts Quillon at login is not installed."_s);
    }
}

} // namespace
} // namespace quillon::test
