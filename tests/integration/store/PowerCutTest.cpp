// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The power is cut at every write of every save, and at every other step; what was reported as
// saved has to be there afterwards, whole.
#include "Batches.h"
#include "RecordedDisk.h"
#include "RecordsOnDisk.h"
#include "fakes/FakeScheduler.h"
#include "fakes/QtPrinting.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class PowerCut : public ::testing::Test
{
protected:
    /// A program makes the file, saves, ends, and another one goes on in it.
    void record(RecordedDisk::Lie lie)
    {
        disk.emplace(fileSystem, lie);
        const QString path = folder.filePath(u"Quillon.sqlite"_s);
        for (const qint64 last : {2, 4}) {
            FakeScheduler scheduler;
            auto opened = openedContext(path, scheduler);
            ASSERT_TRUE(opened) << opened.error().message.toStdString();
            Batches batches(*opened.value());
            for (qint64 batch = last - 1; batch <= last; ++batch) {
                batches.change(batch);
                begun.push_back(disk->steps());
                const auto error = opened.value()->save();
                ASSERT_FALSE(error) << error->message.toStdString();
                reported.push_back(disk->steps());
            }
        }
        // What comes now is not recorded.
        fileSystem.watch = {};
        fileSystem.watch.hasFastDisk = true;
    }

    /// How many of the saves had begun, or were reported, when so many steps were done.
    static qint64 count(const std::vector<std::size_t> &moments, std::size_t steps)
    {
        return std::ranges::count_if(moments, [steps](std::size_t at) { return at <= steps; });
    }

    /// What is wrong with the file after a power cut; empty when nothing is.
    QString faultAfter(std::size_t steps, RecordedDisk::Arrived arrived)
    {
        const QTemporaryDir place;
        disk->makeAfterPowerCut(steps, arrived, random, place.path());
        const QString path = place.filePath(u"Quillon.sqlite"_s);
        FakeScheduler scheduler;
        auto opened = openedContext(path, scheduler);
        if (!opened) {
            return u"not opened: "_s + opened.error().message;
        }
        Batches batches(*opened.value());
        const qint64 found = batches.last();
        if (found < count(reported, steps) || found > count(begun, steps)) {
            return u"batch %1 was reported and %2 begun; the file has %3"_s
                .arg(count(reported, steps))
                .arg(count(begun, steps))
                .arg(found);
        }
        if (batches.found() != Batches::expected(found)) {
            return u"batch %1 is not whole"_s.arg(found);
        }
        opened.value().reset();
        const std::string verdict = integrityOf(path);
        return verdict == "ok" ? QString() : QString::fromStdString(verdict);
    }

    QStringList faults()
    {
        using enum RecordedDisk::Arrived;
        QStringList faults;
        for (std::size_t steps = 0; steps <= disk->steps(); ++steps) {
            for (const auto arrived : {Nothing, Everything, AnyOfIt, AnyOfIt, AnyOfIt}) {
                const QString fault = faultAfter(steps, arrived);
                ++states;
                if (!fault.isEmpty()) {
                    faults << u"after step %1 of %2: %3"_s.arg(steps).arg(disk->steps()).arg(fault);
                }
            }
        }
        return faults;
    }

    QTemporaryDir folder;
    WatchedFileSystem fileSystem;
    std::optional<RecordedDisk> disk;
    std::vector<std::size_t> begun;
    std::vector<std::size_t> reported;
    std::mt19937 random{20261122};
    int states = 0;
};

TEST_F(PowerCut, AtAnyStepLosesNothingThatWasSavedAndLeavesNothingHalf)
{
    record(RecordedDisk::Lie::None);
    const QStringList found = faults();
    EXPECT_TRUE(found.isEmpty()) << found.size() << " of " << states << " states\n"
                                 << found.mid(0, 10).join(u'\n').toStdString();
    EXPECT_GT(disk->steps(), 100U);
    EXPECT_GT(reported.front(), begun.front()) << "a save is recorded";
}

// The same is seen to fail where nothing, or no log, is waited for.

TEST_F(PowerCut, OnADiskThatDoesNotSynchronizeIsSeenToLoseRecords)
{
    record(RecordedDisk::Lie::OfAll);
    EXPECT_FALSE(faultAfter(reported.front(), RecordedDisk::Arrived::Nothing).isEmpty());
}

TEST_F(PowerCut, OnADiskThatDoesNotSynchronizeTheLogIsSeenToLoseRecords)
{
    record(RecordedDisk::Lie::OfLogs);
    for (const std::size_t save : reported) {
        EXPECT_FALSE(faultAfter(save, RecordedDisk::Arrived::Nothing).isEmpty());
    }
}

} // namespace
} // namespace quillon::test
