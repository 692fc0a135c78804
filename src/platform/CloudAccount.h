// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

namespace quillon {

/// Where the files that a person's computers share are, without the password.
struct CloudAccount
{
    enum class Kind
    {
        WebDav,
        Folder,
    };

    Kind kind = Kind::Folder;
    /// WebDAV: the address of the person's files, as findWebDavAddress() gives it.
    QUrl server = {};
    QString user = {};
    /// WebDAV: the folder of ours below that, its parts with a slash between them. Folder: its
    /// path.
    QString folder = {};
    /// SHA-256 of the one certificate that the person has compared and believes though the system
    /// does not; empty: nothing but what the system believes.
    QByteArray fingerprint = {};

    bool operator==(const CloudAccount &) const = default;

    /// Another one whenever kind, server, user or folder lead to another place, and the same for
    /// two spellings of one; it does not tell any of them.
    QByteArray identityToken() const;
    /// What it is for a keyring: the same for all folders of a user at a server. Empty for a
    /// folder, which has no password.
    QString secretName() const;
};

/// "3A:F0:…", as servers and browsers show the SHA-256 of a certificate.
QString fingerprintText(const QByteArray &fingerprint);

} // namespace quillon
