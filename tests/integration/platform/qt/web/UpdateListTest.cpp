// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/SettingsKeys.h"
#include "fakes/FakeNotifier.h"
#include "fakes/FakeReachability.h"
#include "fakes/FakeScheduler.h"
#include "fakes/FakeSettingsStore.h"
#include "fakes/FakeSoftwareCenter.h"
#include "fakes/LogCapture.h"
#include "fakes/SignedFeed.h"
#include "integration/platform/qt/web/HttpTest.h"
#include "updates/Updater.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using ::testing::HasSubstr;

/// The updater of version 4.0.0 over the real client, and servers that mean well and ill.
class UpdateList : public HttpTest
{
protected:
    void answer(const QByteArray &body, QVariantMap rule = {})
    {
        rule.insert(u"body"_s, QString::fromUtf8(body));
        if (!rule.contains(u"headers"_s)) {
            rule.insert(u"headers"_s, QVariantMap{{u"Content-Type"_s, u"application/xml"_s}});
        }
        web.serve("/appcast.xml", rule);
    }
    QByteArray listOf(const QByteArray &version) const
    {
        return key.sign(feedText(feedItem(version)));
    }

    void look(const QUrl &feed = WebServer::secure("/appcast.xml"))
    {
        settings.set(keys::SUFeedURL, feed.toString());
        updater.checkForUpdates();
        EXPECT_TRUE(updater.isChecking()) << "it was waited for";
        EXPECT_TRUE(eventually([this] { return !updater.isChecking(); })) << "it does not end";
    }
    /// Nothing but a line in the log comes of it.
    void expectRefused(UpdateProblem problem, const char *why = "")
    {
        EXPECT_EQ(updater.problem(), problem);
        EXPECT_FALSE(updater.offer());
        EXPECT_FALSE(settings.get(keys::updateFeed).isValid());
        EXPECT_THAT(LogCapture::taken().join(u'\n').toStdString(),
            ::testing::AllOf(HasSubstr("quillon.updates: no list of versions: "), HasSubstr(why)));
    }

    LogCapture log;
    FakeScheduler scheduler;
    FakeSettingsStore settings{scheduler};
    FakeReachability reachability;
    FakeNotifier notifier;
    FakeSoftwareCenter center;
    const FeedKey key;
    Updater updater{{settings, scheduler, *client, reachability, notifier, center,
        {QUrl(), key.publicKey(), u"4.0.0"_s}}};
};

TEST_F(UpdateList, WithARightSignatureOffersItsVersion)
{
    answer(listOf("4.1"));
    look();
    ASSERT_TRUE(updater.offer());
    EXPECT_EQ(updater.offer()->version.text(), u"4.1"_s);
    EXPECT_EQ(LogCapture::taken(), QStringList());
    // What the server learns: that somebody looks.
    const QJsonObject asked = web.log().last();
    EXPECT_TRUE(asked.value(u"secure"_s).toBool());
    EXPECT_EQ(asked.value(u"query"_s).toString(), QString());
    for (const QJsonValue &header : asked.value(u"headers"_s).toObject()) {
        EXPECT_FALSE(header.toString().contains(u"4.0"_s)) << header.toString().toStdString();
    }
}

TEST_F(UpdateList, WithAWrongSignatureChangesNothing)
{
    answer(FeedKey(1).sign(feedText(feedItem("9.0"))));
    look();
    expectRefused(UpdateProblem::NotTrusted, "signature");
    answer(listOf("9.0").replace("9.0", "9.1"));
    look();
    expectRefused(UpdateProblem::NotTrusted, "signature");
}

TEST_F(UpdateList, WithoutASignatureChangesNothing)
{
    answer(feedText(feedItem("9.0")));
    look();
    expectRefused(UpdateProblem::NotTrusted, "signature");
    answer({});
    look();
    expectRefused(UpdateProblem::NotTrusted, "signature");
}

TEST_F(UpdateList, OfAnOlderVersionOffersNone)
{
    answer(listOf("3.9"));
    look();
    EXPECT_TRUE(updater.hasAnswer());
    EXPECT_FALSE(updater.offer());
}

TEST_F(UpdateList, ThatWasReplacedByANewerOneIsNotBelievedAgain)
{
    answer(key.sign(feedText(feedItem("4.1"), "2025-06-02T12:00:00Z")));
    look();
    answer(listOf("4.0.9"));
    look();
    EXPECT_EQ(updater.problem(), UpdateProblem::Outdated);
    ASSERT_TRUE(updater.offer());
    EXPECT_EQ(updater.offer()->version.text(), u"4.1"_s);
}

TEST_F(UpdateList, OfAbsurdLengthIsNotRead)
{
    const qint64 before = peakMemory();
    web.serve("/appcast.xml",
        {{u"size"_s, 100 << 20}, {u"headers"_s, QVariantMap{{u"Content-Type"_s, u"text/xml"_s}}}});
    look();
    expectRefused(UpdateProblem::NotTrusted, "longer than allowed");
    web.serve("/appcast.xml", {{u"size"_s, u"endless"_s}, {u"framing"_s, u"chunked"_s},
                                  {u"headers"_s, QVariantMap{{u"Content-Type"_s, u"text/xml"_s}}}});
    look();
    expectRefused(UpdateProblem::NotTrusted, "longer than allowed");
    EXPECT_LT(peakMemory() - before, muchMemory);
}

TEST_F(UpdateList, ThatComesPackedIsNotUnpacked)
{
    web.serve("/appcast.xml", {{u"gzip"_s, 100 << 20}});
    look();
    expectRefused(UpdateProblem::NotFetched, "packed");
}

TEST_F(UpdateList, OfAnotherTypeIsNotRead)
{
    answer(listOf("9.0"), {{u"headers"_s, QVariantMap{{u"Content-Type"_s, u"text/html"_s}}}});
    look();
    expectRefused(UpdateProblem::NotTrusted, "not XML");
    answer(listOf("9.0"), {{u"headers"_s, QVariantMap()}});
    look();
    expectRefused(UpdateProblem::NotTrusted, "not XML");
}

TEST_F(UpdateList, IsFollowedOverHttpsOnly)
{
    answer(listOf("4.1"));
    web.serve("/away", {{u"redirect"_s, u"http://trusted.test/appcast.xml"_s}});
    look(WebServer::secure("/away"));
    expectRefused(UpdateProblem::NotFetched, "https to http");
    web.serve("/away", {{u"redirect"_s, u"file:///etc/passwd"_s}});
    look(WebServer::secure("/away"));
    expectRefused(UpdateProblem::NotFetched);
    web.serve("/away", {{u"redirect"_s, u"/away"_s}});
    look(WebServer::secure("/away"));
    expectRefused(UpdateProblem::NotFetched);
    web.serve("/away", {{u"redirect"_s, u"https://untrusted.test/appcast.xml"_s}});
    look(WebServer::secure("/away"));
    expectRefused(UpdateProblem::NotFetched);
    web.serve("/away", {{u"redirect"_s, u"/appcast.xml"_s}});
    look(WebServer::secure("/away"));
    EXPECT_TRUE(updater.offer());
}

TEST_F(UpdateList, OfAServerThatNobodyVouchesForIsNotAskedFor)
{
    answer(listOf("9.0"));
    for (const char *host : {"untrusted.test", "expired.test", "wrong-name.test"}) {
        look(WebServer::secure("/appcast.xml", host));
        expectRefused(UpdateProblem::NotFetched);
    }
    for (const QJsonObject &entry : web.log()) {
        EXPECT_FALSE(entry.contains(u"path"_s)) << "the request was sent";
    }
}

TEST_F(UpdateList, WithABadStatusOrCutOffIsNone)
{
    for (const int status : {204, 206, 304, 403, 404, 500}) {
        answer(listOf("9.0"), {{u"status"_s, status}});
        look();
        expectRefused(UpdateProblem::NotFetched);
    }
    answer(listOf("9.0"), {{u"cut"_s, 100}, {u"then"_s, u"reset"_s}});
    look();
    expectRefused(UpdateProblem::NotFetched);
}

TEST_F(UpdateList, ThatComesByteByByteIsNotWaitedForLongerThanTwoMinutes)
{
    answer(listOf("9.0"), {{u"piece"_s, 1}, {u"pause"_s, 0.2}});
    settings.set(keys::SUFeedURL, WebServer::secure("/appcast.xml").toString());
    updater.checkForUpdates();
    EXPECT_TRUE(eventually([this] { return !web.log().isEmpty(); }));
    EXPECT_TRUE(updater.isChecking());
    scheduler.advance(2min);
    EXPECT_FALSE(updater.isChecking());
    expectRefused(UpdateProblem::NotFetched, "took too long");
}

TEST_F(UpdateList, OfAServerThatIsDownIsNone)
{
    web.stop();
    look();
    expectRefused(UpdateProblem::NotFetched);
}

} // namespace
} // namespace quillon::test
