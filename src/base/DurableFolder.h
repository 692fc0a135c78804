// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Error.h"

#include <QFileDevice>
#include <QString>

#include <optional>

namespace quillon {

// A file survives a power cut only together with its name, and that is kept by its folder.

/// Waits until the names in `folder` are on the disk. Where that cannot be waited for, as with some
/// network file systems or a folder that may not be read, it is logged: the names stand all the
/// same.
void syncFolder(const QString &folder);

/// Makes the folder, and those above it that are missing, so that they survive a power cut. One
/// that is there stays as it is. `permissions` are those of the folder itself; without them, and
/// for those above, the process's own apply. An error (posixErrorDomain) means that it is not
/// there.
std::optional<Error> makeFolder(
    const QString &path, std::optional<QFileDevice::Permissions> permissions = {});

} // namespace quillon
