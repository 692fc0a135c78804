// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "devices/HexValueTransformer.h"

#include "base/SettingsKeys.h"
#include "fakes/FakeScheduler.h"
#include "fakes/FakeSettingsStore.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
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
    EXPECT_EQ(displayCase.transformedValue(u"aa:Bb:0c"_s), "AA:BB:0C"_L1);
    settings.setBool(keys::lowerCaseHEX, true);
    EXPECT_EQ(displayCase.transformedValue(u"aa:Bb:0C"_s), "aa:bb:0c"_L1);
    settings.setBool(keys::lowerCaseHEX, false);
    EXPECT_EQ(displayCase.transformedValue(u"aa:Bb:0c"_s), "AA:BB:0C"_L1);
}

TEST_F(HexValueTransformerTest, NeitherTrimsNorInsertsColons)
{
    EXPECT_EQ(displayCase.transformedValue(u" a1b2c3d4e5f6\n"_s), " A1B2C3D4E5F6\n"_L1);
    EXPECT_EQ(displayCase.transformedValue(QString()), QString());
}

} // namespace
} // namespace quillon::test
