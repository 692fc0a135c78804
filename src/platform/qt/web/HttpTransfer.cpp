// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/web/HttpTransfer.h"

#include "platform/HttpClient.h"
#include "platform/qt/web/WebRequest.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QScopedValueRollback>
#include <QStringList>

#include <cerrno>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int mostRedirects = 10;
constexpr qint64 pieceBytes = 64 * 1024;
/// What Qt keeps for us before it lets the sender wait.
constexpr qint64 bufferBytes = 4 * pieceBytes;

Error posixError(int number, const char *message)
{
    return {posixErrorDomain, number, QString::fromLatin1(message)};
}

} // namespace

HttpTransfer::HttpTransfer(Limits limits, Sink sink)
    : m_limits(limits)
    , m_sink(std::move(sink))
{
    m_silence.setSingleShot(true);
    m_silence.setInterval(m_limits.silence);
    connect(&m_silence, &QTimer::timeout, this,
        [this] { bodyFailed(posixError(ETIMEDOUT, "the server was silent for too long")); });
}

HttpTransfer::~HttpTransfer() = default;

void HttpTransfer::start(const QUrl &url)
{
    if (!isWebAddress(url)) {
        failSoon({httpErrorDomain, QNetworkReply::ProtocolUnknownError,
            u"only http and https addresses can be asked"_s});
        return;
    }
    // One for each request. A shared one would keep cookies and connections, and a connection that
    // was made before the address changed leads nowhere. It would also send some requests twice.
    m_network = new QNetworkAccessManager(this);
    m_reply = m_network->get(webRequest(url));
    m_reply->setReadBufferSize(bufferBytes);
    connectReply();
    m_silence.start();
}

void HttpTransfer::connectReply()
{
    // Qt's own time-out only counts bytes of the body as progress and would end a slow start.
    const auto moved = [this] { m_silence.start(); };
    connect(m_reply, &QNetworkReply::socketStartedConnecting, this, moved);
    connect(m_reply, &QNetworkReply::encrypted, this, moved);
    connect(m_reply, &QNetworkReply::requestSent, this, moved);
    // They are not ignored, so the transfer fails; here we only learn why.
    connect(m_reply, &QNetworkReply::sslErrors, this, [this](const QList<QSslError> &errors) {
        QStringList texts;
        for (const QSslError &error : errors) {
            texts << error.errorString();
        }
        m_certificateProblems = texts.join(u"; "_s);
    });
    connect(m_reply, &QNetworkReply::metaDataChanged, this, &HttpTransfer::readHead);
    connect(m_reply, &QNetworkReply::readyRead, this, &HttpTransfer::readBody);
    connect(m_reply, &QNetworkReply::finished, this, &HttpTransfer::replyFinished);
}

void HttpTransfer::readHead()
{
    if (m_over) {
        return;
    }
    m_silence.start();
    if (isRedirect()) {
        follow();
        return;
    }
    const QByteArray encoding = m_reply->rawHeader("Content-Encoding").trimmed().toLower();
    if (!encoding.isEmpty() && encoding != "identity") {
        bodyFailed({httpErrorDomain, QNetworkReply::ProtocolFailure,
            u"the body came packed, which was not asked for"_s});
        return;
    }
    bool isNumber = false;
    const qint64 length = m_reply->rawHeader("Content-Length").toLongLong(&isNumber);
    const bool inChunks = m_reply->rawHeader("Transfer-Encoding").toLower().contains("chunked");
    m_expected = isNumber && length >= 0 && !inChunks ? length : -1;
    if (m_expected > m_limits.bodyLength && !isSettledByStatus()) {
        end(posixError(EFBIG, "the body is longer than allowed"));
    }
}

bool HttpTransfer::isRedirect() const
{
    static const QList<int> redirects{301, 302, 303, 307, 308};
    return redirects.contains(status()) && m_reply->hasRawHeader("Location");
}

/// Goes on at the address that the server names. What else it says is not read. Not left to Qt:
/// where it follows redirects, 6.4 sends many requests twice, over connections that it kept.
void HttpTransfer::follow()
{
    const QUrl here = m_reply->url();
    const QUrl there = here.resolved(QUrl::fromEncoded(m_reply->rawHeader("Location")));
    const auto refuse = [this](QNetworkReply::NetworkError code, const char *why) {
        end({httpErrorDomain, code, QString::fromLatin1(why)});
    };
    if (!isWebAddress(there)) {
        refuse(QNetworkReply::ProtocolUnknownError, "a redirect to what is no web address");
    } else if (here.scheme() == "https"_L1 && there.scheme() != "https"_L1) {
        refuse(QNetworkReply::InsecureRedirectError, "a redirect from https to http");
    } else if (++m_redirects > mostRedirects) {
        refuse(QNetworkReply::TooManyRedirectsError, "too many redirects");
    } else {
        leave();
        start(there);
    }
}

void HttpTransfer::readBody()
{
    while (!m_over && m_reply->bytesAvailable() > 0) {
        m_silence.start();
        const QByteArray bytes = m_reply->read(pieceBytes);
        if (bytes.isEmpty()) {
            return;
        }
        const qint64 room = m_limits.bodyLength - m_received;
        m_received += bytes.size();
        if (bytes.size() <= room) {
            take(bytes);
            continue;
        }
        if (isSettledByStatus() && room > 0) {
            take(bytes.first(room));
        }
        bodyFailed(posixError(EFBIG, "the body is longer than allowed"));
    }
}

void HttpTransfer::take(const QByteArray &bytes)
{
    const QScopedValueRollback inside(m_insideSink, m_insideSink + 1);
    const std::optional<Error> problem = m_sink.take(bytes, m_expected);
    if (problem && !m_over) {
        end(*problem);
    }
}

void HttpTransfer::replyFinished()
{
    if (m_over) {
        return;
    }
    readBody();
    if (m_over) {
        return;
    }
    if (const std::optional<Error> error = failure()) {
        bodyFailed(*error);
        return;
    }
    finish();
}

void HttpTransfer::finish()
{
    const int finalStatus = status();
    const QByteArray contentType = m_reply->rawHeader("Content-Type");
    stop();
    deleteLater();
    m_sink.finish(finalStatus, contentType);
}

void HttpTransfer::bodyFailed(const Error &error)
{
    if (m_over) {
        return;
    }
    if (isSettledByStatus()) {
        finish();
    } else {
        end(error);
    }
}

/// Whether the server, not a proxy on the way, has refused by now, and that is answer enough.
bool HttpTransfer::isSettledByStatus() const
{
    constexpr int firstRedirect = 300;
    constexpr int proxyWantsPassword = 407;
    return m_sink.judgesStatus && status() >= firstRedirect && status() != proxyWantsPassword &&
           !isRedirect();
}

int HttpTransfer::status() const
{
    return m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

/// Whether the server answered, be it with a bad status: Qt gives those as errors too.
bool HttpTransfer::isAnswer() const
{
    const QNetworkReply::NetworkError error = m_reply->error();
    if (error == QNetworkReply::NoError) {
        return status() > 0;
    }
    const bool isStatus = (error >= QNetworkReply::ContentAccessDenied &&
                              error <= QNetworkReply::UnknownContentError &&
                              error != QNetworkReply::ContentReSendError) ||
                          (error >= QNetworkReply::InternalServerError &&
                              error <= QNetworkReply::UnknownServerError) ||
                          error == QNetworkReply::ProtocolInvalidOperationError;
    return isStatus && status() >= 400;
}

std::optional<Error> HttpTransfer::failure() const
{
    if (isAnswer()) {
        return std::nullopt;
    }
    QString message = m_reply->errorString();
    if (!m_certificateProblems.isEmpty()) {
        message += u" (%1)"_s.arg(m_certificateProblems);
    }
    return Error{httpErrorDomain, m_reply->error(), message};
}

void HttpTransfer::failSoon(const Error &error)
{
    QMetaObject::invokeMethod(this, [this, error] { end(error); }, Qt::QueuedConnection);
}

void HttpTransfer::end(const Error &error)
{
    if (m_over) {
        return;
    }
    stop();
    deleteLater();
    m_sink.fail(error);
}

void HttpTransfer::stop()
{
    m_over = true;
    m_silence.stop();
    if (m_reply) {
        leave();
    }
}

/// Ends the request in hand. It goes later, because this may be called by one of its own signals.
void HttpTransfer::leave()
{
    m_reply->disconnect(this);
    m_reply->abort();
    m_reply = nullptr;
    m_network->deleteLater();
}

void HttpTransfer::dispose()
{
    if (m_over) {
        return; // it is already on its way out
    }
    stop();
    if (m_insideSink > 0) {
        deleteLater();
    } else {
        delete this;
    }
}

} // namespace quillon
