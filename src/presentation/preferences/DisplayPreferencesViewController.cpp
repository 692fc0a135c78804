// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/preferences/DisplayPreferencesViewController.h"

#include "base/SettingsKeys.h"

namespace quillon {

DisplayPreferencesViewController::DisplayPreferencesViewController(SettingsStore &settings)
    : lowerCaseHEX(settings, keys::lowerCaseHEX)
    , shouldUpdateExternalIP(settings, keys::shouldUpdateExternalIP)
{
}

} // namespace quillon
