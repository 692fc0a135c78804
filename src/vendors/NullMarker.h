// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quillon {

/// Stands in a formatted text for a value that is missing.
inline const QString nullMarker = QStringLiteral("(null)");

} // namespace quillon
