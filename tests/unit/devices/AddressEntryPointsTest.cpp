// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "AddressChangeFixture.h"
#include "devices/MenuItem.h"

namespace quillon::test {
namespace {

class AddressEntryPoints : public AddressChangeFixture
{
protected:
    AddressEntryPoints()
    {
        random.put(QByteArray::fromHex("c0abcdef0009"));
        deviceItem->append(QStringLiteral("unused"));
    }

    // Device, factory address, current address, as they stand in the menu one above the other.
    MenuItem menu{QString()};
    MenuItem *deviceItem = &menu.append(QStringLiteral("Ethernet \u00B7 en0"));
    MenuItem *factoryItem = &menu.append(QStringLiteral("Factory \u00B7 02:FA:C7:00:00:01"));
    MenuItem *currentItem = &menu.append(QStringLiteral("Address \u00B7 00:16:3E:11:22:33"));
    const MenuItem &restore = factoryItem->append(QStringLiteral("Restore"));
    const MenuItem &randomize = currentItem->append(QStringLiteral("Randomize"));
};

TEST_F(AddressEntryPoints, RandomizeActsOnTheCurrentInterface)
{
    changer->randomizeAddress();
    scheduler.runPending();
    EXPECT_EQ(host.addressOf(en1), QLatin1String("c2:ab:cd:ef:00:09"));
}

TEST_F(AddressEntryPoints, RandomizeFollowsTheVendorOfTheDevice)
{
    QVariantMap record = storedRecord(en1);
    record[record::vendor] = QStringLiteral("Some Maker Inc. (A2B2C3)");
    storeRecord(en1, record);
    changer->randomizeAddress();
    scheduler.runPending();
    EXPECT_EQ(host.addressOf(en1), QLatin1String("a2:b2:c3:ef:00:09"));
}

TEST_F(AddressEntryPoints, RandomizeWithAFailingSourceReportsTheFailure)
{
    random.fail();
    helper.mood = FakeHelper::Mood::Refusing;
    changer->randomizeAddress();
    scheduler.runPending();
    EXPECT_EQ(notifier.messages().value(0).title, QLatin1String("Wi-Fi Address was not Changed"));
}

TEST_F(AddressEntryPoints, ATypedAddressGoesOutInDisplayCaseAndBackIntoTheField)
{
    EXPECT_EQ(changer->changeMacAddress(QStringLiteral("02:aa:bb:cc:dd:01")), wanted);
    scheduler.runPending();
    ASSERT_EQ(helper.changes().size(), 1);
    EXPECT_EQ(helper.changes().at(0).address, wanted);
    EXPECT_EQ(helper.changes().at(0).device, en1);
}

TEST_F(AddressEntryPoints, ATypedAddressIsNotTestedHere)
{
    EXPECT_EQ(changer->changeMacAddress(QStringLiteral("a1b2")), QLatin1String("A1B2"));
    scheduler.runPending();
    ASSERT_EQ(helper.changes().size(), 1);
    EXPECT_EQ(helper.changes().at(0).address, QLatin1String("A1B2"));
}

TEST_F(AddressEntryPoints, RestoreGivesTheCurrentInterfaceItsFactoryAddress)
{
    changer->restoreDefaultAddress();
    scheduler.runPending();
    EXPECT_EQ(host.addressOf(en1), QLatin1String("00:16:3e:44:55:66"));
}

TEST_F(AddressEntryPoints, AMenuRandomizesTheDeviceTwoPlacesAboveItsParent)
{
    changer->randomizeAddress(randomize);
    scheduler.runPending();
    EXPECT_EQ(host.addressOf(en0), QLatin1String("c2:ab:cd:ef:00:09"));
    EXPECT_EQ(host.addressOf(en1), QLatin1String("02:16:3e:44:55:66"));
}

TEST_F(AddressEntryPoints, AMenuTitleWithoutSeparatorIsTheDevice)
{
    MenuItem plain{QString()};
    plain.append(en0);
    plain.append(QStringLiteral("anything"));
    const MenuItem &action =
        plain.append(QStringLiteral("address")).append(QStringLiteral("Randomize"));
    changer->randomizeAddress(action);
    scheduler.runPending();
    EXPECT_EQ(host.addressOf(en0), QLatin1String("c2:ab:cd:ef:00:09"));
}

TEST_F(AddressEntryPoints, AMenuRandomizeOfAnUnknownDeviceDoesNothing)
{
    QVariantMap devices = storedTable();
    devices.remove(en0);
    store(devices);
    changer->randomizeAddress(randomize);
    scheduler.runPending();
    EXPECT_TRUE(helper.journal().isEmpty());
    EXPECT_TRUE(notifier.messages().isEmpty());
}

TEST_F(AddressEntryPoints, AMenuRestoresTheAddressOfItsParentOnTheDeviceAboveIt)
{
    changer->restoreDefaultAddress(restore);
    scheduler.runPending();
    EXPECT_EQ(host.addressOf(en0), QLatin1String("02:fa:c7:00:00:01"));
}

TEST_F(AddressEntryPoints, AMenuRestoreOfAMalformedAddressDoesNothing)
{
    MenuItem odd{QString()};
    odd.append(QStringLiteral("Ethernet \u00B7 en0"));
    const MenuItem &action =
        odd.append(QStringLiteral("Factory \u00B7 N/A")).append(QStringLiteral("Restore"));
    changer->restoreDefaultAddress(action);
    scheduler.runPending();
    EXPECT_TRUE(helper.journal().isEmpty());
    EXPECT_TRUE(notifier.messages().isEmpty());
}

TEST_F(AddressEntryPoints, AMenuRestoreOfAnUnknownDeviceDoesNothing)
{
    QVariantMap devices = storedTable();
    devices.remove(en0);
    store(devices);
    changer->restoreDefaultAddress(restore);
    scheduler.runPending();
    EXPECT_TRUE(helper.journal().isEmpty());
}

TEST_F(AddressEntryPoints, AMenuItemInTheWrongPlaceDoesNothing)
{
    changer->randomizeAddress(*deviceItem);
    changer->randomizeAddress(restore);
    changer->restoreDefaultAddress(*deviceItem);
    changer->restoreDefaultAddress(menu);
    scheduler.runPending();
    EXPECT_TRUE(helper.journal().isEmpty());
    EXPECT_TRUE(notifier.messages().isEmpty());
}

} // namespace
} // namespace quillon::test
