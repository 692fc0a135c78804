// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Error.h"

#include <QString>

#include <functional>

namespace quillon {

/// What is wrong with the settings file, for whoever tells the user.
struct SettingsProblem
{
    enum class Kind
    {
        /// It is no property list. It is kept as `keptPath`; what this process knows of it, or else
        /// the defaults, serve, and a new file is made. With an empty `keptPath` it could not be
        /// renamed: it stays where it is and is not replaced.
        Damaged,
        /// It cannot be read. The defaults serve; it is left alone, so new values last only until
        /// the program ends, unless it becomes readable before.
        Unreadable,
        /// The file or its folder is read-only, or the write failed otherwise. The old file is
        /// intact; new values are tried again with the next one, and lost if that fails until the
        /// program ends.
        NotWritable,
        /// The same because there is no room.
        DiskFull,
    };

    Kind kind;
    QString path;
    QString keptPath;
    Error error; ///< posixErrorDomain, or propertyListErrorDomain for a damaged file

    using Handler = std::function<void(const SettingsProblem &)>;
};

} // namespace quillon
