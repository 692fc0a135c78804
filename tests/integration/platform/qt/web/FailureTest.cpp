// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "integration/platform/qt/web/HttpTest.h"

#include <QElapsedTimer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

const QString tenDigits = u"0123456789"_s;

class Failure : public HttpTest
{
};

TEST_F(Failure, NobodyListens)
{
    web.stop();
    const Answer answer = get(WebServer::secure("/page"));
    EXPECT_EQ(outcome(answer), failure(QNetworkReply::ConnectionRefusedError));
    EXPECT_EQ(answer.error().message, u"Connection refused"_s);
}

TEST_F(Failure, TheHostDoesNotExist)
{
    EXPECT_EQ(
        outcome(get(QUrl(u"https://nowhere.test/"_s))), failure(QNetworkReply::HostNotFoundError));
}

TEST_F(Failure, TheConnectionBreaksInTheMiddle)
{
    for (const char *end : {"reset", "close"}) {
        for (const char *framing : {"length", "chunked"}) {
            web.serve("/page",
                {{u"body"_s, tenDigits}, {u"cut"_s, 4}, {u"then"_s, QString::fromLatin1(end)},
                    {u"framing"_s, QString::fromLatin1(framing)}});
            for (const QUrl &url : {WebServer::plain("/page"), WebServer::secure("/page")}) {
                const Answer answer = get(url);
                ASSERT_FALSE(answer) << end << ' ' << framing << ": " << outcome(answer);
                EXPECT_EQ(answer.error().domain, httpErrorDomain);
                EXPECT_FALSE(answer.error().message.isEmpty());
            }
        }
    }
}

TEST_F(Failure, IsNoneWhenABadStatusCameBeforeTheBodyBroke)
{
    useSilence(300ms);
    for (const char *end : {"reset", "close", "stall"}) {
        for (const char *framing : {"length", "chunked", "close"}) {
            // What is sent just before a reset may be lost: the status has come before that.
            web.serve("/page",
                {{u"status"_s, 503}, {u"body"_s, tenDigits}, {u"cut"_s, 4}, {u"piece"_s, 2},
                    {u"pause"_s, 0.1}, {u"then"_s, QString::fromLatin1(end)},
                    {u"framing"_s, QString::fromLatin1(framing)}});
            for (const QUrl &url : {WebServer::plain("/page"), WebServer::secure("/page")}) {
                const Answer answer = get(url);
                ASSERT_TRUE(answer) << end << ' ' << framing << ": " << outcome(answer);
                EXPECT_EQ(answer.value().status, 503);
            }
        }
    }
}

TEST_F(Failure, IsNoneWhenTheBodyOfABadStatusIsPacked)
{
    web.serve("/page", {{u"status"_s, 503}, {u"body"_s, tenDigits},
                           {u"headers"_s, QVariantMap{{u"Content-Encoding"_s, u"gzip"_s}}}});
    EXPECT_EQ(outcome(get(WebServer::secure("/page"))), "503 ");
}

TEST_F(Failure, TheAnswerIsNotHttp)
{
    web.serve("/page", {{u"raw"_s, u"220 mail.example ESMTP\r\n"_s}});
    EXPECT_FALSE(get(WebServer::plain("/page")));
    web.serve("/page", {{u"raw"_s, QString()}});
    EXPECT_FALSE(get(WebServer::plain("/page")));
}

TEST_F(Failure, TheServerFallsSilentAtAnyPoint)
{
    useSilence(300ms);
    web.serve("/head", {{u"delay"_s, 1000}}); // seconds
    web.serve("/start", {{u"raw"_s, u"HTTP/1.1 200 OK\r\nContent-"_s}, {u"repeat"_s, QString()}});
    for (const char *framing : {"length", "chunked", "close"}) {
        web.serve("/body", {{u"body"_s, tenDigits}, {u"cut"_s, 4}, {u"then"_s, u"stall"_s},
                               {u"framing"_s, QString::fromLatin1(framing)}});
        EXPECT_EQ(outcome(get(WebServer::secure("/body"))), systemFailure(ETIMEDOUT)) << framing;
    }
    EXPECT_EQ(outcome(get(WebServer::secure("/head"))), systemFailure(ETIMEDOUT));
    EXPECT_EQ(outcome(get(WebServer::plain("/start"))), systemFailure(ETIMEDOUT));
}

TEST_F(Failure, TheConnectionIsNeverMade)
{
    useSilence(300ms);
    // Nobody has this address on the wire that it is looked for on.
    EXPECT_EQ(outcome(get(QUrl(u"https://192.0.2.77/"_s))), systemFailure(ETIMEDOUT));
}

TEST_F(Failure, ASlowServerIsNotASilentOne)
{
    // Many times as long as a pause, however busy the machine is, and less than all of them.
    useSilence(4s);
    web.serve("/page", {{u"body"_s, tenDigits}, {u"piece"_s, 1}, {u"pause"_s, 0.5}});
    QElapsedTimer time;
    time.start();
    EXPECT_EQ(outcome(get(WebServer::secure("/page"))), "200 0123456789");
    EXPECT_GT(time.elapsed(), 4000);
}

TEST_F(Failure, ASlowStartIsNotSilence)
{
    useSilence(5s);
    QTcpServer server;
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    QObject::connect(&server, &QTcpServer::newConnection, &server, [&server] {
        QTcpSocket *const peer = server.nextPendingConnection();
        const auto say = [peer](std::chrono::milliseconds after, const char *bytes) {
            QTimer::singleShot(after, peer, [peer, bytes] { peer->write(bytes); });
        };
        say(3s, "HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\n");
        say(6s, "here");
    });
    EXPECT_EQ(
        outcome(get(QUrl(u"http://127.0.0.1:%1/page"_s.arg(server.serverPort())))), "200 here");
}

/// What never ends must not fill the memory until it is given up.
class FailureFlood : public HttpTest
{
protected:
    void expectBounded(const QVariantMap &rule)
    {
        useSilence(1500ms);
        web.serve("/page", rule);
        const qint64 before = peakMemory();
        const Answer answer = get(WebServer::plain("/page"));
        EXPECT_FALSE(answer) << outcome(answer).substr(0, 100);
        EXPECT_LT(peakMemory() - before, muchMemory);
    }
};

TEST_F(FailureFlood, OfARedirect)
{
    expectBounded(
        {{u"redirect"_s, u"/page"_s}, {u"size"_s, u"endless"_s}, {u"framing"_s, u"chunked"_s}});
}

TEST_F(FailureFlood, OfAPlainBody)
{
    expectBounded({{u"size"_s, u"endless"_s}});
}

TEST_F(FailureFlood, OfABadStatusIsThatStatus)
{
    for (const char *framing : {"length", "chunked", "close"}) {
        web.serve("/page",
            {{u"status"_s, 503}, {u"size"_s, u"endless"_s}, {u"length"_s, qint64(5'000'000'000)},
                {u"framing"_s, QString::fromLatin1(framing)}});
        const qint64 before = peakMemory();
        const Answer answer = get(WebServer::plain("/page"));
        ASSERT_TRUE(answer) << framing << ": " << outcome(answer);
        EXPECT_EQ(answer.value().status, 503);
        EXPECT_EQ(answer.value().body.size(), 1 << 20);
        EXPECT_LT(peakMemory() - before, muchMemory);
    }
}

} // namespace
} // namespace quillon::test
