// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "networks/SavedEntries.h"

#include "unit/networks/NetworkFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class SavedEntriesTest : public NetworkFixture
{
protected:
    SavedEntriesTest() { saveNetwork(homeBssid, u"Home"_s, u"Our house"_s, true); }

    std::optional<RemovedEntry> remove(const QString &key)
    {
        return removeEntry(settings, keys::savedNetworks, key);
    }
};

TEST_F(SavedEntriesTest, GiveWhatIsRemovedAsItWasStored)
{
    const QVariantMap before = savedNetwork(homeBssid);
    const auto removed = remove(homeBssid);
    EXPECT_EQ(removed, (RemovedEntry{keys::savedNetworks, homeBssid, before}));
    EXPECT_FALSE(isSaved(settings, keys::savedNetworks, homeBssid));
    EXPECT_FALSE(remove(homeBssid)) << "it is there no more";
}

TEST_F(SavedEntriesTest, TakeBackWhatWasRemovedAsItWas)
{
    const QVariantMap before = savedNetwork(homeBssid);
    const auto removed = remove(homeBssid);
    ASSERT_TRUE(removed);
    settings.clearJournal();
    EXPECT_TRUE(restoreEntry(settings, *removed));
    EXPECT_EQ(savedNetwork(homeBssid), before);
    EXPECT_EQ(settings.journal(), (QStringList{u"set savedNetworks"_s, u"synchronize"_s}));
}

TEST_F(SavedEntriesTest, KeepWhatIsSavedUnderTheKeyMeanwhile)
{
    const auto removed = remove(homeBssid);
    ASSERT_TRUE(removed);
    saveNetwork(homeBssid, u"Home"_s, u"Theirs"_s);
    settings.clearJournal();
    EXPECT_FALSE(restoreEntry(settings, *removed));
    EXPECT_EQ(savedNetworkEntry(homeBssid).name, u"Theirs"_s);
    EXPECT_TRUE(settings.journal().isEmpty());
}

} // namespace
} // namespace quillon::test
