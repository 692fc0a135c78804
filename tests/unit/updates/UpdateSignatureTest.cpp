// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "updates/UpdateSignature.h"

#include "Places.h"
#include "fakes/SignedFeed.h"

#include <QFile>
#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class UpdateSignatureTest : public ::testing::Test
{
protected:
    bool isSigned(const QByteArray &file) const
    {
        return signedContent(file, key.publicKey()).has_value();
    }
    QByteArray withLastLine(const QByteArray &line) const { return content + line; }

    static QByteArray dataFile(const QString &name)
    {
        QFile file(testData() + u"/updates/"_s + name);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    const FeedKey key;
    const FeedKey otherKey{1};
    const QByteArray content = "<rss>\n</rss>\n";
    const QByteArray signature = key.signatureOf(content);
};

TEST_F(UpdateSignatureTest, WhatIsSignedIsEverythingBeforeTheLastLine)
{
    EXPECT_EQ(signedContent(key.sign(content), key.publicKey()), content);
    EXPECT_EQ(signedContent(key.sign("\n"), key.publicKey()), QByteArray("\n"));
    const QByteArray bytes("a\0b\r\n\xff\n", 7);
    EXPECT_EQ(signedContent(key.sign(bytes), key.publicKey()), bytes);
}

TEST_F(UpdateSignatureTest, AnotherProgramSignsTheSameWay)
{
    // Made by tools/sign-feed, which has openssl sign it.
    EXPECT_EQ(
        signedContent(dataFile(u"feed-signed.xml"_s), key.publicKey()), dataFile(u"feed.xml"_s));
}

TEST_F(UpdateSignatureTest, NoBitOfTheFileCanBeChanged)
{
    const QByteArray file = key.sign(content);
    for (qsizetype index = 0; index < file.size(); ++index) {
        for (int bit = 0; bit < 8; ++bit) {
            QByteArray changed = file;
            changed[index] = static_cast<char>(changed.at(index) ^ (1 << bit));
            EXPECT_FALSE(isSigned(changed)) << "byte " << index << ", bit " << bit;
        }
    }
}

TEST_F(UpdateSignatureTest, NoPartOfTheFileIsEnough)
{
    const QByteArray file = key.sign(content);
    for (qsizetype length = 0; length < file.size(); ++length) {
        EXPECT_FALSE(isSigned(file.first(length))) << length;
        EXPECT_FALSE(isSigned(file.last(length))) << length;
    }
}

TEST_F(UpdateSignatureTest, IsThatOfThisFileUnderThisKey)
{
    EXPECT_FALSE(isSigned(otherKey.sign(content)));
    EXPECT_FALSE(isSigned(content + "<!-- signature: " + key.signatureOf("another\n") + " -->\n"));
    EXPECT_FALSE(signedContent(key.sign(content), otherKey.publicKey()));
}

TEST_F(UpdateSignatureTest, IsMissing)
{
    EXPECT_FALSE(isSigned({}));
    EXPECT_FALSE(isSigned(content));
    EXPECT_FALSE(isSigned(withLastLine("<!-- signature:  -->\n")));
    EXPECT_FALSE(isSigned(withLastLine("<!-- signature: " + QByteArray(88, '=') + " -->\n")));
    EXPECT_FALSE(isSigned(withLastLine("<!-- signature: " + QByteArray(88, 'A') + " -->\n")));
}

TEST_F(UpdateSignatureTest, HasOneSpellingOnly)
{
    ASSERT_TRUE(isSigned(withLastLine("<!-- signature: " + signature + " -->\n")));
    for (const QByteArray &line : {
             "<!-- signature: " + signature + " -->",
             "<!-- signature: " + signature + " -->\n\n",
             "<!-- signature: " + signature + " -->\r\n",
             "<!-- signature: " + signature + "-->\n",
             "<!--signature: " + signature + " -->\n",
             "<!-- Signature: " + signature + " -->\n",
             "<!-- signature:  " + signature + " -->\n",
             " <!-- signature: " + signature + " -->\n",
             "<!-- signature: " + signature.first(40) + "\n" + signature.sliced(40) + " -->\n",
             "<!-- signature: " + signature.chopped(2) + " -->\n",
             "<!-- signature: " + signature.chopped(2) + "  -->\n",
             "<!-- signature: " + signature.toLower() + " -->\n",
         }) {
        EXPECT_FALSE(isSigned(withLastLine(line))) << line.toStdString();
    }
    // Another letter for the last bits, which no decoder looks at.
    QByteArray odd = signature;
    odd[85] = odd.at(85) == 'A' || odd.at(85) == 'Q' || odd.at(85) == 'g' || odd.at(85) == 'w'
                  ? static_cast<char>(odd.at(85) + 1)
                  : 'B';
    EXPECT_FALSE(isSigned(withLastLine("<!-- signature: " + odd + " -->\n")));
}

TEST_F(UpdateSignatureTest, ASecondOneSignsTheFirst)
{
    const QByteArray twice = key.sign(key.sign(content));
    EXPECT_EQ(signedContent(twice, key.publicKey()), key.sign(content));
    EXPECT_FALSE(isSigned(key.sign(content) + "<!-- signature: " + signature + " -->\n"));
}

TEST_F(UpdateSignatureTest, WhatIsNoKeySignsNothing)
{
    const QByteArray file = key.sign(content);
    EXPECT_FALSE(signedContent(file, {}));
    EXPECT_FALSE(signedContent(file, key.publicKey().chopped(1)));
    EXPECT_FALSE(signedContent(file, key.publicKey() + "x"));
    // A key of small order, under which one signature would hold for many texts.
    EXPECT_FALSE(
        signedContent(withLastLine("<!-- signature: " + QByteArray(64, '\0').toBase64() + " -->\n"),
            QByteArray(32, '\0')));
    QByteArray identity(64, '\0');
    identity[0] = 1;
    EXPECT_FALSE(signedContent(
        withLastLine("<!-- signature: " + identity.toBase64() + " -->\n"), identity.first(32)));
}

} // namespace
} // namespace quillon::test
