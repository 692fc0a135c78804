// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/SealedFile.h"

#include "SeededRandom.h"
#include "sync/AccountKey.h"
#include "sync/Compression.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class SealedFileTest : public ::testing::Test
{
protected:
    FileProblem problem(const QByteArray &bytes, const QString &name = u"a.change"_s) const
    {
        const auto read = opened(bytes, name, key);
        EXPECT_TRUE(std::holds_alternative<FileProblem>(read));
        return std::holds_alternative<FileProblem>(read) ? std::get<FileProblem>(read)
                                                         : FileProblem::NotKept;
    }

    SeededRandom random{5};
    const AccountKey key = AccountKey::random(random).value();
    const QByteArray content = "content, content, content";
    const QByteArray file = sealed(content, u"a.change"_s, key, random);
};

TEST_F(SealedFileTest, ContentComesBack)
{
    EXPECT_EQ(std::get<QByteArray>(opened(file, u"a.change"_s, key)), content);
    EXPECT_FALSE(file.contains("content"));
}

TEST_F(SealedFileTest, SameContentIsSealedDifferentlyEachTime)
{
    EXPECT_NE(sealed(content, u"a.change"_s, key, random), file);
}

TEST_F(SealedFileTest, NoBitCanBeChangedAndNoByteIsMissing)
{
    for (qsizetype index = 0; index < file.size(); ++index) {
        for (int bit = 0; bit < 8; ++bit) {
            QByteArray changed = file;
            changed[index] = char(changed.at(index) ^ (1 << bit));
            EXPECT_TRUE(std::holds_alternative<FileProblem>(opened(changed, u"a.change"_s, key)));
        }
        EXPECT_EQ(problem(file.first(index)), FileProblem::Damaged);
    }
    EXPECT_EQ(problem(file + 'x'), FileProblem::Damaged);
}

TEST_F(SealedFileTest, IsThatOfItsNameAndAccount)
{
    EXPECT_EQ(problem(file, u"b.change"_s), FileProblem::Damaged);
    const AccountKey other = AccountKey::random(random).value();
    const auto read = opened(file, u"a.change"_s, other);
    EXPECT_EQ(std::get<FileProblem>(read), FileProblem::Damaged);
}

TEST_F(SealedFileTest, NewerVersionIsToldApart)
{
    QByteArray newer = file;
    newer[3] = 2;
    EXPECT_EQ(problem(newer), FileProblem::Newer);
}

TEST_F(SealedFileTest, BombIsRefusedWithoutUnpackingIt)
{
    const QByteArray bomb =
        sealed(QByteArray(longestContent + 1, '\0'), u"a.change"_s, key, random);
    EXPECT_LT(bomb.size(), longestContent / 100);
    EXPECT_EQ(problem(bomb), FileProblem::TooLarge);
    EXPECT_EQ(problem(QByteArray(longestSealedFile + 1, 'Q')), FileProblem::TooLarge);
    EXPECT_FALSE(decompressed(compressed(QByteArray(1000, 'x')), 999));
    EXPECT_TRUE(decompressed(compressed(QByteArray(1000, 'x')), 1000));
}

} // namespace
} // namespace quillon::test
