// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "integration/platform/qt/web/HttpTest.h"

#include <QDir>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

/// A transfer may be ended at every moment, and nothing is heard of it afterwards.
class Cancel : public HttpTest
{
protected:
    Cancel()
    {
        HttpClientOptions options;
        options.folder = folder.path();
        client.emplace(options);
        web.serve("/page", {{u"body"_s, u"0123456789"_s}});
        web.serve("/slow", {{u"size"_s, 1'000'000}, {u"piece"_s, 10'000}, {u"pause"_s, 0.02}});
    }

    void expectNothingFollows(const int &calls)
    {
        const int before = calls;
        EXPECT_EQ(outcome(get(WebServer::secure("/page"))), "200 0123456789")
            << "other transfers go on";
        EXPECT_FALSE(eventually([&] { return calls != before; }, 300ms));
    }
    void expectNothingLeft() const
    {
        EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList());
    }
    HttpClient::Completion counting(int &calls) const
    {
        return [&calls](const Answer &) { ++calls; };
    }
    HttpClient::DownloadHandler countingAll(int &calls) const
    {
        return {[&calls](const HttpClient::Progress &) { ++calls; },
            [&calls](const QString &) { ++calls; }, [&calls](const Error &) { ++calls; }};
    }

    QTemporaryDir folder;
};

TEST_F(Cancel, AtOnce)
{
    int calls = 0;
    client->cancel(client->get(WebServer::secure("/page"), 100, counting(calls)));
    client->cancel(client->download(WebServer::secure("/page"), countingAll(calls)));
    client->cancel(client->get(QUrl(u"file:///etc/passwd"_s), 100, counting(calls)));
    expectNothingFollows(calls);
    EXPECT_EQ(calls, 0);
    expectNothingLeft();
}

TEST_F(Cancel, AfterAnyNumberOfTurnsOfTheLoop)
{
    int calls = 0;
    for (int turns = 0; turns < 40; ++turns) {
        const auto one = client->get(WebServer::secure("/slow"), 1'000'000, counting(calls));
        const auto other = client->download(WebServer::plain("/slow"), countingAll(calls));
        int turned = 0;
        eventually([&] { return turned++ >= turns; });
        client->cancel(one);
        client->cancel(other);
        const int before = calls;
        QCoreApplication::processEvents();
        EXPECT_EQ(calls, before);
    }
    expectNothingFollows(calls);
    expectNothingLeft();
}

TEST_F(Cancel, InsideAReportOfProgress)
{
    int calls = 0;
    HttpClient::DownloadHandler handler = countingAll(calls);
    HttpClient::Token token = 0;
    handler.didWriteData = [&](const HttpClient::Progress &) {
        ++calls;
        client->cancel(token);
        client->cancel(token);
    };
    token = client->download(WebServer::secure("/slow"), handler);
    EXPECT_TRUE(eventually([&] { return calls > 0; }));
    expectNothingFollows(calls);
    EXPECT_EQ(calls, 1);
    expectNothingLeft();
}

TEST_F(Cancel, OfAnotherInsideACallback)
{
    int calls = 0;
    const auto other = client->download(WebServer::secure("/slow"), countingAll(calls));
    bool answered = false;
    client->get(WebServer::secure("/page"), 100, [&](const Answer &) {
        client->cancel(other);
        answered = true;
    });
    EXPECT_TRUE(eventually([&] { return answered; }));
    expectNothingFollows(calls);
}

TEST_F(Cancel, OfWhatHasEndedOrNeverWas)
{
    int calls = 0;
    HttpClient::Token token = 0;
    token = client->get(WebServer::secure("/page"), 100, [&](const Answer &answer) {
        ++calls;
        client->cancel(token);
        EXPECT_EQ(outcome(answer), "200 0123456789");
    });
    EXPECT_TRUE(eventually([&] { return calls > 0; }));
    client->cancel(token);
    client->cancel(token + 1000);
    client->cancel(0);
    expectNothingFollows(calls);
    EXPECT_EQ(calls, 1);
}

TEST_F(Cancel, ByTheEndOfTheClient)
{
    int calls = 0;
    for (int turns : {0, 1, 5, 20}) {
        client->get(WebServer::secure("/slow"), 1'000'000, counting(calls));
        client->get(WebServer::secure("/page"), 1'000'000, counting(calls));
        client->download(WebServer::plain("/slow"), countingAll(calls));
        int turned = 0;
        eventually([&] { return turned++ >= turns; });
        client.emplace();
        const int before = calls;
        expectNothingFollows(calls);
        EXPECT_EQ(calls, before);
    }
    expectNothingLeft();
}

TEST_F(Cancel, ByTheEndOfTheClientInsideItsOwnCallbacks)
{
    for (const char *where : {"completion", "failure", "progress", "finished", "failed"}) {
        client.emplace();
        bool called = false;
        int others = 0;
        const auto destroy = [&] {
            client.reset();
            called = true;
        };
        client->download(WebServer::secure("/slow"), {{}, [&](const QString &) { ++others; }, {}});
        const QByteArray place(where);
        if (place == "completion") {
            client->get(WebServer::secure("/page"), 100, [&](const Answer &) { destroy(); });
        } else if (place == "failure") {
            client->get(QUrl(), 100, [&](const Answer &) { destroy(); });
        } else if (place == "progress") {
            client->download(WebServer::secure("/page"),
                {[&](const HttpClient::Progress &) { destroy(); }, {}, {}});
        } else if (place == "finished") {
            client->download(WebServer::secure("/page"),
                {{},
                    [&](const QString &path) {
                        destroy();
                        EXPECT_TRUE(QFile::exists(path)) << "the file stays until the call returns";
                    },
                    {}});
        } else {
            client->download(QUrl(), {{}, {}, [&](const Error &) { destroy(); }});
        }
        EXPECT_TRUE(eventually([&] { return called; })) << where;
        EXPECT_FALSE(eventually([&] { return others > 0; }, 100ms)) << where;
    }
}

} // namespace
} // namespace quillon::test
