// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/desktop/DesktopSystemSettings.h"

#include <QLatin1String>
#include <QProcess>
#include <QStandardPaths>

#include <utility>

namespace quillon {

namespace {

/// A desktop by its registered name, its settings program, and the page to open there.
struct SettingsProgram
{
    QLatin1String desktop;
    QLatin1String program;
    QLatin1String page;
};

constexpr SettingsProgram settingsPrograms[] = {
    {QLatin1String("GNOME"), QLatin1String("gnome-control-center"), QLatin1String("location")},
    {QLatin1String("Unity"), QLatin1String("gnome-control-center"), QLatin1String("location")},
    {QLatin1String("Budgie"), QLatin1String("budgie-control-center"), QLatin1String("location")},
    {QLatin1String("KDE"), QLatin1String("systemsettings"), QLatin1String("")},
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
        qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(QLatin1Char(':'), Qt::SkipEmptyParts);
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
