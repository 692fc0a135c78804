// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/networks/SavedEntryPopoverModel.h"

#include "networks/SavedAddressEditing.h"
#include "presentation/networks/RemovedFavorite.h"
#include "unit/networks/NetworkEditingFixture.h"

#include <memory>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using Popover = SavedEntryPopoverModel::Popover;
using TickButton = SavedEntryPopoverModel::TickButton;

class SavedEntryPopoverModelTest : public NetworkEditingFixture
{
protected:
    SavedEntryPopoverModelTest()
    {
        editing->endEditing();
        saveAddress(address, u"Printer"_s);
        model = std::make_unique<SavedEntryPopoverModel>(SavedEntryPopoverModel::Collaborators{
            settings, scheduler, *editing, addressEditing, removed});
        QObject::connect(editing.get(), &SavedNetworkEditing::networkDefinitionChanged, model.get(),
            &SavedEntryPopoverModel::showNetworkDefinition);
        QObject::connect(editing.get(), &SavedNetworkEditing::editingFinished, model.get(),
            &SavedEntryPopoverModel::closeNetworkPopover);
        QObject::connect(&addressEditing, &SavedAddressEditing::editingFinished, model.get(),
            &SavedEntryPopoverModel::closeAddressPopover);
    }

    void choose(TokenFieldKind field, const SavedEntry &entry)
    {
        model->tokenFieldMenuForRepresentedObject(field, entry, {100, 40});
    }
    void openNetwork()
    {
        choose(TokenFieldKind::SavedNetworks, savedNetworkEntry(homeBssid));
        scheduler.runPending();
    }
    void openAddress()
    {
        choose(TokenFieldKind::SavedAddresses, savedAddressEntry(address));
        scheduler.runPending();
    }
    const SavedEntryPopoverModel::State &state() const { return model->state(); }

    const QString address = u"a4:83:e7:01:02:03"_s;
    SavedAddressEditing addressEditing{settings, scheduler};
    RemovedFavorite removed{settings, network};
    std::unique_ptr<SavedEntryPopoverModel> model;
};

TEST_F(SavedEntryPopoverModelTest, OpensInTheNextTurnAroundThePointer)
{
    choose(TokenFieldKind::SavedNetworks, savedNetworkEntry(homeBssid));
    EXPECT_EQ(state().open, Popover::None);
    EXPECT_EQ(editing->editingNetworkDict(), savedNetworkEntry(homeBssid));
    scheduler.runPending();
    EXPECT_EQ(state().open, Popover::Network);
    EXPECT_EQ(state().anchor, QRectF(97.5, 37.5, 5, 5));
}

TEST_F(SavedEntryPopoverModelTest, ShowsTheNetwork)
{
    openNetwork();
    EXPECT_EQ(state().name, u"Home"_s);
    EXPECT_EQ(state().ssid, u"Home"_s);
    EXPECT_EQ(state().bssid, homeBssid);
    EXPECT_EQ(state().address, QString());
    EXPECT_TRUE(state().nameEnabled);
    EXPECT_TRUE(state().removeEnabled);
}

TEST_F(SavedEntryPopoverModelTest, ShowsTheAddress)
{
    openAddress();
    EXPECT_EQ(state().open, Popover::Address);
    EXPECT_EQ(state().name, u"Printer"_s);
    EXPECT_EQ(state().address, address);
    EXPECT_EQ(state().bssid, QString());
    EXPECT_TRUE(state().nameEnabled);
    EXPECT_TRUE(state().removeEnabled);
}

TEST_F(SavedEntryPopoverModelTest, OpensFromNoOtherField)
{
    choose(TokenFieldKind::QuickAddresses, savedAddressEntry(address));
    choose(TokenFieldKind::Other, savedAddressEntry(address));
    scheduler.runPending();
    EXPECT_EQ(state(), SavedEntryPopoverModel::State());
    EXPECT_FALSE(addressEditing.editingAddressDict());
}

TEST_F(SavedEntryPopoverModelTest, GivesWayAtOnceToTheNextChosenToken)
{
    openNetwork();
    choose(TokenFieldKind::SavedAddresses, savedAddressEntry(address));
    EXPECT_EQ(state().open, Popover::None);
    EXPECT_FALSE(editing->editingNetworkDict());
    scheduler.runPending();
    EXPECT_EQ(state().open, Popover::Address);
}

TEST_F(SavedEntryPopoverModelTest, OpensForTheLastOfTwoTokensChosenInOneTurn)
{
    choose(TokenFieldKind::SavedAddresses, savedAddressEntry(address));
    choose(TokenFieldKind::SavedNetworks, savedNetworkEntry(officeBssid));
    QList<Popover> opened;
    QObject::connect(
        model.get(), &SavedEntryPopoverModel::changed, [&] { opened << state().open; });
    scheduler.runPending();
    EXPECT_EQ(opened, QList<Popover>{Popover::Network});
    EXPECT_EQ(state().name, u"Office"_s);
}

TEST_F(SavedEntryPopoverModelTest, TakesTheNameAndClosesInTheNextTurn)
{
    openNetwork();
    model->controlTextDidEndEditing(u"Office"_s);
    EXPECT_EQ(name(), u"Office (3)"_s);
    EXPECT_EQ(state().open, Popover::Network);
    scheduler.runPending();
    EXPECT_EQ(state(), SavedEntryPopoverModel::State());
    EXPECT_FALSE(editing->editingNetworkDict());
}

TEST_F(SavedEntryPopoverModelTest, TakesTheNameOfAnAddressAndClosesInTheNextTurn)
{
    openAddress();
    model->controlTextDidEndEditing(u"Scanner"_s);
    EXPECT_EQ(savedAddress(address).value(savedentry::name).toString(), u"Scanner"_s);
    EXPECT_EQ(state().open, Popover::Address);
    scheduler.runPending();
    EXPECT_EQ(state().open, Popover::None);
    EXPECT_FALSE(addressEditing.editingAddressDict());
}

TEST_F(SavedEntryPopoverModelTest, OfTheNextTokenIsNotClosedByTheNameBeforeIt)
{
    openNetwork();
    model->controlTextDidEndEditing(u"Our house"_s);
    choose(TokenFieldKind::SavedNetworks, savedNetworkEntry(officeBssid));
    scheduler.runPending();
    EXPECT_EQ(state().open, Popover::Network);
    EXPECT_EQ(state().name, u"Office"_s);
    EXPECT_EQ(name(), u"Our house"_s);
}

TEST_F(SavedEntryPopoverModelTest, IgnoresANameThatEndsAfterIt)
{
    openNetwork();
    model->closeNetworkPopover();
    settings.clearJournal();
    model->controlTextDidEndEditing(u"Late"_s);
    model->removeEntry();
    EXPECT_TRUE(settings.journal().isEmpty());
}

TEST_F(SavedEntryPopoverModelTest, RemovesItsNetwork)
{
    openNetwork();
    model->removeEntry();
    EXPECT_FALSE(settings.getDictionary(keys::savedNetworks).contains(homeBssid));
    EXPECT_EQ(state().open, Popover::Network);
    scheduler.runPending();
    EXPECT_EQ(state().open, Popover::None);
}

TEST_F(SavedEntryPopoverModelTest, RemovesItsAddress)
{
    openAddress();
    model->removeEntry();
    EXPECT_TRUE(settings.getDictionary(keys::savedAddresses).isEmpty());
    scheduler.runPending();
    EXPECT_EQ(state().open, Popover::None);
}

TEST_F(SavedEntryPopoverModelTest, ClosesOnlyWhatIsOpen)
{
    openNetwork();
    model->closeAddressPopover();
    EXPECT_EQ(state().open, Popover::Network);
    model->closeNetworkPopover();
    EXPECT_EQ(state().open, Popover::None);
    EXPECT_FALSE(editing->editingNetworkDict());
}

TEST_F(SavedEntryPopoverModelTest, TicksOneOfTwoButtonsAndActsOnTheOther)
{
    openNetwork();
    EXPECT_EQ(state().bssidTickButton, (TickButton{.on = true, .hasAction = false}));
    EXPECT_EQ(state().ssidTickButton, (TickButton{.on = false, .hasAction = true}));

    settings.clearJournal();
    model->chooseBssidTickButton();
    EXPECT_TRUE(settings.journal().isEmpty()) << "it is on already";

    model->chooseSsidTickButton();
    EXPECT_EQ(state().ssidTickButton, (TickButton{.on = true, .hasAction = false}));
    EXPECT_EQ(state().bssidTickButton, (TickButton{.on = false, .hasAction = true}));
    EXPECT_TRUE(savedNetwork(homeBssid).contains(savedentry::ssidDefined));
    EXPECT_EQ(modes.size(), 1);
    EXPECT_EQ(state().bssid, homeBssid);

    model->chooseSsidTickButton();
    EXPECT_EQ(modes.size(), 1) << "it is on already";

    model->chooseBssidTickButton();
    EXPECT_EQ(state().bssidTickButton, (TickButton{.on = true, .hasAction = false}));
    EXPECT_FALSE(savedNetwork(homeBssid).contains(savedentry::ssidDefined));
    EXPECT_EQ(modes.size(), 2);
}

TEST_F(SavedEntryPopoverModelTest, OpensWithTheModeThatIsSaved)
{
    saveNetwork(homeBssid, u"Home"_s, u"Home"_s, true);
    openNetwork();
    EXPECT_TRUE(state().ssidTickButton.on);
    EXPECT_FALSE(state().bssidTickButton.on);
}

TEST_F(SavedEntryPopoverModelTest, HasNoTickButtonsForAnAddress)
{
    openAddress();
    model->chooseSsidTickButton();
    model->chooseBssidTickButton();
    model->showNetworkDefinition();
    EXPECT_EQ(state().ssidTickButton, TickButton());
    EXPECT_EQ(state().bssidTickButton, TickButton());
    EXPECT_TRUE(modes.isEmpty());
}

TEST_F(SavedEntryPopoverModelTest, ClosesInTheNextTurnWhenItsEntryIsRemovedElsewhere)
{
    openNetwork();
    settings.changeFromOutside(keys::savedNetworks, QVariantMap{});
    scheduler.runPending();
    EXPECT_EQ(state(), SavedEntryPopoverModel::State());
    EXPECT_FALSE(editing->editingNetworkDict());
    openAddress();
    settings.changeFromOutside(keys::savedAddresses, QVariantMap{});
    scheduler.runPending();
    EXPECT_EQ(state().open, Popover::None);
}

TEST_F(SavedEntryPopoverModelTest, DoesNotBringBackWhatWasRemovedElsewhere)
{
    openNetwork();
    settings.set(keys::savedNetworks, QVariantMap{});
    ASSERT_EQ(state().open, Popover::Network) << "it closes in the next turn";
    settings.clearJournal();
    model->controlTextDidEndEditing(u"Our house"_s);
    model->chooseSsidTickButton();
    EXPECT_TRUE(settings.journal().isEmpty());
    scheduler.runPending();
    EXPECT_EQ(state().open, Popover::None);
    EXPECT_TRUE(settings.getDictionary(keys::savedNetworks).isEmpty());
}

TEST_F(SavedEntryPopoverModelTest, DoesNotOpenForWhatWasRemovedMeanwhile)
{
    choose(TokenFieldKind::SavedNetworks, savedNetworkEntry(homeBssid));
    settings.set(keys::savedNetworks, QVariantMap{});
    QList<Popover> opened;
    QObject::connect(
        model.get(), &SavedEntryPopoverModel::changed, [&] { opened << state().open; });
    scheduler.runPending();
    EXPECT_TRUE(opened.isEmpty());
}

TEST_F(SavedEntryPopoverModelTest, StaysWhenAnotherEntryIsRemovedElsewhere)
{
    openNetwork();
    QVariantMap list = settings.getDictionary(keys::savedNetworks);
    list.remove(officeBssid);
    settings.changeFromOutside(keys::savedNetworks, list);
    scheduler.runPending();
    EXPECT_EQ(state().open, Popover::Network);
}

TEST_F(SavedEntryPopoverModelTest, CanHaveBackWhatItRemoved)
{
    saveNetwork(homeBssid, u"Home"_s, u"Our house"_s, true);
    const QVariantMap before = savedNetwork(homeBssid);
    openNetwork();
    model->removeEntry();
    scheduler.runPending();
    removed.undo();
    EXPECT_EQ(savedNetwork(homeBssid), before);
    EXPECT_TRUE(modes.isEmpty()) << "its rules are as they were";

    openAddress();
    model->removeEntry();
    scheduler.runPending();
    removed.undo();
    EXPECT_EQ(savedAddressEntry(address).name, u"Printer"_s);
}

TEST_F(SavedEntryPopoverModelTest, MayBeGoneWhenItsTurnComes)
{
    choose(TokenFieldKind::SavedNetworks, savedNetworkEntry(homeBssid));
    model.reset();
    scheduler.runPending();
    EXPECT_TRUE(editing->editingNetworkDict());
}

} // namespace
} // namespace quillon::test
