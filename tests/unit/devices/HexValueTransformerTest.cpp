// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "devices/HexValueTransformer.h"

#include "base/SettingsKeys.h"
#include "fakes/FakeScheduler.h"
#include "fakes/FakeSettingsStore.h"

#include <gtest/gtest.h>

namespace quillon::test {
namespace {

class HexValueTransformerTest : public ::testing::Test
{
protected:
    FakeScheduler scheduler;
    FakeSettingsStore settings{scheduler};
    HexValueTransformer displayCase{settings};
};

TEST_F(HexValueTransformerTest, IsUpperUnlessTheUserWantsLower)
{
    EXPECT_EQ(displayCase.transformedValue(QStringLiteral("aa:Bb:0c")), QLatin1String("AA:BB:0C"));
    settings.setBool(keys::lowerCaseHEX, true);
    EXPECT_EQ(displayCase.transformedValue(QStringLiteral("aa:Bb:0C")), QLatin1String("aa:bb:0c"));
    settings.setBool(keys::lowerCaseHEX, false);
    EXPECT_EQ(displayCase.transformedValue(QStringLiteral("aa:Bb:0c")), QLatin1String("AA:BB:0C"));
}

TEST_F(HexValueTransformerTest, NeitherTrimsNorInsertsColons)
{
    EXPECT_EQ(displayCase.transformedValue(QStringLiteral(" a1b2c3d4e5f6\n")),
        QLatin1String(" A1B2C3D4E5F6\n"));
    EXPECT_EQ(displayCase.transformedValue(QString()), QString());
}

} // namespace
} // namespace quillon::test
