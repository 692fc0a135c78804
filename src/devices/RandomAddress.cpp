// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "devices/RandomAddress.h"

#include "base/SettingsKeys.h"
#include "devices/DeviceTable.h"
#include "platform/RandomSource.h"

#include <algorithm>
#include <bit>

namespace quillon {

namespace {

constexpr int randomByteCount = 6;
constexpr int keptBits = 6;
constexpr qsizetype prefixLength = 6;
/// Where the random part of an address begins when a manufacturer's prefix stands before it.
constexpr qsizetype afterPrefix = 8;

} // namespace

QString randomFirstOctet(quint8 r)
{
    const int surplus = std::max(0, static_cast<int>(std::bit_width(r)) - keptBits);
    const int octet = ((r >> surplus) << 2) | 0b10;
    return QString::number(octet, 16).toUpper();
}

QString randomAddressText(const QByteArray &randomBytes)
{
    if (randomBytes.size() != randomByteCount) {
        return {};
    }
    QString text = randomFirstOctet(static_cast<quint8>(randomBytes.front()));
    text += u':';
    text += QString::fromLatin1(randomBytes.mid(1).toHex(':')).toUpper();
    return text;
}

std::optional<QString> vendorPrefix(const QString &vendorChoice)
{
    if (!vendorChoice.contains(u'(')) {
        return std::nullopt;
    }
    return vendorChoice.chopped(1).right(prefixLength);
}

QString addressWithPrefix(const QString &prefix, const QString &address)
{
    const QLatin1Char colon(':');
    return prefix.left(2) + colon + prefix.mid(2, 2) + colon + prefix.mid(4) +
           address.mid(afterPrefix);
}

RandomAddress::RandomAddress(RandomSource &random, const DeviceTable &devices)
    : m_random(random)
    , m_devices(devices)
{
}

QString RandomAddress::addressForDevice(
    const QString &device, const std::optional<QString> &vendor) const
{
    const QString choice = vendor ? *vendor : m_devices.record(device).vendor.value_or(QString());
    const std::optional<QString> prefix = vendorPrefix(choice);
    const QString address = randomAddressText(m_random.bytes(randomByteCount));
    return prefix && !address.isEmpty() ? addressWithPrefix(*prefix, address) : address;
}

} // namespace quillon
