// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/ColorSchemeSource.h"

#include <QDBusMessage>
#include <QObject>

namespace quillon {

/// The preference `color-scheme` of the namespace org.freedesktop.appearance, from the desktop
/// portal's Settings interface. A desktop without portal, or one that states no preference, never
/// reports.
class PortalColorScheme : public QObject, public ColorSchemeSource
{
    Q_OBJECT

public:
    void watch(std::function<void(ColorScheme)> observer) override;

private Q_SLOTS:
    /// The whole message: a variant among a slot's parameters is not always delivered.
    void settingChanged(const QDBusMessage &message);

private:
    void report(const QVariant &value);

    std::function<void(ColorScheme)> m_observer;
};

} // namespace quillon
