// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Shown.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillon {
namespace {

struct State
{
    int number = 0;
    std::string text;

    bool operator==(const State &) const = default;
};

class ShownTest : public ::testing::Test
{
protected:
    void setNumber(int number)
    {
        shown.update([number](State &state) { state.number = number; });
    }

    /// The numbers that whoever mirrors it has found, one for each time it was told.
    std::vector<int> mirrored;
    Shown<State> shown{[this] { mirrored.push_back(shown->number); }};
};

TEST_F(ShownTest, BeginsAsTheStateDoesAndTellsNothing)
{
    EXPECT_EQ(shown.get(), State());
    EXPECT_TRUE(mirrored.empty());
}

TEST_F(ShownTest, TellsOfAnEditOnceItCanBeSeen)
{
    setNumber(1);
    setNumber(2);
    EXPECT_EQ(mirrored, (std::vector{1, 2}));
    EXPECT_EQ(shown.get().number, 2);
}

TEST_F(ShownTest, SaysNothingOfAnEditThatChangesNothing)
{
    setNumber(1);
    setNumber(1);
    shown.update([](State &) {});
    EXPECT_EQ(mirrored, std::vector{1});
}

TEST_F(ShownTest, TellsOfSeveralEditsAtOnceAsOne)
{
    shown.update([](State &state) {
        state.number = 1;
        state.text = "one";
        state.number = 2;
    });
    EXPECT_EQ(mirrored, std::vector{2});
    EXPECT_EQ(shown->text, "one");
}

TEST_F(ShownTest, AnEditIsSeenOnlyWhenItIsDone)
{
    shown.update([this](State &state) {
        state.number = 1;
        EXPECT_EQ(shown->number, 0);
    });
}

TEST(Shown, MayBeEditedByWhoeverIsTold)
{
    std::vector<int> mirrored;
    Shown<State> *self = nullptr;
    Shown<State> shown([&] {
        mirrored.push_back((*self)->number);
        self->update([](State &state) { state.number = 2; });
    });
    self = &shown;
    shown.update([](State &state) { state.number = 1; });
    EXPECT_EQ(mirrored, (std::vector{1, 2}));
    EXPECT_EQ(shown->number, 2);
}

} // namespace
} // namespace quillon
