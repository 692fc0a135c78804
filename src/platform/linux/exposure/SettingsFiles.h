// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/ExposureSource.h"
#include "platform/linux/exposure/IniText.h"

#include <QByteArray>

#include <optional>

namespace quillon {

/// What the files of those who configure an interface say, as far as an ordinary user may read
/// them.
struct SettingsFiles
{
    struct Networkd
    {
        std::optional<IniText> network; ///< of the link; none when it cannot be read
        IniText general;
        IniText lease;
    };
    struct Dhclient
    {
        ExposureFacts::Dhcp ipv4; ///< with nothing known unless there is one for it
        ExposureFacts::Dhcp ipv6;
    };

    IniText networkManager; ///< all of its files, the one that counts most last
    IniText avahi;
    Networkd networkd;
    std::optional<Dhclient> dhclient; ///< none when none runs for the interface
};

/// Reads them below `root`, which is "" but for tests. `hardware` is the address that the
/// interface was made with. Takes tens of milliseconds. Any thread.
SettingsFiles readSettingsFiles(
    const QString &root, const QString &device, int index, const QByteArray &hardware);

} // namespace quillon
