// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/Nl80211WiFiClient.h"

#include "platform/linux/Nl80211Socket.h"
#include "platform/linux/WiFiReading.h"

namespace quillon {

std::optional<WiFiInterface> Nl80211WiFiClient::firstInterface()
{
    Nl80211Socket socket;
    return readWiFi(socket);
}

} // namespace quillon
