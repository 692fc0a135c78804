// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/window/MainWindowModel.h"
#include "unit/presentation/DeviceModelsFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

/// What the window makes of the text in its address field, character by character.
class AddressEntryTest : public DeviceModelsFixture
{
protected:
    AddressEntryTest()
    {
        model.prepareWindow();
        model.setHelperInstalled(true);
        model.populateSelectionButton();
        showRecord(u"3c:22:fb:00:00:01"_s, u"3c:22:fb:00:00:01"_s);
    }

    /// As the selected interface's addresses are stored.
    void showRecord(const QString &address, const QString &hardware)
    {
        QVariantMap stored = settings.getDictionary(keys::currentInterfaceDict);
        stored[record::current] = address;
        stored[record::hardware] = hardware;
        settings.set(keys::currentInterfaceDict, stored);
        model.populateHexField();
        scheduler.runPending();
    }
    QString shownFor(const QString &text)
    {
        model.setFieldText(text);
        model.checkUpdateButton();
        return model.state().fieldText;
    }
    bool isOffered() const { return model.state().updateEnabled; }

    MainWindowModel model{{settings, scheduler, devices, current, changer}};
};

TEST_F(AddressEntryTest, TwelveCharactersAreShownInDisplayCaseOnlyWithoutColons)
{
    EXPECT_EQ(shownFor(u"a2b2c3d4e5f6"_s), u"A2B2C3D4E5F6"_s);
    EXPECT_EQ(shownFor(u"a2:b2:c3:d4:"_s), u"a2:b2:c3:d4:"_s);
    EXPECT_EQ(shownFor(u"a2b2c3d4e5f"_s), u"a2b2c3d4e5f"_s);
    EXPECT_FALSE(isOffered());
}

TEST_F(AddressEntryTest, SeventeenCharactersAreShownInDisplayCaseWhateverTheyAre)
{
    EXPECT_EQ(shownFor(u"ab:11:22:33:44::5"_s), u"AB:11:22:33:44::5"_s);
    EXPECT_FALSE(isOffered());
    EXPECT_EQ(shownFor(u"ab:11:22:33:44:5"_s), u"ab:11:22:33:44:5"_s);
    EXPECT_FALSE(isOffered());
    EXPECT_EQ(shownFor(u"a2:b2:c3:d4:e5:f6"_s), u"A2:B2:C3:D4:E5:F6"_s);
    EXPECT_TRUE(isOffered());
    settings.setBool(keys::lowerCaseHEX, true);
    EXPECT_EQ(shownFor(u"A2:B2:C3:D4:E5:F6"_s), u"a2:b2:c3:d4:e5:f6"_s);
    EXPECT_TRUE(isOffered());
}

TEST_F(AddressEntryTest, NothingIsOfferedThatDiffersFromTheAddressInUseByCaseOnly)
{
    for (const QString &inUse : {u"3c:22:fb:00:00:01"_s, u"3C:22:FB:00:00:01"_s}) {
        showRecord(inUse, u"3c:22:fb:00:00:01"_s);
        for (const QString &typed : {u"3c:22:fb:00:00:01"_s, u"3C:22:fb:00:00:01"_s}) {
            shownFor(typed);
            EXPECT_FALSE(isOffered()) << typed.toStdString();
        }
    }
}

TEST_F(AddressEntryTest, NothingIsLookedAtWithoutTheHelper)
{
    model.setHelperInstalled(false);
    EXPECT_EQ(shownFor(u"a2:b2:c3:d4:e5:f6"_s), u"a2:b2:c3:d4:e5:f6"_s) << "not even its case";
    EXPECT_FALSE(isOffered());
}

} // namespace
} // namespace quillon::test
