// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "networks/ExternalIPAddress.h"

#include "base/Localized.h"
#include "base/Log.h"
#include "base/SettingsKeys.h"
#include "platform/SettingsStore.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int ok = 200;
/// An answer has a few dozen bytes; the rest is for services that say more.
constexpr qint64 longestAnswer = 64 * 1024;
/// INET6_ADDRSTRLEN of POSIX.1 without its final zero.
constexpr qsizetype longestAddress = 45;

QUrl questionTo(const QUrl &service)
{
    QUrl question = service.adjusted(QUrl::RemoveUserInfo | QUrl::RemoveFragment);
    question.setPath(u"/"_s);
    question.setQuery(u"format=json"_s);
    return question;
}

/// Whether it can be shown as an address: an IPv4 address in dotted decimal notation, or what has
/// the characters of an IPv6 address. The text comes from outside, and the window shows it as it
/// is.
bool isAddress(const QString &text)
{
    static const QRegularExpression version4(QRegularExpression::anchoredPattern(
        u"(?:%1\\.){3}%1"_s.arg(u"(?:25[0-5]|2[0-4][0-9]|1[0-9]{2}|[1-9]?[0-9])"_s)));
    static const QRegularExpression version6(
        QRegularExpression::anchoredPattern(u"[0-9A-Fa-f]{0,4}:[0-9A-Fa-f:.]*:[0-9A-Fa-f.]*"_s));
    return text.size() <= longestAddress &&
           (version4.match(text).hasMatch() || version6.match(text).hasMatch());
}

/// The address in an answer: null when the answer names none, "Unknown..." when it is of no use.
QString addressIn(const HttpClient::Response &answer)
{
    const QString unknown = localized("Unknown...");
    if (answer.status != ok) {
        qCWarning(logNetworks, "HTTP Error: %ld", static_cast<long>(answer.status));
        return unknown;
    }
    QJsonParseError problem;
    const QJsonDocument document = QJsonDocument::fromJson(answer.body, &problem);
    if (problem.error != QJsonParseError::NoError) {
        qCWarning(logNetworks, "Error parsing JSON: %s", qUtf8Printable(problem.errorString()));
        return unknown;
    }
    if (!document.isObject()) {
        qCWarning(logNetworks, "Response is not a valid JSON object");
        return unknown;
    }
    const QJsonValue address = document.object().value("ip"_L1);
    if (!address.isString()) {
        return QString();
    }
    if (!isAddress(address.toString())) {
        qCWarning(logNetworks, "Response does not hold a valid IP address");
        return unknown;
    }
    return address.toString();
}

} // namespace

ExternalIPAddress::ExternalIPAddress(
    HttpClient &client, SettingsStore &settings, const QUrl &service)
    : m_client(client)
    , m_settings(settings)
    , m_question(questionTo(service))
{
}

void ExternalIPAddress::updateExternalIPAddress(bool force)
{
    if (!force && !m_settings.getBool(keys::shouldUpdateExternalIP)) {
        return;
    }
    ++m_unanswered;
    Q_EMIT lookUpBegan();
    const std::weak_ptr<bool> life = m_life;
    m_client.get(
        m_question, longestAnswer, [this, life](const Result<HttpClient::Response> &answer) {
            if (!life.expired()) {
                answered(answer);
            }
        });
}

void ExternalIPAddress::answered(const Result<HttpClient::Response> &answer)
{
    --m_unanswered;
    if (answer) {
        const QString address = addressIn(answer.value());
        m_hasFailed = !isAddress(address);
        saveExternalIPAddress(address);
    } else {
        qCWarning(logNetworks, "Error making API request: %s (%s %d)",
            qUtf8Printable(answer.error().message), qUtf8Printable(answer.error().domain),
            answer.error().code);
        m_hasFailed = true;
    }
    Q_EMIT lookUpEnded();
}

void ExternalIPAddress::saveExternalIPAddress(const QString &address)
{
    m_settings.set(keys::externalIPAddress, address.isNull() ? QVariant() : QVariant(address));
    m_settings.synchronize();
}

} // namespace quillon
