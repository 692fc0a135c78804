// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/Require.h"
#include "sync/AccountKey.h"
#include "sync/Compression.h"
#include "sync/SealedFile.h"

#include <cstdint>
#include <cstring>
#include <sodium.h>

// The bytes are taken as a sealed file, as what is sealed in one, and as a key file.

namespace quillon::test {

namespace {

constexpr qsizetype limit = 100'000;
// Where a key file says what it costs, and where its checksum stands.
constexpr qsizetype costAt = 5;
constexpr qsizetype checksumAt = 121;
constexpr qsizetype checksumSize = 16;

void checkSealed(const QByteArray &bytes)
{
    static const AccountKey key = AccountKey::fromBytes(QByteArray(AccountKey::size, 'k')).value();
    const QString name = QStringLiteral("0000000000000001-000000000001.change");
    const auto content = opened(bytes, name, key);
    if (std::holds_alternative<QByteArray>(content)) {
        const auto renamed = opened(bytes, QStringLiteral("other"), key);
        require(std::holds_alternative<FileProblem>(renamed), "a file opens under its name only");
        for (const qsizetype at : {qsizetype{4}, bytes.size() / 2, bytes.size() - 1}) {
            QByteArray changed = bytes;
            changed[at] = char(changed.at(at) ^ 1);
            require(std::holds_alternative<FileProblem>(opened(changed, name, key)),
                "a file that was changed does not open");
        }
    }
}

void checkCompressed(const QByteArray &bytes)
{
    if (const auto plain = decompressed(bytes, limit)) {
        require(plain->size() <= limit, "no more comes out than may");
        require(decompressed(compressed(*plain), limit) == plain, "what came out goes in again");
    }
}

void checkKeyFile(QByteArray bytes)
{
    WrappedKey::unwrap(bytes, "passphrase");
    if (bytes.size() != checksumAt + checksumSize) {
        return;
    }
    // As if somebody had made it, who cannot know the passphrase but can make checksums. At no
    // cost, for the sake of the next inputs.
    const unsigned char cheap[] = {0, 0, 0, 1, 0, 0, 0, 8};
    std::memcpy(bytes.data() + costAt, cheap, sizeof(cheap));
    crypto_generichash(reinterpret_cast<unsigned char *>(bytes.data()) + checksumAt, checksumSize,
        reinterpret_cast<const unsigned char *>(bytes.constData()), checksumAt, nullptr, 0);
    const auto key = WrappedKey::unwrap(bytes, "another passphrase");
    require(std::holds_alternative<KeyFileProblem>(key), "nobody gets in without the passphrase");
    static const AccountKey own = AccountKey::fromBytes(QByteArray(AccountKey::size, 'k')).value();
    const auto number = WrappedKey::check(bytes, own);
    require(
        std::holds_alternative<KeyFileProblem>(number), "nobody proves a key without having it");
}

} // namespace

} // namespace quillon::test

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    quillon::test::checkSealed(bytes);
    quillon::test::checkCompressed(bytes);
    quillon::test::checkKeyFile(bytes);
    return 0;
}
