// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "networks/SavedAddresses.h"

#include "NetworkFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class SavedAddressesTest : public NetworkFixture
{
protected:
    SavedAddressesTest() { wear(u"A4:83:E7:01:02:03"_s); }

    void wear(const QString &worn)
    {
        settings.set(keys::currentInterfaceDict, QVariantMap{{record::current, worn}});
        settings.clearJournal();
    }

    const QString address = u"a4:83:e7:01:02:03"_s;
    const QString otherAddress = u"a4:83:e7:0a:0b:0c"_s;
    SavedAddresses saved{settings};
};

TEST_F(SavedAddressesTest, TakesTheCurrentAddressInLowerCaseAsItsOwnName)
{
    saved.addCurrentAddressToSavedList();
    const QVariantMap expected = {
        {address, QVariantMap{{u"address"_s, address}, {u"name"_s, address}}}};
    EXPECT_EQ(settings.getDictionary(keys::savedAddresses), expected);
    EXPECT_EQ(settings.journal(), (QStringList{u"set savedAddresses"_s, u"synchronize"_s}));
    EXPECT_TRUE(saved.isCurrentAddressSaved());
}

TEST_F(SavedAddressesTest, KeepsTheNameOfAnAddressThatIsAddedAgain)
{
    saveAddress(address, u"Printer"_s);
    settings.clearJournal();
    saved.addCurrentAddressToSavedList();
    EXPECT_EQ(savedAddress(address).value(savedentry::name).toString(), u"Printer"_s);
    EXPECT_TRUE(settings.journal().isEmpty());
}

TEST_F(SavedAddressesTest, LosesTheCurrentAddress)
{
    saveAddress(address, u"Printer"_s);
    saveAddress(otherAddress, u"Other"_s);
    settings.clearJournal();
    saved.removeCurrentAddressFromSavedList();
    EXPECT_EQ(settings.getDictionary(keys::savedAddresses).keys(), QStringList{otherAddress});
    EXPECT_EQ(settings.journal(), (QStringList{u"set savedAddresses"_s, u"synchronize"_s}));
    EXPECT_FALSE(saved.isCurrentAddressSaved());
}

TEST_F(SavedAddressesTest, LosesNothingWhenTheCurrentAddressIsNotInIt)
{
    saveAddress(otherAddress, u"Other"_s);
    settings.clearJournal();
    saved.removeCurrentAddressFromSavedList();
    EXPECT_TRUE(settings.journal().isEmpty());
}

TEST_F(SavedAddressesTest, StaysAsItIsWithoutACurrentAddress)
{
    settings.set(keys::savedAddresses, QVariantMap{{QString(), QVariantMap{}}});
    for (const QVariant &selection :
        {QVariant(), QVariant(QVariantMap{}), QVariant(QVariantMap{{record::current, QString()}}),
            QVariant(QVariantMap{{record::current, 7}}), QVariant(u"text"_s)}) {
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
    saveAddress(address.toUpper(), u"From the history"_s);
    EXPECT_FALSE(saved.isCurrentAddressSaved());
    saved.addCurrentAddressToSavedList();
    EXPECT_EQ(settings.getDictionary(keys::savedAddresses).size(), 2);
}

TEST_F(SavedAddressesTest, FindsAnAddressByItsExactName)
{
    saveAddress(address, u"Printer"_s);
    EXPECT_EQ(addressForAddressName(settings, u"Printer"_s), address);
    for (const auto &name : {u"printer"_s, QString(), address}) {
        EXPECT_EQ(addressForAddressName(settings, name), u"Random Address"_s);
    }
}

TEST_F(SavedAddressesTest, OfOneNameTheLastInTheListAnswers)
{
    saveAddress(otherAddress, u"Twin"_s);
    saveAddress(address, u"Twin"_s);
    EXPECT_EQ(addressForAddressName(settings, u"Twin"_s), otherAddress);
}

TEST_F(SavedAddressesTest, PassesOverWhatIsNoEntry)
{
    settings.set(keys::savedAddresses,
        QVariantMap{
            {u"a"_s, u"text"_s},
            {u"b"_s, QVariantMap{{savedentry::name, u"Bare"_s}}},
            {u"c"_s, QVariantMap{{savedentry::name, 5}, {savedentry::address, address}}},
        });
    EXPECT_EQ(addressForAddressName(settings, u"Bare"_s), u"Random Address"_s);
    EXPECT_EQ(addressForAddressName(settings, u"5"_s), u"Random Address"_s);
    settings.set(keys::savedAddresses, u"text"_s);
    EXPECT_EQ(addressForAddressName(settings, u"x"_s), u"Random Address"_s);
    saved.addCurrentAddressToSavedList();
    EXPECT_EQ(settings.getDictionary(keys::savedAddresses).keys(), QStringList{address});
}

} // namespace
} // namespace quillon::test
