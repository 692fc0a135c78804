// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/desktop/DesktopSystemSettings.h"

#include <QLatin1String>
#include <QProcess>
#include <QStandardPaths>

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// A desktop by its registered name, its settings program, and the page to open there.
struct SettingsProgram
{
    QLatin1String desktop;
    QLatin1String program;
    QLatin1String page;
};

constexpr SettingsProgram settingsPrograms[] = {
    {"GNOME"_L1, "gnome-control-center"_L1, "location"_L1},
    {"Unity"_L1, "gnome-control-center"_L1, "location"_L1},
    {"Budgie"_L1, "budgie-control-center"_L1, "location"_L1},
    {"KDE"_L1, "systemsettings"_L1, ""_L1},
};

bool startDetached(const QString &program, const QStringList &arguments)
{
    return QProcess::startDetached(program, arguments);
}

} // namespace

DesktopSystemSettings::DesktopSystemSettings(Launch launch)
    : m_launch(launch ? std::move(launch) : Launch(&startDetached))
{
}

bool DesktopSystemSettings::openLocationServices()
{
    const auto desktops =
        qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':', Qt::SkipEmptyParts);
    for (const QString &desktop : desktops) {
        for (const SettingsProgram &settings : settingsPrograms) {
            if (desktop.compare(settings.desktop, Qt::CaseInsensitive) != 0) {
                continue;
            }
            const QString program = QStandardPaths::findExecutable(settings.program);
            const QStringList arguments =
                settings.page.isEmpty() ? QStringList() : QStringList{settings.page};
            if (!program.isEmpty() && m_launch(program, arguments)) {
                return true;
            }
        }
    }
    return false;
}

} // namespace quillon
