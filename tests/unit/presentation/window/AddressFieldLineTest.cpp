// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/window/AddressFieldLine.h"

#include "devices/ChangeOutcome.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using Kind = AddressFieldLine::Kind;

const QString current = u"02:00:5E:00:53:01"_s;

AddressFieldLine lineFor(const QString &text)
{
    return AddressFieldLine::forText(text, current);
}

TEST(AddressFieldLineTest, SaysWhatTheAddressInTheFieldIs)
{
    const AddressFieldLine inUse{
        Kind::Hint, u"This is the address in use. Type or drop another to change it."_s};
    EXPECT_EQ(lineFor(current), inUse);
    EXPECT_EQ(lineFor(current.toLower()), inUse);
    EXPECT_EQ(lineFor(QString()), inUse) << "it is about to come back";
    EXPECT_EQ(lineFor(u"02:00:5E:00:53:02"_s),
        (AddressFieldLine{Kind::Hint, u"Press Return or Apply to use this address."_s}));
}

TEST(AddressFieldLineTest, SaysWhatIsMissing)
{
    const AddressFieldLine incomplete{Kind::Hint, u"A MAC address has 12 hexadecimal digits."_s};
    EXPECT_EQ(lineFor(u"0"_s), incomplete);
    EXPECT_EQ(lineFor(u"02:00:5E:00:53:0"_s), incomplete);
}

TEST(AddressFieldLineTest, SaysHowDigitsWithoutColonsAreTaken)
{
    EXPECT_EQ(lineFor(u"02005E00530A"_s),
        (AddressFieldLine{Kind::Notice, u"Write it with colons: 02:00:5E:00:53:0A."_s}));
    EXPECT_EQ(lineFor(u"02005E00530"_s).kind, Kind::Hint) << "one is missing";
    EXPECT_EQ(lineFor(u"02:00:5E:00:"_s).kind, Kind::Hint) << "they are written already";
}

TEST(AddressFieldLineTest, SaysWhatIsWrong)
{
    const AddressFieldLine wrong{Kind::Failure, u"This is not a MAC address."_s};
    EXPECT_EQ(lineFor(u"02::0:5E:00:53:02"_s), wrong);
}

TEST(AddressFieldLineTest, SaysWhatBecameOfAChange)
{
    const auto after = [](const ChangeOutcome &outcome) {
        return AddressFieldLine::forResult(outcome);
    };
    EXPECT_EQ(after({.isInPlace = true, .address = current}),
        (AddressFieldLine{Kind::Done, u"Changed: this is the address in use now."_s}));
    EXPECT_EQ(after({.address = current, .isConfirmed = true}),
        (AddressFieldLine{Kind::Notice, u"Changed, but to another address than you asked for."_s}));
    EXPECT_EQ(after({.address = current, .failure = u"It was asleep"_s}),
        (AddressFieldLine{Kind::Failure, u"Not changed: It was asleep."_s}));
}

TEST(AddressFieldLineTest, WarnsOfGroupAddresses)
{
    for (const QString &digit : {u"1"_s, u"3"_s, u"b"_s, u"F"_s}) {
        EXPECT_EQ(lineFor(u"0"_s + digit + u":00:5E:00:53:02"_s),
            (AddressFieldLine{Kind::Notice, u"Group address: most adapters refuse it."_s}))
            << digit.toStdString();
    }
    for (const QString &digit : {u"0"_s, u"2"_s, u"a"_s, u"E"_s}) {
        EXPECT_EQ(lineFor(u"0"_s + digit + u":00:5E:00:53:02"_s).kind, Kind::Hint);
    }
}

} // namespace

} // namespace quillon::test
