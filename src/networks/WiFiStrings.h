// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QVariant>

namespace quillon {

struct WiFiInterface;

// The numbers of platform/WiFiClient.h as English texts. A number without a text is "Unknown",
// except a PHY mode, which is "None".

/// `security` is a WiFiInterface::Security; WPA3 and enhanced open networks have no text.
QString securityStringForNetwork(int security);
QString bandStringForChannel(int band);
QString widthStringForChannel(int width);
QString phyModeStringForInterface(int activePHYMode);

/// The interface's value for `key`, as an integer; "" when it has none. The one key is "mcsIndex",
/// which not every driver tells.
QVariant getValueFromobjectForKey(const WiFiInterface &interface, const QString &key);

} // namespace quillon
