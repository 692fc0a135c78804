// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/WiFiClient.h"

#include <utility>

namespace quillon::test {

/// A radio that joins what it is told to.
class FakeWiFiClient : public WiFiClient
{
public:
    std::optional<WiFiInterface> firstInterface() override
    {
        ++reads;
        return interface;
    }

    void join(WiFiInterface network) { interface = std::move(network); }
    /// Still there, but associated with nothing.
    void leave()
    {
        if (interface) {
            interface->ssid.clear();
            interface->bssid.clear();
        }
    }

    std::optional<WiFiInterface> interface;
    int reads = 0;
};

} // namespace quillon::test
