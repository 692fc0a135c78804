// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "devices/CurrentInterface.h"

#include "DeviceFixture.h"

#include <memory>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class CurrentInterfaceSelection : public DeviceFixture
{
protected:
    CurrentInterfaceSelection()
    {
        table.updateNetWorkInterfaces();
        QObject::connect(&current, &CurrentInterface::interfaceSelected,
            [this](const QString &device) { heard << u"selected "_s + device; });
        QObject::connect(&current, &CurrentInterface::rebuildStarted, [this] {
            onMainThread = onMainThread && scheduler.isMainThread();
            heard << u"rebuild"_s;
        });
        QObject::connect(&current, &CurrentInterface::currentInterfaceUpdated,
            [this](const QString &device, const QString &address) {
                onMainThread = onMainThread && scheduler.isMainThread();
                heard << u"updated %1 %2"_s.arg(device, address);
            });
        QObject::connect(&current, &CurrentInterface::hexValuesUpdated, [this] {
            onMainThread = onMainThread && scheduler.isMainThread();
            heard << u"hex values"_s;
        });
        settings.clearJournal();
        host.clearJournal();
    }

    const QString en0 = u"en0"_s;
    const QString en1 = u"en1"_s;
    CurrentInterface current{settings, scheduler, table};
    QStringList heard;
    bool onMainThread = true;
};

TEST_F(CurrentInterfaceSelection, IsNoneAtFirst)
{
    EXPECT_EQ(current.device(), QString());
    EXPECT_TRUE(storedSelection().isEmpty());
}

TEST_F(CurrentInterfaceSelection, IsACopyOfTheRecordWithItsNameAndTheAddressInDisplayCase)
{
    storeRecord(
        en1, {{record::current, u"aa:bb:cc:dd:ee:ff"_s}, {record::hardware, u"aa:bb:cc:00:00:01"_s},
                 {record::vendor, u"Maker (A1B2C3)"_s}});
    current.updateCurrentInterfaceDict(en1);
    scheduler.runPending();
    const QVariantMap expected = {
        {record::current, u"AA:BB:CC:DD:EE:FF"_s},
        {record::hardware, u"aa:bb:cc:00:00:01"_s},
        {record::vendor, u"Maker (A1B2C3)"_s},
        {record::device, en1},
    };
    EXPECT_EQ(storedSelection(), expected);
    EXPECT_EQ(current.device(), en1);
    EXPECT_EQ(recorded(en1, record::current), "aa:bb:cc:dd:ee:ff"_L1);
}

TEST_F(CurrentInterfaceSelection, IsStoredAndFlushedBeforeAnybodyHears)
{
    bool flushedBefore = false;
    QObject::connect(&current, &CurrentInterface::currentInterfaceUpdated, [&] {
        flushedBefore =
            settings.journal() == QStringList{u"set currentInterfaceDict"_s, u"synchronize"_s};
    });
    current.updateCurrentInterfaceDict(en1);
    scheduler.runPending();
    EXPECT_TRUE(flushedBefore);
    EXPECT_EQ(heard, (QStringList{u"rebuild"_s, u"updated en1 02:16:3E:44:55:66"_s}));
}

TEST_F(CurrentInterfaceSelection, IsRebuiltInALaterTurnOnTheMainThreadWhoeverAsks)
{
    scheduler.asBackground([this] { current.updateCurrentInterfaceDict(en1); });
    EXPECT_TRUE(heard.isEmpty());
    EXPECT_EQ(current.device(), QString());
    scheduler.runPending();
    EXPECT_EQ(current.device(), en1);
    EXPECT_TRUE(onMainThread);
}

TEST_F(CurrentInterfaceSelection, OfADeviceWithoutAddressLeavesThePreviousOneInForce)
{
    select(en0);
    const QVariantMap before = storedSelection();
    host.at(en1).broken = true;
    current.updateInterface(en1);
    scheduler.runPending();
    EXPECT_EQ(storedSelection(), before);
    EXPECT_EQ(heard, (QStringList{u"selected en1"_s, u"rebuild"_s}));
}

TEST_F(CurrentInterfaceSelection, OfADeviceWithMalformedAddressLeavesThePreviousOneInForce)
{
    select(en0);
    const QVariantMap before = storedSelection();
    storeRecord(en1, {{record::current, u"02:16:3e:44:55:66 "_s}});
    settings.clearJournal();
    current.updateCurrentInterfaceDict(en1);
    scheduler.runPending();
    EXPECT_EQ(storedSelection(), before);
    EXPECT_TRUE(settings.journal().isEmpty());
    EXPECT_EQ(heard, QStringList{u"rebuild"_s});
}

TEST_F(CurrentInterfaceSelection, OfAnUnknownDeviceLeavesThePreviousOneInForce)
{
    select(en0);
    current.updateInterface(u"en9"_s);
    scheduler.runPending();
    EXPECT_EQ(current.device(), en0);
}

TEST_F(CurrentInterfaceSelection, ReadsThePortsThenRebuildsThenSaysSo)
{
    host.giveAddress(en1, u"02:00:00:00:00:01"_s);
    current.updateInterface(en1);
    EXPECT_EQ(host.journal(), QStringList{u"ports"_s});
    EXPECT_EQ(heard, QStringList{u"selected en1"_s});
    scheduler.runPending();
    EXPECT_EQ(
        heard, (QStringList{u"selected en1"_s, u"rebuild"_s, u"updated en1 02:00:00:00:00:01"_s}));
}

TEST_F(CurrentInterfaceSelection, OfAnEmptyNameDoesNothing)
{
    current.updateInterface(QString());
    current.changeInterfacefromPopup(QString());
    scheduler.runPending();
    EXPECT_TRUE(heard.isEmpty());
    EXPECT_TRUE(host.journal().isEmpty());
}

TEST_F(CurrentInterfaceSelection, FromAMenuIsTheLastPieceOfTheTitle)
{
    current.changeInterface(u"Wi-Fi \u00B7 en1"_s);
    scheduler.runPending();
    EXPECT_EQ(current.device(), en1);
    current.changeInterface(u"a \u00B7 b \u00B7 en0"_s);
    scheduler.runPending();
    EXPECT_EQ(current.device(), en0);
    current.changeInterface(en1);
    scheduler.runPending();
    EXPECT_EQ(current.device(), en1);
}

TEST_F(CurrentInterfaceSelection, FromAMenuOfADeviceThatIsNotInTheTableChangesNothing)
{
    select(en0);
    heard.clear();
    current.changeInterface(u"Ethernet \u00B7 en9"_s);
    current.changeInterface(QString());
    scheduler.runPending();
    EXPECT_TRUE(heard.isEmpty()) << heard.join(u'\n').toStdString();
    EXPECT_EQ(current.device(), en0);
}

TEST_F(CurrentInterfaceSelection, FromAMenuSplitsAtTheBlanksToo)
{
    select(en0);
    current.changeInterface(u"Wi-Fi\u00B7en1"_s);
    scheduler.runPending();
    EXPECT_EQ(current.device(), en0);
}

TEST_F(CurrentInterfaceSelection, FromThePopupIsTheTitle)
{
    current.changeInterfacefromPopup(en1);
    scheduler.runPending();
    EXPECT_EQ(current.device(), en1);
}

TEST_F(CurrentInterfaceSelection, OfTheFirstStartIsTheWifiDeviceAtOnce)
{
    current.selectInitialDevice();
    EXPECT_EQ(current.device(), en1);
    EXPECT_EQ(heard, (QStringList{u"rebuild"_s, u"updated en1 02:16:3E:44:55:66"_s}));
}

TEST_F(CurrentInterfaceSelection, OfTheFirstStartWithoutWifiIsTheFirstDevice)
{
    QVariantMap devices = storedTable();
    devices.remove(en1);
    store(devices);
    current.selectInitialDevice();
    EXPECT_EQ(current.device(), en0);
}

TEST_F(CurrentInterfaceSelection, OfTheFirstStartWithoutDevicesIsNone)
{
    store({});
    current.selectInitialDevice();
    EXPECT_EQ(current.device(), QString());
    EXPECT_TRUE(heard.isEmpty());
}

TEST_F(CurrentInterfaceSelection, OfTheFirstStartIsTheNextDeviceWhereTheFirstHasNoAddress)
{
    host.at(en1).broken = true;
    table.updateNetWorkInterfaces();
    current.selectInitialDevice();
    EXPECT_EQ(current.device(), en0);
    EXPECT_EQ(heard, (QStringList{u"rebuild"_s, u"updated en0 00:16:3E:11:22:33"_s}));
}

TEST_F(CurrentInterfaceSelection, OfTheFirstStartIsRatherADeviceThatIsThere)
{
    host.unplug(en1);
    table.updateNetWorkInterfaces();
    current.selectInitialDevice();
    EXPECT_EQ(current.device(), en0);
}

TEST_F(CurrentInterfaceSelection, OfTheFirstStartIsADeviceOfThePastWhereNoneIsThere)
{
    for (const QString &device : {en0, en1, u"bridge0"_s}) {
        host.unplug(device);
    }
    table.updateNetWorkInterfaces();
    current.selectInitialDevice();
    EXPECT_EQ(current.device(), en1);
}

TEST_F(CurrentInterfaceSelection, IsMadeOnceADeviceCanBeSelectedAndSaidThen)
{
    const QVariantMap all = storedTable();
    store({});
    current.selectAnyIfNone();
    EXPECT_TRUE(heard.isEmpty());
    host.at(en1).broken = true;
    store({{en1, QVariantMap{{record::current, QString()}}}});
    current.selectAnyIfNone();
    EXPECT_TRUE(heard.isEmpty());
    store(all);
    current.selectAnyIfNone();
    EXPECT_EQ(current.device(), en1);
    EXPECT_EQ(
        heard, (QStringList{u"rebuild"_s, u"updated en1 02:16:3E:44:55:66"_s, u"selected en1"_s}));
}

TEST_F(CurrentInterfaceSelection, ThatWasMadeIsLeftAlone)
{
    select(en0);
    const QVariantMap before = storedSelection();
    host.unplug(en0);
    table.updateNetWorkInterfaces();
    current.selectAnyIfNone();
    EXPECT_EQ(storedSelection(), before);
    EXPECT_TRUE(heard.isEmpty());
}

TEST_F(CurrentInterfaceSelection, OfADeviceThatVanishedStays)
{
    const QVariantMap stored = {
        {record::device, u"en8"_s}, {record::current, u"02:00:00:00:00:08"_s}};
    QVariantMap devices = storedTable();
    devices[u"en8"_s] = QVariantMap{{record::current, u"02:00:00:00:00:08"_s}};
    store(devices);
    settings.set(keys::currentInterfaceDict, stored);
    current.selectInitialDevice();
    scheduler.runPending();
    EXPECT_EQ(storedSelection(), stored);
    EXPECT_TRUE(heard.isEmpty());
}

TEST_F(CurrentInterfaceSelection, OfADeviceThatTheTableDoesNotKnowCountsAsNone)
{
    const auto selectUnknown = [this] {
        settings.set(keys::currentInterfaceDict,
            QVariantMap{{record::device, u"ghost0"_s}, {record::current, u"02:00:00:00:00:08"_s}});
    };
    selectUnknown();
    current.selectInitialDevice();
    EXPECT_EQ(current.device(), en1);
    selectUnknown();
    heard.clear();
    current.selectAnyIfNone();
    EXPECT_EQ(current.device(), en1);
    EXPECT_TRUE(heard.contains(u"selected en1"_s));
    store({});
    selectUnknown();
    heard.clear();
    current.selectAnyIfNone();
    EXPECT_TRUE(heard.isEmpty()) << "there is nothing to select in its place";
}

TEST_F(CurrentInterfaceSelection, SurvivesItsOwnEndWithWorkAhead)
{
    auto brief = std::make_unique<CurrentInterface>(settings, scheduler, table);
    brief->updateCurrentInterfaceDict(en1);
    brief->updateHexValues();
    settings.clearJournal();
    brief.reset();
    scheduler.runPending();
    EXPECT_TRUE(settings.journal().isEmpty());
}

class CurrentInterfaceHexValues : public CurrentInterfaceSelection
{
protected:
    CurrentInterfaceHexValues()
    {
        select(en1);
        settings.clearJournal();
    }
};

TEST_F(CurrentInterfaceHexValues, StopAtAnEmptyTable)
{
    store({});
    settings.clearJournal();
    current.updateHexValues();
    scheduler.runPending();
    EXPECT_TRUE(heard.isEmpty());
    EXPECT_TRUE(settings.journal().isEmpty());
}

TEST_F(CurrentInterfaceHexValues, WriteTheTableRebuildTheSelectionThenRefillTheField)
{
    current.updateHexValues();
    EXPECT_EQ(settings.journal(), (QStringList{u"set deviceDict"_s, u"synchronize"_s}));
    EXPECT_TRUE(heard.isEmpty());
    scheduler.runPending();
    EXPECT_EQ(
        heard, (QStringList{u"rebuild"_s, u"updated en1 02:16:3E:44:55:66"_s, u"hex values"_s}));
}

TEST_F(CurrentInterfaceHexValues, GiveARecordThatLostItsAddressTheFactoryAddress)
{
    storeRecord(en1, {{record::hardware, u"00:16:3e:44:55:66"_s}});
    current.updateHexValues();
    EXPECT_EQ(recorded(en1, record::current), "00:16:3e:44:55:66"_L1);
    EXPECT_EQ(recorded(en1, record::hardware), "00:16:3e:44:55:66"_L1);
    scheduler.runPending();
    EXPECT_EQ(storedSelection().value(record::current).toString(), "00:16:3E:44:55:66"_L1);
}

TEST_F(CurrentInterfaceHexValues, LeaveAnEmptyOrMalformedAddressAlone)
{
    for (const char *address : {"", "malformed"}) {
        const QVariantMap record = {{record::hardware, u"00:16:3e:44:55:66"_s},
            {record::current, QString::fromUtf8(address)}};
        storeRecord(en1, record);
        heard.clear();
        settings.clearJournal();
        current.updateHexValues();
        scheduler.runPending();
        EXPECT_EQ(storedRecord(en1), record);
        EXPECT_TRUE(settings.journal().isEmpty());
        EXPECT_EQ(heard, (QStringList{u"rebuild"_s, u"hex values"_s}));
    }
}

TEST_F(CurrentInterfaceHexValues, OfADeviceThatIsNotInTheTableStillRefillTheField)
{
    settings.set(keys::currentInterfaceDict, QVariantMap{{record::device, u"en8"_s}});
    const QVariantMap before = storedTable();
    current.updateHexValues();
    scheduler.runPending();
    EXPECT_EQ(storedTable(), before);
    EXPECT_EQ(heard, (QStringList{u"rebuild"_s, u"hex values"_s}));
}

TEST_F(CurrentInterfaceHexValues, FollowTheDisplayCase)
{
    settings.setBool(keys::lowerCaseHEX, true);
    current.updateHexValues();
    scheduler.runPending();
    EXPECT_EQ(heard.value(1), "updated en1 02:16:3e:44:55:66"_L1);
}

TEST_F(CurrentInterfaceHexValues, SpeakOnTheMainThreadOnly)
{
    scheduler.asBackground([this] { current.updateHexValues(); });
    scheduler.runPending();
    EXPECT_EQ(heard.size(), 3);
    EXPECT_TRUE(onMainThread);
}

} // namespace
} // namespace quillon::test
