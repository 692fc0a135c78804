// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/SettingsKeys.h"
#include "platform/qt/settings/PropertyListFile.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;
namespace {

class PackagedDefaults : public ::testing::Test
{
protected:
    void SetUp() override
    {
        const Result<QVariantMap> read = readPropertyListFile(u":/Defaults.plist"_s);
        ASSERT_TRUE(read) << read.error().message.toStdString();
        defaults = read.value();
        ASSERT_FALSE(defaults.isEmpty());
    }

    QVariantMap defaults;
};

TEST_F(PackagedDefaults, EveryKeyIsKnownAndHasTheTypeOfTheTable)
{
    const auto table = keys::all();
    for (auto entry = defaults.begin(); entry != defaults.end(); ++entry) {
        const auto known = std::find_if(table.begin(), table.end(),
            [&](const keys::Entry &key) { return key.name == entry.key(); });
        ASSERT_NE(known, table.end()) << entry.key().toStdString();
        EXPECT_EQ(propertyListType(entry.value()), known->type) << entry.key().toStdString();
    }
}

TEST_F(PackagedDefaults, EverySwitchHasADefault)
{
    for (const keys::Entry &key : keys::all()) {
        if (key.type == PropertyListType::Boolean) {
            EXPECT_TRUE(defaults.contains(key.name)) << key.name.toStdString();
        }
    }
}

TEST_F(PackagedDefaults, WhatIsLearntOnThisMachineHasNone)
{
    for (const QString &key : {keys::deviceDict, keys::currentInterfaceDict, keys::currentWiFiDict,
             keys::savedNetworks, keys::savedAddresses, keys::externalIPAddress,
             keys::editingRuleNetwork, keys::iCloudToken, keys::vendorCountValue,
             keys::vendorIDUpdatedDate, keys::currentVendorData, keys::showKeyCombo,
             keys::randomKeyCombo, keys::SUFeedURL, keys::releasedDevices, keys::givenAddresses}) {
        EXPECT_FALSE(defaults.contains(key)) << key.toStdString();
    }
}

TEST_F(PackagedDefaults, NothingLeavesTheMachineUnasked)
{
    for (const QString &key : {keys::shouldUpdateExternalIP, keys::iCloudSync,
             keys::SUEnableAutomaticChecks, keys::SUAutomaticallyUpdate}) {
        EXPECT_EQ(defaults.value(key), QVariant(false)) << key.toStdString();
    }
}

TEST_F(PackagedDefaults, TheProgramCanBeSeenAndSpeaks)
{
    EXPECT_EQ(defaults.value(keys::showInMenu), QVariant(true));
    EXPECT_EQ(defaults.value(keys::hideDock), QVariant(false));
    EXPECT_EQ(defaults.value(keys::displayNotifications), QVariant(true));
    EXPECT_EQ(defaults.value(keys::driftAlarm), QVariant(true));
    EXPECT_EQ(defaults.value(keys::historySearchType), QVariant(u"all"_s));
    EXPECT_EQ(defaults.value(keys::defaultTimerMinutes), QVariant(30LL));
}

TEST(PackagedDefaultsMissing, AreAnErrorOfTheSystem)
{
    const auto resource = readPropertyListFile(u":/Missing.plist"_s);
    ASSERT_FALSE(resource);
    EXPECT_EQ(resource.error().domain, posixErrorDomain);
    const auto file = readPropertyListFile(u"/nowhere/Missing.plist"_s);
    ASSERT_FALSE(file);
    EXPECT_EQ(file.error().code, ENOENT);
}

} // namespace
} // namespace quillon
