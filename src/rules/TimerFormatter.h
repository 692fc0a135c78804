// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quillon {

/// The rules of the entry field for minutes, applied to the whole proposed text at every keystroke.
class TimerFormatter
{
public:
    /// At most three of the digits 0 to 9; the empty text is one too.
    bool isPartialStringValid(const QString &proposed) const;
};

} // namespace quillon
