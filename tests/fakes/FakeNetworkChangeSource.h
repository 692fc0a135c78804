// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/NetworkChangeSource.h"

#include <utility>

namespace quillon::test {

/// The system's network-change notification, given by the test.
class FakeNetworkChangeSource : public NetworkChangeSource
{
public:
    void start(std::function<void()> changed) override { m_changed = std::move(changed); }
    bool isStarted() const { return static_cast<bool>(m_changed); }
    void networkChanges() { m_changed(); }

private:
    std::function<void()> m_changed;
};

} // namespace quillon::test
