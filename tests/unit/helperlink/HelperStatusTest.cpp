// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "HelperLinkFixture.h"
#include "base/NotificationNames.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

QStringList words(const char *text)
{
    return QString::fromUtf8(text).split(u' ');
}

class HelperStatus : public HelperLinkFixture
{
protected:
    HelperStatus()
    {
        QObject::connect(xpc.get(), &XPCMethods::helperStatusRead, [this](bool installed) {
            heard << (installed ? u"installed"_s : u"missing"_s);
            EXPECT_EQ(xpc->isHelperInstalled(), installed) << "known before it is announced";
            EXPECT_TRUE(scheduler.isMainThread());
        });
        QObject::connect(xpc.get(), &XPCMethods::helperInstalledFromMainWindow,
            [this] { heard << u"from main window"_s; });
        notifications.addObserver(notifications::helperStatusChanged,
            [this](const NotificationCenter::Notification &posted) {
                heard << u"posted"_s;
                EXPECT_EQ(posted.object, xpc.get());
                EXPECT_TRUE(scheduler.isMainThread());
            });
    }
    QStringList status()
    {
        heard.clear();
        xpc->updateHelperInstalledStatus();
        scheduler.runPending();
        return heard;
    }

    QStringList heard;
};

TEST_F(HelperStatus, IsNotInstalledAtFirst)
{
    EXPECT_FALSE(xpc->isHelperInstalled());
}

TEST_F(HelperStatus, IsReadThenAnnounced)
{
    EXPECT_EQ(status(), words("installed posted"));
    EXPECT_TRUE(xpc->isHelperInstalled());
}

TEST_F(HelperStatus, OfVersion19IsNotInstalled)
{
    helper.version = u"1.9"_s;
    EXPECT_EQ(status(), words("missing posted"));
    EXPECT_FALSE(xpc->isHelperInstalled());
}

TEST_F(HelperStatus, NeedsExactlyTheVersion)
{
    for (const char *version : {"2.0.0", "2.0 ", "2", "", "2.1", "02.0"}) {
        helper.version = QString::fromUtf8(version);
        EXPECT_EQ(status(), words("missing posted")) << version;
    }
}

TEST_F(HelperStatus, WithoutServiceIsNotInstalled)
{
    helper.serviceExists = false;
    EXPECT_EQ(status(), words("missing posted"));
}

TEST_F(HelperStatus, WithoutEndpointIsNotInstalled)
{
    helper.installed = false;
    EXPECT_EQ(status(), words("missing posted"));
}

TEST_F(HelperStatus, FollowsTheHelper)
{
    EXPECT_EQ(status(), words("installed posted"));
    helper.installed = false;
    EXPECT_EQ(status(), words("missing posted"));
    helper.installed = true;
    EXPECT_EQ(status(), words("installed posted"));
}

TEST_F(HelperStatus, MayBeAskedForFromAnyThread)
{
    scheduler.asBackground([this] { xpc->updateHelperInstalledStatus(); });
    scheduler.runPending();
    EXPECT_EQ(heard, words("installed posted"));
}

TEST_F(HelperStatus, IsNotAnnouncedByALinkThatHasGone)
{
    xpc->updateHelperInstalledStatus();
    xpc.reset();
    scheduler.runPending();
    EXPECT_TRUE(heard.isEmpty());

    xpc = std::make_unique<XPCMethods>(helper, scheduler, notifications);
    scheduler.asBackground([this] { xpc->updateHelperInstalledStatus(); });
    xpc.reset();
    helper.clearJournal();
    scheduler.runPending();
    EXPECT_TRUE(helper.journal().isEmpty());

    helper.mood = FakeHelper::Mood::Hanging;
    xpc = std::make_unique<XPCMethods>(helper, scheduler, notifications);
    xpc->updateHelperInstalledStatus();
    scheduler.runPending();
    xpc.reset();
    helper.timeOut();
    scheduler.runPending();
    EXPECT_TRUE(heard.isEmpty());
}

TEST_F(HelperStatus, AnInstallationFromTheMainWindowSaysWhenItBeginsAndEnds)
{
    for (const bool fails : {false, true}) {
        helper.installed = false;
        helper.installFails = fails;
        QStringList around;
        QObject lifetime;
        QObject::connect(xpc.get(), &XPCMethods::helperInstallationStarted, &lifetime,
            [&around] { around << u"started"_s; });
        QObject::connect(xpc.get(), &XPCMethods::helperInstalledFromMainWindow, &lifetime,
            [&around] { around << u"installed"_s; });
        QObject::connect(xpc.get(), &XPCMethods::helperInstallationEnded, &lifetime,
            [&around] { around << u"ended"_s; });
        xpc->installHelper();
        EXPECT_EQ(around, words("started"));
        scheduler.runPending();
        EXPECT_EQ(around, fails ? words("started ended") : words("started installed ended"));
    }
}

TEST_F(HelperStatus, IsReadAfterAnInstallationFromTheMainWindow)
{
    helper.installed = false;
    xpc->installHelper();
    scheduler.runPending();
    EXPECT_EQ(heard, QStringList({u"from main window"_s, u"installed"_s, u"posted"_s}));
}

TEST_F(HelperStatus, StaysAsItWasWhenAnInstallationFromTheMainWindowFails)
{
    helper.installed = false;
    helper.installFails = true;
    xpc->installHelper();
    scheduler.runPending();
    EXPECT_TRUE(heard.isEmpty());
    EXPECT_EQ(helper.journal(), (QStringList{serviceMade, u"install"_s}));
}

} // namespace
} // namespace quillon::test
