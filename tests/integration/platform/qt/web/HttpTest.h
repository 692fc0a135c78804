// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fakes/QtPrinting.h"
#include "integration/platform/qt/web/WebServer.h"
#include "platform/qt/web/NetworkHttpClient.h"

#include <QNetworkReply>
#include <gmock/gmock.h>

#include <cerrno>
#include <optional>

namespace quillon::test {

using namespace std::chrono_literals;

/// A download and what has come of it.
struct Downloaded
{
    HttpClient::DownloadHandler handler()
    {
        return {
            [this](const HttpClient::Progress &step) { steps << step; },
            [this](const QString &file) {
                path = file;
                rights = QFile::permissions(file);
                QFile reading(file);
                EXPECT_TRUE(reading.open(QIODevice::ReadOnly));
                body = reading.readAll();
                ++endings;
            },
            [this](const Error &problem) {
                error = problem;
                ++endings;
            },
        };
    }

    QList<HttpClient::Progress> steps;
    QString path;
    QFile::Permissions rights;
    std::optional<QByteArray> body;
    std::optional<Error> error;
    int endings = 0;
};

/// The client against servers that do as they are told.
class HttpTest : public ::testing::Test
{
protected:
    using Answer = Result<HttpClient::Response>;

    void useSilence(std::chrono::milliseconds silence)
    {
        HttpClientOptions options;
        options.silence = silence;
        client.emplace(options);
    }

    /// The end of one request; a failure of the test when it has none.
    Answer get(const QUrl &url, qint64 bodyLimit = 1 << 20)
    {
        std::optional<Answer> ending;
        client->get(url, bodyLimit, [&](const Answer &answer) {
            EXPECT_FALSE(ending) << "a second ending";
            ending.emplace(answer);
        });
        EXPECT_FALSE(ending) << "it ended before the call returned";
        EXPECT_TRUE(eventually([&] { return ending.has_value(); })) << "it does not end";
        return ending.value_or(Error{QStringLiteral("no ending"), 0, QString()});
    }

    Downloaded download(const QUrl &url)
    {
        Downloaded result;
        client->download(url, result.handler());
        EXPECT_EQ(result.endings, 0) << "it ended before the call returned";
        EXPECT_TRUE(eventually([&] { return result.endings > 0; })) << "it does not end";
        EXPECT_EQ(result.endings, 1);
        return result;
    }

    /// "status body", or "domain code" of a failure.
    static std::string outcome(const Answer &answer)
    {
        if (answer) {
            return std::to_string(answer.value().status) + " " + answer.value().body.toStdString();
        }
        return outcome(answer.error());
    }
    static std::string outcome(const Error &error)
    {
        return error.domain.toStdString() + " " + std::to_string(error.code);
    }
    static std::string failure(QNetworkReply::NetworkError code)
    {
        return "HttpErrorDomain " + std::to_string(code);
    }
    static std::string systemFailure(int code)
    {
        return "POSIXErrorDomain " + std::to_string(code);
    }

    /// What a transfer may take beside the body that it keeps, in kilobytes. The sanitizer holds
    /// back what was freed.
#ifdef __SANITIZE_ADDRESS__
    static constexpr qint64 muchMemory = (32 + 256) * 1024;
#else
    static constexpr qint64 muchMemory = 32 * 1024;
#endif
    /// The most memory that this process has had, in kilobytes.
    static qint64 peakMemory()
    {
        QFile file(QStringLiteral("/proc/self/status"));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        for (const QByteArray &line : file.readAll().split('\n')) {
            if (line.startsWith("VmHWM:")) {
                return line.mid(6).trimmed().split(' ').first().toLongLong();
            }
        }
        return 0;
    }

    WebServer web;
    std::optional<NetworkHttpClient> client{std::in_place};
};

} // namespace quillon::test
