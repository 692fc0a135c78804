// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "presentation/preferences/BoundSetting.h"

namespace quillon {

/// The display preferences: the letters of addresses, and whether the external address is looked
/// up. Main thread.
class DisplayPreferencesViewController
{
public:
    explicit DisplayPreferencesViewController(SettingsStore &settings);

    /// The letters of addresses are small.
    BoundSetting lowerCaseHEX;
    BoundSetting shouldUpdateExternalIP;
};

} // namespace quillon
