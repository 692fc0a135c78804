// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/PassphraseChange.h"

#include "cloud/CloudAccounts.h"
#include "fakes/FakeCloudProvider.h"
#include "fakes/FakeScheduler.h"
#include "fakes/FakeSecretStore.h"
#include "fakes/FakeSettingsStore.h"
#include "fakes/QtPrinting.h"
#include "platform/CloudMessage.h"
#include "sync/AccountFile.h"
#include "unit/sync/SeededRandom.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;
using Step = CloudPassphrase::Step;
using About = CloudPassphrase::Problem::About;
using Fault = test::FakeCloudStorage::Fault;

const QString before = u"correct horse"_s;
const QString after = u"battery staple"_s;

class PassphraseChangeTest : public ::testing::Test
{
protected:
    PassphraseChangeTest()
    {
        accounts.set(server);
        startAnew();
    }

    QByteArray file(const AccountKey &ofKey, const QString &passphrase, std::uint32_t number = 1)
    {
        return WrappedKey::wrap(ofKey, passphrase.toUtf8(), random, {1, 8}, number).value();
    }
    /// The account and the keyring as signing in leaves them.
    void startAnew()
    {
        random = test::SeededRandom(7);
        provider.account.files.clear();
        provider.account.put(keyFileName, file(key, before));
        keepCopy(there());
    }
    void keepCopy(const QByteArray &copy)
    {
        CloudSecrets(secrets).keep(server,
            {u"app password"_s, std::make_shared<const OpenedKey>(
                                    OpenedKey{AccountKey::fromBytes(key.bytes()).value(), copy})},
            [](const auto &) {});
        scheduler.runPending();
        secrets.asked.clear();
    }
    QByteArray there() const { return provider.account.files.value(keyFileName).bytes; }
    QByteArray copy()
    {
        QByteArray found;
        CloudSecrets(secrets).read(server, [&](const auto &answer) {
            found = std::get<std::optional<CloudSecrets::Kept>>(answer).value().key->file;
        });
        scheduler.runPending();
        return found;
    }
    bool opens(const QString &passphrase) const
    {
        const auto opened = WrappedKey::unwrap(there(), passphrase.toUtf8());
        return std::holds_alternative<AccountKey>(opened) &&
               std::get<AccountKey>(opened).fingerprint() == key.fingerprint();
    }
    void make()
    {
        change = std::make_unique<PassphraseChange>(PassphraseChange::Collaborators{
            provider, secrets, scheduler, random, accounts, {1, 8}});
        QObject::connect(
            change.get(), &CloudPassphrase::stepChanged, [this] { steps << change->step(); });
        QObject::connect(change.get(), &CloudPassphrase::failed,
            [this](const CloudPassphrase::Problem &problem) { problems << problem; });
        QObject::connect(change.get(), &CloudPassphrase::changed, [this] { ++changes; });
    }
    void say(const CloudPassphrase::Wanted &wanted)
    {
        steps.clear();
        problems.clear();
        changes = 0;
        provider.asked.clear();
        if (!change) {
            make();
        }
        change->begin(wanted);
        scheduler.runPending();
    }
    void say(const QString &current = before) { say({current, after, after}); }
    void expectRefused(About about = About::Nothing)
    {
        EXPECT_EQ(changes, 0);
        ASSERT_EQ(problems.size(), 1);
        EXPECT_FALSE(problems.first().text.isEmpty());
        EXPECT_EQ(problems.first().about, about);
        EXPECT_EQ(change->step(), Step::None);
        EXPECT_EQ(provider.storages, 0);
    }

    const CloudAccount server{CloudAccount::Kind::WebDav, QUrl(u"https://cloud.example/dav/ada"_s),
        u"ada"_s, u"Quillon"_s};
    test::FakeScheduler scheduler;
    test::FakeSettingsStore settings{scheduler};
    test::FakeCloudProvider provider{scheduler};
    test::FakeSecretStore secrets{scheduler};
    test::SeededRandom random{7};
    const AccountKey key = AccountKey::random(random).value();
    CloudAccounts accounts{settings};
    std::unique_ptr<PassphraseChange> change;
    QList<Step> steps;
    QList<CloudPassphrase::Problem> problems;
    int changes = 0;
};

TEST_F(PassphraseChangeTest, TheNewPassphraseOpensTheSameKeyAndTheOldOneNothing)
{
    say();
    EXPECT_EQ(changes, 1);
    EXPECT_TRUE(problems.isEmpty());
    EXPECT_TRUE(opens(after));
    EXPECT_FALSE(opens(before));
    EXPECT_EQ(copy(), there());
    EXPECT_EQ(std::get<std::uint32_t>(WrappedKey::check(there(), key)), 2U);
    EXPECT_EQ(
        steps, (QList{Step::Reading, Step::Checking, Step::Writing, Step::Keeping, Step::None}));
    EXPECT_EQ(provider.asked,
        (QStringList{u"read key"_s, u"look key"_s, u"replace key"_s, u"read key"_s}));
    EXPECT_EQ(provider.lastPassword, u"app password"_s);
    EXPECT_EQ(provider.storages, 0);
    say({after, before, before});
    EXPECT_EQ(changes, 1);
    EXPECT_TRUE(opens(before));
    EXPECT_FALSE(opens(after));
}

TEST_F(PassphraseChangeTest, OneSpellingOfAPassphraseIsAsGoodAsAnother)
{
    say({before, u"schönes Wörtchen"_s, u"scho\u0308nes Wo\u0308rtchen"_s});
    EXPECT_EQ(changes, 1);
    EXPECT_TRUE(opens(u"schönes Wörtchen"_s));
}

TEST_F(PassphraseChangeTest, WhatIsMissingOrWrongInItselfAsksNobody)
{
    const std::initializer_list<std::pair<CloudPassphrase::Wanted, About>> said{
        {{{}, after, after}, About::Current}, {{before, {}, {}}, About::Passphrase},
        {{before, u"seven77"_s, u"seven77"_s}, About::Passphrase},
        {{before, after, {}}, About::Repeated}, {{before, after, before}, About::Repeated},
        {{before, before, before}, About::Passphrase}};
    for (const auto &[wanted, about] : said) {
        say(wanted);
        expectRefused(about);
        EXPECT_TRUE(provider.asked.isEmpty());
        EXPECT_TRUE(secrets.asked.isEmpty());
    }
    accounts.forget();
    say();
    expectRefused();
}

TEST_F(PassphraseChangeTest, AWrongPassphraseIsToldAndChangesNothing)
{
    const auto files = provider.account.files;
    const auto kept = secrets.secrets;
    say(u"Correct horse"_s);
    expectRefused(About::Current);
    EXPECT_EQ(provider.account.files, files);
    EXPECT_EQ(secrets.secrets, kept);
    EXPECT_EQ(provider.asked, QStringList{u"read key"_s});
}

TEST_F(PassphraseChangeTest, WithoutTheKeyringNothingIsChanged)
{
    secrets.problem = SecretStore::Problem::Refused;
    say();
    expectRefused();
    EXPECT_EQ(problems.first().text, secretMessage(SecretStore::Problem::Refused));
    secrets.problem.reset();
    secrets.secrets.clear();
    say();
    expectRefused();
    EXPECT_TRUE(provider.asked.isEmpty());
    EXPECT_TRUE(opens(before));
}

TEST_F(PassphraseChangeTest, AKeyringThatDoesNotTakeTheCopyDoesNotUndoTheChange)
{
    secrets.problem = SecretStore::Problem::NoKeyring;
    secrets.failsFrom = 2;
    say();
    EXPECT_EQ(changes, 1);
    EXPECT_TRUE(opens(after));
}

TEST_F(PassphraseChangeTest, AnotherKeyInTheSamePlaceIsLeftAlone)
{
    const AccountKey other = AccountKey::random(random).value();
    const QByteArray newer("QLKY\2 of the future");
    QSet<QString> texts;
    for (const QByteArray &bytes :
        {file(other, before), newer, QByteArray(WrappedKey::longest + 1, 'x')}) {
        provider.account.put(keyFileName, bytes);
        say();
        expectRefused();
        texts << problems.first().text;
        EXPECT_EQ(there(), bytes);
    }
    EXPECT_EQ(texts.size(), 3);
}

TEST_F(PassphraseChangeTest, TheCopyStandsForAFileThatIsMissingDamagedOrAnEarlierOne)
{
    keepCopy(file(key, before, 5));
    const QString earlier = u"earlier words"_s;
    for (const QByteArray &bytes : {QByteArray("rubbish"), QByteArray(), file(key, earlier, 4)}) {
        provider.account.put(keyFileName, bytes);
        say(earlier);
        expectRefused(About::Current);
        EXPECT_EQ(there(), bytes);
        say();
        EXPECT_EQ(changes, 1);
        EXPECT_TRUE(opens(after));
        keepCopy(file(key, before, 5));
    }
    provider.account.files.clear();
    say();
    EXPECT_EQ(changes, 1);
    EXPECT_TRUE(opens(after));
    EXPECT_TRUE(provider.asked.contains(u"create key"_s));
    keepCopy("rubbish");
    for (const bool isMissing : {true, false}) {
        provider.account.files.clear();
        if (!isMissing) {
            provider.account.put(keyFileName, "rubbish");
        }
        say();
        expectRefused();
        EXPECT_EQ(there(), isMissing ? QByteArray() : QByteArray("rubbish"));
    }
}

TEST_F(PassphraseChangeTest, AFileThatWasChangedMeanwhileIsNotReplaced)
{
    const QString theirs = u"their passphrase"_s;
    for (const QString &moment : {u"look key"_s, u"replace key"_s, u"read key"_s}) {
        // What an account that overlooks the condition replaces is told by who wrote it.
        startAnew();
        int reads = 0;
        provider.beforeAnswer = [&](const QString &what) {
            reads += what == u"read key" ? 1 : 0;
            if (what == moment && (moment != u"read key" || reads == 2)) {
                provider.account.put(keyFileName, file(key, theirs, 2));
            }
        };
        say();
        expectRefused();
        EXPECT_TRUE(opens(theirs)) << moment.toStdString();
        EXPECT_TRUE(std::holds_alternative<std::uint32_t>(WrappedKey::check(copy(), key)));
    }
}

TEST_F(PassphraseChangeTest, OfTwoComputersOneWinsAlsoWhereConditionsAreOverlooked)
{
    provider.account.honorsPreconditions = false;
    PassphraseChange theirs({provider, secrets, scheduler, random, accounts, {1, 8}});
    QStringList told;
    QObject::connect(&theirs, &CloudPassphrase::changed, [&told] { told << u"changed"_s; });
    QObject::connect(&theirs, &CloudPassphrase::failed, [&told] { told << u"failed"_s; });
    const QString other = u"their passphrase"_s;
    theirs.begin({before, other, other});
    say();
    EXPECT_EQ(told.size(), 1);
    EXPECT_EQ(changes + int(problems.size()), 1);
    EXPECT_EQ(opens(after), changes == 1);
    EXPECT_EQ(opens(other), told.contains(u"changed"_s));
    EXPECT_NE(opens(after), opens(other));
}

TEST_F(PassphraseChangeTest, WhateverBecomesOfARequestItIsToldWhichPassphraseOpens)
{
    for (const Fault fault : {Fault::Lost, Fault::AnswerLost, Fault::Cut, Fault::Twice}) {
        for (int number = 0; number < 4; ++number) {
            startAnew();
            int answered = 0;
            provider.fault = [&](const QString &) {
                return answered++ == number ? fault : Fault::None;
            };
            say();
            provider.fault = {};
            EXPECT_EQ(changes + int(problems.size()), 1) << number;
            EXPECT_NE(opens(before), opens(after)) << number;
            if (changes == 1) {
                EXPECT_TRUE(opens(after)) << number;
                EXPECT_EQ(copy(), there());
            }
            if (number < 2 && fault != Fault::Twice) {
                EXPECT_TRUE(opens(before)) << number;
            }
            for (const auto &late : std::exchange(provider.account.late, {})) {
                late();
            }
            EXPECT_NE(opens(before), opens(after)) << "also when it arrives once more";
        }
    }
}

TEST_F(PassphraseChangeTest, AFileThatIsCutOffAgainAndAgainIsMendedByTheNextAttempt)
{
    provider.fault = [](const QString &what) {
        return what.startsWith(u"re"_s) && what != u"read key" ? Fault::Cut : Fault::None;
    };
    say();
    expectRefused();
    EXPECT_EQ(provider.asked.count(u"replace key"_s), 3);
    provider.fault = {};
    say();
    EXPECT_EQ(changes, 1);
    EXPECT_TRUE(opens(after));
}

TEST_F(PassphraseChangeTest, WhereItIsNotKnownWhatBecameOfItThatIsSaid)
{
    bool hasWritten = false;
    provider.fault = [&hasWritten](const QString &what) {
        hasWritten |= what == u"replace key";
        return hasWritten ? Fault::AnswerLost : Fault::None;
    };
    say();
    expectRefused();
    EXPECT_NE(
        problems.first().text, cloudMessage(CloudProblem::Unreachable, CloudAccount::Kind::WebDav));
    EXPECT_TRUE(opens(after)) << "which nobody could know";
}

TEST_F(PassphraseChangeTest, EitherPassphraseOpensWhereverTheProgramIsKilled)
{
    for (const Fault fault : {Fault::None, Fault::AnswerLost, Fault::Cut}) {
        for (int number = 0; number < 8; ++number) {
            startAnew();
            int answered = 0;
            // Before the answer is heard, and before what comes of it.
            provider.fault = [&](const QString &) {
                const bool isLast = answered++ == number;
                if (isLast) {
                    scheduler.onMain([this] { change.reset(); });
                }
                return isLast ? fault : Fault::None;
            };
            say();
            provider.fault = {};
            change.reset();
            scheduler.runPending();
            make();
            const bool isCut =
                std::holds_alternative<KeyFileProblem>(WrappedKey::check(there(), key));
            if (!isCut) {
                EXPECT_NE(opens(before), opens(after)) << number;
            }
            const QString holds = opens(after) ? after : before;
            say({holds, u"the third passphrase"_s, u"the third passphrase"_s});
            EXPECT_EQ(changes, 1) << number;
            EXPECT_TRUE(opens(u"the third passphrase"_s));
        }
    }
}

TEST_F(PassphraseChangeTest, ItCanBeGivenUpUntilTheNewFileIsOnItsWay)
{
    make();
    const QByteArray whole = there();
    for (const Step at : {Step::Reading, Step::Checking}) {
        const auto giveUp = QObject::connect(change.get(), &CloudPassphrase::stepChanged, [&] {
            if (change->step() == at) {
                EXPECT_TRUE(change->cancel());
            }
        });
        say();
        QObject::disconnect(giveUp);
        EXPECT_EQ(changes, 0);
        EXPECT_TRUE(problems.isEmpty());
        EXPECT_EQ(there(), whole);
        EXPECT_EQ(provider.storages, 0);
    }
    const auto tooLate = QObject::connect(change.get(), &CloudPassphrase::stepChanged, [&] {
        if (change->step() == Step::Writing || change->step() == Step::Keeping) {
            EXPECT_FALSE(change->cancel());
            change->begin({before, u"something else"_s, u"something else"_s});
        }
    });
    say();
    QObject::disconnect(tooLate);
    EXPECT_EQ(changes, 1);
    EXPECT_TRUE(opens(after));
    EXPECT_TRUE(change->cancel()) << "nothing is under way";
}

TEST_F(PassphraseChangeTest, ItCanBeGivenUpWhileTheAccountOrThePassphraseIsWaitedFor)
{
    make();
    change->begin({before, after, after});
    EXPECT_TRUE(change->cancel());
    provider.beforeAnswer = [this](const QString &what) {
        if (what == u"read key") {
            scheduler.onMain([this] { EXPECT_TRUE(change->cancel()); });
        }
    };
    say();
    EXPECT_EQ(steps, (QList{Step::Reading, Step::Checking, Step::None}));
    EXPECT_EQ(provider.asked, QStringList{u"read key"_s});
    EXPECT_EQ(changes, 0);
    EXPECT_TRUE(problems.isEmpty());
    EXPECT_TRUE(opens(before));
    EXPECT_EQ(provider.storages, 0);
}

TEST_F(PassphraseChangeTest, SignedOutMeanwhileItKeepsNothing)
{
    provider.beforeAnswer = [this](const QString &what) {
        if (what == u"look key") {
            accounts.forget();
        }
    };
    say();
    expectRefused();
    EXPECT_TRUE(opens(before));
    accounts.set(server);
    provider.beforeAnswer = [this](const QString &what) {
        if (what == u"replace key") {
            accounts.forget();
            secrets.secrets.clear();
        }
    };
    say();
    EXPECT_EQ(changes, 1);
    EXPECT_TRUE(secrets.secrets.isEmpty());
}

} // namespace
} // namespace quillon
