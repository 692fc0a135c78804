// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

namespace quillon {

enum class ColorScheme
{
    Light,
    Dark,
};

/// Which colors the user prefers on this desktop. Main thread.
class ColorSchemeSource
{
public:
    virtual ~ColorSchemeSource() = default;

    /// Begins to watch. `observer` is called in a later turn of the main loop once the desktop has
    /// answered, and after that at every change; never on a desktop that does not say. Called once.
    virtual void watch(std::function<void(ColorScheme)> observer) = 0;
};

} // namespace quillon
