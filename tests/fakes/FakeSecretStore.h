// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Scheduler.h"
#include "platform/SecretStore.h"

#include <QMap>
#include <QObject>
#include <QStringList>

namespace quillon::test {

/// A keyring; its answers come with the main loop's next turn.
class FakeSecretStore : public SecretStore
{
public:
    explicit FakeSecretStore(Scheduler &scheduler)
        : m_scheduler(scheduler)
    {
    }

    void store(const QString &name, const QString &secret, Done done) override
    {
        asked << QStringLiteral("store ") + name;
        const std::optional<Failure> failure = failureNow();
        if (!failure) {
            secrets.insert(name, secret);
        }
        m_scheduler.onMain(&m_context, [done = std::move(done), failure] { done(failure); });
    }
    void read(const QString &name, Read read) override
    {
        asked << QStringLiteral("read ") + name;
        std::variant<std::optional<QString>, Failure> answer;
        if (const auto failure = failureNow()) {
            answer = *failure;
        } else if (secrets.contains(name)) {
            answer = std::optional(secrets.value(name));
        }
        m_scheduler.onMain(&m_context, [read = std::move(read), answer] { read(answer); });
    }
    void remove(const QString &name, Done done) override
    {
        asked << QStringLiteral("remove ") + name;
        const std::optional<Failure> failure = failureNow();
        if (!failure) {
            secrets.remove(name);
        }
        m_scheduler.onMain(&m_context, [done = std::move(done), failure] { done(failure); });
    }

    QMap<QString, QString> secrets;
    QStringList asked; ///< "store NAME", "read NAME", "remove NAME"
    std::optional<Problem> problem;
    int failsFrom = 0; ///< with `problem`: that many calls go well before

private:
    std::optional<Failure> failureNow()
    {
        if (!problem || failsFrom-- > 0) {
            return std::nullopt;
        }
        failsFrom = 0;
        return Failure{*problem, QStringLiteral("no")};
    }

    Scheduler &m_scheduler;
    QObject m_context;
};

} // namespace quillon::test
