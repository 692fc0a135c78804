// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/wifi/InformationElements.h"

#include <QStringDecoder>

#include <algorithm>
#include <array>

namespace quillon {

namespace {

// Element IDs, 9.4.2.1.
enum ElementId
{
    Ssid = 0,
    SupportedRates = 1,
    HTCapabilities = 45,
    Rsn = 48,
    ExtendedRates = 50,
    Wapi = 68,
    VHTCapabilities = 191,
    VendorSpecific = 221,
    Extension = 255,
};

// Element ID extensions: the first octet of an Extension element.
enum ExtensionId
{
    HECapabilities = 35,
    EHTCapabilities = 108,
};

// Organization and type of vendor specific elements.
constexpr quint32 wpaElement = 0x0050F201;
constexpr quint32 osenElement = 0x506F9A12;
constexpr quint32 oweTransitionElement = 0x506F9A1C;

constexpr std::size_t longestSsid = 32;

QByteArray octets(ByteSpan bytes)
{
    return {reinterpret_cast<const char *>(bytes.data()), static_cast<qsizetype>(bytes.size())};
}

// Rates are in 500 kbit/s; the highest bit tells that one is basic.
bool hasOrthogonalRate(ByteSpan rates)
{
    constexpr std::array<int, 8> orthogonal{12, 18, 24, 36, 48, 72, 96, 108};
    return std::ranges::any_of(rates, [&](std::byte rate) {
        return std::ranges::binary_search(orthogonal, std::to_integer<int>(rate & std::byte{0x7f}));
    });
}

/// Collects what the elements say, one after the other.
class Collecting
{
public:
    void element(int id, ByteSpan content)
    {
        switch (id) {
        case Ssid:
            if (!m_named && content.size() <= longestSsid) {
                m_found.ssid = octets(content);
                m_named = true;
            }
            break;
        case SupportedRates:
        case ExtendedRates:
            m_found.orthogonalRates = m_found.orthogonalRates || hasOrthogonalRate(content);
            break;
        case HTCapabilities:
            announce(WiFiGeneration::HighThroughput);
            break;
        case VHTCapabilities:
            announce(WiFiGeneration::VeryHighThroughput);
            break;
        case Rsn:
            if (!m_found.rsn) {
                m_found.rsn = rsnSuites(content);
            }
            break;
        case Wapi:
            m_found.otherProtection = true;
            break;
        case VendorSpecific:
            vendorSpecific(content);
            break;
        case Extension:
            extension(content);
            break;
        default:
            break;
        }
        m_found.complete = true;
    }

    void cutShort() { m_found.complete = false; }
    InformationElements found() const { return m_found; }

private:
    void announce(WiFiGeneration generation)
    {
        m_found.generation = std::max(m_found.generation, generation);
    }

    void vendorSpecific(ByteSpan content)
    {
        quint32 kind = 0;
        if (content.size() < sizeof kind) {
            return;
        }
        for (const std::byte octet : content.first(sizeof kind)) {
            kind = kind << 8 | std::to_integer<quint32>(octet);
        }
        if (kind == wpaElement && !m_found.wpa) {
            m_found.wpa = wpaSuites(content.subspan(sizeof kind));
        }
        m_found.otherProtection = m_found.otherProtection || kind == osenElement;
        m_found.oweTransition = m_found.oweTransition || kind == oweTransitionElement;
    }

    void extension(ByteSpan content)
    {
        const int id = content.empty() ? -1 : std::to_integer<int>(content.front());
        if (id == HECapabilities) {
            announce(WiFiGeneration::HighEfficiency);
        } else if (id == EHTCapabilities) {
            announce(WiFiGeneration::ExtremelyHighThroughput);
        }
    }

    InformationElements m_found;
    bool m_named = false;
};

QChar printable(QChar character)
{
    constexpr char16_t pictures = 0x2400;
    constexpr char16_t pictureOfDelete = 0x2421;
    const char16_t code = character.unicode();
    if (code < 0x20) {
        return static_cast<char16_t>(pictures + code);
    }
    if (code == 0x7f) {
        return pictureOfDelete;
    }
    return code >= 0xfffe ? QChar(QChar::ReplacementCharacter) : character;
}

} // namespace

InformationElements informationElements(ByteSpan bytes)
{
    constexpr std::size_t headSize = 2;
    Collecting collecting;
    while (!bytes.empty()) {
        const std::size_t size =
            bytes.size() < headSize ? 0 : std::to_integer<std::size_t>(bytes[1]);
        if (bytes.size() < headSize + size) {
            collecting.cutShort();
            break;
        }
        collecting.element(std::to_integer<int>(bytes[0]), bytes.subspan(headSize, size));
        bytes = bytes.subspan(headSize + size);
    }
    return collecting.found();
}

QString networkName(const QByteArray &ssid)
{
    const QByteArray name = ssid.left(longestSsid);
    if (name.count('\0') == name.size()) {
        return {};
    }
    // A byte order mark is an ordinary character here: dropping it could leave an empty name.
    QStringDecoder utf8(QStringDecoder::Utf8,
        QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    QString text = utf8(name);
    if (utf8.hasError()) {
        text = QString::fromLatin1(name);
    }
    std::ranges::transform(text, text.begin(), printable);
    return text;
}

} // namespace quillon
