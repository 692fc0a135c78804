// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "netlink/ByteSpan.h"

#include <QByteArray>
#include <QList>
#include <QtEndian>

namespace quillon::test {

// Information elements of IEEE 802.11, byte by byte.

inline ByteSpan spanOf(const QByteArray &bytes)
{
    return std::as_bytes(std::span(bytes.constData(), static_cast<std::size_t>(bytes.size())));
}

inline QByteArray element(int id, const QByteArray &content)
{
    return QByteArray(1, static_cast<char>(id)) + QByteArray(1, static_cast<char>(content.size())) +
           content;
}

inline QByteArray ssidElement(const QByteArray &name)
{
    return element(0, name);
}

inline QByteArray littleEndian(int number)
{
    QByteArray bytes(2, '\0');
    qToLittleEndian(static_cast<quint16>(number), bytes.data());
    return bytes;
}

inline QByteArray suiteList(const QByteArray &organization, const QList<int> &types)
{
    QByteArray bytes = littleEndian(static_cast<int>(types.size()));
    for (const int type : types) {
        bytes += organization + static_cast<char>(type);
    }
    return bytes;
}

/// What an RSN element holds; by default CCMP for all.
struct Rsn
{
    QList<int> keys;
    QList<int> ciphers{4};
    int groupCipher = 4;
    int capabilities = 0;
    int version = 1;

    QByteArray content() const
    {
        const QByteArray organization = QByteArray::fromHex("000fac");
        return littleEndian(version) + organization + static_cast<char>(groupCipher) +
               suiteList(organization, ciphers) + suiteList(organization, keys) +
               littleEndian(capabilities);
    }
    QByteArray bytes() const { return element(48, content()); }
};

/// The vendor element of WPA, with TKIP for all by default.
inline QByteArray wpaElement(const QList<int> &keys, const QList<int> &ciphers = {2})
{
    const QByteArray organization = QByteArray::fromHex("0050f2");
    return element(221, organization + '\1' + littleEndian(1) + organization + '\2' +
                            suiteList(organization, ciphers) + suiteList(organization, keys));
}

} // namespace quillon::test
