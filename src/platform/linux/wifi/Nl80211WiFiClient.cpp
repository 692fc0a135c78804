// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/wifi/Nl80211WiFiClient.h"

#include "platform/linux/wifi/Nl80211Socket.h"
#include "platform/linux/wifi/WiFiReading.h"

namespace quillon {

std::optional<WiFiInterface> Nl80211WiFiClient::firstInterface()
{
    Nl80211Socket socket;
    return readWiFi(socket);
}

} // namespace quillon
