// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "integration/platform/qt/web/HttpTest.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Request : public HttpTest
{
protected:
    QJsonObject echo(const QUrl &url)
    {
        const Answer answer = get(url);
        return answer ? QJsonDocument::fromJson(answer.value().body).object() : QJsonObject();
    }
};

TEST_F(Request, BringsTheBodyOverPlainAndSecureConnections)
{
    web.serve("/page", {{u"body"_s, u"Grüße\r\n"_s}});
    EXPECT_EQ(outcome(get(WebServer::plain("/page"))), "200 Grüße\r\n");
    EXPECT_EQ(outcome(get(WebServer::secure("/page"))), "200 Grüße\r\n");
    EXPECT_EQ(outcome(get(WebServer::secure("/page?query=1#part"))), "200 Grüße\r\n");
}

TEST_F(Request, ABadStatusIsAResponseWithItsBody)
{
    for (const int status :
        {400, 401, 403, 404, 405, 409, 410, 418, 429, 500, 501, 502, 503, 504, 599}) {
        web.serve("/page", {{u"status"_s, status}, {u"body"_s, u"why"_s}});
        EXPECT_EQ(outcome(get(WebServer::secure("/page"))), std::to_string(status) + " why");
    }
    web.serve("/page", {{u"status"_s, 204}});
    EXPECT_EQ(outcome(get(WebServer::secure("/page"))), "204 ");
}

TEST_F(Request, TheEndOfABodyMayBeToldInEveryWay)
{
    for (const char *framing : {"length", "chunked", "close"}) {
        web.serve("/page", {{u"body"_s, u"0123456789"_s}, {u"piece"_s, 3},
                               {u"framing"_s, QString::fromLatin1(framing)}});
        EXPECT_EQ(outcome(get(WebServer::secure("/page"))), "200 0123456789") << framing;
        EXPECT_EQ(outcome(get(WebServer::plain("/page"))), "200 0123456789") << framing;
    }
}

TEST_F(Request, TellsNothingAboutItsUser)
{
    const QJsonObject headers = echo(WebServer::secure("/page")).value(u"headers"_s).toObject();
    EXPECT_TRUE(headers.isEmpty()) << "there is no such page yet";
    web.serve("/page", {{u"echo"_s, true}});
    const QJsonObject sent = echo(WebServer::secure("/page")).value(u"headers"_s).toObject();
    QStringList names = sent.keys();
    names.sort();
    EXPECT_EQ(names.join(u' '),
        u"accept-encoding accept-language cache-control connection host pragma user-agent"_s);
    EXPECT_EQ(sent.value(u"user-agent"_s).toString(), u"Mozilla/5.0 (compatible; Quillon)"_s);
    EXPECT_EQ(sent.value(u"accept-language"_s).toString(), u"*"_s);
    EXPECT_EQ(sent.value(u"accept-encoding"_s).toString(), u"identity"_s);
}

TEST_F(Request, TakesNothingFromAnEarlierOne)
{
    web.serve("/page",
        {{u"echo"_s, true},
            {u"headers"_s, QVariantMap{{u"Set-Cookie"_s, u"who=you; Max-Age=1000"_s},
                               {u"Cache-Control"_s, u"max-age=1000"_s}, {u"ETag"_s, u"\"1\""_s}}}});
    const QJsonObject first = echo(WebServer::secure("/page"));
    const QJsonObject second = echo(WebServer::secure("/page"));
    EXPECT_EQ(first.value(u"headers"_s), second.value(u"headers"_s));
    EXPECT_NE(first.value(u"client"_s), second.value(u"client"_s))
        << "the connection was kept, and might lead to a network that we have left";
    EXPECT_EQ(web.log().size(), 2);
}

TEST_F(Request, CookiesDoNotGoAlongWithARedirect)
{
    web.serve("/first", {{u"redirect"_s, u"/page"_s},
                            {u"headers"_s, QVariantMap{{u"Set-Cookie"_s, u"who=you"_s}}}});
    web.serve("/page", {{u"echo"_s, true}});
    const QJsonObject sent = echo(WebServer::secure("/first")).value(u"headers"_s).toObject();
    EXPECT_FALSE(sent.isEmpty());
    EXPECT_FALSE(sent.contains(u"cookie"_s));
}

TEST_F(Request, NobodyIsAskedForAPassword)
{
    web.serve("/page",
        {{u"status"_s, 401}, {u"body"_s, u"who?"_s},
            {u"headers"_s, QVariantMap{{u"WWW-Authenticate"_s, u"Basic realm=\"page\""_s}}}});
    QUrl url = WebServer::secure("/page");
    EXPECT_EQ(outcome(get(url)), "401 who?");
    // Not even one that stands in the address is given away.
    url.setUserInfo(u"somebody:secret"_s);
    EXPECT_EQ(outcome(get(url)), "401 who?");
    for (const QJsonObject &entry : web.log()) {
        EXPECT_FALSE(entry.value(u"headers"_s).toObject().contains(u"authorization"_s));
    }
}

TEST_F(Request, ABodyOfExactlyTheLimitIsTakenAndOneMoreByteIsNot)
{
    for (const char *framing : {"length", "chunked", "close"}) {
        web.serve(
            "/page", {{u"body"_s, u"0123456789"_s}, {u"framing"_s, QString::fromLatin1(framing)}});
        EXPECT_EQ(outcome(get(WebServer::secure("/page"), 10)), "200 0123456789") << framing;
        EXPECT_EQ(outcome(get(WebServer::secure("/page"), 9)), systemFailure(EFBIG)) << framing;
    }
}

TEST_F(Request, ABodyWithoutEndIsGivenUpAtTheLimit)
{
    const qint64 before = peakMemory();
    for (const char *framing : {"chunked", "close"}) {
        web.serve(
            "/page", {{u"size"_s, u"endless"_s}, {u"framing"_s, QString::fromLatin1(framing)}});
        EXPECT_EQ(outcome(get(WebServer::secure("/page"))), systemFailure(EFBIG));
    }
    // Announced as short enough, and not kept to.
    web.serve("/page", {{u"size"_s, 1 << 24}, {u"length"_s, 10}});
    EXPECT_EQ(outcome(get(WebServer::secure("/page"))), "200 ##########");
    EXPECT_LT(peakMemory() - before, muchMemory);
}

TEST_F(Request, AHugeAnnouncedBodyIsGivenUpBeforeItComes)
{
    web.serve("/page",
        {{u"body"_s, u"0"_s}, {u"length"_s, 1e15}, {u"cut"_s, 1}, {u"then"_s, u"stall"_s}});
    EXPECT_EQ(outcome(get(WebServer::secure("/page"))), systemFailure(EFBIG));
}

TEST_F(Request, APackedBodyIsRefusedHoweverSmallItIs)
{
    const qint64 before = peakMemory();
    web.serve("/page", {{u"gzip"_s, 500'000'000}});
    EXPECT_EQ(outcome(get(WebServer::secure("/page"))), failure(QNetworkReply::ProtocolFailure));
    EXPECT_LT(peakMemory() - before, muchMemory);
}

TEST_F(Request, RedirectsAreFollowedWhereTheyLeadToNoLessSafety)
{
    web.serve("/page", {{u"body"_s, u"here"_s}});
    web.serve("/away", {{u"redirect"_s, u"/page"_s}});
    EXPECT_EQ(outcome(get(WebServer::secure("/away"))), "200 here");
    EXPECT_EQ(outcome(get(WebServer::plain("/away"))), "200 here");
    web.serve("/away", {{u"redirect"_s, u"https://localhost/page"_s}});
    EXPECT_EQ(outcome(get(WebServer::secure("/away"))), "200 here");
    EXPECT_EQ(outcome(get(WebServer::plain("/away"))), "200 here");
    for (const int status : {301, 302, 303, 307, 308}) {
        web.serve("/away", {{u"redirect"_s, u"/page"_s}, {u"status"_s, status}});
        EXPECT_EQ(outcome(get(WebServer::secure("/away"))), "200 here") << status;
    }
    EXPECT_TRUE(web.log().last().value(u"secure"_s).toBool());
}

TEST_F(Request, ARedirectToLessSafetyIsNotFollowed)
{
    web.serve("/page", {{u"body"_s, u"here"_s}});
    web.serve("/away", {{u"redirect"_s, u"http://trusted.test/page"_s}});
    EXPECT_EQ(
        outcome(get(WebServer::secure("/away"))), failure(QNetworkReply::InsecureRedirectError));
    // Nor over a detour.
    web.serve("/detour", {{u"redirect"_s, u"https://trusted.test/away"_s}});
    EXPECT_EQ(
        outcome(get(WebServer::plain("/detour"))), failure(QNetworkReply::InsecureRedirectError));
    for (const QJsonObject &entry : web.log()) {
        EXPECT_NE(entry.value(u"path"_s).toString(), u"/page"_s);
    }
}

TEST_F(Request, ARedirectToAFileIsNotFollowed)
{
    for (const char *address : {"file:///etc/passwd", "data:text/plain,here", "qrc:/Defaults.plist",
             "ftp://trusted.test/"}) {
        web.serve("/away", {{u"redirect"_s, QString::fromLatin1(address)}});
        EXPECT_EQ(
            outcome(get(WebServer::secure("/away"))), failure(QNetworkReply::ProtocolUnknownError))
            << address;
    }
}

TEST_F(Request, RedirectsInACircleAreGivenUp)
{
    web.serve("/left", {{u"redirect"_s, u"/right"_s}});
    web.serve("/right", {{u"redirect"_s, u"/left"_s}});
    EXPECT_EQ(
        outcome(get(WebServer::secure("/left"))), failure(QNetworkReply::TooManyRedirectsError));
    EXPECT_EQ(web.log().size(), 11);
}

TEST_F(Request, WhatIsNoWebAddressFailsInALaterTurn)
{
    for (const char *address : {"", "/page", "file:///etc/passwd", "qrc:/Defaults.plist",
             "data:text/plain,here", "ftp://trusted.test/page", "https://", "https:///page",
             "mailto:somebody@trusted.test"}) {
        EXPECT_EQ(outcome(get(QUrl(QString::fromLatin1(address)))),
            failure(QNetworkReply::ProtocolUnknownError))
            << address;
    }
    EXPECT_THAT(web.log(), IsEmpty());
}

TEST_F(Request, ManyRunSideBySide)
{
    int answered = 0;
    for (int i = 0; i < 20; ++i) {
        const QByteArray page = "/page" + QByteArray::number(i);
        web.serve(page.constData(), {{u"body"_s, QString::fromLatin1(page)}, {u"delay"_s, 0.2}});
        client->get(
            WebServer::secure(page.constData()), 100, [&answered, page](const Answer &answer) {
                EXPECT_EQ(outcome(answer), "200 " + page.toStdString());
                ++answered;
            });
    }
    EXPECT_TRUE(eventually([&] { return answered == 20; }));
}

} // namespace
} // namespace quillon::test
