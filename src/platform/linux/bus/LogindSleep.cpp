// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/bus/LogindSleep.h"

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

LogindSleep::LogindSleep(QDBusConnection bus)
    : m_bus(std::move(bus))
{
}

void LogindSleep::watch(std::function<void()> resumed)
{
    m_resumed = std::move(resumed);
    // By its name: Qt hears only who owns that, whatever a signal says of itself.
    m_bus.connect(u"org.freedesktop.login1"_s, u"/org/freedesktop/login1"_s,
        u"org.freedesktop.login1.Manager"_s, u"PrepareForSleep"_s, this,
        SLOT(prepareForSleep(bool)));
}

void LogindSleep::prepareForSleep(bool begins)
{
    if (!begins) {
        m_resumed();
    }
}

} // namespace quillon
