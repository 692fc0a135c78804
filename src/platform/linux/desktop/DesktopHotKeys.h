// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/HotKeys.h"

#include <QDBusConnection>
#include <QMap>
#include <QObject>

#include <memory>

namespace quillon {

/// Hot keys in the way that this desktop offers: by its portal, else by the X server, else not at
/// all. The portal is asked, and started, only once there is a hot key to bind, or somebody who
/// wants to know the way.
class DesktopHotKeys : public QObject, public HotKeys
{
    Q_OBJECT

public:
    explicit DesktopHotKeys(const QDBusConnection &bus = QDBusConnection::sessionBus());

    void bind(const HotKey &hotKey, Reply reply) override;
    void release(const QString &identifier) override;
    void findWay(std::function<void(HotKeyWay)> reply) override;

private:
    struct Wish
    {
        HotKey hotKey;
        Reply reply;
    };

    void askOnce();
    void choose(bool hasPortal);
    void bindWaiting();
    void tellWay();

    QDBusConnection m_bus;
    bool m_isAsking = false;
    HotKeyWay m_chosen = HotKeyWay::Unknown;
    QList<std::function<void(HotKeyWay)>> m_curious; ///< who is to be told of it
    QMap<QString, Wish> m_waiting;                   ///< by identifier, what is still to be bound
    std::unique_ptr<HotKeyBinder> m_way;             ///< none: not offered
};

} // namespace quillon
