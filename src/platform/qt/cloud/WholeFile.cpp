// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/cloud/WholeFile.h"

#include "platform/qt/cloud/FileHandle.h"

#include <QUuid>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>

namespace quillon {

namespace {

/// Programs that synchronize leave out what begins with "~" and ends in ".tmp".
constexpr auto temporaryStart = "~quillon-";
constexpr auto temporaryEnd = ".tmp";
/// Seconds. On a network file system another computer may be writing it, with another clock.
constexpr qint64 oldEnough = 24 * 3600;
constexpr mode_t ourselvesOnly = 0600;

QByteArray temporaryName()
{
    return temporaryStart + QUuid::createUuid().toByteArray(QUuid::Id128) + temporaryEnd;
}

} // namespace

int WholeFile::write(const QByteArray &name, const QByteArray &bytes, There there) const
{
    const QByteArray temporary = temporaryName();
    int problem = fill(temporary, bytes);
    if (problem == 0) {
        problem = publish(temporary, name, there);
    }
    if (problem != 0) {
        ::unlinkat(m_folder, temporary.constData(), 0);
    }
    return problem;
}

int WholeFile::fill(const QByteArray &temporary, const QByteArray &bytes) const
{
    const FileHandle file(::openat(m_folder, temporary.constData(),
        O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, ourselvesOnly));
    if (!file) {
        return errno;
    }
    qsizetype written = 0;
    while (written < bytes.size()) {
        const ssize_t count = ::write(file.number(), bytes.constData() + written,
            static_cast<std::size_t>(bytes.size() - written));
        if (count < 0 && errno != EINTR) {
            return errno;
        }
        written += count > 0 ? count : 0;
    }
    // A full disk shows here at the latest, on some file systems.
    return ::fsync(file.number()) == 0 ? 0 : errno;
}

/// Gives it its name. What a file system cannot do as one step is done by the next best means.
int WholeFile::publish(const QByteArray &temporary, const QByteArray &name, There there) const
{
    const char *const from = temporary.constData();
    const char *const to = name.constData();
    if (there == There::Nothing) {
        if (::renameat2(m_folder, from, m_folder, to, RENAME_NOREPLACE) == 0) {
            return 0;
        }
        if (errno != EINVAL && errno != ENOSYS && errno != EOPNOTSUPP) {
            return errno;
        }
        if (::linkat(m_folder, from, m_folder, to, 0) == 0) {
            ::unlinkat(m_folder, from, 0);
            return 0;
        }
        if (errno != EPERM && errno != ENOSYS && errno != EOPNOTSUPP) {
            return errno;
        }
        struct ::stat look = {};
        if (::fstatat(m_folder, to, &look, AT_SYMLINK_NOFOLLOW) == 0) {
            return EEXIST;
        }
    }
    return ::renameat(m_folder, from, m_folder, to) == 0 ? 0 : errno;
}

bool removeLeftOver(int folder, const QByteArray &name, qint64 now)
{
    if (!name.startsWith(temporaryStart) || !name.endsWith(temporaryEnd)) {
        return false;
    }
    struct ::stat look = {};
    if (::fstatat(folder, name.constData(), &look, AT_SYMLINK_NOFOLLOW) == 0 &&
        S_ISREG(look.st_mode) && now - look.st_mtim.tv_sec > oldEnough) {
        ::unlinkat(folder, name.constData(), 0);
    }
    return true;
}

} // namespace quillon
