// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "updates/Updater.h"

#include "unit/updates/UpdaterFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// What a look brings, and what it leads to.
class UpdaterTest : public UpdaterFixture
{
protected:
    UpdaterTest() { start(); }

    void expectNothingChanged(UpdateProblem problem)
    {
        EXPECT_EQ(updater->problem(), problem);
        EXPECT_FALSE(updater->hasAnswer());
        EXPECT_EQ(offered(), QString());
        EXPECT_FALSE(settings.get(keys::updateFeed).isValid());
        EXPECT_EQ(notifier.questionsEver, 0);
        EXPECT_THAT(center.opened, IsEmpty());
        EXPECT_EQ(LogCapture::taken().size(), 1);
    }
};

TEST_F(UpdaterTest, ItsPropertiesAreTheSettings)
{
    EXPECT_FALSE(updater->automaticallyChecksForUpdates());
    EXPECT_FALSE(updater->automaticallyDownloadsUpdates());
    EXPECT_EQ(updater->updateCheckInterval(), 604800);
    updater->setAutomaticallyChecksForUpdates(true);
    updater->setAutomaticallyDownloadsUpdates(true);
    updater->setUpdateCheckInterval(86400);
    EXPECT_EQ(settings.get(keys::SUEnableAutomaticChecks), true);
    EXPECT_EQ(settings.get(keys::SUAutomaticallyUpdate), true);
    EXPECT_EQ(settings.get(keys::SUScheduledCheckInterval).toLongLong(), 86400);
    EXPECT_TRUE(updater->automaticallyChecksForUpdates());
    EXPECT_TRUE(updater->automaticallyDownloadsUpdates());
    EXPECT_EQ(updater->updateCheckInterval(), 86400);
}

TEST_F(UpdaterTest, ANewerVersionIsOffered)
{
    QStringList told;
    QObject::connect(&*updater, &Updater::changed,
        [&] { told.append(updater->isChecking() ? u"looks"_s : u"has looked"_s); });
    serve("4.1");
    checkByHand();
    EXPECT_EQ(offered(), u"4.1"_s);
    EXPECT_TRUE(updater->hasAnswer());
    EXPECT_FALSE(updater->problem());
    EXPECT_EQ(updater->lastCheck(), scheduler.now());
    EXPECT_EQ(told, QStringList({u"looks"_s, u"has looked"_s}));
    EXPECT_THAT(http.requests(), ElementsAre(source.feed));
    EXPECT_THAT(LogCapture::taken(), IsEmpty());
}

TEST_F(UpdaterTest, WhoAskedIsNotToldByAMessage)
{
    settings.setBool(keys::SUAutomaticallyUpdate, true);
    serve("4.1");
    checkByHand();
    EXPECT_EQ(notifier.questionsEver, 0);
    EXPECT_THAT(center.opened, IsEmpty());
}

TEST_F(UpdaterTest, AnOlderVersionOrThisOneIsNot)
{
    for (const char *version : {"4.0.0", "4.0", "3.9.9", "0"}) {
        serve(version);
        checkByHand();
        EXPECT_EQ(offered(), QString());
        EXPECT_TRUE(updater->hasAnswer());
    }
    EXPECT_EQ(notifier.questionsEver, 0);
}

TEST_F(UpdaterTest, AListWithoutARightSignatureChangesNothing)
{
    const QByteArray text = feedText(feedItem("9.0"));
    for (const QByteArray &body : {text, FeedKey(1).sign(text), key.sign("other\n") + text,
             key.sign(text).replace("9.0", "9.1"), key.sign(text) + "\n", QByteArray(),
             QByteArray("<html>Please log in</html>"),
             QByteArray("\xEF\xBB\xBF") + key.sign(text)}) {
        http.serve(source.feed, page(body));
        checkByHand();
        expectNothingChanged(UpdateProblem::NotTrusted);
    }
}

TEST_F(UpdaterTest, NorDoesOneThatIsTooLongOrOfAnotherType)
{
    http.serve(source.feed, page(QByteArray(100 << 20, 'x')));
    checkByHand();
    expectNothingChanged(UpdateProblem::NotTrusted);
    auto wrongType = page(key.sign(feedText(feedItem("9.0"))));
    wrongType.contentType = "text/html";
    http.serve(source.feed, wrongType);
    checkByHand();
    expectNothingChanged(UpdateProblem::NotTrusted);
}

TEST_F(UpdaterTest, NorDoesAFailedTransfer)
{
    http.refuse(source.feed, {httpErrorDomain, 203, u"a redirect from https to http"_s});
    checkByHand();
    EXPECT_THAT(LogCapture::taken().join(u'\n').toStdString(), HasSubstr("https to http"));
    checkByHand();
    LogCapture::taken();
    auto gone = page({});
    gone.status = 304;
    http.serve(source.feed, gone);
    checkByHand();
    expectNothingChanged(UpdateProblem::NotFetched);
}

TEST_F(UpdaterTest, AnOlderListChangesNothingEither)
{
    serve("4.1");
    checkByHand();
    serve("4.0.5", "2025-05-01T12:00:00Z");
    checkByHand();
    EXPECT_EQ(updater->problem(), UpdateProblem::Outdated);
    EXPECT_EQ(offered(), u"4.1"_s);
    EXPECT_THAT(LogCapture::taken().join(u'\n').toStdString(), HasSubstr("older"));
}

TEST_F(UpdaterTest, TheOfferOutlivesTheProgram)
{
    serve("4.1");
    checkByHand();
    restart();
    EXPECT_EQ(offered(), u"4.1"_s);
    EXPECT_FALSE(updater->hasAnswer());
    EXPECT_TRUE(updater->openOffer());
    EXPECT_THAT(center.opened, ElementsAre(QUrl(u"https://pages.example/new"_s)));
}

TEST_F(UpdaterTest, WithoutAnOfferThereIsNothingToOpen)
{
    EXPECT_FALSE(updater->openOffer());
    EXPECT_THAT(center.opened, IsEmpty());
}

TEST_F(UpdaterTest, LooksOnceAtATime)
{
    updater->checkForUpdates();
    updater->checkForUpdates();
    EXPECT_TRUE(updater->isChecking());
    EXPECT_EQ(requests(), 1);
    scheduler.advance(3min);
    EXPECT_FALSE(updater->isChecking());
    expectNothingChanged(UpdateProblem::NotFetched);
}

TEST_F(UpdaterTest, DoesNotAskWithoutTheInternet)
{
    reachability.reachable = false;
    checkByHand();
    EXPECT_EQ(requests(), 0);
    EXPECT_FALSE(updater->lastCheck().isValid());
    expectNothingChanged(UpdateProblem::NoInternet);
}

TEST_F(UpdaterTest, TheUserMayNameAnotherPlaceButNotAnotherKey)
{
    const QUrl mirror(u"https://mirror.example/list?x=1"_s);
    settings.set(keys::SUFeedURL, u" https://mirror.example/list?x=1\n"_s);
    http.serve(mirror, page(FeedKey(1).sign(feedText(feedItem("9.0")))));
    checkByHand();
    expectNothingChanged(UpdateProblem::NotTrusted);
    http.serve(mirror, page(key.sign(feedText(feedItem("4.1")))));
    checkByHand();
    EXPECT_EQ(offered(), u"4.1"_s);
    EXPECT_THAT(http.requests(), ElementsAre(mirror, mirror));
}

TEST_F(UpdaterTest, APlaceThatIsNotHttpsIsNotAsked)
{
    for (const QString &other : {u"http://pages.example/appcast.xml"_s, u"file:///tmp/appcast"_s,
             u"javascript:1"_s, u"pages.example"_s, u"https://"_s, u"https://user@pages.example/"_s,
             u"%"_s, QString(100'000, u'x')}) {
        settings.set(keys::SUFeedURL, other);
        checkByHand();
        expectNothingChanged(UpdateProblem::BadAddress);
    }
    EXPECT_EQ(requests(), 0);
    settings.set(keys::SUFeedURL, 7);
    checkByHand();
    EXPECT_THAT(http.requests(), ElementsAre(source.feed));
}

TEST_F(UpdaterTest, ABuildThatDoesNotLookNeverDoes)
{
    settings.setBool(keys::SUEnableAutomaticChecks, true);
    for (const UpdateSource &other :
        {UpdateSource{{}, {}, u"4.0.0"_s}, UpdateSource{{}, key.publicKey(), u"4.0.0"_s},
            UpdateSource{source.feed, {}, u"4.0.0"_s}}) {
        create(other);
        updater->begin();
        EXPECT_FALSE(updater->canCheck());
        updater->checkForUpdates();
        updater->settingsChanged();
        updater->networkChanged();
        EXPECT_FALSE(scheduler.hasTimers());
    }
    EXPECT_EQ(requests(), 0);
}

TEST_F(UpdaterTest, APlaceOfTheUsersMakesUpForAMissingOne)
{
    create({{}, key.publicKey(), u"4.0.0"_s});
    settings.set(keys::SUFeedURL, source.feed.toString());
    EXPECT_TRUE(updater->canCheck());
    serve("4.1");
    checkByHand();
    EXPECT_EQ(offered(), u"4.1"_s);
}

TEST_F(UpdaterTest, MayGoWhileItLooks)
{
    settings.setBool(keys::SUEnableAutomaticChecks, true);
    updater->checkForUpdates();
    updater.reset();
    scheduler.advance(24h);
    EXPECT_EQ(http.cancelled().size(), 1);
    EXPECT_FALSE(scheduler.hasTimers());
}

} // namespace
} // namespace quillon::test
