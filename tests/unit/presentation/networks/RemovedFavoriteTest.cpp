// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/networks/RemovedFavorite.h"

#include "unit/networks/NetworkFixture.h"

#include <memory>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class RemovedFavoriteTest : public NetworkFixture
{
protected:
    RemovedFavoriteTest()
    {
        saveNetwork(homeBssid, u"Home"_s, u"Our house"_s, true);
        saveAddress(address, u"Printer"_s);
        QObject::connect(model.get(), &RemovedFavorite::changed, [this] { ++changes; });
    }

    void remove(const QString &list, const QString &key)
    {
        model->remember(removeEntry(settings, list, key));
    }

    const QString address = u"a4:83:e7:01:02:03"_s;
    std::unique_ptr<RemovedFavorite> model = std::make_unique<RemovedFavorite>(settings, network);
    int changes = 0;
};

TEST_F(RemovedFavoriteTest, IsNoneAtFirst)
{
    EXPECT_FALSE(model->entry());
    settings.clearJournal();
    model->undo();
    EXPECT_TRUE(settings.journal().isEmpty());
}

TEST_F(RemovedFavoriteTest, ComesBackAsItWas)
{
    QVariantMap entry = savedNetwork(homeBssid);
    entry[u"note"_s] = u"of another program"_s;
    QVariantMap list = settings.getDictionary(keys::savedNetworks);
    list[homeBssid] = entry;
    settings.set(keys::savedNetworks, list);
    remove(keys::savedNetworks, homeBssid);
    EXPECT_TRUE(model->entry());
    EXPECT_EQ(changes, 1);
    settings.clearJournal();
    model->undo();
    EXPECT_EQ(savedNetwork(homeBssid), entry);
    EXPECT_FALSE(model->entry());
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(
        settings.journal().mid(0, 2), (QStringList{u"set savedNetworks"_s, u"synchronize"_s}));
}

TEST_F(RemovedFavoriteTest, ShowsItsNameAgainInTheWiFiRecord)
{
    remove(keys::savedNetworks, homeBssid);
    network.updateWiFiNetwork();
    ASSERT_EQ(current(wifirecord::name), u"Home"_s);
    model->undo();
    EXPECT_EQ(current(wifirecord::name), u"Our house"_s);
}

TEST_F(RemovedFavoriteTest, IsKeptBackByWhatIsSavedUnderItsKeyMeanwhile)
{
    remove(keys::savedAddresses, address);
    saveAddress(address, u"Theirs"_s);
    EXPECT_FALSE(model->entry());
    model->undo();
    EXPECT_EQ(savedAddressEntry(address).name, u"Theirs"_s);
}

TEST_F(RemovedFavoriteTest, StaysWhileOthersAreSavedAndRemoved)
{
    remove(keys::savedAddresses, address);
    saveAddress(u"02:00:00:00:00:09"_s, u"Another"_s);
    saveNetwork(officeBssid, u"Office"_s, u"Office"_s);
    model->remember(std::nullopt);
    EXPECT_TRUE(model->entry());
    model->undo();
    EXPECT_EQ(savedAddressEntry(address).name, u"Printer"_s);
    EXPECT_EQ(savedAddressEntry(u"02:00:00:00:00:09"_s).name, u"Another"_s);
}

TEST_F(RemovedFavoriteTest, TheLastOneComesBackFirst)
{
    int remembered = 0;
    QObject::connect(model.get(), &RemovedFavorite::remembered, [&remembered] { ++remembered; });
    remove(keys::savedAddresses, address);
    remove(keys::savedNetworks, homeBssid);
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(remembered, 2);
    model->undo();
    EXPECT_TRUE(savedAddress(address).isEmpty());
    EXPECT_FALSE(savedNetwork(homeBssid).isEmpty());
    ASSERT_TRUE(model->entry());
    model->undo();
    EXPECT_EQ(savedAddressEntry(address).name, u"Printer"_s);
    EXPECT_FALSE(model->entry());
    EXPECT_EQ(remembered, 2);
}

TEST_F(RemovedFavoriteTest, OneIsPutBackByItsKey)
{
    remove(keys::savedAddresses, address);
    remove(keys::savedNetworks, homeBssid);
    EXPECT_FALSE(model->putBack(keys::savedAddresses, homeBssid));
    EXPECT_TRUE(model->putBack(keys::savedAddresses, address));
    EXPECT_EQ(savedAddressEntry(address).name, u"Printer"_s);
    EXPECT_FALSE(model->putBack(keys::savedAddresses, address));
    ASSERT_TRUE(model->entry());
    EXPECT_EQ(model->entry()->key, homeBssid);
}

TEST_F(RemovedFavoriteTest, IsForgottenInTheEnd)
{
    remove(keys::savedAddresses, address);
    model->forget();
    EXPECT_FALSE(model->entry());
    model->undo();
    EXPECT_TRUE(savedAddress(address).isEmpty());
    EXPECT_FALSE(model->putBack(keys::savedAddresses, address));
    for (int index = 0; index <= RemovedFavorite::most; ++index) {
        const QString key = u"02:00:00:00:00:%1"_s.arg(index);
        saveAddress(key, key);
        remove(keys::savedAddresses, key);
    }
    EXPECT_FALSE(model->putBack(keys::savedAddresses, u"02:00:00:00:00:0"_s));
    EXPECT_TRUE(model->putBack(keys::savedAddresses, u"02:00:00:00:00:1"_s));
}

TEST_F(RemovedFavoriteTest, LeavesNothingBehind)
{
    model.reset();
    EXPECT_FALSE(settings.hasObservers());
}

} // namespace
} // namespace quillon::test
