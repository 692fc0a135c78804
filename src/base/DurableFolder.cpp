// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/DurableFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace quillon {

namespace {

Error posixError(int code)
{
    return {posixErrorDomain, code, QString::fromLocal8Bit(std::strerror(code))};
}

} // namespace

std::optional<Error> syncFolder(const QString &folder)
{
    const int handle =
        ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0) {
        return posixError(errno);
    }
    const int code = ::fsync(handle) == 0 ? 0 : errno;
    ::close(handle);
    // Some file systems keep folders durable by themselves and refuse to be asked.
    return code == 0 || code == EINVAL ? std::nullopt : std::optional(posixError(code));
}

std::optional<Error> makeFolder(
    const QString &path, std::optional<QFileDevice::Permissions> permissions)
{
    if (QFileInfo::exists(path)) {
        return std::nullopt;
    }
    const QString parent = QFileInfo(path).path();
    if (const auto error = makeFolder(parent)) {
        return error;
    }
    errno = 0;
    const bool isMade = permissions ? QDir().mkdir(path, *permissions) : QDir().mkdir(path);
    // Somebody else may have made it in the meantime.
    if (!isMade && !QFileInfo::exists(path)) {
        return posixError(errno);
    }
    return syncFolder(parent);
}

} // namespace quillon
