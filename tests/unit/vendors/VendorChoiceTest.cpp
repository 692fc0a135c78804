// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vendors/VendorChoice.h"

#include "VendorFixture.h"
#include "base/NotificationNames.h"
#include "devices/RandomAddress.h"

#include <QCoreApplication>
#include <QTranslator>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class VendorChoiceTest : public VendorFixture
{
protected:
    VendorChoiceTest()
    {
        makeLive(registryOf({{"001A2B", "Some Maker Inc."}, {"080030", "Another (Old) Maker"}}));
        storeDevice(en0, {{record::current, u"00:11:22:33:44:55"_s}});
        storeDevice(en1, {{record::vendor, maker}});
        select(en0);
        openList();
        notifications.addObserver(
            notifications::vendorUpdated, [this](const NotificationCenter::Notification &posted) {
                EXPECT_EQ(posted.object, nullptr);
                announced << posted.userInfo;
                // Whoever hears of it finds it stored.
                EXPECT_EQ(stored(posted.userInfo.value(u"device"_s).toString()),
                    posted.userInfo.value(u"newVendor"_s).toString());
            });
    }

    QString stored(const QString &device) const
    {
        return settings.getDictionary(keys::deviceDict)
            .value(device)
            .toMap()
            .value(record::vendor)
            .toString();
    }

    const QString en0 = u"en0"_s;
    const QString en1 = u"en1"_s;
    const QString maker = u"Some Maker Inc. (001A2B)"_s;
    const QString random = u"Random Address"_s;
    QList<QVariantMap> announced;
};

TEST_F(VendorChoiceTest, IsStoredForTheSelectedInterfaceAndAnnounced)
{
    settings.clearJournal();
    choice.saveVendorSelection(maker);
    EXPECT_EQ(stored(en0), maker);
    EXPECT_EQ(settings.getDictionary(keys::deviceDict).value(en0).toMap().value(record::current),
        u"00:11:22:33:44:55"_s);
    EXPECT_THAT(settings.journal(), ElementsAre("set deviceDict", "synchronize"));
    EXPECT_THAT(announced, ElementsAre(QVariantMap{{u"device"_s, en0}, {u"newVendor"_s, maker}}));
}

TEST_F(VendorChoiceTest, GivesRandomAddressesItsPrefix)
{
    choice.saveVendorSelection(u"Another (Old) Maker (080030)"_s);
    EXPECT_EQ(vendorPrefix(stored(en0)), u"080030"_s);
    choice.saveVendorSelection(random);
    EXPECT_EQ(vendorPrefix(stored(en0)), std::nullopt);
}

TEST_F(VendorChoiceTest, WithANameThatIsFarTooLongIsStoredCut)
{
    makeLive(registryOf({{"001A2B", QByteArray(5'000'000, 'A')}}));
    loadList();
    choice.updateVendorTableSelectionWithRow(0);
    EXPECT_TRUE(stored(en0) == QString(4096, u'A') + " (001A2B)"_L1)
        << "length " << stored(en0).size();
    EXPECT_EQ(vendorPrefix(stored(en0)), u"001A2B"_s);
    EXPECT_EQ(list.rowOf(stored(en0)), 0);
}

/// A language in which the fixed entry is called otherwise.
class OtherLanguage : public QTranslator
{
public:
    OtherLanguage() { QCoreApplication::installTranslator(this); }
    ~OtherLanguage() override { QCoreApplication::removeTranslator(this); }
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *text, const char *, int) const override
    {
        return QLatin1String(text) == "Random Address"_L1 ? u"Beliebige Adresse"_s : QString();
    }
};

TEST_F(VendorChoiceTest, OfAnyVendorIsStoredInEnglishAndShownInTheUsersLanguage)
{
    const OtherLanguage language;
    const QString anyVendor = u"Beliebige Adresse"_s;
    storeDevice(en0, {{record::vendor, maker}});
    loadList();
    ASSERT_EQ(list.entry(1), anyVendor) << "in its place among the others";
    choice.updateVendorTableSelectionWithRow(1);
    EXPECT_EQ(stored(en0), random);
    EXPECT_THAT(announced, ElementsAre(QVariantMap{{u"device"_s, en0}, {u"newVendor"_s, random}}));
    EXPECT_EQ(field.state().text, anyVendor);
    for (const std::optional<QString> &device : {std::optional(en0), std::optional<QString>()}) {
        field.showText(QString());
        choice.updateVendorField(device);
        EXPECT_EQ(field.state().text, anyVendor);
    }
    EXPECT_EQ(choice.shownChoice(en0), anyVendor);
    choice.setVendorSelectionForDevice(en1);
    ASSERT_NE(field.state().selectedRow, 1);
    choice.setVendorSelectionForDevice(en0);
    EXPECT_EQ(field.state().selectedRow, 1);
}

TEST_F(VendorChoiceTest, IsNotStoredWithoutAKnownInterface)
{
    for (const char *const device : {"", "en7"}) {
        select(QString::fromLatin1(device));
        choice.saveVendorSelection(maker);
    }
    settings.set(keys::currentInterfaceDict, {});
    choice.saveVendorSelection(maker);
    EXPECT_EQ(settings.getDictionary(keys::deviceDict).size(), 2);
    EXPECT_THAT(announced, IsEmpty());
}

TEST_F(VendorChoiceTest, IsShownInTheField)
{
    choice.updateVendorField(en1);
    EXPECT_EQ(field.state().text, maker);
    choice.updateVendorField(en0);
    EXPECT_EQ(field.state().text, random);
    choice.updateVendorField(u"en7"_s);
    EXPECT_EQ(field.state().text, random);
}

TEST_F(VendorChoiceTest, IsRandomAddressInTheFieldWithoutADevice)
{
    select(en1);
    choice.updateVendorField(std::nullopt);
    EXPECT_EQ(field.state().text, random);
}

TEST_F(VendorChoiceTest, IsSelectedInTheWholeList)
{
    list.filter(u"another"_s);
    choice.setVendorSelectionForDevice(en1);
    EXPECT_EQ(list.rowCount(), 3);
    EXPECT_EQ(field.state().selectedRow, 2);
    choice.setVendorSelectionForDevice(en0);
    EXPECT_EQ(field.state().selectedRow, 1);
    EXPECT_EQ(list.entry(1), random);
}

TEST_F(VendorChoiceTest, ThatIsNoLongerInTheListIsStillShownButNotSelected)
{
    storeDevice(en0, {{record::vendor, u"Gone Maker (ABCDEF)"_s}});
    choice.updateVendorField(en0);
    choice.setVendorSelectionForDevice(en0);
    EXPECT_EQ(field.state().selectedRow, std::nullopt);
    EXPECT_EQ(field.state().text, "Gone Maker (ABCDEF)"_L1);
}

TEST_F(VendorChoiceTest, OfTheSelectedInterfaceIsSelectedWhenTheListIsRebuilt)
{
    select(en1);
    list.filter(u"another"_s);
    loadList();
    EXPECT_EQ(list.rowCount(), 3);
    EXPECT_EQ(field.state().selectedRow, 2);
}

TEST_F(VendorChoiceTest, IsTheRowOfWhatIsShown)
{
    list.filter(u"some"_s);
    choice.updateVendorTableSelectionWithRow(0);
    EXPECT_EQ(stored(en0), maker);
    EXPECT_EQ(field.state().text, maker);
}

TEST_F(VendorChoiceTest, IsNoRowThatIsNotThere)
{
    for (const qsizetype row : {-1, 3, 1000}) {
        choice.updateVendorTableSelectionWithRow(row);
    }
    list.filter(u"nothing like that"_s);
    choice.updateVendorTableSelectionWithRow(0);
    EXPECT_EQ(stored(en0), QString());
    EXPECT_THAT(announced, IsEmpty());
}

} // namespace
} // namespace quillon::test
