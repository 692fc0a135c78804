// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/CloudSecrets.h"

#include "fakes/FakeScheduler.h"
#include "fakes/FakeSecretStore.h"
#include "fakes/LogCapture.h"
#include "fakes/QtPrinting.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

class CloudSecretsTest : public ::testing::Test
{
protected:
    using Answer = std::variant<std::optional<CloudSecrets::Kept>, SecretStore::Failure>;

    CloudSecrets::Kept kept(const QString &password) const
    {
        auto key = AccountKey::fromBytes(QByteArray(AccountKey::size, 'k')).value();
        return {password,
            std::make_shared<const OpenedKey>(OpenedKey{std::move(key), QByteArray("a key file")})};
    }
    std::optional<SecretStore::Failure> keep(const CloudAccount &account, const QString &password)
    {
        std::optional<SecretStore::Failure> failure;
        int answers = 0;
        secrets.keep(account, kept(password), [&](const auto &result) {
            failure = result;
            ++answers;
        });
        scheduler.runPending();
        EXPECT_EQ(answers, 1);
        return failure;
    }
    Answer read(const CloudAccount &account)
    {
        Answer answer;
        int answers = 0;
        secrets.read(account, [&](const Answer &result) {
            answer = result;
            ++answers;
        });
        scheduler.runPending();
        EXPECT_EQ(answers, 1);
        return answer;
    }

    const CloudAccount server{CloudAccount::Kind::WebDav, QUrl(u"https://cloud.example/dav/ada"_s),
        u"ada"_s, u"Quillon"_s};
    const CloudAccount folder{.folder = u"/srv/shared"_s};
    test::FakeScheduler scheduler;
    test::FakeSecretStore store{scheduler};
    CloudSecrets secrets{store};
};

TEST_F(CloudSecretsTest, WhatIsKeptIsReadAgain)
{
    EXPECT_FALSE(keep(server, u"secret word"_s));
    const auto found = std::get<std::optional<CloudSecrets::Kept>>(read(server));
    ASSERT_TRUE(found);
    EXPECT_EQ(found->password, u"secret word"_s);
    EXPECT_EQ(found->key->key.bytes(), QByteArray(AccountKey::size, 'k'));
    EXPECT_EQ(found->key->file, QByteArray("a key file"));
    EXPECT_EQ(store.secrets.size(), 2);
}

TEST_F(CloudSecretsTest, AFolderHasNoPassword)
{
    EXPECT_FALSE(keep(folder, {}));
    EXPECT_EQ(store.secrets.size(), 1);
    EXPECT_TRUE(std::get<std::optional<CloudSecrets::Kept>>(read(folder)));
}

TEST_F(CloudSecretsTest, WithoutOneOfThemThereIsNone)
{
    EXPECT_FALSE(std::get<std::optional<CloudSecrets::Kept>>(read(server)));
    keep(server, u"secret word"_s);
    const auto all = store.secrets;
    for (const QString &name : all.keys()) {
        store.secrets = all;
        store.secrets.remove(name);
        EXPECT_FALSE(std::get<std::optional<CloudSecrets::Kept>>(read(server)));
    }
    for (const char *damaged : {"", "a2V5", "a2V5.a2V5", "."}) {
        store.secrets = all;
        store.secrets.insert(CloudSecrets::keyName(server), QString::fromLatin1(damaged));
        EXPECT_FALSE(std::get<std::optional<CloudSecrets::Kept>>(read(server))) << damaged;
    }
}

TEST_F(CloudSecretsTest, AFailureIsTold)
{
    for (const int wellBefore : {0, 1}) {
        store.problem = SecretStore::Problem::NoKeyring;
        store.failsFrom = wellBefore;
        const auto failure = keep(server, u"secret word"_s);
        ASSERT_TRUE(failure);
        EXPECT_EQ(failure->problem, SecretStore::Problem::NoKeyring);
        store.problem.reset();
        keep(server, u"secret word"_s);
        store.problem = SecretStore::Problem::Refused;
        store.failsFrom = wellBefore;
        const Answer answer = read(server);
        ASSERT_TRUE(std::holds_alternative<SecretStore::Failure>(answer));
    }
}

TEST_F(CloudSecretsTest, WhatAnotherAccountNeedsIsNotForgotten)
{
    CloudAccount other = server;
    other.folder = u"Elsewhere"_s;
    keep(server, u"secret word"_s);
    keep(other, u"secret word"_s);
    secrets.forget(other, server);
    scheduler.runPending();
    EXPECT_TRUE(std::get<std::optional<CloudSecrets::Kept>>(read(server)));
    EXPECT_EQ(store.secrets.size(), 2);
    secrets.forget(server, {});
    scheduler.runPending();
    EXPECT_TRUE(store.secrets.isEmpty());
}

TEST_F(CloudSecretsTest, ANewKeyFileTakesThePlaceOfTheOldOne)
{
    keep(server, u"secret word"_s);
    const auto key = AccountKey::fromBytes(QByteArray(AccountKey::size, 'k')).value();
    bool isKept = false;
    secrets.keepKeyFile(
        server, key, "another file", [&](const auto &failure) { isKept = !failure; });
    scheduler.runPending();
    EXPECT_TRUE(isKept);
    const auto found = std::get<std::optional<CloudSecrets::Kept>>(read(server));
    EXPECT_EQ(found.value().password, u"secret word"_s);
    EXPECT_EQ(found->key->file, QByteArray("another file"));
    EXPECT_EQ(found->key->key.bytes(), key.bytes());
}

TEST_F(CloudSecretsTest, WhetherAllAreGoneIsTold)
{
    for (const bool works : {true, false}) {
        keep(server, u"secret word"_s);
        if (!works) {
            store.problem = SecretStore::Problem::Refused;
            store.failsFrom = 1;
        }
        QList<bool> answers;
        secrets.forget(server, {}, [&answers](bool areGone) { answers << areGone; });
        scheduler.runPending();
        EXPECT_EQ(answers, QList{works});
        store.problem.reset();
    }
    QList<bool> answers;
    secrets.forget(server, server, [&answers](bool areGone) { answers << areGone; });
    EXPECT_EQ(answers, QList{true}) << "all of them are needed";
}

TEST_F(CloudSecretsTest, NamesTellNoSecret)
{
    EXPECT_FALSE(CloudSecrets::keyName(folder).contains(u"ada"_s));
    EXPECT_NE(CloudSecrets::keyName(folder), CloudSecrets::keyName(server));
}

} // namespace
} // namespace quillon
