// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Result.h"

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <functional>

namespace quillon {

/// Domain of failed transfers; the codes are those of the implementation. What the operating system
/// itself refuses (a full disk, a time-out) is in posixErrorDomain.
inline const QString httpErrorDomain = QStringLiteral("HttpErrorDomain");

/// GET requests over HTTP and HTTPS. Nothing blocks; callbacks come on the main thread, in a later
/// turn of its loop. HTTPS goes to servers whose certificate the system trusts, redirects never
/// lead from HTTPS to HTTP, and a transfer on which nothing moves for a minute fails. Nothing of an
/// earlier request (cookies, cache) goes into a later one. Main thread.
class HttpClient
{
public:
    using Token = quint64;

    struct Response
    {
        int status = 0;
        QByteArray body;
        /// What the server says that the body is, "text/html; charset=utf-8"; empty when it does
        /// not.
        QByteArray contentType = {};
    };
    /// An Error is a failed transfer: no connection, no trust, too many redirects, a body beyond
    /// the limit or shorter than announced. A bad status is a Response, whatever becomes of its
    /// body, as it says all: of one that is too long the beginning is given, of one that is cut off
    /// what came.
    using Completion = std::function<void(const Result<Response> &)>;

    struct Progress
    {
        qint64 chunk = 0;     ///< bytes since the last report
        qint64 received = 0;  ///< bytes so far
        qint64 expected = -1; ///< -1 when the server does not say
    };
    /// A body on its way into a file.
    struct DownloadHandler
    {
        std::function<void(const Progress &)> didWriteData;
        /// `path` is a temporary file with the whole body, whatever the status; it is removed after
        /// the call returns.
        std::function<void(const QString &path)> didFinishDownloading;
        /// The body did not come whole, whatever the status.
        std::function<void(const Error &)> didFail;
    };

    virtual ~HttpClient() = default;

    /// Bodies longer than `bodyLimit` bytes fail the transfer, unless the status is bad.
    virtual Token get(const QUrl &url, qint64 bodyLimit, Completion completion) = 0;
    virtual Token download(const QUrl &url, DownloadHandler handler) = 0;
    /// Ends a transfer; none of its callbacks comes any more. Unknown or ended tokens are ignored.
    virtual void cancel(Token token) = 0;
};

} // namespace quillon
