// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/CloudAccount.h"
#include "platform/CloudAccountStatus.h"
#include "platform/SettingsStore.h"

#include <QList>

#include <map>
#include <optional>

namespace quillon {

/// The account that the person is signed in to, as the setting `cloudAccount` says; also when
/// another program changes that. What does not name a place is no account. Beside it stands of
/// which others secrets may be in the keyring: it is known before the keyring is asked for
/// anything, since the program may end at any moment. Main thread.
class CloudAccounts : public CloudAccountStatus
{
public:
    explicit CloudAccounts(SettingsStore &settings);
    ~CloudAccounts() override;
    CloudAccounts(const CloudAccounts &) = delete;
    CloudAccounts &operator=(const CloudAccounts &) = delete;

    std::optional<CloudAccount> account() const;
    void set(const CloudAccount &account);
    void forget();

    /// Accounts that nobody is signed in to, and whose secrets may be in the keyring.
    QList<CloudAccount> left() const;
    void addLeft(const CloudAccount &account);
    void removeLeft(const CloudAccount &account);

    QVariant identityToken() const override;
    Token addObserver(std::function<void()> changed) override;
    void removeObserver(Token token) override;

private:
    void store(const std::optional<CloudAccount> &account, const QList<CloudAccount> &left);
    void tell();

    SettingsStore &m_settings;
    std::optional<CloudAccount> m_told;
    SettingsStore::Token m_observer;
    std::map<Token, std::function<void()>> m_observers;
    Token m_nextToken = 1;
};

} // namespace quillon
