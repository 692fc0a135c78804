// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "updates/AcceptedFeed.h"

#include "base/SettingsKeys.h"
#include "fakes/FakeScheduler.h"
#include "fakes/FakeSettingsStore.h"
#include "fakes/QtPrinting.h"
#include "fakes/SignedFeed.h"
#include "updates/UpdateProblem.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

const QByteArray may = "2025-05-01T12:00:00Z";
const QByteArray june = "2025-06-01T12:00:00Z";

class AcceptedFeedTest : public ::testing::Test
{
protected:
    AcceptedFeed feedOf(const QString &version, const FeedKey &by = FeedKey())
    {
        return {settings, {QUrl(), by.publicKey(), version}};
    }
    std::optional<Error> accept(const QByteArray &file)
    {
        return feedOf(u"4.0.0"_s).accept(file, scheduler.now());
    }
    /// It changes nothing.
    void expectRefused(const QByteArray &file, UpdateProblem problem)
    {
        const QVariant before = settings.get(keys::updateFeed);
        const auto error = accept(file);
        ASSERT_TRUE(error);
        EXPECT_EQ(error->domain, updateErrorDomain);
        EXPECT_EQ(static_cast<UpdateProblem>(error->code), problem) << error->message.toStdString();
        EXPECT_EQ(settings.get(keys::updateFeed), before);
    }
    QString offered(const QString &version = u"4.0.0"_s)
    {
        const auto offer = feedOf(version).offer();
        return offer ? offer->version.text() : QString();
    }

    FakeScheduler scheduler; // in the middle of June 2025
    FakeSettingsStore settings{scheduler};
    const FeedKey key;
    const QByteArray signedFeed = key.sign(feedText(feedItem("4.1") + feedItem("4.0.1"), june));
};

TEST_F(AcceptedFeedTest, OffersTheNewestVersionIfItIsNewerThanThisOne)
{
    EXPECT_EQ(offered(), QString());
    EXPECT_FALSE(accept(signedFeed));
    EXPECT_EQ(offered(u"4.0.0"_s), u"4.1"_s);
    EXPECT_EQ(offered(u"4.0.9"_s), u"4.1"_s);
    EXPECT_EQ(offered(u"4.1.0"_s), QString());
    EXPECT_EQ(offered(u"4.1"_s), QString());
    EXPECT_EQ(offered(u"4.2"_s), QString());
    EXPECT_EQ(offered(u"of somebody's own"_s), QString());
    EXPECT_EQ(offered(QString()), QString());
}

TEST_F(AcceptedFeedTest, TakesBackAVersion)
{
    EXPECT_FALSE(accept(signedFeed));
    EXPECT_FALSE(accept(key.sign(feedText({}, "2025-06-02T12:00:00Z"))));
    EXPECT_EQ(offered(), QString());
}

TEST_F(AcceptedFeedTest, BelievesNobodyElse)
{
    EXPECT_FALSE(accept(signedFeed));
    const QByteArray text = feedText(feedItem("9.0"), "2025-06-02T12:00:00Z");
    expectRefused(text, UpdateProblem::NotTrusted);
    expectRefused(FeedKey(1).sign(text), UpdateProblem::NotTrusted);
    expectRefused(key.sign(text).replace("9.0", "9.1"), UpdateProblem::NotTrusted);
    expectRefused({}, UpdateProblem::NotTrusted);
    EXPECT_EQ(offered(), u"4.1"_s);
}

TEST_F(AcceptedFeedTest, ASignatureAloneMakesNoList)
{
    for (const QByteArray &text :
        {QByteArray("\n"), QByteArray("<html/>\n"), QByteArray("<!DOCTYPE rss><rss/>\n"),
            feedText(feedItem("9.0")).replace("com.orvandel.Quillon4", "org.example.Other")}) {
        expectRefused(key.sign(text), UpdateProblem::NotTrusted);
    }
}

TEST_F(AcceptedFeedTest, AnOlderListDoesNotComeAfterANewerOne)
{
    EXPECT_FALSE(accept(key.sign(feedText(feedItem("4.0.1"), may))));
    EXPECT_FALSE(accept(signedFeed));
    expectRefused(key.sign(feedText(feedItem("4.0.1"), may)), UpdateProblem::Outdated);
    // Even with a higher version: what was withdrawn since then stays so.
    expectRefused(key.sign(feedText(feedItem("5.0"), may)), UpdateProblem::Outdated);
    EXPECT_FALSE(accept(signedFeed));
    EXPECT_EQ(offered(), u"4.1"_s);
}

TEST_F(AcceptedFeedTest, AListFromTheFutureWouldKeepOutAllUntilThen)
{
    expectRefused(
        key.sign(feedText(feedItem("4.1"), "2025-07-01T12:00:00Z")), UpdateProblem::NotTrusted);
    const QByteArray inAnHour = scheduler.now().addSecs(3600).toString(Qt::ISODate).toUtf8();
    EXPECT_FALSE(accept(key.sign(feedText(feedItem("4.1"), inAnHour))));
}

TEST_F(AcceptedFeedTest, AListThatHasExpiredSaysNothingOfToday)
{
    const auto until = [&](const QByteArray &expires) {
        return key.sign(feedText(feedItem("4.1"), june, "<q:expires>" + expires + "</q:expires>"));
    };
    expectRefused(until("2025-06-10T12:00:00Z"), UpdateProblem::Outdated);
    EXPECT_FALSE(accept(until("2025-07-10T12:00:00Z")));
    // The version is still there when nobody has said anything since.
    scheduler.setClock(std::chrono::hours(24 * 100));
    EXPECT_EQ(offered(), u"4.1"_s);
}

TEST_F(AcceptedFeedTest, WhatStandsInTheSettingsIsBelievedNoMoreThanAServer)
{
    settings.set(keys::updateFeed, key.sign(feedText(feedItem("9.0"))).replace("9.0", "9.1"));
    EXPECT_EQ(offered(), QString());
    settings.set(keys::updateFeed, FeedKey(1).sign(feedText(feedItem("9.0"), june)));
    EXPECT_EQ(offered(), QString());
    // Nor does it keep anything out.
    EXPECT_FALSE(accept(key.sign(feedText(feedItem("4.0.1"), may))));
    EXPECT_EQ(offered(), u"4.0.1"_s);
    for (const QVariant &value : QVariantList{7, u"text"_s, QVariantMap(), QVariantList{1},
             QDateTime::currentDateTimeUtc(), true, QByteArray(1 << 20, '<')}) {
        settings.set(keys::updateFeed, value);
        EXPECT_EQ(offered(), QString());
        EXPECT_FALSE(accept(signedFeed));
        EXPECT_EQ(offered(), u"4.1"_s);
    }
}

TEST_F(AcceptedFeedTest, ABuildWithAnotherKeyForgetsTheListsOfTheOldOne)
{
    EXPECT_FALSE(accept(signedFeed));
    EXPECT_FALSE(feedOf(u"4.0.0"_s, FeedKey(1)).offer());
    EXPECT_FALSE(feedOf(u"4.0.0"_s, FeedKey(1))
            .accept(FeedKey(1).sign(feedText(feedItem("4.3"), may)), scheduler.now()));
}

TEST_F(AcceptedFeedTest, TheSameListIsNotWrittenAgain)
{
    EXPECT_FALSE(accept(signedFeed));
    settings.clearJournal();
    EXPECT_FALSE(accept(signedFeed));
    EXPECT_EQ(settings.journal(), QStringList());
}

} // namespace
} // namespace quillon::test
