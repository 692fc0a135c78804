// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace quillon::test {

/// What SQLite does to files, told before or after it is done. What a test has no interest in is
/// left as it is.
struct FileSystemWatch
{
    using Name = const std::string &; ///< the path of a file, as SQLite names it

    std::function<void(Name, bool isNew)> opened;
    std::function<void(Name, std::size_t offset, std::string_view bytes)> written;
    std::function<void(Name, std::size_t size)> truncated;
    std::function<void(Name)> synced;
    std::function<void(Name)> removed;
    std::function<void()> folderSynced;
    /// Somebody who holds no lock on a database is about to take one.
    std::function<void(Name)> beforeLock;
    /// In place of waiting, which takes no time then.
    std::function<void()> waits;
    /// Nothing waits for the disk. What is told stays the same.
    bool hasFastDisk = false;
};

/// The system's own files under SQLite, for every database that this process opens while it lives,
/// with somebody who watches. One at a time; one thread.
class WatchedFileSystem
{
public:
    WatchedFileSystem();
    ~WatchedFileSystem();
    WatchedFileSystem(const WatchedFileSystem &) = delete;
    WatchedFileSystem &operator=(const WatchedFileSystem &) = delete;

    /// Replaced at any time.
    FileSystemWatch watch;
};

} // namespace quillon::test
