// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quillon {

/// Which of our programs run in this user's session.
class RunningApplications
{
public:
    virtual ~RunningApplications() = default;

    /// Blocks for at most a second; false when the session cannot be asked. Main thread.
    virtual bool isRunning(const QString &identifier) = 0;
};

} // namespace quillon
