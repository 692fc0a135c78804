// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/RecordRemoval.h"

#include "store/model/RecordFileError.h"
#include "unit/store/RecordStoreFixture.h"

#include <QFile>

namespace quillon::test {

using namespace Qt::StringLiterals;

class RecordRemovalTest : public RecordStoreTest
{
protected:
    RecordRemovalTest()
    {
        QObject::connect(&removal, &RecordRemoval::ended, &removal,
            [this](qsizetype count, const std::optional<Error> &failure) {
                ++ends;
                done = count;
                error = failure;
            });
        QObject::connect(&removal, &RecordRemoval::progressed, &removal,
            [this](qsizetype now, qsizetype of) { progress << std::pair(now, of); });
    }
    void fill(int count)
    {
        const ManagedObjectContext::UndoDisabled facts(context());
        for (int number = 0; number < count; ++number) {
            context()
                .insertNewObject(model::Connection)
                ->set(model::connection::device, QString::number(number));
        }
        ASSERT_FALSE(context().save());
        endTurn();
    }
    ManagedObjectList all() { return context().fetch({model::Connection, {}, {}}).value(); }
    static QList<qint64> keysOf(const ManagedObjectList &objects)
    {
        QList<qint64> keys;
        for (const auto &object : objects) {
            keys << object->key();
        }
        return keys;
    }

    RecordRemoval removal{store, scheduler};
    QList<std::pair<qsizetype, qsizetype>> progress;
    int ends = 0;
    qsizetype done = -1;
    std::optional<Error> error;
};

TEST_F(RecordRemovalTest, DeletesFromTheFileAndFromMemory)
{
    fill(4);
    const auto objects = all();
    removal.remove(model::Connection, keysOf({objects[0], objects[2]}));
    EXPECT_TRUE(removal.isRunning());
    endTurn();
    EXPECT_FALSE(removal.isRunning());
    EXPECT_EQ(ends, 1);
    EXPECT_EQ(done, 2);
    EXPECT_FALSE(error);
    EXPECT_TRUE(objects[0]->isDeleted());
    EXPECT_EQ(all(), ManagedObjectList({objects[1], objects[3]}));
    EXPECT_FALSE(store.canUndo());
}

TEST_F(RecordRemovalTest, SavesWhatIsPendingBefore)
{
    fill(1);
    const auto object = all().first();
    context().insertNewObject(model::Connection)->set(model::connection::device, u"new"_s);
    removal.remove(model::Connection, keysOf({object}));
    endTurn();
    ASSERT_EQ(all().size(), 1);
    EXPECT_EQ(all().first()->get(model::connection::device), u"new"_s);
    EXPECT_FALSE(store.hasChanges());
}

TEST_F(RecordRemovalTest, DeletesInPartsAndSaysHowFarItIs)
{
    fill(12'000);
    removal.remove(model::Connection, keysOf(all()));
    endTurn();
    ASSERT_EQ(progress.size(), 3);
    EXPECT_EQ(progress.first(), std::pair(qsizetype{5000}, qsizetype{12'000}));
    EXPECT_TRUE(all().isEmpty());
}

TEST_F(RecordRemovalTest, ListsLetGoOfWhatIsDeletedWhileTheRestIs)
{
    fill(25'000);
    const auto keys = keysOf(all());
    QList<bool> running;
    QObject::connect(
        &store, &RecordStore::recordsMerged, &removal, [&] { running << removal.isRunning(); });
    removal.remove(model::Connection, keys);
    endTurn();
    EXPECT_EQ(running, QList<bool>({true, false}));
}

TEST_F(RecordRemovalTest, StoppedItKeepsTheRest)
{
    fill(3);
    removal.remove(model::Connection, keysOf(all()));
    removal.stop();
    endTurn();
    EXPECT_EQ(ends, 1);
    EXPECT_EQ(done, 0);
    EXPECT_FALSE(error);
    EXPECT_EQ(all().size(), 3);
}

TEST_F(RecordRemovalTest, OneAtATime)
{
    fill(2);
    const auto objects = all();
    removal.remove(model::Connection, keysOf({objects[0]}));
    removal.remove(model::Connection, keysOf({objects[1]}));
    endTurn();
    EXPECT_EQ(ends, 1);
    EXPECT_EQ(all().size(), 1);
}

TEST_F(RecordRemovalTest, AFileThatIsGoneIsAnError)
{
    fill(1);
    const QList<qint64> keys = keysOf(all());
    QFile::rename(path, path + u".away"_s);
    removal.remove(model::Connection, keys);
    endTurn();
    EXPECT_EQ(ends, 1);
    ASSERT_TRUE(error);
    EXPECT_TRUE(isRecordFileError(*error, RecordFileError::CannotOpen));
}

} // namespace quillon::test
