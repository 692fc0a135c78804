// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quillon {

/// The one channel by which a component tells the user of a result. Safe from every thread.
class Notifier
{
public:
    virtual ~Notifier() = default;

    /// Title and body are shown as they are: callers look them up with localized() and fill them
    /// in.
    virtual void sendNotificationWithBody(const QString &title, const QString &body) = 0;
};

} // namespace quillon
