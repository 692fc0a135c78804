// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QList>
#include <QString>

#include <chrono>

namespace quillon {

/// How many changes a minute the news of the network may cause on one device: whatever a network,
/// a driver or another program does, nothing runs in a circle, and nobody is asked for a password
/// without end. Moments are of a clock that nobody sets.
class ChangeLimit
{
public:
    using Moment = std::chrono::milliseconds;

    void asked(const QString &device, Moment now);
    void failed(const QString &device, Moment now);
    /// What made changes of `device` fail has gone.
    void forgetFailures(const QString &device);
    /// How long the next change has to wait; 0 when it may be made now.
    std::chrono::milliseconds wait(const QString &device, Moment now) const;

private:
    using Moments = QHash<QString, QList<Moment>>;

    Moments m_asked;
    Moments m_failed;
};

} // namespace quillon
