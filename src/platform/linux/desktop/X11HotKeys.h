// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/HotKeys.h"

#include <QAbstractNativeEventFilter>
#include <QHash>
#include <QObject>

namespace quillon {

/// Hot keys by passive grabs of the X server. Only where isOffered().
class X11HotKeys : public QObject, public HotKeyBinder, private QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    X11HotKeys();
    ~X11HotKeys() override;

    /// Whether the program's windows are on an X server.
    static bool isOffered();

    void bind(const HotKey &hotKey, Reply reply) override;
    void release(const QString &identifier) override;

private:
    struct Binding
    {
        HotKey hotKey;
        quint8 keyCode = 0;
        quint16 modifiers = 0;
        bool isDown = false;
        quint32 releasedAt = 0; ///< the server's time
        quint64 number = 0;     ///< of the wish
    };

    bool nativeEventFilter(const QByteArray &type, void *message, qintptr *result) override;
    HotKeyResult grab(Binding &binding);
    bool isOurs(const Binding &binding) const;
    void pressed(Binding &binding, quint32 time);

    QHash<QString, Binding> m_bindings; ///< those that were granted
    QHash<QString, quint64> m_wishes;   ///< the newest of each identifier
    quint64 m_lastWish = 0;
};

} // namespace quillon
