// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/cloud/FolderFiles.h"

#include "base/DurableFolder.h"
#include "platform/qt/cloud/FileHandle.h"
#include "platform/qt/cloud/WholeFile.h"

#include <QCryptographicHash>
#include <QFile>

#include <cerrno>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <system_error>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostFiles = 250'000;
/// Longer files are none of ours; what they hold is not worth the reading.
constexpr qint64 longestHashed = qint64(64) << 20;
constexpr qint64 pieceBytes = 256 * 1024;
/// A file that was written to so shortly before may be written to again without looking different.
constexpr qint64 untilSure = 3;
constexpr int mostTries = 3;

CloudProblem problemOf(int number)
{
    switch (number) {
    case ENOENT:
    case ELOOP:
    case ENXIO:
        return CloudProblem::NotThere;
    case EACCES:
    case EPERM:
    case EROFS:
        return CloudProblem::NotAllowed;
    case ENOSPC:
    case EDQUOT:
        return CloudProblem::Full;
    case EFBIG:
        return CloudProblem::TooLarge;
    case EEXIST:
        return CloudProblem::Changed;
    case ENOTDIR:
        return CloudProblem::NotAnAccount;
    case EIO:
    case ESTALE:
    case ETIMEDOUT:
    case ENOTCONN:
    case EHOSTDOWN:
    case EHOSTUNREACH:
        return CloudProblem::Unreachable;
    default:
        return CloudProblem::Failed;
    }
}

CloudError systemError(int number)
{
    return {problemOf(number), QString::fromStdString(std::generic_category().message(number))};
}

/// A folder that is not there may be one whose disk or server is not there yet: it is never made,
/// or it would look like an account without files.
CloudError folderError(int number)
{
    CloudError error = systemError(number);
    if (error.problem == CloudProblem::NotThere) {
        error.problem = CloudProblem::Unreachable;
    }
    return error;
}

FileHandle openFolder(const QByteArray &folder)
{
    return FileHandle(::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
}

/// A copy that a program which synchronizes made of a file that two computers wrote; others have
/// spaces and brackets in their names, which no file of ours has.
bool isConflictCopy(const QString &name)
{
    return name.contains(".sync-conflict-"_L1);
}

/// A plain file, or none with errno set. Nothing else is opened for long, and nothing waits for
/// somebody who writes into a pipe.
FileHandle openFile(int folder, const QByteArray &name, struct ::stat &look)
{
    FileHandle file(::openat(
        folder, name.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (!file) {
        return file;
    }
    if (::fstat(file.number(), &look) != 0) {
        return FileHandle();
    }
    if (!S_ISREG(look.st_mode)) {
        errno = ENOENT;
        return FileHandle();
    }
    return file;
}

/// The bytes up to the end; an error number else. More than `limit` are EFBIG.
int readAll(int file, qint64 limit, const std::function<void(const QByteArray &)> &take)
{
    qint64 received = 0;
    QByteArray piece(pieceBytes, Qt::Uninitialized);
    for (;;) {
        const ssize_t count = ::read(file, piece.data(), static_cast<std::size_t>(piece.size()));
        if (count < 0) {
            if (errno == EINTR) {
                continue;
            }
            return errno;
        }
        if (count == 0) {
            return 0;
        }
        received += count;
        if (received > limit) {
            return EFBIG;
        }
        take(QByteArray::fromRawData(piece.constData(), count));
    }
}

bool isSameLook(const struct ::stat &one, const struct ::stat &other)
{
    const auto isSameTime = [](const std::timespec &a, const std::timespec &b) {
        return a.tv_sec == b.tv_sec && a.tv_nsec == b.tv_nsec;
    };
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino &&
           one.st_size == other.st_size && isSameTime(one.st_mtim, other.st_mtim) &&
           isSameTime(one.st_ctim, other.st_ctim);
}

QByteArray revisionOfBytes(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

} // namespace

FolderFiles::FolderFiles(const QString &folder, Clock now)
    : m_folder(QFile::encodeName(folder))
    , m_now(std::move(now))
{
}

CloudResult<QList<CloudFile>> FolderFiles::list()
{
    const std::unique_ptr<DIR, int (*)(DIR *)> folder(::opendir(m_folder.constData()), ::closedir);
    if (!folder) {
        return folderError(errno);
    }
    const int number = ::dirfd(folder.get());
    const qint64 now = m_now();
    QList<CloudFile> files;
    QHash<QByteArray, Known> known;
    for (;;) {
        errno = 0;
        const dirent *const entry = ::readdir(folder.get());
        if (entry == nullptr) {
            break;
        }
        const QByteArray name(entry->d_name);
        if (removeLeftOver(number, name, now)) {
            continue;
        }
        const QString text = QString::fromUtf8(name);
        struct ::stat look = {};
        if (!isCloudFileName(text) || isConflictCopy(text) ||
            ::fstatat(number, name.constData(), &look, AT_SYMLINK_NOFOLLOW) != 0 ||
            !S_ISREG(look.st_mode)) {
            continue;
        }
        if (files.size() >= mostFiles) {
            return CloudError{CloudProblem::TooLarge, u"there are too many files"_s};
        }
        files << CloudFile{text, look.st_size, revisionOf(number, name, look)};
        if (const auto found = m_known.constFind(name); found != m_known.constEnd()) {
            known.insert(name, *found);
        }
    }
    if (errno != 0) {
        return folderError(errno);
    }
    m_known = known;
    return files;
}

/// Empty when nobody can read it, or somebody writes to it meanwhile.
QByteArray FolderFiles::revisionOf(int folder, const QByteArray &name, const struct ::stat &look)
{
    const auto found = m_known.constFind(name);
    if (found != m_known.constEnd() && isSameLook(found->look, look)) {
        return found->revision;
    }
    m_known.remove(name);
    struct ::stat before = {};
    const FileHandle file = openFile(folder, name, before);
    if (!file || before.st_size > longestHashed) {
        return {};
    }
    QCryptographicHash hash(QCryptographicHash::Sha256);
    struct ::stat after = {};
    if (readAll(file.number(), longestHashed,
            [&](const QByteArray &bytes) { hash.addData(bytes); }) != 0 ||
        ::fstat(file.number(), &after) != 0 || !isSameLook(before, after)) {
        return {};
    }
    const QByteArray revision = hash.result().toHex();
    const qint64 now = m_now();
    if (now - after.st_mtim.tv_sec > untilSure && now - after.st_ctim.tv_sec > untilSure) {
        m_known.insert(name, {after, revision});
    }
    return revision;
}

CloudResult<std::optional<FolderFiles::Content>> FolderFiles::read(
    const QString &name, const QByteArray &revision, qint64 limit)
{
    const FileHandle folder = openFolder(m_folder);
    if (!folder) {
        return folderError(errno);
    }
    if (!isCloudFileName(name)) {
        return systemError(ENOENT);
    }
    for (int tries = 0; tries < mostTries; ++tries) {
        struct ::stat before = {};
        const FileHandle file = openFile(folder.number(), name.toLatin1(), before);
        if (!file) {
            return systemError(errno);
        }
        if (before.st_size > limit) {
            return systemError(EFBIG);
        }
        Content content;
        const int problem =
            readAll(file.number(), limit, [&](const QByteArray &bytes) { content.bytes += bytes; });
        if (problem != 0) {
            return systemError(problem);
        }
        struct ::stat after = {};
        if (::fstat(file.number(), &after) == 0 && isSameLook(before, after)) {
            content.revision = revisionOfBytes(content.bytes);
            return content.revision == revision ? std::nullopt : std::optional(content);
        }
    }
    return CloudError{CloudProblem::Failed, u"somebody keeps writing to the file"_s};
}

CloudResult<QByteArray> FolderFiles::create(const QString &name, const QByteArray &bytes)
{
    return write(name, bytes, WholeFile::There::Nothing);
}

CloudResult<QByteArray> FolderFiles::replace(
    const QString &name, const QByteArray &bytes, const QByteArray &revision)
{
    if (!revision.isEmpty()) {
        const CloudResult<std::optional<Content>> there = read(name, revision, longestHashed);
        const auto *const error = std::get_if<CloudError>(&there);
        if (error && error->problem != CloudProblem::NotThere &&
            error->problem != CloudProblem::TooLarge) {
            return *error;
        }
        if (error || std::get<std::optional<Content>>(there)) {
            return CloudError{CloudProblem::Changed, u"it is another file by now"_s};
        }
    }
    return write(name, bytes, WholeFile::There::Anything);
}

CloudResult<QByteArray> FolderFiles::write(
    const QString &name, const QByteArray &bytes, WholeFile::There there)
{
    const FileHandle folder = openFolder(m_folder);
    if (!folder) {
        return folderError(errno);
    }
    if (!isCloudFileName(name)) {
        return systemError(EPERM);
    }
    if (const int problem = WholeFile(folder.number()).write(name.toLatin1(), bytes, there)) {
        return systemError(problem);
    }
    syncFolder(QFile::decodeName(m_folder));
    return revisionOfBytes(bytes);
}

std::optional<CloudError> FolderFiles::remove(const QString &name)
{
    const FileHandle folder = openFolder(m_folder);
    if (!folder) {
        return folderError(errno);
    }
    if (isCloudFileName(name) && ::unlinkat(folder.number(), name.toLatin1().constData(), 0) != 0 &&
        errno != ENOENT) {
        return systemError(errno);
    }
    return std::nullopt;
}

} // namespace quillon
