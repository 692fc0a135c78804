// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/settings/PropertyListFile.h"

#include "base/DurableFolder.h"
#include "base/PropertyList.h"
#include "platform/qt/settings/XmlPropertyList.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

Error posixError(int code)
{
    return {posixErrorDomain, code, QString::fromLocal8Bit(std::strerror(code))};
}

/// QSaveFile keeps no error number.
Error saveError(const QSaveFile &file, const QString &path)
{
    Error error;
    if (file.error() == QFileDevice::ResourceError) {
        error = posixError(ENOSPC);
    } else if (QFileInfo(path).isDir()) {
        error = posixError(EISDIR);
    } else {
        const QByteArray folder = QFile::encodeName(QFileInfo(path).path());
        const bool refused = ::access(folder.constData(), W_OK) != 0;
        error = posixError(refused ? errno : QFileInfo::exists(path) ? EACCES : EIO);
    }
    error.message = file.errorString();
    return error;
}

} // namespace

Result<QVariantMap> readPropertyList(const QByteArray &bytes)
{
    const Result<QVariant> value = readXmlPropertyList(bytes);
    if (!value) {
        return value.error();
    }
    if (propertyListType(value.value()) != PropertyListType::Dictionary) {
        return Error{propertyListErrorDomain, 0, u"not a dictionary"_s};
    }
    return normalizedPropertyList(value.value()).toMap();
}

Result<QByteArray> readFileContent(const QString &path)
{
    QFile file(path);
    if (!path.startsWith(u':')) {
        // Opened here for the error number, and not to wait for the other end of a pipe.
        const int handle =
            ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
        if (handle < 0) {
            return posixError(errno);
        }
        struct stat status = {};
        const bool regular = ::fstat(handle, &status) == 0 && S_ISREG(status.st_mode);
        if (!regular || !file.open(handle, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
            ::close(handle);
            return posixError(S_ISDIR(status.st_mode) ? EISDIR : EINVAL);
        }
    } else if (!file.open(QIODevice::ReadOnly)) {
        return posixError(ENOENT);
    }
    const QByteArray bytes = file.read(propertyListFileLimit + 1);
    if (file.error() != QFileDevice::NoError) {
        return posixError(EIO);
    }
    return bytes.size() > propertyListFileLimit ? Result<QByteArray>(posixError(EFBIG)) : bytes;
}

Result<QVariantMap> readPropertyListFile(const QString &path)
{
    const Result<QByteArray> bytes = readFileContent(path);
    return bytes ? readPropertyList(bytes.value()) : bytes.error();
}

std::optional<Error> replaceFileContent(const QString &path, const QByteArray &bytes)
{
    if (bytes.size() > propertyListFileLimit) {
        return posixError(EFBIG);
    }
    const QFileInfo existing(path);
    const bool isNew = !existing.exists();
    // What prevents it shows when the file is opened.
    makeFolder(existing.path());
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return saveError(file, path);
    }
    if (isNew) {
        file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    }
    if (file.write(bytes) != bytes.size() || !file.flush()) {
        return saveError(file, path);
    }
    // QSaveFile does not look at the outcome of its own.
    if (::fsync(file.handle()) != 0) {
        return posixError(errno);
    }
    if (!file.commit()) {
        return saveError(file, path);
    }
    // Where `path` is a link, the file that was replaced lies elsewhere.
    syncFolder(QFileInfo(QFileInfo(path).canonicalFilePath()).path());
    return std::nullopt;
}

Result<QString> setFileAside(const QString &path)
{
    for (int number = 1;; ++number) {
        const QString kept = u"%1.damaged-%2"_s.arg(path).arg(number);
        // Not rename(): that would replace a file that was kept before.
        if (::renameat2(AT_FDCWD, QFile::encodeName(path).constData(), AT_FDCWD,
                QFile::encodeName(kept).constData(), RENAME_NOREPLACE) == 0) {
            return kept;
        }
        if (errno == EINVAL || errno == ENOSYS) {
            // The file system cannot; a second name and then taking away the first does the same.
            if (::link(QFile::encodeName(path).constData(), QFile::encodeName(kept).constData()) ==
                    0 &&
                ::unlink(QFile::encodeName(path).constData()) == 0) {
                return kept;
            }
        }
        if (errno != EEXIST) {
            return posixError(errno);
        }
    }
}

} // namespace quillon
