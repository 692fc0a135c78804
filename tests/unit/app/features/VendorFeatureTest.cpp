// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/features/VendorFeature.h"

#include "unit/app/ProgramOnFakes.h"
#include "unit/vendors/VendorFolder.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using namespace std::chrono_literals;

class VendorFeatureTest : public ProgramOnFakes
{
protected:
    VendorFeatureTest()
    {
        const QString csv = machine.data.filePath(u"seed.csv"_s);
        writeFile(csv, registryOf({{"3C22FB", "Appian"}, {"00000D", "Zebra"}}));
        EXPECT_TRUE(fillVendorTable(csv, seed));
    }
    void startWithSeed()
    {
        create(seed);
        start();
        machine.scheduler.advance(2s);
    }
    /// The popover with the list.
    void open()
    {
        field().showVendorViewPopover();
        machine.scheduler.runPending();
    }
    VendorFieldModel &field() { return features().vendors.field; }
    const VendorPaneModel::State &pane() { return features().vendors.pane.state(); }
    QString live() const { return machine.data.filePath(u"oui.db"_s); }

    const QString seed = machine.data.filePath(u"seed.db"_s);
    const QString zebra = u"Zebra (00000D)"_s;
};

TEST_F(VendorFeatureTest, ThePaneShowsWhatIsStoredWhenTheWindowIsPrepared)
{
    machine.settings.set(keys::vendorCountValue, 7);
    machine.settings.set(keys::vendorIDUpdatedDate, u"yesterday"_s);
    create();
    program->launch().awakeFromNib();
    EXPECT_EQ(pane().vendorCount, u"7 Vendor Identifiers"_s);
    EXPECT_EQ(pane().updatedLabel, u"Last Updated: yesterday"_s);
}

TEST_F(VendorFeatureTest, TheShippedDatabaseIsPutInPlaceAndCounted)
{
    create(seed);
    start();
    EXPECT_TRUE(QFile::exists(live()));
    EXPECT_EQ(pane().vendorCount, u"2 Vendor Identifiers"_s);
    EXPECT_EQ(pane().updatedLabel, u"(null) (added 2 new Identifiers)"_s);
}

TEST_F(VendorFeatureTest, TheListIsNotReadUntilSomebodyLooksAtIt)
{
    startWithSeed();
    select(enp2s0);
    EXPECT_FALSE(features().vendors.list.isInMemory());
    open();
    EXPECT_EQ(field().rowCount(), 3);
    field().closeVendorViewPopover();
    select(enp1s0);
    EXPECT_FALSE(features().vendors.list.isInMemory());
}

TEST_F(VendorFeatureTest, TheChoiceIsSelectedInTheListThatIsOpened)
{
    setDeviceRecord(enp1s0, record::vendor, zebra);
    startWithSeed();
    open();
    ASSERT_TRUE(field().state().selectedRow);
    EXPECT_EQ(field().rowText(*field().state().selectedRow), zebra);
}

TEST_F(VendorFeatureTest, TheFieldIsFilledAtTheStartForNoDeviceInParticular)
{
    setDeviceRecord(enp1s0, record::vendor, zebra);
    create(seed);
    start();
    EXPECT_EQ(deviceRecord(enp1s0).value(record::vendor), zebra);
    EXPECT_EQ(field().state().text, u"Random Address"_s);
}

TEST_F(VendorFeatureTest, WhoMadeTheSelectedInterfaceIsLookedUp)
{
    startWithSeed();
    select(enp2s0);
    EXPECT_TRUE(
        machine.settings.getDictionary(keys::currentVendorData).values().contains(u"Appian"_s));
    EXPECT_TRUE(features().vendors.info.state().buttonVisible);
}

TEST_F(VendorFeatureTest, TheFieldAndTheListShowTheChoiceOfTheSelectedInterface)
{
    startWithSeed();
    setDeviceRecord(enp2s0, record::vendor, zebra);
    select(enp2s0);
    EXPECT_EQ(field().state().text, zebra);
    open();
    ASSERT_TRUE(field().state().selectedRow);
    EXPECT_EQ(field().rowText(*field().state().selectedRow), zebra);
    select(enp1s0);
    EXPECT_EQ(field().state().text, u"Random Address"_s);
    EXPECT_EQ(field().rowText(*field().state().selectedRow), u"Random Address"_s);
}

TEST_F(VendorFeatureTest, AChosenManufacturersPrefixIsInTheNextRandomAddress)
{
    startWithSeed();
    field().controlTextDidChange(u"zeb"_s);
    machine.scheduler.runPending();
    field().tableViewShouldSelectRow(0);
    EXPECT_EQ(deviceRecord(enp1s0).value(record::vendor), zebra);
    features().mainWindow.randomizeAddress();
    machine.scheduler.advance(2s);
    EXPECT_TRUE(isChanged(enp1s0));
    EXPECT_TRUE(machine.host.addressOf(enp1s0).toUpper().startsWith(u"00:00:0D:"_s))
        << qPrintable(machine.host.addressOf(enp1s0));
}

TEST_F(VendorFeatureTest, ARefreshAsksTheRegistryAndShowsWhatCame)
{
    startWithSeed();
    machine.http.serve(QUrl(u"https://registry.example/oui/oui.csv"_s),
        registryOf({{"3C22FB", "Appian"}, {"00000D", "Zebra"}, {"00000E", "Mango"}}));
    open();
    features().vendors.pane.pressButton();
    EXPECT_EQ(pane().buttonTitle, u"Cancel download..."_s);
    machine.scheduler.advance(1s);
    EXPECT_EQ(pane().buttonTitle, u"Update database"_s);
    EXPECT_EQ(pane().vendorCount, u"3 Vendor Identifiers"_s);
    EXPECT_TRUE(pane().updatedLabel.endsWith(u" (added 1 new Identifiers)"_s))
        << qPrintable(pane().updatedLabel);
    EXPECT_EQ(field().rowCount(), 4);
}

} // namespace
} // namespace quillon::test
