// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/ChangesFormat.h"

#include "SyncExamples.h"

#include <gtest/gtest.h>

#include <limits>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

SyncChanges readBack(const SyncChanges &changes)
{
    const auto read = readChanges(writtenChanges(changes));
    EXPECT_TRUE(std::holds_alternative<SyncChanges>(read));
    return std::holds_alternative<SyncChanges>(read) ? std::get<SyncChanges>(read) : SyncChanges();
}

TEST(ChangesFormatTest, RandomChangesComeBack)
{
    SeededRandom random(2);
    for (int i = 0; i < 3000; ++i) {
        const SyncChanges changes = randomChanges(random);
        ASSERT_EQ(readBack(changes), changes) << i;
    }
}

TEST(ChangesFormatTest, EveryKindOfValueComesBack)
{
    constexpr qint64 most = std::numeric_limits<qint64>::max();
    const Stamp stamp{latestStampTime, 4'294'967'295u, ~quint64{0}};
    SyncChanges changes;
    int number = 0;
    for (const SyncValue &value :
        {SyncValue(), SyncValue(true), SyncValue(false), SyncValue(qint64(0)), SyncValue(most),
            SyncValue(-most), SyncValue(0.5), SyncValue(1e300), SyncValue(u""_s),
            SyncValue(u"\u00e4\U0001F600"_s), SyncValue(u"02:ab:cd:ef:01:23"_s),
            SyncValue(u"02:AB:CD:EF:01:23"_s), SyncValue(u"02:aB:cd:ef:01:23"_s),
            SyncValue(u"02-ab-cd-ef-01-23"_s), SyncValue(SyncDate{0}), SyncValue(SyncDate{-1}),
            SyncValue(SyncDate{most}), SyncValue(SyncDate{-most}), SyncValue(QByteArray()),
            SyncValue(QByteArray("\0\xff", 2)), SyncValue(SyncTree{"tree"}),
            SyncValue(QString(100'000, u'x'))}) {
        changes.settings.insert({u"k"_s, QString::number(number++)}, {value, stamp});
    }
    EXPECT_EQ(readBack(changes), changes);
}

TEST(ChangesFormatTest, NoPartAndNothingBehindIsTaken)
{
    SeededRandom random(3);
    SyncChanges changes;
    while (changes.records.size() < 2 || changes.settings.isEmpty()) {
        changes = randomChanges(random);
    }
    const QByteArray whole = writtenChanges(changes);
    for (qsizetype length = 0; length < whole.size(); ++length) {
        const auto read = readChanges(whole.first(length));
        EXPECT_TRUE(std::holds_alternative<FileProblem>(read)) << length;
    }
    EXPECT_TRUE(std::holds_alternative<FileProblem>(readChanges(whole + '\0')));
}

TEST(ChangesFormatTest, DamagedBytesNeverGiveWhatCannotBe)
{
    SeededRandom random(4);
    for (int i = 0; i < 20'000; ++i) {
        QByteArray bytes = writtenChanges(randomChanges(random));
        for (int change = 1 + random.below(3); change > 0; --change) {
            bytes[random.below(int(bytes.size()))] = char(random.below(256));
        }
        const auto read = readChanges(bytes);
        const auto *changes = std::get_if<SyncChanges>(&read);
        if (changes) {
            // What was read can be written and is the same again.
            ASSERT_EQ(readBack(*changes), *changes);
            ASSERT_LE(latestStamp(*changes).time, latestStampTime);
        }
    }
}

} // namespace
} // namespace quillon::test
