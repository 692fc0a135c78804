// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/SealedFile.h"

#include "platform/RandomSource.h"
#include "sync/AccountKey.h"
#include "sync/Compression.h"

#include <sodium.h>

namespace quillon {

namespace {

// The file: mark, version, nonce, then what is sealed together with mark, version and name.
constexpr QByteArrayView mark("QLS");
constexpr char version = 1;
constexpr qsizetype nonceAt = 4;
constexpr qsizetype nonceSize = crypto_aead_xchacha20poly1305_ietf_NPUBBYTES;
constexpr qsizetype sealAt = nonceAt + nonceSize;
constexpr qsizetype tagSize = crypto_aead_xchacha20poly1305_ietf_ABYTES;

QByteArray header()
{
    return mark.toByteArray() + version;
}

const unsigned char *at(const QByteArray &bytes, qsizetype position)
{
    return reinterpret_cast<const unsigned char *>(bytes.constData()) + position;
}

} // namespace

QByteArray sealed(
    const QByteArray &content, const QString &name, const AccountKey &key, RandomSource &source)
{
    const QByteArray plain = compressed(content);
    const QByteArray nonce = source.bytes(int(nonceSize));
    if (plain.isEmpty() || nonce.size() != nonceSize) {
        return {};
    }
    const QByteArray bound = header() + name.toUtf8();
    QByteArray file = header() + nonce;
    file.resize(sealAt + plain.size() + tagSize);
    crypto_aead_xchacha20poly1305_ietf_encrypt(
        reinterpret_cast<unsigned char *>(file.data()) + sealAt, nullptr, at(plain, 0),
        static_cast<unsigned long long>(plain.size()), at(bound, 0),
        static_cast<unsigned long long>(bound.size()), nullptr, at(nonce, 0), key.data());
    return file;
}

ReadResult<QByteArray> opened(const QByteArray &file, const QString &name, const AccountKey &key)
{
    if (file.size() > longestSealedFile) {
        return FileProblem::TooLarge;
    }
    if (!file.startsWith(mark) || file.size() <= nonceAt) {
        return FileProblem::Damaged;
    }
    if (file.at(nonceAt - 1) > version) {
        return FileProblem::Newer;
    }
    if (file.at(nonceAt - 1) != version || file.size() < sealAt + tagSize) {
        return FileProblem::Damaged;
    }
    const QByteArray bound = header() + name.toUtf8();
    QByteArray plain(file.size() - sealAt - tagSize, '\0');
    if (crypto_aead_xchacha20poly1305_ietf_decrypt(reinterpret_cast<unsigned char *>(plain.data()),
            nullptr, nullptr, at(file, sealAt),
            static_cast<unsigned long long>(file.size() - sealAt), at(bound, 0),
            static_cast<unsigned long long>(bound.size()), at(file, nonceAt), key.data()) != 0) {
        return FileProblem::Damaged;
    }
    std::optional<QByteArray> content = decompressed(plain, longestContent);
    if (!content) {
        return FileProblem::TooLarge;
    }
    return *std::move(content);
}

} // namespace quillon
