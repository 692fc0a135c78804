// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/AppearanceSource.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>

namespace quillon {

/// What the desktop portal's Settings interface says: `color-scheme`, `contrast` and
/// `reduced-motion` of org.freedesktop.appearance, and `enable-animations` of
/// org.gnome.desktop.interface, which is older and says the same as `reduced-motion`. What is not
/// of the type that the portal documents counts as not said.
class PortalAppearance : public QObject, public AppearanceSource
{
    Q_OBJECT

public:
    explicit PortalAppearance(const QDBusConnection &bus = QDBusConnection::sessionBus());

    void watch(std::function<void(const Appearance &)> observer) override;

private Q_SLOTS:
    /// The whole message: a variant among a slot's parameters is not always delivered.
    void settingChanged(const QDBusMessage &message);

private:
    void read(const QString &group, const QString &key);
    void take(const QString &group, const QString &key, const QVariant &value);

    QDBusConnection m_bus;
    std::function<void(const Appearance &)> m_observer;
    Appearance m_appearance;
    // Two settings say that nothing is to move.
    bool m_isMotionReduced = false;
    bool m_areAnimationsOff = false;
};

} // namespace quillon
