// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/PacedCallers.h"

#include "fakes/FakeCallers.h"

#include <gmock/gmock.h>

namespace quillon {
namespace {

using testing::ElementsAre;
using testing::Optional;

class PacedCallersTest : public testing::Test
{
protected:
    static constexpr std::size_t most = 3;

    void ask(const std::string &caller)
    {
        callers.userOf(caller, [this, caller](auto user) { answers.emplace_back(caller, user); });
    }

    test::FakeCallers bus;
    PacedCallers callers{bus, most};
    std::vector<std::pair<std::string, std::optional<std::uint32_t>>> answers;
};

TEST_F(PacedCallersTest, hasABoundedNumberOfQuestionsOpenAndRefusesNone)
{
    bus.answersLater = true;
    for (int i = 0; i < 500; ++i) {
        const auto caller = ":1." + std::to_string(i);
        bus.connections[caller] = 1000;
        ask(caller);
    }
    while (!bus.open.empty()) {
        EXPECT_LE(bus.open.size(), most);
        bus.answerOne();
    }
    ASSERT_EQ(answers.size(), 500U);
    for (int i = 0; i < 500; ++i) {
        EXPECT_EQ(answers[static_cast<std::size_t>(i)].first, ":1." + std::to_string(i));
        EXPECT_THAT(answers[static_cast<std::size_t>(i)].second, Optional(1000U));
    }
}

TEST_F(PacedCallersTest, asksOnceForSeveralQuestionsAboutOneCaller)
{
    bus.answersLater = true;
    bus.connections = {{":1.1", 1000}, {":1.2", 1001}};
    ask(":1.1");
    ask(":1.2");
    ask(":1.1");
    EXPECT_EQ(bus.open.size(), 2U);
    bus.answerOne();
    EXPECT_EQ(answers.size(), 2U);
    bus.answerOne();
    EXPECT_THAT(answers,
        ElementsAre(testing::Pair(":1.1", Optional(1000U)), testing::Pair(":1.1", Optional(1000U)),
            testing::Pair(":1.2", Optional(1001U))));
    ask(":1.1");
    EXPECT_EQ(bus.open.size(), 1U);
}

TEST_F(PacedCallersTest, handsAnswersOnThatComeAtOnce)
{
    bus.connections = {{":1.1", 1000}};
    ask(":1.1");
    ask(":1.9");
    EXPECT_THAT(answers,
        ElementsAre(testing::Pair(":1.1", Optional(1000U)), testing::Pair(":1.9", std::nullopt)));
}

TEST_F(PacedCallersTest, asksAtOnceWhetherACallerIsPresent)
{
    bus.connections = {{":1.1", 1000}};
    bool present = false;
    callers.isPresent(":1.1", [&](bool answer) { present = answer; });
    EXPECT_TRUE(present);
}

} // namespace
} // namespace quillon
