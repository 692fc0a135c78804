// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>

namespace quillon {

/// Broadcasts between the programs of one user's session, by name and object (both plain text).
class DistributedNotificationCenter
{
public:
    using Token = quint64;

    virtual ~DistributedNotificationCenter() = default;

    /// Hands it to the session at once. Without a session it is dropped with a log line.
    virtual void post(const QString &name, const QString &object) = 0;
    /// `observer` is called on the main thread for each post of `name` with exactly `object`.
    virtual Token addObserver(
        const QString &name, const QString &object, std::function<void()> observer) = 0;
    virtual void removeObserver(Token token) = 0;
};

} // namespace quillon
