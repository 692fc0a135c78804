// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QUrl>

#include <functional>
#include <optional>

namespace quillon {

/// The desktop's list of programs that it starts when the user logs in, as far as it is about ours.
/// The user and the desktop may change it at any moment. Main thread.
class LoginItem
{
public:
    /// The program that the desktop is to start, which then starts Quillon.
    struct Program
    {
        QString identifier;
        QUrl url;
    };
    enum class Entry
    {
        None,
        Ours,         ///< the desktop is asked to start our program
        SwitchedOff,  ///< by the user or the desktop: it stays so until our entry is taken out
        OtherDesktop, ///< it starts our program on others only; it stays so as above
        Foreign,      ///< it starts something else, or cannot be read: never touched
    };
    enum class Desktop
    {
        Unknown,
        StartsPrograms,
        Ignores, ///< it starts no programs by itself
    };

    virtual ~LoginItem() = default;

    /// None where the program is missing.
    virtual std::optional<Program> program() const = 0;
    /// Puts the entry into the list, or takes our own out. False when it is not as it was wanted,
    /// which holds also for an entry that is not ours to change.
    virtual bool setEnabled(const QString &identifier, bool enabled) = 0;
    virtual Entry entry() const = 0;

    /// What this desktop makes of the list, as far as it can be known. `reply` comes once, in a
    /// later turn of the main loop, within seconds; not when this object goes before.
    virtual void findDesktop(std::function<void(Desktop)> reply) = 0;
};

} // namespace quillon
