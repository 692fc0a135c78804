// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/PowerSaving.h"

#include <utility>

namespace quillon::test {

/// A computer whose user saves the battery, or does not.
class FakePowerSaving : public PowerSaving
{
public:
    bool isOn() const override { return m_isOn; }
    void watch(std::function<void()> changed) override { m_changed = std::move(changed); }

    bool isWatched() const { return bool(m_changed); }
    void become(bool isOn)
    {
        m_isOn = isOn;
        if (m_changed) {
            m_changed();
        }
    }

private:
    bool m_isOn = false;
    std::function<void()> m_changed;
};

} // namespace quillon::test
