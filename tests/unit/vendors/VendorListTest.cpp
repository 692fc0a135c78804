// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vendors/VendorList.h"

#include "VendorFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

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
    loadList();
    EXPECT_THAT(shown(), ElementsAre("Appl (000006)", "Apple (000003)", "Apple (000003)",
                             "Random Address", "Sam (000005)", "Zeta (000002)", "apple (000001)",
                             QString::fromUtf8("\xC3\x84pfel (000004)")));
}

TEST_F(VendorListTest, AreOnlyRandomAddressWithoutADatabase)
{
    QFile::remove(files.liveDatabase());
    loadList();
    EXPECT_THAT(shown(), ElementsAre("Random Address"));
    writeFile(files.liveDatabase(), "junk");
    loadList();
    EXPECT_THAT(shown(), ElementsAre("Random Address"));
}

TEST_F(VendorListTest, AreInMemoryFromTheFirstQuestionUntilTheyAreLetGo)
{
    loadList();
    EXPECT_FALSE(list.isInMemory());
    EXPECT_EQ(list.rowCount(), 8);
    EXPECT_TRUE(list.isInMemory());
    const std::weak_ptr<const VendorEntries> entries = list.vendorItemArray();
    list.letGo();
    EXPECT_FALSE(list.isInMemory());
    EXPECT_TRUE(entries.expired());
}

TEST_F(VendorListTest, EachQuestionReadsThemWhenTheyAreNotInMemory)
{
    EXPECT_EQ(list.rowOf(u"Sam (000005)"_s), 4);
    list.letGo();
    EXPECT_EQ(list.entry(4), u"Sam (000005)"_s);
    list.letGo();
    EXPECT_EQ(list.vendorItemArray()->size(), 8);
}

TEST_F(VendorListTest, AreReadAnewAfterTheyWereLetGoWithTheFilterInForce)
{
    list.filter(u"app"_s);
    EXPECT_EQ(list.rowCount(), 4);
    list.letGo();
    makeLive(registryOf({{"000007", "Apply"}, {"000008", "Zeta"}}));
    EXPECT_THAT(shown(), ElementsAre("Apply (000007)"));
}

TEST_F(VendorListTest, ThatAreNotInMemoryAreNotReadToBeShownUnfiltered)
{
    list.filter(u"app"_s);
    list.letGo();
    list.clearFilter();
    EXPECT_FALSE(list.isInMemory());
    EXPECT_EQ(list.rowCount(), 8);
}

TEST_F(VendorListTest, ThatAreNotInMemoryAreRebuiltByWhoeverAsksNext)
{
    int rebuilt = 0;
    QObject::connect(&list, &VendorList::rebuilt, [&rebuilt] { ++rebuilt; });
    loadList();
    EXPECT_EQ(rebuilt, 1);
    EXPECT_FALSE(list.isInMemory());
}

TEST_F(VendorListTest, AreRebuiltInTheBackground)
{
    ASSERT_EQ(list.rowCount(), 8);
    makeLive(registryOf(2));
    list.loadVendorField();
    EXPECT_EQ(list.rowCount(), 8);
    scheduler.runPending();
    EXPECT_EQ(list.rowCount(), 3);
}

TEST_F(VendorListTest, ThatAreLetGoWhileTheyAreRebuiltStayAway)
{
    ASSERT_EQ(list.rowCount(), 8);
    list.loadVendorField();
    list.letGo();
    int rebuilt = 0;
    QObject::connect(&list, &VendorList::rebuilt, [&rebuilt] { ++rebuilt; });
    scheduler.runPending();
    EXPECT_EQ(rebuilt, 1);
    EXPECT_FALSE(list.isInMemory());
}

TEST_F(VendorListTest, StayWhatTheyWereUntilTheNewOnesAreThere)
{
    const auto before = list.vendorItemArray();
    makeLive(registryOf(2));
    list.loadVendorField();
    EXPECT_EQ(list.rowCount(), 8);
    scheduler.runPending();
    EXPECT_EQ(list.rowCount(), 3);
    EXPECT_EQ(before->size(), 8);
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
    loadList();
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
    loadList();
    list.filter(u"Apf"_s);
    EXPECT_THAT(shown(), ElementsAre(QString::fromUtf8("\xC3\x84pfel (000004)")));
    list.filter(QString::fromUtf8("\xC3\xA3ppl\xC3\xA9 ("));
    EXPECT_THAT(shown(), ElementsAre("Apple (000003)", "Apple (000003)", "apple (000001)"));
}

TEST_F(VendorListTest, AreNotFoundByWhatStandsInside)
{
    loadList();
    list.filter(u"pple"_s);
    EXPECT_THAT(shown(), IsEmpty());
    list.filter(u"Random"_s);
    EXPECT_THAT(shown(), ElementsAre("Random Address"));
}

TEST_F(VendorListTest, KeepTheFilterWhenTheyAreRebuilt)
{
    // Without the program's wiring, which selects the device's choice then.
    VendorList own(scheduler, database);
    own.loadVendorField();
    scheduler.runPending();
    own.filter(u"app"_s);
    own.loadVendorField();
    scheduler.runPending();
    EXPECT_EQ(own.rowCount(), 4);
}

TEST_F(VendorListTest, TellTheirRowFilteredOrNot)
{
    loadList();
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
    shortLived->loadVendorField();
    shortLived.reset();
    scheduler.runPending();
}

} // namespace
} // namespace quillon::test
