// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

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
    /// mask() made it.
    bool isMask = false;
    std::optional<QStringList> onlyShownIn; ///< names of desktops; none when it says nothing
    QStringList notShownIn;

    bool operator==(const AutostartEntry &) const = default;

    /// Whether it is for a desktop that goes by `names` (`XDG_CURRENT_DESKTOP`, taken apart).
    bool isFor(const QStringList &names) const;

    /// Of a file that is no desktop entry nothing is started.
    static AutostartEntry read(const QByteArray &content);
    /// The content of a file that has `program`, a path, started.
    static QByteArray text(const QString &program, const QString &comment);
    /// The content of a file that keeps one of the same name for all users from acting, by our
    /// user's wish: what the desktop writes for the same is told apart from it.
    static QByteArray mask();
};

} // namespace quillon
