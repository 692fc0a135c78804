// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

namespace quillon {

/// The system's word that something about the network changed: a link, an address or a route, of
/// whichever interface. A burst of events is one change, also when it is about several interfaces.
class NetworkChangeSource
{
public:
    virtual ~NetworkChangeSource() = default;

    /// From now on `changed` is called on the main thread, once per burst. Called once.
    virtual void start(std::function<void()> changed) = 0;
};

} // namespace quillon
