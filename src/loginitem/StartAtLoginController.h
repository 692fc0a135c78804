// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/LoginItem.h"

#include <QObject>

#include <optional>

namespace quillon {

class SettingsStore;

/// Has the desktop start the program when the user logs in, as the setting `loginStart` says. Main
/// thread.
class StartAtLoginController : public QObject
{
    Q_OBJECT

public:
    StartAtLoginController(const SettingsStore &settings, LoginItem &loginItem);

    /// Looks for the program that the desktop is to start; on first need. Again does nothing.
    void initLoginController();
    /// Follows the setting.
    void updateLogin();

    /// What was asked of the desktop last.
    bool startAtLogin() const { return m_startAtLogin; }
    /// Without effect where the program is missing.
    void setStartAtLogin(bool start);
    /// Whether the desktop's list was brought to what was asked last, be that on or off.
    bool enabled() const { return m_enabled; }
    /// The program that the desktop is to start is there.
    bool hasProgram() const { return m_program.has_value(); }

Q_SIGNALS:
    /// `startAtLogin` and `enabled` were set, be it to what they were.
    void changed();

private:
    const SettingsStore &m_settings;
    LoginItem &m_loginItem;
    bool m_isMade = false;
    std::optional<LoginItem::Program> m_program;
    bool m_startAtLogin = false;
    bool m_enabled = false;
};

} // namespace quillon
