// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/SignInProblem.h"

#include "platform/CloudMessage.h"

#include <QSet>
#include <gtest/gtest.h>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;
using Remedy = CloudSignIn::Problem::Remedy;
using About = CloudSignIn::Problem::About;

constexpr auto webDav = CloudAccount::Kind::WebDav;
constexpr auto folder = CloudAccount::Kind::Folder;

TEST(SignInProblem, WhatTheAccountSaysNamesTheFieldToBeSaidAnew)
{
    EXPECT_EQ(signInProblem({CloudProblem::WrongPassword, {}}, webDav).about, About::Password);
    EXPECT_EQ(signInProblem({CloudProblem::Unreachable, {}}, webDav).about, About::Address);
    EXPECT_EQ(signInProblem({CloudProblem::NotAnAccount, {}}, webDav).about, About::Address);
    EXPECT_EQ(signInProblem({CloudProblem::Full, {}}, folder).about, About::Folder);
    EXPECT_EQ(signInProblem({CloudProblem::Full, {}}, folder).text,
        cloudMessage(CloudProblem::Full, folder));
}

TEST(SignInProblem, ACertificateCanBeAcceptedOnlyWhenThereIsOneToCompare)
{
    const CloudError seen{CloudProblem::UntrustedCertificate, {}, QByteArray(32, 'x')};
    EXPECT_EQ(signInProblem(seen, webDav).remedy, Remedy::AcceptCertificate);
    EXPECT_EQ(signInProblem(seen, webDav).fingerprint, QByteArray(32, 'x'));
    const CloudError unseen{CloudProblem::UntrustedCertificate, {}};
    EXPECT_EQ(signInProblem(unseen, webDav).remedy, Remedy::Another);
}

TEST(SignInProblem, EachObstacleHasASentenceOfItsOwn)
{
    using enum AccountUnlocking::Obstacle;
    QSet<QString> texts;
    for (const auto obstacle : {NotRepeated, RepeatedOther, TooShort, WrongPassphrase, Damaged,
             Newer, KeyLost, NoMemory}) {
        texts << signInProblem(obstacle).text;
    }
    EXPECT_EQ(texts.size(), 8);
    EXPECT_FALSE(texts.contains(QString()));
    EXPECT_EQ(signInProblem(NotRepeated).remedy, Remedy::RepeatPassphrase);
    EXPECT_EQ(signInProblem(RepeatedOther).remedy, Remedy::RepeatPassphrase);
    EXPECT_EQ(signInProblem(WrongPassphrase).remedy, Remedy::AnotherPassphrase);
    EXPECT_EQ(signInProblem(WrongPassphrase).about, About::Passphrase);
}

TEST(SignInProblem, WhatIsMissingIsToldBeforeAnythingIsAsked)
{
    CloudSignIn::Wanted wanted;
    EXPECT_EQ(missingOf(wanted)->about, About::Address);
    wanted.address = u" \n"_s;
    EXPECT_EQ(missingOf(wanted)->about, About::Address);
    wanted.address = u"cloud.example"_s;
    EXPECT_EQ(missingOf(wanted)->about, About::Password);
    wanted.user = u"ada"_s;
    EXPECT_EQ(missingOf(wanted)->about, About::Password);
    wanted.password = u"word"_s;
    EXPECT_EQ(missingOf(wanted)->about, About::Passphrase);
    wanted.passphrase = u"phrase"_s;
    EXPECT_FALSE(missingOf(wanted));
    wanted = {.kind = folder, .passphrase = u"phrase"_s};
    EXPECT_EQ(missingOf(wanted)->about, About::Folder);
    wanted.folder = u"/srv/shared"_s;
    EXPECT_FALSE(missingOf(wanted));
}

} // namespace
} // namespace quillon
