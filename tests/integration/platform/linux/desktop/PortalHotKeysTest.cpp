// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/desktop/PortalHotKeys.h"

#include "integration/platform/linux/Waiting.h"
#include "integration/platform/linux/desktop/ShortcutsPortal.h"
#include "platform/linux/desktop/DesktopHotKeys.h"

#include <memory>

namespace quillon::test {

using namespace Qt::StringLiterals;

class PortalHotKeysTest : public ::testing::Test
{
protected:
    void bind(HotKeyBinder &hotKeys, const QString &identifier, const QString &combination)
    {
        hotKeys.bind({identifier, u"Show window"_s, *KeyCombination::fromText(combination),
                         [this, identifier] { pressed.append(identifier); }},
            [this, identifier](HotKeyResult result) { results[identifier].append(result); });
    }
    bool answered(const QString &identifier)
    {
        return eventually([&] { return results.contains(identifier); });
    }

    PrivateBus bus;
    std::unique_ptr<ShortcutsPortal> portal = std::make_unique<ShortcutsPortal>(bus);
    QMap<QString, QList<HotKeyResult>> results;
    QStringList pressed;
};

TEST_F(PortalHotKeysTest, BindsWhatIsAskedForInOneSession)
{
    PortalHotKeys hotKeys(bus.connect());
    bind(hotKeys, u"show"_s, u"Ctrl+Alt+Q"_s);
    bind(hotKeys, u"random"_s, u"Meta+Shift+Space"_s);
    ASSERT_TRUE(answered(u"show"_s) && answered(u"random"_s));
    EXPECT_EQ(results[u"show"_s], QList{HotKeyResult::Bound});
    EXPECT_EQ(results[u"random"_s], QList{HotKeyResult::Bound});
    ASSERT_EQ(portal->sessions.size(), 1);
    const auto shortcuts = portal->sessions.first();
    EXPECT_EQ(shortcuts[u"show"_s].value(u"description"_s), u"Show window"_s);
    EXPECT_EQ(shortcuts[u"show"_s].value(u"preferred_trigger"_s), u"CTRL+ALT+q"_s);
    EXPECT_EQ(shortcuts[u"random"_s].value(u"preferred_trigger"_s), u"SHIFT+LOGO+space"_s);

    portal->press(u"random"_s);
    ASSERT_TRUE(eventually([&] { return !pressed.isEmpty(); }));
    EXPECT_EQ(pressed, QStringList{u"random"_s});
}

TEST_F(PortalHotKeysTest, AChangeMakesANewSessionWithAllOfThem)
{
    PortalHotKeys hotKeys(bus.connect());
    bind(hotKeys, u"show"_s, u"Ctrl+Alt+Q"_s);
    ASSERT_TRUE(answered(u"show"_s));
    const QString first = portal->sessions.firstKey();
    bind(hotKeys, u"random"_s, u"Ctrl+Alt+R"_s);
    ASSERT_TRUE(answered(u"random"_s));
    ASSERT_EQ(portal->sessions.size(), 1) << "the first one was closed";
    EXPECT_NE(portal->sessions.firstKey(), first);
    EXPECT_EQ(portal->sessions.first().size(), 2);
    EXPECT_EQ(results[u"show"_s].size(), 1) << "who was answered is not answered again";

    portal->pressIn(first, u"show"_s);
    portal->press(u"show"_s);
    ASSERT_TRUE(eventually([&] { return !pressed.isEmpty(); }));
    EXPECT_EQ(pressed, QStringList{u"show"_s}) << "what the old session tells is over";
}

TEST_F(PortalHotKeysTest, AReleasedOneIsGone)
{
    PortalHotKeys hotKeys(bus.connect());
    bind(hotKeys, u"show"_s, u"Ctrl+Alt+Q"_s);
    bind(hotKeys, u"random"_s, u"Ctrl+Alt+R"_s);
    ASSERT_TRUE(answered(u"random"_s));
    hotKeys.release(u"random"_s);
    EXPECT_TRUE(eventually([&] {
        return portal->sessions.size() == 1 &&
               portal->sessions.first().keys() == QStringList{u"show"_s};
    }));
    hotKeys.release(u"show"_s);
    EXPECT_TRUE(eventually([&] { return portal->sessions.isEmpty(); }));
}

TEST_F(PortalHotKeysTest, AUserWhoCancelsHasRefused)
{
    portal->bindCode = 1;
    PortalHotKeys hotKeys(bus.connect());
    bind(hotKeys, u"show"_s, u"Ctrl+Alt+Q"_s);
    ASSERT_TRUE(answered(u"show"_s));
    EXPECT_EQ(results[u"show"_s], QList{HotKeyResult::Refused});
    EXPECT_TRUE(eventually([&] { return portal->sessions.isEmpty(); }));
}

TEST_F(PortalHotKeysTest, OneThatTheUserTakesOutIsRefused)
{
    portal->leftOut = {u"random"_s};
    PortalHotKeys hotKeys(bus.connect());
    bind(hotKeys, u"show"_s, u"Ctrl+Alt+Q"_s);
    bind(hotKeys, u"random"_s, u"Ctrl+Alt+R"_s);
    ASSERT_TRUE(answered(u"show"_s) && answered(u"random"_s));
    EXPECT_EQ(results[u"show"_s], QList{HotKeyResult::Bound});
    EXPECT_EQ(results[u"random"_s], QList{HotKeyResult::Refused});
}

TEST_F(PortalHotKeysTest, APortalThatFailsHasRefused)
{
    portal->fails = true;
    PortalHotKeys hotKeys(bus.connect());
    bind(hotKeys, u"show"_s, u"Ctrl+Alt+Q"_s);
    ASSERT_TRUE(answered(u"show"_s));
    EXPECT_EQ(results[u"show"_s], QList{HotKeyResult::Refused});
}

TEST_F(PortalHotKeysTest, AnAnswerToAnEarlierSessionSaysNothing)
{
    portal->holdsBack = true;
    PortalHotKeys hotKeys(bus.connect());
    bind(hotKeys, u"show"_s, u"Ctrl+Alt+Q"_s);
    ASSERT_TRUE(eventually(
        [&] { return !portal->sessions.isEmpty() && !portal->sessions.first().isEmpty(); }));
    portal->holdsBack = false;
    portal->bindCode = 2;
    bind(hotKeys, u"show"_s, u"Ctrl+Alt+W"_s);
    portal->answerHeld();
    ASSERT_TRUE(answered(u"show"_s));
    EXPECT_EQ(results[u"show"_s], QList{HotKeyResult::Refused});
}

TEST_F(PortalHotKeysTest, APortalThatComesBackGetsThemAgain)
{
    PortalHotKeys hotKeys(bus.connect());
    bind(hotKeys, u"show"_s, u"Ctrl+Alt+Q"_s);
    ASSERT_TRUE(answered(u"show"_s));
    portal.reset();
    portal = std::make_unique<ShortcutsPortal>(bus);
    ASSERT_TRUE(eventually(
        [&] { return !portal->sessions.isEmpty() && !portal->sessions.first().isEmpty(); }));
    portal->press(u"show"_s);
    EXPECT_TRUE(eventually([&] { return pressed == QStringList{u"show"_s}; }));
}

TEST_F(PortalHotKeysTest, TheSessionEndsWithTheProgramsHotKeys)
{
    {
        PortalHotKeys hotKeys(bus.connect());
        bind(hotKeys, u"show"_s, u"Ctrl+Alt+Q"_s);
        ASSERT_TRUE(answered(u"show"_s));
    }
    EXPECT_TRUE(eventually([&] { return portal->sessions.isEmpty(); }));
}

TEST_F(PortalHotKeysTest, TheDesktopsWayIsItsPortal)
{
    DesktopHotKeys hotKeys(bus.connect());
    bind(hotKeys, u"show"_s, u"Ctrl+Alt+Q"_s);
    ASSERT_TRUE(answered(u"show"_s));
    EXPECT_EQ(results[u"show"_s], QList{HotKeyResult::Bound});
    bind(hotKeys, u"random"_s, u"Ctrl+Alt+R"_s);
    ASSERT_TRUE(answered(u"random"_s));
    hotKeys.release(u"show"_s);
    EXPECT_TRUE(eventually([&] {
        return portal->sessions.size() == 1 &&
               portal->sessions.first().keys() == QStringList{u"random"_s};
    }));
}

TEST_F(PortalHotKeysTest, ADesktopWithNeitherPortalNorXServerOffersNone)
{
    portal.reset();
    DesktopHotKeys hotKeys(bus.connect());
    bind(hotKeys, u"show"_s, u"Ctrl+Alt+Q"_s);
    bind(hotKeys, u"random"_s, u"Ctrl+Alt+R"_s);
    hotKeys.release(u"random"_s);
    ASSERT_TRUE(answered(u"show"_s));
    EXPECT_EQ(results[u"show"_s], QList{HotKeyResult::NotOffered});
    bind(hotKeys, u"show"_s, u"Ctrl+Alt+W"_s);
    EXPECT_TRUE(eventually([&] { return results[u"show"_s].size() == 2; }));
    EXPECT_FALSE(results.contains(u"random"_s));
}

TEST_F(PortalHotKeysTest, WhoWantsToKnowTheWayIsToldIt)
{
    QList<HotKeyWay> told;
    const auto tell = [&told](HotKeyWay way) { told.append(way); };
    DesktopHotKeys hotKeys(bus.connect());
    hotKeys.findWay(tell);
    ASSERT_TRUE(eventually([&] { return told.size() == 1; }));
    hotKeys.findWay(tell);
    ASSERT_TRUE(eventually([&] { return told.size() == 2; }));
    portal.reset();
    DesktopHotKeys without(bus.connect());
    without.findWay(tell);
    ASSERT_TRUE(eventually([&] { return told.size() == 3; }));
    EXPECT_EQ(
        told, (QList{HotKeyWay::DesktopDecides, HotKeyWay::DesktopDecides, HotKeyWay::NotOffered}));
    EXPECT_TRUE(results.isEmpty()) << "nothing was bound";
}

} // namespace quillon::test
