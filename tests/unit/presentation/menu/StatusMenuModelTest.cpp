// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/menu/StatusMenuModel.h"

#include "base/SettingsKeys.h"
#include "devices/CurrentInterface.h"
#include "devices/DeviceTable.h"
#include "fakes/FakeInterfaceAddresses.h"
#include "fakes/FakeScheduler.h"
#include "fakes/FakeSettingsStore.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using ::testing::ElementsAre;

class StatusMenuModelTest : public ::testing::Test
{
protected:
    StatusMenuModelTest()
    {
        host.plug({QStringLiteral("Ethernet"), QStringLiteral("enp1s0"),
            QStringLiteral("3c:22:fb:00:00:01"), QStringLiteral("02:00:00:00:00:01"), {}});
        host.plug({QStringLiteral("Wi-Fi"), QStringLiteral("wlp2s0"),
            QStringLiteral("3c:22:fb:00:00:02"), QStringLiteral("3c:22:fb:00:00:02"), {}});
        devices.updateNetWorkInterfaces();
        current.updateCurrentInterfaceDict(QStringLiteral("enp1s0"));
        scheduler.runPending();
        menu.menuWillOpen();
    }

    QStringList titles() const
    {
        QStringList list;
        for (const MenuEntry &entry : menu.entries()) {
            list.append(entry.isSeparator() ? QStringLiteral("-") : entry.title);
        }
        return list;
    }

    const MenuEntry &entry(int index) const
    {
        return menu.entries().at(static_cast<size_t>(index));
    }

    FakeScheduler scheduler;
    FakeSettingsStore settings{scheduler};
    FakeNetworkHost host;
    FakeInterfaceAddresses addresses{host};
    DeviceTable devices{settings, host, addresses};
    CurrentInterface current{settings, scheduler, devices};
    bool helperInstalled = true;
    StatusMenuModel menu{settings, devices, current, [this] { return helperInstalled; }};
};

TEST_F(StatusMenuModelTest, EachInterfaceHasItsSectionInTheOrderOfEveryList)
{
    EXPECT_THAT(
        titles(), ElementsAre(QStringLiteral("Open Quillon"), QStringLiteral("-"),
                      QStringLiteral("Wi-Fi · wlp2s0"),
                      QStringLiteral("    Hardware Address · 3C:22:FB:00:00:02"),
                      QStringLiteral("    Current Address · 3C:22:FB:00:00:02"),
                      QStringLiteral("-"), QStringLiteral("Ethernet · enp1s0"),
                      QStringLiteral("    Hardware Address · 3C:22:FB:00:00:01"),
                      QStringLiteral("    Current Address · 02:00:00:00:00:01"),
                      QStringLiteral("-"), QStringLiteral("-"), QStringLiteral("Quit Quillon")));
}

TEST_F(StatusMenuModelTest, TheSelectedInterfaceIsChecked)
{
    EXPECT_FALSE(entry(2).checked);
    EXPECT_TRUE(entry(6).checked);
}

TEST_F(StatusMenuModelTest, RestoreIsDisabledWhileTheAddressIsTheFactoryOne)
{
    ASSERT_EQ(entry(3).submenu.size(), 1U);
    EXPECT_EQ(entry(3).submenu[0].title, QStringLiteral("Restore"));
    EXPECT_FALSE(entry(3).submenu[0].isEnabled());
    EXPECT_TRUE(entry(7).submenu.at(0).isEnabled());
}

TEST_F(StatusMenuModelTest, EveryCurrentAddressOffersToRandomise)
{
    for (const int row : {4, 8}) {
        ASSERT_EQ(entry(row).submenu.size(), 1U);
        EXPECT_EQ(entry(row).submenu[0].title, QStringLiteral("Randomize"));
        EXPECT_TRUE(entry(row).submenu[0].isEnabled());
    }
}

TEST_F(StatusMenuModelTest, WithoutTheHelperTheAddressesAreShownWithoutTheirSubmenus)
{
    helperInstalled = false;
    menu.menuNeedsUpdate();
    EXPECT_TRUE(entry(7).submenu.empty());
    EXPECT_TRUE(entry(8).submenu.empty());
    EXPECT_FALSE(entry(8).isEnabled());
    EXPECT_EQ(entry(8).title, QStringLiteral("    Current Address · 02:00:00:00:00:01"));
}

TEST_F(StatusMenuModelTest, WithNoInterfacesOnlyFixedItemsSeparatorsAndQuitRemain)
{
    settings.set(keys::deviceDict, QVariant());
    menu.menuNeedsUpdate();
    EXPECT_THAT(titles(), ElementsAre(QStringLiteral("Open Quillon"), QStringLiteral("-"),
                              QStringLiteral("-"), QStringLiteral("Quit Quillon")));
}

TEST_F(StatusMenuModelTest, OpeningTheMenuReadsTheInterfacesAnew)
{
    host.giveAddress(QStringLiteral("enp1s0"), QStringLiteral("02:00:00:00:00:42"));
    menu.menuWillOpen();
    EXPECT_EQ(entry(8).title, QStringLiteral("    Current Address · 02:00:00:00:00:42"));
}

TEST_F(StatusMenuModelTest, TheStatusMenuNeverShowsCloseWindow)
{
    EXPECT_FALSE(titles().contains(QStringLiteral("Close Window")));
}

TEST_F(StatusMenuModelTest, AnUnchangedMenuIsNotAnnounced)
{
    int changes = 0;
    QObject::connect(&menu, &StatusMenuModel::changed, [&] { ++changes; });
    menu.menuWillOpen();
    EXPECT_EQ(changes, 0);
}

TEST_F(StatusMenuModelTest, AChosenInterfaceIsToldByItsTitle)
{
    QString chosen;
    QObject::connect(
        &menu, &StatusMenuModel::interfaceChosen, [&](const QString &title) { chosen = title; });
    menu.activate({2});
    EXPECT_EQ(chosen, QStringLiteral("Wi-Fi · wlp2s0"));
}

TEST_F(StatusMenuModelTest, AClickedItemKnowsWhatStandsAboveItsParent)
{
    QString aboveRandomise, aboveRestore;
    QObject::connect(&menu, &StatusMenuModel::randomizeChosen, [&](const MenuItem &sender) {
        aboveRandomise = sender.parentItem()->itemAbove(2)->title();
    });
    QObject::connect(&menu, &StatusMenuModel::restoreChosen,
        [&](const MenuItem &sender) { aboveRestore = sender.parentItem()->itemAbove(1)->title(); });
    menu.activate({8, 0});
    menu.activate({7, 0});
    EXPECT_EQ(aboveRandomise, QStringLiteral("Ethernet · enp1s0"));
    EXPECT_EQ(aboveRestore, QStringLiteral("Ethernet · enp1s0"));
}

TEST_F(StatusMenuModelTest, ADisabledOrMissingItemDoesNothing)
{
    int actions = 0;
    QObject::connect(&menu, &StatusMenuModel::restoreChosen, [&] { ++actions; });
    QObject::connect(&menu, &StatusMenuModel::interfaceChosen, [&] { ++actions; });
    for (const QList<int> &path : {QList<int>{}, {-1}, {99}, {3}, {3, 0}, {2, 0}, {3, 7}}) {
        menu.activate(path);
    }
    EXPECT_EQ(actions, 0);
}

TEST_F(StatusMenuModelTest, TheMenuMayBeRebuiltByTheActionThatItStarted)
{
    QObject::connect(&menu, &StatusMenuModel::randomizeChosen, [&](const MenuItem &sender) {
        settings.set(keys::deviceDict, QVariant());
        menu.menuNeedsUpdate();
        EXPECT_EQ(sender.title(), QStringLiteral("Randomize"));
    });
    menu.activate({8, 0});
}

TEST_F(StatusMenuModelTest, OpenAndQuitAreTold)
{
    int opened = 0, quit = 0;
    QObject::connect(&menu, &StatusMenuModel::openWindowChosen, [&] { ++opened; });
    QObject::connect(&menu, &StatusMenuModel::quitChosen, [&] { ++quit; });
    menu.activate({0});
    menu.activate({11});
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(quit, 1);
}

} // namespace
} // namespace quillon::test
