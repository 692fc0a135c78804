// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/AccountProbe.h"

#include "fakes/FakeRandomSource.h"
#include "fakes/QtPrinting.h"
#include "unit/platform/ProbedStorage.h"

#include <gmock/gmock.h>

#include <memory>
#include <optional>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class AccountProbeTest : public ::testing::Test
{
protected:
    using Answer = CloudResult<AccountAbilities>;

    void start()
    {
        probe = std::make_unique<AccountProbe>(storage, random);
        answer.reset();
        probe->start([this](const Answer &given) {
            EXPECT_FALSE(answer) << "a second answer";
            answer = given;
        });
        EXPECT_FALSE(answer) << "it was answered before the call returned";
    }
    Answer probed()
    {
        start();
        scheduler.runPending();
        EXPECT_TRUE(answer) << "it was not answered";
        return answer.value_or(CloudError{});
    }
    AccountAbilities abilities()
    {
        const Answer given = probed();
        EXPECT_TRUE(std::holds_alternative<AccountAbilities>(given));
        return std::holds_alternative<AccountAbilities>(given) ? std::get<AccountAbilities>(given)
                                                               : AccountAbilities();
    }

    FakeScheduler scheduler;
    FakeRandomSource random;
    ProbedStorage storage{scheduler};
    std::unique_ptr<AccountProbe> probe;
    std::optional<Answer> answer;
};

TEST_F(AccountProbeTest, AGoodAccountCanDoAllAndIsLeftAsItWas)
{
    storage.files.insert(u"key"_s, "x");
    const AccountAbilities all{true, true, true};
    EXPECT_EQ(abilities(), all);
    EXPECT_EQ(all.sentence(), u"This account can be used."_s);
    EXPECT_THAT(storage.files.keys(), ElementsAre(u"key"_s));
}

TEST_F(AccountProbeTest, AnAccountThatOverlooksPreconditionsIsFoundOut)
{
    storage.overlooksPreconditions = true;
    const AccountAbilities some{false, false, true};
    EXPECT_EQ(abilities(), some);
    EXPECT_NE(some.sentence(), u"This account can be used."_s);
    EXPECT_THAT(storage.files.keys(), IsEmpty());
}

TEST_F(AccountProbeTest, AnAccountWithoutRevisionsIsFoundOut)
{
    storage.tellsRevisions = false;
    EXPECT_EQ(abilities(), (AccountAbilities{true, false, false}));
    EXPECT_THAT(storage.files.keys(), IsEmpty());
}

TEST_F(AccountProbeTest, AnAccountThatChangesWhatItIsGivenFails)
{
    storage.changesBytes = true;
    const Answer given = probed();
    ASSERT_TRUE(std::holds_alternative<CloudError>(given));
    EXPECT_EQ(std::get<CloudError>(given).problem, CloudProblem::Failed);
    EXPECT_THAT(storage.files.keys(), IsEmpty());
}

TEST_F(AccountProbeTest, AProblemAtAnyStepIsTold)
{
    abilities();
    const int all = storage.requests;
    ASSERT_GT(all, 8);
    for (int from = 0; from < all; ++from) {
        storage.requests = 0;
        storage.failsFrom = from;
        storage.problem = CloudProblem::Full;
        const Answer given = probed();
        ASSERT_TRUE(std::holds_alternative<CloudError>(given)) << from;
        EXPECT_EQ(std::get<CloudError>(given).problem, CloudProblem::Full) << from;
        storage.failsFrom = -1;
        EXPECT_EQ(abilities(), (AccountAbilities{true, true, true})) << from;
        EXPECT_THAT(storage.files.keys(), IsEmpty()) << "the next one removes what was left";
    }
}

TEST_F(AccountProbeTest, EndedAtAnyStepItSaysNothingAndTheNextOneClearsUp)
{
    abilities();
    const int all = storage.requests;
    for (int last = 0; last < all; ++last) {
        storage.requests = 0;
        storage.before = [&](int number) {
            if (number == last) {
                scheduler.onMain([this] { probe.reset(); });
            }
        };
        start();
        scheduler.runPending();
        EXPECT_FALSE(answer) << last;
        storage.before = {};
        EXPECT_EQ(abilities(), (AccountAbilities{true, true, true})) << last;
        EXPECT_THAT(storage.files.keys(), IsEmpty()) << last;
    }
}

TEST_F(AccountProbeTest, AnotherComputersProbeMayTakeItsFileAway)
{
    bool isTaken = false;
    storage.before = [&](int number) {
        if (number == 2) {
            isTaken = !storage.files.isEmpty();
            storage.files.clear();
        }
    };
    EXPECT_EQ(abilities(), (AccountAbilities{true, true, true}));
    EXPECT_TRUE(isTaken);
    EXPECT_THAT(storage.files.keys(), IsEmpty());
}

TEST_F(AccountProbeTest, TheAnswerMayDestroyIt)
{
    probe = std::make_unique<AccountProbe>(storage, random);
    bool isAnswered = false;
    probe->start([&](const Answer &) {
        isAnswered = true;
        probe.reset();
    });
    scheduler.runPending();
    EXPECT_TRUE(isAnswered);
}

TEST_F(AccountProbeTest, WithoutRandomBytesNothingIsWritten)
{
    random.fail();
    EXPECT_TRUE(std::holds_alternative<CloudError>(probed()));
    EXPECT_THAT(storage.files.keys(), IsEmpty());
}

} // namespace
} // namespace quillon::test
