// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

namespace quillon {

/// Keys that are pressed together, as settings hold them: "Ctrl+Alt+M", "Meta+F5", "Ctrl+Shift++".
struct KeyCombination
{
    bool control = false;
    bool alt = false;
    bool shift = false;
    bool meta = false; ///< the key with the system's mark
    /// One character as it is printed on the key, letters in capitals, or a name: "F5", "Space".
    QString key;

    /// None for a text that is no combination, and for one that would take a key away from
    /// everything that is typed: all but function keys need Ctrl, Alt or Meta.
    static std::optional<KeyCombination> fromText(const QString &text);
    QString toText() const;

    bool operator==(const KeyCombination &) const = default;
};

/// A key by the numbers and names that window systems share.
struct KeySymbol
{
    quint32 number = 0;
    QString name;
};
/// None for a key that has none.
std::optional<KeySymbol> symbolOf(const QString &key);

} // namespace quillon
