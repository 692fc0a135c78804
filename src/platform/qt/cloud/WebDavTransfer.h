// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/CloudStorage.h"

#include <QObject>
#include <QTimer>
#include <QUrl>

#include <chrono>
#include <functional>
#include <optional>
#include <utility>

class QNetworkAccessManager;
class QNetworkReply;
class QNetworkRequest;

namespace quillon {

/// What is asked of a WebDAV server.
struct WebDavRequest
{
    QByteArray method;
    QUrl url;
    QList<std::pair<QByteArray, QByteArray>> headers = {};
    QByteArray body = {};
    /// Bytes that an answer may have at most.
    qint64 limit = 0;
    /// Where the body of a good answer goes piece by piece, instead of into the answer. An error
    /// ends the request with it.
    std::function<std::optional<CloudError>(const QByteArray &bytes)> take = {};
};

/// What it answers, with whatever status.
struct WebDavAnswer
{
    int status = 0;
    QUrl url;                ///< where it came from
    QByteArray body;         ///< only of a good status (2xx), and of no page
    QByteArray revision;     ///< its ETag, see webDavRevision()
    bool isWeak = false;     ///< the ETag may stand for other bytes yet
    bool isPage = false;     ///< HTML: it is meant for people
    bool saysLength = false; ///< it would show if the body had been cut off
};

/// An ETag as the revision that we keep: without the mark of a weak one, which some servers put on
/// a fresh file and take off a second later. Empty when it could not be sent back.
QByteArray webDavRevision(const QByteArray &etag);

/// One request with the redirects that it meets, as long as they stay at the server. Main thread.
///
/// It calls `done` once, in a later turn than start(), and deletes itself. dispose() ends it
/// without a word.
class WebDavTransfer : public QObject
{
    Q_OBJECT

public:
    struct Trust
    {
        QByteArray authorization; ///< the value of that header
        QByteArray fingerprint;   ///< SHA-256 of the certificate that is believed nevertheless
    };
    struct Limits
    {
        /// For how long nothing may move.
        std::chrono::milliseconds silence = std::chrono::seconds(30);
        /// How long it may take at all.
        std::chrono::milliseconds whole = std::chrono::minutes(10);
    };
    using Done = std::function<void(const CloudResult<WebDavAnswer> &)>;

    WebDavTransfer(QNetworkAccessManager &network, Trust trust, Limits limits,
        WebDavRequest request, Done done);
    ~WebDavTransfer() override;

    void start();
    void dispose();

private:
    void send();
    QNetworkRequest prepared() const;
    void connectReply();
    void readHead();
    bool isRedirect() const;
    void follow();
    void readBody();
    void judgeCertificate();
    void replyFinished();
    CloudError networkError() const;
    int status() const;
    bool isWanted() const;
    void endSoon(CloudError error);
    void end(const CloudResult<WebDavAnswer> &result);
    void leave();

    QNetworkAccessManager &m_network;
    const Trust m_trust;
    const Limits m_limits;
    WebDavRequest m_request;
    Done m_done;
    QNetworkReply *m_reply = nullptr;
    WebDavAnswer m_answer;
    qint64 m_received = 0;
    int m_redirects = 0;
    std::optional<CloudError> m_distrust;
    QTimer m_silence;
    QTimer m_whole;
};

} // namespace quillon
