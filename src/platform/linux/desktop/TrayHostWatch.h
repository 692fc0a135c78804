// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/TrayHost.h"

#include <QObject>

class QDBusServiceWatcher;

namespace quillon {

/// A tray host by the StatusNotifierItem protocol: the session bus has
/// org.kde.StatusNotifierWatcher, and that says that a host is registered with it. Without a
/// session bus there is none.
class TrayHostWatch : public QObject, public TrayHost
{
    Q_OBJECT

public:
    TrayHostWatch();

    void watch(std::function<void(bool available)> observer) override;

private Q_SLOTS:
    void ask();

private:
    void report(bool available);

    std::function<void(bool available)> m_observer;
    QDBusServiceWatcher *m_watcher;
    quint64 m_question = 0;
    bool m_known = false;
    bool m_available = false;
};

} // namespace quillon
