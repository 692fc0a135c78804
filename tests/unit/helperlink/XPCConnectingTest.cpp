// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "HelperLinkFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class XPCConnectingAuthorization : public HelperLinkFixture
{
};

TEST_F(XPCConnectingAuthorization, IsMadeOnceAndTheServiceIsAskedForTheRights)
{
    EXPECT_EQ(journalOf([this] { xpc->authorizeHelperTool(true); }),
        (QStringList{u"authorize"_s, serviceMade, u"rights"_s}));
}

TEST_F(XPCConnectingAuthorization, IsReplacedByTheDataThatCameWithTheEndpoint)
{
    xpc->authorizeHelperTool(true);
    change();
    scheduler.runPending();
    ASSERT_EQ(helper.changes().size(), 1);
    EXPECT_EQ(helper.changes().at(0).authorization, helper.givenAuthorization());
    EXPECT_NE(helper.changes().at(0).authorization, FakeHelper::externalForm());
    change();
    scheduler.runPending();
    EXPECT_EQ(helper.changes().at(1).authorization, helper.givenAuthorization());
    EXPECT_NE(helper.changes().at(1).authorization, helper.changes().at(0).authorization);
}

class XPCConnectingTest : public HelperLinkFixture
{
protected:
    void execute()
    {
        xpc->connectAndExecuteCommandBlock([this](const std::optional<Error> &error) {
            repliedOnMainThread = scheduler.isMainThread();
            texts << (error ? error->domain + u" %1"_s.arg(error->code) : u"connected"_s);
        });
    }
};

TEST_F(XPCConnectingTest, ToTheServiceHappensOnce)
{
    EXPECT_EQ(journalOf([this] {
        xpc->connectToXPCService();
        xpc->connectToXPCService();
    }),
        QStringList{serviceMade});
}

TEST_F(XPCConnectingTest, ToTheHelperHappensOncePerConnection)
{
    EXPECT_EQ(journalOf([this] {
        xpc->connectToHelperToolEndpoint(u":1.7"_s);
        xpc->connectToHelperToolEndpoint(u":1.8"_s);
    }),
        QStringList{u"helper :1.7"_s});
}

TEST_F(XPCConnectingTest, GoesThroughTheServiceToTheEndpointAndExecutesOnTheMainThread)
{
    EXPECT_EQ(journalOf([this] { execute(); }),
        (QStringList{serviceMade, u"endpoint"_s, u"helper :1.1"_s}));
    EXPECT_EQ(texts, QStringList{u"connected"_s});
    EXPECT_TRUE(repliedOnMainThread);
}

TEST_F(XPCConnectingTest, KeepsTheServiceButMakesAFreshHelperConnectionEveryTime)
{
    execute();
    scheduler.runPending();
    EXPECT_EQ(journalOf([this] { execute(); }), (QStringList{u"endpoint"_s, u"helper :1.2"_s}));
    EXPECT_EQ(helper.liveHelperConnections(), 1);
}

TEST_F(XPCConnectingTest, WithoutEndpointIsPosixError25)
{
    helper.installed = false;
    EXPECT_EQ(journalOf([this] { execute(); }), (QStringList{serviceMade, u"endpoint"_s}));
    EXPECT_EQ(texts, QStringList{u"POSIXErrorDomain 25"_s});
    EXPECT_TRUE(repliedOnMainThread);
}

TEST_F(XPCConnectingTest, WithoutServiceIsTheErrorOfTheConnectionOnTheMainThread)
{
    helper.serviceExists = false;
    execute();
    scheduler.runPending();
    EXPECT_EQ(texts, QStringList{u"BusErrorDomain 0"_s});
    EXPECT_TRUE(repliedOnMainThread);
}

TEST_F(XPCConnectingTest, ToAServiceThatHangsHangsNobodyAndEndsInAnError)
{
    helper.serviceHangs = true;
    execute();
    scheduler.runPending();
    EXPECT_TRUE(texts.isEmpty());
    helper.timeOut();
    scheduler.runPending();
    EXPECT_EQ(texts, QStringList{u"BusErrorDomain 0"_s});
}

TEST_F(XPCConnectingTest, ExecutesOnceWhenTheServiceAnswersTwice)
{
    helper.answersTwice = true;
    execute();
    scheduler.runPending();
    EXPECT_EQ(texts.size(), 1);
}

TEST_F(XPCConnectingTest, AnewAfterTheServiceWentAndSaysSo)
{
    xpc->connectToXPCService();
    EXPECT_EQ(logOf([this] { helper.dropService(); }),
        QStringList{line("Quillon connection to HelperTool invalidated\n")});
    EXPECT_EQ(journalOf([this] { xpc->connectToXPCService(); }), QStringList{serviceMade});
}

TEST_F(XPCConnectingTest, AnewAfterTheHelperWentAndSaysSo)
{
    xpc->connectToHelperToolEndpoint(u":1.7"_s);
    EXPECT_EQ(logOf([this] { helper.dropHelper(); }),
        QStringList{line("Quillon connection to HelperTool invalidated\n")});
    EXPECT_EQ(helper.liveHelperConnections(), 0);
    EXPECT_EQ(journalOf([this] { xpc->connectToHelperToolEndpoint(u":1.8"_s); }),
        QStringList{u"helper :1.8"_s});
}

TEST_F(XPCConnectingTest, IsUndoneOnTheMainThreadOnly)
{
    xpc->connectToXPCService();
    helper.dropService();
    helper.clearJournal();
    xpc->connectToXPCService();
    EXPECT_TRUE(helper.journal().isEmpty()) << "the main loop has not heard of it yet";
}

TEST_F(XPCConnectingTest, AConnectionMadeMeanwhileSurvivesTheEndOfTheOldOne)
{
    // A call under way keeps the first connection beyond the second sequence.
    helper.mood = FakeHelper::Mood::Hanging;
    xpc->getVersionOfHelperToolwithReply(keepText());
    scheduler.runPending();
    EXPECT_EQ(helper.liveHelperConnections(), 1);

    execute();
    helper.dropHelper();
    scheduler.runPending();
    EXPECT_EQ(helper.liveHelperConnections(), 1) << "the second one";
    EXPECT_EQ(journalOf([this] { xpc->connectToHelperToolEndpoint(u":1.9"_s); }), QStringList());
}

TEST_F(XPCConnectingTest, DoesNotCutOffACallThatIsUnderWay)
{
    helper.mood = FakeHelper::Mood::Hanging;
    xpc->getVersionOfHelperToolwithReply(keepText());
    scheduler.runPending();
    execute();
    scheduler.runPending();
    EXPECT_EQ(helper.liveHelperConnections(), 2);
    helper.timeOut();
    scheduler.runPending();
    EXPECT_EQ(texts, (QStringList{u"connected"_s, u"error BusErrorDomain / 0\n"_s}));
    EXPECT_EQ(helper.liveHelperConnections(), 1);
}

TEST_F(XPCConnectingTest, IsForgottenWhenTheLinkGoesMeanwhile)
{
    execute();
    xpc.reset();
    scheduler.runPending();
    EXPECT_TRUE(texts.isEmpty());
}

TEST_F(XPCConnectingTest, InvalidatedAfterTheLinkHasGoneDoesNoHarm)
{
    xpc->connectToXPCService();
    xpc->installHelperToolwithReply(keepSuccess());
    xpc.reset();
    helper.dropService();
    scheduler.runPending();
    EXPECT_EQ(successes.size(), 1) << "the call had gone out";
}

} // namespace
} // namespace quillon::test
