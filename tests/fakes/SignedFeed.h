// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <array>
#include <sodium.h>

namespace quillon::test {

/// A pair of keys; the same for the same number.
class FeedKey
{
public:
    explicit FeedKey(unsigned char number = 0)
    {
        if (sodium_init() < 0) {
            qFatal("no libsodium");
        }
        std::array<unsigned char, crypto_sign_SEEDBYTES> seed{};
        for (std::size_t index = 0; index < seed.size(); ++index) {
            seed.at(index) = static_cast<unsigned char>(index + number);
        }
        crypto_sign_seed_keypair(m_public.data(), m_secret.data(), seed.data());
    }

    QByteArray publicKey() const
    {
        return {reinterpret_cast<const char *>(m_public.data()), qsizetype(m_public.size())};
    }
    QByteArray signatureOf(const QByteArray &content) const
    {
        QByteArray signature(crypto_sign_BYTES, '\0');
        crypto_sign_detached(reinterpret_cast<unsigned char *>(signature.data()), nullptr,
            reinterpret_cast<const unsigned char *>(content.constData()),
            static_cast<unsigned long long>(content.size()), m_secret.data());
        return signature.toBase64();
    }
    QByteArray sign(const QByteArray &content) const
    {
        return content + "<!-- signature: " + signatureOf(content) + " -->\n";
    }

private:
    std::array<unsigned char, crypto_sign_PUBLICKEYBYTES> m_public{};
    std::array<unsigned char, crypto_sign_SECRETKEYBYTES> m_secret{};
};

/// One release of a list.
inline QByteArray feedItem(const QByteArray &version,
    const QByteArray &link = "https://pages.example/new", const QByteArray &notes = "Better.")
{
    return "<item><q:version>" + version + "</q:version><link>" + link + "</link><description>" +
           notes + "</description></item>\n";
}

/// A whole list, not signed yet. `head` comes beside what every list has.
inline QByteArray feedText(const QByteArray &items,
    const QByteArray &issued = "2025-06-01T12:00:00Z", const QByteArray &head = {})
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<rss version=\"2.0\" xmlns:q=\"urn:quillon:appcast:1\"><channel>\n"
           "<q:application>com.orvandel.Quillon4</q:application><q:issued>" +
           issued + "</q:issued>" + head + "\n" + items + "</channel></rss>\n";
}

} // namespace quillon::test
