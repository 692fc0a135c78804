// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "helper/Callers.h"

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <utility>

namespace quillon::test {

/// A bus with connections of users. Answers at once, or when the test wants it.
class FakeCallers : public Callers
{
public:
    void userOf(const std::string &caller, UserAnswer answer) override
    {
        open.emplace_back([this, caller, answer = std::move(answer)] {
            const auto place = connections.find(caller);
            answer(place == connections.end() ? std::nullopt : std::optional{place->second});
        });
        if (!answersLater) {
            answerOne();
        }
    }
    /// The oldest question about a user.
    void answerOne()
    {
        const auto answer = std::move(open.front());
        open.pop_front();
        answer();
    }
    void isPresent(const std::string &caller, PresenceAnswer answer) override
    {
        answer(connections.count(caller) != 0);
    }

    std::map<std::string, std::uint32_t> connections;
    bool answersLater = false;
    std::deque<std::function<void()>> open;
};

} // namespace quillon::test
