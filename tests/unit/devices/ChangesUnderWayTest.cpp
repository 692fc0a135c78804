// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "devices/ChangesUnderWay.h"

#include "AddressChangeFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
namespace {

class ChangesUnderWayTest : public AddressChangeFixture
{
protected:
    ChangesUnderWay changes{*changer};
};

TEST_F(ChangesUnderWayTest, WhatWasAskedForIsUnderWayAtOnceAndEndsWithItsChange)
{
    helper.changeTakes = 3s;
    changes.ask(en1, ChangeRequest::Randomize);
    EXPECT_TRUE(changes.contains(en1));
    EXPECT_FALSE(changes.contains(en0));
    changer->updateMacAddressWithAddress(en1, wanted);
    scheduler.advance(1s);
    EXPECT_EQ(changes.requestOf(en1), ChangeRequest::Randomize);
    QList<bool> outcomes;
    QObject::connect(&changes, &ChangesUnderWay::ended,
        [&](const QString &device, const ChangeOutcome &outcome) {
            EXPECT_EQ(device, en1);
            EXPECT_FALSE(changes.contains(en1)) << "whoever is told may look";
            outcomes << outcome.isInPlace;
        });
    scheduler.advance(5s);
    EXPECT_EQ(outcomes, QList<bool>{true});
    EXPECT_EQ(changes.requestOf(en1), ChangeRequest::None);
}

TEST_F(ChangesUnderWayTest, WhatComesFromElsewhereWasAskedForByNobodyHere)
{
    helper.changeTakes = 3s;
    int beginnings = 0;
    QObject::connect(&changes, &ChangesUnderWay::began, [&] { ++beginnings; });
    changer->updateMacAddressWithAddress(en1, wanted);
    scheduler.advance(1s);
    EXPECT_TRUE(changes.contains(en1));
    EXPECT_EQ(changes.requestOf(en1), ChangeRequest::None);
    EXPECT_EQ(beginnings, 1);
}

TEST_F(ChangesUnderWayTest, OfTwoChangesTheLastOneEndsIt)
{
    helper.changeTakes = 3s;
    changer->updateMacAddressWithAddress(en1, wanted);
    scheduler.advance(1s);
    changer->updateMacAddressWithAddress(en1, u"02:AA:BB:CC:DD:EF"_s);
    int ends = 0;
    QObject::connect(&changes, &ChangesUnderWay::ended, [&] {
        ++ends;
        EXPECT_EQ(changes.contains(en1), ends == 1);
    });
    scheduler.advance(20s);
    EXPECT_EQ(ends, 2);
}

TEST_F(ChangesUnderWayTest, ItEndsAlsoWhereNothingIsToBeDone)
{
    int spared = 0;
    QObject::connect(&changes, &ChangesUnderWay::spared, [&] { ++spared; });
    changes.ask(en1, ChangeRequest::Apply);
    change(en1, host.addressOf(en1));
    EXPECT_FALSE(changes.contains(en1));
    EXPECT_EQ(spared, 1);
    change(en1, host.addressOf(en1));
    EXPECT_EQ(spared, 1) << "nobody waits for it";
}

TEST_F(ChangesUnderWayTest, ItEndsWhateverBecomesOfTheHelper)
{
    for (const auto mood : {FakeHelper::Mood::Refusing, FakeHelper::Mood::Dropping,
             FakeHelper::Mood::Lying, FakeHelper::Mood::Hanging}) {
        helper.mood = mood;
        changes.ask(en1, ChangeRequest::Apply);
        change(en1, wanted);
        helper.timeOut();
        scheduler.advance(1s);
        EXPECT_FALSE(changes.contains(en1)) << int(mood);
    }
    helper.mood = FakeHelper::Mood::Obliging;
    helper.installed = false;
    changes.ask(en1, ChangeRequest::Apply);
    change(en1, wanted);
    EXPECT_FALSE(changes.contains(en1)) << "the helper is gone";
}

TEST_F(ChangesUnderWayTest, ItEndsWhenTheInterfaceGoes)
{
    helper.changeTakes = 3s;
    changes.ask(en1, ChangeRequest::Randomize);
    changer->updateMacAddressWithAddress(en1, wanted);
    scheduler.advance(1s);
    host.unplug(en1);
    scheduler.advance(20s);
    EXPECT_FALSE(changes.contains(en1));
}

} // namespace
} // namespace quillon::test
