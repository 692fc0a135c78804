// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/AccountSignIn.h"

#include "base/SettingsKeys.h"
#include "cloud/CloudAccounts.h"
#include "fakes/FakeCloudProvider.h"
#include "fakes/FakeScheduler.h"
#include "fakes/FakeSecretStore.h"
#include "fakes/FakeSettingsStore.h"
#include "fakes/QtPrinting.h"
#include "sync/AccountFile.h"
#include "unit/sync/SeededRandom.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;
using Step = CloudSignIn::Step;
using Remedy = CloudSignIn::Problem::Remedy;
using About = CloudSignIn::Problem::About;

const QString passphrase = u"correct horse"_s;

class AccountSignInTest : public ::testing::Test
{
protected:
    AccountSignInTest()
    {
        QObject::connect(&signIn, &CloudSignIn::stepChanged, [this] { steps << signIn.step(); });
        QObject::connect(&signIn, &CloudSignIn::failed,
            [this](const CloudSignIn::Problem &problem) { problems << problem; });
        QObject::connect(
            &signIn, &CloudSignIn::signedIn, [this](const QString &text) { abilities << text; });
    }

    CloudSignIn::Wanted wanted(bool isNew = true) const
    {
        return {.address = u"cloud.example"_s,
            .user = u"ada"_s,
            .password = u"app password"_s,
            .passphrase = passphrase,
            .repeatedPassphrase = isNew ? passphrase : QString()};
    }
    /// Without what earlier ones were told.
    void tryWith(const CloudSignIn::Wanted &said)
    {
        steps.clear();
        problems.clear();
        abilities.clear();
        provider.asked.clear();
        signIn.begin(said);
        scheduler.runPending();
    }
    /// An account that another computer has made.
    QByteArray makeAccount(const QString &itsPassphrase = passphrase)
    {
        const AccountKey key = AccountKey::random(random).value();
        provider.account.put(
            keyFileName, WrappedKey::wrap(key, itsPassphrase.toUtf8(), random, {1, 8}).value());
        return key.fingerprint();
    }
    QByteArray keptKey()
    {
        QByteArray fingerprint;
        CloudSecrets(secrets).read(
            accounts.account().value_or(CloudAccount()), [&](const auto &answer) {
                const auto &kept = std::get<std::optional<CloudSecrets::Kept>>(answer);
                fingerprint = kept ? kept->key->key.fingerprint() : QByteArray();
            });
        scheduler.runPending();
        return fingerprint;
    }
    void expectNothingKept()
    {
        EXPECT_FALSE(signIn.account());
        EXPECT_TRUE(secrets.secrets.isEmpty());
        EXPECT_EQ(signIn.step(), Step::None);
        EXPECT_EQ(provider.storages, 0);
        EXPECT_FALSE(settings.stored().contains(keys::cloudAccount));
    }

    test::FakeScheduler scheduler;
    test::FakeSettingsStore settings{scheduler};
    test::FakeCloudProvider provider{scheduler};
    test::FakeSecretStore secrets{scheduler};
    test::SeededRandom random{7};
    CloudAccounts accounts{settings};
    AccountSignIn signIn{{provider, secrets, settings, scheduler, random, accounts, {1, 8}}};
    QList<Step> steps;
    QList<CloudSignIn::Problem> problems;
    QStringList abilities;
};

TEST_F(AccountSignInTest, ANewAccountIsMadeAndKept)
{
    tryWith(wanted());
    EXPECT_TRUE(problems.isEmpty());
    ASSERT_EQ(abilities.size(), 1);
    EXPECT_FALSE(abilities.first().isEmpty());
    EXPECT_EQ(
        steps, (QList{Step::Looking, Step::Trying, Step::Unlocking, Step::Keeping, Step::None}));
    ASSERT_TRUE(signIn.account());
    EXPECT_EQ(*signIn.account(),
        (CloudAccount{CloudAccount::Kind::WebDav, provider.address, u"ada"_s, u"Quillon"_s}));
    EXPECT_EQ(provider.account.files.keys(), QStringList{keyFileName});
    EXPECT_TRUE(secrets.secrets.values().contains(u"app password"_s));
    const auto opened =
        WrappedKey::unwrap(provider.account.files[keyFileName].bytes, passphrase.toUtf8());
    ASSERT_TRUE(std::holds_alternative<AccountKey>(opened));
    EXPECT_EQ(std::get<AccountKey>(opened).fingerprint(), keptKey());
    EXPECT_EQ(provider.storages, 0);
}

TEST_F(AccountSignInTest, AFolderNeedsNeitherSearchNorPassword)
{
    tryWith({.kind = CloudAccount::Kind::Folder,
        .password = u"of another tab"_s,
        .folder = u"/srv/shared/"_s,
        .passphrase = passphrase,
        .repeatedPassphrase = passphrase});
    EXPECT_EQ(signIn.account(), (CloudAccount{.folder = u"/srv/shared"_s}));
    EXPECT_EQ(secrets.secrets.size(), 1);
    EXPECT_FALSE(provider.asked.contains(u"find "_s));
    EXPECT_TRUE(provider.lastPassword.isEmpty() || provider.asked.filter(u"find"_s).isEmpty());
}

TEST_F(AccountSignInTest, ANewAccountAsksForThePassphraseTwice)
{
    tryWith(wanted(false));
    ASSERT_EQ(problems.size(), 1);
    EXPECT_EQ(problems.first().remedy, Remedy::RepeatPassphrase);
    CloudSignIn::Wanted other = wanted();
    other.repeatedPassphrase = u"correct house"_s;
    tryWith(other);
    ASSERT_EQ(problems.size(), 1);
    EXPECT_EQ(problems.first().remedy, Remedy::RepeatPassphrase);
    other.passphrase = other.repeatedPassphrase = u"short"_s;
    tryWith(other);
    ASSERT_EQ(problems.size(), 1);
    EXPECT_EQ(problems.first().about, About::Passphrase);
    expectNothingKept();
    EXPECT_TRUE(provider.account.files.isEmpty());
}

TEST_F(AccountSignInTest, AnAccountThatIsThereIsOpenedByItsPassphrase)
{
    const QByteArray key = makeAccount();
    const QByteArray file = provider.account.files[keyFileName].bytes;
    tryWith(wanted(false));
    EXPECT_EQ(abilities.size(), 1);
    EXPECT_EQ(keptKey(), key);
    EXPECT_EQ(provider.account.files[keyFileName].bytes, file);
}

TEST_F(AccountSignInTest, OneSpellingOfAPassphraseIsAsGoodAsAnother)
{
    makeAccount(u"schönes Wörtchen"_s);
    CloudSignIn::Wanted said = wanted(false);
    said.passphrase = u"scho\u0308nes Wo\u0308rtchen"_s;
    tryWith(said);
    EXPECT_EQ(abilities.size(), 1);
}

TEST_F(AccountSignInTest, AnotherPassphraseIsRefused)
{
    makeAccount(u"another phrase"_s);
    const auto files = provider.account.files;
    tryWith(wanted());
    ASSERT_EQ(problems.size(), 1);
    EXPECT_EQ(problems.first().remedy, Remedy::AnotherPassphrase);
    expectNothingKept();
    EXPECT_EQ(provider.account.files, files);
}

TEST_F(AccountSignInTest, ADamagedOrANewerKeyFileIsToldAndLeftAlone)
{
    QSet<QString> texts;
    for (const QByteArray &bytes :
        {QByteArray("rubbish"), QByteArray("QLKY\2 of the future"), QByteArray(5000, 'x')}) {
        provider.account.put(keyFileName, bytes);
        tryWith(wanted());
        ASSERT_EQ(problems.size(), 1);
        texts << problems.first().text;
        EXPECT_EQ(provider.account.files[keyFileName].bytes, bytes);
        expectNothingKept();
    }
    EXPECT_EQ(texts.size(), 2);
}

TEST_F(AccountSignInTest, FilesWithoutAKeyGetNoNewOne)
{
    provider.account.put(AccountFile{AccountFile::Kind::Change, 1, 1}.name(), "sealed");
    tryWith(wanted());
    ASSERT_EQ(problems.size(), 1);
    EXPECT_FALSE(provider.account.files.contains(keyFileName));
    expectNothingKept();
}

TEST_F(AccountSignInTest, ACertificateIsShownBeforeThePersonAcceptsIt)
{
    provider.problem = CloudProblem::UntrustedCertificate;
    provider.fingerprint = QByteArray(32, 'f');
    tryWith(wanted());
    ASSERT_EQ(problems.size(), 1);
    EXPECT_EQ(problems.first().remedy, Remedy::AcceptCertificate);
    EXPECT_EQ(problems.first().fingerprint, provider.fingerprint);
    EXPECT_EQ(problems.first().about, About::Address);
    expectNothingKept();
    provider.problem.reset();
    CloudSignIn::Wanted said = wanted();
    said.fingerprint = problems.first().fingerprint;
    tryWith(said);
    EXPECT_EQ(provider.lastSignIn.fingerprint, said.fingerprint);
    EXPECT_EQ(signIn.account()->fingerprint, said.fingerprint);
}

TEST_F(AccountSignInTest, NothingIsKeptWhicheverRequestFails)
{
    int answered = 0;
    int failsFrom = 0;
    provider.beforeAnswer = [&](const QString &) {
        if (answered++ >= failsFrom) {
            provider.problem = CloudProblem::Full;
        }
    };
    for (; failsFrom < 100; ++failsFrom) {
        answered = 0;
        provider.problem.reset();
        provider.account.files.clear();
        tryWith(wanted());
        if (problems.isEmpty()) {
            break;
        }
        EXPECT_EQ(problems.size(), 1);
        expectNothingKept();
    }
    EXPECT_EQ(abilities.size(), 1);
    EXPECT_GT(failsFrom, 10);
    EXPECT_LT(failsFrom, 100);
}

TEST_F(AccountSignInTest, WithoutAKeyringNobodyIsSignedIn)
{
    for (const int wellBefore : {0, 1}) {
        secrets.problem = SecretStore::Problem::NoKeyring;
        secrets.failsFrom = wellBefore;
        tryWith(wanted());
        ASSERT_EQ(problems.size(), 1);
        EXPECT_EQ(problems.first().text, secretMessage(SecretStore::Problem::NoKeyring));
        EXPECT_FALSE(signIn.account());
        EXPECT_TRUE(provider.account.files.isEmpty());
    }
}

TEST_F(AccountSignInTest, ItCanBeGivenUpAtEachStep)
{
    for (const Step at : {Step::Looking, Step::Trying, Step::Unlocking, Step::Keeping}) {
        const auto giveUp = QObject::connect(&signIn, &CloudSignIn::stepChanged, [&] {
            if (signIn.step() == at) {
                signIn.cancel();
            }
        });
        tryWith(wanted());
        QObject::disconnect(giveUp);
        EXPECT_TRUE(problems.isEmpty());
        EXPECT_TRUE(abilities.isEmpty());
        expectNothingKept();
        EXPECT_FALSE(provider.account.files.contains(keyFileName));
    }
}

TEST_F(AccountSignInTest, ItCanBeGivenUpWhileARequestOrTheKeyringIsWaitedFor)
{
    tryWith(wanted());
    const QStringList requests = provider.asked;
    signIn.signOut();
    scheduler.runPending();
    for (qsizetype number = 1; number + 1 < requests.size(); ++number) {
        provider.account.files.clear();
        qsizetype answered = 0;
        provider.beforeAnswer = [&](const QString &) {
            if (++answered == number) {
                scheduler.onMain([this] { signIn.cancel(); });
            }
        };
        tryWith(wanted());
        EXPECT_TRUE(abilities.isEmpty()) << number;
        EXPECT_TRUE(problems.isEmpty()) << number;
        expectNothingKept();
    }
}

TEST_F(AccountSignInTest, WhatReachesTheKeyringAfterItWasGivenUpGoesAgain)
{
    QObject::connect(&signIn, &CloudSignIn::stepChanged, [this] {
        if (signIn.step() == Step::Keeping) {
            scheduler.onMain([this] { signIn.cancel(); });
        }
    });
    tryWith(wanted());
    EXPECT_EQ(secrets.asked.filter(u"store"_s).size(), 2);
    EXPECT_TRUE(abilities.isEmpty());
    expectNothingKept();
}

TEST_F(AccountSignInTest, ASecondAttemptReplacesTheFirst)
{
    signIn.begin(wanted());
    CloudSignIn::Wanted other = wanted();
    other.user = u"bea"_s;
    tryWith(other);
    EXPECT_EQ(abilities.size(), 1);
    EXPECT_EQ(signIn.account()->user, u"bea"_s);
    EXPECT_EQ(secrets.secrets.size(), 2);
}

TEST_F(AccountSignInTest, OfTwoComputersThatMakeTheAccountOneKeyHolds)
{
    QByteArray theirs;
    provider.beforeAnswer = [&](const QString &what) {
        if (what == u"create key"_s && theirs.isEmpty()) {
            theirs = makeAccount();
        }
    };
    tryWith(wanted());
    EXPECT_EQ(abilities.size(), 1);
    EXPECT_FALSE(theirs.isEmpty());
    EXPECT_EQ(keptKey(), theirs);
}

TEST_F(AccountSignInTest, SigningOutForgetsSecretsAndAccountAndSwitchesSyncOff)
{
    settings.setBool(keys::iCloudSync, true);
    tryWith(wanted());
    settings.set(keys::iCloudToken, accounts.identityToken());
    const QVariant agreedTo = settings.get(keys::iCloudToken);
    int told = 0;
    QObject::connect(&signIn, &CloudSignIn::accountChanged, [&told] { ++told; });
    signIn.signOut();
    scheduler.runPending();
    expectNothingKept();
    EXPECT_EQ(told, 1);
    EXPECT_FALSE(settings.getBool(keys::iCloudSync));
    EXPECT_EQ(settings.get(keys::iCloudToken), agreedTo) << "another account is asked about";
    EXPECT_TRUE(provider.account.files.contains(keyFileName));
    signIn.signOut();
    EXPECT_EQ(told, 1);
}

TEST_F(AccountSignInTest, WhatAnAttemptLeavesWhenTheProgramEndsGoesAtTheNextStart)
{
    auto dying = std::make_unique<AccountSignIn>(AccountSignIn::Collaborators{
        provider, secrets, settings, scheduler, random, accounts, {1, 8}});
    QObject::connect(dying.get(), &CloudSignIn::stepChanged, [&] {
        if (dying->step() == Step::Keeping) {
            scheduler.onMain([&dying] { dying.reset(); });
        }
    });
    dying->begin(wanted());
    scheduler.runPending();
    ASSERT_FALSE(dying);
    EXPECT_FALSE(secrets.secrets.isEmpty());
    EXPECT_FALSE(signIn.account());
    // The keyring may be locked then.
    secrets.problem = SecretStore::Problem::Refused;
    signIn.clearUp();
    scheduler.runPending();
    EXPECT_FALSE(secrets.secrets.isEmpty());
    secrets.problem.reset();
    signIn.clearUp();
    scheduler.runPending();
    expectNothingKept();
    secrets.asked.clear();
    signIn.clearUp();
    EXPECT_TRUE(secrets.asked.isEmpty()) << "nobody is asked for nothing";
}

TEST_F(AccountSignInTest, WhatIsLeftOfASignOutGoesAtTheNextStart)
{
    tryWith(wanted());
    secrets.problem = SecretStore::Problem::NoKeyring;
    signIn.signOut();
    scheduler.runPending();
    EXPECT_EQ(secrets.secrets.size(), 2);
    secrets.problem.reset();
    signIn.clearUp();
    scheduler.runPending();
    expectNothingKept();
}

TEST_F(AccountSignInTest, WhoIsSignedInKeepsTheSecretsWhateverIsLeft)
{
    tryWith(wanted());
    const auto kept = secrets.secrets;
    CloudAccount sameUser = *signIn.account();
    sameUser.folder = u"Elsewhere"_s;
    accounts.addLeft(*signIn.account());
    accounts.addLeft(sameUser);
    signIn.clearUp();
    scheduler.runPending();
    EXPECT_EQ(secrets.secrets, kept);
    EXPECT_TRUE(accounts.left().isEmpty());
}

TEST_F(AccountSignInTest, AnotherAccountTakesThePlaceOfTheFirst)
{
    tryWith(wanted());
    const QStringList first = secrets.secrets.keys();
    CloudSignIn::Wanted other = wanted(false);
    other.user = u"bea"_s;
    tryWith(other);
    EXPECT_EQ(signIn.account()->user, u"bea"_s);
    EXPECT_EQ(secrets.secrets.size(), 2);
    for (const QString &name : first) {
        EXPECT_FALSE(secrets.secrets.contains(name));
    }
}

TEST_F(AccountSignInTest, AFailedAttemptLeavesWhoIsSignedIn)
{
    tryWith(wanted());
    const auto before = secrets.secrets;
    const auto account = signIn.account();
    CloudSignIn::Wanted other = wanted(false);
    other.passphrase = u"something else"_s;
    tryWith(other);
    EXPECT_EQ(problems.size(), 1);
    signIn.begin(wanted(false));
    signIn.cancel();
    scheduler.runPending();
    EXPECT_EQ(secrets.secrets, before);
    EXPECT_EQ(signIn.account(), account);
}

} // namespace
} // namespace quillon
