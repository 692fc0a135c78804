// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "helper/Authority.h"

#include <string>
#include <utility>
#include <vector>

namespace quillon::test {

/// An authority whose prompts stay open until the test decides.
class FakeAuthority : public Authority
{
public:
    struct Prompt
    {
        std::string caller;
        std::string action;
        Details details;
        std::string check;
        Answer answer;
    };

    void authorize(const std::string &caller, const std::string &action, const Details &details,
        const std::string &check, Answer answer) override
    {
        prompts.push_back({caller, action, details, check, std::move(answer)});
        if (answersAtOnce) {
            prompts.back().answer(true);
        }
    }
    void cancel(const std::string &check) override { cancelled.push_back(check); }

    std::vector<Prompt> prompts;
    std::vector<std::string> cancelled;
    bool answersAtOnce = false;
};

} // namespace quillon::test
