// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "SettingsFileTest.h"
#include "base/SettingsKeys.h"
#include "platform/qt/QtScheduler.h"

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace quillon {
namespace {

using namespace std::chrono_literals;

/// A disk that can be made to keep its callers waiting. Every fsync() of this program comes here.
class Disk
{
public:
    void stall()
    {
        const std::lock_guard lock(m_mutex);
        m_stalled = true;
        m_main = std::this_thread::get_id();
        m_files = 0;
        m_callsOfMain = 0;
        m_waiting = 0;
    }
    void goOn()
    {
        const std::lock_guard lock(m_mutex);
        m_stalled = false;
        m_moved.notify_all();
    }
    int sync(int handle)
    {
        std::unique_lock lock(m_mutex);
        struct stat status = {};
        m_files += ::fstat(handle, &status) == 0 && S_ISREG(status.st_mode) ? 1 : 0;
        m_callsOfMain += std::this_thread::get_id() == m_main ? 1 : 0;
        ++m_waiting;
        // Not without end, so that a test that must fail does.
        m_moved.wait_for(lock, 2min, [this] { return !m_stalled; });
        --m_waiting;
        lock.unlock();
        return static_cast<int>(::syscall(SYS_fsync, handle));
    }

    int waiting() const { return locked(m_waiting); }
    /// Since stall(): the files that were written, and what the thread that called it waited for.
    int files() const { return locked(m_files); }
    int callsOfMain() const { return locked(m_callsOfMain); }

private:
    int locked(const int &count) const
    {
        const std::lock_guard lock(m_mutex);
        return count;
    }

    mutable std::mutex m_mutex;
    std::condition_variable m_moved;
    std::thread::id m_main;
    bool m_stalled = false;
    int m_waiting = 0;
    int m_files = 0;
    int m_callsOfMain = 0;
};

Disk &disk()
{
    static Disk theDisk;
    return theDisk;
}

class SlowDisk : public test::SettingsFileTest
{
protected:
    ~SlowDisk() override { disk().goOn(); }

    void setAndSynchronize(qlonglong value)
    {
        settings->set(keys::defaultTimerMinutes, value);
        settings->synchronize();
    }
    QVariant stored() const { return content().value(keys::defaultTimerMinutes); }
    void goOnSoon()
    {
        other = std::jthread([] {
            std::this_thread::sleep_for(100ms);
            disk().goOn();
        });
    }
    static bool isAwaited()
    {
        return test::holdsSoon([] { return disk().waiting() > 0; });
    }

    QtScheduler real;
    std::unique_ptr<PlistSettingsStore> settings =
        std::make_unique<PlistSettingsStore>(path, real, SettingsProblem::Handler());
    std::jthread other;
};

TEST_F(SlowDisk, IsNotWaitedForBySynchronize)
{
    disk().stall();
    setAndSynchronize(1);
    ASSERT_TRUE(isAwaited());
    setAndSynchronize(2);
    EXPECT_EQ(settings->getInteger(keys::defaultTimerMinutes), 2);
    EXPECT_FALSE(stored().isValid());
    disk().goOn();
    EXPECT_TRUE(test::holdsSoon([this] { return stored() == QVariant(2LL); }));
    EXPECT_EQ(disk().callsOfMain(), 0);
}

TEST_F(SlowDisk, HasOneWriteUnderWayAndOneThatWaitsAndOtherBackgroundWorkGoesOn)
{
    disk().stall();
    // More of them, and further apart, than there are threads.
    for (qlonglong round = 1; round <= 12; ++round) {
        setAndSynchronize(round);
        bool passed = false;
        real.onMainAfter(60ms, [&passed] { passed = true; });
        ASSERT_TRUE(test::holdsSoon([&passed] { return passed; }));
    }
    EXPECT_EQ(disk().waiting(), 1);
    std::atomic<bool> ran = false;
    real.inBackground([&ran] { ran = true; });
    EXPECT_TRUE(test::holdsSoon([&ran] { return ran.load(); }));
    disk().goOn();
    EXPECT_TRUE(test::holdsSoon([this] { return stored() == QVariant(12LL); }));
    settings.reset();
    EXPECT_EQ(disk().files(), 2);
}

TEST_F(SlowDisk, IsWaitedForByFlush)
{
    disk().stall();
    setAndSynchronize(1);
    ASSERT_TRUE(isAwaited());
    settings->set(keys::defaultTimerMinutes, 2);
    goOnSoon();
    EXPECT_TRUE(settings->flush());
    EXPECT_EQ(stored(), QVariant(2LL));
}

TEST_F(SlowDisk, HasEverythingOnceTheProgramHasEnded)
{
    disk().stall();
    setAndSynchronize(1);
    ASSERT_TRUE(isAwaited());
    setAndSynchronize(2);
    goOnSoon();
    real.shutDown();
    EXPECT_EQ(stored(), QVariant(1LL)) << "what had begun was waited for";
    setAndSynchronize(3);
    settings.reset();
    EXPECT_EQ(stored(), QVariant(3LL));
}

} // namespace
} // namespace quillon

extern "C" int fsync(int handle)
{
    return quillon::disk().sync(handle);
}
