// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/Require.h"
#include "netlink/NetlinkAnswer.h"
#include "platform/linux/wifi/WiFiReading.h"
#include "platform/linux/wifi/WiFiSecurity.h"

#include <algorithm>
#include <cstdint>
#include <vector>

// The bytes are taken as the kernel's messages that answer every question about Wi-Fi, and once
// more as the information elements of a beacon.

namespace quillon::test {

namespace {

constexpr quint16 family = 28;
constexpr quint32 sequence = 1;
constexpr qsizetype longestName = 32;

class SameAnswerToAll : public Nl80211Exchange
{
public:
    explicit SameAnswerToAll(Nl80211Messages messages)
        : m_messages(std::move(messages))
    {
    }

    Nl80211Messages ask(const Nl80211Request &) override { return m_messages; }

private:
    Nl80211Messages m_messages;
};

void requireName(const QString &name)
{
    require(name.size() <= longestName, "a name has at most 32 characters");
    require(std::ranges::none_of(name,
                [](QChar character) {
                    return character < u' ' || character == QChar(0x7f) ||
                           character >= QChar(0xfffe);
                }),
        "a name can be kept in a property list");
}

void readAsElements(ByteSpan bytes)
{
    const InformationElements elements = informationElements(bytes);
    require(elements.ssid.size() <= longestName, "an SSID has at most 32 octets");
    requireName(networkName(elements.ssid));
    for (const auto privacy : {std::optional<bool>(), std::optional(false), std::optional(true)}) {
        const int value = security(elements, privacy);
        require(value >= WiFiInterface::UnknownSecurity && value <= WiFiInterface::OWETransition,
            "security is in the table");
        require(value != WiFiInterface::None ||
                    (!elements.rsn && !elements.wpa && elements.complete && privacy == false),
            "what is not certain to be open is not shown as open");
    }
    requireName(networkName(
        {reinterpret_cast<const char *>(bytes.data()), static_cast<qsizetype>(bytes.size())}));
}

void readAsMessages(ByteSpan bytes)
{
    // In memory of its own, aligned as a socket's buffer is.
    const std::vector<std::byte> copy(bytes.begin(), bytes.end());
    Nl80211Messages messages;
    NetlinkAnswer answer{.sequence = sequence};
    answer.add(copy, [&](const nlmsghdr &message) { messages.add(message, family); });
    const auto records = messages.interfaces.size() + messages.networks.size() +
                         messages.stations.size() + messages.noises.size();
    require(static_cast<std::size_t>(records) <= bytes.size() / sizeof(nlmsghdr),
        "every record is a message at least");
    require(answer.error >= 0 && answer.error < 4096, "an error is an errno");
    SameAnswerToAll exchange(std::move(messages));
    const auto wifi = readWiFi(exchange);
    if (!wifi) {
        return;
    }
    require(!wifi->device.isEmpty() && wifi->device.size() < 16, "a device has a name");
    requireName(wifi->ssid);
    require(wifi->bssid.isEmpty() || wifi->bssid.size() == 17, "a BSSID is six octets");
    require(!wifi->bssid.isEmpty() || wifi->ssid.isEmpty(), "who has a name has a BSSID");
    require(wifi->channel.number >= 0 && wifi->channel.number <= 233, "a channel is in its band");
    require((wifi->channel.number == 0) == (wifi->channel.band == 0), "a channel has a band");
    require(wifi->channel.width >= 0 && wifi->channel.width <= 4, "a width is in the table");
    require(wifi->activePHYMode >= 0 && wifi->activePHYMode <= 7, "a mode is in the table");
    require(
        wifi->countryCode.isEmpty() || wifi->countryCode.size() == 2, "a country has 2 letters");
    require(wifi->noise >= -128 && wifi->noise < 128, "noise came in an octet");
    require(wifi->transmitRate >= 0, "rates are not negative");
}

} // namespace

} // namespace quillon::test

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto bytes = std::as_bytes(std::span(data, size));
    quillon::test::readAsElements(bytes);
    quillon::test::readAsMessages(bytes);
    return 0;
}
