// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/CloudSession.h"

#include "base/SettingsKeys.h"
#include "cloud/CloudAccounts.h"
#include "cloud/SignInProblem.h"
#include "fakes/FakeCloudProvider.h"
#include "fakes/FakePowerSaving.h"
#include "fakes/FakeReachability.h"
#include "fakes/FakeSecretStore.h"
#include "platform/CloudMessage.h"
#include "sync/AccountFile.h"
#include "sync/SettingsMirror.h"
#include "unit/sync/RecordMirrorFixture.h"

namespace quillon {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

const CloudAccount server{
    CloudAccount::Kind::WebDav, QUrl(u"https://cloud.example/dav/ada"_s), u"ada"_s, u"Quillon"_s};
const CloudAccount folder{.folder = u"/srv/shared"_s};

/// A computer whose person is signed in, with its records and its keyring.
struct Computer : test::RecordsOfComputer
{
    Computer(test::FakeCloudAccount &shared, quint64 seed, const CloudAccount &account)
        : provider(scheduler, &shared)
        , random(seed)
    {
        const AccountKey key = accountKey();
        const QByteArray file = keyFile("correct horse", 1);
        if (!shared.files.contains(keyFileName)) {
            shared.put(keyFileName, file);
        }
        accounts.set(account);
        settings.set(keys::iCloudToken, accounts.identityToken());
        settings.setBool(keys::iCloudSync, true);
        CloudSecrets(secrets).keep(account,
            {u"app password"_s, std::make_shared<const OpenedKey>(
                                    OpenedKey{AccountKey::fromBytes(key.bytes()).value(), file})},
            [](const auto &) {});
        scheduler.runPending();
        secrets.asked.clear();
    }

    static AccountKey accountKey()
    {
        test::SeededRandom same(1);
        return AccountKey::random(same).value();
    }
    static QByteArray keyFile(const char *passphrase, std::uint32_t number)
    {
        test::SeededRandom same(1);
        return WrappedKey::wrap(accountKey(), passphrase, same, {1, 8}, number).value();
    }
    /// What stands beside the key in the keyring.
    QByteArray keptFile()
    {
        QByteArray found;
        CloudSecrets(secrets).read(server, [&found](const auto &answer) {
            found = std::get<std::optional<CloudSecrets::Kept>>(answer).value().key->file;
        });
        scheduler.runPending();
        return found;
    }
    void launch()
    {
        mirror.containerOpened();
        session.begin();
        settle();
    }
    void settle() { scheduler.advance(1min); }
    QStringList requestsIn(std::chrono::milliseconds time)
    {
        provider.asked.clear();
        scheduler.advance(time);
        return provider.asked;
    }

    test::FakeSettingsStore settings{scheduler};
    NotificationCenter notifications;
    test::FakeCloudProvider provider;
    test::FakeSecretStore secrets{scheduler};
    test::FakeReachability reachability;
    test::FakePowerSaving powerSaving;
    test::SeededRandom random;
    CloudAccounts accounts{settings};
    RecordMirror mirror{{store, settings, scheduler, notifications}};
    SettingsMirror settingsMirror{mirror, scheduler};
    CloudSession session{{provider, secrets, settings, scheduler, random, reachability, powerSaving,
        accounts, mirror}};
};

class CloudSessionTest : public ::testing::Test
{
protected:
    void expectNothingRuns(Computer &computer)
    {
        EXPECT_EQ(computer.provider.storages, 0);
        EXPECT_TRUE(computer.requestsIn(24h).isEmpty());
        EXPECT_TRUE(computer.session.trouble().isEmpty());
        EXPECT_FALSE(computer.scheduler.hasTimers());
    }

    test::FakeCloudAccount account;
    Computer here{account, 2, server};
};

TEST_F(CloudSessionTest, WithoutSwitchAccountOrConsentNothingIsAskedFor)
{
    Computer off(account, 3, server);
    off.settings.setBool(keys::iCloudSync, false);
    Computer signedOut(account, 4, server);
    signedOut.accounts.forget();
    Computer another(account, 5, server);
    another.settings.set(keys::iCloudToken, QByteArray("of another account"));
    for (Computer *computer : {&off, &signedOut, &another}) {
        computer->launch();
        expectNothingRuns(*computer);
        EXPECT_TRUE(computer->secrets.asked.isEmpty());
        EXPECT_FALSE(computer->powerSaving.isWatched());
        EXPECT_EQ(computer->reachability.questions, 0);
    }
}

TEST_F(CloudSessionTest, WhatIsDoneOnOneComputerArrivesAtTheOther)
{
    Computer there(account, 3, server);
    here.launch();
    there.launch();
    here.insert(model::Rule, {{model::rule::name, u"Café"_s}});
    here.save();
    here.settingsMirror.set(keys::lowerCaseHEX, true);
    here.settle();
    there.scheduler.advance(4min);
    EXPECT_TRUE(there.rule(u"Café"_s));
    EXPECT_EQ(there.settingsMirror.dictionaryRepresentation().value(keys::lowerCaseHEX), true);
    EXPECT_EQ(here.provider.lastPassword, u"app password"_s);
    EXPECT_TRUE(here.session.trouble().isEmpty());
    for (const auto &file : std::as_const(account.files)) {
        EXPECT_FALSE(file.bytes.contains("Caf"));
    }
}

TEST_F(CloudSessionTest, SwitchedOffOrSignedOutItEnds)
{
    here.launch();
    EXPECT_EQ(here.provider.storages, 1);
    here.settings.setBool(keys::iCloudSync, false);
    here.store.refreshPersistentContainer();
    here.settle();
    expectNothingRuns(here);
    here.settings.setBool(keys::iCloudSync, true);
    here.store.refreshPersistentContainer();
    here.settle();
    EXPECT_EQ(here.provider.storages, 1);
    here.settings.setBool(keys::iCloudSync, false);
    here.accounts.forget();
    here.store.refreshPersistentContainer();
    here.settle();
    expectNothingRuns(here);
}

TEST_F(CloudSessionTest, AnAccountThatWasChangedFromOutsideIsNotSyncedWith)
{
    here.launch();
    CloudAccount other = server;
    other.user = u"mallory"_s;
    Computer elsewhere(account, 3, other);
    here.settings.changeFromOutside(keys::cloudAccount, elsewhere.settings.get(keys::cloudAccount));
    here.settle();
    EXPECT_EQ(here.provider.storages, 0);
    EXPECT_TRUE(here.requestsIn(1h).isEmpty());
}

TEST_F(CloudSessionTest, AWrongPasswordIsToldAndNotTriedAgainUntilThePersonSignsInAnew)
{
    here.launch();
    int told = 0;
    QObject::connect(&here.session, &CloudSession::troubleChanged, [&told] { ++told; });
    here.provider.problem = CloudProblem::WrongPassword;
    here.scheduler.advance(5min);
    EXPECT_EQ(here.session.trouble(),
        cloudMessage(CloudProblem::WrongPassword, CloudAccount::Kind::WebDav));
    EXPECT_EQ(told, 1);
    EXPECT_TRUE(here.requestsIn(24h).isEmpty());
    here.provider.problem.reset();
    here.session.renew();
    here.settle();
    EXPECT_TRUE(here.session.trouble().isEmpty());
    EXPECT_EQ(told, 2);
    EXPECT_FALSE(here.requestsIn(5min).isEmpty());
}

TEST_F(CloudSessionTest, AFullAccountIsToldUntilItHasSpace)
{
    here.launch();
    here.provider.problem = CloudProblem::Full;
    here.scheduler.advance(5min);
    EXPECT_EQ(here.session.trouble(), cloudMessage(CloudProblem::Full, CloudAccount::Kind::WebDav));
    here.provider.problem.reset();
    here.scheduler.advance(2h);
    EXPECT_TRUE(here.session.trouble().isEmpty());
}

TEST_F(CloudSessionTest, NobodyIsAskedWhileTheComputerIsOffline)
{
    here.reachability.reachable = false;
    here.launch();
    EXPECT_TRUE(here.requestsIn(24h).isEmpty());
    here.reachability.reachable = true;
    here.session.networkChanged();
    EXPECT_FALSE(here.requestsIn(1s).isEmpty());
}

TEST_F(CloudSessionTest, AFolderAndAServerOnThisComputerNeedNoNetwork)
{
    CloudAccount own = server;
    own.server = QUrl(u"https://localhost:8443/dav"_s);
    for (const CloudAccount &each : {folder, own}) {
        Computer computer(account, 3, each);
        computer.reachability.reachable = false;
        computer.launch();
        EXPECT_FALSE(computer.requestsIn(5min).isEmpty());
    }
}

TEST_F(CloudSessionTest, WhileTheBatteryIsSavedOnlyEditsAreSent)
{
    here.launch();
    here.powerSaving.become(true);
    EXPECT_TRUE(here.requestsIn(24h).isEmpty());
    here.insert(model::Rule, {{model::rule::name, u"Café"_s}});
    here.save();
    EXPECT_FALSE(here.requestsIn(1min).filter(u"create"_s).isEmpty());
    EXPECT_TRUE(here.requestsIn(24h).isEmpty());
    here.powerSaving.become(false);
    EXPECT_FALSE(here.requestsIn(1min).isEmpty());
}

TEST_F(CloudSessionTest, AFolderIsLookedAtSoonAfterItChanged)
{
    test::FakeCloudAccount files;
    Computer computer(files, 3, folder);
    computer.launch();
    EXPECT_TRUE(computer.requestsIn(10s).isEmpty());
    computer.provider.changed();
    computer.provider.changed();
    EXPECT_EQ(computer.requestsIn(10s).count(u"list"_s), 1);
    // After a failure nobody's writing makes it try sooner.
    computer.provider.problem = CloudProblem::Full;
    computer.provider.changed();
    computer.settle();
    computer.scheduler.advance(30min);
    computer.provider.changed();
    EXPECT_TRUE(computer.requestsIn(10s).isEmpty());
}

TEST_F(CloudSessionTest, AKeyringThatIsMissingIsToldAndTriedAgain)
{
    here.secrets.problem = SecretStore::Problem::NoKeyring;
    here.launch();
    EXPECT_EQ(here.session.trouble(), secretMessage(SecretStore::Problem::NoKeyring));
    EXPECT_EQ(here.provider.storages, 0);
    here.secrets.problem.reset();
    here.scheduler.advance(5min);
    EXPECT_TRUE(here.session.trouble().isEmpty());
    EXPECT_EQ(here.provider.storages, 1);
}

TEST_F(CloudSessionTest, APersonWhoDoesNotUnlockTheKeyringIsNotAskedAgain)
{
    here.secrets.problem = SecretStore::Problem::Refused;
    here.launch();
    EXPECT_EQ(here.session.trouble(), secretMessage(SecretStore::Problem::Refused));
    here.secrets.asked.clear();
    here.scheduler.advance(24h);
    EXPECT_TRUE(here.secrets.asked.isEmpty());
}

TEST_F(CloudSessionTest, WithoutTheSecretsThePersonIsToSignInAgain)
{
    here.secrets.secrets.clear();
    here.launch();
    EXPECT_FALSE(here.session.trouble().isEmpty());
    EXPECT_EQ(here.provider.storages, 0);
    EXPECT_FALSE(here.scheduler.hasTimers());
}

TEST_F(CloudSessionTest, AKeyFileThatSomebodyRemovedIsPutBack)
{
    here.launch();
    const QByteArray file = account.files[keyFileName].bytes;
    account.files.remove(keyFileName);
    here.scheduler.advance(1h);
    EXPECT_EQ(account.files.value(keyFileName).bytes, file);
    EXPECT_TRUE(here.session.trouble().isEmpty());
}

TEST_F(CloudSessionTest, ANewPassphraseOfAnotherComputerIsKept)
{
    here.launch();
    const QByteArray changed = here.keyFile("battery staple", 2);
    account.put(keyFileName, changed);
    here.scheduler.advance(1h);
    EXPECT_TRUE(here.session.trouble().isEmpty());
    EXPECT_EQ(here.keptFile(), changed);
    EXPECT_EQ(account.files.value(keyFileName).bytes, changed);
    // The earlier one does not come back, not even when the file is removed.
    account.files.remove(keyFileName);
    here.scheduler.advance(1h);
    EXPECT_EQ(account.files.value(keyFileName).bytes, changed);
    account.put(keyFileName, here.keyFile("correct horse", 1));
    here.scheduler.advance(1h);
    EXPECT_EQ(account.files.value(keyFileName).bytes, changed);
    EXPECT_TRUE(here.session.trouble().isEmpty());
}

TEST_F(CloudSessionTest, WhatWasChangedWhileItDidNotRunIsKeptAtTheStart)
{
    const QByteArray changed = here.keyFile("battery staple", 2);
    account.put(keyFileName, changed);
    here.launch();
    EXPECT_EQ(here.keptFile(), changed);
    EXPECT_TRUE(here.session.trouble().isEmpty());
}

TEST_F(CloudSessionTest, AKeyFileThatWasDamagedIsMended)
{
    here.launch();
    const QByteArray file = account.files[keyFileName].bytes;
    account.put(keyFileName, file.first(file.size() / 2));
    here.scheduler.advance(1h);
    EXPECT_EQ(account.files.value(keyFileName).bytes, file);
    EXPECT_TRUE(here.session.trouble().isEmpty());
}

TEST_F(CloudSessionTest, AnotherKeyInTheSamePlaceIsToldAndNothingIsReadOrWritten)
{
    here.launch();
    const QByteArray file = account.files[keyFileName].bytes;
    const QString kept = here.secrets.secrets.value(CloudSecrets::keyName(server));
    test::SeededRandom other(99);
    const AccountKey foreign = AccountKey::random(other).value();
    account.files.clear();
    account.put(keyFileName, WrappedKey::wrap(foreign, "correct horse", other, {1, 8}).value());
    const auto files = account.files;
    here.insert(model::Rule, {{model::rule::name, u"Café"_s}});
    here.save();
    here.scheduler.advance(2h);
    EXPECT_EQ(here.session.trouble(), keyFileMessage(KeyFileProblem::OtherKey));
    for (auto it = files.begin(); it != files.end(); ++it) {
        EXPECT_EQ(account.files.value(it.key()), *it);
    }
    EXPECT_EQ(here.secrets.secrets.value(CloudSecrets::keyName(server)), kept);
    const auto left = account.files;
    here.insert(model::Rule, {{model::rule::name, u"Office"_s}});
    here.save();
    here.scheduler.advance(2h);
    EXPECT_EQ(account.files, left) << "from then on nothing is written";
    // Nothing is lost: with the key back, everything arrives.
    account.put(keyFileName, file);
    here.scheduler.advance(2h);
    EXPECT_TRUE(here.session.trouble().isEmpty());
    Computer there(account, 3, server);
    there.launch();
    there.scheduler.advance(1h);
    EXPECT_TRUE(there.rule(u"Café"_s));
    EXPECT_TRUE(there.rule(u"Office"_s));
}

TEST_F(CloudSessionTest, DamagedAndNewerFilesAreToldAndLeftAlone)
{
    here.launch();
    const QString name = AccountFile{AccountFile::Kind::Change, 99, 1}.name();
    account.put(name, QByteArray("QLS\1") + QByteArray(100, 'x'));
    here.scheduler.advance(1h);
    const QString damaged = here.session.trouble();
    EXPECT_FALSE(damaged.isEmpty());
    const QString newer = AccountFile{AccountFile::Kind::Change, 98, 1}.name();
    account.put(newer, QByteArray("QLS\x7f") + QByteArray(100, 'x'));
    here.scheduler.advance(1h);
    EXPECT_FALSE(here.session.trouble().isEmpty());
    EXPECT_NE(here.session.trouble(), damaged);
    EXPECT_TRUE(account.files.contains(name));
    EXPECT_TRUE(account.files.contains(newer));
}

TEST_F(CloudSessionTest, ItMayGoAtAnyMoment)
{
    for (int requests = 0; requests < 12; ++requests) {
        auto computer = std::make_unique<Computer>(account, quint64(10 + requests), server);
        int answered = 0;
        bool isOff = false;
        computer->provider.beforeAnswer = [&](const QString &) {
            if (answered++ == requests) {
                computer->settings.setBool(keys::iCloudSync, false);
                isOff = true;
            }
        };
        computer->insert(model::Rule, {{model::rule::name, u"Rule %1"_s.arg(requests)}});
        computer->save();
        computer->launch();
        if (isOff) {
            EXPECT_EQ(computer->provider.storages, 0);
        }
    }
}

} // namespace
} // namespace quillon
