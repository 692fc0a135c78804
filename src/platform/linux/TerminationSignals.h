// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSocketNotifier>

#include <functional>
#include <memory>

namespace quillon {

/// SIGTERM, SIGINT and SIGHUP as an ordinary request to quit, so that the end of a session runs the
/// same way as the quit command. One per process, made on the main thread.
class TerminationSignals
{
public:
    /// `terminate` is called on the main thread, once per signal.
    explicit TerminationSignals(std::function<void()> terminate);
    ~TerminationSignals();
    TerminationSignals(const TerminationSignals &) = delete;
    TerminationSignals &operator=(const TerminationSignals &) = delete;

private:
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace quillon
