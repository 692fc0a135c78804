// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sync/RequestQueue.h"
#include "sync/RoundState.h"

namespace quillon {

/// Puts what was done here into the account: makes files of it one by one, so that neither this
/// computer's memory nor its main loop is held up by much of it. Main thread.
class FileSending
{
public:
    explicit FileSending(RoundState &state);

    bool isNeeded() const;
    /// Each file once: what could not be sent waits for the next round.
    void run(RequestQueue::Finished finished);

private:
    using Answered = RequestQueue::Answered;

    std::optional<QString> next();
    void send(const QString &name, const Answered &answered);
    void settle(const QString &name, const Answered &answered);
    void compare(const QString &name, const CloudStorage::Content &there, const Answered &answered);
    void replace(const QString &name, const QByteArray &revision, const Answered &answered);
    void sent(const QString &name, const QByteArray &revision);

    RoundState &m_state;
    RequestQueue m_queue;
    QSet<QString> m_tried;
};

} // namespace quillon
