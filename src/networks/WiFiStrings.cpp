// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "networks/WiFiStrings.h"

#include "platform/WiFiClient.h"

#include <array>
#include <span>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr const char *unknown = QT_TRANSLATE_NOOP("Quillon", "Unknown");
constexpr const char *none = QT_TRANSLATE_NOOP("Quillon", "None");

/// `texts` begin with the text of `first`.
QString textFor(int number, int first, std::span<const char *const> texts, const char *otherwise)
{
    const bool known = number >= first && number - first < static_cast<int>(texts.size());
    return QString::fromLatin1(known ? texts[static_cast<size_t>(number - first)] : otherwise);
}

} // namespace

QString securityStringForNetwork(int security)
{
    static constexpr std::array texts = {none, "WEP", QT_TRANSLATE_NOOP("Quillon", "WPA Personal"),
        QT_TRANSLATE_NOOP("Quillon", "WPA Personal Mixed"),
        QT_TRANSLATE_NOOP("Quillon", "WPA2 Personal"), QT_TRANSLATE_NOOP("Quillon", "Personal"),
        QT_TRANSLATE_NOOP("Quillon", "Dynamic WEP"), QT_TRANSLATE_NOOP("Quillon", "WPA Enterprise"),
        QT_TRANSLATE_NOOP("Quillon", "WPA Enterprise Mixed"),
        QT_TRANSLATE_NOOP("Quillon", "WPA2 Enterprise"),
        QT_TRANSLATE_NOOP("Quillon", "Enterprise")};
    return textFor(security, WiFiInterface::None, texts, unknown);
}

QString bandStringForChannel(int band)
{
    static constexpr std::array texts = {"2.4 GHz", "5 GHz", "6 GHz"};
    return textFor(band, 1, texts, unknown);
}

QString widthStringForChannel(int width)
{
    static constexpr std::array texts = {"20 MHz", "40 MHz", "80 MHz", "160 MHz"};
    return textFor(width, 1, texts, unknown);
}

QString phyModeStringForInterface(int activePHYMode)
{
    static constexpr std::array texts = {
        "802.11a", "802.11b", "802.11g", "802.11n", "802.11ac", "802.11ax"};
    return textFor(activePHYMode, 1, texts, none);
}

QVariant getValueFromobjectForKey(const WiFiInterface &interface, const QString &key)
{
    if (key == "mcsIndex"_L1 && interface.mcsIndex) {
        return static_cast<qlonglong>(*interface.mcsIndex);
    }
    return QString();
}

} // namespace quillon
