// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/CloudAccount.h"
#include "platform/qt/cloud/WebDavTransfer.h"

#include <QNetworkAccessManager>
#include <QScopedPointer>

#include <deque>
#include <memory>
#include <set>

namespace quillon {

/// The requests to one account: some at a time, over connections that are kept. Nothing is sent
/// before the server's certificate was found good, or is the one of the account. Main thread.
/// Destroying it ends what runs without a word; that may happen inside an answer.
class WebDavConnection
{
public:
    WebDavConnection(
        const CloudAccount &account, const QString &password, WebDavTransfer::Limits limits = {});
    ~WebDavConnection();
    WebDavConnection(const WebDavConnection &) = delete;
    WebDavConnection &operator=(const WebDavConnection &) = delete;

    /// Calls `done` once, in a later turn.
    void send(WebDavRequest request, WebDavTransfer::Done done);

private:
    void startWaiting();

    const WebDavTransfer::Trust m_trust;
    const WebDavTransfer::Limits m_limits;
    /// Goes later than this: we may be destroyed by what one of its answers led to.
    const std::unique_ptr<QNetworkAccessManager, QScopedPointerDeleteLater> m_network;
    struct Waiting
    {
        WebDavRequest request;
        WebDavTransfer::Done done;
    };
    std::deque<Waiting> m_waiting;
    std::set<WebDavTransfer *> m_running;
};

} // namespace quillon
