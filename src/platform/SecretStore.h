// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>
#include <optional>
#include <variant>

namespace quillon {

/// Passwords in the user's keyring, and nowhere else: without a keyring nothing is kept. Each call
/// is answered once, in a later turn of the main loop, and never after the store has gone; what it
/// asked for may be done nevertheless. A keyring that is locked asks its user by itself, which is
/// waited for, but not for ever. Main thread.
class SecretStore
{
public:
    enum class Problem
    {
        NoKeyring, ///< the session has none, or none that answers
        Refused,   ///< its user did not unlock it, or does not want us in
        TooLate,   ///< it did not answer in time; perhaps its user is still being asked
        Failed,
    };
    struct Failure
    {
        Problem problem = Problem::Failed;
        QString message; ///< for the log; never holds a secret
    };
    /// None when there is no secret of that name.
    using Read = std::function<void(const std::variant<std::optional<QString>, Failure> &)>;
    using Done = std::function<void(const std::optional<Failure> &)>;

    virtual ~SecretStore() = default;

    /// Replaces the one of that name. A name is not empty and is shown to who looks at the keyring.
    virtual void store(const QString &name, const QString &secret, Done done) = 0;
    virtual void read(const QString &name, Read read) = 0;
    /// Success when there is none.
    virtual void remove(const QString &name, Done done) = 0;
};

/// What is told the person of it, in their language.
QString secretMessage(SecretStore::Problem problem);

} // namespace quillon
