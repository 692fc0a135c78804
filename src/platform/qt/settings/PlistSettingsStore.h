// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Scheduler.h"
#include "platform/SettingsProblem.h"
#include "platform/SettingsStore.h"

#include <chrono>
#include <functional>
#include <memory>

namespace quillon {

class FileWatch;

/// The settings in one property-list file, which is replaced whole, atomically. Where this process
/// and another program changed different keys, both stand; where they changed the same one, what
/// was set here since the last write wins. Keys that nobody here knows are kept.
///
/// The first change, or call of synchronize(), after a write has begun starts the next one 50 ms
/// later (or when the main loop turns again), in the background, on one thread. So a process that
/// is killed loses at most the changes of that time and of the two writes that the disk may be busy
/// with; flush() and the destructor leave nothing. No value is lost to a failing file: it stays in
/// memory and goes out with the next write that succeeds. A file that disappears while the program
/// runs is written again.
///
/// A file that appears damaged, or is gone, may be in the middle of being written by another
/// program. Nothing is written over it until it has stayed the same for a second, or has not been
/// whole for ten: background work comes back later, while reading at the start, flush() and the
/// destructor wait.
///
/// Made and destroyed on the main thread; safe from every thread in between.
class PlistSettingsStore : public SettingsStore
{
public:
    /// Holds up the thread that calls it.
    using Pause = std::function<void(std::chrono::milliseconds)>;

    /// Reads the file at `path`, which need not be there. `problem` is called on the main thread,
    /// in a later turn of its loop, once for each problem until it is over. `pause` is for tests;
    /// without one the thread sleeps.
    PlistSettingsStore(const QString &path, Scheduler &scheduler, SettingsProblem::Handler problem,
        Pause pause = {});
    ~PlistSettingsStore() override;

    QVariant get(const QString &key) const override;
    void set(const QString &key, const QVariant &value) override;
    void registerDefaults(const QVariantMap &defaults) override;
    void synchronize() override;
    bool flush() override;
    Token addObserver(const QString &key, Observer observer) override;
    void removeObserver(Token token) override;

private:
    class Core;

    std::shared_ptr<Core> m_core; ///< shared with background tasks, which may outlive the store
    std::unique_ptr<FileWatch> m_watch;
};

} // namespace quillon
