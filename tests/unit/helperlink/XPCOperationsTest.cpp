// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "HelperLinkFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class XPCOperationsInstalling : public HelperLinkFixture
{
protected:
    XPCOperationsInstalling() { helper.installed = false; }
    void install() { xpc->installHelperToolwithReply(keepSuccess()); }
};

TEST_F(XPCOperationsInstalling, IsToldAndLogged)
{
    EXPECT_EQ(logOf([this] { install(); }),
        QStringList{line("Quillon4HelperTool successfully installed\n")});
    EXPECT_EQ(successes, QList<bool>{true});
    EXPECT_FALSE(repliedOnMainThread);
    EXPECT_EQ(helper.journal(), (QStringList{serviceMade, u"install"_s}));
}

TEST_F(XPCOperationsInstalling, ThatFailsLogsTheError)
{
    helper.installFails = true;
    EXPECT_EQ(logOf([this] { install(); }),
        QStringList{line("error com.orvandel.Quillon4.Error.InstallFailed / 11\n")});
    EXPECT_EQ(successes, QList<bool>{false});
}

TEST_F(XPCOperationsInstalling, WithoutServiceFails)
{
    helper.serviceExists = false;
    EXPECT_EQ(logOf([this] { install(); }), QStringList{line("error BusErrorDomain / 0\n")});
    EXPECT_EQ(successes, QList<bool>{false});
}

TEST_F(XPCOperationsInstalling, IsToldOnceWhenTheServiceAnswersTwice)
{
    helper.answersTwice = true;
    EXPECT_EQ(logOf([this] { install(); }).size(), 1);
    EXPECT_EQ(successes, QList<bool>{true});
}

class XPCOperationsVersion : public HelperLinkFixture
{
protected:
    void ask() { xpc->getVersionOfHelperToolwithReply(keepText()); }
};

TEST_F(XPCOperationsVersion, IsWhatTheHelperAnswers)
{
    EXPECT_EQ(XPCMethods::helperToolVersion(), "2.0"_L1);
    helper.version = u"2.0"_s;
    EXPECT_TRUE(logOf([this] { ask(); }).isEmpty());
    EXPECT_EQ(texts, QStringList{u"2.0"_s});
    EXPECT_FALSE(repliedOnMainThread);
}

TEST_F(XPCOperationsVersion, WithoutServiceIsAnErrorText)
{
    helper.serviceExists = false;
    EXPECT_EQ(logOf([this] { ask(); }), QStringList{line("error BusErrorDomain / 0\n")});
    EXPECT_EQ(texts, QStringList{u"error BusErrorDomain / 0\n"_s});
}

TEST_F(XPCOperationsVersion, WithoutEndpointIsAnErrorText)
{
    helper.installed = false;
    EXPECT_EQ(logOf([this] { ask(); }), QStringList{line("error POSIXErrorDomain / 25\n")});
    EXPECT_EQ(texts, QStringList{u"error POSIXErrorDomain / 25\n"_s});
}

TEST_F(XPCOperationsVersion, OfAHelperThatHangsIsAnErrorText)
{
    helper.mood = FakeHelper::Mood::Hanging;
    ask();
    scheduler.runPending();
    EXPECT_TRUE(texts.isEmpty());
    EXPECT_EQ(logOf([this] { helper.timeOut(); }), QStringList{line("error BusErrorDomain / 0\n")});
    EXPECT_EQ(texts, QStringList{u"error BusErrorDomain / 0\n"_s});
}

TEST_F(XPCOperationsVersion, IsToldOnceWhenTheHelperAnswersTwice)
{
    helper.answersTwice = true;
    ask();
    scheduler.runPending();
    EXPECT_EQ(texts.size(), 1);
}

class XPCOperationsChanging : public HelperLinkFixture
{
};

TEST_F(XPCOperationsChanging, ReachesTheMachine)
{
    EXPECT_TRUE(logOf([this] { change(); }).isEmpty());
    EXPECT_EQ(successes, QList<bool>{true});
    EXPECT_FALSE(repliedOnMainThread);
    EXPECT_EQ(host.addressOf(u"wlp2s0"_s), "02:aa:bb:cc:dd:01"_L1);
    EXPECT_TRUE(helper.changes().at(0).deviceIsWiFi);
}

TEST_F(XPCOperationsChanging, ThatTheHelperRefusesIsLoggedAndFails)
{
    helper.mood = FakeHelper::Mood::Refusing;
    EXPECT_EQ(logOf([this] { change(); }),
        QStringList{line("error com.orvandel.Quillon4.Error.NotAuthorized / 1\n")});
    EXPECT_EQ(successes, QList<bool>{false});
}

TEST_F(XPCOperationsChanging, WithoutEndpointFailsWithPosixError25)
{
    helper.installed = false;
    EXPECT_EQ(logOf([this] { change(); }), QStringList{line("error POSIXErrorDomain / 25\n")});
    EXPECT_EQ(successes, QList<bool>{false});
    EXPECT_TRUE(helper.changes().isEmpty());
}

TEST_F(XPCOperationsChanging, ThroughAConnectionThatDropsFails)
{
    helper.mood = FakeHelper::Mood::Dropping;
    const QStringList log = logOf([this] { change(); });
    EXPECT_TRUE(log.contains(line("error BusErrorDomain / 0\n")));
    EXPECT_TRUE(log.contains(line("Quillon connection to HelperTool invalidated\n")));
    EXPECT_EQ(successes, QList<bool>{false});
}

TEST_F(XPCOperationsChanging, WithAHelperThatHangsFailsInTheEnd)
{
    helper.mood = FakeHelper::Mood::Hanging;
    change();
    scheduler.runPending();
    EXPECT_TRUE(successes.isEmpty());
    helper.timeOut();
    scheduler.runPending();
    EXPECT_EQ(successes, QList<bool>{false});
}

TEST_F(XPCOperationsChanging, IsToldOnceWhenTheHelperAnswersTwice)
{
    helper.answersTwice = true;
    change();
    scheduler.runPending();
    EXPECT_EQ(successes, QList<bool>{true});
    EXPECT_EQ(helper.changes().size(), 1);
}

TEST_F(XPCOperationsChanging, IsNotCutOffByTheNextOperation)
{
    helper.mood = FakeHelper::Mood::Hanging;
    change();
    scheduler.runPending();
    helper.mood = FakeHelper::Mood::Obliging;
    xpc->getVersionOfHelperToolwithReply(keepText());
    scheduler.runPending();
    EXPECT_EQ(texts, QStringList{u"2.0"_s});
    EXPECT_EQ(helper.liveHelperConnections(), 2) << "the one under way is kept";
    helper.timeOut();
    scheduler.runPending();
    EXPECT_EQ(successes, QList<bool>{false});
    EXPECT_EQ(helper.liveHelperConnections(), 1);
}

TEST_F(XPCOperationsChanging, SurvivesTheEndOfTheLinkWhileTheHelperWorks)
{
    helper.mood = FakeHelper::Mood::Hanging;
    change();
    scheduler.runPending();
    xpc.reset();
    helper.timeOut();
    EXPECT_EQ(logOf([] {}), QStringList{line("error BusErrorDomain / 0\n")});
    EXPECT_EQ(successes, QList<bool>{false});
}

class XPCOperationsUninstalling : public HelperLinkFixture
{
protected:
    void uninstall() { xpc->uninstallHelperToolwithReply(keepSuccess()); }
};

TEST_F(XPCOperationsUninstalling, IsToldAndLogged)
{
    EXPECT_EQ(logOf([this] { uninstall(); }),
        QStringList{line("Quillon4HelperTool successfully uninstalled\n")});
    EXPECT_EQ(successes, QList<bool>{true});
    EXPECT_FALSE(repliedOnMainThread);
    EXPECT_FALSE(helper.installed);
}

TEST_F(XPCOperationsUninstalling, ThatTheHelperRefusesIsLoggedAndFails)
{
    helper.mood = FakeHelper::Mood::Refusing;
    EXPECT_EQ(logOf([this] { uninstall(); }),
        QStringList{line("error com.orvandel.Quillon4.Error.NotAuthorized / 1\n")});
    EXPECT_EQ(successes, QList<bool>{false});
}

TEST_F(XPCOperationsUninstalling, ThroughAConnectionThatDropsIsASuccess)
{
    helper.mood = FakeHelper::Mood::Dropping;
    QStringList log = logOf([this] { uninstall(); });
    log.removeAll(line("Quillon connection to HelperTool invalidated\n"));
    EXPECT_EQ(log, (QStringList{line("error BusErrorDomain / 0\n"),
                       line("Quillon4HelperTool successfully uninstalled\n")}));
    EXPECT_EQ(successes, QList<bool>{true});
}

TEST_F(XPCOperationsUninstalling, WithoutEndpointFails)
{
    helper.installed = false;
    EXPECT_EQ(logOf([this] { uninstall(); }), QStringList{line("error POSIXErrorDomain / 25\n")});
    EXPECT_EQ(successes, QList<bool>{false});
}

TEST_F(XPCOperationsUninstalling, IsToldOnceWhenTheHelperAnswersTwice)
{
    helper.answersTwice = true;
    EXPECT_EQ(logOf([this] { uninstall(); }).size(), 1);
    EXPECT_EQ(successes, QList<bool>{true});
}

} // namespace
} // namespace quillon::test
