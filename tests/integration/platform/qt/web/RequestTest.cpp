// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "integration/platform/qt/web/HttpTest.h"

namespace quillon::test {
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
    web.serve("/page", {{QStringLiteral("body"), QStringLiteral("Grüße\r\n")}});
    EXPECT_EQ(outcome(get(WebServer::plain("/page"))), "200 Grüße\r\n");
    EXPECT_EQ(outcome(get(WebServer::secure("/page"))), "200 Grüße\r\n");
    EXPECT_EQ(outcome(get(WebServer::secure("/page?query=1#part"))), "200 Grüße\r\n");
}

TEST_F(Request, ABadStatusIsAResponseWithItsBody)
{
    for (const int status :
        {400, 401, 403, 404, 405, 409, 410, 418, 429, 500, 501, 502, 503, 504, 599}) {
        web.serve("/page",
            {{QStringLiteral("status"), status}, {QStringLiteral("body"), QStringLiteral("why")}});
        EXPECT_EQ(outcome(get(WebServer::secure("/page"))), std::to_string(status) + " why");
    }
    web.serve("/page", {{QStringLiteral("status"), 204}});
    EXPECT_EQ(outcome(get(WebServer::secure("/page"))), "204 ");
}

TEST_F(Request, TheEndOfABodyMayBeToldInEveryWay)
{
    for (const char *framing : {"length", "chunked", "close"}) {
        web.serve("/page",
            {{QStringLiteral("body"), QStringLiteral("0123456789")}, {QStringLiteral("piece"), 3},
                {QStringLiteral("framing"), QString::fromLatin1(framing)}});
        EXPECT_EQ(outcome(get(WebServer::secure("/page"))), "200 0123456789") << framing;
        EXPECT_EQ(outcome(get(WebServer::plain("/page"))), "200 0123456789") << framing;
    }
}

TEST_F(Request, TellsNothingAboutItsUser)
{
    const QJsonObject headers =
        echo(WebServer::secure("/page")).value(QStringLiteral("headers")).toObject();
    EXPECT_TRUE(headers.isEmpty()) << "there is no such page yet";
    web.serve("/page", {{QStringLiteral("echo"), true}});
    const QJsonObject sent =
        echo(WebServer::secure("/page")).value(QStringLiteral("headers")).toObject();
    QStringList names = sent.keys();
    names.sort();
    EXPECT_EQ(names.join(QLatin1Char(' ')),
        QStringLiteral(
            "Accept-Encoding Accept-Language Cache-Control Connection Host Pragma User-Agent"));
    EXPECT_EQ(sent.value(QStringLiteral("User-Agent")).toString(),
        QStringLiteral("Mozilla/5.0 (compatible; Quillon)"));
    EXPECT_EQ(sent.value(QStringLiteral("Accept-Language")).toString(), QStringLiteral("*"));
    EXPECT_EQ(sent.value(QStringLiteral("Accept-Encoding")).toString(), QStringLiteral("identity"));
}

TEST_F(Request, TakesNothingFromAnEarlierOne)
{
    web.serve("/page",
        {{QStringLiteral("echo"), true},
            {QStringLiteral("headers"),
                QVariantMap{{QStringLiteral("Set-Cookie"), QStringLiteral("who=you; Max-Age=1000")},
                    {QStringLiteral("Cache-Control"), QStringLiteral("max-age=1000")},
                    {QStringLiteral("ETag"), QStringLiteral("\"1\"")}}}});
    const QJsonObject first = echo(WebServer::secure("/page"));
    const QJsonObject second = echo(WebServer::secure("/page"));
    EXPECT_EQ(first.value(QStringLiteral("headers")), second.value(QStringLiteral("headers")));
    EXPECT_NE(first.value(QStringLiteral("client")), second.value(QStringLiteral("client")))
        << "the connection was kept, and might lead to a network that we have left";
    EXPECT_EQ(web.log().size(), 2);
}

TEST_F(Request, CookiesDoNotGoAlongWithARedirect)
{
    web.serve("/first", {{QStringLiteral("redirect"), QStringLiteral("/page")},
                            {QStringLiteral("headers"), QVariantMap{{QStringLiteral("Set-Cookie"),
                                                            QStringLiteral("who=you")}}}});
    web.serve("/page", {{QStringLiteral("echo"), true}});
    const QJsonObject sent =
        echo(WebServer::secure("/first")).value(QStringLiteral("headers")).toObject();
    EXPECT_FALSE(sent.isEmpty());
    EXPECT_FALSE(sent.contains(QStringLiteral("Cookie")));
}

TEST_F(Request, NobodyIsAskedForAPassword)
{
    web.serve(
        "/page", {{QStringLiteral("status"), 401}, {QStringLiteral("body"), QStringLiteral("who?")},
                     {QStringLiteral("headers"), QVariantMap{{QStringLiteral("WWW-Authenticate"),
                                                     QStringLiteral("Basic realm=\"page\"")}}}});
    QUrl url = WebServer::secure("/page");
    EXPECT_EQ(outcome(get(url)), "401 who?");
    // Not even one that stands in the address is given away.
    url.setUserInfo(QStringLiteral("somebody:secret"));
    EXPECT_EQ(outcome(get(url)), "401 who?");
    for (const QJsonObject &entry : web.log()) {
        EXPECT_FALSE(entry.value(QStringLiteral("headers"))
                         .toObject()
                         .contains(QStringLiteral("Authorization")));
    }
}

TEST_F(Request, ABodyOfExactlyTheLimitIsTakenAndOneMoreByteIsNot)
{
    for (const char *framing : {"length", "chunked", "close"}) {
        web.serve("/page", {{QStringLiteral("body"), QStringLiteral("0123456789")},
                               {QStringLiteral("framing"), QString::fromLatin1(framing)}});
        EXPECT_EQ(outcome(get(WebServer::secure("/page"), 10)), "200 0123456789") << framing;
        EXPECT_EQ(outcome(get(WebServer::secure("/page"), 9)), systemFailure(EFBIG)) << framing;
    }
}

TEST_F(Request, ABodyWithoutEndIsGivenUpAtTheLimit)
{
    const qint64 before = peakMemory();
    for (const char *framing : {"chunked", "close"}) {
        web.serve("/page", {{QStringLiteral("size"), QStringLiteral("endless")},
                               {QStringLiteral("framing"), QString::fromLatin1(framing)}});
        EXPECT_EQ(outcome(get(WebServer::secure("/page"))), systemFailure(EFBIG));
    }
    // Announced as short enough, and not kept to.
    web.serve("/page", {{QStringLiteral("size"), 1 << 24}, {QStringLiteral("length"), 10}});
    EXPECT_EQ(outcome(get(WebServer::secure("/page"))), "200 ##########");
    EXPECT_LT(peakMemory() - before, muchMemory);
}

TEST_F(Request, AHugeAnnouncedBodyIsGivenUpBeforeItComes)
{
    web.serve("/page",
        {{QStringLiteral("body"), QStringLiteral("0")}, {QStringLiteral("length"), 1e15},
            {QStringLiteral("cut"), 1}, {QStringLiteral("then"), QStringLiteral("stall")}});
    EXPECT_EQ(outcome(get(WebServer::secure("/page"))), systemFailure(EFBIG));
}

TEST_F(Request, APackedBodyIsRefusedHoweverSmallItIs)
{
    const qint64 before = peakMemory();
    web.serve("/page", {{QStringLiteral("gzip"), 500'000'000}});
    EXPECT_EQ(outcome(get(WebServer::secure("/page"))), failure(QNetworkReply::ProtocolFailure));
    EXPECT_LT(peakMemory() - before, muchMemory);
}

TEST_F(Request, RedirectsAreFollowedWhereTheyLeadToNoLessSafety)
{
    web.serve("/page", {{QStringLiteral("body"), QStringLiteral("here")}});
    web.serve("/away", {{QStringLiteral("redirect"), QStringLiteral("/page")}});
    EXPECT_EQ(outcome(get(WebServer::secure("/away"))), "200 here");
    EXPECT_EQ(outcome(get(WebServer::plain("/away"))), "200 here");
    web.serve("/away", {{QStringLiteral("redirect"), QStringLiteral("https://localhost/page")}});
    EXPECT_EQ(outcome(get(WebServer::secure("/away"))), "200 here");
    EXPECT_EQ(outcome(get(WebServer::plain("/away"))), "200 here");
    for (const int status : {301, 302, 303, 307, 308}) {
        web.serve("/away", {{QStringLiteral("redirect"), QStringLiteral("/page")},
                               {QStringLiteral("status"), status}});
        EXPECT_EQ(outcome(get(WebServer::secure("/away"))), "200 here") << status;
    }
    EXPECT_TRUE(web.log().last().value(QStringLiteral("secure")).toBool());
}

TEST_F(Request, ARedirectToLessSafetyIsNotFollowed)
{
    web.serve("/page", {{QStringLiteral("body"), QStringLiteral("here")}});
    web.serve("/away", {{QStringLiteral("redirect"), QStringLiteral("http://trusted.test/page")}});
    EXPECT_EQ(
        outcome(get(WebServer::secure("/away"))), failure(QNetworkReply::InsecureRedirectError));
    // Nor over a detour.
    web.serve(
        "/detour", {{QStringLiteral("redirect"), QStringLiteral("https://trusted.test/away")}});
    EXPECT_EQ(
        outcome(get(WebServer::plain("/detour"))), failure(QNetworkReply::InsecureRedirectError));
    for (const QJsonObject &entry : web.log()) {
        EXPECT_NE(entry.value(QStringLiteral("path")).toString(), QStringLiteral("/page"));
    }
}

TEST_F(Request, ARedirectToAFileIsNotFollowed)
{
    for (const char *address : {"file:///etc/passwd", "data:text/plain,here", "qrc:/Defaults.plist",
             "ftp://trusted.test/"}) {
        web.serve("/away", {{QStringLiteral("redirect"), QString::fromLatin1(address)}});
        EXPECT_EQ(
            outcome(get(WebServer::secure("/away"))), failure(QNetworkReply::ProtocolUnknownError))
            << address;
    }
}

TEST_F(Request, RedirectsInACircleAreGivenUp)
{
    web.serve("/left", {{QStringLiteral("redirect"), QStringLiteral("/right")}});
    web.serve("/right", {{QStringLiteral("redirect"), QStringLiteral("/left")}});
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
        web.serve(page.constData(),
            {{QStringLiteral("body"), QString::fromLatin1(page)}, {QStringLiteral("delay"), 0.2}});
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
