// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/cloud/CloudAccountModel.h"

#include "fakes/FakeCloudSignIn.h"
#include "fakes/QtPrinting.h"

#include <gmock/gmock.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class CloudAccountModelTest : public ::testing::Test
{
protected:
    CloudAccountModelTest() { model.use(signIn); }

    const CloudAccount account{.kind = CloudAccount::Kind::WebDav,
        .server = QUrl(u"https://cloud.example/remote.php/dav/files/mila"_s),
        .user = u"mila"_s};
    FakeCloudSignIn signIn;
    CloudAccountModel model;
};

TEST_F(CloudAccountModelTest, OffersNothingBeforeThereIsSomebodyWhoSignsIn)
{
    CloudAccountModel alone;
    EXPECT_FALSE(alone.state().isOffered);
    alone.signOut();
    EXPECT_EQ(alone.state(), CloudAccountModel::State());
    EXPECT_TRUE(model.state().isOffered);
    EXPECT_FALSE(model.state().isSignedIn);
}

TEST_F(CloudAccountModelTest, SaysWhoIsSignedInWhere)
{
    signIn.become(account);
    EXPECT_TRUE(model.state().isSignedIn);
    EXPECT_EQ(model.state().account, u"Signed in as mila at cloud.example"_s);
    CloudAccount other = account;
    other.server.setPort(8443);
    signIn.become(other);
    EXPECT_EQ(model.state().account, u"Signed in as mila at cloud.example:8443"_s);
    signIn.become(CloudAccount{.kind = CloudAccount::Kind::Folder, .folder = u"/srv/mila/Sync"_s});
    EXPECT_EQ(model.state().account, u"Signed in to the folder /srv/mila/Sync"_s);
}

TEST_F(CloudAccountModelTest, KnowsWhoWasSignedInBefore)
{
    signIn.become(account);
    CloudAccountModel later;
    later.use(signIn);
    EXPECT_TRUE(later.state().isSignedIn);
    EXPECT_EQ(later.state().hint, QString());
}

TEST_F(CloudAccountModelTest, AfterASignInSaysWhatTheAccountCanDo)
{
    signIn.succeed(account, u"This account can be used."_s);
    EXPECT_EQ(model.state().hint, u"This account can be used."_s);
    CloudAccount other = account;
    other.user = u"noor"_s;
    signIn.become(other);
    EXPECT_EQ(model.state().hint, QString()) << "it was said of another account";
}

TEST_F(CloudAccountModelTest, WhatIsSaidIsSaidOfWhoIsSignedIn)
{
    model.say(u"The passphrase was changed."_s);
    EXPECT_EQ(model.state().hint, QString());
    signIn.become(account);
    model.say(u"The passphrase was changed."_s);
    EXPECT_EQ(model.state().hint, u"The passphrase was changed."_s);
    signIn.become(CloudAccount{.kind = CloudAccount::Kind::Folder, .folder = u"/srv/mila"_s});
    EXPECT_EQ(model.state().hint, QString());
}

TEST_F(CloudAccountModelTest, SignedOutItSaysWhatStays)
{
    signIn.become(account);
    model.signOut();
    EXPECT_FALSE(model.state().isSignedIn);
    EXPECT_EQ(model.state().account, QString());
    EXPECT_EQ(
        model.state().hint, u"Signed out. Rules, history and settings stay on this computer."_s);
    signIn.succeed(account, u"This account can be used."_s);
    EXPECT_EQ(model.state().hint, u"This account can be used."_s);
}

TEST_F(CloudAccountModelTest, ASignOutThatIsNotDoneIsNotSaid)
{
    signIn.become(account);
    signIn.canSignOut = false;
    model.signOut();
    EXPECT_TRUE(model.state().isSignedIn);
    EXPECT_EQ(model.state().hint, QString());
}

} // namespace
} // namespace quillon::test
