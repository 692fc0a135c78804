// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/SignInProblem.h"

#include "base/Localized.h"
#include "platform/CloudMessage.h"

namespace quillon {

namespace {

using Problem = CloudSignIn::Problem;
using Remedy = Problem::Remedy;
using About = Problem::About;

} // namespace

Problem signInProblem(const CloudError &error, CloudAccount::Kind kind)
{
    Problem problem{.text = cloudMessage(error.problem, kind)};
    if (kind == CloudAccount::Kind::Folder) {
        problem.about = About::Folder;
    } else if (error.problem == CloudProblem::WrongPassword) {
        problem.about = About::Password;
    } else {
        problem.about = About::Address;
    }
    if (error.problem == CloudProblem::UntrustedCertificate && !error.fingerprint.isEmpty()) {
        problem.remedy = Remedy::AcceptCertificate;
        problem.fingerprint = error.fingerprint;
    }
    return problem;
}

Problem signInProblem(AccountUnlocking::Obstacle obstacle)
{
    Problem problem{.about = About::Passphrase};
    switch (obstacle) {
    case AccountUnlocking::Obstacle::NotRepeated:
        problem.remedy = Remedy::RepeatPassphrase;
        problem.text = localized("This account is new. Repeat the passphrase.");
        break;
    case AccountUnlocking::Obstacle::RepeatedOther:
        problem.remedy = Remedy::RepeatPassphrase;
        problem.text = localized("The two passphrases differ.");
        break;
    case AccountUnlocking::Obstacle::TooShort:
        problem.text =
            localized("The passphrase is too short: it needs at least eight characters.");
        break;
    case AccountUnlocking::Obstacle::WrongPassphrase:
        problem.remedy = Remedy::AnotherPassphrase;
        problem.text = keyFileMessage(KeyFileProblem::WrongPassphrase);
        break;
    case AccountUnlocking::Obstacle::Damaged:
        problem.about = About::Nothing;
        problem.text = keyFileMessage(KeyFileProblem::Damaged);
        break;
    case AccountUnlocking::Obstacle::Newer:
        problem.about = About::Nothing;
        problem.text = keyFileMessage(KeyFileProblem::Newer);
        break;
    case AccountUnlocking::Obstacle::KeyLost:
        problem.about = About::Nothing;
        problem.text = localized("The account's key file is missing. A computer that is signed in "
                                 "puts it back when it syncs next.");
        break;
    case AccountUnlocking::Obstacle::NoMemory:
        problem.about = About::Nothing;
        problem.text = keyFileMessage(KeyFileProblem::NoMemory);
        break;
    }
    return problem;
}

QString keyFileMessage(KeyFileProblem problem)
{
    switch (problem) {
    case KeyFileProblem::WrongPassphrase:
        return localized("The account has another passphrase.");
    case KeyFileProblem::Damaged:
        break;
    case KeyFileProblem::Newer:
        return localized("The account was made by a newer version of Quillon.");
    case KeyFileProblem::NoMemory:
        return localized("This computer has not enough free memory for that now.");
    case KeyFileProblem::OtherKey:
        return localized("Another key is in the account: somebody has made it anew, or changed it. "
                         "Nothing is synced until you sign in again.");
    }
    return localized("The account's key file is damaged. Put back an older copy of it.");
}

Problem signInProblem(SecretStore::Problem problem)
{
    return {.text = secretMessage(problem)};
}

std::optional<Problem> missingOf(const CloudSignIn::Wanted &wanted)
{
    if (wanted.kind == CloudAccount::Kind::Folder) {
        if (wanted.folder.isEmpty()) {
            return Problem{.text = localized("Choose a folder."), .about = About::Folder};
        }
    } else if (wanted.address.trimmed().isEmpty()) {
        return Problem{.text = localized("Enter the server's address."), .about = About::Address};
    } else if (wanted.user.isEmpty() || wanted.password.isEmpty()) {
        return Problem{
            .text = localized("Enter a user name and a password."), .about = About::Password};
    }
    if (wanted.passphrase.isEmpty()) {
        return Problem{.text = localized("Enter a passphrase."), .about = About::Passphrase};
    }
    return std::nullopt;
}

} // namespace quillon
