// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// measure-mirror FOLDER COUNT: what mirroring a history of COUNT records costs the main thread, in
// an empty folder on the disk to be measured. The clock of the scheduler has hands, so pauses
// between steps take no time; the disk and everything else are real.
#include "base/SettingsKeys.h"
#include "fakes/FakeScheduler.h"
#include "fakes/FakeSettingsStore.h"
#include "platform/NotificationCenter.h"
#include "platform/linux/GetrandomSource.h"
#include "store/RecordRemoval.h"
#include "store/RecordStore.h"
#include "store/model/QuillonModel.h"
#include "sync/AccountKey.h"
#include "sync/RecordMirror.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <SQLiteCpp/Database.h>
#include <algorithm>
#include <chrono>
#include <fstream>
#include <iostream>
#include <numeric>

namespace {

using namespace quillon;
using Clock = std::chrono::steady_clock;

double milliseconds(Clock::duration time)
{
    return std::chrono::duration<double, std::milli>(time).count();
}

std::string memory(const std::string &name)
{
    std::ifstream status("/proc/self/status");
    for (std::string line; status >> line;) {
        if (line == name && status >> line) {
            return line;
        }
    }
    return "?";
}

struct Computer
{
    explicit Computer(const QString &path)
        : folder(path)
    {
        settings.setBool(keys::iCloudSync, true);
    }
    void launch()
    {
        mirror.containerOpened();
        if (!mirror.start(replica, "account")) {
            std::cerr << "the mirror does not start\n";
            std::exit(1);
        }
    }
    void fill(int count)
    {
        store.managedObjectContext().database()->exec(
            "WITH RECURSIVE n(i) AS (VALUES (1) UNION ALL SELECT i + 1 FROM n LIMIT " +
            std::to_string(count) +
            ") INSERT INTO Connection (uuid, date, device, interface, address, ssid, bssid) "
            "SELECT randomblob(16), 1600000000000 + i * 60000, 'wlp2s0', 'Wi-Fi', "
            "printf('02:1a:%02x:%02x:%02x:%02x', i >> 24 & 255, i >> 16 & 255, i >> 8 & 255, i & "
            "255), "
            "'Network ' || (i * 7 % 997), printf('06:00:5e:00:%02x:%02x', i % 997 >> 8, i % 997 & "
            "255) "
            "FROM n");
    }
    /// Runs what is scheduled until nothing is noted and all is told.
    void settle(const char *what, qint64 count)
    {
        const auto begin = Clock::now();
        Clock::duration longest{};
        auto *const database = store.managedObjectContext().database().get();
        const auto isBusy = [&] {
            return !mirror.isReady() ||
                   database->execAndGet("SELECT count(*) FROM (SELECT 1 FROM MirrorEdit LIMIT 1)")
                           .getInt() > 0;
        };
        do {
            const auto step = Clock::now();
            scheduler.advance(std::chrono::milliseconds(15));
            longest = std::max(longest, Clock::now() - step);
        } while (isBusy());
        const double all = milliseconds(Clock::now() - begin);
        std::cout << what << ": " << all << " ms, " << double(count) / all * 1000
                  << " records/s, longest turn " << milliseconds(longest) << " ms, resident "
                  << memory("VmRSS:") << " kB, at most " << memory("VmHWM:") << " kB\n";
    }

    QString folder;
    test::FakeScheduler scheduler;
    test::FakeSettingsStore settings{scheduler};
    NotificationCenter notifications;
    RecordStore store{scheduler, folder};
    RecordMirror mirror{{store, settings, scheduler, notifications}};
    GetrandomSource random;
    AccountKey key = AccountKey::fromBytes(QByteArray(AccountKey::size, 'k')).value();
    Replica replica{mirror.storage(), key, random};
};

void importFrom(Computer &other, Computer &here, int count)
{
    other.launch();
    other.settle("(another computer starts)", 0);
    other.fill(count);
    other.mirror.takeEdits();
    other.settle("(it makes records)", count);
    other.replica.sealPending();
    const auto files = other.mirror.storage().outgoing();
    const auto begin = Clock::now();
    for (auto it = files.begin(); it != files.end(); ++it) {
        if (here.replica.receiveChange(it.key(), *it)) {
            std::cerr << "a file was refused\n";
            std::exit(1);
        }
    }
    here.mirror.endImport(true);
    const double merged = milliseconds(Clock::now() - begin);
    here.scheduler.runPending();
    std::cout << "import of " << count << ": " << merged << " ms to merge, "
              << milliseconds(Clock::now() - begin) << " ms until the context has followed\n";
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        std::cerr << "usage: measure-mirror FOLDER COUNT\n";
        return 2;
    }
    const QDir folder(arguments.at(1));
    const int count = arguments.at(2).toInt();
    Computer here(folder.filePath(QStringLiteral("here")));
    here.fill(count);
    const qint64 before = QFileInfo(here.store.path()).size();
    here.launch();
    here.settle("switched on", count);
    here.store.managedObjectContext().database()->exec("PRAGMA wal_checkpoint(TRUNCATE)");
    std::cout << "file: " << before / 1024 << " kB before, "
              << QFileInfo(here.store.path()).size() / 1024
              << " kB with what is known and unsent\n";
    Computer other(folder.filePath(QStringLiteral("other")));
    importFrom(other, here, 1000);

    QList<qint64> keys(count);
    std::iota(keys.begin(), keys.end(), 1);
    RecordRemoval removal(here.store, here.scheduler);
    const auto begin = Clock::now();
    removal.remove(model::Connection, keys);
    here.scheduler.runPending();
    std::cout << "removal of all: " << milliseconds(Clock::now() - begin) << " ms\n";
    here.settle("told of", count);
    return 0;
}
