// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/RecordFailure.h"

#include "base/Localized.h"
#include "platform/SettingsStore.h"
#include "platform/desktop/AlertPresenter.h"
#include "store/model/RecordFileError.h"

#include <cstdlib>

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

Error saveFailure(const Error &error)
{
    return {error.domain, error.code,
        filled(
            localized("Rules and history could not be saved. They are kept while Quillon runs. %@"),
            {reasonOf(error)})};
}

namespace {

Alert openFailureAlert(const Error &error, const QString &path)
{
    const QStringList buttons{localized("Quit")};
    if (isRecordFileError(error, RecordFileError::Newer)) {
        return {localized("The records were written by a newer version of Quillon"),
            filled(localized("They are left untouched; please install that version again to use "
                             "them: %@"),
                {path}),
            buttons};
    }
    return {localized("The records cannot be opened"),
        filled(localized("%@\n\nRules and history are in this file, which is left as it is: %@"),
            {reasonOf(error), path}),
        buttons};
}

} // namespace

void presentOpenFailure(
    SettingsStore &settings, AlertPresenter &alerts, const Error &error, const QString &path)
{
    // Nothing else is to be lost by this: neither what was changed until now, nor what changes
    // while the user reads.
    settings.flush();
    alerts.runModal(openFailureAlert(error, path));
    settings.flush();
    if (isRecordFileError(error, RecordFileError::Newer)) {
        std::_Exit(EXIT_FAILURE);
    }
}

} // namespace quillon
