// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/QtPrinting.h"
#include "integration/cloud/Answers.h"
#include "integration/cloud/DavServer.h"
#include "platform/qt/cloud/WebDavStorage.h"

#include <QSslServer>
#include <QSslSocket>
#include <QTcpServer>
#include <gmock/gmock.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using Certificate = DavServer::Certificate;
using Program = DavServer::Program;

CloudAccount accountAt(const QUrl &address, const QByteArray &fingerprint = {})
{
    return {CloudAccount::Kind::WebDav, address, DavServer::user(), u"Quillon"_s, fingerprint};
}

CloudError errorOf(const CloudResult<QList<CloudFile>> &result)
{
    const auto *const error = std::get_if<CloudError>(&result);
    EXPECT_TRUE(error);
    return error ? *error : CloudError{};
}

/// Whom the password is given to.
class WebDavConnectionTest : public ::testing::TestWithParam<Program>
{
};

TEST_P(WebDavConnectionTest, AServerThatNobodyVouchesForIsNotTrustedAndItsCertificateIsShown)
{
    const DavServer server(GetParam(), Certificate::SelfSigned);
    WebDavStorage storage(accountAt(server.address()), DavServer::password());
    for (int times = 0; times < 3; ++times) {
        const CloudError error = errorOf(Asked(storage).list());
        EXPECT_EQ(error.problem, CloudProblem::UntrustedCertificate);
        EXPECT_EQ(error.fingerprint, server.fingerprint());
        EXPECT_EQ(error.fingerprint.size(), 32);
    }
}

TEST_P(WebDavConnectionTest, TheCertificateThatThePersonComparedIsBelieved)
{
    const DavServer server(GetParam(), Certificate::SelfSigned);
    WebDavStorage storage(accountAt(server.address(), server.fingerprint()), DavServer::password());
    const Asked asked(storage);
    valueOf(asked.create(u"key"_s, "secret"));
    EXPECT_EQ(valueOf(asked.read(u"key"_s)).bytes, "secret");
    // Over several connections as well.
    int answers = 0;
    for (int number = 0; number < 40; ++number) {
        storage.read(u"key"_s, 100, [&](const auto &result) {
            EXPECT_FALSE(problemIn(result));
            ++answers;
        });
    }
    EXPECT_TRUE(eventually([&] { return answers == 40; }));
}

TEST_P(WebDavConnectionTest, AnotherCertificateThanThatOneIsNot)
{
    const DavServer server(GetParam(), Certificate::SelfSigned);
    QByteArray other = server.fingerprint();
    other[31] = static_cast<char>(other.at(31) ^ 1);
    WebDavStorage storage(accountAt(server.address(), other), DavServer::password());
    const CloudError error = errorOf(Asked(storage).list());
    EXPECT_EQ(error.problem, CloudProblem::UntrustedCertificate);
    EXPECT_EQ(error.fingerprint, server.fingerprint());
}

TEST_P(WebDavConnectionTest, AServerThatCameBackIsReachedAgain)
{
    DavServer server(GetParam());
    WebDavStorage storage(accountAt(server.address()), DavServer::password());
    const Asked asked(storage);
    valueOf(asked.create(u"key"_s, "secret"));
    server.stop();
    EXPECT_EQ(problemIn(asked.read(u"key"_s)), CloudProblem::Unreachable);
    server.start();
    EXPECT_EQ(valueOf(asked.read(u"key"_s)).bytes, "secret");
}

INSTANTIATE_TEST_SUITE_P(Servers, WebDavConnectionTest,
    ::testing::Values(Program::Lighttpd, Program::Apache),
    [](const auto &each) { return each.param == Program::Lighttpd ? "Lighttpd" : "Apache"; });

TEST(WebDavConnectionSecrecy, NothingIsSentBeforeTheCertificateIsFoundGood)
{
    const DavServer certified(Program::Lighttpd, Certificate::SelfSigned);
    QSslServer server;
    server.setSslConfiguration(certified.configuration());
    QByteArray received;
    QObject::connect(&server, &QSslServer::pendingConnectionAvailable, &server, [&] {
        QTcpSocket *const socket = server.nextPendingConnection();
        QObject::connect(socket, &QTcpSocket::readyRead, &server,
            [&received, socket] { received += socket->readAll(); });
    });
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    QUrl address(u"https://127.0.0.1/"_s);
    address.setPort(server.serverPort());
    WebDavStorage distrusting(accountAt(address), DavServer::password());
    EXPECT_EQ(problemIn(Asked(distrusting).list()), CloudProblem::UntrustedCertificate);
    EXPECT_EQ(received, "");
    WebDavStorage trusting(accountAt(address, certified.fingerprint()), DavServer::password());
    trusting.list([](const auto &) {});
    EXPECT_TRUE(eventually([&] { return received.startsWith("PROPFIND "); }));
}

TEST(WebDavConnectionSecrecy, AServerWithoutEncryptionIsUnreachable)
{
    QTcpServer server;
    QObject::connect(&server, &QTcpServer::newConnection, &server,
        [&] { server.nextPendingConnection()->write("HTTP/1.1 400 Bad Request\r\n\r\n"); });
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    QUrl address(u"https://127.0.0.1/"_s);
    address.setPort(server.serverPort());
    WebDavStorage storage(accountAt(address), DavServer::password());
    const CloudError error = errorOf(Asked(storage).list());
    EXPECT_EQ(error.problem, CloudProblem::Unreachable);
    EXPECT_EQ(error.fingerprint, "") << "there was no certificate";
}

} // namespace
} // namespace quillon::test
