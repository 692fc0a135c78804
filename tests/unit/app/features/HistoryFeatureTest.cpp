// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/features/HistoryFeature.h"

#include "unit/app/ProgramOnFakes.h"

#include <QFile>

#include <SQLiteCpp/Database.h>
#include <cstdio>
#include <thread>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class HistoryFeatureTest : public ProgramOnFakes
{
};

TEST_F(HistoryFeatureTest, TheRecordsAreOpenedAtTheEndOfTheLaunchAndNotBefore)
{
    create();
    program->launch().awakeFromNib();
    program->launch().applicationWillFinishLaunching();
    EXPECT_FALSE(features().history.store.hasManagedObjectContext());
    program->launch().applicationDidFinishLaunching();
    EXPECT_TRUE(features().history.store.hasManagedObjectContext());
    EXPECT_TRUE(QFile::exists(recordsPath()));
}

TEST_F(HistoryFeatureTest, RecordsOfANewerVersionEndTheProgramWithAnAlert)
{
    saveRule({});
    SQLite::Database(recordsPath().toStdString(), SQLite::OPEN_READWRITE)
        .exec("PRAGMA user_version = 99");
    create();
    machine.alerts.whileShown = [this] {
        std::fprintf(stderr, "%s", qUtf8Printable(machine.alerts.alerts.last().message));
    };
    EXPECT_EXIT(features().history.store.managedObjectContext(),
        ::testing::ExitedWithCode(EXIT_FAILURE), "written by a newer version of Quillon$");
}

TEST_F(HistoryFeatureTest, SwitchingTheCloudReplacesTheContainer)
{
    run();
    int replaced = 0;
    QObject::connect(
        &features().history.store, &RecordStore::managedObjectContextReplaced, [&] { ++replaced; });
    machine.settings.setBool(keys::iCloudSync, true);
    EXPECT_EQ(replaced, 1);
    machine.settings.setBool(keys::iCloudSync, false);
    EXPECT_EQ(replaced, 2);
}

TEST_F(HistoryFeatureTest, AChangeIsOneRecordInTheFile)
{
    run();
    features().mainWindow.randomizeAddress();
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
    Q_EMIT features().devices.addressChanger.addressChanged(enp2s0, u"02:00:00:00:00:01"_s);
    EXPECT_EQ(history().size(), 1);
    EXPECT_FALSE(context().hasChanges());
}

TEST_F(HistoryFeatureTest, AChangeOnAnotherThreadIsRecordedWithTheFactsOfItsMoment)
{
    run();
    const QDateTime moment = machine.scheduler.now();
    std::thread other([this] {
        machine.scheduler.asBackground([this] {
            Q_EMIT features().devices.addressChanger.addressChanged(enp2s0, u"02:00:00:00:00:01"_s);
        });
    });
    other.join();
    EXPECT_TRUE(history().isEmpty());
    machine.scheduler.setClock(std::chrono::minutes(1));
    machine.scheduler.runPending();
    ASSERT_EQ(history().size(), 1);
    EXPECT_EQ(history().first()->value(model::connection::date).toDateTime(), moment);
}

} // namespace
} // namespace quillon::test
