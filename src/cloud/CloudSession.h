// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cloud/CloudSecrets.h"
#include "platform/CloudAccountStatus.h"
#include "platform/SettingsStore.h"
#include "sync/Replica.h"
#include "sync/SyncSchedule.h"

#include <QObject>

#include <vector>

namespace quillon {

class CloudAccounts;
class CloudProvider;
class PowerSaving;
class Reachability;
class RecordMirror;

/// Syncs with the account while `iCloudSync` is on and the account is the one that the person has
/// agreed to (`iCloudToken`). Otherwise nothing runs, nothing is asked for, and no secret is read.
/// Main thread.
class CloudSession : public QObject
{
    Q_OBJECT

public:
    struct Collaborators
    {
        CloudProvider &cloud;
        SecretStore &secrets;
        SettingsStore &settings;
        Scheduler &scheduler;
        RandomSource &random;
        Reachability &reachability;
        PowerSaving &powerSaving;
        CloudAccounts &accounts;
        RecordMirror &mirror;
    };

    explicit CloudSession(const Collaborators &collaborators);
    ~CloudSession() override;

    /// To be called once the records are open; follows settings and account by itself.
    void begin();
    /// The person signed in, perhaps to the same account with another password.
    void renew();
    void networkChanged();

    /// What keeps the account from being in sync, in the user's language; empty when nothing does.
    QString trouble() const { return m_trouble; }

Q_SIGNALS:
    void troubleChanged();

private:
    struct Running;

    void followSoon();
    void follow();
    void stop();
    void retryAfter(std::chrono::milliseconds pause);
    void readSecrets();
    void takeSecrets(const CloudSecrets::Found &found);
    void start(const CloudSecrets::Kept &kept);
    void look();
    void run(SyncRound::Look look, const SyncRound::Done &done);
    void ended(const SyncOutcome &outcome);
    void putKeyBack();
    void keepKeyFile(const QByteArray &file);
    void setTrouble(const QString &trouble);

    Collaborators m_deps;
    CloudSecrets m_secrets;
    std::vector<SettingsStore::Token> m_observers;
    std::optional<CloudAccountStatus::Token> m_accountObserver;
    bool m_hasBegun = false;
    bool m_isPowerWatched = false;
    bool m_isFollowing = false;
    std::optional<CloudAccount> m_account; ///< the one that is synced with, or being opened
    quint64 m_opening = 0;
    std::optional<Scheduler::Token> m_retry;
    std::unique_ptr<Running> m_running;
    QString m_trouble;
};

} // namespace quillon
