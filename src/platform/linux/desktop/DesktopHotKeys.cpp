// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/desktop/DesktopHotKeys.h"

#include "platform/linux/bus/BusCall.h"
#include "platform/linux/desktop/PortalHotKeys.h"
#include "platform/linux/desktop/X11HotKeys.h"

#include <utility>

namespace quillon {

namespace {

using namespace std::chrono_literals;

// The portal may have to be started first.
constexpr auto answerLimit = 25s;

} // namespace

DesktopHotKeys::DesktopHotKeys(const QDBusConnection &bus)
    : m_bus(bus)
{
}

void DesktopHotKeys::bind(const HotKey &hotKey, Reply reply)
{
    m_waiting[hotKey.identifier] = {hotKey, std::move(reply)};
    if (m_chosen != HotKeyWay::Unknown) {
        QMetaObject::invokeMethod(this, &DesktopHotKeys::bindWaiting, Qt::QueuedConnection);
    } else {
        askOnce();
    }
}

void DesktopHotKeys::release(const QString &identifier)
{
    m_waiting.remove(identifier);
    if (m_way) {
        m_way->release(identifier);
    }
}

void DesktopHotKeys::findWay(std::function<void(HotKeyWay)> reply)
{
    m_curious.append(std::move(reply));
    if (m_chosen != HotKeyWay::Unknown) {
        QMetaObject::invokeMethod(this, &DesktopHotKeys::tellWay, Qt::QueuedConnection);
    } else {
        askOnce();
    }
}

void DesktopHotKeys::askOnce()
{
    if (!std::exchange(m_isAsking, true)) {
        callBus(m_bus, this, PortalHotKeys::isOfferedQuestion(), answerLimit,
            [this](const QDBusMessage &answer) {
                choose(answer.type() == QDBusMessage::ReplyMessage);
            });
    }
}

void DesktopHotKeys::choose(bool hasPortal)
{
    m_chosen = HotKeyWay::NotOffered;
    if (hasPortal) {
        m_chosen = HotKeyWay::DesktopDecides;
        m_way = std::make_unique<PortalHotKeys>(m_bus);
    } else if (X11HotKeys::isOffered()) {
        m_chosen = HotKeyWay::Grabs;
        m_way = std::make_unique<X11HotKeys>();
    }
    tellWay();
    bindWaiting();
}

void DesktopHotKeys::tellWay()
{
    const auto curious = std::exchange(m_curious, {});
    for (const auto &reply : curious) {
        reply(m_chosen);
    }
}

void DesktopHotKeys::bindWaiting()
{
    const auto waiting = std::exchange(m_waiting, {});
    // All of them first: they may swap their combinations.
    for (const Wish &wish : waiting) {
        if (m_way) {
            m_way->release(wish.hotKey.identifier);
        }
    }
    for (const Wish &wish : waiting) {
        if (m_way) {
            m_way->bind(wish.hotKey, wish.reply);
        } else {
            wish.reply(HotKeyResult::NotOffered);
        }
    }
}

} // namespace quillon
