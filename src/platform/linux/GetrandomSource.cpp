// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/GetrandomSource.h"

#include "base/Log.h"

#include <cerrno>
#include <cstring>
#include <sys/random.h>

namespace quillon {

GetrandomSource::GetrandomSource()
    : GetrandomSource(&::getrandom)
{
}

GetrandomSource::GetrandomSource(SystemCall getrandom)
    : m_getrandom(getrandom)
{
}

QByteArray GetrandomSource::bytes(int count)
{
    QByteArray bytes(count, '\0');
    qsizetype filled = 0;
    while (filled < bytes.size()) {
        const ssize_t size =
            m_getrandom(bytes.data() + filled, static_cast<size_t>(bytes.size() - filled), 0);
        if (size < 0 && errno == EINTR) {
            continue;
        }
        if (size <= 0) {
            const int error = size < 0 ? errno : EIO;
            qCCritical(logPlatform, "No random bytes: %s", std::strerror(error));
            return {};
        }
        filled += size;
    }
    return bytes;
}

} // namespace quillon
