// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>

#include <chrono>
#include <functional>

namespace quillon::test {

/// Runs the main loop until `condition` holds; false when it does not within `limit`, which only a
/// hang reaches. With a limit of its own it says that something does not happen.
inline bool eventually(const std::function<bool()> &condition,
    std::chrono::milliseconds limit = std::chrono::minutes(2))
{
    const QDeadlineTimer deadline(limit);
    QTimer waking; // so that what no event announces is looked at again, too
    waking.start(10);
    while (!condition()) {
        if (deadline.hasExpired()) {
            // What is due by now comes first, however long we were kept from running.
            QCoreApplication::processEvents();
            return condition();
        }
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return true;
}

} // namespace quillon::test
