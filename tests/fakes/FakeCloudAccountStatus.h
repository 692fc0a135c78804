// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/CloudAccountStatus.h"

#include <map>
#include <utility>

namespace quillon::test {

/// An account that somebody signs in to and out of.
class FakeCloudAccountStatus : public CloudAccountStatus
{
public:
    QVariant identityToken() const override { return m_token; }
    Token addObserver(std::function<void()> changed) override
    {
        m_observers.emplace(m_next, std::move(changed));
        return m_next++;
    }
    void removeObserver(Token token) override { m_observers.erase(token); }

    void signIn(const QVariant &token)
    {
        m_token = token;
        for (const auto &[number, observer] : std::map(m_observers)) {
            observer();
        }
    }
    void signOut() { signIn({}); }
    std::size_t observerCount() const { return m_observers.size(); }

private:
    QVariant m_token;
    std::map<Token, std::function<void()>> m_observers;
    Token m_next = 1;
};

} // namespace quillon::test
