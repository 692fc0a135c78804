// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vendors/VendorLookup.h"

#include "VendorFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class VendorLookupTest : public VendorFixture
{
protected:
    VendorLookupTest()
    {
        makeLive(registryOf({{"001A2B", "  Some Maker \r\n"}, {"080030", "One"}, {"080030", "Two"},
            {"NO-HEX", "Odd"}}));
        QObject::connect(
            &lookup, &VendorLookup::vendorButtonShown, [this](bool shown) { button << shown; });
    }

    /// Name, address, identifier, registry.
    QStringList data() const
    {
        const QVariantMap stored = settings.getDictionary(keys::currentVendorData);
        return {stored.value(vendordata::vendorCurrentString).toString(),
            stored.value(vendordata::vendorCurrentAddress).toString(),
            stored.value(vendordata::vendorCurrentAssignment).toString(),
            stored.value(vendordata::vendorCurrentRegistry).toString()};
    }

    QList<bool> button;
};

TEST_F(VendorLookupTest, IsLookedUpByItsFirstThreeOctetsInUpperCase)
{
    lookup.updateVendor(u"00:1a:2b:33:44:55"_s);
    EXPECT_THAT(data(), ElementsAre("Some Maker", "1 Long Road, Town", "001A2B", "MA-L"));
    EXPECT_THAT(button, ElementsAre(true));
}

TEST_F(VendorLookupTest, IsTheLastOfSeveral)
{
    lookup.updateVendor(u"08:00:30:00:00:01"_s);
    EXPECT_EQ(data().first(), "Two"_L1);
}

TEST_F(VendorLookupTest, IsNotKnownWithoutARow)
{
    lookup.updateVendor(u"ab:cd:ef:33:44:55"_s);
    EXPECT_THAT(data(),
        ElementsAre("No Vendor Information available...", "Unknown...", "ABCDEF", "Unknown..."));
    EXPECT_THAT(button, ElementsAre(false));
}

TEST_F(VendorLookupTest, IsNotKnownWithoutADatabase)
{
    QFile::remove(files.liveDatabase());
    lookup.updateVendor(u"00:1a:2b:33:44:55"_s);
    EXPECT_EQ(data().first(), "No Vendor Information available..."_L1);
    EXPECT_FALSE(QFile::exists(files.liveDatabase()));
}

TEST_F(VendorLookupTest, StaysPendingForATextThatIsTooShort)
{
    lookup.updateVendor(u"00:1a:2b:33:44:55"_s);
    button.clear();
    for (const char *const text : {"", "00:1a"}) {
        lookup.updateVendor(QString::fromLatin1(text));
        EXPECT_THAT(data(), ElementsAre("Getting Vendor infomation...", "", "", ""));
    }
    EXPECT_THAT(button, IsEmpty());
    EXPECT_EQ(settings.journal().last(), "synchronize"_L1);
}

TEST_F(VendorLookupTest, IsLookedUpByWhateverStandsThere)
{
    lookup.updateVendor(u"no-hex and more"_s);
    EXPECT_THAT(data(), ElementsAre("Odd", "1 Long Road, Town", "NO-HEX", "MA-L"));
    lookup.updateVendor(u"00-1a-2b-33-44-55"_s);
    EXPECT_EQ(data().at(2), "00-1A-"_L1);
    lookup.updateVendor(u":1:2:3"_s);
    EXPECT_EQ(data().at(2), "123"_L1);
}

TEST_F(VendorLookupTest, LeavesOtherKeysOfTheRecordAlone)
{
    settings.set(keys::currentVendorData, QVariantMap{{u"other"_s, u"kept"_s}});
    lookup.updateVendor(u"00:1a:2b:33:44:55"_s);
    EXPECT_EQ(settings.getDictionary(keys::currentVendorData).value(u"other"_s), u"kept"_s);
}

TEST_F(VendorLookupTest, MayHaveARowThatHoldsNothing)
{
    makeLive("Assignment\n001A2B\n");
    lookup.updateVendor(u"00:1a:2b:33:44:55"_s);
    EXPECT_THAT(data(), ElementsAre("", "", "001A2B", ""));
    EXPECT_THAT(button, ElementsAre(true));
}

TEST_F(VendorLookupTest, MayHaveARowWhoseTextsAreFarTooLong)
{
    const QByteArray long1(5'000'000, 'x');
    makeLive("Assignment,Organization Name,Organization Address,Registry\n001A2B," + long1 + ',' +
             long1 + ',' + long1 + '\n');
    lookup.updateVendor(u"00:1a:2b:33:44:55"_s);
    const QString cut(4096, u'x');
    EXPECT_TRUE(data() == (QStringList{cut, cut, u"001A2B"_s, cut}))
        << "lengths " << data().at(0).size() << ' ' << data().at(1).size() << ' '
        << data().at(3).size();
}

TEST_F(VendorLookupTest, IsShownOnTheMainThreadWhoeverAsks)
{
    scheduler.asBackground([this] { lookup.updateVendor(u"00:1a:2b:33:44:55"_s); });
    EXPECT_EQ(data().first(), "Some Maker"_L1);
    EXPECT_THAT(button, IsEmpty());
    scheduler.runPending();
    EXPECT_THAT(button, ElementsAre(true));
}

} // namespace
} // namespace quillon::test
