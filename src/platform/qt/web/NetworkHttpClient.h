// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/HttpClient.h"
#include "platform/qt/web/HttpTransfer.h"

#include <chrono>
#include <map>

namespace quillon {

struct HttpClientOptions
{
    /// A transfer on which nothing moves for so long fails.
    std::chrono::milliseconds silence = std::chrono::minutes(1);
    /// Where downloads go while they come in; empty: the system's folder for temporary files.
    QString folder;
    /// No file that the program asks for is longer, and one without an end must not fill the disk.
    qint64 longestDownload = qint64(1) << 30;
};

/// The web by QNetworkAccessManager: HTTP/1.1, TLS 1.2 or later, the system's trust store and the
/// system's proxy, ten redirects at most. Asks for plain bodies and takes no others; sends nothing
/// by which its user could be told from another. Nobody is asked for a password: a server that
/// wants one is a Response with status 401, a proxy that does is a failed transfer.
///
/// Main thread. Destroying it cancels all transfers; that may happen inside their callbacks too.
class NetworkHttpClient : public HttpClient
{
public:
    explicit NetworkHttpClient(HttpClientOptions options = {});
    ~NetworkHttpClient() override;
    NetworkHttpClient(const NetworkHttpClient &) = delete;
    NetworkHttpClient &operator=(const NetworkHttpClient &) = delete;

    Token get(const QUrl &url, qint64 bodyLimit, Completion completion) override;
    Token download(const QUrl &url, DownloadHandler handler) override;
    void cancel(Token token) override;

private:
    HttpTransfer &add(Token token, qint64 bodyLength, HttpTransfer::Sink sink);

    const HttpClientOptions m_options;
    std::map<Token, HttpTransfer *> m_transfers; ///< those that have not ended
    Token m_nextToken = 1;
};

} // namespace quillon
