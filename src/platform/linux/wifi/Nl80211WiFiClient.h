// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/WiFiClient.h"

namespace quillon {

/// What the kernel reports through nl80211. Each call has a socket of its own, so that nothing of
/// an earlier conversation is left in it. Without a wireless kernel, or in a sandbox that hides it,
/// there is no interface, and the log is silent about it.
class Nl80211WiFiClient : public WiFiClient
{
public:
    std::optional<WiFiInterface> firstInterface() override;
};

} // namespace quillon
