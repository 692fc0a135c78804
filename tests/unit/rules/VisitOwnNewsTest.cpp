// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// News that comes right after a change that failed may be its own, or may not.
#include "unit/rules/VisitFixture.h"

#include <utility>

using namespace std::chrono_literals;

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class VisitOwnNews : public VisitFixture
{
protected:
    /// Everything else is as it was.
    void routerComes()
    {
        host.at(en0).router = u"192.0.2.1"_s;
        networkEvent();
    }
    void expectCarriedOutAtTheNextNewsOnce(bool &obstacle)
    {
        obstacle = false;
        news(en0);
        pass(1s);
        obstacle = true;
        ASSERT_EQ(host.addressOf(en0), factory);
        routerComes();
        pass(1s);
        EXPECT_NE(host.addressOf(en0), factory);
        pass(24h);
        EXPECT_EQ(changes(en0), 1);
    }
};

TEST_F(VisitOwnNews, AfterARefusalIsJudgedWhenTheChangeHasSettled)
{
    helper.mood = FakeHelper::Mood::Refusing;
    news(en0);
    helper.mood = FakeHelper::Mood::Obliging;
    pass(1s);
    routerComes();
    EXPECT_EQ(changes(en0), 1) << "it may be its own news";
    pass(5s);
    EXPECT_EQ(changes(en0), 2);
    EXPECT_NE(host.addressOf(en0), factory);
    pass(24h);
    EXPECT_EQ(changes(en0), 2);
}

TEST_F(VisitOwnNews, WhileThePromptIsOpenIsJudgedWhenTheChangeHasSettled)
{
    helper.mood = FakeHelper::Mood::Hanging;
    news(en0);
    pass(20s);
    routerComes();
    helper.mood = FakeHelper::Mood::Obliging;
    helper.timeOut();
    pass(1s);
    ASSERT_EQ(asked(), 1);
    pass(5s);
    EXPECT_EQ(asked(), 2);
    EXPECT_NE(host.addressOf(en0), factory);
}

TEST_F(VisitOwnNews, IsNoneWhereThereWasNoService)
{
    expectCarriedOutAtTheNextNewsOnce(helper.serviceExists);
}

TEST_F(VisitOwnNews, IsNoneWhereThereWasNoHelper)
{
    expectCarriedOutAtTheNextNewsOnce(helper.installed);
}

TEST_F(VisitOwnNews, IsStillThatOfTheChangeBeforeOneThatReachedNobody)
{
    news(en0);
    pass(600ms);
    linkGoes(en0);
    pass(6s);
    helper.installed = false;
    changer.updateMacAddressWithAddress(en0, fixedAddress);
    pass(1s);
    linkComes(en0);
    pass(10s);
    EXPECT_EQ(changes(en0), 1) << "the link was expected back";
}

TEST_F(VisitOwnNews, OfEachTryHasItTriedEverMoreRarely)
{
    helper.mood = FakeHelper::Mood::Refusing;
    news(en0);
    qsizetype seen = 0;
    for (int second = 0; second < 2 * 3600; ++second) {
        if (std::exchange(seen, changes(en0)) != changes(en0)) {
            news(en0);
        }
        pass(1s);
    }
    EXPECT_EQ(changes(en0), 6) << "after 5 seconds, 1, 5, 15 minutes and an hour";
}

} // namespace
} // namespace quillon::test
