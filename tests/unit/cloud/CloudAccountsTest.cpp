// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/CloudAccounts.h"

#include "base/SettingsKeys.h"
#include "fakes/FakeScheduler.h"
#include "fakes/FakeSettingsStore.h"
#include "fakes/QtPrinting.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

class CloudAccountsTest : public ::testing::Test
{
protected:
    const CloudAccount server{CloudAccount::Kind::WebDav, QUrl(u"https://cloud.example/dav/ada"_s),
        u"ada"_s, u"Quillon"_s, QByteArray(32, '\x5a')};
    const CloudAccount folder{.folder = u"/srv/shared"_s};
    test::FakeScheduler scheduler;
    test::FakeSettingsStore settings{scheduler};
    CloudAccounts accounts{settings};
};

TEST_F(CloudAccountsTest, NobodyIsSignedInAtFirst)
{
    EXPECT_FALSE(accounts.account());
    EXPECT_FALSE(accounts.identityToken().isValid());
}

TEST_F(CloudAccountsTest, TheAccountIsKeptAsItIs)
{
    for (const CloudAccount &account : {server, folder}) {
        accounts.set(account);
        EXPECT_EQ(CloudAccounts(settings).account(), account);
        EXPECT_EQ(accounts.identityToken(), QVariant(account.identityToken()));
    }
    accounts.forget();
    EXPECT_FALSE(accounts.account());
    EXPECT_FALSE(settings.stored().contains(keys::cloudAccount));
}

TEST_F(CloudAccountsTest, SigningInAndOutIsTold)
{
    int told = 0;
    const auto token = accounts.addObserver([&told] { ++told; });
    accounts.set(server);
    EXPECT_EQ(told, 1);
    accounts.forget();
    EXPECT_EQ(told, 2);
    settings.changeFromOutside(keys::cloudAccount, QVariantMap());
    scheduler.runPending();
    EXPECT_EQ(told, 3);
    accounts.removeObserver(token);
    accounts.set(folder);
    EXPECT_EQ(told, 3);
}

TEST_F(CloudAccountsTest, AnObserverMayGoInItsCall)
{
    CloudAccounts::Token second = 0;
    int told = 0;
    accounts.addObserver([&] { accounts.removeObserver(second); });
    second = accounts.addObserver([&told] { ++told; });
    accounts.set(server);
    EXPECT_EQ(told, 0);
}

TEST_F(CloudAccountsTest, WhatNamesNoPlaceIsNoAccount)
{
    accounts.set(server);
    const QVariantMap whole = settings.getDictionary(keys::cloudAccount);
    const QList<std::pair<QString, QVariant>> damages{{u"kind"_s, u"other"_s}, {u"kind"_s, 3},
        {u"server"_s, {}}, {u"server"_s, u"not an address"_s}, {u"server"_s, QByteArray("x")},
        {u"user"_s, {}}, {u"user"_s, QVariantList{u"ada"_s}}, {u"folder"_s, {}},
        {u"folder"_s, true}, {u"fingerprint"_s, u"5a5a"_s}, {u"fingerprint"_s, u"zz"_s}};
    for (const auto &[key, value] : damages) {
        QVariantMap damaged = whole;
        damaged.insert(key, value);
        settings.set(keys::cloudAccount, damaged);
        EXPECT_FALSE(accounts.account()) << key.toStdString();
        EXPECT_FALSE(accounts.identityToken().isValid());
    }
    settings.set(keys::cloudAccount, u"server"_s);
    EXPECT_FALSE(accounts.account());
}

} // namespace
} // namespace quillon
