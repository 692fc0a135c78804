// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vendors/VendorList.h"

#include "VendorFixture.h"
#include "store/model/Predicate.h"

namespace quillon::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class VendorsToChooseFrom : public VendorFixture
{
protected:
    VendorsToChooseFrom()
    {
        makeLive(registryOf(
            {{"000002", "Zeta"}, {"000001", "apple"}, {"000003", "Apple"}, {"000003", "Apple"},
                {"000004", "\xC3\x84pfel"}, {"000005", "Sam"}, {"000006", "Appl"}}));
    }
};

TEST_F(VendorsToChooseFrom, StandInPlainOrderWithDuplicatesAndRandomAddressAmongThem)
{
    loadList();
    EXPECT_THAT(shown(), ElementsAre("Appl (000006)", "Apple (000003)", "Apple (000003)",
                             "Random Address", "Sam (000005)", "Zeta (000002)", "apple (000001)",
                             QString::fromUtf8("\xC3\x84pfel (000004)")));
}

TEST_F(VendorsToChooseFrom, AreOnlyRandomAddressWithoutADatabase)
{
    QFile::remove(files.liveDatabase());
    loadList();
    EXPECT_THAT(shown(), ElementsAre("Random Address"));
    writeFile(files.liveDatabase(), "junk");
    loadList();
    EXPECT_THAT(shown(), ElementsAre("Random Address"));
}

TEST_F(VendorsToChooseFrom, AreReadInTheBackground)
{
    list.loadVendorField();
    EXPECT_THAT(shown(), IsEmpty());
    scheduler.runPending();
    EXPECT_EQ(list.rowCount(), 8);
}

TEST_F(VendorsToChooseFrom, StayWhatTheyWereUntilTheNewOnesAreThere)
{
    loadList();
    makeLive(registryOf(2));
    const auto before = list.vendorItemArray();
    list.loadVendorField();
    EXPECT_EQ(list.rowCount(), 8);
    scheduler.runPending();
    EXPECT_EQ(list.rowCount(), 3);
    EXPECT_EQ(before->size(), 8);
}

TEST_F(VendorsToChooseFrom, AreRebuiltOnceBySeveralCalls)
{
    int rebuilt = 0;
    QObject::connect(&list, &VendorList::rebuilt, [&rebuilt] { ++rebuilt; });
    list.loadVendorField();
    list.loadVendorField();
    loadList();
    EXPECT_EQ(rebuilt, 1);
}

TEST_F(VendorsToChooseFrom, AreNarrowedByHowTheyBeginInAnyCase)
{
    loadList();
    list.filter(QStringLiteral("app"));
    EXPECT_THAT(shown(),
        ElementsAre("Appl (000006)", "Apple (000003)", "Apple (000003)", "apple (000001)"));
    list.filter(QStringLiteral("APPLE"));
    EXPECT_THAT(shown(), ElementsAre("Apple (000003)", "Apple (000003)", "apple (000001)"));
    list.clearFilter();
    EXPECT_EQ(list.rowCount(), 8);
}

TEST_F(VendorsToChooseFrom, AreNarrowedWithoutRegardToDiacritics)
{
    loadList();
    list.filter(QStringLiteral("Apf"));
    EXPECT_THAT(shown(), ElementsAre(QString::fromUtf8("\xC3\x84pfel (000004)")));
    list.filter(QString::fromUtf8("\xC3\xA3ppl\xC3\xA9 ("));
    EXPECT_THAT(shown(), ElementsAre("Apple (000003)", "Apple (000003)", "apple (000001)"));
}

TEST_F(VendorsToChooseFrom, AreNotFoundByWhatStandsInside)
{
    loadList();
    list.filter(QStringLiteral("pple"));
    EXPECT_THAT(shown(), IsEmpty());
    list.filter(QStringLiteral("Random"));
    EXPECT_THAT(shown(), ElementsAre("Random Address"));
}

TEST_F(VendorsToChooseFrom, KeepTheFilterWhenTheyAreRebuilt)
{
    // Without the program's wiring, which selects the device's choice then.
    VendorList own(scheduler, database);
    own.loadVendorField();
    scheduler.runPending();
    own.filter(QStringLiteral("app"));
    own.loadVendorField();
    scheduler.runPending();
    EXPECT_EQ(own.rowCount(), 4);
}

TEST_F(VendorsToChooseFrom, TellTheirRowFilteredOrNot)
{
    loadList();
    EXPECT_EQ(list.rowOf(QStringLiteral("Apple (000003)")), 1);
    EXPECT_EQ(list.rowOf(QStringLiteral("Sam (000005)")), 4);
    EXPECT_EQ(list.rowOf(QStringLiteral("Sam")), -1);
    list.filter(QStringLiteral("apple"));
    EXPECT_EQ(list.rowOf(QStringLiteral("apple (000001)")), 2);
    EXPECT_EQ(list.rowOf(QStringLiteral("Sam (000005)")), -1);
    EXPECT_EQ(list.rowOf(QStringLiteral("Zz")), -1);
}

TEST_F(VendorsToChooseFrom, AreReadForNobodyWhoIsGone)
{
    auto shortLived = std::make_unique<VendorList>(scheduler, database);
    shortLived->loadVendorField();
    shortLived.reset();
    scheduler.runPending();
}

TEST(VendorEntries, AnswerLikeTheFilterOfRecords)
{
    const QStringList texts = {QStringLiteral("Zed"), QString::fromUtf8("e\xCC\x81lan"),
        QString::fromUtf8("\xC3\x89LAN"), QStringLiteral("el"), QStringLiteral("Elan")};
    const VendorEntries entries(texts);
    for (const char *const text : {"", "e", "\xC3\xA9", "EL", "e\xCC\x81", "elan", "z", "elanx"}) {
        const QString wanted = QString::fromUtf8(text);
        QStringList expected;
        for (const QString &entry : entries.texts()) {
            if (foldedText(entry).startsWith(foldedText(wanted))) {
                expected << entry;
            }
        }
        QStringList found;
        for (const qsizetype index : entries.beginningWith(wanted)) {
            found << entries.texts().at(index);
        }
        EXPECT_EQ(found, expected) << text;
    }
}

} // namespace
} // namespace quillon::test
