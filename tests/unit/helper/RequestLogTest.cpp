// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/RequestLog.h"

#include <gmock/gmock.h>

namespace quillon {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

class RequestLogTest : public testing::Test
{
protected:
    RequestLog::Time now{};
    std::vector<std::string> lines;
    RequestLog log{
        [this] { return now; }, [this](std::string_view line) { lines.emplace_back(line); }};
};

TEST_F(RequestLogTest, writesASingleLineAtOnce)
{
    log.limited("refused requests", "a refusal");
    EXPECT_THAT(lines, ElementsAre("a refusal"));
    EXPECT_EQ(log.left(), std::nullopt);
    now += 1s;
    log.limited("refused requests", "another");
    EXPECT_THAT(lines, ElementsAre("a refusal", "another"));
}

TEST_F(RequestLogTest, countsTheOthersOfASecondByKind)
{
    for (int i = 0; i < 300; ++i) {
        log.limited("refused requests of user 1000", "a refusal");
        log.limited("troubles", "a trouble");
    }
    EXPECT_THAT(lines, ElementsAre("a refusal"));
    EXPECT_EQ(log.left(), 1s);
    now += 600ms;
    log.flush();
    EXPECT_EQ(lines.size(), 1U);
    EXPECT_EQ(log.left(), 400ms);
    now += 400ms;
    log.flush();
    EXPECT_THAT(
        lines, ElementsAre("a refusal",
                   "in the last second also: 299 refused requests of user 1000, 300 troubles"));
    EXPECT_EQ(log.left(), std::nullopt);
}

TEST_F(RequestLogTest, writesOneLineASecondHoweverLongTheFlood)
{
    for (int i = 0; i < 10000; ++i) {
        log.limited("refused requests", "a refusal");
        now += 1ms;
    }
    EXPECT_EQ(lines.size(), 10U);
    EXPECT_EQ(lines.back(), "in the last second also: 1000 refused requests");
}

TEST_F(RequestLogTest, writesWhatWasDoneInEveryCase)
{
    for (int i = 0; i < 100; ++i) {
        log.limited("refused requests", "a refusal");
        log.done("done");
    }
    EXPECT_EQ(lines.size(), 101U);
}

TEST_F(RequestLogTest, doesNotGrowWithTheNumberOfKinds)
{
    log.limited("kind", "first");
    for (int i = 0; i < 1000; ++i) {
        log.limited("kind " + std::to_string(i), "a refusal");
    }
    now += 1s;
    log.flush();
    EXPECT_LT(lines.back().size(), 200U);
    EXPECT_NE(lines.back().find("992 others"), std::string::npos) << lines.back();
}

} // namespace
} // namespace quillon
