// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ExpectBatch.h"

#include <QTemporaryDir>

#include <csignal>
#include <fstream>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace quillon {

using namespace Qt::StringLiterals;
namespace {

using namespace std::chrono_literals;

/// The calling thread's state, for another one: it waits for time to pass.
class Sleeper
{
public:
    bool sleeps() const
    {
        std::ifstream file(m_path);
        std::string place;
        return std::getline(file, place) && place.find("nanosleep") != std::string::npos;
    }

private:
    const std::string m_path = "/proc/self/task/" + std::to_string(::gettid()) + "/wchan";
};

/// Another process that holds the file locked against writers, from the end of the constructor
/// until it is released.
class LockHolder
{
public:
    explicit LockHolder(const QString &path)
    {
        int ready[2] = {};
        EXPECT_EQ(::pipe(ready), 0);
        m_process = ::fork();
        if (m_process == 0) {
            hold(path, ready[1]);
        }
        ::close(ready[1]);
        char answer = 0;
        EXPECT_EQ(::read(ready[0], &answer, 1), 1);
        ::close(ready[0]);
    }
    ~LockHolder() { release(); }
    LockHolder(const LockHolder &) = delete;
    LockHolder &operator=(const LockHolder &) = delete;

    void release()
    {
        if (m_process > 0) {
            ::kill(m_process, SIGKILL);
            ::waitpid(m_process, nullptr, 0);
            m_process = 0;
        }
    }

private:
    [[noreturn]] static void hold(const QString &path, int ready)
    {
        SQLite::Database database(path.toStdString(), SQLite::OPEN_READWRITE);
        database.exec("BEGIN EXCLUSIVE");
        if (::write(ready, "!", 1) == 1) {
            std::this_thread::sleep_for(1h);
        }
        std::_Exit(0);
    }

    pid_t m_process = 0;
};

class LockedFile : public ::testing::Test
{
protected:
    void SetUp() override
    {
        {
            auto first = test::openedContext(path, scheduler);
            ASSERT_TRUE(first);
            test::Batches batches(*first.value());
            batches.change(1);
            ASSERT_FALSE(first.value()->save().has_value());
        }
        // A fork has to come before we open the file: a connection does not outlive one.
    }
    void open()
    {
        auto opened = test::openedContext(path, scheduler);
        ASSERT_TRUE(opened) << opened.error().message.toStdString();
        owned = std::move(opened.value());
    }
    ManagedObjectContext &context() { return *owned; }

    QTemporaryDir folder;
    QString path = folder.filePath(u"Quillon.sqlite"_s);
    test::FakeScheduler scheduler;
    std::unique_ptr<ManagedObjectContext> owned;
};

TEST_F(LockedFile, ASaveGivesUpInBoundedTimeAndSucceedsLater)
{
    LockHolder holder(path);
    open();
    test::Batches batches(context());
    batches.change(2);
    // The lock is never given up: were it waited for without bounds, this would not end.
    const auto error = context().save();
    ASSERT_TRUE(error.has_value());
    EXPECT_FALSE(error->message.isEmpty());
    EXPECT_TRUE(context().hasChanges());
    EXPECT_EQ(batches.found(), test::Batches::expected(2));

    holder.release();
    EXPECT_FALSE(context().save().has_value());
    test::expectBatch(path, 2);
}

TEST_F(LockedFile, ReadingGoesOnMeanwhile)
{
    const LockHolder holder(path);
    open();
    // The lock is never given up: what waited for it would fail, and find nothing.
    test::Batches batches(context());
    EXPECT_EQ(batches.last(), 1);
    EXPECT_EQ(batches.found(), test::Batches::expected(1));
}

TEST_F(LockedFile, ASaveWaitsForAShortLock)
{
    LockHolder holder(path);
    open();
    test::Batches batches(context());
    batches.change(2);
    const Sleeper saving;
    const std::jthread releasing([&](const std::stop_token &saved) {
        while (!saving.sleeps() && !saved.stop_requested()) {
            std::this_thread::yield();
        }
        holder.release();
    });
    const auto error = context().save();
    EXPECT_FALSE(error.has_value()) << error->message.toStdString();
    test::expectBatch(path, 2);
}

} // namespace
} // namespace quillon
