// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "integration/platform/qt/web/HttpTest.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using ::testing::HasSubstr;

/// Who is believed to be the one that was asked for.
class Trust : public HttpTest
{
protected:
    /// What the log would say; the server must not have seen the request.
    std::string refusal(const char *host)
    {
        web.serve("/page", {{u"body"_s, u"here"_s}});
        const Answer answer = get(WebServer::secure("/page", host));
        if (answer) {
            return outcome(answer);
        }
        for (const QJsonObject &entry : web.log()) {
            EXPECT_FALSE(entry.contains(u"path"_s)) << "the request was sent";
        }
        EXPECT_EQ(outcome(answer), failure(QNetworkReply::SslHandshakeFailedError));
        return answer.error().message.toStdString();
    }
};

TEST_F(Trust, AServerForWhomTheSystemsAuthoritySignsIsBelieved)
{
    web.serve("/page", {{u"body"_s, u"here"_s}});
    EXPECT_EQ(outcome(get(WebServer::secure("/page"))), "200 here");
}

TEST_F(Trust, AServerOfAnotherNameIsNot)
{
    EXPECT_THAT(refusal("wrong-name.test"), HasSubstr("host name did not match"));
}

TEST_F(Trust, AnExpiredCertificateIsNot)
{
    EXPECT_THAT(refusal("expired.test"), HasSubstr("expired"));
}

TEST_F(Trust, AnUnknownAuthorityIsNot)
{
    EXPECT_THAT(refusal("untrusted.test"), HasSubstr("issuer certificate"));
}

TEST_F(Trust, AServerThatIsReachedByARedirectMustBeTrustedToo)
{
    web.serve("/away", {{u"redirect"_s, u"https://untrusted.test/page"_s}});
    EXPECT_EQ(
        outcome(get(WebServer::secure("/away"))), failure(QNetworkReply::SslHandshakeFailedError));
}

TEST_F(Trust, AServerWithoutEncryptionWhereItShouldBeIsAFailedTransfer)
{
    const Answer answer = get(QUrl(u"https://trusted.test:80/page"_s));
    ASSERT_FALSE(answer);
    EXPECT_EQ(answer.error().domain, httpErrorDomain);
    EXPECT_FALSE(answer.error().message.isEmpty());
}

} // namespace
} // namespace quillon::test
