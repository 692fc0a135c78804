// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/desktop/AutostartDesktop.h"

#include <QStringList>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// Desktops with a session manager that starts them.
constexpr QLatin1String starting[] = {"GNOME"_L1, "GNOME-Classic"_L1, "GNOME-Flashback"_L1,
    "KDE"_L1, "XFCE"_L1, "MATE"_L1, "X-Cinnamon"_L1, "Cinnamon"_L1, "LXDE"_L1, "LXQt"_L1,
    "Budgie"_L1, "Pantheon"_L1, "Unity"_L1, "Deepin"_L1, "DDE"_L1, "UKUI"_L1, "Enlightenment"_L1,
    "COSMIC"_L1, "Lomiri"_L1};
/// Window managers that start what their own configuration names, and nothing else.
constexpr QLatin1String ignoring[] = {"sway"_L1, "i3"_L1, "Hyprland"_L1, "river"_L1, "niri"_L1,
    "wlroots"_L1, "labwc"_L1, "wayfire"_L1, "dwm"_L1, "dwl"_L1, "bspwm"_L1, "awesome"_L1,
    "qtile"_L1, "herbstluftwm"_L1, "xmonad"_L1};

template <typename Names>
bool hasAny(const QStringList &desktops, const Names &names)
{
    return std::ranges::any_of(desktops, [&names](const QString &desktop) {
        return std::ranges::any_of(names, [&desktop](QLatin1String name) {
            return desktop.compare(name, Qt::CaseInsensitive) == 0;
        });
    });
}

} // namespace

LoginItem::Desktop autostartDesktop(const QString &names, bool hasSystemdRunThem)
{
    const QStringList desktops = names.split(u':', Qt::SkipEmptyParts);
    if (hasSystemdRunThem || hasAny(desktops, starting)) {
        return LoginItem::Desktop::StartsPrograms;
    }
    return hasAny(desktops, ignoring) ? LoginItem::Desktop::Ignores : LoginItem::Desktop::Unknown;
}

} // namespace quillon
