// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Result.h"

#include <QByteArray>
#include <QString>
#include <QVariantMap>

#include <optional>

namespace quillon {

/// Files beyond this are refused, both ways.
inline constexpr qint64 propertyListFileLimit = 16 * 1024 * 1024;

/// The dictionary in `bytes`, an XML property list, normalized. Anything else is an error of
/// propertyListErrorDomain.
Result<QVariantMap> readPropertyList(const QByteArray &bytes);

/// The whole content of the file (or resource) at `path`. Errors: posixErrorDomain with ENOENT,
/// EACCES, EISDIR …; EFBIG when it is larger than propertyListFileLimit.
Result<QByteArray> readFileContent(const QString &path);

/// Both together: the dictionary in the property-list file (or resource) at `path`.
Result<QVariantMap> readPropertyListFile(const QString &path);

/// Replaces the file's content by `bytes` atomically: whoever reads sees the old or the new
/// content, whole. On return without an error it is durable, the folder's entry included where the
/// file system lets that be waited for. On an
/// error (posixErrorDomain) the old content stands. A new file is the user's alone; a missing
/// folder is made.
std::optional<Error> replaceFileContent(const QString &path, const QByteArray &bytes);

/// Gives the file at `path` an unused name beside it, so that it is kept; returns the new path.
Result<QString> setFileAside(const QString &path);

} // namespace quillon
