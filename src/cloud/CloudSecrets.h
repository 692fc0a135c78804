// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/CloudAccount.h"
#include "platform/SecretStore.h"
#include "sync/AccountKey.h"

#include <memory>
#include <variant>

namespace quillon {

/// An account's key, opened, and the key file that it came in.
struct OpenedKey
{
    AccountKey key;
    QByteArray file;
};

/// What a computer keeps of an account in the keyring: the password, and the opened key, so that
/// nobody is asked for the passphrase at each start. Main thread.
class CloudSecrets
{
public:
    struct Kept
    {
        QString password; ///< empty for an account that has none
        std::shared_ptr<const OpenedKey> key;
    };
    /// None when there are not all of them.
    using Found = std::variant<std::optional<Kept>, SecretStore::Failure>;
    using Read = std::function<void(const Found &)>;
    using Done = SecretStore::Done;

    /// The store outlives it, and answers as it does: once, later, never after it has gone.
    explicit CloudSecrets(SecretStore &store);

    void keep(const CloudAccount &account, const Kept &kept, Done done);
    /// Another key file beside the same key: the account has another passphrase.
    void keepKeyFile(
        const CloudAccount &account, const AccountKey &key, const QByteArray &file, Done done);
    void read(const CloudAccount &account, Read read);
    /// All but what `other` needs as well; one is removed, whatever becomes of the other. Whether
    /// all are gone is told, where somebody wants to know.
    void forget(const CloudAccount &account, const std::optional<CloudAccount> &other,
        std::function<void(bool)> done = {});

    /// What the key is for the keyring.
    static QString keyName(const CloudAccount &account);

private:
    SecretStore &m_store;
};

} // namespace quillon
