// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace quillon {

/// A desktop entry in an autostart folder (freedesktop Autostart Specification 0.5, Desktop Entry
/// Specification 1.5), as far as it says what is started.
struct AutostartEntry
{
    QString command; ///< as it is written, "" for none
    /// Its program, by its path; "" when the command has arguments or is none.
    QString program;
    /// By `Hidden`, or by what GNOME writes for the same.
    bool isSwitchedOff = false;

    bool operator==(const AutostartEntry &) const = default;

    /// Of a file that is no desktop entry nothing is started.
    static AutostartEntry read(const QByteArray &content);
    /// The content of a file that has `program`, a path, started.
    static QByteArray text(const QString &program, const QString &comment);
};

} // namespace quillon
