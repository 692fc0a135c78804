// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "devices/ChangeOutcome.h"

#include "fakes/QtPrinting.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using Kind = ChangeOutcome::Kind;

const QString current = u"02:00:5E:00:53:01"_s;

void expectSaid(const ChangeOutcome &outcome, Kind kind, const QString &text)
{
    EXPECT_EQ(int(outcome.kind()), int(kind)) << text.toStdString();
    EXPECT_EQ(outcome.text(), text);
}

TEST(ChangeOutcomeTest, SaysWhetherTheAddressIsInPlace)
{
    expectSaid({.isInPlace = true, .address = current}, Kind::Done,
        u"Changed: this is the address in use now."_s);
    expectSaid({.address = current}, Kind::Failure, u"The address was not changed."_s);
}

TEST(ChangeOutcomeTest, SaysWhyNot)
{
    const QString text = u"Not changed: It was asleep."_s;
    expectSaid({.address = current, .failure = u"It was asleep"_s}, Kind::Failure, text);
    expectSaid({.address = current,
                   .isConfirmed = true,
                   .failure = u"It was asleep"_s,
                   .isSettled = false},
        Kind::Failure, text);
}

TEST(ChangeOutcomeTest, SaysThatMoreIsToBeSeen)
{
    expectSaid({.address = current, .isConfirmed = true, .isSettled = false}, Kind::Notice,
        u"Not connected again: look at the address when it is."_s);
    expectSaid({.address = current, .isConfirmed = true}, Kind::Notice,
        u"Changed, but to another address than you asked for."_s);
}

TEST(ChangeOutcomeTest, WithoutAnAddressNothingElseCounts)
{
    const QString text = u"The interface does not say which address it has now."_s;
    expectSaid({.isInPlace = true, .address = {}}, Kind::Failure, text);
    expectSaid({.address = {}, .isConfirmed = true}, Kind::Failure, text);
    expectSaid({.address = {}, .failure = u"It was asleep"_s}, Kind::Failure, text);
}

} // namespace
} // namespace quillon::test
