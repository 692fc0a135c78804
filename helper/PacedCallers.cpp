// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/PacedCallers.h"

#include <utility>

namespace quillon {

PacedCallers::PacedCallers(Callers &callers, std::size_t most)
    : m_callers{callers}
    , m_most{most}
{
}

void PacedCallers::userOf(const std::string &caller, UserAnswer answer)
{
    auto &answers = m_answers[caller];
    answers.push_back(std::move(answer));
    if (answers.size() == 1) {
        m_queue.push_back(caller);
        askNext();
    }
}

void PacedCallers::isPresent(const std::string &caller, PresenceAnswer answer)
{
    m_callers.isPresent(caller, std::move(answer));
}

void PacedCallers::askNext()
{
    // An answer that comes at once finds the loop below still running.
    if (std::exchange(m_isAsking, true)) {
        return;
    }
    while (m_open < m_most && !m_queue.empty()) {
        const auto caller = std::move(m_queue.front());
        m_queue.pop_front();
        ++m_open;
        m_callers.userOf(caller, [this, caller](auto user) { answered(caller, user); });
    }
    m_isAsking = false;
}

void PacedCallers::answered(const std::string &caller, std::optional<std::uint32_t> user)
{
    --m_open;
    const auto answers = m_answers.extract(caller);
    for (const auto &answer : answers.mapped()) {
        answer(user);
    }
    askNext();
}

} // namespace quillon
