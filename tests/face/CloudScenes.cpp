// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Localized.h"
#include "face/FaceProgram.h"
#include "face/SceneSteps.h"
#include "face/SceneSubjects.h"
#include "fakes/FakeCloudPassphrase.h"
#include "fakes/FakeCloudSignIn.h"
#include "platform/AccountProbe.h"
#include "platform/CloudMessage.h"

#include <QAbstractButton>
#include <QLineEdit>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

using P = FaceProgram;
using Field = CloudSignInModel::Field;
using Problem = CloudSignIn::Problem;

const CloudAccount account{.kind = CloudAccount::Kind::WebDav,
    .server = QUrl(u"https://cloud.harbor.example/remote.php/dav/files/mila"_s),
    .user = u"mila"_s};
const CloudAccount folder{
    .kind = CloudAccount::Kind::Folder, .folder = u"/srv/mila/Documents/Synchronized/Quillon"_s};

/// It goes with the program.
FakeCloudSignIn &offerAccounts(P &program)
{
    auto *signIn = new FakeCloudSignIn;
    signIn->setParent(&program.features().preferences.cloudSignIn);
    program.features().preferences.cloudAccount.use(*signIn);
    program.features().preferences.cloudSignIn.use(*signIn);
    openPane<PreferencesPane::General>(program);
    return *signIn;
}

FakeCloudSignIn &openDialog(P &program)
{
    FakeCloudSignIn &signIn = offerAccounts(program);
    program.settle();
    P::part<QAbstractButton>(u"accountButton"_s).click();
    return signIn;
}

/// It goes with the program.
FakeCloudPassphrase &openPassphrase(P &program)
{
    offerAccounts(program).become(account);
    PassphraseModel &model = program.features().preferences.cloudPassphrase;
    auto *passphrase = new FakeCloudPassphrase;
    passphrase->setParent(&model);
    model.use(*passphrase);
    program.settle();
    P::part<QAbstractButton>(u"changePassphraseButton"_s).click();
    return *passphrase;
}

FakeCloudPassphrase &changePassphrase(P &program)
{
    FakeCloudPassphrase &passphrase = openPassphrase(program);
    for (const auto field : {PassphraseModel::Field::Current, PassphraseModel::Field::Passphrase,
             PassphraseModel::Field::Repeated}) {
        P::part<QLineEdit>(u"passphraseField%1"_s.arg(static_cast<int>(field)))
            .setText(u"four words for an example"_s);
    }
    program.features().preferences.cloudPassphrase.change();
    return passphrase;
}

/// By the name that the dialog gives the field.
void type(Field field, const QString &text)
{
    P::part<QLineEdit>(u"cloudField%1"_s.arg(static_cast<int>(field))).setText(text);
}

FakeCloudSignIn &fillDialog(P &program)
{
    FakeCloudSignIn &signIn = openDialog(program);
    type(Field::Address, u"https://cloud.harbor.example/apps/files"_s);
    type(Field::User, u"mila"_s);
    type(Field::Password, u"example"_s);
    type(Field::Passphrase, u"four words for an example"_s);
    return signIn;
}

FakeCloudSignIn &begin(P &program)
{
    FakeCloudSignIn &signIn = fillDialog(program);
    program.features().preferences.cloudSignIn.signIn();
    return signIn;
}

template <CloudProblem problem, Problem::About about>
void fail(P &program)
{
    begin(program).fail(
        {.text = cloudMessage(problem, CloudAccount::Kind::WebDav), .about = about});
}

void askAboutCertificate(P &program)
{
    begin(program).fail(
        {.text = cloudMessage(CloudProblem::UntrustedCertificate, CloudAccount::Kind::WebDav),
            .remedy = Problem::Remedy::AcceptCertificate,
            .fingerprint = QByteArray::fromHex("3af0c4d1e28b5596a0b7c8d9eafb0c1d"
                                               "2e3f40516273849505a6b7c8d9eafb0c"),
            .about = Problem::About::Address});
}

} // namespace

QList<FaceScene> cloudScenes()
{
    return {
        {u"cloud-offered"_s, nullptr, [](P &program) { offerAccounts(program); }},
        {u"cloud-empty"_s, nullptr, [](P &program) { openDialog(program); }},
        {u"cloud-filled"_s, nullptr, [](P &program) { fillDialog(program); }},
        {u"cloud-busy"_s, nullptr,
            [](P &program) { begin(program).goTo(CloudSignIn::Step::Unlocking); }},
        {u"cloud-missing"_s, nullptr,
            [](P &program) {
                openDialog(program);
                program.features().preferences.cloudSignIn.signIn();
            }},
        {u"cloud-wrong-password"_s, nullptr,
            fail<CloudProblem::WrongPassword, Problem::About::Password>},
        {u"cloud-unreachable"_s, nullptr, fail<CloudProblem::Unreachable, Problem::About::Address>},
        {u"cloud-no-account"_s, nullptr, fail<CloudProblem::NotAnAccount, Problem::About::Address>},
        {u"cloud-full"_s, nullptr, fail<CloudProblem::Full, Problem::About::Nothing>},
        {u"cloud-read-only"_s, nullptr, fail<CloudProblem::NotAllowed, Problem::About::Nothing>},
        {u"cloud-certificate"_s, nullptr, askAboutCertificate},
        {u"cloud-new-account"_s, nullptr,
            [](P &program) {
                begin(program).fail(
                    {.text = localized("This account is new. Repeat the passphrase."),
                        .remedy = Problem::Remedy::RepeatPassphrase});
            }},
        {u"cloud-other-passphrase"_s, nullptr,
            [](P &program) {
                begin(program).fail({.text = localized("The account has another passphrase."),
                    .remedy = Problem::Remedy::AnotherPassphrase});
            }},
        {u"cloud-folder"_s, nullptr,
            [](P &program) {
                openDialog(program);
                program.features().preferences.cloudSignIn.choose(CloudAccount::Kind::Folder);
                type(Field::Folder, folder.folder);
                type(Field::Passphrase, u"four words for an example"_s);
            }},
        {u"cloud-signed-in"_s, nullptr,
            [](P &program) { begin(program).succeed(account, AccountAbilities().sentence()); }},
        {u"cloud-signed-in-folder"_s, nullptr,
            [](P &program) { offerAccounts(program).become(folder); }},
        {u"cloud-passphrase"_s, nullptr, [](P &program) { openPassphrase(program); }},
        {u"cloud-passphrase-busy"_s, nullptr,
            [](P &program) { changePassphrase(program).goTo(CloudPassphrase::Step::Checking); }},
        {u"cloud-passphrase-writing"_s, nullptr,
            [](P &program) { changePassphrase(program).goTo(CloudPassphrase::Step::Writing); }},
        {u"cloud-passphrase-wrong"_s, nullptr,
            [](P &program) {
                changePassphrase(program).fail({u"This is not the current passphrase."_s,
                    CloudPassphrase::Problem::About::Current});
            }},
        {u"cloud-passphrase-lost"_s, nullptr,
            [](P &program) {
                changePassphrase(program).fail(
                    {u"The connection was lost. Either the new passphrase or the current one "
                     "opens the account now."_s});
            }},
        {u"cloud-passphrase-changed"_s, nullptr,
            [](P &program) { changePassphrase(program).succeed(); }},
        {u"cloud-signed-out"_s, nullptr,
            [](P &program) {
                offerAccounts(program).become(account);
                program.features().preferences.cloudAccount.signOut();
            }},
    };
}

} // namespace quillon::test
