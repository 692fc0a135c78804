// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/CloudStorage.h"
#include "sync/AccountKey.h"

#include <QObject>

namespace quillon {

/// Sees to it that the account's key file wraps the key under which this computer seals. A new
/// passphrase is taken over; a file that is damaged, or older than what is known here, is replaced
/// by the copy that is kept here; a file with another key is left alone. Main thread.
class KeyFileWatch : public QObject
{
public:
    /// The key file that is to be kept beside the key from now on.
    using Renewed = std::function<void(const QByteArray &file)>;
    /// None: the account is ours.
    using Result = CloudResult<std::optional<KeyFileProblem>>;
    using Looked = std::function<void(const Result &)>;

    /// Account and key outlive it. `copy` is the key file as it is kept here.
    KeyFileWatch(CloudStorage &account, const AccountKey &key, QByteArray copy, Renewed renewed);

    const QByteArray &copy() const { return m_copy; }
    /// Whether the file of that revision was found ours.
    bool hasSeen(const QByteArray &revision) const;
    /// Reads the file. Calls back once, in a later turn, unless this goes before.
    void look(Looked looked);

private:
    void judge(const CloudStorage::Content &found, const Looked &looked);
    void putBack(const QByteArray &revision, const Result &otherwise, const Looked &looked);

    CloudStorage &m_account;
    const AccountKey &m_key;
    QByteArray m_copy;
    Renewed m_renewed;
    QByteArray m_seen; ///< revision
};

} // namespace quillon
