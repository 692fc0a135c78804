// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/CloudAccount.h"

#include "fakes/QtPrinting.h"
#include "platform/CloudMessage.h"

#include <QSet>
#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

CloudAccount account(const QString &server = u"https://cloud.example.org/dav/"_s,
    const QString &user = u"mary"_s, const QString &folder = u"Quillon"_s)
{
    return {CloudAccount::Kind::WebDav, QUrl(server), user, folder};
}

TEST(CloudAccountTest, AnotherServerUserOrFolderIsAnotherAccount)
{
    QSet<QByteArray> tokens;
    const QList<CloudAccount> different{account(), account(u"https://cloud.example.org/dav/b/"_s),
        account(u"https://cloud.example.org:8443/dav/"_s),
        account(u"https://other.example.org/dav/"_s), account(u"http://cloud.example.org/dav/"_s),
        account(u"https://cloud.example.org/Dav/"_s),
        account(u"https://cloud.example.org/d%2Fav/"_s),
        account(u"https://cloud.example.org/dav/"_s, u"Mary"_s),
        account(u"https://cloud.example.org/dav/"_s, u"maryQuillon"_s, u""_s),
        account(u"https://cloud.example.org/dav/"_s, u"mary"_s, u"Quillon/b"_s),
        {CloudAccount::Kind::Folder, {}, {}, u"/srv/a"_s},
        {CloudAccount::Kind::Folder, {}, {}, u"/srv/b"_s},
        {CloudAccount::Kind::Folder, {}, {}, u"Quillon"_s}};
    for (const CloudAccount &each : different) {
        tokens.insert(each.identityToken());
    }
    EXPECT_EQ(tokens.size(), different.size());
}

TEST(CloudAccountTest, TwoSpellingsOfOnePlaceAreOneAccount)
{
    const QByteArray token = account().identityToken();
    EXPECT_EQ(account(u"https://CLOUD.example.org:443/dav"_s).identityToken(), token);
    EXPECT_EQ(account(u"https://cloud.example.org/x/../dav/"_s).identityToken(), token);
    EXPECT_EQ(
        account(u"https://cloud.example.org/dav/"_s, u"mary"_s, u"/Quillon//"_s).identityToken(),
        token);
    CloudAccount believed = account();
    believed.fingerprint = QByteArray(32, 'x');
    EXPECT_EQ(believed.identityToken(), token) << "a new certificate is no new account";
    const CloudAccount folder{CloudAccount::Kind::Folder, {}, {}, u"/srv/a/"_s};
    const CloudAccount again{CloudAccount::Kind::Folder, {}, {}, u"/srv/./b/../a"_s};
    EXPECT_EQ(folder.identityToken(), again.identityToken());
}

TEST(CloudAccountTest, ItsTokenTellsNothing)
{
    EXPECT_EQ(account().identityToken().size(), 32);
    EXPECT_FALSE(account().identityToken().contains("mary"));
}

TEST(CloudAccountTest, AKeyringHasOneEntryForAUserAtAServer)
{
    EXPECT_EQ(account().secretName(), u"mary at https://cloud.example.org/dav"_s);
    CloudAccount other = account();
    other.folder = u"Other"_s;
    EXPECT_EQ(other.secretName(), account().secretName());
    EXPECT_TRUE(CloudAccount{}.secretName().isEmpty());
}

TEST(CloudAccountTest, AFingerprintIsShownAsBrowsersDo)
{
    EXPECT_EQ(fingerprintText(QByteArray::fromHex("003aff")), u"00:3A:FF"_s);
}

TEST(CloudAccountTest, EachProblemHasASentence)
{
    using enum CloudProblem;
    for (const CloudProblem problem : {NotThere, Changed, WrongPassword, NotAllowed, Full, TooLarge,
             Unreachable, UntrustedCertificate, NotAnAccount, Failed}) {
        for (const auto kind : {CloudAccount::Kind::WebDav, CloudAccount::Kind::Folder}) {
            EXPECT_TRUE(cloudMessage(problem, kind).endsWith(u'.'));
        }
    }
    EXPECT_EQ(cloudMessage(WrongPassword, CloudAccount::Kind::WebDav),
        u"The server did not accept this name and password."_s);
    EXPECT_EQ(
        cloudMessage(Unreachable, CloudAccount::Kind::WebDav), u"The server cannot be reached."_s);
    EXPECT_EQ(cloudMessage(UntrustedCertificate, CloudAccount::Kind::WebDav),
        u"The server's certificate is not trusted."_s);
    EXPECT_EQ(
        cloudMessage(NotAllowed, CloudAccount::Kind::Folder), u"This folder cannot be written."_s);
}

} // namespace
} // namespace quillon::test
