// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/menu/FileMenuModel.h"

#include "unit/presentation/DeviceModelsFixture.h"

namespace quillon::test {
namespace {

using ::testing::ElementsAre;

class FileMenuModelTest : public DeviceModelsFixture
{
protected:
    FileMenuModelTest() { menu.menuWillOpen(); }

    const MenuEntry &entry(const QString &key) const
    {
        return *std::ranges::find(menu.entries(), key, &MenuEntry::key);
    }
    void choose(const QString &key)
    {
        const auto found = std::ranges::find(menu.entries(), key, &MenuEntry::key);
        menu.activate({static_cast<int>(std::distance(menu.entries().begin(), found))});
    }

    FileMenuModel menu{{settings, devices, current, changer, helper, presence, timers}};
};

TEST_F(FileMenuModelTest, ClosesTheWindow)
{
    int closed = 0;
    QObject::connect(&presence, &Presence::windowClosed, [&] { ++closed; });
    choose(FileMenuModel::closeWindow);
    EXPECT_EQ(closed, 1);
}

TEST_F(FileMenuModelTest, LeadsToNewRulesOnceThereAreForms)
{
    EXPECT_FALSE(entry(FileMenuModel::newNetworkRule).isEnabled());
    EXPECT_FALSE(entry(FileMenuModel::newLoginRule).isEnabled());
    QList<Destination> chosen;
    QObject::connect(&presence, &Presence::destinationChosen,
        [&](Destination destination) { chosen.append(destination); });
    presence.offer(Destination::NewNetworkRule);
    presence.offer(Destination::NewLoginRule);
    menu.menuWillOpen();
    choose(FileMenuModel::newNetworkRule);
    choose(FileMenuModel::newLoginRule);
    EXPECT_THAT(chosen, ElementsAre(Destination::NewNetworkRule, Destination::NewLoginRule));
}

TEST_F(FileMenuModelTest, WithNoInterfacesNothingFollowsTheFixedPart)
{
    settings.set(keys::deviceDict, QVariant());
    menu.menuNeedsUpdate();
    menu.menuDidClose();
    EXPECT_EQ(menu.entries().size(), 5U);
}

} // namespace
} // namespace quillon::test
