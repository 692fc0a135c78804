// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/web/NetworkHttpClient.h"

#include <QDir>
#include <QTemporaryFile>

#include <cerrno>
#include <memory>
#include <system_error>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// A file that only we may read, gone with this object.
class DownloadedFile
{
public:
    explicit DownloadedFile(const QString &folder)
        : m_file((folder.isEmpty() ? QDir::tempPath() : folder) + u"/quillon-XXXXXX"_s)
    {
    }

    std::optional<Error> open()
    {
        errno = 0;
        if (!m_file.openUnbuffered() || m_file.fileName().isEmpty()) {
            return problem();
        }
        return std::nullopt;
    }

    std::optional<Error> append(const QByteArray &bytes)
    {
        errno = 0;
        return m_file.write(bytes) == bytes.size() ? std::nullopt : std::optional(problem());
    }

    QString path() const { return m_file.fileName(); }

private:
    class File : public QTemporaryFile
    {
    public:
        using QTemporaryFile::QTemporaryFile;
        /// So that a full disk shows at the write that meets it.
        bool openUnbuffered() { return open(QIODevice::ReadWrite | QIODevice::Unbuffered); }
    };

    /// Qt does not say why when a part was still written.
    static Error problem()
    {
        const int number = errno != 0 ? errno : EIO;
        return {posixErrorDomain, number,
            QString::fromStdString(std::generic_category().message(number))};
    }

    File m_file;
};

} // namespace

NetworkHttpClient::NetworkHttpClient(HttpClientOptions options)
    : m_options(std::move(options))
{
}

NetworkHttpClient::~NetworkHttpClient()
{
    for (const auto &[token, transfer] : std::exchange(m_transfers, {})) {
        transfer->dispose();
    }
}

HttpTransfer &NetworkHttpClient::add(Token token, qint64 bodyLength, HttpTransfer::Sink sink)
{
    auto *const transfer = new HttpTransfer({bodyLength, m_options.silence}, std::move(sink));
    m_transfers.emplace(token, transfer);
    return *transfer;
}

HttpClient::Token NetworkHttpClient::get(const QUrl &url, qint64 bodyLimit, Completion completion)
{
    const Token token = m_nextToken++;
    const auto body = std::make_shared<QByteArray>();
    HttpTransfer::Sink sink;
    sink.take = [body](const QByteArray &bytes, qint64) -> std::optional<Error> {
        body->append(bytes);
        return std::nullopt;
    };
    // The completion comes last: it may destroy us.
    sink.finish = [this, token, body, completion](int status, const QByteArray &contentType) {
        m_transfers.erase(token);
        completion(Response{status, *body, contentType});
    };
    sink.fail = [this, token, completion](const Error &error) {
        m_transfers.erase(token);
        completion(error);
    };
    sink.judgesStatus = true;
    add(token, bodyLimit, std::move(sink)).start(url);
    return token;
}

HttpClient::Token NetworkHttpClient::download(const QUrl &url, DownloadHandler handler)
{
    const Token token = m_nextToken++;
    const auto file = std::make_shared<DownloadedFile>(m_options.folder);
    const auto received = std::make_shared<qint64>(0);
    HttpTransfer::Sink sink;
    sink.take = [=](const QByteArray &bytes, qint64 expected) {
        const std::optional<Error> problem = file->append(bytes);
        *received += bytes.size();
        if (!problem && handler.didWriteData) {
            handler.didWriteData({bytes.size(), *received, expected});
        }
        return problem;
    };
    sink.finish = [this, token, file, handler](int, const QByteArray &) {
        m_transfers.erase(token);
        if (handler.didFinishDownloading) {
            handler.didFinishDownloading(file->path());
        }
    };
    sink.fail = [this, token, handler](const Error &error) {
        m_transfers.erase(token);
        if (handler.didFail) {
            handler.didFail(error);
        }
    };
    HttpTransfer &transfer = add(token, m_options.longestDownload, std::move(sink));
    if (const std::optional<Error> problem = file->open()) {
        transfer.failSoon(*problem);
    } else {
        transfer.start(url);
    }
    return token;
}

void NetworkHttpClient::cancel(Token token)
{
    const auto found = m_transfers.find(token);
    if (found != m_transfers.end()) {
        HttpTransfer *const transfer = found->second;
        m_transfers.erase(found);
        transfer->dispose();
    }
}

} // namespace quillon
