// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/ExposureSource.h"
#include "platform/linux/exposure/IniText.h"

#include <QDBusConnection>
#include <QObject>

#include <functional>

namespace quillon {

/// The names to which the computer answers on a link.
struct LocalNames
{
    ExposureFacts::LocalName avahi;
    ExposureFacts::LocalName resolvedMdns;
    ExposureFacts::LocalName resolvedLlmnr;
};

/// Whether Avahi, if it runs, does not tell its name on `device`, by avahi-daemon.conf.
bool isSilentOn(const QString &device, const IniText &avahi);

/// Asks Avahi and systemd-resolved, none of which is started for it. `avahi` is
/// avahi-daemon.conf. `reply` is called once, in a later turn, within seconds, unless `context`
/// goes before.
void readLocalNames(const QDBusConnection &bus, const QString &device, int index,
    const IniText &avahi, QObject *context,
    const std::function<void(const LocalNames &names)> &reply);

} // namespace quillon
