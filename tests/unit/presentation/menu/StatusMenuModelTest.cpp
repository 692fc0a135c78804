// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/menu/StatusMenuModel.h"

#include "unit/presentation/DeviceModelsFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using ::testing::ElementsAre;

class StatusMenuModelTest : public DeviceModelsFixture
{
protected:
    StatusMenuModelTest()
    {
        host.giveAddress(wired, u"02:00:00:00:00:01"_s);
        menu.menuWillOpen();
    }

    QStringList titles() const
    {
        QStringList list;
        for (const MenuEntry &entry : menu.entries()) {
            list.append(entry.isSeparator() ? u"-"_s : entry.title);
        }
        return list;
    }

    const MenuEntry &entry(int index) const
    {
        return menu.entries().at(static_cast<size_t>(index));
    }

    StatusMenuModel menu{{settings, devices, current, changer, helper, presence}};
};

TEST_F(StatusMenuModelTest, EachInterfaceHasItsSectionInTheOrderOfEveryList)
{
    EXPECT_THAT(titles(),
        ElementsAre(u"Open Quillon"_s, u"-"_s, u"Wi-Fi · wlp2s0"_s,
            u"    Hardware Address · 3C:22:FB:00:00:02"_s,
            u"    Current Address · 3C:22:FB:00:00:02"_s, u"-"_s, u"Ethernet · enp1s0"_s,
            u"    Hardware Address · 3C:22:FB:00:00:01"_s,
            u"    Current Address · 02:00:00:00:00:01"_s, u"-"_s, u"-"_s, u"Quit Quillon"_s));
}

TEST_F(StatusMenuModelTest, TheSelectedInterfaceIsChecked)
{
    EXPECT_FALSE(entry(2).checked);
    EXPECT_TRUE(entry(6).checked);
}

TEST_F(StatusMenuModelTest, RestoreIsDisabledWhileTheAddressIsTheFactoryOne)
{
    ASSERT_EQ(entry(3).submenu.size(), 1U);
    EXPECT_EQ(entry(3).submenu[0].title, u"Restore"_s);
    EXPECT_FALSE(entry(3).submenu[0].isEnabled());
    EXPECT_TRUE(entry(7).submenu.at(0).isEnabled());
}

TEST_F(StatusMenuModelTest, RestoreIsEnabledWhereverTheAddressesDiffer)
{
    QVariantMap table = settings.getDictionary(keys::deviceDict);
    QVariantMap record = table.value(wired).toMap();
    record[record::hardware] = u"N/A"_s;
    table[wired] = record;
    settings.set(keys::deviceDict, table);
    menu.menuNeedsUpdate();
    EXPECT_TRUE(entry(7).submenu.at(0).isEnabled());
}

TEST_F(StatusMenuModelTest, EveryCurrentAddressOffersToRandomize)
{
    for (const int row : {4, 8}) {
        ASSERT_EQ(entry(row).submenu.size(), 1U);
        EXPECT_EQ(entry(row).submenu[0].title, u"Randomize"_s);
        EXPECT_TRUE(entry(row).submenu[0].isEnabled());
    }
}

TEST_F(StatusMenuModelTest, WithoutTheHelperTheAddressesAreShownWithoutTheirSubmenus)
{
    machine.helper.installed = false;
    readHelperStatus();
    menu.menuNeedsUpdate();
    EXPECT_TRUE(entry(7).submenu.empty());
    EXPECT_TRUE(entry(8).submenu.empty());
    EXPECT_FALSE(entry(8).isEnabled());
    EXPECT_EQ(entry(8).title, u"    Current Address · 02:00:00:00:00:01"_s);
}

TEST_F(StatusMenuModelTest, WithNoInterfacesOnlyFixedItemsSeparatorsAndQuitRemain)
{
    settings.set(keys::deviceDict, QVariant());
    menu.menuNeedsUpdate();
    EXPECT_THAT(titles(), ElementsAre(u"Open Quillon"_s, u"-"_s, u"-"_s, u"Quit Quillon"_s));
}

TEST_F(StatusMenuModelTest, OpeningTheMenuReadsTheInterfacesAnew)
{
    host.giveAddress(wired, u"02:00:00:00:00:42"_s);
    menu.menuWillOpen();
    EXPECT_EQ(entry(8).title, u"    Current Address · 02:00:00:00:00:42"_s);
}

TEST_F(StatusMenuModelTest, TheStatusMenuNeverShowsCloseWindow)
{
    EXPECT_FALSE(titles().contains(u"Close Window"_s));
}

TEST_F(StatusMenuModelTest, AnUnchangedMenuIsNotAnnounced)
{
    int changes = 0;
    QObject::connect(&menu, &StatusMenuModel::changed, [&] { ++changes; });
    menu.menuWillOpen();
    EXPECT_EQ(changes, 0);
}

TEST_F(StatusMenuModelTest, AChosenInterfaceIsSelected)
{
    menu.activate({2});
    scheduler.runPending();
    EXPECT_EQ(current.device(), wifi);
}

TEST_F(StatusMenuModelTest, AnAddressIsRandomizedAndRestoredInItsOwnSection)
{
    menu.activate({4, 0});
    scheduler.runPending();
    EXPECT_EQ(addressOf(wifi), u"AA:01:02:03:04:05"_s);
    EXPECT_EQ(addressOf(wired), u"02:00:00:00:00:01"_s);
    EXPECT_EQ(current.device(), wired);

    menu.activate({7, 0});
    scheduler.runPending();
    EXPECT_EQ(addressOf(wired), u"3C:22:FB:00:00:01"_s);
    EXPECT_EQ(addressOf(wifi), u"AA:01:02:03:04:05"_s);
}

TEST_F(StatusMenuModelTest, ADisabledOrMissingItemDoesNothing)
{
    int windowActions = 0;
    QObject::connect(&presence, &Presence::windowOpened, [&] { ++windowActions; });
    QObject::connect(&presence, &Presence::terminated, [&] { ++windowActions; });
    for (const QList<int> &path : {QList<int>{}, {-1}, {99}, {3}, {3, 0}, {2, 0}, {3, 7}}) {
        menu.activate(path);
        scheduler.runPending();
    }
    EXPECT_EQ(windowActions, 0);
    EXPECT_TRUE(machine.helper.changes().isEmpty());
    EXPECT_EQ(current.device(), wired);
}

TEST_F(StatusMenuModelTest, TheMenuMayBeRebuiltByTheActionThatItStarted)
{
    // The menu is empty by the time at which the action finds its interface.
    QObject::connect(&changer, &AddressChanger::restoreRequested, [&] {
        const QVariant table = settings.get(keys::deviceDict);
        settings.set(keys::deviceDict, QVariant());
        menu.menuNeedsUpdate();
        settings.set(keys::deviceDict, table);
    });
    menu.activate({7, 0});
    scheduler.runPending();
    EXPECT_EQ(addressOf(wired), u"3C:22:FB:00:00:01"_s);
}

TEST_F(StatusMenuModelTest, OpenAndQuitActOnTheProgram)
{
    int opened = 0, quit = 0;
    QObject::connect(&presence, &Presence::windowOpened, [&] { ++opened; });
    QObject::connect(&presence, &Presence::terminated, [&] { ++quit; });
    menu.activate({0});
    EXPECT_EQ((QList<int>{opened, quit}), (QList<int>{1, 0}));
    menu.activate({11});
    EXPECT_EQ((QList<int>{opened, quit}), (QList<int>{1, 1}));
}

} // namespace
} // namespace quillon::test
