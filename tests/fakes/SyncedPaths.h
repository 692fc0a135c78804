// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFile>
#include <QStringList>

#include <cerrno>
#include <functional>
#include <sys/syscall.h>
#include <unistd.h>

namespace quillon::test {

/// The files and folders for which this program waited with fsync(), in order. Where a
/// source of a test program includes this every fsync() of the program, that of its libraries too,
/// comes here.
inline QStringList &syncedPaths()
{
    static QStringList paths;
    return paths;
}

/// Called in each fsync(), when what was written is not known to be on the disk yet.
inline std::function<void()> &beforeSync()
{
    static std::function<void()> call;
    return call;
}

/// What each fsync() fails with; 0: with nothing.
inline int &syncError()
{
    static int code = 0;
    return code;
}

} // namespace quillon::test

extern "C" [[gnu::used]] inline int fsync(int handle)
{
    using namespace Qt::StringLiterals;
    quillon::test::syncedPaths() << QFile::symLinkTarget(u"/proc/self/fd/%1"_s.arg(handle));
    // A copy: the call may put another one in its place.
    if (const auto call = quillon::test::beforeSync()) {
        call();
    }
    if (quillon::test::syncError() != 0) {
        errno = quillon::test::syncError();
        return -1;
    }
    return static_cast<int>(::syscall(SYS_fsync, handle));
}
