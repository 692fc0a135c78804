// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/networks/SavedListsModel.h"

#include "networks/SavedAddresses.h"
#include "unit/networks/NetworkFixture.h"

#include <memory>

namespace quillon::test {
namespace {

class SavedListsModelTest : public NetworkFixture
{
protected:
    SavedListsModelTest()
    {
        QObject::connect(model.get(), &SavedListsModel::changed, [this] { ++changes; });
        wear(QStringLiteral("A4:83:E7:01:02:03"));
    }

    void wear(const QString &worn)
    {
        settings.set(keys::currentInterfaceDict, QVariantMap{{record::current, worn}});
    }
    static QStringList texts(const QList<SavedListsModel::Token> &tokens)
    {
        QStringList result;
        for (const SavedListsModel::Token &token : tokens) {
            result << token.text;
        }
        return result;
    }
    const FavouriteButton &heart() const { return model->state().favourite; }

    const QString address = QStringLiteral("a4:83:e7:01:02:03");
    SavedAddresses saved{settings};
    std::unique_ptr<SavedListsModel> model = std::make_unique<SavedListsModel>(settings, saved);
    int changes = 0;
};

TEST_F(SavedListsModelTest, ShowEntriesByTheirNames)
{
    saveNetwork(officeBssid, QStringLiteral("Office"), QStringLiteral("Work"));
    saveNetwork(homeBssid, QStringLiteral("Home"), QStringLiteral("Our house"));
    saveAddress(address, QStringLiteral("Printer"));
    EXPECT_EQ(texts(model->state().networks),
        (QStringList{QStringLiteral("Our house"), QStringLiteral("Work")}));
    EXPECT_EQ(texts(model->state().addresses), QStringList{QStringLiteral("Printer")});
    EXPECT_EQ(model->state().networks.first().entry, savedNetworkEntry(homeBssid));
    EXPECT_EQ(model->state().addresses.first().entry, savedAddressEntry(address));
}

TEST_F(SavedListsModelTest, ShowAtOnceWhatWasSavedBefore)
{
    saveNetwork(homeBssid, QStringLiteral("Home"), QStringLiteral("Our house"));
    const SavedListsModel later(settings, saved);
    EXPECT_EQ(texts(later.state().networks), QStringList{QStringLiteral("Our house")});
}

TEST_F(SavedListsModelTest, ShowTheWordNameInAnyOtherField)
{
    const SavedEntry entry{.name = QStringLiteral("X"), .bssid = homeBssid};
    EXPECT_EQ(tokenFieldDisplayStringForRepresentedObject(TokenField::Other, entry),
        QStringLiteral("name"));
    EXPECT_EQ(
        tokenFieldDisplayStringForRepresentedObject(TokenField::Other, {}), QStringLiteral("name"));
    for (const TokenField field :
        {TokenField::SavedNetworks, TokenField::SavedAddresses, TokenField::QuickAddresses}) {
        EXPECT_EQ(tokenFieldDisplayStringForRepresentedObject(field, entry), QStringLiteral("X"));
    }
}

TEST_F(SavedListsModelTest, OpenSomethingFromTheirTwoFieldsOnly)
{
    EXPECT_TRUE(tokenFieldHasMenuForRepresentedObject(TokenField::SavedNetworks));
    EXPECT_TRUE(tokenFieldHasMenuForRepresentedObject(TokenField::SavedAddresses));
    EXPECT_FALSE(tokenFieldHasMenuForRepresentedObject(TokenField::QuickAddresses));
    EXPECT_FALSE(tokenFieldHasMenuForRepresentedObject(TokenField::Other));
}

TEST_F(SavedListsModelTest, OrderQuickAddressesByTheirAddressIgnoringCase)
{
    saveAddress(QStringLiteral("b4:00:00:00:00:01"), QStringLiteral("first name"));
    saveAddress(QStringLiteral("A4:00:00:00:00:02"), QStringLiteral("zebra"));
    saveAddress(QStringLiteral("C4:00:00:00:00:03"), QStringLiteral("middle"));
    saveAddress(QStringLiteral("a4:00:00:00:00:01"), QStringLiteral("Name"));
    model->updateQuickAddressesField();
    EXPECT_EQ(texts(model->state().quickAddresses),
        (QStringList{QStringLiteral("Name"), QStringLiteral("zebra"), QStringLiteral("first name"),
            QStringLiteral("middle")}));
}

TEST_F(SavedListsModelTest, RefillQuickAddressesWhenTheyAreTold)
{
    saveAddress(address, QStringLiteral("Printer"));
    EXPECT_TRUE(model->state().quickAddresses.isEmpty());
    model->updateQuickAddressesField();
    EXPECT_EQ(texts(model->state().quickAddresses), QStringList{QStringLiteral("Printer")});
    settings.set(keys::savedAddresses, QVariant());
    model->updateQuickAddressesField();
    EXPECT_TRUE(model->state().quickAddresses.isEmpty());
}

TEST_F(SavedListsModelTest, OfferToAddAnAddressThatIsNotSaved)
{
    EXPECT_EQ(heart().symbol, QStringLiteral("heart"));
    EXPECT_EQ(heart().accessibilityText, QStringLiteral("Add Address to Favorites"));
    model->chooseFavouriteButton();
    EXPECT_TRUE(settings.getDictionary(keys::savedAddresses).contains(address));
    EXPECT_EQ(heart().symbol, QStringLiteral("heart.fill"));
    EXPECT_EQ(heart().accessibilityText, QStringLiteral("Remove Address from Favorites"));
    model->chooseFavouriteButton();
    EXPECT_TRUE(settings.getDictionary(keys::savedAddresses).isEmpty());
    EXPECT_EQ(heart().symbol, QStringLiteral("heart"));
}

TEST_F(SavedListsModelTest, OfferWhatFitsTheAddressInUse)
{
    saveAddress(address, QStringLiteral("Printer"));
    EXPECT_TRUE(heart().removes);
    wear(QStringLiteral("02:00:00:00:00:01"));
    EXPECT_FALSE(heart().removes);
}

TEST_F(SavedListsModelTest, HaveAPopoverThatTheirButtonOpensAndCloses)
{
    model->toggleSoftwarePopover();
    EXPECT_TRUE(model->state().softwarePopoverShown);
    model->toggleSoftwarePopover();
    EXPECT_FALSE(model->state().softwarePopoverShown);
    model->toggleSoftwarePopover();
    model->softwarePopoverWillClose();
    EXPECT_FALSE(model->state().softwarePopoverShown);
}

TEST_F(SavedListsModelTest, MakeNoTokensOfWhatIsNoEntry)
{
    settings.set(keys::savedNetworks,
        QVariantMap{{QStringLiteral("00"), QStringLiteral("text")}, {QStringLiteral("01"), 5}});
    settings.set(keys::savedAddresses, QVariantList{QStringLiteral("text")});
    model->updateQuickAddressesField();
    EXPECT_TRUE(model->state().networks.isEmpty());
    EXPECT_TRUE(model->state().addresses.isEmpty());
    EXPECT_TRUE(model->state().quickAddresses.isEmpty());
}

TEST_F(SavedListsModelTest, GiveEntriesTheKeyUnderWhichTheyAreSaved)
{
    settings.set(keys::savedNetworks,
        QVariantMap{{homeBssid, QVariantMap{}},
            {officeBssid, networkEntry(cafeBssid, QStringLiteral("S"), QStringLiteral("N"))}});
    const QList<SavedListsModel::Token> tokens = model->state().networks;
    ASSERT_EQ(tokens.size(), 2);
    EXPECT_EQ(tokens.at(0).entry.bssid, homeBssid);
    EXPECT_EQ(tokens.at(0).text, QString());
    EXPECT_EQ(tokens.at(1).entry.bssid, officeBssid);
}

TEST_F(SavedListsModelTest, SayOnlyWhatChanged)
{
    saveAddress(address, QStringLiteral("Printer"));
    model->updateQuickAddressesField();
    changes = 0;
    model->updateQuickAddressesField();
    model->updateFavAddressButton();
    EXPECT_EQ(changes, 0);
}

TEST_F(SavedListsModelTest, LeaveNothingBehind)
{
    model.reset();
    EXPECT_FALSE(settings.hasObservers());
}

} // namespace
} // namespace quillon::test
