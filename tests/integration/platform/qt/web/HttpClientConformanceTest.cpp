// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/FakeHttpClient.h"
#include "integration/platform/qt/web/HttpTest.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using Page = FakeHttpClient::Page;

/// A web of one host, made up and real.
struct MadeUpWeb
{
    void serve(const char *page, const Page &content)
    {
        client.serve(WebServer::secure(page), content);
    }
    void breakDown(const char *page)
    {
        client.refuse(WebServer::secure(page), {httpErrorDomain, 1, u"Connection refused"_s});
    }
    bool soon(const std::function<bool()> &condition)
    {
        scheduler.advance(5s);
        return condition();
    }

    FakeScheduler scheduler;
    FakeHttpClient client{scheduler};
};

struct RealWeb
{
    void serve(const char *page, const Page &content)
    {
        QVariantMap rule{{u"status"_s, content.status},
            {u"body"_s, QString::fromUtf8(content.body)},
            {u"delay"_s, double(content.delay.count()) / 1000},
            {u"pause"_s, double(content.pause.count()) / 1000}, {u"piece"_s, int(content.piece)},
            {u"framing"_s, content.saysLength ? u"length"_s : u"chunked"_s}};
        if (!content.contentType.isEmpty()) {
            rule.insert(u"headers"_s,
                QVariantMap{{u"Content-Type"_s, QString::fromLatin1(content.contentType)}});
        }
        if (content.length >= 0) {
            rule.insert(u"length"_s, content.length);
        }
        server.serve(page, rule);
    }
    void breakDown(const char *) { server.stop(); }
    bool soon(const std::function<bool()> &condition) { return eventually(condition); }

    WebServer server;
    NetworkHttpClient client;
};

template <typename Web>
class HttpClientConformance : public ::testing::Test
{
protected:
    using Answer = Result<HttpClient::Response>;

    static QUrl url(const char *page = "/page") { return WebServer::secure(page); }
    void serve(const Page &page) { web.serve("/page", page); }
    void serve(const QByteArray &body, int status = 200)
    {
        Page page;
        page.body = body;
        page.status = status;
        serve(page);
    }

    /// "status body", "failed", or "nothing" when it did not end.
    std::string get(qint64 limit = 1000)
    {
        std::string ending = "nothing";
        web.client.get(url(), limit, [&](const Answer &answer) {
            EXPECT_EQ(ending, "nothing") << "a second ending";
            ending = answer ? std::to_string(answer.value().status) + " " +
                                  answer.value().body.toStdString()
                            : "failed";
        });
        EXPECT_EQ(ending, "nothing") << "it ended before the call returned";
        EXPECT_TRUE(web.soon([&] { return ending != "nothing"; }));
        return ending;
    }
    Downloaded download()
    {
        Downloaded result;
        web.client.download(url(), result.handler());
        EXPECT_TRUE(web.soon([&] { return result.endings > 0; }));
        EXPECT_EQ(result.endings, 1);
        return result;
    }

    Web web;
};

using Webs = ::testing::Types<MadeUpWeb, RealWeb>;
TYPED_TEST_SUITE(HttpClientConformance, Webs);

TYPED_TEST(HttpClientConformance, AnswersComeOnceWithStatusAndBody)
{
    this->serve("0123456789");
    EXPECT_EQ(this->get(), "200 0123456789");
    this->serve("not here", 404);
    EXPECT_EQ(this->get(), "404 not here");
    this->serve("", 503);
    EXPECT_EQ(this->get(), "503 ");
}

TYPED_TEST(HttpClientConformance, TheTypeOfAnAnswerIsWhatTheServerSays)
{
    for (const QByteArray &type : {QByteArray(), QByteArray("text/html; charset=UTF-8")}) {
        Page page;
        page.body = "0123456789";
        page.contentType = type;
        this->serve(page);
        std::optional<QByteArray> told;
        this->web.client.get(this->url(), 1000, [&](const Result<HttpClient::Response> &answer) {
            told = answer ? answer.value().contentType : QByteArray("failed");
        });
        EXPECT_TRUE(this->web.soon([&] { return told.has_value(); }));
        EXPECT_EQ(told, type);
    }
}

TYPED_TEST(HttpClientConformance, ABodyMayBeAsLongAsTheLimit)
{
    for (const bool saysLength : {true, false}) {
        Page page;
        page.body = "0123456789";
        page.piece = 4;
        page.saysLength = saysLength;
        this->serve(page);
        EXPECT_EQ(this->get(10), "200 0123456789");
        EXPECT_EQ(this->get(9), "failed");
    }
}

TYPED_TEST(HttpClientConformance, ABodyShorterThanAnnouncedIsAFailure)
{
    Page page;
    page.body = "0123456789";
    page.length = 11;
    this->serve(page);
    EXPECT_EQ(this->get(), "failed");
    const Downloaded result = this->download();
    EXPECT_TRUE(result.error);
    EXPECT_FALSE(result.body);
}

TYPED_TEST(HttpClientConformance, ABadStatusIsOneWhateverItsLength)
{
    for (const bool saysLength : {true, false}) {
        Page page;
        page.status = 503;
        page.body = "0123456789";
        page.piece = 4;
        page.saysLength = saysLength;
        this->serve(page);
        EXPECT_EQ(this->get(10), "503 0123456789");
        EXPECT_EQ(this->get(9), "503 012345678") << "the beginning";
        EXPECT_EQ(this->get(0), "503 ");
        EXPECT_EQ(this->download().body, page.body);
    }
    Page page;
    page.status = 503;
    page.body = "0123456789";
    page.length = 20;
    this->serve(page);
    EXPECT_EQ(this->get(), "503 0123456789") << "cut off";
}

TYPED_TEST(HttpClientConformance, ADownloadThatIsCutOffIsAFailureWhateverItsStatus)
{
    for (const int status : {200, 404, 503}) {
        Page page;
        page.status = status;
        page.body = "0123456789";
        page.length = 20;
        this->serve(page);
        const Downloaded result = this->download();
        EXPECT_TRUE(result.error) << status;
        EXPECT_FALSE(result.body) << status;
    }
}

TYPED_TEST(HttpClientConformance, NoServerIsAFailure)
{
    this->web.breakDown("/page");
    EXPECT_EQ(this->get(), "failed");
    const Downloaded result = this->download();
    ASSERT_TRUE(result.error);
    EXPECT_EQ(result.error->domain, httpErrorDomain);
    EXPECT_EQ(result.error->message, u"Connection refused"_s);
}

TYPED_TEST(HttpClientConformance, WhatIsNoWebAddressFailsLater)
{
    int failures = 0;
    const auto failed = [&](const auto &answer) { failures += answer ? 0 : 1; };
    this->web.client.get(QUrl(u"file:///etc/passwd"_s), 100, failed);
    this->web.client.download(QUrl(), {{}, {}, [&](const Error &) { ++failures; }});
    EXPECT_EQ(failures, 0);
    EXPECT_TRUE(this->web.soon([&] { return failures == 2; }));
}

TYPED_TEST(HttpClientConformance, ADownloadIsAFileWhileItIsTold)
{
    this->serve("0123456789");
    const Downloaded result = this->download();
    EXPECT_EQ(result.body, QByteArray("0123456789"));
    EXPECT_FALSE(QFile::exists(result.path));
    this->serve("not here", 404);
    EXPECT_EQ(this->download().body, QByteArray("not here"));
    this->serve("");
    EXPECT_EQ(this->download().body, QByteArray(""));
}

TYPED_TEST(HttpClientConformance, ProgressAddsUp)
{
    for (const bool saysLength : {true, false}) {
        Page page;
        page.body = "0123456789";
        page.piece = 4;
        page.pause = 1s; // or two pieces come as one to a client that is busy
        page.saysLength = saysLength;
        this->serve(page);
        const Downloaded result = this->download();
        ASSERT_EQ(result.steps.size(), 3);
        EXPECT_EQ(result.steps.at(0).chunk, 4);
        EXPECT_EQ(result.steps.at(1).received, 8);
        EXPECT_EQ(result.steps.at(2).chunk, 2);
        for (const HttpClient::Progress &step : result.steps) {
            EXPECT_EQ(step.expected, saysLength ? 10 : -1);
        }
    }
}

TYPED_TEST(HttpClientConformance, AnEmptyBodyMakesNoProgress)
{
    this->serve("");
    EXPECT_TRUE(this->download().steps.isEmpty());
}

TYPED_TEST(HttpClientConformance, NothingIsHeardOfACancelledTransfer)
{
    this->serve("0123456789");
    int calls = 0;
    auto &client = this->web.client;
    client.cancel(client.get(this->url(), 100, [&](const auto &) { ++calls; }));
    Downloaded result;
    client.cancel(client.download(this->url(), result.handler()));
    client.cancel(1000);
    EXPECT_EQ(this->get(), "200 0123456789");
    EXPECT_EQ(calls, 0);
    EXPECT_EQ(result.endings, 0);
    EXPECT_TRUE(result.steps.isEmpty());
}

TYPED_TEST(HttpClientConformance, ProgressMayCancel)
{
    Page page;
    page.body = "0123456789";
    page.piece = 4;
    page.pause = 50ms;
    this->serve(page);
    auto &client = this->web.client;
    Downloaded result;
    HttpClient::DownloadHandler handler = result.handler();
    HttpClient::Token token = 0;
    handler.didWriteData = [&](const HttpClient::Progress &step) {
        result.steps << step;
        client.cancel(token);
    };
    token = client.download(this->url(), handler);
    EXPECT_TRUE(this->web.soon([&] { return !result.steps.isEmpty(); }));
    EXPECT_EQ(this->get(), "200 0123456789");
    EXPECT_EQ(result.steps.size(), 1);
    EXPECT_EQ(result.endings, 0);
}

TYPED_TEST(HttpClientConformance, ACallbackMayStartTheNext)
{
    this->serve("0123456789");
    std::string second;
    this->web.client.get(this->url(), 100, [&](const auto &) {
        this->web.client.get(this->url(), 100, [&](const auto &answer) {
            second = answer ? answer.value().body.toStdString() : "failed";
        });
    });
    EXPECT_TRUE(this->web.soon([&] { return !second.empty(); }));
    EXPECT_EQ(second, "0123456789");
}

} // namespace
} // namespace quillon::test
