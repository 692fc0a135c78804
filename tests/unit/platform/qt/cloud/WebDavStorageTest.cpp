// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/cloud/WebDavStorage.h"

#include "fakes/QtPrinting.h"
#include "integration/cloud/Answers.h"
#include "unit/platform/qt/cloud/ScriptedServer.h"

#include <QFile>
#include <gmock/gmock.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
namespace {

using Then = ScriptedServer::Answer::Then;

/// Against a server that does what no good one would.
class WebDavStorageAgainst : public ::testing::Test
{
protected:
    WebDavStorageAgainst() { use({}); }

    void use(WebDavTransfer::Limits limits)
    {
        storage.emplace(CloudAccount{CloudAccount::Kind::WebDav, server.address(u"/dav/"_s),
                            u"märy"_s, u"Quillon"_s},
            u"pass:wörd"_s, limits);
    }
    void answerAll(const QByteArray &bytes, Then then = Then::Wait, const QByteArray &more = {})
    {
        server.answer = [=](const ScriptedServer::Request &) {
            return ScriptedServer::Answer{bytes, then, more};
        };
    }
    Asked asked() { return Asked(*storage); }
    QByteArrayList methods() const
    {
        QByteArrayList all;
        for (const ScriptedServer::Request &request : server.requests) {
            all << request.method;
        }
        return all;
    }
    /// The most memory that this process has had, in kilobytes.
    static qint64 peakMemory()
    {
        QFile file(u"/proc/self/status"_s);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        for (const QByteArray &line : file.readAll().split('\n')) {
            if (line.startsWith("VmHWM:")) {
                return line.mid(6).trimmed().split(' ').first().toLongLong();
            }
        }
        return 0;
    }

    /// What answers may take that are not to be kept, in kilobytes. The sanitizer holds back what
    /// was freed.
#ifdef __SANITIZE_ADDRESS__
    static constexpr qint64 muchMemory = (64 + 256) * 1024;
#else
    static constexpr qint64 muchMemory = 64 * 1024;
#endif
    static constexpr qint64 limit = 1 << 20;
    const QByteArray file = ScriptedServer::whole("200 OK", "secret", "ETag: \"1\"\r\n");
    ScriptedServer server;
    std::optional<WebDavStorage> storage;
};

TEST_F(WebDavStorageAgainst, ARequestSaysWhoWeAreAndNothingElse)
{
    answerAll(file);
    EXPECT_EQ(valueOf(asked().read(u"key"_s)).bytes, "secret");
    const ScriptedServer::Request request = server.requests.value(0);
    EXPECT_EQ(request.method, "GET");
    EXPECT_EQ(request.path, "/dav/Quillon/key");
    EXPECT_EQ(request.headers.value("authorization"),
        "Basic " + QByteArray("m\xc3\xa4ry:pass:w\xc3\xb6rd").toBase64());
    EXPECT_EQ(request.headers.value("accept-encoding"), "identity");
    EXPECT_EQ(request.headers.value("user-agent"), "Quillon");
    EXPECT_FALSE(request.headers.contains("cookie"));
}

TEST_F(WebDavStorageAgainst, PreconditionsAreSent)
{
    answerAll(ScriptedServer::whole("201 Created"));
    valueOf(asked().create(u"key"_s, "a"));
    valueOf(asked().replace(u"key"_s, "b", "\"7\""));
    valueOf(asked().replace(u"key"_s, "c"));
    EXPECT_EQ(server.requests.at(0).headers.value("if-none-match"), "*");
    EXPECT_EQ(server.requests.at(1).headers.value("if-match"), "\"7\"");
    EXPECT_FALSE(server.requests.at(2).headers.contains("if-match"));
    EXPECT_EQ(server.requests.at(2).body, "c");
    answerAll(ScriptedServer::whole("304 Not Modified"));
    EXPECT_FALSE(valueOf(asked().readIfChanged(u"key"_s, "\"7\"")));
    EXPECT_EQ(server.requests.at(3).headers.value("if-none-match"), "\"7\"");
}

TEST_F(WebDavStorageAgainst, ConnectionsAreKeptAndCookiesAreNot)
{
    answerAll(ScriptedServer::whole("200 OK", "x", "Set-Cookie: session=1\r\n"));
    for (int times = 0; times < 5; ++times) {
        valueOf(asked().read(u"key"_s));
    }
    EXPECT_EQ(server.connections(), 1);
    EXPECT_FALSE(server.requests.last().headers.contains("cookie"));
}

TEST_F(WebDavStorageAgainst, CutsAnywhereNothingIsRead)
{
    const qsizetype head = file.indexOf("\r\n\r\n") + 4;
    for (const Then then : {Then::Close, Then::Reset}) {
        for (qsizetype length = 0; length < file.size(); length += length < head ? 7 : 1) {
            answerAll(file.first(length), then);
            EXPECT_EQ(problemIn(asked().read(u"key"_s)), CloudProblem::Unreachable) << length;
        }
    }
    answerAll(file, Then::Close);
    EXPECT_EQ(valueOf(asked().read(u"key"_s)).bytes, "secret");
}

TEST_F(WebDavStorageAgainst, AFileWhoseLengthIsNotSaidIsComparedWithItsListing)
{
    QByteArray bytes;
    server.answer = [&](const ScriptedServer::Request &request) {
        if (request.method == "GET") {
            return ScriptedServer::Answer{bytes, Then::Close};
        }
        EXPECT_EQ(request.method, "PROPFIND");
        EXPECT_EQ(request.headers.value("depth"), "0");
        return ScriptedServer::Answer{ScriptedServer::whole("207 Multi-Status",
            "<multistatus xmlns=\"DAV:\"><response><href>/dav/Quillon/key</href><propstat><prop>"
            "<getcontentlength>6</getcontentlength></prop></propstat></response></multistatus>",
            "Content-Type: text/xml\r\n")};
    };
    const QByteArray chunks = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n"
                              "3\r\nsec\r\n3\r\nret\r\n0\r\n\r\n";
    for (const QByteArray &whole : {chunks, QByteArray("HTTP/1.0 200 OK\r\n\r\nsecret")}) {
        const qsizetype head = whole.indexOf("\r\n\r\n") + 4;
        for (qsizetype length = head; length <= whole.size(); ++length) {
            bytes = whole.first(length);
            // Where the cut is within the length of a chunk, Qt waits for ever.
            use(length == whole.size() ? WebDavTransfer::Limits{}
                                       : WebDavTransfer::Limits{200ms, 10min});
            const auto result = asked().read(u"key"_s);
            if (const auto *const content = std::get_if<CloudStorage::Content>(&result)) {
                EXPECT_EQ(content->bytes, "secret") << length;
            } else {
                EXPECT_EQ(problemIn(result), CloudProblem::Unreachable) << length;
                EXPECT_LT(length, whole.size());
            }
        }
    }
}

TEST_F(WebDavStorageAgainst, AListingThatWasCutOffIsNone)
{
    answerAll("HTTP/1.1 207 Multi-Status\r\nContent-Type: text/xml\r\n\r\n"
              "<multistatus xmlns=\"DAV:\"><response>",
        Then::Close);
    EXPECT_EQ(problemIn(asked().list()), CloudProblem::Unreachable);
}

TEST_F(WebDavStorageAgainst, SilenceAndSlownessEnd)
{
    use({150ms, 10min});
    answerAll("");
    EXPECT_EQ(problemIn(asked().read(u"key"_s)), CloudProblem::Unreachable);
    answerAll(file.chopped(1));
    EXPECT_EQ(problemIn(asked().read(u"key"_s)), CloudProblem::Unreachable);
    use({10min, 300ms});
    answerAll("HTTP/1.1 200 OK\r\nContent-Length: 1000000\r\n\r\n", Then::Trickle);
    EXPECT_EQ(problemIn(asked().read(u"key"_s)), CloudProblem::Unreachable);
}

TEST_F(WebDavStorageAgainst, EndlessBodiesAreNotTaken)
{
    const QByteArray piece(16 * 1024, 'x');
    const qint64 before = peakMemory();
    answerAll("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n", Then::Repeat,
        "4000\r\n" + piece + "\r\n");
    EXPECT_EQ(problemIn(asked().read(u"key"_s, limit)), CloudProblem::TooLarge);
    answerAll("HTTP/1.1 200 OK\r\nContent-Length: 4000000000000\r\n\r\n", Then::Repeat, piece);
    EXPECT_EQ(problemIn(asked().read(u"key"_s, limit)), CloudProblem::TooLarge);
    for (const char *const status : {"403 No", "200 OK\r\nContent-Type: text/html", "302 Found"}) {
        answerAll("HTTP/1.1 " + QByteArray(status) + "\r\nTransfer-Encoding: chunked\r\n\r\n",
            Then::Repeat, "4000\r\n" + piece + "\r\n");
        EXPECT_EQ(problemIn(asked().read(u"key"_s, limit)),
            status[0] == '4' ? CloudProblem::NotAllowed : CloudProblem::NotAnAccount);
        EXPECT_TRUE(problemIn(asked().create(u"key"_s, "x")));
    }
    answerAll(ScriptedServer::whole("401 No", QByteArray(4 << 20, 'x')));
    EXPECT_EQ(problemIn(asked().read(u"key"_s, limit)), CloudProblem::WrongPassword);
    EXPECT_LT(peakMemory() - before, muchMemory) << "kilobytes";
}

TEST_F(WebDavStorageAgainst, EndlessListingsAreNotTaken)
{
    const qint64 before = peakMemory();
    answerAll("HTTP/1.1 207 Multi\r\nTransfer-Encoding: chunked\r\n\r\n", Then::Repeat,
        "4000\r\n" + QByteArray(16 * 1024, '<') + "\r\n");
    EXPECT_EQ(problemIn(asked().list()), CloudProblem::NotAnAccount);
    EXPECT_LT(peakMemory() - before, muchMemory) << "kilobytes";
}

TEST_F(WebDavStorageAgainst, HeadsWithoutEndAreEnded)
{
    use({10s, 2s});
    answerAll("HTTP/1.1 200 OK\r\n", Then::Repeat, "X-More: " + QByteArray(1000, 'x') + "\r\n");
    EXPECT_EQ(problemIn(asked().read(u"key"_s)), CloudProblem::Unreachable);
}

TEST_F(WebDavStorageAgainst, PackedBodiesAreNotUnpacked)
{
    answerAll(ScriptedServer::whole("200 OK", "\x1f\x8b", "Content-Encoding: gzip\r\n"));
    EXPECT_EQ(problemIn(asked().read(u"key"_s)), CloudProblem::NotAnAccount);
}

TEST_F(WebDavStorageAgainst, APageForPeopleIsNoFile)
{
    answerAll(ScriptedServer::whole(
        "200 OK", "<html>Log in</html>", "Content-Type: Text/HTML; charset=utf-8\r\n"));
    EXPECT_EQ(problemIn(asked().read(u"key"_s)), CloudProblem::NotAnAccount);
    EXPECT_EQ(problemIn(asked().list()), CloudProblem::NotAnAccount);
    EXPECT_EQ(problemIn(asked().create(u"key"_s, "x")), CloudProblem::NotAnAccount);
    EXPECT_EQ(problemIn(asked().remove(u"key"_s)), CloudProblem::NotAnAccount);
}

TEST_F(WebDavStorageAgainst, RedirectsAtTheServerAreFollowedWithAllThatWasAsked)
{
    server.answer = [&](const ScriptedServer::Request &request) {
        return ScriptedServer::Answer{
            request.path.startsWith("/dav/")
                ? ScriptedServer::whole("301 Moved", {}, "Location: /new" + request.path + "\r\n")
                : ScriptedServer::whole("201 Created")};
    };
    valueOf(asked().create(u"key"_s, "secret"));
    const ScriptedServer::Request last = server.requests.last();
    EXPECT_EQ(last.method, "PUT");
    EXPECT_EQ(last.path, "/new/dav/Quillon/key");
    EXPECT_EQ(last.body, "secret");
    EXPECT_EQ(last.headers.value("if-none-match"), "*");
}

TEST_F(WebDavStorageAgainst, RedirectsElsewhereAreNot)
{
    ScriptedServer other;
    other.answer = [&](const ScriptedServer::Request &) { return ScriptedServer::Answer{file}; };
    const QByteArray port = QByteArray::number(server.address().port());
    for (const QByteArray &place : {other.address().toEncoded(), QByteArray("http://example.org/"),
             QByteArray("ftp://a.org/"), "http://mary@localhost:" + port + "/",
             "//127.0.0.2:" + port + "/", QByteArray("file:///etc/passwd"), QByteArray("http://"),
             "https://127.0.0.1:" + port + "/"}) {
        answerAll(ScriptedServer::whole("302 Found", {}, "Location: " + place + "\r\n"));
        EXPECT_EQ(problemIn(asked().read(u"key"_s)), CloudProblem::NotAnAccount)
            << place.toStdString();
    }
    EXPECT_TRUE(other.requests.isEmpty());
}

TEST_F(WebDavStorageAgainst, RedirectsInACircleEnd)
{
    answerAll(ScriptedServer::whole("307 Again", {}, "Location: /dav/Quillon/key\r\n"));
    EXPECT_EQ(problemIn(asked().read(u"key"_s)), CloudProblem::NotAnAccount);
    EXPECT_EQ(server.requests.size(), 6);
}

TEST_F(WebDavStorageAgainst, WithoutEncryptionNothingIsSentOutOfThisComputer)
{
    WebDavStorage outside({CloudAccount::Kind::WebDav, QUrl(u"http://192.0.2.1/"_s)}, u"x"_s);
    EXPECT_EQ(problemIn(Asked(outside).list()), CloudProblem::NotAnAccount);
}

TEST_F(WebDavStorageAgainst, AServerThatNeverVouchesForAFileIsAskedOnceMoreAndThenTold)
{
    QByteArray stored = "\"1\"";
    server.answer = [&](const ScriptedServer::Request &request) {
        const bool isConditional = request.headers.contains("if-match");
        const bool isGood = request.method == "HEAD" || !isConditional;
        return ScriptedServer::Answer{ScriptedServer::whole(
            isGood ? "204 Done" : "412 No", {}, "ETag: W/" + stored + "\r\n")};
    };
    server.answer = [inner = server.answer](const ScriptedServer::Request &request) {
        ScriptedServer::Answer given = inner(request);
        if (request.method == "HEAD") {
            given.bytes.replace("204 Done", "200 OK");
        }
        return given;
    };
    EXPECT_EQ(valueOf(asked().replace(u"head"_s, "new", "\"1\"")), "")
        << "a weak one stands for other bytes yet";
    EXPECT_EQ(methods(), (QByteArrayList{"PUT", "HEAD", "PUT", "HEAD", "PUT"}));
    server.requests.clear();
    stored = "\"2\"";
    EXPECT_EQ(problemIn(asked().replace(u"head"_s, "new", "\"1\"")), CloudProblem::Changed);
    EXPECT_EQ(methods(), (QByteArrayList{"PUT", "HEAD"}));
}

TEST_F(WebDavStorageAgainst, AFolderThatCannotBeMadeIsNoAccount)
{
    answerAll(ScriptedServer::whole("404 Not Found"));
    EXPECT_EQ(problemIn(asked().list()), CloudProblem::NotAnAccount);
    EXPECT_EQ(problemIn(asked().create(u"key"_s, "x")), CloudProblem::NotAnAccount);
    EXPECT_EQ(methods(), (QByteArrayList{"PROPFIND", "MKCOL", "PUT", "MKCOL"}));
    EXPECT_EQ(problemIn(asked().read(u"key"_s)), CloudProblem::NotThere);
    EXPECT_EQ(problemIn(asked().remove(u"key"_s)), std::nullopt);
    answerAll(ScriptedServer::whole("507 Full"));
    EXPECT_EQ(problemIn(asked().create(u"key"_s, "x")), CloudProblem::Full);
}

TEST_F(WebDavStorageAgainst, ManyRequestsAreAllAnsweredFewAtATime)
{
    answerAll(file);
    int answers = 0;
    for (int number = 0; number < 500; ++number) {
        storage->read(u"key"_s, limit, [&](const auto &result) {
            EXPECT_FALSE(problemIn(result));
            ++answers;
        });
    }
    EXPECT_EQ(answers, 0);
    EXPECT_TRUE(eventually([&] { return answers == 500; }));
    EXPECT_LE(server.connections(), 4);
}

TEST_F(WebDavStorageAgainst, NothingIsAnsweredWhenItHasGone)
{
    answerAll(file);
    int answers = 0;
    for (int number = 0; number < 20; ++number) {
        storage->read(u"key"_s, limit, [&](const auto &) { ++answers; });
        storage->read(u"no name"_s, limit, [&](const auto &) { ++answers; });
    }
    storage.reset();
    EXPECT_FALSE(eventually([&] { return answers > 0; }, 100ms));
}

TEST_F(WebDavStorageAgainst, AnAnswerMayDestroyIt)
{
    answerAll(file);
    int answers = 0;
    for (int number = 0; number < 20; ++number) {
        storage->read(u"key"_s, limit, [&](const auto &) {
            ++answers;
            storage.reset();
        });
    }
    EXPECT_TRUE(eventually([&] { return answers > 0; }));
    EXPECT_FALSE(eventually([&] { return answers > 1; }, 100ms));
}

TEST_F(WebDavStorageAgainst, NobodyThereIsUnreachable)
{
    QUrl nobody;
    {
        const ScriptedServer gone;
        nobody = gone.address();
    }
    WebDavStorage other({CloudAccount::Kind::WebDav, nobody}, u"x"_s);
    EXPECT_EQ(problemIn(Asked(other).list()), CloudProblem::Unreachable);
}

} // namespace
} // namespace quillon::test
