// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "updates/UpdateRequest.h"

#include "fakes/FakeHttpClient.h"
#include "fakes/QtPrinting.h"
#include "updates/UpdateProblem.h"

#include <gmock/gmock.h>

#include <cerrno>
#include <optional>

namespace quillon::test {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
namespace {

using ::testing::ElementsAre;

class UpdateRequestTest : public ::testing::Test
{
protected:
    void start()
    {
        request->start(feed, [this](const Result<QByteArray> &file) {
            ++endings;
            ending.emplace(file);
        });
    }
    static FakeHttpClient::Page page(const QByteArray &body, const QByteArray &type)
    {
        FakeHttpClient::Page page;
        page.body = body;
        page.contentType = type;
        return page;
    }
    void get(const FakeHttpClient::Page &page)
    {
        ending.reset();
        http.serve(feed, page);
        start();
        scheduler.runPending();
        EXPECT_TRUE(ending);
    }
    void expectProblem(UpdateProblem problem) const
    {
        ASSERT_TRUE(ending && !*ending);
        EXPECT_EQ(ending->error().code, static_cast<int>(problem))
            << ending->error().message.toStdString();
    }

    const QUrl feed{u"https://pages.example/appcast.xml"_s};
    FakeScheduler scheduler;
    FakeHttpClient http{scheduler};
    std::optional<UpdateRequest> request{std::in_place, http, scheduler};
    std::optional<Result<QByteArray>> ending;
    int endings = 0;
};

TEST_F(UpdateRequestTest, FetchesTheListAsItIs)
{
    const QByteArray bytes("a\0\r\n\xFF", 5);
    get(page(bytes, "application/rss+xml"));
    ASSERT_TRUE(ending && *ending);
    EXPECT_EQ(ending->value(), bytes);
    EXPECT_FALSE(request->isRunning());
    EXPECT_FALSE(scheduler.hasTimers());
    EXPECT_THAT(http.requests(), ElementsAre(feed));
}

TEST_F(UpdateRequestTest, TakesWhatServersCallXmlAndNothingElse)
{
    for (const char *type : {"application/rss+xml", "application/xml", "text/xml",
             "text/xml; charset=utf-8", "Application/XML ;charset=\"x\"", " text/xml "}) {
        get(page("x", type));
        EXPECT_TRUE(ending && *ending) << type;
    }
    for (const char *type : {"", "text/html", "text/html; charset=text/xml", "application/json",
             "text/plain", "application/octet-stream", "application/x-executable", "xml",
             ";text/xml", "text/xmlx"}) {
        get(page("x", type));
        expectProblem(UpdateProblem::NotTrusted);
    }
}

TEST_F(UpdateRequestTest, TakesNoOtherStatus)
{
    for (const int status : {0, 100, 201, 203, 204, 206, 301, 304, 401, 403, 404, 410, 500, 503}) {
        auto answer = page("x", "application/xml");
        answer.status = status;
        get(answer);
        expectProblem(UpdateProblem::NotFetched);
    }
}

TEST_F(UpdateRequestTest, TakesNoMoreThanAListCanHave)
{
    get(page(QByteArray(64 * 1024, 'x'), "application/xml"));
    EXPECT_TRUE(ending && *ending);
    get(page(QByteArray(64 * 1024 + 1, 'x'), "application/xml"));
    expectProblem(UpdateProblem::NotTrusted);
    auto announced = page("x", "application/xml");
    announced.length = qint64(100) << 20;
    get(announced);
    expectProblem(UpdateProblem::NotTrusted);
}

TEST_F(UpdateRequestTest, AFailedTransferIsOne)
{
    http.refuse(feed, {httpErrorDomain, 6, u"no trust"_s});
    start();
    scheduler.runPending();
    expectProblem(UpdateProblem::NotFetched);
}

TEST_F(UpdateRequestTest, AServerThatTalksSlowlyIsLeft)
{
    auto slow = page(QByteArray(10'000, 'x'), "application/xml");
    slow.piece = 1;
    slow.pause = 10s;
    http.serve(feed, slow);
    start();
    scheduler.advance(119s);
    EXPECT_TRUE(request->isRunning());
    scheduler.advance(2s);
    EXPECT_FALSE(request->isRunning());
    expectProblem(UpdateProblem::NotFetched);
    EXPECT_EQ(http.cancelled().size(), 1);
    scheduler.advance(1h);
    EXPECT_EQ(endings, 1);
}

TEST_F(UpdateRequestTest, OneRunsAtATime)
{
    start();
    start();
    EXPECT_EQ(http.requests().size(), 1);
    http.finish(http.last(), 404);
    scheduler.runPending();
    EXPECT_EQ(endings, 1);
}

TEST_F(UpdateRequestTest, EndsWithoutAWordWhenItIsCancelledOrGoes)
{
    start();
    request->cancel();
    EXPECT_FALSE(request->isRunning());
    scheduler.advance(3min);
    start();
    request.reset();
    scheduler.advance(3min);
    EXPECT_EQ(endings, 0);
    EXPECT_EQ(http.cancelled().size(), 2);
    EXPECT_FALSE(scheduler.hasTimers());
}

TEST_F(UpdateRequestTest, AnotherMayBeginWhereOneEnds)
{
    http.serve(feed, page("x", "application/xml"));
    request->start(feed, [this](const Result<QByteArray> &) { start(); });
    scheduler.runPending();
    EXPECT_EQ(endings, 1);
    EXPECT_EQ(http.requests().size(), 2);
}

} // namespace
} // namespace quillon::test
