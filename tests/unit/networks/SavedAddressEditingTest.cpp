// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "networks/SavedAddressEditing.h"

#include "NetworkFixture.h"

#include <memory>

namespace quillon::test {
namespace {

class SavedAddressEditingTest : public NetworkFixture
{
protected:
    SavedAddressEditingTest()
    {
        saveAddress(address, QStringLiteral("Printer"));
        saveAddress(otherAddress, QStringLiteral("Scanner"));
        editing->beginEditing(savedAddressEntry(address));
        QObject::connect(
            editing.get(), &SavedAddressEditing::editingFinished, [this] { ++finished; });
        settings.clearJournal();
    }

    QString name() const { return savedAddress(address).value(savedentry::name).toString(); }

    const QString address = QStringLiteral("a4:83:e7:01:02:03");
    const QString otherAddress = QStringLiteral("a4:83:e7:0a:0b:0c");
    std::unique_ptr<SavedAddressEditing> editing =
        std::make_unique<SavedAddressEditing>(settings, scheduler);
    int finished = 0;
};

TEST_F(SavedAddressEditingTest, GetsTheTypedName)
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

TEST_F(SavedAddressEditingTest, IsNotWrittenForItsOwnName)
{
    editing->changeSavedAddressName(QStringLiteral("Printer"));
    EXPECT_TRUE(settings.journal().isEmpty());
    EXPECT_EQ(finished, 0) << "not in the caller's turn";
    scheduler.runPending();
    EXPECT_EQ(finished, 1);
}

TEST_F(SavedAddressEditingTest, GetsASuffixForTheNameOfAnother)
{
    editing->changeSavedAddressName(QStringLiteral("Scanner"));
    EXPECT_EQ(name(), QStringLiteral("Scanner (2)"));
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
    EXPECT_EQ(settings.journal(),
        (QStringList{QStringLiteral("set savedAddresses"), QStringLiteral("synchronize")}));
    EXPECT_FALSE(editing->editingAddressDict());
    EXPECT_EQ(finished, 0) << "not in the caller's turn";
    scheduler.runPending();
    EXPECT_EQ(finished, 1);
}

TEST_F(SavedAddressEditingTest, IsNoneAfterTheEnd)
{
    editing->endEditing();
    editing->changeSavedAddressName(QStringLiteral("Late"));
    editing->removeSavedAddress();
    scheduler.runPending();
    EXPECT_TRUE(settings.journal().isEmpty());
    EXPECT_EQ(finished, 0);
}

TEST_F(SavedAddressEditingTest, IsACopyOfTheListsEntry)
{
    saveAddress(address, QStringLiteral("Changed elsewhere"));
    EXPECT_EQ(editing->editingAddressDict()->name, QStringLiteral("Printer"));
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
