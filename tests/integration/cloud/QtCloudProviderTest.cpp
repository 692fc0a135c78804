// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/cloud/QtCloudProvider.h"

#include "fakes/FakeRandomSource.h"
#include "fakes/QtPrinting.h"
#include "integration/cloud/Answers.h"
#include "integration/cloud/DavServer.h"
#include "platform/AccountProbe.h"
#include "platform/qt/QtScheduler.h"
#include "unit/platform/qt/cloud/ScriptedServer.h"

#include <QDir>
#include <QTemporaryDir>
#include <gmock/gmock.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using Certificate = DavServer::Certificate;
using Program = DavServer::Program;

/// A sign-in as the program does it.
class QtCloudProviderTest : public ::testing::Test
{
protected:
    ~QtCloudProviderTest() override { scheduler.shutDown(); }

    CloudResult<QUrl> find(
        const QString &address, const QString &user, const QString &password, QByteArray print = {})
    {
        std::unique_ptr<CloudProvider::Request> request;
        return answerTo<CloudResult<QUrl>>([&](auto done) {
            request = provider.findWebDavAddress({address, user, password, print}, done);
        });
    }
    CloudResult<AccountAbilities> probe(const CloudAccount &account)
    {
        const auto storage = provider.storage(account, DavServer::password());
        AccountProbe probing(*storage, random);
        return answerTo<CloudResult<AccountAbilities>>([&](auto done) { probing.start(done); });
    }

    QtScheduler scheduler;
    QtCloudProvider provider{scheduler};
    FakeRandomSource random;
};

class QtCloudProviderSignIn : public QtCloudProviderTest,
                              public ::testing::WithParamInterface<Program>
{
protected:
    DavServer server{GetParam()};
    CloudAccount account{
        CloudAccount::Kind::WebDav, server.address(), DavServer::user(), u"Apps/Quillon"_s};
};

TEST_P(QtCloudProviderSignIn, AServersFilesAreFoundAndTheAccountCanDoAll)
{
    const CloudResult<QUrl> found =
        find(u"127.0.0.1:4443"_s, DavServer::user(), DavServer::password());
    EXPECT_EQ(valueOf(found), server.address());
    EXPECT_EQ(valueOf(probe(account)), (AccountAbilities{true, true, true}));
    EXPECT_EQ(
        QDir(server.path(u"Apps/Quillon"_s)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
        QStringList());
}

TEST_P(QtCloudProviderSignIn, AFolderBelowAndTheAddressOfABrowserAreFound)
{
    ASSERT_TRUE(QDir(server.path()).mkpath(u"remote.php/dav/files/märy@example.org"_s));
    ASSERT_TRUE(QDir(server.path()).mkpath(u"my files"_s));
    const QUrl files(u"https://127.0.0.1:4443/remote.php/dav/files/m%C3%A4ry%40example.org/"_s);
    for (const QString &typed : {u"https://127.0.0.1:4443/apps/files/?dir=/"_s, u"127.0.0.1:4443"_s,
             u"https://127.0.0.1:4443/index.php/apps/files"_s,
             files.toString(QUrl::FullyEncoded) + u"Docs"_s}) {
        EXPECT_EQ(valueOf(find(typed, DavServer::user(), DavServer::password())), files)
            << typed.toStdString();
    }
    EXPECT_EQ(valueOf(find(
                  u"https://127.0.0.1:4443/my files"_s, DavServer::user(), DavServer::password())),
        QUrl(u"https://127.0.0.1:4443/my%20files/"_s));
}

TEST_P(QtCloudProviderSignIn, WhatKeepsAPersonFromSigningInIsTold)
{
    EXPECT_EQ(problemIn(find(u"127.0.0.1:4443"_s, DavServer::user(), u"wrong"_s)),
        CloudProblem::WrongPassword);
    EXPECT_EQ(
        problemIn(find(u"127.0.0.1:4444"_s, DavServer::user(), u"x"_s)), CloudProblem::Unreachable);
    EXPECT_EQ(problemIn(find(u"no.such.host.invalid"_s, DavServer::user(), u"x"_s)),
        CloudProblem::Unreachable);
    EXPECT_EQ(
        problemIn(find(u"ftp://a.org"_s, DavServer::user(), u"x"_s)), CloudProblem::NotAnAccount);
    server.forbidWriting();
    const CloudResult<AccountAbilities> result = probe(account);
    ASSERT_TRUE(problemIn(result));
    EXPECT_TRUE(
        problemIn(result) == CloudProblem::NotAllowed || problemIn(result) == CloudProblem::Failed)
        << "Apache says \"internal error\" where it may not write";
}

INSTANTIATE_TEST_SUITE_P(Servers, QtCloudProviderSignIn,
    ::testing::Values(Program::Lighttpd, Program::Apache),
    [](const auto &each) { return each.param == Program::Lighttpd ? "Lighttpd" : "Apache"; });

TEST_F(QtCloudProviderTest, ACertificateIsAskedAboutBeforeThePasswordIsSent)
{
    const DavServer server(Program::Lighttpd, Certificate::SelfSigned);
    const auto first = find(u"127.0.0.1:4443"_s, DavServer::user(), DavServer::password());
    ASSERT_EQ(problemIn(first), CloudProblem::UntrustedCertificate);
    const QByteArray fingerprint = std::get<CloudError>(first).fingerprint;
    EXPECT_EQ(fingerprint, server.fingerprint());
    EXPECT_EQ(
        valueOf(find(u"127.0.0.1:4443"_s, DavServer::user(), DavServer::password(), fingerprint)),
        server.address());
}

TEST_F(QtCloudProviderTest, AWrongPasswordIsTriedOnce)
{
    ScriptedServer server;
    server.answer = [](const auto &) {
        return ScriptedServer::Answer{ScriptedServer::whole("401 Unauthorized", "<html>",
            "WWW-Authenticate: Basic realm=\"x\"\r\nContent-Type: text/html\r\n")};
    };
    EXPECT_EQ(problemIn(find(server.address().toString(), u"mary"_s, u"x"_s)),
        CloudProblem::WrongPassword);
    EXPECT_EQ(server.requests.size(), 1);
}

TEST_F(QtCloudProviderTest, APageWhereOneLogsInIsNoAccount)
{
    ScriptedServer server;
    server.answer = [](const auto &) {
        return ScriptedServer::Answer{ScriptedServer::whole(
            "200 OK", "<html>second factor</html>", "Content-Type: text/html\r\n")};
    };
    EXPECT_EQ(problemIn(find(server.address().toString(), u"mary"_s, u"x"_s)),
        CloudProblem::NotAnAccount);
    EXPECT_EQ(server.requests.size(), 3);
}

TEST_F(QtCloudProviderTest, AServerThatOverlooksPreconditionsIsFoundOut)
{
    ScriptedServer server;
    QMap<QByteArray, QByteArray> files;
    server.answer = [&](const ScriptedServer::Request &request) {
        QByteArray status = "404 Not Found";
        QByteArray body;
        QByteArray headers = "Content-Type: text/xml\r\n";
        if (request.method == "PROPFIND") {
            status = "207 Multi-Status";
            body = "<d:multistatus xmlns:d=\"DAV:\"><d:response><d:href>/Quillon/</d:href>"
                   "<d:propstat><d:prop><d:resourcetype><d:collection/></d:resourcetype></d:prop>"
                   "</d:propstat></d:response>";
            for (auto file = files.begin(); file != files.end(); ++file) {
                body += "<d:response><d:href>" + file.key() + "</d:href></d:response>";
            }
            body += "</d:multistatus>";
        } else if (request.method == "PUT") {
            files.insert(request.path, request.body);
            status = "201 Created";
        } else if (files.contains(request.path)) {
            status = "200 OK";
            headers = "ETag: \"" + QByteArray::number(files.value(request.path).size()) + "\"\r\n";
            body = request.method == "GET" ? files.value(request.path) : QByteArray();
            if (request.method == "DELETE") {
                files.remove(request.path);
            }
        }
        return ScriptedServer::Answer{ScriptedServer::whole(status, body, headers)};
    };
    EXPECT_EQ(
        valueOf(probe({CloudAccount::Kind::WebDav, server.address(), u"mary"_s, u"Quillon"_s})),
        (AccountAbilities{false, false, true}));
    EXPECT_TRUE(files.isEmpty());
}

TEST_F(QtCloudProviderTest, AFolderCanDoAll)
{
    const QTemporaryDir folder;
    EXPECT_EQ(valueOf(probe({CloudAccount::Kind::Folder, {}, {}, folder.path()})),
        (AccountAbilities{true, true, true}));
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST_F(QtCloudProviderTest, ASearchThatIsDroppedSaysNothing)
{
    ScriptedServer server;
    server.answer = [](const auto &) { return ScriptedServer::Answer{}; };
    int answers = 0;
    auto request = provider.findWebDavAddress(
        {server.address().toString(), u"mary"_s, u"x"_s}, [&](const auto &) { ++answers; });
    EXPECT_TRUE(eventually([&] { return server.requests.size() == 1; }));
    request.reset();
    request = provider.findWebDavAddress({u""_s, u""_s, u""_s}, [&](const auto &) {
        ++answers;
        request.reset();
    });
    EXPECT_TRUE(eventually([&] { return answers == 1; }));
}

} // namespace
} // namespace quillon::test
