// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/cloud/WebDavConnection.h"

#include <memory>
#include <utility>

namespace quillon {

namespace {

/// Fewer than the connections that Qt makes to one server, so that nothing waits there, where its
/// time would run.
constexpr std::size_t mostAtOnce = 4;

WebDavTransfer::Trust trustOf(const CloudAccount &account, const QString &password)
{
    const QByteArray both = account.user.toUtf8() + ':' + password.toUtf8();
    return {"Basic " + both.toBase64(), account.fingerprint};
}

} // namespace

WebDavConnection::WebDavConnection(
    const CloudAccount &account, const QString &password, WebDavTransfer::Limits limits)
    : m_trust(trustOf(account, password))
    , m_limits(limits)
    , m_network(new QNetworkAccessManager)
{
}

WebDavConnection::~WebDavConnection()
{
    m_waiting.clear();
    for (WebDavTransfer *const transfer : std::exchange(m_running, {})) {
        transfer->dispose();
    }
}

void WebDavConnection::send(WebDavRequest request, WebDavTransfer::Done done)
{
    m_waiting.push_back({std::move(request), std::move(done)});
    startWaiting();
}

void WebDavConnection::startWaiting()
{
    while (!m_waiting.empty() && m_running.size() < mostAtOnce) {
        Waiting next = std::move(m_waiting.front());
        m_waiting.pop_front();
        const auto self = std::make_shared<WebDavTransfer *>();
        auto *const transfer =
            new WebDavTransfer(*m_network, m_trust, m_limits, std::move(next.request),
                [this, self, done = std::move(next.done)](const CloudResult<WebDavAnswer> &result) {
                    m_running.erase(*self);
                    // A connection that broke, or was made under another address, leads nowhere any
                    // more.
                    if (std::holds_alternative<CloudError>(result)) {
                        m_network->clearConnectionCache();
                    }
                    startWaiting();
                    done(result); // may destroy us
                });
        *self = transfer;
        m_running.insert(transfer);
        transfer->start();
    }
}

} // namespace quillon
