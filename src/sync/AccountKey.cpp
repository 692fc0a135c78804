// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/AccountKey.h"

#include "platform/RandomSource.h"

#include <QtEndian>

#include <cstring>
#include <sodium.h>

namespace quillon {

namespace {

// The file: mark, version, passes, kibibytes, salt, nonce, the wrapped key, the number of the
// passphrase, a proof that the key itself gives of all that, and a checksum, without which a
// damaged file would look like a wrong passphrase.
constexpr char mark[] = {'Q', 'L', 'K', 'Y'};
constexpr char version = 1;
constexpr qsizetype costAt = sizeof(mark) + 1;
constexpr qsizetype saltAt = costAt + 8;
constexpr qsizetype nonceAt = saltAt + crypto_pwhash_SALTBYTES;
constexpr qsizetype wrappedAt = nonceAt + crypto_aead_xchacha20poly1305_ietf_NPUBBYTES;
constexpr qsizetype wrappedSize = AccountKey::size + crypto_aead_xchacha20poly1305_ietf_ABYTES;
constexpr qsizetype numberAt = wrappedAt + wrappedSize;
constexpr qsizetype proofAt = numberAt + 4;
constexpr qsizetype proofSize = 16;
constexpr qsizetype checksumAt = proofAt + proofSize;
constexpr qsizetype checksumSize = 16;
constexpr qsizetype fileSize = checksumAt + checksumSize;

static_assert(crypto_aead_xchacha20poly1305_ietf_KEYBYTES == AccountKey::size);
static_assert(AccountKey::size >= crypto_generichash_KEYBYTES_MIN &&
              AccountKey::size <= crypto_generichash_KEYBYTES_MAX);

const unsigned char *at(const QByteArray &bytes, qsizetype position)
{
    return reinterpret_cast<const unsigned char *>(bytes.constData()) + position;
}

unsigned char *at(QByteArray &bytes, qsizetype position)
{
    return reinterpret_cast<unsigned char *>(bytes.data()) + position;
}

QByteArray digest(const unsigned char *bytes, std::size_t size)
{
    QByteArray made(checksumSize, '\0');
    crypto_generichash(at(made, 0), checksumSize, bytes, size, nullptr, 0);
    return made;
}

/// Nobody makes it who does not have the key.
QByteArray proof(const QByteArray &file, const AccountKey &key)
{
    QByteArray made(proofSize, '\0');
    crypto_generichash(at(made, 0), proofSize, at(file, 0), proofAt, key.data(), AccountKey::size);
    return made;
}

bool isProven(const QByteArray &file, const AccountKey &key)
{
    return sodium_memcmp(at(file, proofAt), proof(file, key).constData(), proofSize) == 0;
}

/// Null when there is not enough memory.
SecretBytes wrappingKey(
    const QByteArray &passphrase, const unsigned char *salt, const PassphraseCost &cost)
{
    SecretBytes made(AccountKey::size);
    if (made.isNull() ||
        crypto_pwhash(made.data(), made.size(), passphrase.constData(),
            static_cast<unsigned long long>(passphrase.size()), salt, cost.passes,
            std::size_t{cost.kibibytes} * 1024, crypto_pwhash_ALG_ARGON2ID13) != 0) {
        return SecretBytes(0);
    }
    return made;
}

bool isReasonable(const PassphraseCost &cost)
{
    return cost.passes >= crypto_pwhash_OPSLIMIT_MIN &&
           cost.passes <= highestPassphraseCost.passes &&
           cost.kibibytes >= crypto_pwhash_MEMLIMIT_MIN / 1024 &&
           cost.kibibytes <= highestPassphraseCost.kibibytes;
}

std::optional<KeyFileProblem> problemOf(const QByteArray &file)
{
    if (file.size() <= costAt || std::memcmp(file.constData(), mark, sizeof(mark)) != 0) {
        return KeyFileProblem::Damaged;
    }
    if (file.at(sizeof(mark)) > version) {
        return KeyFileProblem::Newer;
    }
    const bool whole = file.at(sizeof(mark)) == version && file.size() == fileSize &&
                       file.sliced(checksumAt) == digest(at(file, 0), checksumAt);
    return whole ? std::nullopt : std::optional(KeyFileProblem::Damaged);
}

} // namespace

std::optional<AccountKey> AccountKey::random(RandomSource &source)
{
    QByteArray bytes = source.bytes(size);
    std::optional<AccountKey> key = fromBytes(bytes);
    wipe(bytes);
    return key;
}

std::optional<AccountKey> AccountKey::fromBytes(const QByteArray &bytes)
{
    SecretBytes secret(size);
    if (bytes.size() != qsizetype(size) || secret.isNull()) {
        return std::nullopt;
    }
    std::memcpy(secret.data(), bytes.constData(), size);
    return AccountKey(std::move(secret));
}

QByteArray AccountKey::bytes() const
{
    return {reinterpret_cast<const char *>(m_secret.data()), qsizetype(size)};
}

QByteArray AccountKey::fingerprint() const
{
    return digest(m_secret.data(), m_secret.size());
}

std::optional<QByteArray> WrappedKey::wrap(const AccountKey &key, const QByteArray &passphrase,
    RandomSource &source, const PassphraseCost &cost, std::uint32_t number)
{
    const QByteArray random = source.bytes(int(wrappedAt - saltAt));
    if (random.size() != wrappedAt - saltAt || !isReasonable(cost)) {
        return std::nullopt;
    }
    QByteArray file(fileSize, '\0');
    std::memcpy(file.data(), mark, sizeof(mark));
    file[qsizetype(sizeof(mark))] = version;
    qToBigEndian(quint32{cost.passes}, file.data() + costAt);
    qToBigEndian(quint32{cost.kibibytes}, file.data() + costAt + 4);
    std::memcpy(file.data() + saltAt, random.constData(), std::size_t(random.size()));
    const SecretBytes wrapping = wrappingKey(passphrase, at(std::as_const(file), saltAt), cost);
    if (wrapping.size() != AccountKey::size) {
        return std::nullopt;
    }
    crypto_aead_xchacha20poly1305_ietf_encrypt(at(file, wrappedAt), nullptr, key.data(),
        AccountKey::size, at(std::as_const(file), 0), nonceAt, nullptr,
        at(std::as_const(file), nonceAt), wrapping.data());
    qToBigEndian(quint32{number}, file.data() + numberAt);
    file.replace(proofAt, proofSize, proof(file, key));
    file.replace(checksumAt, checksumSize, digest(at(std::as_const(file), 0), checksumAt));
    return file;
}

std::variant<AccountKey, KeyFileProblem> WrappedKey::unwrap(
    const QByteArray &file, const QByteArray &passphrase)
{
    if (const auto problem = problemOf(file)) {
        return *problem;
    }
    const PassphraseCost cost{qFromBigEndian<quint32>(file.constData() + costAt),
        qFromBigEndian<quint32>(file.constData() + costAt + 4)};
    if (!isReasonable(cost)) {
        return KeyFileProblem::Damaged;
    }
    const SecretBytes wrapping = wrappingKey(passphrase, at(file, saltAt), cost);
    SecretBytes secret(AccountKey::size);
    if (wrapping.size() != AccountKey::size || secret.isNull()) {
        return KeyFileProblem::NoMemory;
    }
    if (crypto_aead_xchacha20poly1305_ietf_decrypt(secret.data(), nullptr, nullptr,
            at(file, wrappedAt), wrappedSize, at(file, 0), nonceAt, at(file, nonceAt),
            wrapping.data()) != 0) {
        return KeyFileProblem::WrongPassphrase;
    }
    AccountKey key(std::move(secret));
    if (!isProven(file, key)) {
        return KeyFileProblem::Damaged;
    }
    return key;
}

std::variant<std::uint32_t, KeyFileProblem> WrappedKey::check(
    const QByteArray &file, const AccountKey &key)
{
    if (const auto problem = problemOf(file)) {
        return *problem;
    }
    if (!isProven(file, key)) {
        return KeyFileProblem::OtherKey;
    }
    return qFromBigEndian<quint32>(file.constData() + numberAt);
}

} // namespace quillon
