// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/SettingsMirror.h"

#include "RecordMirrorFixture.h"
#include "fakes/LogCapture.h"

#include <QSize>

#include <SQLiteCpp/Database.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

struct SettingsOfComputer : MirroringComputer
{
    SettingsOfComputer(const AccountKey &key, quint64 seed)
        : MirroringComputer(key, seed)
    {
        cloud.observe([this](const QStringList &keys) { changed << keys; });
    }
    QVariant value(const QString &key) const { return cloud.dictionaryRepresentation().value(key); }

    SettingsMirror cloud{mirror, scheduler};
    QStringList changed;
};

QVariantMap network(const QString &ssid)
{
    return {{u"SSID"_s, ssid}, {u"Name"_s, ssid}};
}

class SettingsMirrorTest : public ::testing::Test
{
protected:
    void launchBoth()
    {
        a.launch();
        b.launch();
    }

    SeededRandom random{7};
    const AccountKey key = AccountKey::random(random).value();
    SettingsOfComputer a{key, 11};
    SettingsOfComputer b{key, 12};
};

TEST_F(SettingsMirrorTest, WhatIsSetHereIsToldThere)
{
    launchBoth();
    a.cloud.set(u"timerMinutes"_s, 7);
    a.cloud.set(u"hideDock"_s, true);
    a.cloud.set(u"showKeyCombo"_s, QVariantMap{{u"keyCode"_s, 12}, {u"modifiers"_s, 3}});
    a.send({&b});
    EXPECT_EQ(b.cloud.dictionaryRepresentation(), a.cloud.dictionaryRepresentation());
    EXPECT_EQ(b.value(u"timerMinutes"_s), QVariant(qlonglong{7}));
    b.changed.sort();
    EXPECT_EQ(b.changed, QStringList({u"hideDock"_s, u"showKeyCombo"_s, u"timerMinutes"_s}));
    EXPECT_EQ(a.changed, QStringList()) << "its own";
    EXPECT_FALSE(b.replica.hasUnsent());
}

TEST_F(SettingsMirrorTest, TheSameOnceMoreIsNothingToSend)
{
    launchBoth();
    a.cloud.set(u"timerMinutes"_s, 7);
    a.send({&b});
    b.cloud.set(u"timerMinutes"_s, 7);
    a.cloud.set(u"timerMinutes"_s, 7);
    EXPECT_FALSE(a.replica.hasUnsent());
    EXPECT_FALSE(b.replica.hasUnsent());
}

TEST_F(SettingsMirrorTest, ARemovedKeyIsNotThere)
{
    launchBoth();
    a.cloud.set(u"timerMinutes"_s, 7);
    a.send({&b});
    a.cloud.set(u"timerMinutes"_s, {});
    a.send({&b});
    EXPECT_EQ(b.cloud.dictionaryRepresentation(), QVariantMap());
}

TEST_F(SettingsMirrorTest, TwoComputersAddANetworkEachAndBothHaveBoth)
{
    launchBoth();
    a.cloud.set(u"savedNetworks"_s, QVariantMap{{u"aa"_s, network(u"A"_s)}});
    b.cloud.set(u"savedNetworks"_s, QVariantMap{{u"bb"_s, network(u"B"_s)}, {QString(), u"odd"_s}});
    a.send({&b});
    b.send({&a});
    const QVariantMap both{
        {u"aa"_s, network(u"A"_s)}, {u"bb"_s, network(u"B"_s)}, {QString(), u"odd"_s}};
    EXPECT_EQ(a.value(u"savedNetworks"_s), QVariant(both));
    EXPECT_EQ(b.value(u"savedNetworks"_s), QVariant(both));
}

TEST_F(SettingsMirrorTest, OneChangesAnEntryWhileTheOtherDeletesAnother)
{
    launchBoth();
    a.cloud.set(u"savedAddresses"_s, QVariantMap{{u"x"_s, 1}, {u"y"_s, 1}});
    a.send({&b});
    a.cloud.set(u"savedAddresses"_s, QVariantMap{{u"x"_s, 2}, {u"y"_s, 1}});
    b.cloud.set(u"savedAddresses"_s, QVariantMap{{u"x"_s, 1}});
    a.send({&b});
    b.send({&a});
    EXPECT_EQ(a.value(u"savedAddresses"_s), QVariant(QVariantMap{{u"x"_s, qlonglong{2}}}));
    EXPECT_EQ(b.value(u"savedAddresses"_s), a.value(u"savedAddresses"_s));
}

TEST_F(SettingsMirrorTest, AnEmptyListIsNotAMissingOne)
{
    launchBoth();
    a.cloud.set(u"savedAddresses"_s, QVariantMap{{u"x"_s, 1}});
    a.send({&b});
    a.cloud.set(u"savedAddresses"_s, QVariantMap());
    a.send({&b});
    EXPECT_EQ(b.value(u"savedAddresses"_s), QVariant(QVariantMap()))
        << "a missing one would leave the last entry where it is";
    a.cloud.set(u"savedAddresses"_s, u"no list at all"_s);
    a.send({&b});
    EXPECT_EQ(b.value(u"savedAddresses"_s), QVariant(u"no list at all"_s));
}

TEST_F(SettingsMirrorTest, WhatIsSetBeforeTheReplicaIsThereIsWrittenThen)
{
    a.cloud.set(u"timerMinutes"_s, 7);
    EXPECT_EQ(a.value(u"timerMinutes"_s), QVariant(qlonglong{7}));
    launchBoth();
    a.send({&b});
    EXPECT_EQ(b.value(u"timerMinutes"_s), QVariant(qlonglong{7}));
}

TEST_F(SettingsMirrorTest, IsThereAgainAfterARestartAndIsToldOf)
{
    a.launch();
    a.cloud.set(u"timerMinutes"_s, 7);
    a.mirror.stop();
    SettingsMirror restarted(a.mirror, a.scheduler);
    QStringList told;
    restarted.observe([&](const QStringList &keys) { told << keys; });
    a.launch();
    EXPECT_EQ(
        restarted.dictionaryRepresentation().value(u"timerMinutes"_s), QVariant(qlonglong{7}));
    EXPECT_EQ(told, QStringList({u"timerMinutes"_s}));
}

TEST_F(SettingsMirrorTest, IsWrittenOnTheMainThreadWhoeverSets)
{
    launchBoth();
    a.scheduler.asBackground([this] {
        a.cloud.set(u"timerMinutes"_s, 6);
        a.cloud.set(u"timerMinutes"_s, {});
        a.cloud.set(u"timerMinutes"_s, 7);
    });
    EXPECT_FALSE(a.replica.hasUnsent());
    a.settle();
    EXPECT_TRUE(a.replica.hasUnsent());
    EXPECT_EQ(a.mirror.storage().pending(10).size(), 1);
    a.send({&b});
    EXPECT_EQ(b.value(u"timerMinutes"_s), QVariant(qlonglong{7}));
}

TEST_F(SettingsMirrorTest, WhatCouldNotBeKeptIsWrittenLaterAndNotOverwrittenMeanwhile)
{
    launchBoth();
    a.sql("CREATE TRIGGER refuse BEFORE INSERT ON MirrorPending BEGIN SELECT RAISE(ABORT, 'no'); "
          "END");
    const LogCapture log;
    a.cloud.set(u"timerMinutes"_s, 7);
    EXPECT_FALSE(a.replica.hasUnsent());
    b.cloud.set(u"timerMinutes"_s, 3);
    b.send({&a});
    EXPECT_EQ(a.value(u"timerMinutes"_s), QVariant(qlonglong{7}));
    a.sql("DROP TRIGGER refuse");
    a.cloud.synchronize();
    a.send({&b});
    EXPECT_EQ(b.value(u"timerMinutes"_s), QVariant(qlonglong{7}));
}

TEST_F(SettingsMirrorTest, AnotherAccountHoldsOtherSettings)
{
    a.launch();
    a.cloud.set(u"timerMinutes"_s, 7);
    a.mirror.stop();
    ASSERT_TRUE(a.mirror.start(a.replica, "another account"));
    EXPECT_EQ(a.cloud.dictionaryRepresentation(), QVariantMap());
}

TEST_F(SettingsMirrorTest, WhatIsNoPropertyListOrTooLargeStaysHere)
{
    launchBoth();
    const LogCapture log;
    a.cloud.set(u"timerMinutes"_s, QVariant::fromValue(QSize(1, 2)));
    a.cloud.set(u"SUFeedURL"_s, QString(3 << 20, u'x'));
    a.cloud.set(u"hideDock"_s, true);
    a.send({&b});
    EXPECT_EQ(b.cloud.dictionaryRepresentation(), QVariantMap({{u"hideDock"_s, true}}));
}

} // namespace
} // namespace quillon::test
