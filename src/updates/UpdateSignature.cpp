// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "updates/UpdateSignature.h"

#include <sodium.h>

namespace quillon {

namespace {

constexpr QByteArrayView opening("<!-- signature: ");
constexpr QByteArrayView closing(" -->\n");
/// 64 bytes in Base64.
constexpr qsizetype signatureLength = 88;
constexpr qsizetype lastLineLength = opening.size() + signatureLength + closing.size();

const unsigned char *bytesOf(const QByteArray &bytes)
{
    return reinterpret_cast<const unsigned char *>(bytes.constData());
}

/// The signature that the last line holds; empty when it is not such a line.
QByteArray signatureIn(QByteArrayView lastLine)
{
    if (!lastLine.startsWith(opening) || !lastLine.endsWith(closing)) {
        return {};
    }
    const QByteArray text = lastLine.sliced(opening.size(), signatureLength).toByteArray();
    QByteArray signature = QByteArray::fromBase64(
        text, QByteArray::Base64Encoding | QByteArray::AbortOnBase64DecodingErrors);
    // One spelling only: a decoder may pass over bits that nobody asked for.
    return signature.size() == crypto_sign_BYTES && signature.toBase64() == text ? signature
                                                                                 : QByteArray();
}

} // namespace

std::optional<QByteArray> signedContent(const QByteArray &file, const QByteArray &publicKey)
{
    const qsizetype contentLength = file.size() - lastLineLength;
    if (publicKey.size() != crypto_sign_PUBLICKEYBYTES || contentLength < 1 ||
        file.at(contentLength - 1) != '\n' || sodium_init() < 0) {
        return std::nullopt;
    }
    const QByteArray signature = signatureIn(QByteArrayView(file).sliced(contentLength));
    QByteArray content = file.first(contentLength);
    if (signature.isEmpty() ||
        crypto_sign_verify_detached(bytesOf(signature), bytesOf(content),
            static_cast<unsigned long long>(content.size()), bytesOf(publicKey)) != 0) {
        return std::nullopt;
    }
    return content;
}

} // namespace quillon
