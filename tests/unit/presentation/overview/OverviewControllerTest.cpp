// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/overview/OverviewController.h"

#include "OverviewFixture.h"

#include <QCoreApplication>
#include <QTranslator>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

const QString vendorName = u"APPLICON, INC. (000040)"_s;

class OverviewControllerTest : public OverviewFixture
{
protected:
    void postAddressUpdated(const QVariantMap &userInfo)
    {
        notifications.post(notifications::addressUpdated, nullptr, userInfo);
    }
    void postVendorUpdated(const QVariantMap &userInfo)
    {
        notifications.post(notifications::vendorUpdated, nullptr, userInfo);
    }
    void plugUsb(const QString &device)
    {
        host.plug({u"USB Ethernet"_s, device, u"00:00:5e:00:53:77"_s, u"00:00:5e:00:53:77"_s, {}});
        devices.updateNetWorkInterfaces();
    }
};

TEST_F(OverviewControllerTest, HasARowForEachInterfaceInTheOrderOfEveryList)
{
    settings.set(keys::currentWiFiDict, QVariantMap{{wifirecord::name, u"Harbor"_s}});
    set(wired, [](DeviceRecord &record) {
        record.vendor = vendorName;
        record.hasRule = 1;
    });
    open();
    ASSERT_EQ(rows().size(), 2);
    EXPECT_EQ(wifiRow().row, (OverviewRow{.device = wifi,
                                 .interface = u"Wi-Fi"_s,
                                 .icon = u"wifi"_s,
                                 .network = u"Harbor"_s,
                                 .helperInstalled = true,
                                 .status = u"inactive"_s,
                                 .currentAddress = u"3c:22:fb:00:00:02"_s,
                                 .hardwareAddress = u"3c:22:fb:00:00:02"_s,
                                 .vendor = u"Random Address"_s,
                                 .addressIsDefault = true,
                                 .addressIcon = u"dot.viewfinder"_s,
                                 .timerDisplay = std::nullopt}));
    EXPECT_EQ(wiredRow().row, (OverviewRow{.device = wired,
                                  .interface = u"Ethernet"_s,
                                  .icon = u"network"_s,
                                  .network = std::nullopt,
                                  .helperInstalled = true,
                                  .status = u"active"_s,
                                  .currentAddress = host.addressOf(wired),
                                  .hardwareAddress = host.addressOf(wired),
                                  .vendor = vendorName,
                                  .hasRule = 1,
                                  .addressIsDefault = true,
                                  .addressIcon = u"dot.viewfinder"_s}));
}

TEST_F(OverviewControllerTest, NamesWifiAndNoVendorInTheUsersLanguage)
{
    class Everything : public QTranslator
    {
    public:
        QString translate(const char *, const char *text, const char *, int) const override
        {
            return u"<%1>"_s.arg(QString::fromUtf8(text));
        }
        bool isEmpty() const override { return false; }
    } translator;
    QCoreApplication::installTranslator(&translator);
    open();
    QCoreApplication::removeTranslator(&translator);
    EXPECT_EQ(wifiRow().row.interface, u"<Wi-Fi>"_s);
    EXPECT_EQ(wiredRow().row.interface, u"Ethernet"_s);
    EXPECT_EQ(wiredRow().row.vendor, u"<Random Address>"_s);
}

TEST_F(OverviewControllerTest, TakesAnAddressThatDiffersInCaseAloneForTheDefault)
{
    set(wired, [](DeviceRecord &record) { record.current = record.hardware->toUpper(); });
    open();
    EXPECT_NE(wiredRow().row.currentAddress, wiredRow().row.hardwareAddress);
    EXPECT_TRUE(wiredRow().row.addressIsDefault);
    EXPECT_EQ(wiredRow().row.addressIcon, u"dot.viewfinder"_s);
}

TEST_F(OverviewControllerTest, SeesAnAddressThatIsNotTheDefault)
{
    set(wired, [](DeviceRecord &record) { record.current = u"02:00:00:00:00:01"_s; });
    open();
    EXPECT_FALSE(wiredRow().row.addressIsDefault);
    EXPECT_EQ(wiredRow().row.addressIcon, u"viewfinder"_s);
}

TEST_F(OverviewControllerTest, MakesARowOfADeviceWithoutAnyFacts)
{
    settings.set(keys::deviceDict, QVariantMap{{wired, u"no record"_s}, {u"enx"_s, 7}});
    open();
    ASSERT_EQ(rows().size(), 2);
    EXPECT_EQ(row(0).row.vendor, u"Random Address"_s);
    EXPECT_EQ(row(0).row.currentAddress, QString());
    EXPECT_FALSE(row(0).restore.isEnabled);
}

TEST_F(OverviewControllerTest, TakesOverANewVendorAndNothingElse)
{
    open();
    auto expected = rows();
    expected[1].row.vendor = expected[1].vendorText = vendorName;
    postVendorUpdated({{record::device, wired}, {u"newVendor"_s, vendorName}});
    EXPECT_EQ(rows(), expected);
}

TEST_F(OverviewControllerTest, IsLeftAsItIsByAnAddressThatWasUpdated)
{
    open();
    const auto before = rows();
    postAddressUpdated({{record::device, wired}});
    EXPECT_EQ(rows(), before);
}

TEST_F(OverviewControllerTest, KeepsTheAddressesOfARowThatWasRandomized)
{
    OverviewController &controller = open();
    const OverviewRow before = wiredRow().row;
    controller.randomize(1);
    scheduler.runPending();
    EXPECT_NE(host.addressOf(wired), before.currentAddress);
    EXPECT_EQ(wiredRow().row, before);
    EXPECT_EQ(wiredRow().addressNow, addressOf(wired)) << "but it does not mislead";
    EXPECT_TRUE(controller.state().hasNewAddresses);
}

TEST_F(OverviewControllerTest, TakesOverAnAddressThatIsTold)
{
    open();
    postAddressUpdated({{record::device, wired}, {u"newAddress"_s, u"02:00:00:00:00:01"_s}});
    EXPECT_EQ(wiredRow().row.currentAddress, u"02:00:00:00:00:01"_s);
    EXPECT_FALSE(wiredRow().row.addressIsDefault);
    EXPECT_EQ(wiredRow().row.addressIcon, u"viewfinder"_s);
}

TEST_F(OverviewControllerTest, TakesTheVendorWhereBothAreTold)
{
    open();
    const QString before = wiredRow().row.currentAddress;
    postAddressUpdated({{record::device, wired}, {u"newAddress"_s, u"02:00:00:00:00:01"_s},
        {u"newVendor"_s, vendorName}});
    EXPECT_EQ(wiredRow().row.vendor, vendorName);
    EXPECT_EQ(wiredRow().row.currentAddress, before);
}

TEST_F(OverviewControllerTest, IgnoresWhatItCannotPlace)
{
    open();
    const auto before = rows();
    postVendorUpdated({{u"newVendor"_s, vendorName}});
    postVendorUpdated({{record::device, QString()}, {u"newVendor"_s, vendorName}});
    postVendorUpdated({{record::device, u"nowhere0"_s}, {u"newVendor"_s, vendorName}});
    postVendorUpdated({});
    EXPECT_EQ(rows(), before);
}

TEST_F(OverviewControllerTest, FindsTheRowByTheOrderOfTheDevicesNow)
{
    open();
    plugUsb(u"eno0"_s);
    plugUsb(u"enp0s9"_s);
    // Wi-Fi, eno0, enp0s9, enp1s0: the second row is taken for the second device.
    postVendorUpdated({{record::device, u"eno0"_s}, {u"newVendor"_s, vendorName}});
    EXPECT_EQ(wiredRow().row.vendor, vendorName);
    const auto before = rows();
    postVendorUpdated({{record::device, wired}, {u"newVendor"_s, u"Other"_s}});
    EXPECT_EQ(rows(), before) << "its place has no row";
    overview.loadAnew();
    EXPECT_EQ(rows().size(), 4);
    EXPECT_EQ(row(3).row.device, wired);
}

TEST_F(OverviewControllerTest, HearsOfAnAddressOnAnyThread)
{
    open();
    scheduler.inBackground([this] {
        notifications.post(notifications::addressUpdated, nullptr,
            {{record::device, wired}, {u"newAddress"_s, u"02:00:00:00:00:01"_s}});
    });
    scheduler.runPending();
    EXPECT_EQ(wiredRow().row.currentAddress, u"02:00:00:00:00:01"_s);
}

TEST_F(OverviewControllerTest, IsMadeAnewWhenTheCaseOfAddressesChanges)
{
    OverviewController &controller = open();
    EXPECT_EQ(wiredRow().currentText, addressOf(wired));
    set(wired, [](DeviceRecord &record) { record.current = u"02:00:00:00:00:0A"_s; });
    QStringList told;
    QObject::connect(&controller, &OverviewController::rowsGoing, [&] { told << u"going"_s; });
    QObject::connect(&controller, &OverviewController::rowsMade,
        [&] { told << u"made %1"_s.arg(controller.rowCount()); });
    settings.set(keys::lowerCaseHEX, true);
    EXPECT_EQ(told, (QStringList{u"going"_s, u"made 2"_s}));
    EXPECT_EQ(wiredRow().currentText, u"02:00:00:00:00:0a"_s);
    EXPECT_EQ(wiredRow().row.currentAddress, u"02:00:00:00:00:0A"_s) << "as it is stored";
}

TEST_F(OverviewControllerTest, SaysThatAnInterfaceCameWhichItDoesNotList)
{
    OverviewController &controller = open();
    EXPECT_FALSE(controller.isOutOfDate());
    plugUsb(u"enx00"_s);
    overview.look();
    EXPECT_EQ(rows().size(), 2);
    EXPECT_TRUE(controller.state().hasNewInterfaces);
    overview.loadAnew();
    EXPECT_EQ(rows().size(), 3);
    EXPECT_FALSE(overview.controller()->isOutOfDate());
}

TEST_F(OverviewControllerTest, MakesTheInterfaceTheSelectedOneBehindItself)
{
    OverviewController &controller = open();
    QStringList order;
    QObject::connect(&presence, &Presence::windowOpened, [&] { order << u"window"_s; });
    QObject::connect(&controller, &OverviewController::madeKey, [&] { order << u"key"_s; });
    controller.changeInterface(0);
    scheduler.runPending();
    EXPECT_EQ(current.device(), wifi);
    EXPECT_EQ(order, (QStringList{u"window"_s, u"key"_s}));
}

TEST_F(OverviewControllerTest, RandomizesWithTheChoiceOfTheInterface)
{
    set(wifi, [](DeviceRecord &record) { record.vendor = vendorName; });
    open().randomize(0);
    scheduler.runPending();
    EXPECT_TRUE(host.addressOf(wifi).startsWith("00:00:40:"_L1))
        << qPrintable(host.addressOf(wifi));
    EXPECT_EQ(host.addressOf(wired), wiredRow().row.currentAddress);
}

TEST_F(OverviewControllerTest, RestoresTheHardwareAddressInLowerCase)
{
    ASSERT_TRUE(host.giveAddress(wired, u"02:00:00:00:00:01"_s));
    devices.updateNetWorkInterfaces();
    set(wired, [](DeviceRecord &record) { record.hardware = record.hardware->toUpper(); });
    open().restoreHardwareAddress(1);
    scheduler.runPending();
    ASSERT_EQ(machine.helper.changes().size(), 1);
    EXPECT_EQ(machine.helper.changes().first().address, wiredRow().row.hardwareAddress.toLower());
    EXPECT_EQ(host.addressOf(wired), wiredRow().row.hardwareAddress.toLower());
}

TEST_F(OverviewControllerTest, RestoresAnAddressThatItDoesNotShowYet)
{
    OverviewController &controller = open();
    EXPECT_FALSE(wiredRow().restore.isEnabled);
    controller.restoreHardwareAddress(1);
    scheduler.runPending();
    EXPECT_TRUE(machine.helper.changes().isEmpty());
    controller.randomize(1);
    scheduler.runPending();
    EXPECT_TRUE(wiredRow().restore.isEnabled);
    controller.restoreHardwareAddress(1);
    scheduler.runPending();
    EXPECT_EQ(host.addressOf(wired), wiredRow().row.hardwareAddress);
    EXPECT_FALSE(controller.state().hasNewAddresses);
}

TEST_F(OverviewControllerTest, ChangesNothingTwiceAtOnce)
{
    OverviewController &controller = open();
    const auto begun = count(changer, &AddressChanger::changeBegan);
    machine.helper.mood = FakeHelper::Mood::Hanging;
    controller.randomize(1);
    EXPECT_TRUE(wiredRow().randomize.isBusy) << "from the press on";
    EXPECT_FALSE(wiredRow().restore.isEnabled);
    controller.randomize(1);
    controller.restoreHardwareAddress(1);
    scheduler.runPending();
    EXPECT_EQ(*begun, 1);
    EXPECT_TRUE(wifiRow().randomize.isEnabled) << "the others can be changed";
}

TEST_F(OverviewControllerTest, LeadsToTheRules)
{
    QList<Destination> chosen;
    QObject::connect(&presence, &Presence::destinationChosen,
        [&](Destination destination) { chosen << destination; });
    presence.offer(Destination::Rules);
    open().editRules(0);
    EXPECT_EQ(chosen, QList<Destination>{Destination::Rules});
}

TEST_F(OverviewControllerTest, PausesAndResumesTheCountdownOfTheRow)
{
    startCountdown(wired);
    scheduler.advance(std::chrono::seconds(3));
    OverviewController &controller = open();
    EXPECT_EQ(wiredRow().timerLabel, u"...changing MAC Address in 00:01:57"_s) << "at once";
    controller.pauseTimer(1);
    EXPECT_FALSE(wiredRow().pauseEnabled);
    EXPECT_FALSE(wiredRow().resumeEnabled) << "until the next tick";
    scheduler.advance(std::chrono::seconds(5));
    EXPECT_EQ(wiredRow().timerLabel, u"...changing MAC Address in 00:01:57 (paused)"_s);
    EXPECT_TRUE(wiredRow().resumeEnabled);
    controller.resumeTimer(1);
    EXPECT_FALSE(wiredRow().resumeEnabled);
    scheduler.advance(std::chrono::seconds(2));
    EXPECT_EQ(wiredRow().timerLabel, u"...changing MAC Address in 00:01:56"_s);
    EXPECT_TRUE(wiredRow().pauseEnabled);
    EXPECT_EQ(wifiRow().timerLabel, QString());
}

TEST_F(OverviewControllerTest, DoesNothingForARowThatThereIsNot)
{
    OverviewController &controller = open();
    const auto before = rows();
    for (const int row : {-1, 2, 1000}) {
        EXPECT_EQ(controller.cell(row), nullptr);
        controller.changeInterface(row);
        controller.randomize(row);
        controller.restoreHardwareAddress(row);
        controller.editRules(row);
        controller.pauseTimer(row);
        controller.resumeTimer(row);
    }
    scheduler.runPending();
    EXPECT_EQ(rows(), before);
    EXPECT_TRUE(machine.helper.changes().isEmpty());
    EXPECT_EQ(current.device(), wired);
}

TEST_F(OverviewControllerTest, DoesNothingWrongWithAnInterfaceThatHasGone)
{
    OverviewController &controller = open();
    host.unplug(wired);
    devices.updateNetWorkInterfaces();
    overview.look();
    EXPECT_EQ(wiredRow().linkText, u"Not there"_s);
    EXPECT_EQ(wiredRow().randomize.hint, u"The interface is not there"_s);
    controller.randomize(1);
    controller.restoreHardwareAddress(1);
    controller.changeInterface(1);
    scheduler.runPending();
    EXPECT_TRUE(machine.helper.changes().isEmpty());
    EXPECT_EQ(rows().size(), 2);
}

TEST_F(OverviewControllerTest, KeepsItsRowsWhenSomebodyElseEmptiesTheTable)
{
    OverviewController &controller = open();
    settings.set(keys::deviceDict, QVariantMap());
    settings.set(keys::currentWiFiDict, u"no dictionary"_s);
    overview.look();
    postVendorUpdated({{record::device, wired}, {u"newVendor"_s, vendorName}});
    tellOverview(wired, {{u"hasRule"_s, 1}});
    EXPECT_EQ(wiredRow().row.vendor, u"Random Address"_s) << "it has no place any more";
    EXPECT_EQ(wiredRow().rules.image, u"NSStatusAvailable"_s);
    controller.randomize(1);
    EXPECT_TRUE(wiredRow().randomize.isBusy);
    scheduler.runPending();
    EXPECT_FALSE(wiredRow().randomize.isBusy);
    EXPECT_NE(host.addressOf(wired), wiredRow().row.currentAddress);
    EXPECT_EQ(rows().size(), 2);
}

TEST_F(OverviewControllerTest, FollowsTheHelper)
{
    machine.helper.installed = false;
    readHelperStatus();
    OverviewController &controller = open();
    EXPECT_FALSE(wiredRow().row.helperInstalled);
    EXPECT_FALSE(wifiRow().row.helperInstalled);
    EXPECT_EQ(wiredRow().randomize.hint, u"The helper tool is not installed"_s);
    controller.randomize(1);
    scheduler.runPending();
    EXPECT_TRUE(machine.helper.changes().isEmpty());
    overview.setHelperInstalled(true);
    EXPECT_TRUE(wiredRow().randomize.isEnabled);
}

} // namespace
} // namespace quillon::test
