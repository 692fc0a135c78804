// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Error.h"

namespace quillon {

class AlertPresenter;
class SettingsStore;

/// Why the records could not be opened or saved, as a sentence for the user where we know one;
/// otherwise what the error says.
QString reasonOf(const Error &error);

/// A failed save in words for the user.
Error saveFailure(const Error &error);

/// Tells the user why the file at `path` cannot be opened, after the settings were flushed. A file
/// that is sound and only made by a newer version ends the process then, with EXIT_FAILURE; for all
/// others the process is to be aborted (RecordStore::OpenFailure).
void presentOpenFailure(
    SettingsStore &settings, AlertPresenter &alerts, const Error &error, const QString &path);

} // namespace quillon
