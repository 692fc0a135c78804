// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sync/RoundState.h"

#include <QObject>

namespace quillon {

/// The account's head: some random bytes that whoever wrote something replaces by others. Nobody
/// reads more out of it than that they are others, so a lost, an old or a damaged one costs a
/// listing, or the time to the next one. Main thread.
class HeadFile : public QObject
{
public:
    using Answered = std::function<void(bool isNews)>;

    explicit HeadFile(RoundState &state)
        : m_state(state)
    {
    }

    /// Whether the account should be listed.
    void look(Answered answered);
    /// Everything of which the head told when it was looked at has been read.
    void remember();
    bool mayReplace() const { return m_tries > 0; }
    /// Tells the others that something was written; or it is news, and nothing was told.
    void replace(Answered answered);

private:
    bool take(const CloudResult<std::optional<CloudStorage::Content>> &result);
    void write(const Answered &answered);
    void written(
        const QByteArray &bytes, const CloudResult<QByteArray> &result, const Answered &answered);

    RoundState &m_state;
    std::optional<CloudStorage::Content> m_seen;
    bool m_hasLooked = false;
    bool m_isMissing = false;
    bool m_isForeign = false; ///< longer than any of ours
    int m_tries = 3;
};

} // namespace quillon
