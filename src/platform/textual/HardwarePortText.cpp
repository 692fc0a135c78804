// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/textual/HardwarePortText.h"

#include "platform/PortName.h"
#include "platform/textual/TextLines.h"

#include <optional>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String portMark("Hardware Port: ");
constexpr QLatin1String deviceMark("Device: ");
constexpr QLatin1String addressMark("Ethernet Address: ");
constexpr QLatin1String nameEnd(" (");
constexpr qsizetype enWidth = 3;
constexpr qsizetype bridgeWidth = 7;
constexpr qsizetype addressWidth = 17;
constexpr qsizetype shortestAddress = 6;

QString displayName(QString portName)
{
    portName.removeIf(isLineBreak);
    const qsizetype end = portName.indexOf(nameEnd);
    return end < 0 ? portName : portName.left(end);
}

/// The widths are fixed on purpose: the text is not read up to the line's end.
std::optional<QString> deviceName(const QString &text)
{
    if (text.startsWith("en"_L1)) {
        return text.left(enWidth);
    }
    if (text.startsWith("bridge"_L1)) {
        return text.left(bridgeWidth);
    }
    return std::nullopt;
}

std::optional<QString> factoryAddress(const QString &chunk)
{
    const qsizetype mark = chunk.indexOf(addressMark);
    if (mark < 0) {
        return std::nullopt;
    }
    const QString text = chunk.mid(mark + addressMark.size());
    if (text.size() < shortestAddress) {
        return std::nullopt;
    }
    return text.left(addressWidth);
}

std::optional<HardwarePort> portInChunk(const QString &chunk)
{
    const qsizetype mark = chunk.indexOf(deviceMark);
    if (chunk == "\n"_L1 || mark < 0) {
        return std::nullopt;
    }
    const QString portName = chunk.left(mark);
    if (isSkippedPortName(portName)) {
        return std::nullopt;
    }
    const std::optional<QString> device = deviceName(chunk.mid(mark + deviceMark.size()));
    const std::optional<QString> hardware = factoryAddress(chunk);
    if (!device || !hardware) {
        return std::nullopt;
    }
    return HardwarePort{displayName(portName), *device, *hardware};
}

} // namespace

QList<HardwarePort> hardwarePorts(const QString &portList)
{
    QList<HardwarePort> ports;
    const QStringList chunks = portList.split(portMark);
    for (const QString &chunk : chunks) {
        if (const std::optional<HardwarePort> port = portInChunk(chunk)) {
            ports.append(*port);
        }
    }
    return ports;
}

} // namespace quillon
