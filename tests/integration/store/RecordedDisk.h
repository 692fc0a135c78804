// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "WatchedFileSystem.h"

#include <QString>

#include <map>
#include <random>
#include <string>
#include <vector>

namespace quillon::test {

/// Everything that was done to the files of one folder, step by step, and what a power cut at any
/// of these steps can leave of it. Certain is only what was synchronized: the content of a file up
/// to its last synchronization, and the names in the folder up to its own. Of everything after that
/// anything may have arrived, in any order, and of one write some sectors and not the others.
class RecordedDisk
{
public:
    /// A disk that says that it has synchronized when it has not.
    enum class Lie
    {
        None,
        OfLogs, ///< about files whose names end with "-wal"
        OfAll,
    };
    /// What of the uncertain has arrived.
    enum class Arrived
    {
        Nothing,
        Everything,
        AnyOfIt, ///< by chance, down to sectors
    };

    /// Records what `fileSystem` sees, until this dies.
    RecordedDisk(WatchedFileSystem &fileSystem, Lie lie = Lie::None);
    ~RecordedDisk();
    RecordedDisk(const RecordedDisk &) = delete;
    RecordedDisk &operator=(const RecordedDisk &) = delete;

    std::size_t steps() const { return m_steps.size(); }
    /// Makes the files in `folder` that a power cut after `steps` steps can leave.
    void makeAfterPowerCut(
        std::size_t steps, Arrived arrived, std::mt19937 &random, const QString &folder) const;

private:
    struct Step
    {
        enum class Kind
        {
            Create,
            Remove,
            Write,
            Truncate,
            Sync,
            SyncFolder,
        };
        Kind kind;
        std::string name;
        std::size_t offset = 0; ///< of Truncate: the size
        std::string bytes;
    };
    struct Content
    {
        std::string certain;
        std::vector<const Step *> uncertain;
    };

    void add(Step step);
    static std::string afterPowerCut(const Content &content, Arrived arrived, std::mt19937 &random);
    static void apply(const Step &step, Arrived arrived, std::mt19937 &random, std::string &bytes);

    WatchedFileSystem &m_fileSystem;
    Lie m_lie;
    std::vector<Step> m_steps;
};

} // namespace quillon::test
