// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// What the helper accepts as a device and as an address. Pure functions of their text, any thread.
/// No Qt: the helper includes this.
namespace quillon::contract {

/// The bytes of an EUI-48 in the order in which they travel.
using LinkLayerAddress = std::array<std::uint8_t, 6>;

/// The longest interface name that Linux keeps, in bytes without the closing zero (IFNAMSIZ - 1).
inline constexpr std::size_t longestDeviceName = 15;

/// Whether `name` may be looked up in the kernel: 1 to 15 bytes of ASCII letters, digits, ".", "_"
/// and "-", not beginning with "-", and neither "." nor "..". Narrower than the kernel, which would
/// take nearly any byte.
bool isValidDeviceName(std::string_view name);

/// The address in `text`: six octets of one or two hexadecimal digits separated by ":". None for
/// anything else, for a multicast address (broadcast is one) and for the zero address.
std::optional<LinkLayerAddress> unicastAddress(std::string_view text);

/// "0a:0b:0c:0d:0e:0f".
std::string addressText(const LinkLayerAddress &address);

} // namespace quillon::contract
