// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/window/ChangeProgress.h"

#include "unit/presentation/DeviceModelsFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
namespace {

using Kind = AddressFieldLine::Kind;

class ChangeProgressTest : public DeviceModelsFixture
{
protected:
    std::optional<AddressFieldLine> line(const QString &device)
    {
        return progress.lineFor(device, addressOf(device));
    }

    const QString wanted = u"02:AA:BB:CC:DD:EE"_s;
    ChangeProgress progress{changer};
};

TEST_F(ChangeProgressTest, SaysNothingBeforeTheFirstChange)
{
    EXPECT_FALSE(progress.isUnderWay(wired));
    EXPECT_EQ(line(wired), std::nullopt);
}

TEST_F(ChangeProgressTest, AChangeIsUnderWayUntilTheHelperHasAnswered)
{
    machine.helper.changeTakes = 3s;
    changer.updateMacAddressWithAddress(wired, wanted);
    scheduler.advance(1s);
    EXPECT_TRUE(progress.isUnderWay(wired));
    EXPECT_EQ(line(wired), AddressFieldLine::changing());
    EXPECT_FALSE(progress.isUnderWay(wifi));
    scheduler.advance(5s);
    EXPECT_FALSE(progress.isUnderWay(wired));
    EXPECT_EQ(line(wired), AddressFieldLine::forResult(true, {}));
}

TEST_F(ChangeProgressTest, OfTwoChangesTheLastOneEndsIt)
{
    machine.helper.changeTakes = 3s;
    changer.updateMacAddressWithAddress(wired, wanted);
    scheduler.advance(1s);
    changer.updateMacAddressWithAddress(wired, u"02:AA:BB:CC:DD:EF"_s);
    int ends = 0;
    QObject::connect(&changer, &AddressChanger::changeEnded, [&] {
        ++ends;
        EXPECT_EQ(progress.isUnderWay(wired), ends == 1);
    });
    scheduler.advance(20s);
    EXPECT_EQ(ends, 2);
}

TEST_F(ChangeProgressTest, SaysWhyAnAddressWasNotChanged)
{
    machine.helper.mood = FakeHelper::Mood::Refusing;
    changer.updateMacAddressWithAddress(wired, wanted);
    scheduler.advance(1s);
    EXPECT_EQ(
        line(wired), (AddressFieldLine{Kind::Failure,
                         u"Not changed: Please make sure you have installed the HelperTool."_s}));
}

TEST_F(ChangeProgressTest, AResultHoldsAsLongAsTheAddressAndUntilTheUserGoesOn)
{
    changer.updateMacAddressWithAddress(wired, wanted);
    scheduler.advance(1s);
    EXPECT_EQ(progress.lineFor(wired, wanted.toLower()), AddressFieldLine::forResult(true, {}));
    EXPECT_EQ(progress.lineFor(wired, u"02:00:00:00:00:99"_s), std::nullopt)
        << "somebody else changed it since";
    progress.forgetResult(wired);
    EXPECT_EQ(line(wired), std::nullopt);
}

} // namespace
} // namespace quillon::test
