// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/AccountKey.h"

#include "SeededRandom.h"

#include <gtest/gtest.h>

#include <sodium.h>

namespace quillon::test {
namespace {

class AccountKeyTest : public ::testing::Test
{
protected:
    KeyFileProblem problem(const QByteArray &bytes, const QByteArray &passphrase = "secret") const
    {
        const auto read = WrappedKey::unwrap(bytes, passphrase);
        EXPECT_TRUE(std::holds_alternative<KeyFileProblem>(read));
        return std::holds_alternative<KeyFileProblem>(read) ? std::get<KeyFileProblem>(read)
                                                            : KeyFileProblem::NoMemory;
    }

    const PassphraseCost cheap{1, 8};
    SeededRandom random{6};
    const AccountKey key = AccountKey::random(random).value();
    const QByteArray file = WrappedKey::wrap(key, "secret", random, cheap).value();
};

TEST_F(AccountKeyTest, PassphraseGivesTheKeyBack)
{
    const auto read = WrappedKey::unwrap(file, "secret");
    ASSERT_TRUE(std::holds_alternative<AccountKey>(read));
    EXPECT_EQ(std::get<AccountKey>(read).bytes(), key.bytes());
    EXPECT_EQ(std::get<AccountKey>(read).fingerprint(), key.fingerprint());
}

TEST_F(AccountKeyTest, AnotherPassphraseWrapsTheSameKey)
{
    const QByteArray changed = WrappedKey::wrap(key, "another", random, cheap).value();
    EXPECT_EQ(std::get<AccountKey>(WrappedKey::unwrap(changed, "another")).bytes(), key.bytes());
    EXPECT_EQ(problem(changed), KeyFileProblem::WrongPassphrase);
}

TEST_F(AccountKeyTest, WrongPassphraseAndDamageAreToldApart)
{
    EXPECT_EQ(problem(file, "Secret"), KeyFileProblem::WrongPassphrase);
    EXPECT_EQ(problem(file, ""), KeyFileProblem::WrongPassphrase);
    for (qsizetype index = 0; index < file.size(); ++index) {
        QByteArray changed = file;
        changed[index] = char(changed.at(index) ^ 0x80);
        EXPECT_EQ(problem(changed), KeyFileProblem::Damaged) << index;
        EXPECT_EQ(problem(file.first(index)), KeyFileProblem::Damaged) << index;
    }
    EXPECT_EQ(problem(file + 'x'), KeyFileProblem::Damaged);
}

TEST_F(AccountKeyTest, NewerFileIsToldApart)
{
    QByteArray newer = file;
    newer[4] = 2;
    EXPECT_EQ(problem(newer), KeyFileProblem::Newer);
}

TEST_F(AccountKeyTest, WhoeverHasTheKeySeesWhoseAFileIsWithoutThePassphrase)
{
    EXPECT_EQ(std::get<std::uint32_t>(WrappedKey::check(file, key)), 1U);
    const QByteArray changed = WrappedKey::wrap(key, "another", random, cheap, 7).value();
    EXPECT_EQ(std::get<std::uint32_t>(WrappedKey::check(changed, key)), 7U);
    const AccountKey other = AccountKey::random(random).value();
    EXPECT_EQ(std::get<KeyFileProblem>(WrappedKey::check(file, other)), KeyFileProblem::OtherKey);
    for (qsizetype index = 0; index < file.size(); ++index) {
        QByteArray damaged = file;
        damaged[index] = char(damaged.at(index) ^ 0x80);
        EXPECT_EQ(
            std::get<KeyFileProblem>(WrappedKey::check(damaged, key)), KeyFileProblem::Damaged)
            << index;
    }
}

TEST_F(AccountKeyTest, NobodyWithoutTheKeyMakesAnotherNumberOfIt)
{
    constexpr qsizetype numberAt = 101;
    constexpr qsizetype checksumAt = 121;
    QByteArray forged = file;
    forged[numberAt + 3] = 2;
    QByteArray checksum(16, '\0');
    crypto_generichash(reinterpret_cast<unsigned char *>(checksum.data()), 16,
        reinterpret_cast<const unsigned char *>(forged.constData()), checksumAt, nullptr, 0);
    forged.replace(checksumAt, 16, checksum);
    EXPECT_EQ(std::get<KeyFileProblem>(WrappedKey::check(forged, key)), KeyFileProblem::OtherKey);
    EXPECT_EQ(problem(forged), KeyFileProblem::Damaged) << "though the passphrase opens it";
}

TEST_F(AccountKeyTest, UnreasonableCostIsNotMade)
{
    EXPECT_FALSE(WrappedKey::wrap(key, "secret", random, {1, 2 * 1024 * 1024}));
    EXPECT_FALSE(WrappedKey::wrap(key, "secret", random, {1000, 8}));
}

TEST_F(AccountKeyTest, KeyFromElsewhereHasItsSize)
{
    EXPECT_TRUE(AccountKey::fromBytes(key.bytes()));
    EXPECT_FALSE(AccountKey::fromBytes(key.bytes().chopped(1)));
    EXPECT_FALSE(AccountKey::fromBytes({}));
}

} // namespace
} // namespace quillon::test
