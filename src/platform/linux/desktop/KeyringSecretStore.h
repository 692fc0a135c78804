// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/SecretStore.h"

#include <QDBusConnection>
#include <QObject>

#include <chrono>

namespace QKeychain {
class Job;
}

namespace quillon {

class Scheduler;

/// Passwords in what implements the desktop's Secret Service, or in KWallet. Whether one of them
/// answers is found out first: the library would wait for it, or keep passwords in the clear if it
/// were told to.
class KeyringSecretStore : public SecretStore
{
public:
    /// `bus` is that of the session. `patience` is how long a person may take to unlock it.
    KeyringSecretStore(const QDBusConnection &bus, Scheduler &scheduler,
        std::chrono::milliseconds patience = std::chrono::minutes(2));

    void store(const QString &name, const QString &secret, Done done) override;
    void read(const QString &name, Read read) override;
    void remove(const QString &name, Done done) override;

private:
    /// None when there is no such entry, where that is no failure.
    using Ended = std::function<void(const std::optional<Failure> &, QKeychain::Job *)>;

    void withKeyring(std::function<void()> begin, std::function<void(const Failure &)> fail);
    void tryService(qsizetype number, const std::function<void()> &begin,
        const std::function<void(const Failure &)> &fail);
    void run(QKeychain::Job *job, const QString &name, const Ended &ended);
    void tellMissingFromLocked(const Read &read);

    QDBusConnection m_bus;
    Scheduler &m_scheduler;
    const std::chrono::milliseconds m_patience;
    QObject m_context;
};

} // namespace quillon
