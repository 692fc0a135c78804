// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "networks/SavedAddressEditing.h"

#include "NetworkFixture.h"

#include <memory>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class SavedAddressEditingTest : public NetworkFixture
{
protected:
    SavedAddressEditingTest()
    {
        saveAddress(address, u"Printer"_s);
        saveAddress(otherAddress, u"Scanner"_s);
        editing->beginEditing(savedAddressEntry(address));
        QObject::connect(
            editing.get(), &SavedAddressEditing::editingFinished, [this] { ++finished; });
        settings.clearJournal();
    }

    QString name() const { return savedAddress(address).value(savedentry::name).toString(); }

    const QString address = u"a4:83:e7:01:02:03"_s;
    const QString otherAddress = u"a4:83:e7:0a:0b:0c"_s;
    std::unique_ptr<SavedAddressEditing> editing =
        std::make_unique<SavedAddressEditing>(settings, scheduler);
    int finished = 0;
};

TEST_F(SavedAddressEditingTest, GetsTheTypedName)
{
    editing->changeSavedAddressName(u"Old printer"_s);
    EXPECT_EQ(name(), u"Old printer"_s);
    EXPECT_EQ(savedAddress(address).value(savedentry::address).toString(), address);
    EXPECT_EQ(savedAddress(otherAddress).value(savedentry::name).toString(), u"Scanner"_s);
    EXPECT_EQ(settings.journal(), (QStringList{u"set savedAddresses"_s, u"synchronize"_s}));
    EXPECT_EQ(radio.reads, 0);
}

TEST_F(SavedAddressEditingTest, IsNotWrittenForItsOwnName)
{
    editing->changeSavedAddressName(u"Printer"_s);
    EXPECT_TRUE(settings.journal().isEmpty());
    EXPECT_EQ(finished, 0) << "not in the caller's turn";
    scheduler.runPending();
    EXPECT_EQ(finished, 1);
}

TEST_F(SavedAddressEditingTest, GetsASuffixForTheNameOfAnother)
{
    editing->changeSavedAddressName(u"Scanner"_s);
    EXPECT_EQ(name(), u"Scanner (2)"_s);
    scheduler.runPending();
    EXPECT_EQ(finished, 1);
}

TEST_F(SavedAddressEditingTest, MayHaveNoName)
{
    editing->changeSavedAddressName(QString());
    EXPECT_EQ(name(), QString());
    EXPECT_TRUE(savedAddress(address).contains(savedentry::name));
}

TEST_F(SavedAddressEditingTest, IsRemoved)
{
    editing->removeSavedAddress();
    EXPECT_EQ(settings.getDictionary(keys::savedAddresses).keys(), QStringList{otherAddress});
    EXPECT_EQ(settings.journal(), (QStringList{u"set savedAddresses"_s, u"synchronize"_s}));
    EXPECT_FALSE(editing->editingAddressDict());
    EXPECT_EQ(finished, 0) << "not in the caller's turn";
    scheduler.runPending();
    EXPECT_EQ(finished, 1);
}

TEST_F(SavedAddressEditingTest, IsNoneAfterTheEnd)
{
    editing->endEditing();
    editing->changeSavedAddressName(u"Late"_s);
    editing->removeSavedAddress();
    scheduler.runPending();
    EXPECT_TRUE(settings.journal().isEmpty());
    EXPECT_EQ(finished, 0);
}

TEST_F(SavedAddressEditingTest, IsACopyOfTheListsEntry)
{
    saveAddress(address, u"Changed elsewhere"_s);
    EXPECT_EQ(editing->editingAddressDict()->name, u"Printer"_s);
}

TEST_F(SavedAddressEditingTest, MayBeGoneWhenItsTurnComes)
{
    editing->removeSavedAddress();
    editing.reset();
    scheduler.runPending();
    EXPECT_EQ(finished, 0);
}

} // namespace
} // namespace quillon::test
