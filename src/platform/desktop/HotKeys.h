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

/// How a desktop lets programs have hot keys.
enum class HotKeyWay
{
    Unknown,        ///< it has not been asked
    Grabs,          ///< a program takes the combinations that are free
    DesktopDecides, ///< a program asks for them, and the desktop's user has the last word
    NotOffered,
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
class HotKeyBinder
{
public:
    using Reply = std::function<void(HotKeyResult)>;

    virtual ~HotKeyBinder() = default;

    /// Replaces the binding of the same identifier, if any. `reply` comes once, or not at all when
    /// the binding was replaced or released before; a desktop may ask its user first.
    virtual void bind(const HotKey &hotKey, Reply reply) = 0;
    /// Ignored where nothing is bound.
    virtual void release(const QString &identifier) = 0;
};

/// The same in the way that this desktop offers.
class HotKeys : public HotKeyBinder
{
public:
    /// `reply` comes once, within half a minute; not when this object goes before.
    virtual void findWay(std::function<void(HotKeyWay)> reply) = 0;
};

} // namespace quillon
