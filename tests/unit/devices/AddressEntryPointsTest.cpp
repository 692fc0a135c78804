// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "AddressChangeFixture.h"
#include "devices/MenuItem.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class AddressEntryPoints : public AddressChangeFixture
{
protected:
    AddressEntryPoints()
    {
        random.put(QByteArray::fromHex("c0abcdef0009"));
        deviceItem->append(u"unused"_s);
    }

    // Device, factory address, current address, as they stand in the menu one above the other.
    MenuItem menu{QString()};
    MenuItem *deviceItem = &menu.append(u"Ethernet \u00B7 en0"_s);
    MenuItem *factoryItem = &menu.append(u"Factory \u00B7 02:FA:C7:00:00:01"_s);
    MenuItem *currentItem = &menu.append(u"Address \u00B7 00:16:3E:11:22:33"_s);
    const MenuItem &restore = factoryItem->append(u"Restore"_s);
    const MenuItem &randomize = currentItem->append(u"Randomize"_s);
};

TEST_F(AddressEntryPoints, RandomizeActsOnTheCurrentInterface)
{
    changer->randomizeAddress();
    scheduler.runPending();
    EXPECT_EQ(host.addressOf(en1), "c2:ab:cd:ef:00:09"_L1);
}

TEST_F(AddressEntryPoints, RandomizeFollowsTheVendorOfTheDevice)
{
    QVariantMap record = storedRecord(en1);
    record[record::vendor] = u"Some Maker Inc. (A2B2C3)"_s;
    storeRecord(en1, record);
    changer->randomizeAddress();
    scheduler.runPending();
    EXPECT_EQ(host.addressOf(en1), "a2:b2:c3:ef:00:09"_L1);
}

TEST_F(AddressEntryPoints, RandomizeWithAFailingSourceReportsTheFailure)
{
    random.fail();
    helper.mood = FakeHelper::Mood::Refusing;
    changer->randomizeAddress();
    scheduler.runPending();
    EXPECT_EQ(notifier.messages().value(0).title, "Wi-Fi Address was not Changed"_L1);
}

TEST_F(AddressEntryPoints, ATypedAddressGoesOutInDisplayCaseAndBackIntoTheField)
{
    EXPECT_EQ(changer->changeMacAddress(u"02:aa:bb:cc:dd:01"_s), wanted);
    scheduler.runPending();
    ASSERT_EQ(helper.changes().size(), 1);
    EXPECT_EQ(helper.changes().at(0).address, wanted);
    EXPECT_EQ(helper.changes().at(0).device, en1);
}

TEST_F(AddressEntryPoints, ATypedAddressIsNotTestedHere)
{
    EXPECT_EQ(changer->changeMacAddress(u"a1b2"_s), "A1B2"_L1);
    scheduler.runPending();
    ASSERT_EQ(helper.changes().size(), 1);
    EXPECT_EQ(helper.changes().at(0).address, "A1B2"_L1);
}

TEST_F(AddressEntryPoints, RestoreGivesTheCurrentInterfaceItsFactoryAddress)
{
    changer->restoreDefaultAddress();
    scheduler.runPending();
    EXPECT_EQ(host.addressOf(en1), "00:16:3e:44:55:66"_L1);
}

TEST_F(AddressEntryPoints, AMenuRandomizesTheDeviceTwoPlacesAboveItsParent)
{
    changer->randomizeAddress(randomize);
    scheduler.runPending();
    EXPECT_EQ(host.addressOf(en0), "c2:ab:cd:ef:00:09"_L1);
    EXPECT_EQ(host.addressOf(en1), "02:16:3e:44:55:66"_L1);
}

TEST_F(AddressEntryPoints, AMenuTitleWithoutSeparatorIsTheDevice)
{
    MenuItem plain{QString()};
    plain.append(en0);
    plain.append(u"anything"_s);
    const MenuItem &action = plain.append(u"address"_s).append(u"Randomize"_s);
    changer->randomizeAddress(action);
    scheduler.runPending();
    EXPECT_EQ(host.addressOf(en0), "c2:ab:cd:ef:00:09"_L1);
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
    EXPECT_EQ(host.addressOf(en0), "02:fa:c7:00:00:01"_L1);
}

TEST_F(AddressEntryPoints, AMenuTitleMayKeepItsAddressApart)
{
    MenuItem arabic{QString()};
    arabic.append(u"Ethernet \u00B7 en0"_s);
    const MenuItem &action =
        arabic.append(u"عنوان \u00B7 \u206802:FA:C7:00:00:01\u2069"_s).append(u"Restore"_s);
    changer->restoreDefaultAddress(action);
    scheduler.runPending();
    EXPECT_EQ(host.addressOf(en0), "02:fa:c7:00:00:01"_L1);
}

TEST_F(AddressEntryPoints, AMenuRestoreOfAMalformedAddressDoesNothing)
{
    MenuItem odd{QString()};
    odd.append(u"Ethernet \u00B7 en0"_s);
    const MenuItem &action = odd.append(u"Factory \u00B7 N/A"_s).append(u"Restore"_s);
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

TEST_F(AddressEntryPoints, AnEmptyVendorIsNotThatOfTheDevice)
{
    QVariantMap record = storedRecord(en1);
    record[record::vendor] = u"Some Maker Inc. (A2B2C3)"_s;
    storeRecord(en1, record);
    changer->genRandomMacAddressWithVendor(en1, u""_s);
    scheduler.runPending();
    EXPECT_EQ(host.addressOf(en1), "c2:ab:cd:ef:00:09"_L1);
}

TEST_F(AddressEntryPoints, RestoreTakesTheAddressOfTheSelectionNotThatOfTheTable)
{
    QVariantMap selection = storedSelection();
    selection[record::hardware] = u"02:FA:C7:00:00:09"_s;
    settings.set(keys::currentInterfaceDict, selection);
    changer->restoreDefaultAddress();
    scheduler.runPending();
    ASSERT_EQ(helper.changes().size(), 1);
    EXPECT_EQ(helper.changes().first().device, en1);
    EXPECT_EQ(helper.changes().first().address, "02:FA:C7:00:00:09"_L1);
}

TEST_F(AddressEntryPoints, AMenuTitleIsCutAtItsFirstSeparator)
{
    const QString odd = u"lan \u00B7 en0"_s;
    storeRecord(odd, {{record::interface, u"Ethernet"_s}});
    MenuItem twice{QString()};
    twice.append(u"Ethernet \u00B7 lan \u00B7 en0"_s);
    MenuItem &factory = twice.append(u"Factory \u00B7 02:FA:C7:00:00:01"_s);
    MenuItem &address = twice.append(u"Address \u00B7 00:16:3E:11:22:33"_s);
    changer->randomizeAddress(address.append(u"Randomize"_s));
    changer->restoreDefaultAddress(factory.append(u"Restore"_s));
    scheduler.runPending();
    ASSERT_EQ(helper.changes().size(), 2);
    EXPECT_EQ(helper.changes().at(0).device, odd);
    EXPECT_EQ(helper.changes().at(1).device, odd);
}

TEST_F(AddressEntryPoints, AMenuRestoreReadsTheAddressFromTheFirstSeparatorOn)
{
    MenuItem twice{QString()};
    twice.append(u"Ethernet \u00B7 en0"_s);
    MenuItem &factory = twice.append(u"Factory \u00B7 was \u00B7 02:FA:C7:00:00:01"_s);
    changer->restoreDefaultAddress(factory.append(u"Restore"_s));
    scheduler.runPending();
    EXPECT_TRUE(helper.changes().isEmpty()) << "that is no address";
}

} // namespace
} // namespace quillon::test
