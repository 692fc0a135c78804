// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cloud/CloudSignIn.h"

#include <QList>

namespace quillon::test {

/// Signs in when the test says so.
class FakeCloudSignIn : public CloudSignIn
{
public:
    Step step() const override { return m_step; }
    void begin(const Wanted &wanted) override
    {
        attempts.append(wanted);
        isUnderWay = true;
    }
    void cancel() override
    {
        ++cancelled;
        end();
    }
    void signOut() override
    {
        if (canSignOut) {
            become(std::nullopt);
        }
    }
    std::optional<CloudAccount> account() const override { return m_account; }

    void goTo(Step step)
    {
        m_step = step;
        Q_EMIT stepChanged();
    }
    void fail(const Problem &problem)
    {
        end();
        Q_EMIT failed(problem);
    }
    void succeed(const CloudAccount &account, const QString &abilities)
    {
        end();
        become(account);
        Q_EMIT signedIn(abilities);
    }
    void become(const std::optional<CloudAccount> &account)
    {
        m_account = account;
        Q_EMIT accountChanged();
    }

    QList<Wanted> attempts;
    int cancelled = 0;
    bool isUnderWay = false;
    bool canSignOut = true;

private:
    void end()
    {
        isUnderWay = false;
        m_step = Step::None;
        Q_EMIT stepChanged();
    }

    Step m_step = Step::None;
    std::optional<CloudAccount> m_account;
};

} // namespace quillon::test
