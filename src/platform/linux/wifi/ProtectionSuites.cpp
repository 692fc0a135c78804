// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/wifi/ProtectionSuites.h"

#include <optional>

namespace quillon {

namespace {

constexpr quint16 knownVersion = 1;
constexpr std::size_t suiteSize = 4;
constexpr quint16 frameProtectionRequiredBit = 0x0040;

// What counts when a field is left out: CCMP or TKIP, and authentication by 802.1X.
struct Defaults
{
    quint32 cipher;
    quint32 authentication;
};

constexpr Defaults rsnDefaults{.cipher = 0x000FAC04, .authentication = 0x000FAC01};
constexpr Defaults wpaDefaults{.cipher = 0x0050F202, .authentication = 0x0050F201};

/// Takes fields from the front. Once a field is cut short nothing more can be taken.
class Fields
{
public:
    explicit Fields(ByteSpan content)
        : m_rest(content)
    {
    }

    bool intact() const { return m_intact; }

    std::optional<quint16> number()
    {
        const auto bytes = take(2);
        return bytes ? std::optional(static_cast<quint16>(
                           octet(*bytes, 0) | static_cast<unsigned int>(octet(*bytes, 1) << 8)))
                     : std::nullopt;
    }

    std::optional<quint32> suite()
    {
        const auto bytes = take(suiteSize);
        return bytes ? std::optional(octet(*bytes, 0) << 24 | octet(*bytes, 1) << 16 |
                                     octet(*bytes, 2) << 8 | octet(*bytes, 3))
                     : std::nullopt;
    }

    /// A count and so many suites; the default when the field is left out or names none.
    QList<quint32> suites(quint32 otherwise)
    {
        QList<quint32> list;
        for (int left = number().value_or(0); left > 0 && m_intact; --left) {
            const auto next = suite();
            if (!next) {
                m_intact = false; // the count promised more
                return list;
            }
            list.append(*next);
        }
        if (list.isEmpty() && m_intact) {
            list.append(otherwise);
        }
        return list;
    }

private:
    static quint32 octet(ByteSpan bytes, std::size_t index)
    {
        return std::to_integer<quint32>(bytes[index]);
    }

    std::optional<ByteSpan> take(std::size_t size)
    {
        if (m_rest.size() < size) {
            m_intact = m_intact && m_rest.empty();
            m_rest = {};
            return std::nullopt;
        }
        const ByteSpan taken = m_rest.first(size);
        m_rest = m_rest.subspan(size);
        return taken;
    }

    ByteSpan m_rest;
    bool m_intact = true;
};

ProtectionSuites suitesOf(ByteSpan content, const Defaults &defaults)
{
    Fields fields(content);
    ProtectionSuites suites;
    const auto version = fields.number();
    if (!version) {
        return suites; // the one field that must be there
    }
    suites.groupCipher = fields.suite().value_or(defaults.cipher);
    suites.pairwiseCiphers = fields.suites(defaults.cipher);
    suites.authentication = fields.suites(defaults.authentication);
    suites.frameProtectionRequired = fields.number().value_or(0) & frameProtectionRequiredBit;
    suites.intact = fields.intact() && version == knownVersion;
    return suites;
}

} // namespace

ProtectionSuites rsnSuites(ByteSpan content)
{
    return suitesOf(content, rsnDefaults);
}

ProtectionSuites wpaSuites(ByteSpan content)
{
    ProtectionSuites suites = suitesOf(content, wpaDefaults);
    suites.frameProtectionRequired = false; // its capabilities have no such bit
    return suites;
}

} // namespace quillon
