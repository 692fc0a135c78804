// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "networks/SavedAddresses.h"

#include "NetworkFixture.h"

namespace quillon::test {
namespace {

class SavedAddressesTest : public NetworkFixture
{
protected:
    SavedAddressesTest() { wear(QStringLiteral("A4:83:E7:01:02:03")); }

    void wear(const QString &worn)
    {
        settings.set(keys::currentInterfaceDict, QVariantMap{{record::current, worn}});
        settings.clearJournal();
    }

    const QString address = QStringLiteral("a4:83:e7:01:02:03");
    const QString otherAddress = QStringLiteral("a4:83:e7:0a:0b:0c");
    SavedAddresses saved{settings};
};

TEST_F(SavedAddressesTest, TakesTheCurrentAddressInLowerCaseAsItsOwnName)
{
    saved.addCurrentAddressToSavedList();
    const QVariantMap expected = {{address,
        QVariantMap{{QStringLiteral("address"), address}, {QStringLiteral("name"), address}}}};
    EXPECT_EQ(settings.getDictionary(keys::savedAddresses), expected);
    EXPECT_EQ(settings.journal(),
        (QStringList{QStringLiteral("set savedAddresses"), QStringLiteral("synchronize")}));
    EXPECT_TRUE(saved.isCurrentAddressSaved());
}

TEST_F(SavedAddressesTest, KeepsTheNameOfAnAddressThatIsAddedAgain)
{
    saveAddress(address, QStringLiteral("Printer"));
    settings.clearJournal();
    saved.addCurrentAddressToSavedList();
    EXPECT_EQ(savedAddress(address).value(savedentry::name).toString(), QStringLiteral("Printer"));
    EXPECT_TRUE(settings.journal().isEmpty());
}

TEST_F(SavedAddressesTest, LosesTheCurrentAddress)
{
    saveAddress(address, QStringLiteral("Printer"));
    saveAddress(otherAddress, QStringLiteral("Other"));
    settings.clearJournal();
    saved.removeCurrentAddressFromSavedList();
    EXPECT_EQ(settings.getDictionary(keys::savedAddresses).keys(), QStringList{otherAddress});
    EXPECT_EQ(settings.journal(),
        (QStringList{QStringLiteral("set savedAddresses"), QStringLiteral("synchronize")}));
    EXPECT_FALSE(saved.isCurrentAddressSaved());
}

TEST_F(SavedAddressesTest, LosesNothingWhenTheCurrentAddressIsNotInIt)
{
    saveAddress(otherAddress, QStringLiteral("Other"));
    settings.clearJournal();
    saved.removeCurrentAddressFromSavedList();
    EXPECT_TRUE(settings.journal().isEmpty());
}

TEST_F(SavedAddressesTest, StaysAsItIsWithoutACurrentAddress)
{
    settings.set(keys::savedAddresses, QVariantMap{{QString(), QVariantMap{}}});
    for (const QVariant &selection :
        {QVariant(), QVariant(QVariantMap{}), QVariant(QVariantMap{{record::current, QString()}}),
            QVariant(QVariantMap{{record::current, 7}}), QVariant(QStringLiteral("text"))}) {
        settings.set(keys::currentInterfaceDict, selection);
        saved.addCurrentAddressToSavedList();
        saved.removeCurrentAddressFromSavedList();
        EXPECT_EQ(settings.getDictionary(keys::savedAddresses).size(), 1);
        EXPECT_FALSE(saved.isCurrentAddressSaved());
    }
}

TEST_F(SavedAddressesTest, KnowsAnAddressOfTheHistoryByItsOwnLettersOnly)
{
    // Addresses from the history keep their case, and the current one is looked up in lower case.
    saveAddress(address.toUpper(), QStringLiteral("From the history"));
    EXPECT_FALSE(saved.isCurrentAddressSaved());
    saved.addCurrentAddressToSavedList();
    EXPECT_EQ(settings.getDictionary(keys::savedAddresses).size(), 2);
}

TEST_F(SavedAddressesTest, FindsAnAddressByItsExactName)
{
    saveAddress(address, QStringLiteral("Printer"));
    EXPECT_EQ(addressForAddressName(settings, QStringLiteral("Printer")), address);
    for (const auto &name : {QStringLiteral("printer"), QString(), address}) {
        EXPECT_EQ(addressForAddressName(settings, name), QStringLiteral("Random Address"));
    }
}

TEST_F(SavedAddressesTest, OfOneNameTheLastInTheListAnswers)
{
    saveAddress(otherAddress, QStringLiteral("Twin"));
    saveAddress(address, QStringLiteral("Twin"));
    EXPECT_EQ(addressForAddressName(settings, QStringLiteral("Twin")), otherAddress);
}

TEST_F(SavedAddressesTest, PassesOverWhatIsNoEntry)
{
    settings.set(keys::savedAddresses,
        QVariantMap{
            {QStringLiteral("a"), QStringLiteral("text")},
            {QStringLiteral("b"), QVariantMap{{savedentry::name, QStringLiteral("Bare")}}},
            {QStringLiteral("c"),
                QVariantMap{{savedentry::name, 5}, {savedentry::address, address}}},
        });
    EXPECT_EQ(
        addressForAddressName(settings, QStringLiteral("Bare")), QStringLiteral("Random Address"));
    EXPECT_EQ(
        addressForAddressName(settings, QStringLiteral("5")), QStringLiteral("Random Address"));
    settings.set(keys::savedAddresses, QStringLiteral("text"));
    EXPECT_EQ(
        addressForAddressName(settings, QStringLiteral("x")), QStringLiteral("Random Address"));
    saved.addCurrentAddressToSavedList();
    EXPECT_EQ(settings.getDictionary(keys::savedAddresses).keys(), QStringList{address});
}

} // namespace
} // namespace quillon::test
