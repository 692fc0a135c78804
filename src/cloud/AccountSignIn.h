// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cloud/AccountUnlocking.h"
#include "cloud/CloudSecrets.h"
#include "cloud/CloudSignIn.h"
#include "platform/AccountProbe.h"
#include "platform/CloudProvider.h"

namespace quillon {

class CloudAccounts;
class SettingsStore;

/// Finds the address, tries the account, opens its key, keeps the secrets, and only then is the
/// person signed in. Main thread.
class AccountSignIn : public CloudSignIn
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
        CloudAccounts &accounts;
        PassphraseCost cost = {};
    };

    explicit AccountSignIn(const Collaborators &collaborators);
    ~AccountSignIn() override;

    Step step() const override { return m_step; }
    void begin(const Wanted &wanted) override;
    void cancel() override;
    /// Switches the sync off as well: there is nobody left to ask about it.
    void signOut() override;
    /// Removes what an attempt, or a sign-out, left in the keyring when the program ended in it.
    void clearUp();
    std::optional<CloudAccount> account() const override;

private:
    void setStep(Step step);
    /// False when somebody who heard of it has given the attempt up.
    bool advance(Step step);
    void findAddress();
    void tryAccount();
    void unlock();
    void keep(const AccountUnlocking::Opened &opened);
    void putKey(const AccountUnlocking::Opened &opened);
    void succeed();
    void fail(const CloudError &error);
    void fail(const Problem &problem);
    void forget(const CloudAccount &account);
    void drop();

    Collaborators m_deps;
    CloudSecrets m_secrets;
    quint64 m_token = 0; ///< of the observer of accounts
    Step m_step = Step::None;
    quint64 m_attempt = 0;

    // Of the attempt that is under way.
    Wanted m_wanted;
    CloudAccount m_account;
    AccountAbilities m_abilities;
    bool m_hasKept = false; ///< secrets of `m_account`, perhaps
    std::unique_ptr<CloudProvider::Request> m_search;
    std::unique_ptr<CloudStorage> m_storage;
    std::unique_ptr<AccountProbe> m_probe;
    std::unique_ptr<AccountUnlocking> m_unlocking;
};

} // namespace quillon
