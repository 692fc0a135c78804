// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/features/VendorFeature.h"

#include "unit/app/ProgramOnFakes.h"
#include "unit/vendors/VendorFolder.h"

namespace quillon::test {
namespace {

using namespace std::chrono_literals;

class VendorFeatureTest : public ProgramOnFakes
{
protected:
    VendorFeatureTest()
    {
        const QString csv = machine.data.filePath(QStringLiteral("seed.csv"));
        writeFile(csv, registryOf({{"3C22FB", "Appian"}, {"00000D", "Zebra"}}));
        EXPECT_TRUE(fillVendorTable(csv, seed));
    }
    void startWithSeed()
    {
        create(seed);
        start();
        machine.scheduler.advance(2s);
    }
    VendorFieldModel &field() { return features().vendors.field; }
    const VendorPaneModel::State &pane() { return features().vendors.pane.state(); }
    QString live() const { return machine.data.filePath(QStringLiteral("oui.db")); }

    const QString seed = machine.data.filePath(QStringLiteral("seed.db"));
    const QString zebra = QStringLiteral("Zebra (00000D)");
};

TEST_F(VendorFeatureTest, ThePaneShowsWhatIsStoredWhenTheWindowIsPrepared)
{
    machine.settings.set(keys::vendorCountValue, 7);
    machine.settings.set(keys::vendorIDUpdatedDate, QStringLiteral("yesterday"));
    create();
    program->launch().awakeFromNib();
    EXPECT_EQ(pane().vendorCount, QStringLiteral("7 Vendor Identifiers"));
    EXPECT_EQ(pane().updatedLabel, QStringLiteral("Last Updated: yesterday"));
}

TEST_F(VendorFeatureTest, TheShippedDatabaseIsPutInPlaceAndCounted)
{
    create(seed);
    start();
    EXPECT_TRUE(QFile::exists(live()));
    EXPECT_EQ(pane().vendorCount, QStringLiteral("2 Vendor Identifiers"));
    EXPECT_EQ(pane().updatedLabel, QStringLiteral("(null) (added 2 new Identifiers)"));
}

TEST_F(VendorFeatureTest, TheListIsReadAtTheStart)
{
    create(seed);
    start();
    EXPECT_EQ(field().rowCount(), 0);
    machine.scheduler.runPending();
    EXPECT_EQ(field().rowCount(), 3);
}

TEST_F(VendorFeatureTest, TheChoiceIsSelectedOnceTheListIsRead)
{
    setDeviceRecord(enp1s0, record::vendor, zebra);
    startWithSeed();
    ASSERT_TRUE(field().state().selectedRow);
    EXPECT_EQ(field().rowText(*field().state().selectedRow), zebra);
}

TEST_F(VendorFeatureTest, TheFieldIsFilledAtTheStartForNoDeviceInParticular)
{
    setDeviceRecord(enp1s0, record::vendor, zebra);
    create(seed);
    start();
    EXPECT_EQ(deviceRecord(enp1s0).value(record::vendor), zebra);
    EXPECT_EQ(field().state().text, QStringLiteral("Random Address"));
}

TEST_F(VendorFeatureTest, WhoMadeTheSelectedInterfaceIsLookedUp)
{
    startWithSeed();
    select(enp2s0);
    EXPECT_TRUE(machine.settings.getDictionary(keys::currentVendorData)
                    .values()
                    .contains(QStringLiteral("Appian")));
    EXPECT_TRUE(field().state().vendorButtonVisible);
}

TEST_F(VendorFeatureTest, TheFieldAndTheListShowTheChoiceOfTheSelectedInterface)
{
    startWithSeed();
    setDeviceRecord(enp2s0, record::vendor, zebra);
    select(enp2s0);
    EXPECT_EQ(field().state().text, zebra);
    ASSERT_TRUE(field().state().selectedRow);
    EXPECT_EQ(field().rowText(*field().state().selectedRow), zebra);
    select(enp1s0);
    EXPECT_EQ(field().state().text, QStringLiteral("Random Address"));
    EXPECT_EQ(field().rowText(*field().state().selectedRow), QStringLiteral("Random Address"));
}

TEST_F(VendorFeatureTest, AChosenManufacturersPrefixIsInTheNextRandomAddress)
{
    startWithSeed();
    field().controlTextDidChange(QStringLiteral("zeb"));
    field().tableViewShouldSelectRow(0);
    EXPECT_EQ(deviceRecord(enp1s0).value(record::vendor), zebra);
    features().mainWindow.randomizeAddress();
    machine.scheduler.advance(2s);
    EXPECT_TRUE(isChanged(enp1s0));
    EXPECT_TRUE(machine.host.addressOf(enp1s0).toUpper().startsWith(QStringLiteral("00:00:0D:")))
        << qPrintable(machine.host.addressOf(enp1s0));
}

TEST_F(VendorFeatureTest, ARefreshAsksTheRegistryAndShowsWhatCame)
{
    startWithSeed();
    machine.http.serve(QUrl(QStringLiteral("https://registry.example/oui/oui.csv")),
        registryOf({{"3C22FB", "Appian"}, {"00000D", "Zebra"}, {"00000E", "Mango"}}));
    features().vendors.pane.pressButton();
    EXPECT_EQ(pane().buttonTitle, QStringLiteral("Cancel download..."));
    machine.scheduler.advance(1s);
    EXPECT_EQ(pane().buttonTitle, QStringLiteral("Update database"));
    EXPECT_EQ(pane().vendorCount, QStringLiteral("3 Vendor Identifiers"));
    EXPECT_TRUE(pane().updatedLabel.endsWith(QStringLiteral(" (added 1 new Identifiers)")))
        << qPrintable(pane().updatedLabel);
    EXPECT_EQ(field().rowCount(), 4);
}

} // namespace
} // namespace quillon::test
