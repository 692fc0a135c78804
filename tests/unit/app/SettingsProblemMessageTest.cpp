// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/SettingsProblemMessage.h"

#include "platform/SettingsProblem.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

const QString path = u"/settings.plist"_s;
const QString kept = u"/settings.plist.damaged-1"_s;

SettingsProblemMessage messageOf(SettingsProblem::Kind kind, const QString &keptPath = {})
{
    return settingsProblemMessage({kind, path, keptPath, {}});
}

TEST(SettingsProblemMessage, ADamagedFileIsToldWithThePlaceWhereItIsKept)
{
    const auto message = messageOf(SettingsProblem::Kind::Damaged, kept);
    EXPECT_EQ(message.title, u"Settings were damaged"_s);
    EXPECT_TRUE(message.body.contains(kept));
}

TEST(SettingsProblemMessage, ADamagedFileThatCouldNotBeSetAsideIsToldAsLeftAlone)
{
    const auto message = messageOf(SettingsProblem::Kind::Damaged);
    EXPECT_EQ(message.title, u"Settings are damaged"_s);
    EXPECT_TRUE(message.body.contains(path));
    EXPECT_TRUE(message.body.contains(u"left as it was"_s));
}

TEST(SettingsProblemMessage, AnUnreadableFileIsToldAsLeftAlone)
{
    const auto message = messageOf(SettingsProblem::Kind::Unreadable);
    EXPECT_EQ(message.title, u"Settings cannot be read"_s);
    EXPECT_TRUE(message.body.contains(path));
}

TEST(SettingsProblemMessage, AFailedWriteSaysWhyAndThatChangesDoNotLast)
{
    const auto readOnly = messageOf(SettingsProblem::Kind::NotWritable);
    const auto full = messageOf(SettingsProblem::Kind::DiskFull);
    EXPECT_EQ(readOnly.title, full.title) << "the newer message replaces the older one";
    EXPECT_TRUE(readOnly.body.contains(u"permissions"_s));
    EXPECT_TRUE(full.body.contains(u"no room"_s));
    for (const auto &message : {readOnly, full}) {
        EXPECT_TRUE(message.body.contains(u"until Quillon quits"_s));
        EXPECT_TRUE(message.body.contains(path));
    }
}

} // namespace
} // namespace quillon::test
