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
    EXPECT_FALSE(progress.underWay().contains(wired));
    EXPECT_EQ(line(wired), std::nullopt);
}

TEST_F(ChangeProgressTest, AChangeIsUnderWayUntilTheHelperHasAnswered)
{
    machine.helper.changeTakes = 3s;
    changer.updateMacAddressWithAddress(wired, wanted);
    scheduler.advance(1s);
    EXPECT_TRUE(progress.underWay().contains(wired));
    EXPECT_EQ(line(wired), AddressFieldLine::changing());
    EXPECT_FALSE(progress.underWay().contains(wifi));
    scheduler.advance(5s);
    EXPECT_FALSE(progress.underWay().contains(wired));
    EXPECT_EQ(line(wired), AddressFieldLine::forResult({.isInPlace = true, .address = wanted}));
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

TEST_F(ChangeProgressTest, ItEndsWhateverBecomesOfTheHelper)
{
    for (const auto mood : {FakeHelper::Mood::Refusing, FakeHelper::Mood::Dropping,
             FakeHelper::Mood::Lying, FakeHelper::Mood::Hanging}) {
        machine.helper.mood = mood;
        progress.underWay().ask(wired, ChangeRequest::Apply);
        changer.updateMacAddressWithAddress(wired, wanted);
        scheduler.runPending();
        machine.helper.timeOut();
        scheduler.advance(1s);
        EXPECT_FALSE(progress.underWay().contains(wired)) << int(mood);
        ASSERT_TRUE(line(wired)) << int(mood);
        EXPECT_EQ(line(wired)->kind, Kind::Failure) << int(mood);
    }
    machine.helper.mood = FakeHelper::Mood::Obliging;
    machine.helper.installed = false;
    progress.underWay().ask(wired, ChangeRequest::Apply);
    changer.updateMacAddressWithAddress(wired, wanted);
    scheduler.advance(1s);
    EXPECT_FALSE(progress.underWay().contains(wired)) << "the helper is gone";
    EXPECT_EQ(line(wired)->kind, Kind::Failure);
}

TEST_F(ChangeProgressTest, ItEndsWhenTheInterfaceGoes)
{
    machine.helper.changeTakes = 3s;
    progress.underWay().ask(wired, ChangeRequest::Randomize);
    changer.updateMacAddressWithAddress(wired, wanted);
    scheduler.advance(1s);
    host.unplug(wired);
    scheduler.advance(20s);
    EXPECT_FALSE(progress.underWay().contains(wired));
    EXPECT_EQ(progress.lineFor(wired, u"02:00:00:00:00:01"_s)->kind, Kind::Failure)
        << "it does not say which address it has";
}

TEST_F(ChangeProgressTest, AResultHoldsAsLongAsTheAddressAndUntilTheUserGoesOn)
{
    changer.updateMacAddressWithAddress(wired, wanted);
    scheduler.advance(1s);
    EXPECT_EQ(progress.lineFor(wired, wanted.toLower()),
        AddressFieldLine::forResult({.isInPlace = true, .address = wanted}));
    EXPECT_EQ(progress.lineFor(wired, u"02:00:00:00:00:99"_s), std::nullopt)
        << "somebody else changed it since";
    progress.forgetResult(wired);
    EXPECT_EQ(line(wired), std::nullopt);
}

TEST_F(ChangeProgressTest, AResultWhoseAddressWasReplacedDoesNotComeBackWithIt)
{
    changer.updateMacAddressWithAddress(wired, wanted);
    scheduler.advance(1s);
    progress.seeAddress(wired, u"3C:22:FB:00:00:01"_s);
    EXPECT_TRUE(line(wired)) << "who asks has not seen the new one yet";
    progress.seeAddress(wired, wanted);
    EXPECT_TRUE(line(wired));
    progress.seeAddress(wired, u"02:00:00:00:00:99"_s);
    progress.seeAddress(wired, wanted);
    EXPECT_EQ(line(wired), std::nullopt);
}

TEST_F(ChangeProgressTest, OnlyAResultWithoutAnAddressEndsWithTheNextReading)
{
    changer.updateMacAddressWithAddress(wired, wanted);
    scheduler.advance(1s);
    progress.forgetUnreadAddress(wired);
    EXPECT_TRUE(line(wired));
    machine.helper.changeTakes = 3s;
    changer.updateMacAddressWithAddress(wired, u"02:AA:BB:CC:DD:EF"_s);
    scheduler.advance(1s);
    host.at(wired).broken = true;
    scheduler.advance(20s);
    EXPECT_EQ(line(wired), AddressFieldLine::forResult({}));
    progress.forgetUnreadAddress(wired);
    EXPECT_EQ(line(wired), std::nullopt);
}

} // namespace
} // namespace quillon::test
