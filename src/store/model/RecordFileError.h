// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Error.h"

namespace quillon {

inline const QString recordFileErrorDomain = QStringLiteral("RecordFileErrorDomain");

/// The codes of recordFileErrorDomain.
enum class RecordFileError
{
    CannotOpen = 1, ///< no such folder, no permission, not a file
    NotARecordFile, ///< it belongs to something else
    Damaged,
    Newer,       ///< written by a later version of the program
    Locked,      ///< another program keeps it for longer than the second that we wait
    Full,        ///< the disk is
    InputOutput, ///< the disk fails
    UnknownName, ///< a fetch names an entity or attribute that the model does not have
    Failed,      ///< anything else that SQLite says
};

inline Error recordFileError(RecordFileError code, const QString &message)
{
    return {recordFileErrorDomain, static_cast<int>(code), message};
}

inline bool isRecordFileError(const Error &error, RecordFileError code)
{
    return error.domain == recordFileErrorDomain && error.code == static_cast<int>(code);
}

} // namespace quillon
