// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quillon {

/// The copy of the settings in the user's cloud account. Main thread.
class SettingsSync
{
public:
    virtual ~SettingsSync() = default;

    /// Replaces what the account holds with the settings of this machine, in the background.
    virtual void syncFromCurrentState() = 0;
};

} // namespace quillon
