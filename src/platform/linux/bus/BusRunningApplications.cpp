// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/bus/BusRunningApplications.h"

#include "base/Log.h"
#include "platform/linux/bus/BusCall.h"

#include <utility>

namespace quillon {

namespace {
constexpr int longestWaitInMilliseconds = 1000;
}

BusRunningApplications::BusRunningApplications(QDBusConnection bus)
    : m_bus(std::move(bus))
{
}

bool BusRunningApplications::isRunning(const QString &identifier)
{
    const QDBusMessage reply =
        m_bus.call(nameHasOwner(identifier), QDBus::Block, longestWaitInMilliseconds);
    if (reply.type() != QDBusMessage::ReplyMessage) {
        qCWarning(logPlatform, "Running programs are not known: %ls",
            qUtf16Printable(reply.errorMessage()));
        return false;
    }
    return reply.arguments().value(0).toBool();
}

} // namespace quillon
