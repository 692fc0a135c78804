// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <optional>

namespace quillon {

enum class ColorScheme
{
    Light,
    Dark,
};

/// How the user wants windows to look and to move. As it is here where the desktop says nothing.
struct Appearance
{
    std::optional<ColorScheme> scheme = {}; ///< none: either
    bool isHighContrast = false;
    bool isStill = false; ///< nothing is to move

    bool operator==(const Appearance &) const = default;
};

/// What this desktop's settings say of it. Main thread.
class AppearanceSource
{
public:
    virtual ~AppearanceSource() = default;

    /// Begins to watch. `observer` is called in a later turn of the main loop when the desktop has
    /// answered with anything other than Appearance(), and after that at every change; never on a
    /// desktop that does not say. Called once.
    virtual void watch(std::function<void(const Appearance &)> observer) = 0;
};

} // namespace quillon
