// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/RequestQueue.h"

#include <gtest/gtest.h>

#include <memory>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class RequestQueueTest : public ::testing::Test
{
protected:
    void run()
    {
        queue->run(
            [this]() -> std::optional<QString> {
                return names.isEmpty() ? std::nullopt : std::optional(names.takeFirst());
            },
            [this](const QString &name, const auto &answered) {
                launched.append(name);
                if (answersAtOnce) {
                    answered();
                } else {
                    waiting.append(answered);
                }
            },
            [this] { ++finished; });
    }
    void answer() { waiting.takeFirst()(); }

    std::unique_ptr<RequestQueue> queue = std::make_unique<RequestQueue>(2);
    QStringList names{u"a"_s, u"b"_s, u"c"_s};
    QStringList launched;
    QList<RequestQueue::Answered> waiting;
    bool answersAtOnce = false;
    int finished = 0;
};

TEST_F(RequestQueueTest, KeepsNoMoreThanItMayUnderWay)
{
    run();
    EXPECT_EQ(launched, (QStringList{u"a"_s, u"b"_s}));
    answer();
    EXPECT_EQ(launched.size(), 3);
    answer();
    EXPECT_EQ(finished, 0);
    answer();
    EXPECT_EQ(finished, 1);
}

TEST_F(RequestQueueTest, FinishesAtOnceWithNothingToDo)
{
    names.clear();
    run();
    EXPECT_EQ(finished, 1);
}

TEST_F(RequestQueueTest, AnswersAtOnceDoNotNest)
{
    answersAtOnce = true;
    for (int i = 0; i < 100'000; ++i) {
        names.append(u"x"_s);
    }
    run();
    EXPECT_EQ(launched.size(), 100'003);
    EXPECT_EQ(finished, 1);
}

TEST_F(RequestQueueTest, AsksAgainAfterEachAnswer)
{
    names = {u"a"_s};
    run();
    names = {u"b"_s};
    answer();
    EXPECT_EQ(launched, (QStringList{u"a"_s, u"b"_s}));
    answer();
    EXPECT_EQ(finished, 1);
}

TEST_F(RequestQueueTest, AnswersAfterItsEndCallNobody)
{
    run();
    queue.reset();
    answer();
    answer();
    EXPECT_EQ(launched.size(), 2);
    EXPECT_EQ(finished, 0);
}

} // namespace
} // namespace quillon::test
