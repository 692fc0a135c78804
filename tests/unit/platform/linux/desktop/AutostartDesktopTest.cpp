// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/desktop/AutostartDesktop.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using Desktop = LoginItem::Desktop;

TEST(AutostartDesktopTest, DesktopsWithASessionManagerStartPrograms)
{
    for (const QString &names : {u"GNOME"_s, u"ubuntu:GNOME"_s, u"KDE"_s, u"XFCE"_s, u"xfce"_s,
             u"X-Cinnamon"_s, u"LXQt"_s, u"LXDE"_s, u"MATE"_s, u"Budgie:GNOME"_s}) {
        EXPECT_EQ(autostartDesktop(names, false), Desktop::StartsPrograms) << qPrintable(names);
    }
}

TEST(AutostartDesktopTest, PlainWindowManagersDoNotUnlessSystemdDoes)
{
    for (const QString &names : {u"sway"_s, u"i3"_s, u"Hyprland"_s, u"sway:wlroots"_s}) {
        EXPECT_EQ(autostartDesktop(names, false), Desktop::Ignores) << qPrintable(names);
        EXPECT_EQ(autostartDesktop(names, true), Desktop::StartsPrograms) << qPrintable(names);
    }
}

TEST(AutostartDesktopTest, WhatNobodyKnowsIsNotGuessed)
{
    for (const QString &names : {QString(), u":"_s, u"Openbox"_s, u"MyDesktop"_s, u"GNOMEish"_s}) {
        EXPECT_EQ(autostartDesktop(names, false), Desktop::Unknown) << qPrintable(names);
    }
    EXPECT_EQ(autostartDesktop({}, true), Desktop::StartsPrograms);
}

} // namespace
} // namespace quillon::test
