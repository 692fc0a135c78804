// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quillon {

/// The desktop's own settings program.
class SystemSettings
{
public:
    virtual ~SystemSettings() = default;

    /// Opens it where location services (or, where a desktop has no such page, privacy) are allowed
    /// or refused. False when the desktop has no settings program that we know.
    virtual bool openLocationServices() = 0;
};

} // namespace quillon
