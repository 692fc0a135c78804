// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/textual/TextualHost.h"

#include "base/Localized.h"
#include "base/Log.h"
#include "platform/CommandRunner.h"
#include "platform/textual/HardwarePortText.h"
#include "platform/textual/InterfaceQueryText.h"

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// Names come from settings and from the port list: anything else could carry a command of its own.
bool isPlainWord(const QString &device)
{
    return !device.isEmpty() && !device.startsWith(u'-') &&
           std::all_of(device.begin(), device.end(), [](QChar c) {
               return c.unicode() < 0x80 &&
                      (c.isLetterOrNumber() || QStringView(u"._-").contains(c));
           });
}

} // namespace

TextualHost::TextualHost(CommandRunner &commands)
    : m_commands(commands)
{
}

std::optional<QList<PortRecord>> TextualHost::ports()
{
    const QString portList = m_commands.run(u"networksetup -listallhardwareports"_s);
    if (portList.isEmpty()) {
        return std::nullopt;
    }
    QList<PortRecord> records;
    const QList<HardwarePort> kept = hardwarePorts(portList);
    records.reserve(kept.size());
    for (const HardwarePort &port : kept) {
        records.append({port.interface, port.device, port.hardware, info(port.device)});
    }
    return records;
}

InterfaceInfo TextualHost::info(const QString &device)
{
    if (!isPlainWord(device)) {
        qCWarning(logDevices) << "Not an interface name:" << device;
        return {};
    }
    return interfaceInfo(m_commands.run(filled(u"ifconfig %@"_s, {device})));
}

} // namespace quillon
