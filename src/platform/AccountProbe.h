// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/CloudStorage.h"

#include <QObject>

namespace quillon {

class RandomSource;

/// What an account that can be read and written can do beyond that.
struct AccountAbilities
{
    bool makesFilesOnce = false;      ///< of two who make a file one is told that it has Changed
    bool replacesWhatIsMeant = false; ///< and so of two who replace one of the same revision
    bool tellsChanges = false;        ///< other bytes have another revision

    bool operator==(const AccountAbilities &) const = default;
    /// For people, in their language.
    QString sentence() const;
};

/// Tries an account at sign-in: writes, reads, lists and removes a file of its own. It leaves
/// nothing behind, and removes what an earlier one left that was ended on the way. Main thread.
class AccountProbe : public QObject
{
    Q_OBJECT

public:
    using Done = std::function<void(const CloudResult<AccountAbilities> &)>;

    /// Both outlive it.
    AccountProbe(CloudStorage &storage, RandomSource &random);

    /// Calls `done` once, in a later turn, unless this goes before; it may destroy this. Once.
    void start(Done done);

private:
    /// A callback of the storage's that comes to nothing when this has gone.
    template <typename Reply>
    auto guarded(Reply reply);

    void begin();
    void clearUp(QStringList names);
    void create();
    void createAgain();
    void replaceAnything();
    void replaceStale();
    void replaceMeant();
    void findInListing();
    void removeAgain();
    void readBack(const std::function<void()> &next);
    void disturbed(const CloudError &error);
    void fail(const CloudError &error);
    void end(const CloudResult<AccountAbilities> &result);

    CloudStorage &m_storage;
    RandomSource &m_random;
    Done m_done;
    QString m_name;
    QByteArray m_bytes; ///< what the file holds now
    QByteArray m_revision;
    QByteArray m_stale;
    AccountAbilities m_abilities;
    int m_tries = 0;
};

/// Whether a file of that name is one of a probe's, and no part of the account.
bool isProbeFile(const QString &name);

} // namespace quillon
