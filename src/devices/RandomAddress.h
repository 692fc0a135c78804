// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace quillon {

class DeviceTable;
class RandomSource;

/// The first octet for the random byte `r`: upper-case, no leading zero, its two low bits binary 10
/// (locally administered, unicast). The distribution is deliberately uneven: only the first
/// six digits of the binary numeral count, so bytes from 64 lose their lowest bit and bytes from
/// 128 their two lowest.
QString randomFirstOctet(quint8 r);

/// A random address from six random bytes: 17 characters, or 16 when the first octet is one digit.
/// Empty unless there are six bytes.
QString randomAddressText(const QByteArray &randomBytes);

/// The manufacturer's prefix in a vendor choice "organization (A1B2C3)": the six characters before
/// the last one. None when the choice holds no "(".
std::optional<QString> vendorPrefix(const QString &vendorChoice);

/// `address` with its first octets replaced by `prefix`: the prefix with its colons and the address
/// from its ninth character on. With a 16-character address the result is malformed (a colon
/// lacks), and is refused by the address test of the helper.
QString addressWithPrefix(const QString &prefix, const QString &address);

/// Makes random addresses, plain or inside the prefix of the device's chosen manufacturer. Any
/// thread.
class RandomAddress
{
public:
    RandomAddress(RandomSource &random, const DeviceTable &devices);

    /// Inside the prefix of `vendor`, "" for none; without `vendor` the device record's own choice
    /// applies. Empty when the random source fails.
    QString addressForDevice(const QString &device, const std::optional<QString> &vendor) const;

private:
    RandomSource &m_random;
    const DeviceTable &m_devices;
};

} // namespace quillon
