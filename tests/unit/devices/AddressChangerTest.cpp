// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "AddressChangeFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

using AddressChangerTest = AddressChangeFixture;

TEST_F(AddressChangerTest, ReachesTheMachineTheTableTheUserAndEverybodyElseInOrder)
{
    change(en1, wanted);
    EXPECT_EQ(host.addressOf(en1), "02:aa:bb:cc:dd:01"_L1);
    EXPECT_EQ(recorded(en1, record::current), "02:aa:bb:cc:dd:01"_L1);
    EXPECT_EQ(storedSelection().value(record::current).toString(), wanted);
    EXPECT_EQ(notifier.messages(),
        told("Wi-Fi Address Changed", "Your new MAC Address is: 02:aa:bb:cc:dd:01"));
    EXPECT_EQ(order, (QStringList{u"history en1 02:AA:BB:CC:DD:01"_s, u"posted en1"_s,
                         u"updated en1"_s, u"updated en1"_s, u"hex values"_s}));
    EXPECT_EQ(messagesBeforeHistory, 1);
}

TEST_F(AddressChangerTest, HandsTheHelperDeviceAddressAndWhetherItIsWifi)
{
    change(en1, wanted);
    change(en0, wanted);
    ASSERT_EQ(helper.changes().size(), 2);
    EXPECT_EQ(helper.changes().at(0).device, en1);
    EXPECT_EQ(helper.changes().at(0).address, wanted) << "as it was requested";
    EXPECT_TRUE(helper.changes().at(0).deviceIsWiFi);
    EXPECT_EQ(helper.changes().at(1).device, en0);
    EXPECT_FALSE(helper.changes().at(1).deviceIsWiFi);
}

TEST_F(AddressChangerTest, ReturnsAtOnceAndTestsOnTheQueue)
{
    changer->updateMacAddressWithAddress(en1, wanted);
    EXPECT_TRUE(helper.journal().isEmpty());
    EXPECT_EQ(host.addressOf(en1), "02:16:3e:44:55:66"_L1);
}

TEST_F(AddressChangerTest, IsFinishedOnTheThreadOfTheReply)
{
    change(en1, wanted);
    EXPECT_FALSE(historyOnMainThread);
}

TEST_F(AddressChangerTest, ToTheAddressInUseIsRefusedWithoutAskingTheHelper)
{
    change(en1, u"02:16:3e:44:55:66"_s);
    EXPECT_EQ(notifier.messages(),
        told("Wi-Fi Address was not Changed", "The new Address and the old Address are identical"));
    EXPECT_TRUE(helper.journal().isEmpty());
    EXPECT_TRUE(settings.journal().isEmpty());
    EXPECT_TRUE(order.isEmpty());
}

TEST_F(AddressChangerTest, ToTheAddressInUseInOtherLettersIsSentToTheHelper)
{
    change(en1, u"02:16:3E:44:55:66"_s);
    EXPECT_EQ(helper.changes().size(), 1);
    EXPECT_EQ(notifier.messages(),
        told("Wi-Fi Address was not Changed", "Please make sure your Device is enabled"));
}

TEST_F(AddressChangerTest, OfAnEmptyDeviceIsThatOfTheCurrentInterface)
{
    change(QString(), wanted);
    EXPECT_EQ(host.addressOf(en1), "02:aa:bb:cc:dd:01"_L1);
    EXPECT_EQ(storedSelection().value(record::current).toString(), wanted);
}

TEST_F(AddressChangerTest, OfAnotherDeviceLeavesTheSelectionButRefillsTheField)
{
    const QVariantMap before = storedSelection();
    change(en0, wanted);
    EXPECT_EQ(recorded(en0, record::current), "02:aa:bb:cc:dd:01"_L1);
    EXPECT_EQ(notifier.messages().value(0).title, "Ethernet Address Changed"_L1);
    EXPECT_EQ(current.device(), en1);
    QVariantMap after = storedSelection();
    EXPECT_EQ(after.value(record::current).toString().toLower(), before.value(record::current));
    EXPECT_EQ(order, (QStringList{u"history en0 02:AA:BB:CC:DD:01"_s, u"posted en0"_s,
                         u"updated en1"_s, u"hex values"_s}));
}

TEST_F(AddressChangerTest, ThatTheHelperRefusesSaysSo)
{
    helper.mood = FakeHelper::Mood::Refusing;
    change(en1, wanted);
    EXPECT_EQ(notifier.messages(), told("Wi-Fi Address was not Changed",
                                       "Please make sure you have installed the HelperTool"));
    EXPECT_EQ(order, (QStringList{u"updated en1"_s, u"updated en1"_s, u"hex values"_s}));
}

TEST_F(AddressChangerTest, WithoutHelperSaysSo)
{
    helper.installed = false;
    change(en1, wanted);
    EXPECT_EQ(notifier.messages(), told("Wi-Fi Address was not Changed",
                                       "Please make sure you have installed the HelperTool"));
}

TEST_F(AddressChangerTest, ThatDidNotTakeAsksForTheDeviceToBeEnabled)
{
    host.at(en1).keepsAddress = true;
    change(en1, wanted);
    EXPECT_EQ(notifier.messages(),
        told("Wi-Fi Address was not Changed", "Please make sure your Device is enabled"));
    EXPECT_FALSE(order.contains(u"posted en1"_s));
}

TEST_F(AddressChangerTest, OfAnInterfaceThatVanishedEndsInSilence)
{
    const QVariantMap before = storedTable();
    host.unplug(en1);
    change(en1, wanted);
    EXPECT_TRUE(notifier.messages().isEmpty());
    EXPECT_EQ(storedTable(), before);
    EXPECT_TRUE(settings.journal().isEmpty());
    EXPECT_TRUE(order.isEmpty());
}

TEST_F(AddressChangerTest, KeepsWhatWasReadBackAlsoAfterAFailure)
{
    helper.mood = FakeHelper::Mood::Refusing;
    host.giveAddress(en1, u"02:00:00:00:00:99"_s);
    host.at(en1).ipv4 = QStringList{u"203.0.113.5"_s};
    host.at(en1).active = false;
    change(en1, wanted);
    EXPECT_EQ(recorded(en1, record::current), "02:00:00:00:00:99"_L1);
    EXPECT_EQ(recorded(en1, record::ipAddress), "203.0.113.5"_L1);
    EXPECT_EQ(recorded(en1, record::status), "inactive"_L1);
    EXPECT_EQ(recorded(en1, record::hardware), "00:16:3e:44:55:66"_L1);
}

TEST_F(AddressChangerTest, WritesTheTableAndFlushesIt)
{
    change(en0, wanted);
    EXPECT_EQ(settings.journal().mid(0, 2), (QStringList{u"set deviceDict"_s, u"synchronize"_s}));
}

TEST_F(AddressChangerTest, KeepsWhatOthersWroteWhileTheHelperWorked)
{
    helper.mood = FakeHelper::Mood::Hanging;
    change(en1, wanted);
    QVariantMap record = storedRecord(en0);
    record[record::vendor] = u"Maker (A1B2C3)"_s;
    storeRecord(en0, record);
    helper.timeOut();
    scheduler.runPending();
    EXPECT_EQ(recorded(en0, record::vendor), "Maker (A1B2C3)"_L1);
}

TEST_F(AddressChangerTest, OfAnUnknownDeviceDoesNoHarm)
{
    change(u"en9"_s, wanted);
    EXPECT_TRUE(notifier.messages().isEmpty());
    host.plug({.port = u"Ethernet"_s,
        .device = u"en8"_s,
        .factory = {},
        .address = u"02:00:00:00:00:08"_s,
        .ipv4 = {}});
    change(u"en8"_s, wanted);
    EXPECT_EQ(notifier.messages(),
        told(" Address Changed", "Your new MAC Address is: 02:aa:bb:cc:dd:01"));
}

TEST_F(AddressChangerTest, WithoutAnySelectionDoesNoHarm)
{
    settings.set(keys::currentInterfaceDict, QVariant());
    change(QString(), QString());
    EXPECT_TRUE(notifier.messages().isEmpty());
}

TEST_F(AddressChangerTest, ToAnEmptyAddressIsReportedInItsOwnWords)
{
    host.at(en1).keepsAddress = true;
    helper.mood = FakeHelper::Mood::Refusing;
    change(en1, QString());
    EXPECT_EQ(notifier.messages(), told("Wi-Fi Address was not Changed",
                                       "Please make sure you have installed the HelperTool"));
}

TEST_F(AddressChangerTest, IsTakenInTheOrderOfTheRequests)
{
    changer->updateMacAddressWithAddress(en1, u"02:00:00:00:00:01"_s);
    changer->updateMacAddressWithAddress(en0, u"02:00:00:00:00:02"_s);
    changer->updateMacAddressWithAddress(en1, u"02:00:00:00:00:03"_s);
    scheduler.runPending();
    QStringList asked;
    for (const FakeHelper::Change &each : helper.changes()) {
        asked << each.address.right(2);
    }
    EXPECT_EQ(asked, (QStringList{u"01"_s, u"02"_s, u"03"_s}));
}

TEST_F(AddressChangerTest, MayStartBeforeTheReplyToThePreviousOneCame)
{
    helper.mood = FakeHelper::Mood::Hanging;
    change(en1, wanted);
    EXPECT_TRUE(notifier.messages().isEmpty());
    helper.mood = FakeHelper::Mood::Obliging;
    change(en0, wanted);
    EXPECT_EQ(notifier.messages().value(0).title, "Ethernet Address Changed"_L1);
    helper.timeOut();
    scheduler.runPending();
    EXPECT_EQ(notifier.messages().value(1).title, "Wi-Fi Address was not Changed"_L1);
}

TEST_F(AddressChangerTest, IsToldOnceWhenAPeerAnswersTwice)
{
    helper.answersTwice = true;
    change(en1, wanted);
    EXPECT_EQ(notifier.messages().size(), 1);
    EXPECT_EQ(helper.changes().size(), 1);
}

TEST_F(AddressChangerTest, OutlivedByItsReplyDoesNoHarm)
{
    helper.mood = FakeHelper::Mood::Hanging;
    change(en1, wanted);
    changer.reset();
    helper.timeOut();
    settings.clearJournal();
    scheduler.runPending();
    EXPECT_TRUE(notifier.messages().isEmpty());
    EXPECT_TRUE(settings.journal().isEmpty());
}

TEST_F(AddressChangerTest, IsDroppedWhenTheProgramEndsBeforeTheQueueRan)
{
    changer->updateMacAddressWithAddress(en1, wanted);
    changer.reset();
    scheduler.runPending();
    EXPECT_TRUE(helper.journal().isEmpty());
}

TEST_F(AddressChangerTest, TellsWhenItBeginsAndWhenItHasEndedHoweverItWent)
{
    QStringList course;
    QObject::connect(changer.get(), &AddressChanger::changeBegan, [&](const QString &device) {
        course << u"began "_s + device;
        EXPECT_TRUE(scheduler.isMainThread());
        EXPECT_TRUE(helper.changes().isEmpty());
    });
    QObject::connect(changer.get(), &AddressChanger::changeEnded,
        [&](const QString &device) { course << u"ended "_s + device; });
    change(QString(), wanted);
    EXPECT_EQ(course, (QStringList{u"began en1"_s, u"ended en1"_s}));
    EXPECT_EQ(recorded(en1, record::current), wanted.toLower());
}

TEST_F(AddressChangerTest, ThatFailsHasEndedToo)
{
    int began = 0;
    int ended = 0;
    QObject::connect(changer.get(), &AddressChanger::changeBegan, [&] { ++began; });
    QObject::connect(changer.get(), &AddressChanger::changeEnded, [&] { ++ended; });
    helper.mood = FakeHelper::Mood::Refusing;
    change(en1, wanted);
    helper.mood = FakeHelper::Mood::Dropping;
    change(en1, wanted);
    helper.mood = FakeHelper::Mood::Obliging;
    helper.installed = false;
    change(en1, wanted);
    host.unplug(en1);
    change(en1, wanted);
    EXPECT_EQ(began, 4);
    EXPECT_EQ(ended, 4);
}

TEST_F(AddressChangerTest, ToTheAddressInUseNeverBegins)
{
    int news = 0;
    QObject::connect(changer.get(), &AddressChanger::changeBegan, [&] { ++news; });
    QObject::connect(changer.get(), &AddressChanger::changeEnded, [&] { ++news; });
    change(en1, u"02:16:3e:44:55:66"_s);
    EXPECT_EQ(news, 0);
}

/// A user who switched notifications off: the notifier says nothing.
TEST_F(AddressChangerTest, WithoutVisibleMessageStillRecordsHistoryAndAnnouncesIt)
{
    class Silent : public FakeNotifier
    {
        void sendNotificationWithBody(const QString &, const QString &) override {}
    } silent;
    AddressChanger quiet(
        {settings, scheduler, notifications, silent, xpc, owners, table, current, randomAddress});
    QStringList history;
    QObject::connect(&quiet, &AddressChanger::addressChanged,
        [&history](const QString &device) { history << device; });
    quiet.updateMacAddressWithAddress(en1, wanted);
    scheduler.runPending();
    EXPECT_EQ(history, QStringList{en1});
    EXPECT_TRUE(order.contains(u"posted en1"_s));
}

TEST_F(AddressChangerTest, ThatIsReadBackInOtherLettersIsAnother)
{
    QVariantMap stored = storedRecord(en1);
    stored[record::current] = u"02:16:3E:44:55:66"_s;
    storeRecord(en1, stored);
    host.at(en1).keepsAddress = true;
    change(en1, wanted);
    EXPECT_EQ(notifier.messages(),
        told("Wi-Fi Address Changed", "Your new MAC Address is: 02:16:3e:44:55:66"));
}

} // namespace
} // namespace quillon::test
