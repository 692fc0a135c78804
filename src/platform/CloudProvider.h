// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/CloudAccount.h"
#include "platform/CloudStorage.h"

#include <functional>
#include <memory>

namespace quillon {

/// What a person says to sign in at a WebDAV server.
struct WebDavSignIn
{
    QString address; ///< typed, or copied from a browser or a manual
    QString user;
    QString password;
    QByteArray fingerprint = {}; ///< as in CloudAccount
};

/// Where accounts become storages. Main thread.
class CloudProvider
{
public:
    /// Something under way; it ends without an answer when this goes.
    class Request
    {
    public:
        virtual ~Request() = default;
    };
    using Found = std::function<void(const CloudResult<QUrl> &)>;

    virtual ~CloudProvider() = default;

    /// What is needed of the account is copied. A folder needs no password. Nothing is asked yet.
    virtual std::unique_ptr<CloudStorage> storage(
        const CloudAccount &account, const QString &password) = 0;
    /// Looks for the person's files at the server and calls `found` once, in a later turn, which
    /// may destroy the request. The password goes to that server only.
    virtual std::unique_ptr<Request> findWebDavAddress(const WebDavSignIn &signIn, Found found) = 0;
};

} // namespace quillon
