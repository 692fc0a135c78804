// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/web/WebRequest.h"

#include <QSslConfiguration>
#include <QUrl>

namespace quillon {

using namespace Qt::StringLiterals;

bool isWebAddress(const QUrl &url)
{
    const QString scheme = url.scheme();
    return url.isValid() && !url.host().isEmpty() && (scheme == "http"_L1 || scheme == "https"_L1);
}

QNetworkRequest webRequest(const QUrl &url)
{
    QNetworkRequest request(url);
    request.setAttribute(
        QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    request.setAttribute(
        QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    // Or a password that stands in the address would be sent to whoever asks for one.
    request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    // The same from everybody: by default Qt tells the user's language. A name alone is turned away
    // by servers that expect a browser.
    request.setRawHeader("User-Agent", "Mozilla/5.0 (compatible; Quillon)");
    request.setRawHeader("Accept-Language", "*");
    // A packed body could unfold to any length.
    request.setRawHeader("Accept-Encoding", "identity");
    QSslConfiguration security = QSslConfiguration::defaultConfiguration();
    security.setProtocol(QSsl::TlsV1_2OrLater);
    security.setPeerVerifyMode(QSslSocket::VerifyPeer);
    request.setSslConfiguration(security);
    return request;
}

} // namespace quillon
