// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/TrayHost.h"

#include <utility>

namespace quillon::test {

/// A desktop whose tray host comes and goes.
class FakeTrayHost : public TrayHost
{
public:
    void watch(std::function<void(bool)> observer) override { m_observer = std::move(observer); }
    void become(bool available) { m_observer(available); }

private:
    std::function<void(bool)> m_observer;
};

} // namespace quillon::test
