// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/SnapshotParts.h"

#include "MemoryReplicaStorage.h"
#include "SyncExamples.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class SnapshotPartsTest : public ::testing::Test
{
protected:
    void fill(int records, int settings)
    {
        for (int i = 0; i < records; ++i) {
            RecordState state;
            state.inserted = {1, quint32(i), 7};
            state.deleted = i % 2 == 0 ? Stamp{2, 0, 7} : Stamp();
            storage.content.records.insert(ruleId(i), state);
        }
        for (int i = 0; i < settings; ++i) {
            storage.content.settings.insert(
                {u"key"_s, QString::number(i)}, {QString::number(i), Stamp{1, 0, 7}});
        }
    }
    /// All parts, joined.
    SyncChanges all(qsizetype content, int *count = nullptr)
    {
        SnapshotParts parts(storage, content);
        SyncChanges joined;
        while (const auto part = parts.next()) {
            EXPECT_LE(approximateSize(*part), content + 100);
            join(joined, *part);
            if (count) {
                ++*count;
            }
        }
        return joined;
    }

    MemoryReplicaStorage storage;
};

TEST_F(SnapshotPartsTest, HoldEverythingAlsoWhatWasDeleted)
{
    fill(1000, 50);
    int count = 0;
    const SyncChanges joined = all(4000, &count);
    EXPECT_EQ(joined.records, storage.content.records);
    EXPECT_EQ(joined.settings, storage.content.settings);
    EXPECT_GT(count, 10);
}

TEST_F(SnapshotPartsTest, EndWhereThePageOfRecordsEnds)
{
    for (const int records : {199, 200, 201, 400}) {
        storage.content = {};
        fill(records, 1);
        EXPECT_EQ(all(1 << 20).records.size(), records);
        EXPECT_EQ(all(1).records.size(), records);
    }
}

TEST_F(SnapshotPartsTest, NothingIsNoPart)
{
    EXPECT_FALSE(SnapshotParts(storage, 100).next().has_value());
}

TEST_F(SnapshotPartsTest, OnlySettingsAreAPart)
{
    fill(0, 3);
    EXPECT_EQ(all(1000).settings.size(), 3);
}

} // namespace
} // namespace quillon::test
