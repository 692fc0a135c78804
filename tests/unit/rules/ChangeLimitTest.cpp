// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/ChangeLimit.h"

#include "unit/rules/VisitFixture.h"

using namespace std::chrono_literals;

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

const QString en0 = u"en0"_s;
const QString en1 = u"en1"_s;

TEST(ChangeLimit, LetsTenChangesAMinuteThrough)
{
    ChangeLimit limit;
    for (int time = 0; time < 10; ++time) {
        EXPECT_EQ(limit.wait(en0, 1s * time), 0ms);
        limit.asked(en0, 1s * time);
    }
    EXPECT_EQ(limit.wait(en0, 10s), 50s);
    EXPECT_EQ(limit.wait(en0, 60s), 0ms) << "the first one is a minute old";
    limit.asked(en0, 60s);
    EXPECT_EQ(limit.wait(en0, 60s), 1s);
    EXPECT_EQ(limit.wait(en1, 10s), 0ms);
}

TEST(ChangeLimit, LetsThreeFailuresAMinuteThrough)
{
    ChangeLimit limit;
    for (int time = 0; time < 3; ++time) {
        EXPECT_EQ(limit.wait(en0, 1s * time), 0ms);
        limit.failed(en0, 1s * time);
    }
    EXPECT_EQ(limit.wait(en0, 2s), 58s);
    EXPECT_EQ(limit.wait(en0, 60s), 0ms);
    EXPECT_EQ(limit.wait(en1, 2s), 0ms);
}

class ChangeLimitOfRules : public VisitFixture
{
protected:
    ChangeLimitOfRules()
    {
        for (char number = 0; number < 100; ++number) {
            random.put(QByteArray("\x40\1\2\3\4", 5) + number);
        }
    }
};

TEST_F(ChangeLimitOfRules, IsTenAMinuteWhereverARadioGoes)
{
    for (int time = 0; time < 100; ++time) {
        joinWifi(u"Cafe %1"_s.arg(time), u"02:00:00:00:aa:01"_s);
        news(en1);
        pass(500ms);
    }
    EXPECT_EQ(changes(en1), 10);
    pass(20s);
    EXPECT_EQ(changes(en1), 11) << "what was put off is made up for";
    pass(10min);
    EXPECT_EQ(changes(en1), 11) << "once";
}

TEST_F(ChangeLimitOfRules, IsNoneForWhatTheUserAsksFor)
{
    for (int time = 0; time < 15; ++time) {
        evaluate(en0, RuleChange::NetworkRule);
    }
    EXPECT_EQ(changes(en0), 15);
}

} // namespace
} // namespace quillon::test
