// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/networks/SavedListsModel.h"

#include "networks/SavedAddresses.h"
#include "presentation/networks/RemovedFavorite.h"
#include "unit/networks/NetworkFixture.h"

#include <memory>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class SavedListsModelTest : public NetworkFixture
{
protected:
    SavedListsModelTest()
    {
        QObject::connect(model.get(), &SavedListsModel::changed, [this] { ++changes; });
        wear(u"A4:83:E7:01:02:03"_s);
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
    const FavoriteButton &heart() const { return model->state().favorite; }

    const QString address = u"a4:83:e7:01:02:03"_s;
    SavedAddresses saved{settings};
    std::unique_ptr<RemovedFavorite> removed = std::make_unique<RemovedFavorite>(settings, network);
    std::unique_ptr<SavedListsModel> model =
        std::make_unique<SavedListsModel>(settings, saved, *removed);
    int changes = 0;
};

TEST_F(SavedListsModelTest, ShowEntriesByTheirNames)
{
    saveNetwork(officeBssid, u"Office"_s, u"Work"_s);
    saveNetwork(homeBssid, u"Home"_s, u"Our house"_s);
    saveAddress(address, u"Printer"_s);
    EXPECT_EQ(texts(model->state().networks), (QStringList{u"Our house"_s, u"Work"_s}));
    EXPECT_EQ(texts(model->state().addresses), QStringList{u"Printer"_s});
    EXPECT_EQ(model->state().networks.first().entry, savedNetworkEntry(homeBssid));
    EXPECT_EQ(model->state().addresses.first().entry, savedAddressEntry(address));
}

TEST_F(SavedListsModelTest, ShowAtOnceWhatWasSavedBefore)
{
    saveNetwork(homeBssid, u"Home"_s, u"Our house"_s);
    const SavedListsModel later(settings, saved, *removed);
    EXPECT_EQ(texts(later.state().networks), QStringList{u"Our house"_s});
}

TEST_F(SavedListsModelTest, ShowTheWordNameInAnyOtherField)
{
    const SavedEntry entry{.name = u"X"_s, .bssid = homeBssid};
    EXPECT_EQ(tokenFieldDisplayStringForRepresentedObject(TokenFieldKind::Other, entry), u"name"_s);
    EXPECT_EQ(tokenFieldDisplayStringForRepresentedObject(TokenFieldKind::Other, {}), u"name"_s);
    for (const TokenFieldKind field : {TokenFieldKind::SavedNetworks,
             TokenFieldKind::SavedAddresses, TokenFieldKind::QuickAddresses}) {
        EXPECT_EQ(tokenFieldDisplayStringForRepresentedObject(field, entry), u"X"_s);
    }
}

TEST_F(SavedListsModelTest, OpenSomethingFromTheirTwoFieldsOnly)
{
    EXPECT_TRUE(tokenFieldHasMenuForRepresentedObject(TokenFieldKind::SavedNetworks));
    EXPECT_TRUE(tokenFieldHasMenuForRepresentedObject(TokenFieldKind::SavedAddresses));
    EXPECT_FALSE(tokenFieldHasMenuForRepresentedObject(TokenFieldKind::QuickAddresses));
    EXPECT_FALSE(tokenFieldHasMenuForRepresentedObject(TokenFieldKind::Other));
}

TEST_F(SavedListsModelTest, OrderQuickAddressesByTheirAddressIgnoringCase)
{
    saveAddress(u"b4:00:00:00:00:01"_s, u"first name"_s);
    saveAddress(u"A4:00:00:00:00:02"_s, u"zebra"_s);
    saveAddress(u"C4:00:00:00:00:03"_s, u"middle"_s);
    saveAddress(u"a4:00:00:00:00:01"_s, u"Name"_s);
    model->updateQuickAddressesField();
    EXPECT_EQ(texts(model->state().quickAddresses),
        (QStringList{u"Name"_s, u"zebra"_s, u"first name"_s, u"middle"_s}));
}

TEST_F(SavedListsModelTest, RefillQuickAddressesWhenTheyAreTold)
{
    saveAddress(address, u"Printer"_s);
    EXPECT_TRUE(model->state().quickAddresses.isEmpty());
    model->updateQuickAddressesField();
    EXPECT_EQ(texts(model->state().quickAddresses), QStringList{u"Printer"_s});
    settings.set(keys::savedAddresses, QVariant());
    model->updateQuickAddressesField();
    EXPECT_TRUE(model->state().quickAddresses.isEmpty());
}

TEST_F(SavedListsModelTest, OfferToAddAnAddressThatIsNotSaved)
{
    EXPECT_EQ(heart().symbol, u"heart"_s);
    EXPECT_EQ(heart().accessibilityText, u"Add Address to Favorites"_s);
    model->chooseFavoriteButton();
    EXPECT_TRUE(settings.getDictionary(keys::savedAddresses).contains(address));
    EXPECT_EQ(heart().symbol, u"heart.fill"_s);
    EXPECT_EQ(heart().accessibilityText, u"Remove Address from Favorites"_s);
    model->chooseFavoriteButton();
    EXPECT_TRUE(settings.getDictionary(keys::savedAddresses).isEmpty());
    EXPECT_EQ(heart().symbol, u"heart"_s);
}

TEST_F(SavedListsModelTest, CanHaveAnAddressBackThatTheirHeartRemoved)
{
    saveAddress(address, u"Printer"_s);
    model->chooseFavoriteButton();
    ASSERT_TRUE(removed->entry());
    removed->undo();
    EXPECT_EQ(savedAddressEntry(address).name, u"Printer"_s);
    EXPECT_TRUE(heart().removes);
}

TEST_F(SavedListsModelTest, OfferWhatFitsTheAddressInUse)
{
    saveAddress(address, u"Printer"_s);
    EXPECT_TRUE(heart().removes);
    wear(u"02:00:00:00:00:01"_s);
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
    settings.set(keys::savedNetworks, QVariantMap{{u"00"_s, u"text"_s}, {u"01"_s, 5}});
    settings.set(keys::savedAddresses, QVariantList{u"text"_s});
    model->updateQuickAddressesField();
    EXPECT_TRUE(model->state().networks.isEmpty());
    EXPECT_TRUE(model->state().addresses.isEmpty());
    EXPECT_TRUE(model->state().quickAddresses.isEmpty());
}

TEST_F(SavedListsModelTest, GiveEntriesTheKeyUnderWhichTheyAreSaved)
{
    settings.set(keys::savedNetworks, QVariantMap{{homeBssid, QVariantMap{}},
                                          {officeBssid, networkEntry(cafeBssid, u"S"_s, u"N"_s)}});
    const QList<SavedListsModel::Token> tokens = model->state().networks;
    ASSERT_EQ(tokens.size(), 2);
    EXPECT_EQ(tokens.at(0).entry.bssid, homeBssid);
    EXPECT_EQ(tokens.at(0).text, QString());
    EXPECT_EQ(tokens.at(1).entry.bssid, officeBssid);
}

TEST_F(SavedListsModelTest, SayOnlyWhatChanged)
{
    saveAddress(address, u"Printer"_s);
    model->updateQuickAddressesField();
    changes = 0;
    model->updateQuickAddressesField();
    model->updateFavAddressButton();
    EXPECT_EQ(changes, 0);
}

TEST_F(SavedListsModelTest, LeaveNothingBehind)
{
    model.reset();
    removed.reset();
    EXPECT_FALSE(settings.hasObservers());
}

TEST_F(SavedListsModelTest, GiveAnAddressItsNameBackThatTheirHeartRemovedJustNow)
{
    saveAddress(address, u"Printer"_s);
    model->chooseFavoriteButton();
    ASSERT_TRUE(savedAddress(address).isEmpty());
    model->chooseFavoriteButton();
    EXPECT_EQ(savedAddressEntry(address).name, u"Printer"_s);
    EXPECT_FALSE(removed->entry()) << "there is nothing to have back any more";
    model->chooseFavoriteButton();
    removed->forget();
    model->chooseFavoriteButton();
    EXPECT_EQ(savedAddressEntry(address).name, address) << "later it is a new one";
}

} // namespace
} // namespace quillon::test
