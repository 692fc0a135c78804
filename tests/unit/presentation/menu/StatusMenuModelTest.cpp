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
        menu.menuDidClose();
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

    StatusMenuModel menu{{settings, devices, current, changer, helper, presence, timers}};
};

TEST_F(StatusMenuModelTest, EachInterfaceHasItsSectionInTheOrderOfEveryList)
{
    EXPECT_THAT(titles(),
        ElementsAre(u"Open Quillon"_s, u"Overview"_s, u"History"_s, u"Rules"_s,
            u"Saved Networks and Addresses"_s, u"Preferences"_s, u"About Quillon"_s, u"-"_s,
            u"Wi-Fi · wlp2s0"_s, u"    Hardware Address · 3C:22:FB:00:00:02"_s,
            u"    Current Address · 3C:22:FB:00:00:02"_s, u"-"_s, u"Ethernet · enp1s0"_s,
            u"    Hardware Address · 3C:22:FB:00:00:01"_s,
            u"    Current Address · 02:00:00:00:00:01"_s, u"-"_s, u"-"_s, u"Quit Quillon"_s));
}

TEST_F(StatusMenuModelTest, TheSelectedInterfaceIsChecked)
{
    EXPECT_FALSE(entry(8).checked);
    EXPECT_TRUE(entry(12).checked);
}

TEST_F(StatusMenuModelTest, RestoreIsDisabledWhileTheAddressIsTheFactoryOne)
{
    ASSERT_EQ(entry(9).submenu.size(), 1U);
    EXPECT_EQ(entry(9).submenu[0].title, u"Restore"_s);
    EXPECT_FALSE(entry(9).submenu[0].isEnabled());
    EXPECT_TRUE(entry(13).submenu.at(0).isEnabled());
}

TEST_F(StatusMenuModelTest, RestoreIsEnabledWhereverTheAddressesDiffer)
{
    QVariantMap table = settings.getDictionary(keys::deviceDict);
    QVariantMap record = table.value(wired).toMap();
    record[record::hardware] = u"N/A"_s;
    table[wired] = record;
    settings.set(keys::deviceDict, table);
    menu.menuNeedsUpdate();
    EXPECT_TRUE(entry(13).submenu.at(0).isEnabled());
}

TEST_F(StatusMenuModelTest, EveryCurrentAddressOffersToRandomize)
{
    for (const int row : {10, 14}) {
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
    EXPECT_TRUE(entry(13).submenu.empty());
    EXPECT_TRUE(entry(14).submenu.empty());
    EXPECT_FALSE(entry(14).isEnabled());
    EXPECT_EQ(entry(14).title, u"    Current Address · 02:00:00:00:00:01"_s);
}

TEST_F(StatusMenuModelTest, WithNoInterfacesOnlyFixedItemsSeparatorsAndQuitRemain)
{
    settings.set(keys::deviceDict, QVariant());
    menu.menuNeedsUpdate();
    EXPECT_THAT(titles().mid(7), ElementsAre(u"-"_s, u"-"_s, u"Quit Quillon"_s));
}

TEST_F(StatusMenuModelTest, OpeningTheMenuReadsTheInterfacesAnew)
{
    host.giveAddress(wired, u"02:00:00:00:00:42"_s);
    menu.menuWillOpen();
    EXPECT_EQ(entry(14).title, u"    Current Address · 02:00:00:00:00:42"_s);
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
    menu.activate({8});
    scheduler.runPending();
    EXPECT_EQ(current.device(), wifi);
}

TEST_F(StatusMenuModelTest, AnAddressIsRandomizedAndRestoredInItsOwnSection)
{
    menu.activate({10, 0});
    scheduler.runPending();
    EXPECT_EQ(addressOf(wifi), u"AA:01:02:03:04:05"_s);
    EXPECT_EQ(addressOf(wired), u"02:00:00:00:00:01"_s);
    EXPECT_EQ(current.device(), wired);

    menu.activate({13, 0});
    scheduler.runPending();
    EXPECT_EQ(addressOf(wired), u"3C:22:FB:00:00:01"_s);
    EXPECT_EQ(addressOf(wifi), u"AA:01:02:03:04:05"_s);
}

TEST_F(StatusMenuModelTest, ADisabledOrMissingItemDoesNothing)
{
    int windowActions = 0;
    QObject::connect(&presence, &Presence::windowOpened, [&] { ++windowActions; });
    QObject::connect(&presence, &Presence::terminated, [&] { ++windowActions; });
    for (const QList<int> &path : {QList<int>{}, {-1}, {99}, {1}, {9}, {9, 0}, {8, 0}, {9, 7}}) {
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
    menu.activate({13, 0});
    scheduler.runPending();
    EXPECT_EQ(addressOf(wired), u"3C:22:FB:00:00:01"_s);
}

TEST_F(StatusMenuModelTest, AnItemWithoutAWindowIsDisabledAndSaysSo)
{
    QList<Destination> gone;
    QObject::connect(&presence, &Presence::destinationChosen,
        [&](Destination destination) { gone.append(destination); });
    for (int row = 1; row < 7; ++row) {
        EXPECT_FALSE(entry(row).isEnabled());
        EXPECT_FALSE(entry(row).hint.isEmpty());
        menu.activate({row});
    }
    EXPECT_THAT(gone, ElementsAre());

    const QList<Destination> all{Destination::Overview, Destination::History, Destination::Rules,
        Destination::SavedItems, Destination::Preferences, Destination::About};
    for (const Destination destination : all) {
        presence.offer(destination);
    }
    menu.menuNeedsUpdate();
    for (int row = 1; row < 7; ++row) {
        EXPECT_TRUE(entry(row).isEnabled());
        EXPECT_TRUE(entry(row).hint.isEmpty());
        menu.activate({row});
    }
    EXPECT_EQ(gone, all);
}

TEST_F(StatusMenuModelTest, OpenAndQuitActOnTheProgram)
{
    int opened = 0, quit = 0;
    QObject::connect(&presence, &Presence::windowOpened, [&] { ++opened; });
    QObject::connect(&presence, &Presence::terminated, [&] { ++quit; });
    menu.activate({0});
    EXPECT_EQ((QList<int>{opened, quit}), (QList<int>{1, 0}));
    menu.activate({17});
    EXPECT_EQ((QList<int>{opened, quit}), (QList<int>{1, 1}));
}

} // namespace
} // namespace quillon::test
