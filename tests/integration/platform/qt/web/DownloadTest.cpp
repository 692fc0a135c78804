// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "integration/platform/qt/web/HttpTest.h"

#include <QDir>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

constexpr int manyBytes = 100'000'000;
const QString tenDigits = u"0123456789"_s;

class Download : public HttpTest
{
protected:
    Download() { useFolder(folder.path()); }

    /// The silence is a hang's unless a test is about it.
    void useFolder(const QString &path, qint64 longest = qint64(1) << 30,
        std::chrono::milliseconds silence = 1min)
    {
        HttpClientOptions options;
        options.folder = path;
        options.longestDownload = longest;
        options.silence = silence;
        client.emplace(options);
    }
    void expectNothingLeft() const
    {
        EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList());
    }
    static void expectStepsAddUp(const Downloaded &result, qint64 expected)
    {
        qint64 received = 0;
        for (const HttpClient::Progress &step : result.steps) {
            EXPECT_GT(step.chunk, 0);
            received += step.chunk;
            EXPECT_EQ(step.received, received);
            EXPECT_EQ(step.expected, expected);
        }
        EXPECT_EQ(received, result.body.value_or(QByteArray()).size());
    }

    QTemporaryDir folder;
};

TEST_F(Download, BringsTheBodyIntoAFileThatIsOursAlone)
{
    web.serve("/page", {{u"body"_s, tenDigits}});
    const Downloaded result = download(WebServer::secure("/page"));
    EXPECT_EQ(result.body, QByteArray("0123456789"));
    EXPECT_EQ(QFileInfo(result.path).path(), folder.path());
    const QFile::Permissions owner = QFile::ReadOwner | QFile::WriteOwner;
    EXPECT_EQ(result.rights & ~(QFile::ReadUser | QFile::WriteUser), owner);
    EXPECT_FALSE(QFile::exists(result.path)) << "it is gone afterwards";
    expectNothingLeft();
}

TEST_F(Download, GoesToTheTemporaryFolderWhenNoneIsNamed)
{
    web.serve("/page", {{u"body"_s, tenDigits}});
    client.emplace();
    EXPECT_EQ(QFileInfo(download(WebServer::secure("/page")).path).path(), QDir::tempPath());
}

TEST_F(Download, OfAHundredMegabytesIsReportedStepByStepAndFlatInMemory)
{
    web.serve("/page", {{u"size"_s, manyBytes}});
    qint64 received = 0;
    int steps = 0;
    int endings = 0;
    const qint64 before = peakMemory();
    HttpClient::DownloadHandler handler;
    handler.didWriteData = [&](const HttpClient::Progress &step) {
        received += step.chunk;
        ++steps;
        EXPECT_EQ(step.received, received);
        EXPECT_EQ(step.expected, manyBytes);
    };
    handler.didFinishDownloading = [&](const QString &path) {
        EXPECT_EQ(QFileInfo(path).size(), manyBytes);
        ++endings;
    };
    client->download(WebServer::secure("/page"), handler);
    ASSERT_TRUE(eventually([&] { return endings > 0; }));
    EXPECT_EQ(received, manyBytes);
    EXPECT_GT(steps, 100);
    EXPECT_LT(peakMemory() - before, muchMemory);
    expectNothingLeft();
}

TEST_F(Download, OfUnknownLengthSaysSoInEveryStep)
{
    for (const char *framing : {"chunked", "close"}) {
        web.serve("/page", {{u"body"_s, tenDigits}, {u"piece"_s, 3}, {u"pause"_s, 0.3},
                               {u"framing"_s, QString::fromLatin1(framing)}});
        const Downloaded result = download(WebServer::secure("/page"));
        EXPECT_EQ(result.body, QByteArray("0123456789"));
        EXPECT_GT(result.steps.size(), 1);
        expectStepsAddUp(result, -1);
    }
}

TEST_F(Download, OfKnownLengthSaysItInEveryStep)
{
    web.serve("/page", {{u"body"_s, tenDigits}, {u"piece"_s, 3}, {u"pause"_s, 0.3}});
    const Downloaded result = download(WebServer::secure("/page"));
    EXPECT_GT(result.steps.size(), 1);
    expectStepsAddUp(result, 10);
}

TEST_F(Download, OfAnEmptyBodyEndsWithAnEmptyFile)
{
    web.serve("/page", {});
    const Downloaded result = download(WebServer::secure("/page"));
    EXPECT_EQ(result.body, QByteArray());
    EXPECT_TRUE(result.steps.isEmpty());
}

TEST_F(Download, OfAPageThatIsNotThereEndsWithWhatTheServerSays)
{
    web.serve("/page", {{u"status"_s, 404}, {u"body"_s, u"gone"_s}});
    EXPECT_EQ(download(WebServer::secure("/page")).body, QByteArray("gone"));
}

TEST_F(Download, FollowsRedirectsAndTakesOnlyTheLastBody)
{
    web.serve("/away", {{u"redirect"_s, u"/page"_s}, {u"body"_s, u"moved"_s}});
    web.serve("/page", {{u"body"_s, tenDigits}});
    const Downloaded result = download(WebServer::secure("/away"));
    EXPECT_EQ(result.body, QByteArray("0123456789"));
    expectStepsAddUp(result, 10);
}

TEST_F(Download, FailsWhenTheBodyIsShorterThanAnnounced)
{
    web.serve("/page", {{u"body"_s, tenDigits}, {u"length"_s, 11}});
    for (const QUrl &url : {WebServer::plain("/page"), WebServer::secure("/page")}) {
        const Downloaded result = download(url);
        EXPECT_TRUE(result.error);
        EXPECT_FALSE(result.body);
    }
    expectNothingLeft();
}

TEST_F(Download, FailsWhenTheServerFallsSilentInTheMiddle)
{
    useFolder(folder.path(), qint64(1) << 30, 3s);
    web.serve("/page", {{u"body"_s, tenDigits}, {u"cut"_s, 4}, {u"then"_s, u"stall"_s}});
    const Downloaded result = download(WebServer::secure("/page"));
    ASSERT_TRUE(result.error);
    EXPECT_EQ(outcome(*result.error), systemFailure(ETIMEDOUT));
    EXPECT_EQ(result.steps.size(), 1);
    expectNothingLeft();
}

TEST_F(Download, FailsWhenTheBodyOfABadStatusDoesNotComeWhole)
{
    useFolder(folder.path(), qint64(1) << 30, 3s);
    for (const int status : {404, 503}) {
        for (const char *end : {"reset", "close", "stall"}) {
            web.serve("/page", {{u"status"_s, status}, {u"body"_s, tenDigits}, {u"cut"_s, 4},
                                   {u"piece"_s, 2}, {u"then"_s, QString::fromLatin1(end)}});
            const Downloaded result = download(WebServer::secure("/page"));
            EXPECT_TRUE(result.error) << status << ' ' << end;
            EXPECT_FALSE(result.body) << status << ' ' << end;
        }
    }
    expectNothingLeft();
}

TEST_F(Download, FailsWhenThereIsNoServerAndWhenItIsNotTrusted)
{
    EXPECT_TRUE(download(WebServer::secure("/page", "untrusted.test")).error);
    web.stop();
    EXPECT_TRUE(download(WebServer::secure("/page")).error);
    expectNothingLeft();
}

TEST_F(Download, FailsWhenThereIsNoFolder)
{
    useFolder(folder.filePath(u"missing"_s));
    const Downloaded result = download(WebServer::secure("/page"));
    ASSERT_TRUE(result.error);
    EXPECT_EQ(outcome(*result.error), systemFailure(ENOENT));
    EXPECT_TRUE(web.log().isEmpty());
}

TEST_F(Download, WithoutEndIsGivenUp)
{
    useFolder(folder.path(), 3'000'000);
    web.serve("/page", {{u"size"_s, u"endless"_s}, {u"framing"_s, u"chunked"_s}});
    const Downloaded result = download(WebServer::secure("/page"));
    ASSERT_TRUE(result.error);
    EXPECT_EQ(outcome(*result.error), systemFailure(EFBIG));
    expectNothingLeft();
}

} // namespace
} // namespace quillon::test
