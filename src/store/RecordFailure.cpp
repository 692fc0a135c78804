// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/RecordFailure.h"

#include "base/Localized.h"
#include "store/file/RecordFile.h"

namespace quillon {

QString reasonOf(const Error &error)
{
    if (error.domain != recordFileErrorDomain) {
        return error.message;
    }
    switch (static_cast<RecordFileError>(error.code)) {
    case RecordFileError::Locked:
        return localized("Another program is using the file.");
    case RecordFileError::Full:
        return localized("There is no room left on the disk.");
    case RecordFileError::InputOutput:
        return localized("The disk could not be read or written.");
    case RecordFileError::CannotOpen:
    case RecordFileError::NotARecordFile:
    case RecordFileError::Damaged:
    case RecordFileError::Newer:
    case RecordFileError::UnknownName:
    case RecordFileError::Failed:
        break;
    }
    return error.message;
}

} // namespace quillon
