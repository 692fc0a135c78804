// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/wifi/RfkillRadioSwitch.h"

#include "base/Log.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <linux/rfkill.h>
#include <unistd.h>

namespace quillon {

RfkillRadioSwitch::RfkillRadioSwitch(const QString &device)
{
    const int descriptor =
        ::open(QFile::encodeName(device).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0) {
        // A machine without radios has no such device.
        if (errno != ENOENT) {
            qCWarning(logPlatform, "%s cannot be read: whether Wi-Fi is switched off is not known",
                qUtf8Printable(device));
        }
        return;
    }
    m_notifier = std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Read);
    QObject::connect(
        m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] { read(); });
    read();
}

RfkillRadioSwitch::~RfkillRadioSwitch()
{
    if (m_notifier) {
        m_notifier->setEnabled(false);
        ::close(static_cast<int>(m_notifier->socket()));
    }
}

bool RfkillRadioSwitch::isOff() const
{
    return !m_isBlocked.isEmpty() && std::all_of(m_isBlocked.begin(), m_isBlocked.end(),
                                         [](bool isBlocked) { return isBlocked; });
}

void RfkillRadioSwitch::read()
{
    const bool wasOff = isOff();
    Reading reading = Reading::Taken;
    while (reading == Reading::Taken) {
        reading = readOne();
    }
    if (reading == Reading::Ended) {
        m_notifier->setEnabled(false);
    }
    if (isOff() != wasOff && m_changed) {
        m_changed();
    }
}

RfkillRadioSwitch::Reading RfkillRadioSwitch::readOne()
{
    // Later kernels have more to tell at the end of an event; who asks for less gets its beginning.
    rfkill_event event{};
    const int descriptor = static_cast<int>(m_notifier->socket());
    const ssize_t size = ::read(descriptor, &event, RFKILL_EVENT_SIZE_V1);
    if (size < 0 && errno == EINTR) {
        return Reading::Taken;
    }
    if (size != RFKILL_EVENT_SIZE_V1) {
        return size < 0 && errno == EAGAIN ? Reading::NothingMore : Reading::Ended;
    }
    if (event.type != RFKILL_TYPE_WLAN) {
        return Reading::Taken;
    }
    if (event.op == RFKILL_OP_DEL) {
        m_isBlocked.remove(event.idx);
    } else if (event.op == RFKILL_OP_ADD || event.op == RFKILL_OP_CHANGE) {
        m_isBlocked.insert(event.idx, event.soft != 0 || event.hard != 0);
    }
    return Reading::Taken;
}

} // namespace quillon
