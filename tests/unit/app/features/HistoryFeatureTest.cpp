// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/features/HistoryFeature.h"

#include "unit/app/ProgramOnFakes.h"

#include <QFile>

namespace quillon::test {
namespace {

class HistoryFeatureTest : public ProgramOnFakes
{
};

TEST_F(HistoryFeatureTest, TheRecordsAreOpenedAtTheirStepAndNotBefore)
{
    create();
    const auto isOpen = [this] { return program->records().store.hasManagedObjectContext(); };
    at(&LaunchSequence::vendorDatabaseDue, [&] { EXPECT_FALSE(isOpen()); });
    at(&LaunchSequence::recordStoreDue, [&] {
        EXPECT_TRUE(isOpen());
        EXPECT_TRUE(QFile::exists(recordsPath()));
    });
    start();
    EXPECT_EQ(stepsSeen, 2);
}

TEST_F(HistoryFeatureTest, SwitchingTheCloudReplacesTheContainer)
{
    run();
    int replaced = 0;
    QObject::connect(
        &program->records().store, &RecordStore::managedObjectContextReplaced, [&] { ++replaced; });
    machine.settings.setBool(keys::iCloudSync, true);
    EXPECT_EQ(replaced, 1);
    machine.settings.setBool(keys::iCloudSync, false);
    EXPECT_EQ(replaced, 2);
}

TEST_F(HistoryFeatureTest, AChangeIsOneRecordInTheFile)
{
    run();
    program->randomizeAddress();
    machine.scheduler.advance(std::chrono::seconds(5));
    const ManagedObjectList records = history();
    ASSERT_EQ(records.size(), 1);
    EXPECT_EQ(records.first()->value(model::connection::device), enp1s0);
    EXPECT_EQ(records.first()->value(model::connection::address).toString().toUpper(),
        machine.host.addressOf(enp1s0).toUpper());
    EXPECT_FALSE(context().hasChanges());
}

TEST_F(HistoryFeatureTest, TheRecordIsWrittenBeforeTheChangeIsBroadcast)
{
    run();
    // What comes next on this thread is the broadcast.
    Q_EMIT program->wiring().historyRecordDue(enp2s0, QStringLiteral("02:00:00:00:00:01"));
    EXPECT_EQ(history().size(), 1);
    EXPECT_FALSE(context().hasChanges());
}

TEST_F(HistoryFeatureTest, AChangeOnAnotherThreadIsRecordedWithTheFactsOfItsMoment)
{
    run();
    const QDateTime moment = machine.scheduler.now();
    machine.scheduler.asBackground([this] {
        Q_EMIT program->wiring().historyRecordDue(enp2s0, QStringLiteral("02:00:00:00:00:01"));
    });
    EXPECT_TRUE(history().isEmpty());
    machine.scheduler.setClock(std::chrono::minutes(1));
    machine.scheduler.runPending();
    ASSERT_EQ(history().size(), 1);
    EXPECT_EQ(history().first()->value(model::connection::date).toDateTime(), moment);
}

} // namespace
} // namespace quillon::test
