// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/desktop/AutostartEntry.h"

#include "fakes/QtPrinting.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

QString programOf(const QByteArray &command)
{
    return AutostartEntry::read("[Desktop Entry]\nExec=" + command + "\n").program;
}

TEST(AutostartEntryTest, WhatIsWrittenIsReadBackWhateverThePath)
{
    for (const QString &path :
        {u"/usr/libexec/quillon4/QuillonHelper"_s, u"/home/a b/Quillon Helper"_s,
            u"/odd/\"quoted\"/$HOME/`x`/Helper"_s, u"/back\\slash/Helper"_s, u"/100%/Helper"_s,
            u"/\u00fcmlaut/\U0001f98a/Helper"_s, u"/tab\there/Helper"_s}) {
        const AutostartEntry entry = AutostartEntry::read(AutostartEntry::text(path, u"Starts"_s));
        EXPECT_EQ(entry.program, path);
        EXPECT_FALSE(entry.isSwitchedOff);
    }
}

TEST(AutostartEntryTest, TheTextIsADesktopEntry)
{
    const QByteArray text =
        AutostartEntry::text(u"/usr/libexec/quillon4/QuillonHelper"_s, u"One\nline"_s);
    EXPECT_EQ(text, "[Desktop Entry]\n"
                    "Type=Application\n"
                    "Name=Quillon\n"
                    "Comment=One\\nline\n"
                    "Exec=/usr/libexec/quillon4/QuillonHelper\n"
                    "TryExec=/usr/libexec/quillon4/QuillonHelper\n"
                    "Icon=com.orvandel.Quillon4\n"
                    "NoDisplay=true\n"
                    "X-GNOME-Autostart-enabled=true\n");
}

TEST(AutostartEntryTest, EitherKeySwitchesItOff)
{
    const QByteArray entry = "[Desktop Entry]\nExec=/a\n";
    EXPECT_FALSE(AutostartEntry::read(entry + "Hidden=false\n").isSwitchedOff);
    EXPECT_TRUE(AutostartEntry::read(entry + "Hidden=true\n").isSwitchedOff);
    EXPECT_TRUE(AutostartEntry::read(entry + "Hidden = true \r\n").isSwitchedOff);
    EXPECT_TRUE(AutostartEntry::read(entry + "X-GNOME-Autostart-enabled=false\n").isSwitchedOff);
    EXPECT_FALSE(AutostartEntry::read(entry + "X-GNOME-Autostart-enabled=true\n").isSwitchedOff);
    EXPECT_FALSE(AutostartEntry::read(entry + "#Hidden=true\n").isSwitchedOff);
    EXPECT_FALSE(AutostartEntry::read(entry + "[Desktop Action x]\nHidden=true\n").isSwitchedOff);
}

TEST(AutostartEntryTest, ACommandWithArgumentsIsNoProgram)
{
    EXPECT_EQ(programOf("/a/Helper"), u"/a/Helper"_s);
    EXPECT_EQ(programOf("\"/a b/Helper\""), u"/a b/Helper"_s);
    for (const char *command : {"/a/Helper --now", "sh -c \"sleep 9; /a/Helper\"", "\"/a\" \"/b\"",
             "/a/Helper %U", "", "\"", "\"/a", "env X=1 /a/Helper"}) {
        EXPECT_EQ(programOf(command), QString()) << command;
    }
}

TEST(AutostartEntryTest, OfWhatIsNoDesktopEntryNothingIsStarted)
{
    for (const char *content : {"", "Exec=/a\n", "[Other]\nExec=/a\n", "\0\1\2", "[Desktop Entry]",
             "[Desktop Entry]\n=\nExec\n"}) {
        EXPECT_EQ(AutostartEntry::read(content), AutostartEntry()) << content;
    }
}

} // namespace
} // namespace quillon::test
