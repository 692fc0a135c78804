// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/FakeHttpClient.h"

#include <algorithm>
#include <cerrno>
#include <utility>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

Error posixError(int number, const char *message)
{
    return {posixErrorDomain, number, QString::fromUtf8(message)};
}

bool isBadStatus(int status)
{
    return status >= 300;
}

} // namespace

FakeHttpClient::FakeHttpClient(FakeScheduler &scheduler)
    : m_scheduler(scheduler)
{
}

HttpClient::Token FakeHttpClient::get(const QUrl &url, qint64 bodyLimit, Completion completion)
{
    Transfer transfer;
    transfer.bodyLimit = bodyLimit;
    transfer.completion = std::move(completion);
    return begin(url, std::move(transfer));
}

HttpClient::Token FakeHttpClient::download(const QUrl &url, DownloadHandler handler)
{
    Transfer transfer;
    transfer.handler = std::move(handler);
    transfer.file = std::make_unique<QTemporaryFile>();
    if (!transfer.file->open()) {
        qFatal("no temporary file: %s", qUtf8Printable(transfer.file->errorString()));
    }
    return begin(url, std::move(transfer));
}

HttpClient::Token FakeHttpClient::begin(const QUrl &url, Transfer transfer)
{
    const Token token = m_nextToken++;
    m_transfers.emplace(token, std::move(transfer));
    m_requests << url;
    const QString scheme = url.scheme();
    if (scheme != "http"_L1 && scheme != "https"_L1) {
        fail(token, {httpErrorDomain, 0, u"not a web address"_s});
    } else if (m_sites.contains(url)) {
        const Site site = m_sites.value(url);
        m_scheduler.onMainAfter(site.page.delay, [this, token, site] {
            if (site.refusal) {
                endWith(token, *site.refusal);
            } else {
                play(token, site.page, 0);
            }
        });
    }
    return token;
}

void FakeHttpClient::cancel(Token token)
{
    if (m_transfers.erase(token) > 0) {
        m_cancelled << token;
    }
}

void FakeHttpClient::serve(const QUrl &url, const Page &page)
{
    m_sites.insert(url, {page, {}});
}

void FakeHttpClient::serve(const QUrl &url, const QByteArray &body, int status)
{
    Page page;
    page.status = status;
    page.body = body;
    serve(url, page);
}

void FakeHttpClient::refuse(const QUrl &url, const Error &error, std::chrono::milliseconds delay)
{
    Page page;
    page.delay = delay;
    m_sites.insert(url, {page, error});
}

void FakeHttpClient::forget(const QUrl &url)
{
    m_sites.remove(url);
}

void FakeHttpClient::deliver(Token token, const QByteArray &bytes, qint64 expected)
{
    m_scheduler.onMain([=, this] { take(token, bytes, expected); });
}

void FakeHttpClient::finish(Token token, int status)
{
    m_scheduler.onMain([=, this] { end(token, status); });
}

void FakeHttpClient::fail(Token token, const Error &error)
{
    m_scheduler.onMain([=, this] { endWith(token, error); });
}

QList<HttpClient::Token> FakeHttpClient::running() const
{
    QList<Token> tokens;
    for (const auto &[token, transfer] : m_transfers) {
        tokens << token;
    }
    return tokens;
}

void FakeHttpClient::play(Token token, const Page &page, qsizetype from)
{
    if (from >= page.body.size() && from > 0) {
        end(token, page.status);
        return;
    }
    if (isRunning(token)) {
        m_transfers.at(token).status = page.status;
        m_transfers.at(token).contentType = page.contentType;
    }
    const qint64 length = page.length < 0 ? page.body.size() : page.length;
    take(token, page.body.mid(from, page.piece), page.saysLength ? length : -1);
    if (!isRunning(token)) {
        return;
    }
    const qsizetype next = from + std::max<qsizetype>(page.piece, 1);
    if (next >= page.body.size() && page.pause.count() == 0) {
        m_scheduler.onMain([this, token, status = page.status] { end(token, status); });
    } else {
        m_scheduler.onMainAfter(page.pause, [this, token, page, next] { play(token, page, next); });
    }
}

void FakeHttpClient::take(Token token, const QByteArray &bytes, qint64 expected)
{
    const auto found = m_transfers.find(token);
    if (found == m_transfers.end()) {
        return;
    }
    Transfer &transfer = found->second;
    transfer.expected = expected;
    transfer.received += bytes.size();
    if (!transfer.file) {
        transfer.body += bytes;
        if (isBadStatus(transfer.status)) {
            transfer.body.truncate(transfer.bodyLimit);
        } else if (std::max(transfer.received, expected) > transfer.bodyLimit) {
            endWith(token, posixError(EFBIG, "the answer is longer than allowed"));
        }
        return;
    }
    transfer.file->write(bytes);
    // A copy, because the handler may cancel the transfer.
    const auto didWriteData = transfer.handler.didWriteData;
    if (didWriteData && !bytes.isEmpty()) {
        didWriteData({bytes.size(), transfer.received, expected});
    }
}

void FakeHttpClient::end(Token token, int status)
{
    const auto found = m_transfers.find(token);
    if (found == m_transfers.end()) {
        return;
    }
    const bool isSettledByStatus = !found->second.file && isBadStatus(status);
    if (found->second.received < found->second.expected && !isSettledByStatus) {
        endWith(token, posixError(EPROTO, "the body is shorter than announced"));
        return;
    }
    const Transfer transfer = std::move(found->second);
    m_transfers.erase(found);
    if (!transfer.file) {
        transfer.completion(Response{status, transfer.body, transfer.contentType});
    } else if (transfer.handler.didFinishDownloading) {
        transfer.file->flush();
        transfer.handler.didFinishDownloading(transfer.file->fileName());
    }
}

void FakeHttpClient::endWith(Token token, const Error &error)
{
    const auto found = m_transfers.find(token);
    if (found == m_transfers.end()) {
        return;
    }
    const Transfer transfer = std::move(found->second);
    m_transfers.erase(found);
    if (!transfer.file) {
        transfer.completion(error);
    } else if (transfer.handler.didFail) {
        transfer.handler.didFail(error);
    }
}

} // namespace quillon::test
