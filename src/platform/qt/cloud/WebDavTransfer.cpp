// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/cloud/WebDavTransfer.h"

#include "platform/qt/cloud/WebDavAddress.h"
#include "platform/qt/web/WebRequest.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslError>
#include <QStringList>

#include <algorithm>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int mostRedirects = 5;
constexpr int wrongPassword = 401;
constexpr qint64 pieceBytes = 64 * 1024;
/// What Qt keeps for us before it lets the sender wait.
constexpr qint64 bufferBytes = 4 * pieceBytes;

CloudError problem(CloudProblem what, const char *message)
{
    return {what, QString::fromLatin1(message)};
}

} // namespace

QByteArray webDavRevision(const QByteArray &etag)
{
    constexpr qsizetype longest = 256;
    QByteArray revision = etag.trimmed();
    if (revision.startsWith("W/")) {
        revision = revision.mid(2);
    }
    const bool canBeSent = std::all_of(revision.begin(), revision.end(),
        [](char letter) { return letter > ' ' && letter < 0x7f; });
    return canBeSent && revision.size() <= longest ? revision : QByteArray();
}

WebDavTransfer::WebDavTransfer(
    QNetworkAccessManager &network, Trust trust, Limits limits, WebDavRequest request, Done done)
    : m_network(network)
    , m_trust(std::move(trust))
    , m_limits(limits)
    , m_request(std::move(request))
    , m_done(std::move(done))
{
    const auto late = [this] { end(problem(CloudProblem::Unreachable, "the server is too slow")); };
    m_silence.setSingleShot(true);
    connect(&m_silence, &QTimer::timeout, this, late);
    m_whole.setSingleShot(true);
    connect(&m_whole, &QTimer::timeout, this, late);
}

WebDavTransfer::~WebDavTransfer()
{
    leave();
}

void WebDavTransfer::start()
{
    if (!isSafeServer(m_request.url)) {
        endSoon(problem(CloudProblem::NotAnAccount, "only https is safe enough for a password"));
        return;
    }
    m_whole.start(m_limits.whole);
    send();
}

void WebDavTransfer::send()
{
    m_silence.start(m_limits.silence);
    m_answer = {};
    m_received = 0;
    // Qt waits for the body of a HEAD unless it knows that it is one.
    m_reply = m_request.method == "HEAD"
                  ? m_network.head(prepared())
                  : m_network.sendCustomRequest(prepared(), m_request.method, m_request.body);
    m_reply->setReadBufferSize(bufferBytes);
    connectReply();
}

QNetworkRequest WebDavTransfer::prepared() const
{
    QNetworkRequest request = webRequest(m_request.url);
    // A server may keep a session in them, which would outlast a new password.
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    // It is the person's own server: to be told from a browser is better than to be taken for one.
    request.setRawHeader("User-Agent", "Quillon");
    // Goes out with the request only, and that only after the certificate was found good.
    request.setRawHeader("Authorization", m_trust.authorization);
    for (const auto &[name, value] : m_request.headers) {
        request.setRawHeader(name, value);
    }
    return request;
}

void WebDavTransfer::connectReply()
{
    const auto moved = [this] { m_silence.start(m_limits.silence); };
    connect(m_reply, &QNetworkReply::socketStartedConnecting, this, moved);
    connect(m_reply, &QNetworkReply::encrypted, this, moved);
    connect(m_reply, &QNetworkReply::requestSent, this, moved);
    connect(m_reply, &QNetworkReply::uploadProgress, this, moved);
    connect(m_reply, &QNetworkReply::sslErrors, this, &WebDavTransfer::judgeCertificate);
    connect(m_reply, &QNetworkReply::metaDataChanged, this, &WebDavTransfer::readHead);
    connect(m_reply, &QNetworkReply::readyRead, this, &WebDavTransfer::readBody);
    connect(m_reply, &QNetworkReply::finished, this, &WebDavTransfer::replyFinished);
}

/// Called with what the system finds wrong with it, before anything is sent.
void WebDavTransfer::judgeCertificate()
{
    const QSslCertificate certificate = m_reply->sslConfiguration().peerCertificate();
    const QByteArray fingerprint =
        certificate.isNull() ? QByteArray() : certificate.digest(QCryptographicHash::Sha256);
    if (!fingerprint.isEmpty() && fingerprint == m_trust.fingerprint) {
        m_reply->ignoreSslErrors();
        return;
    }
    m_distrust = CloudError{CloudProblem::UntrustedCertificate,
        u"the server's certificate is not trusted"_s, fingerprint};
}

void WebDavTransfer::readHead()
{
    if (!m_reply || isRedirect()) {
        return;
    }
    m_silence.start(m_limits.silence);
    const QByteArray etag = m_reply->rawHeader("ETag");
    m_answer.status = status();
    m_answer.url = m_request.url;
    m_answer.revision = webDavRevision(etag);
    m_answer.isWeak = etag.trimmed().startsWith("W/");
    const QByteArray type = m_reply->rawHeader("Content-Type").trimmed().toLower();
    m_answer.isPage = type.startsWith("text/html") || type.startsWith("application/xhtml");
    bool isNumber = false;
    const qint64 length = m_reply->rawHeader("Content-Length").toLongLong(&isNumber);
    const bool inChunks = m_reply->rawHeader("Transfer-Encoding").toLower().contains("chunked");
    m_answer.saysLength = !inChunks && isNumber && length >= 0;
    if (!isWanted()) {
        return;
    }
    const QByteArray encoding = m_reply->rawHeader("Content-Encoding").trimmed().toLower();
    if (!encoding.isEmpty() && encoding != "identity") {
        end(problem(CloudProblem::NotAnAccount, "the answer came packed, which was not asked for"));
    } else if (isNumber && !inChunks && length > m_request.limit && m_request.method != "HEAD") {
        end(problem(CloudProblem::TooLarge, "the answer is longer than allowed"));
    }
}

bool WebDavTransfer::isRedirect() const
{
    static const QList<int> redirects{301, 302, 303, 307, 308};
    return redirects.contains(status()) && m_reply->hasRawHeader("Location");
}

/// The same again at the other address: what WebDAV asks is never meant to become a GET.
void WebDavTransfer::follow()
{
    const QUrl here = m_request.url;
    const QUrl there = here.resolved(QUrl::fromEncoded(m_reply->rawHeader("Location")))
                           .adjusted(QUrl::RemoveUserInfo | QUrl::RemoveFragment);
    if (!isSafeServer(there) || !isSameServer(here, there)) {
        end(problem(CloudProblem::NotAnAccount, "the server wants us to go to another one"));
    } else if (++m_redirects > mostRedirects) {
        end(problem(CloudProblem::NotAnAccount, "too many redirects"));
    } else {
        leave();
        m_request.url = there;
        send();
    }
}

void WebDavTransfer::readBody()
{
    while (m_reply && m_reply->bytesAvailable() > 0 && !isRedirect()) {
        m_silence.start(m_limits.silence);
        const QByteArray bytes = m_reply->read(pieceBytes);
        if (bytes.isEmpty()) {
            return;
        }
        m_received += bytes.size();
        if (m_received > m_request.limit) {
            if (isWanted()) {
                end(problem(CloudProblem::TooLarge, "the answer is longer than allowed"));
                return;
            }
            // Its head says all. But a wrong password Qt tells only when it has all of the page,
            // and must not be interrupted then.
            if (status() != wrongPassword) {
                end(m_answer);
                return;
            }
        }
        if (!isWanted()) {
            continue;
        }
        if (!m_request.take) {
            m_answer.body.append(bytes);
        } else if (const std::optional<CloudError> error = m_request.take(bytes)) {
            end(*error);
        }
    }
}

void WebDavTransfer::replyFinished()
{
    if (!m_reply) {
        return;
    }
    if (isRedirect()) {
        follow();
        return;
    }
    readBody();
    if (!m_reply) {
        return;
    }
    constexpr int firstRefusal = 300;
    constexpr int proxyWantsPassword = 407;
    // A status that refuses is answer enough, whatever becomes of its body.
    const bool isRefusal = status() >= firstRefusal && status() != proxyWantsPassword;
    if (isRefusal || (status() > 0 && m_reply->error() == QNetworkReply::NoError)) {
        end(m_answer);
    } else {
        end(networkError());
    }
}

CloudError WebDavTransfer::networkError() const
{
    if (m_distrust) {
        return *m_distrust;
    }
    return {CloudProblem::Unreachable, m_reply->errorString()};
}

int WebDavTransfer::status() const
{
    return m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

/// Whether the body is read at all: those of refusals and pages for people say nothing to us.
bool WebDavTransfer::isWanted() const
{
    return status() >= 200 && status() < 300 && !m_answer.isPage;
}

void WebDavTransfer::endSoon(CloudError error)
{
    QMetaObject::invokeMethod(
        this, [this, error = std::move(error)] { end(error); }, Qt::QueuedConnection);
}

void WebDavTransfer::end(const CloudResult<WebDavAnswer> &result)
{
    // A copy, since the result may be part of us, and what is called may dispose of us.
    const CloudResult<WebDavAnswer> given = result;
    const Done done = std::exchange(m_done, {});
    leave();
    m_silence.stop();
    m_whole.stop();
    deleteLater();
    if (done) {
        done(given);
    }
}

/// Ends the request in hand. It goes later, because this may be called by one of its own signals.
void WebDavTransfer::leave()
{
    if (QNetworkReply *const reply = std::exchange(m_reply, nullptr)) {
        reply->disconnect(this);
        reply->abort();
        reply->deleteLater();
    }
}

void WebDavTransfer::dispose()
{
    m_done = {};
    leave();
    m_silence.stop();
    m_whole.stop();
    deleteLater();
}

} // namespace quillon
