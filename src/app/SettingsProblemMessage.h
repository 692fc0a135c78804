// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quillon {

struct SettingsProblem;

struct SettingsProblemMessage
{
    QString title;
    QString body;
};

/// What the user is told when something is wrong with the settings file.
SettingsProblemMessage settingsProblemMessage(const SettingsProblem &problem);

} // namespace quillon
