// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/SystemSettings.h"

#include <QStringList>

#include <functional>

namespace quillon {

/// The settings program of the desktop that XDG_CURRENT_DESKTOP names (freedesktop.org, Desktop
/// Entry Specification: names separated by ":", the nearest first), at its page for location
/// services. Desktops without such a page open where they open by themselves.
class DesktopSystemSettings : public SystemSettings
{
public:
    /// Starts a program with arguments and lets it go; false when it could not be started.
    using Launch = std::function<bool(const QString &program, const QStringList &arguments)>;

    /// By default, starts it detached and without a shell.
    explicit DesktopSystemSettings(Launch launch = {});

    /// False also when the desktop's program is not on PATH.
    bool openLocationServices() override;

private:
    Launch m_launch;
};

} // namespace quillon
