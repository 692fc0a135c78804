// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/CloudAccount.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QDir>
#include <QIODevice>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int httpsPort = 443;
constexpr int httpPort = 80;

/// One spelling for one place: no default port, no slash at the end, small letters where they do
/// not matter. The path is compared as the server gets it.
QByteArray placeOf(const QUrl &server)
{
    const int usualPort = server.scheme() == "http"_L1 ? httpPort : httpsPort;
    QUrl place;
    place.setScheme(server.scheme());
    place.setHost(server.host());
    place.setPort(server.port() == usualPort ? -1 : server.port());
    place.setPath(server.path(QUrl::FullyEncoded), QUrl::StrictMode);
    return place.adjusted(QUrl::NormalizePathSegments | QUrl::StripTrailingSlash)
        .toEncoded(QUrl::FullyEncoded);
}

QString cleanFolder(const CloudAccount &account)
{
    if (account.kind == CloudAccount::Kind::Folder) {
        return QDir::cleanPath(account.folder);
    }
    return account.folder.split(u'/', Qt::SkipEmptyParts).join(u'/');
}

} // namespace

QByteArray CloudAccount::identityToken() const
{
    QByteArray text;
    QDataStream stream(&text, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_6_0);
    stream << QByteArray("quillon account") << static_cast<int>(kind);
    if (kind == Kind::WebDav) {
        stream << placeOf(server) << user;
    }
    stream << cleanFolder(*this);
    return QCryptographicHash::hash(text, QCryptographicHash::Sha256);
}

QString CloudAccount::secretName() const
{
    if (kind == Kind::Folder) {
        return {};
    }
    return user + u" at "_s + QString::fromLatin1(placeOf(server));
}

QString fingerprintText(const QByteArray &fingerprint)
{
    return QString::fromLatin1(fingerprint.toHex(':').toUpper());
}

} // namespace quillon
