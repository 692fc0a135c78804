// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/history/HistoryImport.h"

#include "unit/presentation/history/HistoryFixture.h"

#include <QFile>

namespace quillon::test {
namespace {

class HistoryImportTest : public HistoryWindowFixture
{
protected:
    HistoryImportTest()
    {
        QObject::connect(&model, &HistoryImport::ended, &model,
            [this](const QString &message) { told << message; });
    }
    QString import()
    {
        told.clear();
        model.import();
        EXPECT_TRUE(model.state().isBusy);
        endTurn();
        EXPECT_FALSE(model.state().isBusy);
        EXPECT_EQ(told.size(), 1);
        return told.value(0);
    }
    QStringList saved(const QString &list) const { return settings.getDictionary(list).keys(); }

    KnownPlaces places{store, scheduler};
    HistoryImport model{settings, places};
    QStringList told;
    const QString point = u"a4:2b:b0:11:22:33"_s;
    const QString mine = u"02:00:00:00:00:aa"_s;
    const QVariantMap before{{mine, SavedEntry::ofAddress(mine).toPropertyList()}};
};

TEST_F(HistoryImportTest, AddsWhatTheListsDoNotHave)
{
    settings.set(keys::savedAddresses, before);
    fill(3);
    settings.clearJournal();
    EXPECT_EQ(import(), u"3 addresses and 1 network added."_s);
    EXPECT_EQ(saved(keys::savedAddresses).size(), 4);
    EXPECT_EQ(settings.getDictionary(keys::savedNetworks),
        (QVariantMap{{point, SavedEntry::ofNetwork(point, u"Harbor"_s).toPropertyList()}}));
    EXPECT_EQ(settings.writeCount(keys::savedAddresses), 1);
    EXPECT_EQ(settings.synchronizeCount(), 2) << "each list";
    EXPECT_TRUE(model.canUndo());
}

TEST_F(HistoryImportTest, SaysThatThereIsNothingNew)
{
    fill(1);
    EXPECT_EQ(import(), u"1 address and 1 network added."_s);
    settings.clearJournal();
    EXPECT_EQ(import(), u"Nothing in the history that is not saved."_s);
    EXPECT_FALSE(model.canUndo());
    EXPECT_TRUE(settings.journal().isEmpty()) << "nothing is written";
}

TEST_F(HistoryImportTest, SaysOnlyWhatWasAdded)
{
    settings.set(keys::savedNetworks, QVariantMap{{point, QVariantMap{}}});
    fill(2);
    EXPECT_EQ(import(), u"2 addresses added."_s);
    settings.set(keys::savedNetworks, QVariant());
    EXPECT_EQ(import(), u"1 network added."_s);
}

TEST_F(HistoryImportTest, AddsTheNewestAndSaysThatThereAreMore)
{
    for (int number = 0; number < 250; ++number) {
        const QString digits = u"%1"_s.arg(number, 4, 10, QChar(u'0'));
        insert(number, u"02:00:00:00:%1:%2"_s.arg(digits.left(2), digits.right(2)));
    }
    save();
    EXPECT_EQ(import(), u"199 addresses and 1 network added. These are the newest 200; import "
                        "again for more."_s);
    EXPECT_EQ(import(), u"51 addresses added."_s);
}

TEST_F(HistoryImportTest, TakesItAllBack)
{
    settings.set(keys::savedAddresses, before);
    fill(3);
    import();
    model.undo();
    EXPECT_EQ(settings.getDictionary(keys::savedAddresses), before);
    EXPECT_FALSE(settings.get(keys::savedNetworks).isValid()) << "as there was none";
    EXPECT_FALSE(model.canUndo());
    settings.clearJournal();
    model.undo();
    EXPECT_EQ(settings.writeCount(keys::savedAddresses), 0) << "once";
}

TEST_F(HistoryImportTest, TakesBackOnlyWhatItAddedWhenTheListsWereChanged)
{
    fill(3);
    import();
    QVariantMap now = settings.getDictionary(keys::savedAddresses);
    const QString renamed = now.firstKey();
    now[renamed] = QVariantMap{{u"address"_s, renamed}, {u"name"_s, u"Mine now"_s}};
    now[mine] = before[mine];
    settings.changeFromOutside(keys::savedAddresses, now);
    endTurn();
    model.undo();
    EXPECT_EQ(saved(keys::savedAddresses), (QStringList{renamed, mine}));
    EXPECT_TRUE(saved(keys::savedNetworks).isEmpty());
}

TEST_F(HistoryImportTest, WritesNothingWhereNothingOfItIsLeft)
{
    fill(1);
    import();
    settings.changeFromOutside(keys::savedAddresses, u"no list"_s);
    settings.changeFromOutside(keys::savedNetworks, QVariantMap());
    endTurn();
    settings.clearJournal();
    model.undo();
    EXPECT_EQ(settings.get(keys::savedAddresses), QVariant(u"no list"_s));
    EXPECT_TRUE(settings.journal().isEmpty());
}

TEST_F(HistoryImportTest, TellsOfNetworksThatComeAndGo)
{
    int changes = 0;
    QObject::connect(&model, &HistoryImport::networksChanged, &model, [&changes] { ++changes; });
    fill(1);
    import();
    EXPECT_EQ(changes, 1);
    insert(5, u"02:00:00:00:00:05"_s);
    save();
    import();
    EXPECT_EQ(changes, 1) << "an address only";
    settings.set(keys::savedNetworks, QVariant());
    import();
    model.undo();
    EXPECT_EQ(changes, 3);
}

TEST_F(HistoryImportTest, SaysThatTheHistoryCannotBeRead)
{
    fill(1);
    import();
    ASSERT_TRUE(QFile::rename(path, path + u".away"_s));
    EXPECT_EQ(import(), u"The history cannot be read."_s);
    EXPECT_FALSE(model.canUndo());
    ASSERT_TRUE(QFile::rename(path + u".away"_s, path));
    EXPECT_EQ(import(), u"Nothing in the history that is not saved."_s);
}

TEST_F(HistoryImportTest, LeavesWhatIsSavedDuringTheSearch)
{
    fill(1);
    model.import();
    const QVariantMap theirs{{point, QVariantMap{{u"BSSID"_s, point}, {u"name"_s, u"Theirs"_s}}}};
    settings.set(keys::savedNetworks, theirs);
    endTurn();
    EXPECT_EQ(told, QStringList{u"1 address added."_s});
    EXPECT_EQ(settings.getDictionary(keys::savedNetworks), theirs);
}

TEST_F(HistoryImportTest, AListThatIsNoneIsReplacedAndHadBack)
{
    settings.set(keys::savedAddresses, u"no list"_s);
    fill(1);
    import();
    EXPECT_EQ(saved(keys::savedAddresses).size(), 1);
    model.undo();
    EXPECT_EQ(settings.get(keys::savedAddresses), QVariant(u"no list"_s));
}

TEST_F(HistoryImportTest, CannotBeTakenBackForEver)
{
    fill(1);
    import();
    model.forget();
    EXPECT_FALSE(model.canUndo());
    model.undo();
    EXPECT_EQ(saved(keys::savedAddresses).size(), 1);
}

TEST_F(HistoryImportTest, TwoPressesAreOneImport)
{
    fill(1);
    model.import();
    model.import();
    endTurn();
    EXPECT_EQ(told.size(), 1);
}

} // namespace
} // namespace quillon::test
