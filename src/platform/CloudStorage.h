// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <functional>
#include <optional>
#include <variant>

namespace quillon {

/// Why the account did not do what it was asked for.
enum class CloudProblem
{
    NotThere,             ///< no file of that name; the folder of a new account is made, not missed
    Changed,              ///< somebody else's file stands there, or another than was expected
    WrongPassword,        ///< the account wants another name or password
    NotAllowed,           ///< it knows us and refuses
    Full,                 ///< its space, or the disk, is used up
    TooLarge,             ///< longer than was asked for, or than the account takes
    Unreachable,          ///< no connection, or none that lasted; worth another try later
    UntrustedCertificate, ///< whoever answers cannot prove who it is; nothing was sent
    NotAnAccount,         ///< what answers does not speak WebDAV, or the folder is none
    Failed,               ///< anything else; worth another try later
};

struct CloudError
{
    CloudProblem problem = CloudProblem::Failed;
    QString message; ///< for the log
    /// Of an UntrustedCertificate: its SHA-256, so that the person can compare it with the
    /// server's. Empty when there was no certificate to see.
    QByteArray fingerprint = {};
};

/// A value or why there is none.
template <typename T>
using CloudResult = std::variant<T, CloudError>;

/// Whether a storage takes the name: letters, digits, dots and dashes, the first one a letter or a
/// digit, at most 128 of them.
bool isCloudFileName(const QString &name);

/// One file as a listing tells of it.
struct CloudFile
{
    QString name;
    qint64 size = 0; ///< bytes; -1 when the account does not say
    /// Of these bytes: other bytes under the name have another one. Empty when the account does not
    /// tell one here; reading the file may.
    QByteArray revision;
};

/// The folder of files that a person's computers share: on a WebDAV server, or on a disk where
/// another program synchronizes it. Everything in it may have been put there, changed, cut, swapped
/// or removed by anybody at any moment: what is read is bytes and nothing more.
///
/// Names are plain (isCloudFileName); others are NotThere or NotAllowed, and left out of a listing.
/// Files are up to some megabytes long, there may be thousands of them. Requests may be given while
/// others run; each is answered exactly once, in a later turn of the main loop, in any order, and
/// never after the storage has gone; the answer may destroy it. A request that was answered with an
/// error may have been carried out nevertheless, and one that lost its connection may have been
/// sent twice: whoever is told that a file has Changed may meet its own bytes there. Main thread.
class CloudStorage
{
public:
    /// What a file has become: its revision, where the account tells it at once, else empty.
    using Written = std::function<void(const CloudResult<QByteArray> &)>;
    struct Content
    {
        QByteArray bytes;
        QByteArray revision;
    };
    using Read = std::function<void(const CloudResult<Content> &)>;
    /// None: the file is the one of the revision that was named.
    using ReadChanged = std::function<void(const CloudResult<std::optional<Content>> &)>;
    using Listed = std::function<void(const CloudResult<QList<CloudFile>> &)>;
    using Removed = std::function<void(const std::optional<CloudError> &)>;

    virtual ~CloudStorage() = default;

    /// Every file, in any order. One request.
    virtual void list(Listed listed) = 0;
    /// Files of more than `limit` bytes are TooLarge, and no more than that is taken of them.
    virtual void read(const QString &name, qint64 limit, Read read) = 0;
    /// The same, without the bytes where they are those of `revision`. An empty revision is none.
    virtual void readIfChanged(
        const QString &name, const QByteArray &revision, qint64 limit, ReadChanged read) = 0;
    /// Makes a file; Changed when there is one of that name. Not every account can promise that:
    /// whoever calls relies on names that nobody else uses. A file is whole or not there where the
    /// account can promise that.
    virtual void create(const QString &name, const QByteArray &bytes, Written written) = 0;
    /// Makes or replaces a file. With a revision: Changed when the file is another one or none,
    /// with the same restriction.
    virtual void replace(const QString &name, const QByteArray &bytes, const QByteArray &revision,
        Written written) = 0;
    /// Success when there is no such file.
    virtual void remove(const QString &name, Removed removed) = 0;

    /// Has `changed` called when a file may have been changed, made or removed by somebody, us
    /// included: soon after it, several at once as one, and perhaps for nothing. A second call
    /// replaces the first. As this class has it, for accounts that say nothing by themselves: it is
    /// never called. Even where it is, changes on another computer may pass it by (a network file
    /// system), so whoever must know of all of them asks from time to time.
    virtual void watch(std::function<void()> changed);
};

} // namespace quillon
