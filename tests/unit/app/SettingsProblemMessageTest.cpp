// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/SettingsProblemMessage.h"

#include "platform/SettingsProblem.h"

#include <gtest/gtest.h>

namespace quillon::test {
namespace {

const QString path = QStringLiteral("/settings.plist");
const QString kept = QStringLiteral("/settings.plist.damaged-1");

SettingsProblemMessage messageOf(SettingsProblem::Kind kind, const QString &keptPath = {})
{
    return settingsProblemMessage({kind, path, keptPath, {}});
}

TEST(SettingsProblemMessage, ADamagedFileIsToldWithThePlaceWhereItIsKept)
{
    const auto message = messageOf(SettingsProblem::Kind::Damaged, kept);
    EXPECT_EQ(message.title, QStringLiteral("Settings were damaged"));
    EXPECT_TRUE(message.body.contains(kept));
}

TEST(SettingsProblemMessage, ADamagedFileThatCouldNotBeSetAsideIsToldAsLeftAlone)
{
    const auto message = messageOf(SettingsProblem::Kind::Damaged);
    EXPECT_EQ(message.title, QStringLiteral("Settings are damaged"));
    EXPECT_TRUE(message.body.contains(path));
    EXPECT_TRUE(message.body.contains(QStringLiteral("left as it was")));
}

TEST(SettingsProblemMessage, AnUnreadableFileIsToldAsLeftAlone)
{
    const auto message = messageOf(SettingsProblem::Kind::Unreadable);
    EXPECT_EQ(message.title, QStringLiteral("Settings cannot be read"));
    EXPECT_TRUE(message.body.contains(path));
}

TEST(SettingsProblemMessage, AFailedWriteSaysWhyAndThatChangesDoNotLast)
{
    const auto readOnly = messageOf(SettingsProblem::Kind::NotWritable);
    const auto full = messageOf(SettingsProblem::Kind::DiskFull);
    EXPECT_EQ(readOnly.title, full.title) << "the newer message replaces the older one";
    EXPECT_TRUE(readOnly.body.contains(QStringLiteral("permissions")));
    EXPECT_TRUE(full.body.contains(QStringLiteral("no room")));
    for (const auto &message : {readOnly, full}) {
        EXPECT_TRUE(message.body.contains(QStringLiteral("until Quillon quits")));
        EXPECT_TRUE(message.body.contains(path));
    }
}

} // namespace
} // namespace quillon::test
