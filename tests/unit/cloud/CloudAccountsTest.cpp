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
    accounts.set(server);
    EXPECT_EQ(told, 3);
    settings.changeFromOutside(keys::cloudAccount, QVariantMap());
    scheduler.runPending();
    EXPECT_EQ(told, 4);
    accounts.removeObserver(token);
    accounts.set(folder);
    EXPECT_EQ(told, 4);
}

TEST_F(CloudAccountsTest, WhoseSecretsMayBeLeftIsKeptBesideWhoIsSignedIn)
{
    int told = 0;
    accounts.addObserver([&told] { ++told; });
    accounts.addLeft(server);
    accounts.addLeft(folder);
    accounts.addLeft(server);
    EXPECT_FALSE(accounts.account());
    EXPECT_EQ(told, 0);
    EXPECT_EQ(CloudAccounts(settings).left(), (QList{folder, server}));
    accounts.set(server);
    accounts.removeLeft(server);
    EXPECT_EQ(told, 1);
    EXPECT_EQ(accounts.account(), server);
    EXPECT_EQ(accounts.left(), QList{folder});
    accounts.forget();
    EXPECT_EQ(accounts.left(), QList{folder});
    EXPECT_FALSE(CloudAccounts(settings).account());
    accounts.removeLeft(folder);
    EXPECT_FALSE(settings.stored().contains(keys::cloudAccount));
}

TEST_F(CloudAccountsTest, OnlySoMuchIsLeft)
{
    for (int number = 0; number < 40; ++number) {
        CloudAccount each = folder;
        each.folder += QString::number(number);
        accounts.addLeft(each);
    }
    EXPECT_EQ(accounts.left().size(), 16);
    EXPECT_EQ(accounts.left().first().folder, u"/srv/shared39"_s);
    for (const QVariant &other : {QVariant(u"text"_s), QVariant(QVariantList{1, u"x"_s, true})}) {
        settings.set(keys::cloudAccount, QVariantMap{{u"left"_s, other}});
        EXPECT_TRUE(accounts.left().isEmpty());
    }
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
