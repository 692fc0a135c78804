// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "contract/Validation.h"

#include <algorithm>

namespace quillon::contract {

namespace {

// <cctype> asks the locale, which the caller's environment could choose.
constexpr bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

constexpr bool isLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

constexpr bool isSafeInName(char c)
{
    return isDigit(c) || isLetter(c) || c == '.' || c == '_' || c == '-';
}

std::optional<unsigned> hexadecimalDigit(char c)
{
    if (isDigit(c)) {
        return static_cast<unsigned>(c - '0');
    }
    if (c >= 'a' && c <= 'f') {
        return static_cast<unsigned>(c - 'a') + 10;
    }
    if (c >= 'A' && c <= 'F') {
        return static_cast<unsigned>(c - 'A') + 10;
    }
    return std::nullopt;
}

std::optional<std::uint8_t> octet(std::string_view text)
{
    if (text.empty() || text.size() > 2) {
        return std::nullopt;
    }
    unsigned value = 0;
    for (char c : text) {
        const auto digit = hexadecimalDigit(c);
        if (!digit) {
            return std::nullopt;
        }
        value = value * 16 + *digit;
    }
    return static_cast<std::uint8_t>(value);
}

} // namespace

bool isValidDeviceName(std::string_view name)
{
    if (name.empty() || name.size() > longestDeviceName || name == "." || name == "..") {
        return false;
    }
    return name.front() != '-' && std::all_of(name.begin(), name.end(), isSafeInName);
}

std::optional<LinkLayerAddress> unicastAddress(std::string_view text)
{
    LinkLayerAddress address{};
    for (std::size_t i = 0; i < address.size(); ++i) {
        const bool last = i + 1 == address.size();
        const auto end = last ? text.size() : text.find(':');
        if (end == std::string_view::npos) {
            return std::nullopt;
        }
        const auto value = octet(text.substr(0, end));
        if (!value) {
            return std::nullopt;
        }
        address[i] = *value;
        text.remove_prefix(last ? end : end + 1);
    }
    const bool multicast = (address[0] & 1U) != 0;
    if (multicast || address == LinkLayerAddress{}) {
        return std::nullopt;
    }
    return address;
}

std::string addressText(const LinkLayerAddress &address)
{
    static constexpr char digits[] = "0123456789abcdef";
    std::string text;
    for (std::uint8_t octetValue : address) {
        if (!text.empty()) {
            text += ':';
        }
        text += digits[octetValue >> 4U];
        text += digits[octetValue & 15U];
    }
    return text;
}

} // namespace quillon::contract
