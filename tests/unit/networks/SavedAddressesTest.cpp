// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "networks/SavedAddresses.h"

#include "NetworkFixture.h"
#include "networks/SavedAddressEditing.h"

#include <memory>

namespace quillon::test {
namespace {

class AddressBook : public NetworkFixture
{
protected:
    AddressBook() { wear(QStringLiteral("A4:83:E7:01:02:03")); }

    void wear(const QString &worn)
    {
        settings.set(keys::currentInterfaceDict, QVariantMap{{record::current, worn}});
        settings.clearJournal();
    }

    const QString address = QStringLiteral("a4:83:e7:01:02:03");
    const QString otherAddress = QStringLiteral("a4:83:e7:0a:0b:0c");
    SavedAddresses saved{settings};
};

TEST_F(AddressBook, TakesTheCurrentAddressInLowerCaseAsItsOwnName)
{
    saved.addCurrentAddressToSavedList();
    const QVariantMap expected = {{address,
        QVariantMap{{QStringLiteral("address"), address}, {QStringLiteral("name"), address}}}};
    EXPECT_EQ(settings.getDictionary(keys::savedAddresses), expected);
    EXPECT_EQ(settings.journal(),
        (QStringList{QStringLiteral("set savedAddresses"), QStringLiteral("synchronize")}));
    EXPECT_TRUE(saved.isCurrentAddressSaved());
}

TEST_F(AddressBook, KeepsTheNameOfAnAddressThatIsAddedAgain)
{
    saveAddress(address, QStringLiteral("Printer"));
    settings.clearJournal();
    saved.addCurrentAddressToSavedList();
    EXPECT_EQ(savedAddress(address).value(savedentry::name).toString(), QStringLiteral("Printer"));
    EXPECT_TRUE(settings.journal().isEmpty());
}

TEST_F(AddressBook, LosesTheCurrentAddress)
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

TEST_F(AddressBook, LosesNothingWhenTheCurrentAddressIsNotInIt)
{
    saveAddress(otherAddress, QStringLiteral("Other"));
    settings.clearJournal();
    saved.removeCurrentAddressFromSavedList();
    EXPECT_TRUE(settings.journal().isEmpty());
}

TEST_F(AddressBook, StaysAsItIsWithoutACurrentAddress)
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

TEST_F(AddressBook, KnowsAnAddressOfTheHistoryByItsOwnLettersOnly)
{
    // Addresses from the history keep their case, and the current one is looked up in lower case.
    saveAddress(address.toUpper(), QStringLiteral("From the history"));
    EXPECT_FALSE(saved.isCurrentAddressSaved());
    saved.addCurrentAddressToSavedList();
    EXPECT_EQ(settings.getDictionary(keys::savedAddresses).size(), 2);
}

TEST_F(AddressBook, FindsAnAddressByItsExactName)
{
    saveAddress(address, QStringLiteral("Printer"));
    EXPECT_EQ(addressForAddressName(settings, QStringLiteral("Printer")), address);
    for (const auto &name : {QStringLiteral("printer"), QString(), address}) {
        EXPECT_EQ(addressForAddressName(settings, name), QStringLiteral("Random Address"));
    }
}

TEST_F(AddressBook, OfOneNameTheLastInTheListAnswers)
{
    saveAddress(otherAddress, QStringLiteral("Twin"));
    saveAddress(address, QStringLiteral("Twin"));
    EXPECT_EQ(addressForAddressName(settings, QStringLiteral("Twin")), otherAddress);
}

TEST_F(AddressBook, PassesOverWhatIsNoEntry)
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

class EditedAddress : public AddressBook
{
protected:
    EditedAddress()
    {
        saveAddress(address, QStringLiteral("Printer"));
        saveAddress(otherAddress, QStringLiteral("Scanner"));
        editing->beginEditing(savedAddressEntry(address));
        QObject::connect(
            editing.get(), &SavedAddressEditing::editingFinished, [this] { ++finished; });
        settings.clearJournal();
    }

    QString name() const { return savedAddress(address).value(savedentry::name).toString(); }

    std::unique_ptr<SavedAddressEditing> editing =
        std::make_unique<SavedAddressEditing>(settings, scheduler);
    int finished = 0;
};

TEST_F(EditedAddress, GetsTheTypedName)
{
    editing->changeSavedAddressName(QStringLiteral("Old printer"));
    EXPECT_EQ(name(), QStringLiteral("Old printer"));
    EXPECT_EQ(savedAddress(address).value(savedentry::address).toString(), address);
    EXPECT_EQ(
        savedAddress(otherAddress).value(savedentry::name).toString(), QStringLiteral("Scanner"));
    EXPECT_EQ(settings.journal(),
        (QStringList{QStringLiteral("set savedAddresses"), QStringLiteral("synchronize")}));
    EXPECT_EQ(radio.reads, 0);
}

TEST_F(EditedAddress, IsNotWrittenForItsOwnName)
{
    editing->changeSavedAddressName(QStringLiteral("Printer"));
    EXPECT_TRUE(settings.journal().isEmpty());
    EXPECT_EQ(finished, 0) << "not in the caller's turn";
    scheduler.runPending();
    EXPECT_EQ(finished, 1);
}

TEST_F(EditedAddress, GetsASuffixForTheNameOfAnother)
{
    editing->changeSavedAddressName(QStringLiteral("Scanner"));
    EXPECT_EQ(name(), QStringLiteral("Scanner (2)"));
    scheduler.runPending();
    EXPECT_EQ(finished, 1);
}

TEST_F(EditedAddress, MayHaveNoName)
{
    editing->changeSavedAddressName(QString());
    EXPECT_EQ(name(), QString());
    EXPECT_TRUE(savedAddress(address).contains(savedentry::name));
}

TEST_F(EditedAddress, IsRemoved)
{
    editing->removeSavedAddress();
    EXPECT_EQ(settings.getDictionary(keys::savedAddresses).keys(), QStringList{otherAddress});
    EXPECT_EQ(settings.journal(),
        (QStringList{QStringLiteral("set savedAddresses"), QStringLiteral("synchronize")}));
    EXPECT_FALSE(editing->editingAddressDict());
    EXPECT_EQ(finished, 0) << "not in the caller's turn";
    scheduler.runPending();
    EXPECT_EQ(finished, 1);
}

TEST_F(EditedAddress, IsNoneAfterTheEnd)
{
    editing->endEditing();
    editing->changeSavedAddressName(QStringLiteral("Late"));
    editing->removeSavedAddress();
    scheduler.runPending();
    EXPECT_TRUE(settings.journal().isEmpty());
    EXPECT_EQ(finished, 0);
}

TEST_F(EditedAddress, IsACopyOfTheListsEntry)
{
    saveAddress(address, QStringLiteral("Changed elsewhere"));
    EXPECT_EQ(editing->editingAddressDict()->name, QStringLiteral("Printer"));
}

TEST_F(EditedAddress, MayBeGoneWhenItsTurnComes)
{
    editing->removeSavedAddress();
    editing.reset();
    scheduler.runPending();
    EXPECT_EQ(finished, 0);
}

} // namespace
} // namespace quillon::test
