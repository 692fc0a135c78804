// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "WatchedFileSystem.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <new>
#include <sqlite3.h>
#include <type_traits>

namespace quillon::test {

namespace {

WatchedFileSystem *theFileSystem = nullptr;
sqlite3_vfs *theSystem = nullptr; ///< SQLite's own
sqlite3_vfs theVfs = {};
sqlite3_syscall_ptr theOpenDirectory = nullptr;

template <typename Told, typename... Values>
void tell(const Told &told, Values &&...values)
{
    if (told) {
        told(std::forward<Values>(values)...);
    }
}

FileSystemWatch &watch()
{
    return theFileSystem->watch;
}

/// Ours, and behind it in memory the system's.
struct File
{
    sqlite3_file base = {};
    std::string name;
    bool isDatabase = false;
    int lock = SQLITE_LOCK_NONE;

    sqlite3_file *real() { return reinterpret_cast<sqlite3_file *>(this + 1); }
};

File &ours(sqlite3_file *file)
{
    return *reinterpret_cast<File *>(file);
}

/// A method of the system's file, called on it.
template <auto Method, typename... Values>
int passOn(sqlite3_file *file, Values... values)
{
    sqlite3_file *const real = ours(file).real();
    return (real->pMethods->*Method)(real, values...);
}

int closeFile(sqlite3_file *file)
{
    const int outcome = passOn<&sqlite3_io_methods::xClose>(file);
    ours(file).~File();
    return outcome;
}

int writeFile(sqlite3_file *file, const void *bytes, int size, sqlite3_int64 offset)
{
    const int outcome = passOn<&sqlite3_io_methods::xWrite>(file, bytes, size, offset);
    tell(watch().written, ours(file).name, static_cast<std::size_t>(offset),
        std::string_view(static_cast<const char *>(bytes), static_cast<std::size_t>(size)));
    return outcome;
}

int truncateFile(sqlite3_file *file, sqlite3_int64 size)
{
    const int outcome = passOn<&sqlite3_io_methods::xTruncate>(file, size);
    tell(watch().truncated, ours(file).name, static_cast<std::size_t>(size));
    return outcome;
}

int syncFile(sqlite3_file *file, int flags)
{
    const int outcome =
        watch().hasFastDisk ? SQLITE_OK : passOn<&sqlite3_io_methods::xSync>(file, flags);
    tell(watch().synced, ours(file).name);
    return outcome;
}

int lockFile(sqlite3_file *file, int level)
{
    File &mine = ours(file);
    if (mine.isDatabase && mine.lock == SQLITE_LOCK_NONE && level > SQLITE_LOCK_NONE) {
        tell(watch().beforeLock, mine.name);
    }
    const int outcome = passOn<&sqlite3_io_methods::xLock>(file, level);
    mine.lock = outcome == SQLITE_OK ? level : mine.lock;
    return outcome;
}

int unlockFile(sqlite3_file *file, int level)
{
    ours(file).lock = level;
    return passOn<&sqlite3_io_methods::xUnlock>(file, level);
}

void shmBarrier(sqlite3_file *file)
{
    sqlite3_file *const real = ours(file).real();
    real->pMethods->xShmBarrier(real);
}

const sqlite3_io_methods &methods()
{
    using M = sqlite3_io_methods;
    static const M all = [] {
        M m = {};
        m.iVersion = 3;
        m.xClose = closeFile;
        m.xRead = passOn<&M::xRead, void *, int, sqlite3_int64>;
        m.xWrite = writeFile;
        m.xTruncate = truncateFile;
        m.xSync = syncFile;
        m.xFileSize = passOn<&M::xFileSize, sqlite3_int64 *>;
        m.xLock = lockFile;
        m.xUnlock = unlockFile;
        m.xCheckReservedLock = passOn<&M::xCheckReservedLock, int *>;
        m.xFileControl = passOn<&M::xFileControl, int, void *>;
        m.xSectorSize = passOn<&M::xSectorSize>;
        m.xDeviceCharacteristics = passOn<&M::xDeviceCharacteristics>;
        m.xShmMap = passOn<&M::xShmMap, int, int, int, void volatile **>;
        m.xShmLock = passOn<&M::xShmLock, int, int, int>;
        m.xShmBarrier = shmBarrier;
        m.xShmUnmap = passOn<&M::xShmUnmap, int>;
        m.xFetch = passOn<&M::xFetch, sqlite3_int64, int, void **>;
        m.xUnfetch = passOn<&M::xUnfetch, sqlite3_int64, void *>;
        return m;
    }();
    return all;
}

int openFile(sqlite3_vfs *, const char *name, sqlite3_file *file, int flags, int *outFlags)
{
    auto *const mine = new (file) File;
    mine->name = name ? name : "";
    mine->isDatabase = (flags & SQLITE_OPEN_MAIN_DB) != 0;
    int exists = 0;
    if (name) {
        theSystem->xAccess(theSystem, name, SQLITE_ACCESS_EXISTS, &exists);
    }
    const int outcome = theSystem->xOpen(theSystem, name, mine->real(), flags, outFlags);
    // SQLite closes what has methods, whatever the outcome.
    mine->base.pMethods = mine->real()->pMethods ? &methods() : nullptr;
    if (!mine->base.pMethods) {
        mine->~File();
    } else if (outcome == SQLITE_OK && name) {
        tell(watch().opened, mine->name, exists == 0);
    }
    return outcome;
}

int removeFile(sqlite3_vfs *, const char *name, int syncFolder)
{
    // Told first: the folder is synchronized as a part of this.
    tell(watch().removed, std::string(name));
    return theSystem->xDelete(theSystem, name, syncFolder);
}

/// The system opens a folder in order to synchronize it, and for nothing else.
int openDirectory(const char *name, int *handle)
{
    tell(watch().folderSynced);
    return reinterpret_cast<int (*)(const char *, int *)>(theOpenDirectory)(name, handle);
}

int waitFor(sqlite3_vfs *, int microseconds)
{
    if (!watch().waits) {
        return theSystem->xSleep(theSystem, microseconds);
    }
    watch().waits();
    return microseconds;
}

} // namespace

WatchedFileSystem::WatchedFileSystem()
{
    EXPECT_EQ(theFileSystem, nullptr) << "one at a time";
    theFileSystem = this;
    theSystem = sqlite3_vfs_find(nullptr);
    theVfs = *theSystem;
    theVfs.pNext = nullptr;
    theVfs.zName = "watched";
    theVfs.szOsFile = static_cast<int>(sizeof(File)) + theSystem->szOsFile;
    theVfs.xOpen = openFile;
    theVfs.xDelete = removeFile;
    theVfs.xSleep = waitFor;
    theOpenDirectory = theSystem->xGetSystemCall(theSystem, "openDirectory");
    EXPECT_NE(theOpenDirectory, nullptr);
    theSystem->xSetSystemCall(
        theSystem, "openDirectory", reinterpret_cast<sqlite3_syscall_ptr>(openDirectory));
    EXPECT_EQ(sqlite3_vfs_register(&theVfs, 1), SQLITE_OK);
}

WatchedFileSystem::~WatchedFileSystem()
{
    sqlite3_vfs_unregister(&theVfs);
    theSystem->xSetSystemCall(theSystem, "openDirectory", theOpenDirectory);
    sqlite3_vfs_register(theSystem, 1);
    theFileSystem = nullptr;
}

} // namespace quillon::test
