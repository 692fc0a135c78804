// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quillon {

/// The text, or its beginning and an ellipsis: `longest` UTF-16 code units at most, 1 or more. No
/// character is cut in two.
QString cutText(const QString &text, qsizetype longest);

} // namespace quillon
