// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sync/SecretBytes.h"

#include <QByteArray>

#include <cstdint>
#include <optional>
#include <variant>

namespace quillon {

class RandomSource;

/// The key under which everything in an account is sealed: random, made once, and kept in the
/// account only wrapped by the passphrase. Another passphrase wraps the same key anew, so no other
/// file has to be written again.
class AccountKey
{
public:
    static constexpr std::size_t size = 32;

    /// None when the source or the memory fails.
    static std::optional<AccountKey> random(RandomSource &source);
    /// A key that was kept elsewhere (the desktop's store of secrets). None unless it has the size.
    static std::optional<AccountKey> fromBytes(const QByteArray &bytes);

    const unsigned char *data() const { return m_secret.data(); }
    /// For a store of secrets; whoever asks wipes it.
    QByteArray bytes() const;
    /// What tells keys apart and says nothing about them, 16 bytes.
    QByteArray fingerprint() const;

private:
    friend class WrappedKey;
    explicit AccountKey(SecretBytes secret)
        : m_secret(std::move(secret))
    {
    }

    SecretBytes m_secret;
};

/// What Argon2id is asked for.
struct PassphraseCost
{
    std::uint32_t passes = 3;
    std::uint32_t kibibytes = 256 * 1024;

    bool operator==(const PassphraseCost &) const = default;
};
/// A key file that asks for more is not tried: it would stop the computer rather than protect it.
inline constexpr PassphraseCost highestPassphraseCost{16, 1024 * 1024};

enum class KeyFileProblem
{
    WrongPassphrase, ///< the file is whole
    Damaged,         ///< not a whole key file of ours, or one that asks for more than is reasonable
    Newer,           ///< written by a later version of the program
    NoMemory,        ///< this computer has not enough for it at the moment
    OtherKey,        ///< the file is whole, and what it wraps is not the key in question
};

/// The contents of the account's key file.
class WrappedKey
{
public:
    /// No key file is longer, in bytes.
    static constexpr qsizetype longest = 4096;

    /// The passphrase is UTF-8 and not empty. Takes as long as the cost says, about a second: not
    /// for the main thread. None when the source or the memory fails. `number` counts the
    /// passphrases that the account has had, this one included.
    static std::optional<QByteArray> wrap(const AccountKey &key, const QByteArray &passphrase,
        RandomSource &source, const PassphraseCost &cost = {}, std::uint32_t number = 1);
    /// Any bytes; the same holds.
    static std::variant<AccountKey, KeyFileProblem> unwrap(
        const QByteArray &file, const QByteArray &passphrase);
    /// The number of the file's passphrase, without the passphrase and at once: whoever has the
    /// key sees whether somebody who had it made the file.
    static std::variant<std::uint32_t, KeyFileProblem> check(
        const QByteArray &file, const AccountKey &key);
};

} // namespace quillon
