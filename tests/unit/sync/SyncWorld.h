// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "SyncedComputer.h"

#include <QSet>
#include <QStringList>

#include <memory>
#include <vector>

namespace quillon::test {

/// Two to five computers and an account, all of which go wrong in every way there is, in an order
/// that the seed decides: requests are lost, cut, late, doubled and out of order, programs end and
/// disks fail at any step, clocks are wrong by a year, computers stay offline for weeks; the server
/// forgets preconditions and is restored from a backup, computers are, and somebody puts rubbish
/// into the folder and damages what is there.
class SyncWorld
{
public:
    explicit SyncWorld(quint64 seed);
    ~SyncWorld();

    void step();
    /// Lets everything work and everybody come home; then says what is not as it must be.
    QStringList end();

    /// What happened, by name: a world in which nothing goes wrong proves nothing.
    const QMap<QString, qint64> &counts() const { return m_counts; }

private:
    struct Computer;

    void happen(Computer &computer);
    void edit(Computer &computer);
    LocalEdit randomEdit(const Computer &computer);
    void beginRound(Computer &computer);
    void answer(Computer &computer);
    void restart(Computer &computer);
    void setBack(Computer &computer);
    void changeServer();
    void restoreServer();
    void spoil();
    void count(const QString &what) { ++m_counts[what]; }

    void comeHome();
    bool isSettled() const;
    bool runRounds(int most);
    SyncChanges heldSomewhere() const;
    QStringList problems(const SyncChanges &held);
    void checkShown(QStringList &problems) const;

    SeededRandom m_random;
    quint64 m_seed;
    FakeCloudAccount m_account;
    AccountKey m_key;
    std::vector<std::unique_ptr<Computer>> m_computers;
    QMap<QString, FakeCloudAccount::File> m_serverBackup;
    QMap<QString, QByteArray> m_foreign; ///< what nobody may touch
    SyncChanges m_kept;                  ///< every edit that was ever saved
    int m_oneFaultIn = 1;                ///< requests
    bool m_isSetBackWorld = false;
    bool m_isSpoiled = false;
    bool m_mayBeStale = false;
    QMap<QString, qint64> m_counts;
};

} // namespace quillon::test
