// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vendors/VendorList.h"

#include "VendorFixture.h"
#include "fakes/MemoryTrims.h"

#include <SQLiteCpp/Database.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class VendorListTest : public VendorFixture
{
protected:
    VendorListTest()
    {
        makeLive(registryOf(
            {{"000002", "Zeta"}, {"000001", "apple"}, {"000003", "Apple"}, {"000003", "Apple"},
                {"000004", "\xC3\x84pfel"}, {"000005", "Sam"}, {"000006", "Appl"}}));
    }
};

TEST_F(VendorListTest, StandInPlainOrderWithDuplicatesAndRandomAddressAmongThem)
{
    openList();
    EXPECT_THAT(shown(), ElementsAre("Appl (000006)", "Apple (000003)", "Apple (000003)",
                             "Random Address", "Sam (000005)", "Zeta (000002)", "apple (000001)",
                             QString::fromUtf8("\xC3\x84pfel (000004)")));
}

TEST_F(VendorListTest, AreOnlyRandomAddressWithoutADatabase)
{
    QFile::remove(files.liveDatabase());
    openList();
    EXPECT_THAT(shown(), ElementsAre("Random Address"));
    EXPECT_TRUE(list.isRead());
    writeFile(files.liveDatabase(), "junk");
    loadList();
    EXPECT_THAT(shown(), ElementsAre("Random Address"));
    EXPECT_TRUE(list.isRead());
}

TEST_F(VendorListTest, AreInMemoryFromTheirOpeningUntilTheyAreLetGo)
{
    loadList();
    EXPECT_FALSE(list.isInMemory());
    EXPECT_EQ(list.rowCount(), 0);
    openList();
    EXPECT_TRUE(list.isInMemory());
    EXPECT_EQ(list.rowCount(), 8);
    const std::weak_ptr<const VendorEntries> entries = list.vendorItemArray();
    list.letGo();
    EXPECT_FALSE(list.isInMemory());
    EXPECT_FALSE(list.isRead());
    EXPECT_EQ(list.rowCount(), 0);
    EXPECT_EQ(list.rowOf(u"Sam (000005)"_s), -1);
    EXPECT_TRUE(entries.expired());
}

TEST_F(VendorListTest, ThatAreLetGoGoBackToTheSystemOnce)
{
    openList();
    const int before = memoryTrims();
    list.letGo();
    list.letGo();
    EXPECT_EQ(memoryTrims() - before, 1);
}

TEST_F(VendorListTest, AreReadInTheBackgroundWhenTheyAreOpened)
{
    list.open();
    EXPECT_FALSE(list.isRead());
    EXPECT_THAT(shown(), ElementsAre("Random Address"));
    scheduler.runPending();
    EXPECT_TRUE(list.isRead());
    EXPECT_EQ(list.rowCount(), 8);
}

TEST_F(VendorListTest, AreNarrowedByWhatWasTypedBeforeTheyWereThere)
{
    list.open();
    list.filter(u"app"_s);
    EXPECT_THAT(shown(), IsEmpty());
    scheduler.runPending();
    EXPECT_EQ(list.rowCount(), 4);
}

TEST_F(VendorListTest, AreReadAgainUntilAnotherProgramUnlocksTheDatabase)
{
    {
        SQLite::Database other(
            QFile::encodeName(files.liveDatabase()).constData(), SQLite::OPEN_READWRITE);
        other.exec("BEGIN EXCLUSIVE");
        openList();
        EXPECT_FALSE(list.isRead());
        EXPECT_THAT(shown(), ElementsAre("Random Address"));
    }
    scheduler.advance(1s);
    EXPECT_TRUE(list.isRead());
    EXPECT_EQ(list.rowCount(), 8);
    EXPECT_FALSE(scheduler.hasTimers());
}

TEST_F(VendorListTest, StayWhatTheyWereWhileAnotherProgramLocksTheDatabase)
{
    openList();
    int rebuilt = 0;
    QObject::connect(&list, &VendorList::rebuilt, [&rebuilt] { ++rebuilt; });
    makeLive(registryOf(2));
    {
        SQLite::Database other(
            QFile::encodeName(files.liveDatabase()).constData(), SQLite::OPEN_READWRITE);
        other.exec("BEGIN EXCLUSIVE");
        loadList();
        EXPECT_EQ(list.rowCount(), 8);
        EXPECT_EQ(rebuilt, 0);
    }
    scheduler.advance(1s);
    EXPECT_EQ(list.rowCount(), 3);
    EXPECT_EQ(rebuilt, 1);
}

TEST_F(VendorListTest, AreReadAnewAfterTheyWereLetGoWithTheFilterInForce)
{
    openList();
    list.filter(u"app"_s);
    EXPECT_EQ(list.rowCount(), 4);
    list.letGo();
    makeLive(registryOf({{"000007", "Apply"}, {"000008", "Zeta"}}));
    openList();
    EXPECT_THAT(shown(), ElementsAre("Apply (000007)"));
}

TEST_F(VendorListTest, OpenedWhileAnEarlierReadingGoesOnAreThoseOfTheLaterOne)
{
    list.open();
    list.letGo();
    makeLive(registryOf(2));
    openList();
    EXPECT_EQ(list.rowCount(), 3);
}

TEST_F(VendorListTest, ThatAreNotInMemoryAreNotReadByAFilter)
{
    list.filter(u"app"_s);
    EXPECT_FALSE(list.isInMemory());
    list.clearFilter();
    EXPECT_FALSE(list.isInMemory());
}

TEST_F(VendorListTest, ThatAreNotInMemoryAreRebuiltWhenTheyAreOpened)
{
    int rebuilt = 0;
    QObject::connect(&list, &VendorList::rebuilt, [&rebuilt] { ++rebuilt; });
    loadList();
    EXPECT_EQ(rebuilt, 1);
    EXPECT_FALSE(list.isInMemory());
}

TEST_F(VendorListTest, AreRebuiltInTheBackground)
{
    openList();
    const auto before = list.vendorItemArray();
    makeLive(registryOf(2));
    list.loadVendorField();
    EXPECT_EQ(list.rowCount(), 8);
    scheduler.runPending();
    EXPECT_EQ(list.rowCount(), 3);
    EXPECT_EQ(before->size(), 8);
}

TEST_F(VendorListTest, ThatAreLetGoWhileTheyAreRebuiltStayAway)
{
    openList();
    list.loadVendorField();
    list.letGo();
    int rebuilt = 0;
    QObject::connect(&list, &VendorList::rebuilt, [&rebuilt] { ++rebuilt; });
    scheduler.runPending();
    EXPECT_EQ(rebuilt, 1);
    EXPECT_FALSE(list.isInMemory());
}

TEST_F(VendorListTest, AreRebuiltOnceBySeveralCalls)
{
    int rebuilt = 0;
    QObject::connect(&list, &VendorList::rebuilt, [&rebuilt] { ++rebuilt; });
    list.loadVendorField();
    list.loadVendorField();
    loadList();
    EXPECT_EQ(rebuilt, 1);
}

TEST_F(VendorListTest, AreNarrowedByHowTheyBeginInAnyCase)
{
    openList();
    list.filter(u"app"_s);
    EXPECT_THAT(shown(),
        ElementsAre("Appl (000006)", "Apple (000003)", "Apple (000003)", "apple (000001)"));
    list.filter(u"APPLE"_s);
    EXPECT_THAT(shown(), ElementsAre("Apple (000003)", "Apple (000003)", "apple (000001)"));
    list.clearFilter();
    EXPECT_EQ(list.rowCount(), 8);
}

TEST_F(VendorListTest, AreNarrowedWithoutRegardToDiacritics)
{
    openList();
    list.filter(u"Apf"_s);
    EXPECT_THAT(shown(), ElementsAre(QString::fromUtf8("\xC3\x84pfel (000004)")));
    list.filter(QString::fromUtf8("\xC3\xA3ppl\xC3\xA9 ("));
    EXPECT_THAT(shown(), ElementsAre("Apple (000003)", "Apple (000003)", "apple (000001)"));
}

TEST_F(VendorListTest, AreNotFoundByWhatStandsInside)
{
    openList();
    list.filter(u"pple"_s);
    EXPECT_THAT(shown(), IsEmpty());
    list.filter(u"Random"_s);
    EXPECT_THAT(shown(), ElementsAre("Random Address"));
}

TEST_F(VendorListTest, KeepTheFilterWhenTheyAreRebuilt)
{
    // Without the program's wiring, which selects the device's choice then.
    VendorList own(scheduler, database);
    own.open();
    scheduler.runPending();
    own.filter(u"app"_s);
    own.loadVendorField();
    scheduler.runPending();
    EXPECT_EQ(own.rowCount(), 4);
}

TEST_F(VendorListTest, TellTheirRowFilteredOrNot)
{
    openList();
    EXPECT_EQ(list.rowOf(u"Apple (000003)"_s), 1);
    EXPECT_EQ(list.rowOf(u"Sam (000005)"_s), 4);
    EXPECT_EQ(list.rowOf(u"Sam"_s), -1);
    list.filter(u"apple"_s);
    EXPECT_EQ(list.rowOf(u"apple (000001)"_s), 2);
    EXPECT_EQ(list.rowOf(u"Sam (000005)"_s), -1);
    EXPECT_EQ(list.rowOf(u"Zz"_s), -1);
}

TEST_F(VendorListTest, AreReadForNobodyWhoIsGone)
{
    auto shortLived = std::make_unique<VendorList>(scheduler, database);
    shortLived->open();
    shortLived.reset();
    scheduler.runPending();
}

} // namespace
} // namespace quillon::test
