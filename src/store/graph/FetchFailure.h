// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Error.h"

#include <QLoggingCategory>

namespace quillon {

/// The two lines that say that records could not be fetched, in the log of the caller's module.
inline void logFetchFailure(const QLoggingCategory &(*category)(), const Error &error)
{
    qCWarning(category, "Unable to execute fetch request.");
    qCWarning(category, "%s %d, %s", qUtf8Printable(error.domain), error.code,
        qUtf8Printable(error.message));
}

} // namespace quillon
