// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/DurableFolder.h"

#include "base/Log.h"

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

void syncFolder(const QString &folder)
{
    const int handle =
        ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const int code = handle >= 0 && ::fsync(handle) == 0 ? 0 : errno;
    if (handle >= 0) {
        ::close(handle);
    }
    // Some file systems keep folders durable by themselves and refuse to be asked.
    if (code != 0 && code != EINVAL && code != ENOTSUP) {
        qCWarning(logBase) << "Names in a folder may not outlive a power cut:" << folder
                           << posixError(code).message;
    }
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
    syncFolder(parent);
    return std::nullopt;
}

} // namespace quillon
