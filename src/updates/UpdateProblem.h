// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Error.h"

namespace quillon {

/// Why a look for new versions brought nothing, as far as it matters to the user.
enum class UpdateProblem
{
    NoInternet = 1,
    BadAddress, ///< of the list of versions: not https
    NotFetched,
    NotTrusted, ///< what came is not signed, or is not a list of versions
    Outdated,   ///< what came is older than what came before, or has expired
};

inline const QString updateErrorDomain = QStringLiteral("UpdateErrorDomain");

/// `why` is for the log.
inline Error updateError(UpdateProblem problem, const QString &why)
{
    return {updateErrorDomain, static_cast<int>(problem), why};
}

} // namespace quillon
