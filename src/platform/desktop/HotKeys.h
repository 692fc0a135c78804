// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/KeyCombination.h"

#include <functional>

namespace quillon {

/// What became of the wish for a hot key.
enum class HotKeyResult
{
    Bound,
    Taken,      ///< another program has the combination
    Refused,    ///< the desktop or its user said no
    NoSuchKey,  ///< the keyboard has no such key
    NotOffered, ///< this desktop does not let programs have hot keys
};

struct HotKey
{
    QString identifier;
    QString description; ///< for a desktop that lists hot keys, in the user's language
    KeyCombination keys;
    std::function<void()> pressed; ///< once for each time that the keys are pressed
};

/// Combinations of keys that reach the program whichever window has the keyboard. Main thread;
/// callbacks come in a later turn of its loop.
class HotKeys
{
public:
    using Reply = std::function<void(HotKeyResult)>;

    virtual ~HotKeys() = default;

    /// Replaces the binding of the same identifier, if any. `reply` comes once, or not at all when
    /// the binding was replaced or released before; a desktop may ask its user first.
    virtual void bind(const HotKey &hotKey, Reply reply) = 0;
    /// Ignored where nothing is bound.
    virtual void release(const QString &identifier) = 0;
};

} // namespace quillon
