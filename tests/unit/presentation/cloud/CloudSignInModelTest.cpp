// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/cloud/CloudSignInModel.h"

#include "fakes/FakeCloudSignIn.h"
#include "fakes/QtPrinting.h"

#include <QDir>
#include <gmock/gmock.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Field = CloudSignInModel::Field;
using Kind = CloudAccount::Kind;
using LineKind = CloudSignInModel::Line::Kind;
using Problem = CloudSignIn::Problem;

class CloudSignInModelTest : public ::testing::Test
{
protected:
    CloudSignInModelTest()
    {
        model.use(signIn);
        QObject::connect(
            &model, &CloudSignInModel::fieldWanted, [this](Field field) { wanted.append(field); });
        QObject::connect(&model, &CloudSignInModel::signedIn, [this] { ++signedIn; });
    }

    void fill()
    {
        model.open();
        model.edit(Field::Address, u"cloud.example"_s);
        model.edit(Field::User, u"mila"_s);
        model.edit(Field::Password, u"app-password"_s);
        model.edit(Field::Passphrase, u"a long passphrase"_s);
    }
    void fillAndBegin()
    {
        fill();
        model.signIn();
        ASSERT_EQ(signIn.attempts.size(), 1);
    }
    void expectRefused(Field field, const QString &why)
    {
        const qsizetype before = signIn.attempts.size();
        wanted.clear();
        model.signIn();
        EXPECT_EQ(signIn.attempts.size(), before);
        EXPECT_THAT(wanted, ElementsAre(field));
        EXPECT_EQ(model.state().line.kind, LineKind::Failure);
        EXPECT_EQ(model.state().line.text, why);
        EXPECT_FALSE(model.state().isBusy);
    }
    /// Everything that a state could tell a screen or a log.
    QString shownOf(const CloudSignInModel::State &state)
    {
        return state.line.text + state.fingerprint;
    }

    const CloudAccount account{.kind = Kind::WebDav,
        .server = QUrl(u"https://cloud.example/remote.php/dav/files/mila"_s),
        .user = u"mila"_s,
        .fingerprint = QByteArray(32, '\x11')};
    const QByteArray fingerprint = QByteArray::fromHex("3af0") + QByteArray(30, '\x07');
    FakeCloudSignIn signIn;
    CloudSignInModel model;
    QList<Field> wanted;
    int signedIn = 0;
};

TEST_F(CloudSignInModelTest, StaysClosedWithoutAnybodyWhoSignsIn)
{
    CloudSignInModel alone;
    alone.open();
    EXPECT_FALSE(alone.state().isOpen);
    alone.close();
    alone.signIn();
    alone.cancel();
    EXPECT_EQ(alone.state(), CloudSignInModel::State());
}

TEST_F(CloudSignInModelTest, SaysWhatWasTyped)
{
    fill();
    model.edit(Field::Address, u"  https://cloud.example/apps/files \n"_s);
    model.edit(Field::User, u" mila "_s);
    model.edit(Field::Password, u" xK3-p \r\n"_s);
    model.signIn();
    ASSERT_EQ(signIn.attempts.size(), 1);
    const auto &said = signIn.attempts.first();
    EXPECT_EQ(said.kind, Kind::WebDav);
    EXPECT_EQ(said.address, u"https://cloud.example/apps/files"_s);
    EXPECT_EQ(said.user, u"mila"_s);
    EXPECT_EQ(said.password, u" xK3-p "_s) << "a space may be part of it, the end of a line not";
    EXPECT_EQ(said.passphrase, u"a long passphrase"_s);
    EXPECT_EQ(said.repeatedPassphrase, QString());
    EXPECT_TRUE(said.fingerprint.isEmpty());
    EXPECT_EQ(model.text(Field::User), u" mila "_s) << "the field stays as it is";
}

TEST_F(CloudSignInModelTest, OfAFolderSaysNothingOfAServer)
{
    fill();
    model.choose(Kind::Folder);
    for (const auto &[typed, path] : std::initializer_list<std::pair<QString, QString>>{
             {u" /srv/mila/Sync/ "_s, u"/srv/mila/Sync"_s},
             {u"file:///srv/mila/My%20Sync"_s, u"/srv/mila/My Sync"_s},
             {u"~/Sync"_s, QDir::homePath() + u"/Sync"_s}}) {
        model.edit(Field::Folder, typed);
        model.signIn();
        const auto &said = signIn.attempts.constLast();
        EXPECT_EQ(said.kind, Kind::Folder);
        EXPECT_EQ(said.folder, path);
        EXPECT_EQ(said.address + said.user + said.password, QString());
        EXPECT_EQ(said.passphrase, u"a long passphrase"_s);
        model.cancel();
    }
    EXPECT_EQ(model.text(Field::Password), u"app-password"_s) << "it is there when one goes back";
}

TEST_F(CloudSignInModelTest, AsksForWhatIsMissingFromTheTopDown)
{
    model.open();
    expectRefused(Field::Address, u"Enter the address of the server."_s);
    model.edit(Field::Address, u"  "_s);
    expectRefused(Field::Address, u"Enter the address of the server."_s);
    model.edit(Field::Address, u"cloud.example"_s);
    EXPECT_EQ(model.state().line.text, QString()) << "it is being mended";
    expectRefused(Field::User, u"Enter your user name."_s);
    model.edit(Field::User, u"mila"_s);
    expectRefused(Field::Password, u"Enter an app password."_s);
    model.edit(Field::Password, u"\n"_s);
    expectRefused(Field::Password, u"Enter an app password."_s);
    model.edit(Field::Password, u"x"_s);
    expectRefused(Field::Passphrase, u"Enter a passphrase."_s);
    model.choose(Kind::Folder);
    expectRefused(Field::Folder, u"Choose a folder."_s);
    model.edit(Field::Folder, u"Sync"_s);
    expectRefused(Field::Folder, u"Write the whole path of the folder."_s);
    model.edit(Field::Folder, u"/srv/mila/Sync"_s);
    expectRefused(Field::Passphrase, u"Enter a passphrase."_s);
}

TEST_F(CloudSignInModelTest, WhileItIsUnderWayNothingChangesAndNothingBeginsTwice)
{
    fillAndBegin();
    EXPECT_TRUE(model.state().isBusy);
    model.signIn();
    model.acceptCertificate();
    model.edit(Field::Address, u"other.example"_s);
    model.choose(Kind::Folder);
    EXPECT_EQ(signIn.attempts.size(), 1);
    EXPECT_EQ(model.text(Field::Address), u"cloud.example"_s);
    EXPECT_EQ(model.state().kind, Kind::WebDav);
}

TEST_F(CloudSignInModelTest, SaysHowFarItIs)
{
    using Step = CloudSignIn::Step;
    fillAndBegin();
    for (const auto &[step, text] : std::initializer_list<std::pair<Step, QString>>{
             {Step::Looking, u"Looking for your files…"_s},
             {Step::Trying, u"Trying what the account can do…"_s},
             {Step::Unlocking, u"Opening the account with the passphrase…"_s},
             {Step::Keeping, u"Waiting for the keyring…"_s}}) {
        signIn.goTo(step);
        EXPECT_EQ(model.state().line.kind, LineKind::Progress);
        EXPECT_EQ(model.state().line.text, text);
    }
    model.cancel();
    EXPECT_EQ(model.state().line.text, QString());
}

TEST_F(CloudSignInModelTest, AFailureIsSaidAtItsFieldAndLosesNothingThatWasTyped)
{
    using About = Problem::About;
    fill();
    for (const auto &[about, field] :
        std::initializer_list<std::pair<About, Field>>{{About::Nothing, Field::Nothing},
            {About::Address, Field::Address}, {About::Password, Field::Password},
            {About::Folder, Field::Folder}, {About::Passphrase, Field::Passphrase}}) {
        wanted.clear();
        model.signIn();
        signIn.fail({.text = u"It did not work."_s, .about = about});
        EXPECT_FALSE(model.state().isBusy);
        EXPECT_TRUE(model.state().isOpen);
        EXPECT_EQ(model.state().line.kind, LineKind::Failure);
        EXPECT_EQ(model.state().line.text, u"It did not work."_s);
        EXPECT_THAT(wanted, ElementsAre(field));
        EXPECT_EQ(model.text(Field::Address), u"cloud.example"_s);
        EXPECT_EQ(model.text(Field::User), u"mila"_s);
        EXPECT_EQ(model.text(Field::Password), u"app-password"_s);
        EXPECT_EQ(model.text(Field::Passphrase), u"a long passphrase"_s);
    }
}

TEST_F(CloudSignInModelTest, TheSameFailureTwiceIsSaidTwice)
{
    QStringList lines;
    QObject::connect(
        &model, &CloudSignInModel::changed, [&] { lines.append(model.state().line.text); });
    fillAndBegin();
    signIn.fail({.text = u"No."_s});
    model.signIn();
    signIn.fail({.text = u"No."_s});
    lines.removeAll(QString());
    EXPECT_THAT(lines, ElementsAre(u"No."_s, u"No."_s));
}

TEST_F(CloudSignInModelTest, ANewAccountIsAskedItsPassphraseTwice)
{
    fillAndBegin();
    EXPECT_FALSE(model.state().asksToRepeat);
    signIn.fail({.text = u"This account is new."_s, .remedy = Problem::Remedy::RepeatPassphrase});
    EXPECT_TRUE(model.state().asksToRepeat);
    EXPECT_EQ(model.state().line.kind, LineKind::Notice) << "nobody did anything wrong";
    EXPECT_THAT(wanted, ElementsAre(Field::RepeatedPassphrase));
    expectRefused(Field::RepeatedPassphrase, u"The two passphrases are not the same."_s);
    model.edit(Field::RepeatedPassphrase, u"another"_s);
    expectRefused(Field::RepeatedPassphrase, u"The two passphrases are not the same."_s);
    model.edit(Field::RepeatedPassphrase, u"a long passphrase"_s);
    model.signIn();
    ASSERT_EQ(signIn.attempts.size(), 2);
    EXPECT_EQ(signIn.attempts.constLast().repeatedPassphrase, u"a long passphrase"_s);
}

TEST_F(CloudSignInModelTest, WhetherAnotherAccountIsNewIsNotKnown)
{
    for (const Field place : {Field::Address, Field::User}) {
        fill();
        model.signIn();
        signIn.fail({.text = u"New."_s, .remedy = Problem::Remedy::RepeatPassphrase});
        model.edit(Field::RepeatedPassphrase, u"a long passphrase"_s);
        model.edit(place, u"other"_s);
        EXPECT_FALSE(model.state().asksToRepeat);
        EXPECT_EQ(model.text(Field::RepeatedPassphrase), QString());
        model.signIn();
        EXPECT_EQ(signIn.attempts.constLast().repeatedPassphrase, QString());
        model.close();
    }
}

TEST_F(CloudSignInModelTest, AnAccountWithAnotherPassphraseIsNotNew)
{
    fillAndBegin();
    signIn.fail({.text = u"New."_s, .remedy = Problem::Remedy::RepeatPassphrase});
    model.edit(Field::RepeatedPassphrase, u"a long passphrase"_s);
    model.signIn();
    // Another computer was faster.
    signIn.fail({.text = u"Another passphrase."_s, .remedy = Problem::Remedy::AnotherPassphrase});
    EXPECT_FALSE(model.state().asksToRepeat);
    EXPECT_EQ(wanted.constLast(), Field::Passphrase);
    EXPECT_EQ(model.text(Field::Passphrase), u"a long passphrase"_s);
    EXPECT_EQ(model.text(Field::RepeatedPassphrase), QString());
}

TEST_F(CloudSignInModelTest, ACertificateIsAcceptedOnlyByItsFingerprint)
{
    const Problem problem{.text = u"The server's certificate is not trusted."_s,
        .remedy = Problem::Remedy::AcceptCertificate,
        .fingerprint = fingerprint};
    fillAndBegin();
    signIn.fail(problem);
    EXPECT_EQ(model.state().fingerprint, fingerprintText(fingerprint));
    EXPECT_THAT(wanted, ElementsAre(Field::Certificate));
    EXPECT_THAT(model.fingerprintGroups(),
        ElementsAre(u"3A:F0:07:07:07:07:07:07:"_s, u"07:07:07:07:07:07:07:07:"_s,
            u"07:07:07:07:07:07:07:07:"_s, u"07:07:07:07:07:07:07:07"_s));
    EXPECT_EQ(model.fingerprintGroups().join(QString()), fingerprintText(fingerprint));
    model.signIn();
    EXPECT_TRUE(signIn.attempts.constLast().fingerprint.isEmpty()) << "Return accepts nothing";
    signIn.fail(problem);
    model.acceptCertificate();
    EXPECT_EQ(signIn.attempts.constLast().fingerprint, fingerprint);
    EXPECT_EQ(model.state().fingerprint, QString());
    signIn.fail({.text = u"No."_s});
    model.signIn();
    EXPECT_EQ(signIn.attempts.constLast().fingerprint, fingerprint) << "it stays accepted";
}

TEST_F(CloudSignInModelTest, AnAcceptedCertificateIsThatOfItsServer)
{
    fillAndBegin();
    signIn.fail({.remedy = Problem::Remedy::AcceptCertificate, .fingerprint = fingerprint});
    model.acceptCertificate();
    signIn.fail(
        {.remedy = Problem::Remedy::AcceptCertificate, .fingerprint = QByteArray(32, '\x42')});
    EXPECT_EQ(model.state().fingerprint, fingerprintText(QByteArray(32, '\x42')));
    model.edit(Field::Address, u"other.example"_s);
    EXPECT_EQ(model.state().fingerprint, QString()) << "nothing to accept any more";
    model.acceptCertificate();
    EXPECT_EQ(signIn.attempts.size(), 2);
    model.signIn();
    EXPECT_TRUE(signIn.attempts.constLast().fingerprint.isEmpty());
}

TEST_F(CloudSignInModelTest, ACertificateWithoutAFingerprintCannotBeAccepted)
{
    fillAndBegin();
    signIn.fail({.text = u"Not trusted."_s, .remedy = Problem::Remedy::AcceptCertificate});
    EXPECT_THAT(wanted, ElementsAre(Field::Address));
    model.acceptCertificate();
    EXPECT_EQ(signIn.attempts.size(), 1);
}

TEST_F(CloudSignInModelTest, CancelEndsTheAttemptFirstAndTheDialogThen)
{
    fillAndBegin();
    model.cancel();
    EXPECT_FALSE(signIn.isUnderWay);
    EXPECT_EQ(signIn.cancelled, 1);
    EXPECT_TRUE(model.state().isOpen);
    EXPECT_EQ(model.text(Field::Password), u"app-password"_s);
    model.cancel();
    EXPECT_FALSE(model.state().isOpen);
    EXPECT_EQ(signIn.cancelled, 1) << "there was nothing to cancel";
}

TEST_F(CloudSignInModelTest, WhatComesAfterACancelIsNotForIt)
{
    fillAndBegin();
    model.cancel();
    signIn.fail({.text = u"Late."_s, .remedy = Problem::Remedy::RepeatPassphrase});
    signIn.succeed(account, u"Late."_s);
    EXPECT_EQ(model.state().line.text, QString());
    EXPECT_FALSE(model.state().asksToRepeat);
    EXPECT_TRUE(model.state().isOpen);
    EXPECT_EQ(signedIn, 0);
    EXPECT_THAT(wanted, IsEmpty());
}

TEST_F(CloudSignInModelTest, ClosedItForgetsThePasswordsAndKeepsTheRest)
{
    fillAndBegin();
    model.close();
    EXPECT_FALSE(signIn.isUnderWay);
    for (const Field secret : {Field::Password, Field::Passphrase, Field::RepeatedPassphrase}) {
        EXPECT_EQ(model.text(secret), QString());
    }
    EXPECT_FALSE(model.state().isBusy);
    model.open();
    EXPECT_EQ(model.text(Field::Address), u"cloud.example"_s);
    EXPECT_EQ(model.text(Field::User), u"mila"_s);
}

TEST_F(CloudSignInModelTest, SignedInItClosesAndForgetsThePasswords)
{
    fillAndBegin();
    signIn.succeed(account, u"This account can be used."_s);
    EXPECT_FALSE(model.state().isOpen);
    EXPECT_EQ(signedIn, 1);
    EXPECT_EQ(model.text(Field::Password) + model.text(Field::Passphrase), QString());
}

TEST_F(CloudSignInModelTest, BeginsWithTheAccountThatIsSignedIn)
{
    signIn.become(account);
    model.open();
    EXPECT_EQ(model.text(Field::Address), account.server.toString());
    EXPECT_EQ(model.text(Field::User), u"mila"_s);
    EXPECT_EQ(model.text(Field::Password), QString());
    model.edit(Field::Password, u"new"_s);
    model.edit(Field::Passphrase, u"phrase"_s);
    model.signIn();
    EXPECT_EQ(signIn.attempts.constLast().fingerprint, account.fingerprint)
        << "its certificate was accepted";
    model.close();
    signIn.become(CloudAccount{.kind = Kind::Folder, .folder = u"/srv/mila/Sync"_s});
    model.open();
    EXPECT_EQ(model.state().kind, Kind::Folder);
    EXPECT_EQ(model.text(Field::Folder), u"/srv/mila/Sync"_s);
    model.close();
    signIn.become(std::nullopt);
    model.open();
    EXPECT_EQ(model.text(Field::Folder), u"/srv/mila/Sync"_s) << "to sign in again";
}

TEST_F(CloudSignInModelTest, NoPasswordIsEverShown)
{
    QString shown;
    QObject::connect(&model, &CloudSignInModel::changed, [&] { shown += shownOf(model.state()); });
    fillAndBegin();
    signIn.fail({.text = u"New."_s, .remedy = Problem::Remedy::RepeatPassphrase});
    model.edit(Field::RepeatedPassphrase, u"other secret"_s);
    model.signIn();
    EXPECT_FALSE(shown.isEmpty());
    for (const QString &secret : {u"app-password"_s, u"a long passphrase"_s, u"other secret"_s}) {
        EXPECT_FALSE(shown.contains(secret));
    }
}

} // namespace
} // namespace quillon::test
