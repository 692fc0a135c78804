// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/PrivilegedRequests.h"

#include "fakes/FakeAuthority.h"
#include "fakes/FakeCallers.h"
#include "helper/RequestLog.h"

#include <gmock/gmock.h>

#include <set>

namespace quillon {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::uint32_t quillonUser = 1000;
constexpr std::uint32_t malloryUser = 1001;

class PrivilegedRequestsTest : public testing::Test
{
protected:
    PrivilegedRequestsTest()
    {
        callers.connections = {{":1.1", quillonUser}, {":1.2", malloryUser}};
    }

    void ask(const std::string &caller) { askAbout({}, caller, caller); }
    void askAbout(
        const std::string &subject, const std::string &caller, const std::string &operation)
    {
        requests.submit({caller, contract::actionChange, {{"device", "enp1s0"}},
            [this] { return precondition; },
            [this, operation] {
                carriedOut.push_back(operation);
                return operationOutcome;
            },
            [this](
                const Outcome &outcome) { answers.push_back(outcome ? outcome->error.code : 0); },
            subject});
    }
    void connect(const std::string &caller, std::uint32_t user)
    {
        callers.connections[caller] = user;
    }
    void leave(const std::string &caller)
    {
        callers.connections.erase(caller);
        requests.callerVanished(caller);
    }

    static constexpr int done = 0;
    static constexpr int notAuthorized = contract::error::notAuthorized.code;
    static constexpr int tooMany = contract::error::tooManyRequests.code;

    test::FakeCallers callers;
    test::FakeAuthority authority;
    std::vector<std::string> lines;
    RequestLog log{[] { return RequestLog::Time{}; },
        [this](std::string_view line) { lines.emplace_back(line); }};
    PrivilegedRequests requests{callers, authority, log, {}};
    Outcome precondition;
    Outcome operationOutcome;
    std::vector<std::string> carriedOut;
    std::vector<int> answers;
};

TEST_F(PrivilegedRequestsTest, isCarriedOutAfterAYes)
{
    ask(":1.1");
    EXPECT_THAT(carriedOut, IsEmpty());
    authority.prompts.at(0).answer(true);
    EXPECT_THAT(carriedOut, ElementsAre(":1.1"));
    EXPECT_THAT(answers, ElementsAre(done));
    EXPECT_EQ(requests.waiting(), 0U);
}

TEST_F(PrivilegedRequestsTest, isDecidedAboutItsSenderAndItsAction)
{
    ask(":1.2");
    EXPECT_EQ(authority.prompts.at(0).caller, ":1.2");
    EXPECT_EQ(authority.prompts.at(0).action, contract::actionChange);
}

TEST_F(PrivilegedRequestsTest, aboutTheSameAreCarriedOutInTheirOrder)
{
    askAbout("enp1s0", ":1.1", "first");
    askAbout("enp1s0", ":1.1", "second");
    askAbout("enp1s0", ":1.1", "third");
    authority.prompts.at(2).answer(true);
    authority.prompts.at(1).answer(true);
    EXPECT_THAT(carriedOut, IsEmpty());
    authority.prompts.at(0).answer(true);
    EXPECT_THAT(carriedOut, ElementsAre("first", "second", "third"));
    EXPECT_THAT(answers, ElementsAre(done, done, done));
    EXPECT_EQ(requests.waiting(), 0U);
}

TEST_F(PrivilegedRequestsTest, behindOneThatIsRefusedIsCarriedOut)
{
    askAbout("enp1s0", ":1.1", "first");
    askAbout("enp1s0", ":1.1", "second");
    authority.prompts.at(1).answer(true);
    authority.prompts.at(0).answer(false);
    EXPECT_THAT(carriedOut, ElementsAre("second"));
    EXPECT_THAT(answers, ElementsAre(notAuthorized, done));
}

TEST_F(PrivilegedRequestsTest, waitsForNobodyElsesAndForNothingElse)
{
    askAbout("enp1s0", ":1.1", "first");
    askAbout("enp2s0", ":1.1", "another device");
    askAbout("enp1s0", ":1.2", "another caller");
    authority.prompts.at(1).answer(true);
    authority.prompts.at(2).answer(true);
    EXPECT_THAT(carriedOut, ElementsAre("another device", "another caller"));
}

TEST_F(PrivilegedRequestsTest, behindAnotherOfACallerWhoLeftIsNotCarriedOut)
{
    askAbout("enp1s0", ":1.1", "first");
    askAbout("enp1s0", ":1.1", "second");
    authority.prompts.at(1).answer(true);
    // The bus may still take him for present.
    requests.callerVanished(":1.1");
    EXPECT_THAT(answers, ElementsAre(notAuthorized, notAuthorized));
    authority.prompts.at(0).answer(true);
    EXPECT_THAT(carriedOut, IsEmpty());
    EXPECT_EQ(requests.waiting(), 0U);
}

TEST_F(PrivilegedRequestsTest, behindAnotherIsNotCarriedOutByAHelperThatEnds)
{
    askAbout("enp1s0", ":1.1", "first");
    askAbout("enp1s0", ":1.1", "second");
    authority.prompts.at(1).answer(true);
    requests.refuseAll();
    EXPECT_THAT(carriedOut, IsEmpty());
    EXPECT_THAT(answers, ElementsAre(notAuthorized, notAuthorized));
}

TEST_F(PrivilegedRequestsTest, isRefusedAfterANo)
{
    ask(":1.1");
    authority.prompts.at(0).answer(false);
    EXPECT_THAT(carriedOut, IsEmpty());
    EXPECT_THAT(answers, ElementsAre(notAuthorized));
}

TEST_F(PrivilegedRequestsTest, worksWithAnAuthorityThatAnswersAtOnce)
{
    authority.answersAtOnce = true;
    ask(":1.1");
    EXPECT_THAT(answers, ElementsAre(done));
}

TEST_F(PrivilegedRequestsTest, handsTheOperationsErrorOn)
{
    operationOutcome = Refusal{contract::error::noSuchDevice, "none"};
    ask(":1.1");
    authority.prompts.at(0).answer(true);
    EXPECT_THAT(answers, ElementsAre(contract::error::noSuchDevice.code));
}

TEST_F(PrivilegedRequestsTest, whosePreconditionFailsAsksNobody)
{
    precondition = Refusal{contract::error::noSuchDevice, "none"};
    ask(":1.1");
    EXPECT_THAT(authority.prompts, IsEmpty());
    EXPECT_THAT(answers, ElementsAre(contract::error::noSuchDevice.code));
    EXPECT_EQ(requests.waiting(), 0U);
}

TEST_F(PrivilegedRequestsTest, ofACallerWhoLeftDuringThePromptTakesThePromptAway)
{
    ask(":1.1");
    leave(":1.1");
    EXPECT_THAT(authority.cancelled, ElementsAre(authority.prompts.at(0).check));
    EXPECT_THAT(answers, ElementsAre(notAuthorized));
    authority.prompts.at(0).answer(true);
    EXPECT_THAT(carriedOut, IsEmpty());
    EXPECT_THAT(answers, ElementsAre(notAuthorized));
}

TEST_F(PrivilegedRequestsTest, ofACallerWhoseDepartureIsStillOnItsWayIsRefused)
{
    ask(":1.1");
    callers.connections.erase(":1.1");
    authority.prompts.at(0).answer(true);
    EXPECT_THAT(carriedOut, IsEmpty());
    EXPECT_THAT(answers, ElementsAre(notAuthorized));
}

TEST_F(PrivilegedRequestsTest, ofACallerWhoIsGoneAlreadyAsksNobody)
{
    ask(":1.9");
    EXPECT_THAT(authority.prompts, IsEmpty());
    EXPECT_THAT(answers, ElementsAre(notAuthorized));
}

TEST_F(PrivilegedRequestsTest, isNotTouchedByAnotherCallersDeparture)
{
    ask(":1.1");
    leave(":1.2");
    EXPECT_THAT(authority.cancelled, IsEmpty());
    authority.prompts.at(0).answer(true);
    EXPECT_THAT(answers, ElementsAre(done));
}

TEST_F(PrivilegedRequestsTest, hasANameThatNobodyCanGuess)
{
    std::set<std::string> names;
    for (int i = 0; i < 100; ++i) {
        ask(":1.1");
        names.insert(authority.prompts.back().check);
        authority.prompts.back().answer(false);
    }
    EXPECT_EQ(names.size(), 100U);
    for (const auto &name : names) {
        EXPECT_EQ(name.size(), std::string{"quillon-"}.size() + 32);
    }
}

TEST_F(PrivilegedRequestsTest, answeredTwiceIsCarriedOutOnce)
{
    ask(":1.1");
    ask(":1.1");
    authority.prompts.at(0).answer(true);
    authority.prompts.at(0).answer(true);
    EXPECT_EQ(carriedOut.size(), 1U);
    EXPECT_EQ(requests.waiting(), 1U);
}

TEST_F(PrivilegedRequestsTest, isOneOfFourPerCaller)
{
    for (int i = 0; i < 5; ++i) {
        ask(":1.2");
    }
    EXPECT_EQ(authority.prompts.size(), 4U);
    EXPECT_THAT(answers, ElementsAre(tooMany));
    ask(":1.1");
    EXPECT_EQ(authority.prompts.size(), 5U);
}

TEST_F(PrivilegedRequestsTest, isOneOfEightPerUserWhateverHisConnections)
{
    for (int i = 10; i < 100; ++i) {
        connect(":1." + std::to_string(i), malloryUser);
        ask(":1." + std::to_string(i));
    }
    EXPECT_EQ(authority.prompts.size(), 8U);
    EXPECT_EQ(answers.size(), 82U);
    ask(":1.1");
    authority.prompts.back().answer(true);
    EXPECT_THAT(carriedOut, ElementsAre(":1.1"));
}

TEST_F(PrivilegedRequestsTest, isOneOfThirtyTwoInAll)
{
    for (int i = 10; i < 60; ++i) {
        connect(":1." + std::to_string(i), 2000U + static_cast<unsigned>(i));
        ask(":1." + std::to_string(i));
    }
    EXPECT_EQ(requests.waiting(), 32U);
    EXPECT_EQ(answers, std::vector<int>(18, tooMany));
}

TEST_F(PrivilegedRequestsTest, takesNoPlaceOfOthersBeforeItsUserIsKnown)
{
    callers.answersLater = true;
    for (int i = 100; i < 200; ++i) {
        connect(":1." + std::to_string(i), malloryUser);
        for (int j = 0; j < 4; ++j) {
            ask(":1." + std::to_string(i));
        }
    }
    EXPECT_THAT(answers, IsEmpty());
    ask(":1.1");
    EXPECT_THAT(answers, IsEmpty());
    while (!callers.open.empty()) {
        callers.answerOne();
    }
    EXPECT_EQ(answers, std::vector<int>(392, tooMany));
    EXPECT_EQ(authority.prompts.size(), 9U);
    EXPECT_EQ(authority.prompts.back().caller, ":1.1");
}

TEST_F(PrivilegedRequestsTest, isBoundedAlsoBeforeItsUserIsKnown)
{
    callers.answersLater = true;
    for (int i = 0; i < 2000; ++i) {
        for (int j = 0; j < 4; ++j) {
            ask(":1." + std::to_string(100 + i));
        }
    }
    EXPECT_EQ(requests.waiting(), 4096U);
    EXPECT_EQ(answers, std::vector<int>(8000 - 4096, tooMany));
}

TEST_F(PrivilegedRequestsTest, keepsItsPlaceUntilTheAuthorityHasAnswered)
{
    // Whoever comes and goes makes no more open questions than whoever stays.
    for (int i = 0; i < 50; ++i) {
        const auto caller = ":1." + std::to_string(100 + i);
        connect(caller, malloryUser);
        ask(caller);
        leave(caller);
    }
    EXPECT_EQ(authority.prompts.size(), 8U);
    EXPECT_EQ(authority.cancelled.size(), 8U);
    EXPECT_EQ(answers.size(), 50U);
    EXPECT_EQ(requests.waiting(), 8U);
    for (auto &prompt : std::vector(authority.prompts)) {
        prompt.answer(false);
    }
    EXPECT_EQ(requests.waiting(), 0U);
    EXPECT_EQ(answers.size(), 50U);
    ask(":1.2");
    EXPECT_EQ(authority.prompts.size(), 9U);
}

TEST_F(PrivilegedRequestsTest, whoseCallerLeftIsNotCancelledTwice)
{
    ask(":1.1");
    leave(":1.1");
    leave(":1.1");
    requests.refuseAll();
    EXPECT_EQ(authority.cancelled.size(), 1U);
    EXPECT_THAT(answers, ElementsAre(notAuthorized));
}

TEST_F(PrivilegedRequestsTest, isLoggedWithItsOutcome)
{
    ask(":1.1");
    authority.prompts.at(0).answer(true);
    for (int i = 0; i < 20; ++i) {
        ask(":1.2");
    }
    EXPECT_THAT(
        lines, ElementsAre(":1.1 com.orvandel.quillon4.change-address device=\"enp1s0\": done",
                   ":1.2 com.orvandel.quillon4.change-address device=\"enp1s0\": "
                   "com.orvandel.Quillon4.Error.TooManyRequests"));
}

TEST_F(PrivilegedRequestsTest, thatFailedHalfwayIsAlwaysLoggedWithTheReason)
{
    // As many as are refused in the same second.
    log.limited("refused calls", "a refusal");
    operationOutcome = Refusal{contract::error::changeFailed, "enp1s0: going \n down"};
    for (int i = 0; i < 2; ++i) {
        ask(":1.1");
        authority.prompts.back().answer(true);
    }
    const auto line = std::string{":1.1 com.orvandel.quillon4.change-address device=\"enp1s0\": "} +
                      contract::error::changeFailed.name + " \"enp1s0: going \\x0a down\"";
    EXPECT_THAT(lines, ElementsAre("a refusal", line, line));
}

TEST_F(PrivilegedRequestsTest, makesRoomWhenItIsDecided)
{
    for (int i = 0; i < 4; ++i) {
        ask(":1.2");
    }
    authority.prompts.at(0).answer(false);
    ask(":1.2");
    EXPECT_EQ(authority.prompts.size(), 5U);
}

TEST_F(PrivilegedRequestsTest, isRefusedWhenTheHelperEnds)
{
    ask(":1.1");
    ask(":1.2");
    requests.refuseAll();
    EXPECT_EQ(authority.cancelled.size(), 2U);
    EXPECT_THAT(answers, ElementsAre(notAuthorized, notAuthorized));
    EXPECT_EQ(requests.waiting(), 0U);
}

} // namespace
} // namespace quillon
