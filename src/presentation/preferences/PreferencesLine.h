// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quillon {

/// A line below a control of the preferences: what it does, or why it does not. In the user's
/// language; without a text there is none.
struct PreferencesLine
{
    enum class Kind
    {
        Hint,
        Notice,
        Failure,
    };

    Kind kind = Kind::Hint;
    QString text;

    bool operator==(const PreferencesLine &) const = default;
};

} // namespace quillon
