// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "helper/Callers.h"

#include <cstddef>
#include <deque>
#include <map>
#include <string>
#include <vector>

namespace quillon {

/// Callers that asks for users a bounded number at a time, since the bus bounds the answers that
/// one connection may await. The others wait in order and are not refused: whoever sends much at
/// once would otherwise shut everybody else out. Several questions about one caller are one.
class PacedCallers : public Callers
{
public:
    /// `callers` outlives this. At most `most` questions to it are open at once.
    PacedCallers(Callers &callers, std::size_t most);

    void userOf(const std::string &caller, UserAnswer answer) override;
    void isPresent(const std::string &caller, PresenceAnswer answer) override;

private:
    void askNext();
    void answered(const std::string &caller, std::optional<std::uint32_t> user);

    Callers &m_callers;
    std::size_t m_most;
    std::size_t m_open = 0;
    bool m_isAsking = false;
    std::deque<std::string> m_queue;
    std::map<std::string, std::vector<UserAnswer>> m_answers;
};

} // namespace quillon
