// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fakes/FakeScheduler.h"
#include "platform/HttpClient.h"

#include <QHash>
#include <QList>
#include <QTemporaryFile>

#include <map>
#include <memory>
#include <optional>

namespace quillon::test {

/// The web as a test describes it. A request to a page that is described is answered by the clock;
/// every other one stays open and gets what the test hands it. Nothing comes before the scheduler
/// turns (runPending(), advance()), and nothing comes to a transfer that was cancelled meanwhile.
class FakeHttpClient : public HttpClient
{
public:
    struct Page
    {
        int status = 200;
        QByteArray body;
        QByteArray contentType = {};
        std::chrono::milliseconds delay{0}; ///< before the first byte
        std::chrono::milliseconds pause{0}; ///< between two pieces of the body
        qsizetype piece = 16384;            ///< bytes that come at once
        bool saysLength = true;
        qint64 length = -1; ///< what is announced; -1: the body's own length
    };

    explicit FakeHttpClient(FakeScheduler &scheduler);

    Token get(const QUrl &url, qint64 bodyLimit, Completion completion) override;
    Token download(const QUrl &url, DownloadHandler handler) override;
    void cancel(Token token) override;

    /// What the page at `url` is from now on, for every request.
    void serve(const QUrl &url, const Page &page);
    void serve(const QUrl &url, const QByteArray &body, int status = 200);
    /// Transfers to `url` fail from now on.
    void refuse(const QUrl &url, const Error &error, std::chrono::milliseconds delay = {});
    /// Requests to `url` stay open again.
    void forget(const QUrl &url);

    /// By hand, for any running transfer. `expected` is the announced length of the whole body.
    void deliver(Token token, const QByteArray &bytes, qint64 expected = -1);
    void finish(Token token, int status = 200);
    void fail(Token token, const Error &error);

    /// The transfers that have not ended, the oldest first.
    QList<Token> running() const;
    bool isRunning(Token token) const { return m_transfers.count(token) > 0; }
    /// The youngest transfer, ended or not; 0 before the first.
    Token last() const { return m_nextToken - 1; }
    /// Every URL that was asked for, in order.
    const QList<QUrl> &requests() const { return m_requests; }
    /// The transfers that were cancelled while they ran.
    const QList<Token> &cancelled() const { return m_cancelled; }

private:
    struct Transfer
    {
        qint64 bodyLimit = 0;
        Completion completion; ///< of get()
        DownloadHandler handler;
        std::unique_ptr<QTemporaryFile> file; ///< of download()
        QByteArray body;
        qint64 received = 0;
        qint64 expected = -1;
        int status = 0; ///< when it is known already
        QByteArray contentType = {};
    };
    struct Site
    {
        Page page;
        std::optional<Error> refusal;
    };

    Token begin(const QUrl &url, Transfer transfer);
    void play(Token token, const Page &page, qsizetype from);
    void take(Token token, const QByteArray &bytes, qint64 expected);
    void end(Token token, int status);
    void endWith(Token token, const Error &error);

    FakeScheduler &m_scheduler;
    QHash<QUrl, Site> m_sites;
    std::map<Token, Transfer> m_transfers;
    QList<QUrl> m_requests;
    QList<Token> m_cancelled;
    Token m_nextToken = 1;
};

} // namespace quillon::test
