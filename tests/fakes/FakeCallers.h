// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "helper/Callers.h"

#include <map>
#include <string>

namespace quillon::test {

/// A bus with connections of users. Answers at once.
class FakeCallers : public Callers
{
public:
    void userOf(const std::string &caller, UserAnswer answer) override
    {
        const auto place = connections.find(caller);
        answer(place == connections.end() ? std::nullopt : std::optional{place->second});
    }
    void isPresent(const std::string &caller, PresenceAnswer answer) override
    {
        answer(connections.count(caller) != 0);
    }

    std::map<std::string, std::uint32_t> connections;
};

} // namespace quillon::test
