// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/RadioSwitch.h"

#include <utility>

namespace quillon::test {

/// The switch of the machine's radios, which the test turns.
class FakeRadioSwitch : public RadioSwitch
{
public:
    bool isOff() const override { return m_isOff; }
    void watch(std::function<void()> changed) override { m_changed = std::move(changed); }

    void turn(bool isOff)
    {
        m_isOff = isOff;
        if (m_changed) {
            m_changed();
        }
    }
    bool isWatched() const { return bool(m_changed); }

private:
    bool m_isOff = false;
    std::function<void()> m_changed;
};

} // namespace quillon::test
